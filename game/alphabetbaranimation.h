#pragma once

#include <QMargins>
#include <QObject>
#include <QRect>
#include <vector>

class KeyFeedback;
class QWidget;
struct Furniture;
struct Game;
struct Wardrobe;

// The light that runs along the Alphabet Bar when a game is chosen, and the radio
// buttons that switch it; and the shape of the keys. Which cells the light visits and
// when is GameSelection's.
class AlphabetBarAnimation : public QObject
{
    Q_OBJECT

public:
    AlphabetBarAnimation(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
                         KeyFeedback &keyFeedback);

    // Lights the cell of a key (1 to 94, others are ignored). changeColorBack puts it back.
    void labelAnimate(int number);

    void animationOn_function();
    void animationOff_function();

    // During a game the wave is off and its switch is grey.
    void lock();
    void unlock();

    // Runs a light over the keys themselves: "a" upwards or the 33rd key downwards. Nothing
    // in the window calls it; boolFlag closes a run and lets the next one start.
    void startAnimation(bool downwards);
    void boolFlag() { animationFlag = true; }

    // 1: round keys, anything else: square ones. A key stays centred on its place.
    void makeCircle(int position);

signals:
    void shapeChanged(); // all that has corners is dressed anew

private:
    struct Resized
    {
        QWidget *widget;
        QRect home;
        QMargins margins;
    };

    Furniture &furniture;
    Wardrobe &wardrobe;
    Game &game;
    KeyFeedback &feedback;
    std::vector<Resized> keyWidgets;
    bool animationFlag = true;
};
