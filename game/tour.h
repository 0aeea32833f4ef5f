#pragma once

#include <QObject>

struct Furniture;
struct Game;

// Walks the eye over the four frames of the top strip, again and again, until the
// first game starts or the non-vitals are hidden (GameState::demoFlag); it never
// comes back in that run of the program.
class Tour : public QObject
{
    Q_OBJECT

public:
    Tour(Furniture &usedFurniture, Game &usedGame);

    // Arms one cycle, or takes the tour off the screen once it is over.
    void demo();
    void hideDemo();

private:
    void step(int number); // 1 to 4
    void arrowShow();
    void moveArrows(bool inPlace);

    Furniture &furniture;
    Game &game;
    bool armed = false; // a cycle is under way; the opening window may ask for another
};
