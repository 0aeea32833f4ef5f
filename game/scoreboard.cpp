#include "scoreboard.h"

#include "board.h"
#include "timers.h"
#include "ui_tambrel.h"
#include "wear.h"

ScoreBoard::ScoreBoard(Board &usedBoard, Timers &windowTimers)
    : board(usedBoard), timers(windowTimers)
{
    connect(board.ui.on, &QRadioButton::clicked, this, &ScoreBoard::startCounter);
    connect(board.ui.off, &QRadioButton::clicked, this, &ScoreBoard::stopCounter);
    setItalic(false);
}

void ScoreBoard::startCounter()
{
    stopCounter();
    counterTimerId = timers.start(1000, [this] { tick(); });
    board.ui.on->setChecked(true);
}

void ScoreBoard::stopCounter()
{
    timers.stop(counterTimerId);
}

void ScoreBoard::tick()
{
    ++board.game.elapsedSeconds;
    showSeconds();
}

void ScoreBoard::showCounts()
{
    board.ui.labelCorrect->setNum(board.game.correctCount);
    board.ui.labelIncorrect->setNum(board.game.incorrectCount);
}

void ScoreBoard::showFinalCount(int correct)
{
    board.ui.labelCorrect->setNum(correct);
}

void ScoreBoard::clear()
{
    board.ui.labelCorrect->clear();
    board.ui.labelIncorrect->clear();
    stopCounter();
    showSeconds();
    setItalic(false);
}

void ScoreBoard::setItalic(bool italic)
{
    const QString sheet = "background-color: transparent; font-style:" +
                          QLatin1String(italic ? "italic;" : "normal;");
    wear(board.ui.labelCorrect, sheet);
    wear(board.ui.labelIncorrect, sheet);
}

// Three digits fill the clock; a game of over 999 seconds gets a fourth.
void ScoreBoard::showSeconds()
{
    const int seconds = board.game.elapsedSeconds;
    board.ui.lcd->setDigitCount(qMax(3, QString::number(seconds).size()));
    board.ui.lcd->display(seconds);
}
