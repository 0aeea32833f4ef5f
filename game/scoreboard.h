#pragma once

#include <QObject>

struct Furniture;
struct Game;
class Timers;

// The clock and the two counts. The clock is a plain count of seconds, which can be
// stopped and resumed in a game without any effect on the judging.
class ScoreBoard : public QObject
{
    Q_OBJECT

public:
    ScoreBoard(Furniture &usedFurniture, Game &usedGame, Timers &windowTimers);

    void startCounter();
    // The radio "off" is left alone: it shows checked only when the player pressed it.
    void stopCounter();

    void showCounts();
    // The figure that closes a game, which is not always the count.
    void showFinalCount(int correct);
    void clear();
    void setItalic(bool italic);

private:
    void tick();
    void showSeconds();

    Furniture &furniture;
    Game &game;
    Timers &timers;
    int counterTimerId = 0;
};
