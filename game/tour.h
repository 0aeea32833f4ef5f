#pragma once

#include <QObject>

struct Board;

// Walks the eye over the four frames of the top strip, again and again, until the
// first game starts or the non-vitals are hidden (GameState::demoFlag); it never
// comes back in that run of the program.
class Tour : public QObject
{
    Q_OBJECT

public:
    explicit Tour(Board &usedBoard);

    // Arms one cycle, or takes the tour off the screen once it is over.
    void demo();
    void hideDemo();

private:
    void step(int number); // 1 to 4
    void arrowShow();
    void moveArrows(bool inPlace);

    Board &board;
    bool armed = false; // a cycle is under way; the opening window may ask for another
};
