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

    // During a game the wave is off and its switch is gray.
    void lock();
    void unlock();

    // 1: round keys, anything else: square ones. A key stays centered on its place.
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
};
