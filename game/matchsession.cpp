#include "matchsession.h"

#include "alphabetbaranimation.h"
#include "board.h"
#include "displaymodes.h"
#include "instructor.h"
#include "matchboxes.h"
#include "mousetable.h"
#include "scoreboard.h"
#include "sequence.h"
#include "ui_tambrel.h"
#include "wear.h"

#include <cstdlib>

namespace {

constexpr int playAgainMs = 2000;
constexpr int randomWarningMs = 7000;
constexpr int randomTries = 100001;
constexpr int randomRange = 100000;

} // namespace

MatchSession::MatchSession(Board &usedBoard, ScoreBoard &counts, MatchBoxes &matchBoxes,
                           DisplayModes &displayModes, AlphabetBarAnimation &barAnimation,
                           Instructor &virtualInstructor)
    : board(usedBoard),
      scoreBoard(counts),
      boxes(matchBoxes),
      modes(displayModes),
      animation(barAnimation),
      instructor(virtualInstructor)
{
    Ui::tambrel &ui = board.ui;
    connect(ui.start, &QPushButton::clicked, this, &MatchSession::matchGameEnable);
    connect(ui.start, &QPushButton::clicked, this, &MatchSession::matchGameChooser);
    connect(ui.start, &QPushButton::clicked, &scoreBoard, &ScoreBoard::startCounter);
    connect(ui.stop, &QPushButton::clicked, this, &MatchSession::matchGameDisable);
    connect(ui.stop, &QPushButton::clicked, &scoreBoard, &ScoreBoard::stopCounter);
    connect(ui.soft, &QRadioButton::clicked, this, &MatchSession::changeDifficultySoft);
    connect(ui.strict, &QRadioButton::clicked, this, &MatchSession::changeDifficultyStrict);
    changeDifficultySoft();
    animation.animationOn_function();
    wear(ui.goldenHighlight, board.looks.highlightButtonDisabled());
}

void MatchSession::addMouseRows(MouseTable &mouse)
{
    QWidget *const start = board.ui.start;
    QWidget *const stop = board.ui.stop;
    mouse.add(
        start,
        {[start] { wear(start, " font-weight: bold; color: rgb(0, 94, 0);  text-align: center;"); },
         [start] { wear(start, "color: rgb(0, 94, 0); text-align: center;"); },
         {}});
    // Without the word "color:" the button keeps the colour of plain text while hovered.
    mouse.add(stop, {[stop] { wear(stop, " font-weight: bold; maroon;  text-align: center;"); },
                     [stop] { wear(stop, "color: maroon; text-align: center;"); },
                     {}});
}

void MatchSession::matchGameEnable()
{
    emit clearing();
    disable();
    board.game.gameFinished = false;
    boxes.set_Match_StyleSheet();
    board.game.gameRunning = true;
    clears();
    board.ui.leMatch->setEnabled(true);
    board.ui.leUser->setEnabled(true);
    animation.animationOff_function();
    board.game.isKeyPressedAll();
    instructor.startChebTimer();
    modes.displayBoth();
    board.game.goldHighFlag = false;
    board.game.lineHighFlag = false;
    board.ui.goldenHighlight->setEnabled(true);
    board.ui.lineHighlight->setEnabled(true);
    wear(board.ui.goldenHighlight, board.looks.highlightButton());
    board.ui.display3->clear();
    board.ui.display3->hide();
    setStartColours("rgb(0, 94, 0)", "black");
    animation.lock();
    board.game.demoFlag = true;
    emit started();
    instructor.showLetterHint();
    instructor.warnOfFadeInRandom("Fade Out does not\nwork with Random.");
    board.ui.underScoreLeft->show();
    board.ui.underScoreRight->show();
}

