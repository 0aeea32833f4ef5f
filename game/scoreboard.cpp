#include "scoreboard.h"

#include "furniture.h"
#include "game.h"
#include "timers.h"
#include "ui_tambrel.h"
#include "wear.h"

ScoreBoard::ScoreBoard(Furniture &usedFurniture, Game &usedGame, Timers &windowTimers)
    : furniture(usedFurniture), game(usedGame), timers(windowTimers)
{
    connect(furniture.ui.on, &QRadioButton::clicked, this, &ScoreBoard::startCounter);
    connect(furniture.ui.off, &QRadioButton::clicked, this, &ScoreBoard::stopCounter);
    setItalic(false);
}

void ScoreBoard::startCounter()
{
    stopCounter();
    counterTimerId = timers.start(1000, [this] { tick(); });
    furniture.ui.on->setChecked(true);
}

void ScoreBoard::stopCounter()
{
    timers.stop(counterTimerId);
}

void ScoreBoard::tick()
{
    ++game.elapsedSeconds;
    showSeconds();
}

void ScoreBoard::showCounts()
{
    furniture.ui.labelCorrect->setNum(game.correctCount);
    furniture.ui.labelIncorrect->setNum(game.incorrectCount);
}

void ScoreBoard::showFinalCount(int correct)
{
    furniture.ui.labelCorrect->setNum(correct);
}

void ScoreBoard::clear()
{
    furniture.ui.labelCorrect->clear();
    furniture.ui.labelIncorrect->clear();
    stopCounter();
    showSeconds();
    setItalic(false);
}

void ScoreBoard::setItalic(bool italic)
{
    const QString sheet = "background-color: transparent; font-style:" +
                          QLatin1String(italic ? "italic;" : "normal;");
    wear(furniture.ui.labelCorrect, sheet);
    wear(furniture.ui.labelIncorrect, sheet);
}

// Three digits fill the clock; a game of over 999 seconds gets a fourth.
void ScoreBoard::showSeconds()
{
    const int seconds = game.elapsedSeconds;
    furniture.ui.lcd->setDigitCount(qMax(3, QString::number(seconds).size()));
    furniture.ui.lcd->display(seconds);
}
