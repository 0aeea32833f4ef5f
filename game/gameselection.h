#pragma once

#include "furniture.h"
#include "game.h"

#include <QObject>
#include <array>

class QLabel;

class AlphabetBarAnimation;
class KeyFeedback;
class QAbstractButton;

// The twelve buttons that choose a game: a direction crossed with a key set. A
// choice is stored at once, also in mid-game; between games it runs a wave along
// the Alphabet Bar over just the characters in play.
class GameSelection : public QObject
{
    Q_OBJECT

public:
    GameSelection(Furniture &usedFurniture, Game &usedGame, KeyFeedback &keyFeedback,
                  AlphabetBarAnimation &barAnimation);

    void makeForward();
    void makeReverse();
    void makeRandom();

    void gameisConsonants(); // Uppercase
    void gameisVarious();    // Lowercase
    void gameisNumberLine();
    void gameisAll();

    void forwardAll() { select(Direction::Forward, Keys::Set::Everything); }
    void forwardNumberLine() { select(Direction::Forward, Keys::Set::NumberLine); }
    void forwardVarious() { select(Direction::Forward, Keys::Set::Lowercase); }
    void forwardConsonants() { select(Direction::Forward, Keys::Set::Uppercase); }
    void reverseAll() { select(Direction::Reverse, Keys::Set::Everything); }
    void reverseNumberLine() { select(Direction::Reverse, Keys::Set::NumberLine); }
    void reverseVarious() { select(Direction::Reverse, Keys::Set::Lowercase); }
    void reverseConsonants() { select(Direction::Reverse, Keys::Set::Uppercase); }
    void randomAll() { select(Direction::Random, Keys::Set::Everything); }
    void randomNumberLine() { select(Direction::Random, Keys::Set::NumberLine); }
    void randomVarious() { select(Direction::Random, Keys::Set::Lowercase); }
    void randomConsonants() { select(Direction::Random, Keys::Set::Uppercase); }

    void select(Direction direction, Keys::Set set);

    // The shields keep the mouse from the buttons and from Start while a wave runs.
    void showShields();
    void hideShields();

signals:
    void selected(); // by a click, after all of the above

private:
    void choose(Direction direction);
    void choose(Keys::Set set);
    void runWave(Direction direction, Keys::Set set);
    std::array<QLabel *, 5> shields() const;
    void setShieldsVisible(bool visible);
    // From the left, as far as the wave still has to go: 1 is all of it, 0 nothing.
    void veilShields(double share);

    Furniture &furniture;
    Game &game;
    KeyFeedback &feedback;
    AlphabetBarAnimation &animation;
};