void MatchSession::matchGameChooser()
{
    const Keys::Range range = Keys::range(board.choice.keySet());
    switch (board.choice.direction()) {
    case Direction::Forward:
        board.game.forwardIndex = Keys::index(range.first);
        setTarget(board.game.forwardIndex);
        // The first characters of two sets have a hint of their own.
        instructor.showLetterHint();
        break;
    case Direction::Reverse:
        board.game.reverseIndex = Keys::index(range.last);
        setTarget(board.game.reverseIndex);
        break;
    case Direction::Random:
        drawRandomTarget();
        break;
    }
    board.ui.display3->clear();
    boxes.set_Match_StyleSheet();
    instructor.set_dem_Text();
}

void MatchSession::setTarget(int index)
{
    board.ui.leMatch->setText(board.widgets.letterAt(index));
}

void MatchSession::drawRandomTarget()
{
    const Keys::Range range = Keys::range(board.choice.keySet());
    for (int i = 0; i < randomTries; ++i) {
        const int drawn = std::rand() % randomRange;
        if (range.containsIndex(drawn)) {
            board.game.randomIndex = drawn;
            setTarget(drawn);
            return;
        }
    }
}

void MatchSession::clears()
{
    GameState &game = board.game;
    board.ui.leMatch->clear();
    board.ui.leUser->clear();
    board.ui.leMatch->setEnabled(false);
    game.correctCount = 0;
    game.incorrectCount = 0;
    game.correctStreak = 0;
    game.forwardIndex = 0;
    game.reverseIndex = Keys::index(Keys::count);
    game.elapsedSeconds = 0;
    scoreBoard.clear();
    instructor.clearGoodJob();
    animation.unlock();
}

void MatchSession::matchGameDisable()
{
    emit stopping();
    disable();
}

// Also the head of Start, and the end of a game.
void MatchSession::disable()
{
    GameState &game = board.game;
    game.fadeRunning = false;
    restoreImages();
    game.gameRunning = false;
    animation.unlock();
    wear(board.ui.animationOff, "color: black;");
    wear(board.ui.animationOn, "color: blue;");
    instructor.killChebTimer();
    board.ui.goldenHighlight->setEnabled(false);
    board.ui.lineHighlight->setEnabled(false);
    emit stopped();
    wear(board.ui.goldenHighlight, board.looks.highlightButtonDisabled());
    setStartColours("black", "maroon");
    board.ui.leMatch->setEnabled(false);
    board.ui.leUser->setEnabled(false);
}

// Whatever a game has laid on the keys or taken from them, the pictures of keys at rest stay.
void MatchSession::restoreImages()
{
    const bool shown = board.images.keys.isOn();
    for (QLabel *image : qAsConst(board.widgets.keyImgList)) {
        if (!shown)
            image->hide();
        else if (board.game.gameRunning)
            image->show();
    }
}

void MatchSession::endGame()
{
    board.game.gameRunning = false;
    board.game.gameFinished = true;
    disable();
    boxes.set_final_match_stylesheet();
    Sequence::after(playAgainMs, this, [this] { instructor.wouldYouLikeToPlayAgain(); });
}

void MatchSession::changeDifficultySoft()
{
    changeDifficulty(false);
}

void MatchSession::changeDifficultyStrict()
{
    changeDifficulty(true);
}

void MatchSession::changeDifficulty(bool strict)
{
    (strict ? board.ui.strict : board.ui.soft)->setChecked(true);
    wear(board.ui.soft, strict ? "color: black;" : "color: blue;");
    wear(board.ui.strict, strict ? "color: blue;" : "color: black;");
    board.ui.displaySoft->setVisible(!strict);
    board.ui.displayStrict->setVisible(strict);
}

void MatchSession::setStartColours(const char *start, const char *stop)
{
    const QString font = "font-size: 16pt; font-family: 'MS Shell Dlg 2'; ";
    wear(board.ui.start, font + "color: " + QLatin1String(start) + ";");
    wear(board.ui.stop, font + " color: " + QLatin1String(stop) + ";");
}
