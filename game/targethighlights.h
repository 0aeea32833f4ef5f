#pragma once

#include <QObject>

class Instructor;
class MouseTable;
struct Furniture;
struct Game;
struct Wardrobe;

// Two answers to "Can't find it?": the Highlight paints the target on the keyboard
// and in the Alphabet Bar, the Lines cross on its key. The target is the text of
// leMatch; while that is no character of the keyboard, nothing here has any effect.
class TargetHighlights : public QObject
{
    Q_OBJECT

public:
    TargetHighlights(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
                     Instructor &virtualInstructor);

    // The buttons; they can be pressed during a game only.
    void setGoldHigh();
    void setLineHigh();
    void dressButton(); // gray between games

    void goldHighOn();
    void goldHighOff();
    void lineHighOn();
    void lineHighOff();

    // As long as the flags are set: before and after the target changes, and once the
    // game is over.
    void leaveTarget();
    void meetTarget();
    void endOfGame();
    // A key was put back: if it was the target's, the Highlight comes again.
    void restore();

    // All lines in the look of the lines.
    void dressLines();

    // Repaints a pressed key (1 to 94) if it is the target or the target's partner.
    void keyGoldHigh(int number);

    // The lines lie on the wallpaper and under the keys, or over everything.
    void lineHighlightLower();
    void lineHighlightRaise();

private:
    void setUpLines();
    void setLinesVisible(bool visible);
    void placeCharacters();

    Furniture &furniture;
    Wardrobe &wardrobe;
    Game &game;
    Instructor &instructor;
};
