#pragma once

class KeyFeedback;
class MouseTable;
struct Furniture;
struct Game;
struct Wardrobe;

// The mouse moves over keys and cells of the Alphabet Bar: it lights the character in both
// places, unless it paints.
class KeyHover
{
public:
    // What takes the moves instead of the light, while it wants them.
    class Painter
    {
    public:
        virtual ~Painter() = default;
        virtual bool isPainting() const = 0;
        virtual void paintCap(int cap) = 0;                // 1 to 47
        virtual void paintBar(int key) = 0;                // 1 to 94
        virtual void paintControl(int textOrderIndex) = 0; // 0 to 6, in Keys::textOrder
    };

    KeyHover(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
             KeyFeedback &keyFeedback, MouseTable &mouse);

    // Null: nobody paints. The painter must outlive its time here.
    void setPainter(Painter *keyPainter) { painter = keyPainter; }

private:
    bool isPainting() const { return painter && painter->isPainting(); }
    void enterCap(int cap);
    void leaveCap(int cap);
    void enterBar(int key);
    void lightBackground(int cap);
    void lightText(int key, bool asUpper);

    Furniture &furniture;
    Wardrobe &wardrobe;
    Game &game;
    KeyFeedback &feedback;
    Painter *painter = nullptr;
};
