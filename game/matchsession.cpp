#include "matchsession.h"

#include "alphabetbaranimation.h"
#include "displaymodes.h"
#include "furniture.h"
#include "game.h"
#include "instructor.h"
#include "matchboxes.h"
#include "mousetable.h"
#include "scoreboard.h"
#include "sequence.h"
#include "ui_tambrel.h"
#include "wardrobe.h"
#include "wear.h"

#include <cstdlib>

namespace {

constexpr int playAgainMs = 2000;
constexpr int randomTries = 100001;
constexpr int randomRange = 100000;

} // namespace

MatchSession::MatchSession(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
                           ScoreBoard &counts, MatchBoxes &matchBoxes, DisplayModes &displayModes,
                           AlphabetBarAnimation &barAnimation, Instructor &virtualInstructor)
    : furniture(usedFurniture),
      wardrobe(usedWardrobe),
      game(usedGame),
      scoreBoard(counts),
      boxes(matchBoxes),
      modes(displayModes),
      animation(barAnimation),
      instructor(virtualInstructor)
{
    Ui::tambrel &ui = furniture.ui;
    connect(ui.start, &QPushButton::clicked, this, &MatchSession::matchGameEnable);
    connect(ui.start, &QPushButton::clicked, this, &MatchSession::matchGameChooser);
    connect(ui.start, &QPushButton::clicked, &scoreBoard, &ScoreBoard::startCounter);
    connect(ui.stop, &QPushButton::clicked, this, &MatchSession::matchGameDisable);
    connect(ui.stop, &QPushButton::clicked, &scoreBoard, &ScoreBoard::stopCounter);
    connect(ui.soft, &QRadioButton::clicked, this, &MatchSession::changeDifficultySoft);
    connect(ui.strict, &QRadioButton::clicked, this, &MatchSession::changeDifficultyStrict);
    changeDifficultySoft();
    animation.animationOn_function();
    wear(ui.goldenHighlight, wardrobe.looks.highlightButtonDisabled());
}

void MatchSession::addMouseRows(MouseTable &mouse)
{
    QWidget *const start = furniture.ui.start;
    QWidget *const stop = furniture.ui.stop;
    mouse.add(
        start,
        {[start] { wear(start, " font-weight: bold; color: rgb(0, 94, 0);  text-align: center;"); },
         [start] { wear(start, "color: rgb(0, 94, 0); text-align: center;"); },
         {}});
    // Without the word "color:" the button keeps the color of plain text while hovered.
    mouse.add(stop, {[stop] { wear(stop, " font-weight: bold; maroon;  text-align: center;"); },
                     [stop] { wear(stop, "color: maroon; text-align: center;"); },
                     {}});
}

void MatchSession::matchGameEnable()
{
    emit clearing();
    disable();
    game.gameFinished = false;
    boxes.set_Match_StyleSheet();
    game.gameRunning = true;
    clears();
    furniture.ui.leMatch->setEnabled(true);
    furniture.ui.leUser->setEnabled(true);
    animation.animationOff_function();
    game.isKeyPressedAll();
    instructor.startChebTimer();
    modes.displayBoth();
    game.goldHighFlag = false;
    game.lineHighFlag = false;
    furniture.ui.goldenHighlight->setEnabled(true);
    furniture.ui.lineHighlight->setEnabled(true);
    wear(furniture.ui.goldenHighlight, wardrobe.looks.highlightButton());
    furniture.ui.display3->clear();
    furniture.ui.display3->hide();
    setStartColors("rgb(0, 94, 0)", "black");
    animation.lock();
    game.demoFlag = true;
    emit started();
    instructor.showLetterHint();
    instructor.warnOfFadeInRandom("Fade Out does not\nwork with Random.");
    furniture.ui.underScoreLeft->show();
    furniture.ui.underScoreRight->show();
}

void MatchSession::matchGameChooser()
{
    const Keys::Range range = Keys::range(game.choice.keySet());
    switch (game.choice.direction()) {
    case Direction::Forward:
        game.forwardIndex = Keys::index(range.first);
        setTarget(game.forwardIndex);
        // The first characters of two sets have a hint of their own.
        instructor.showLetterHint();
        break;
    case Direction::Reverse:
        game.reverseIndex = Keys::index(range.last);
        setTarget(game.reverseIndex);
        break;
    case Direction::Random:
        drawRandomTarget();
        break;
    }
    furniture.ui.display3->clear();
    boxes.set_Match_StyleSheet();
    instructor.set_dem_Text();
}

void MatchSession::setTarget(int index)
{
    furniture.ui.leMatch->setText(furniture.widgets.letterAt(index));
}

void MatchSession::drawRandomTarget()
{
    const Keys::Range range = Keys::range(game.choice.keySet());
    for (int i = 0; i < randomTries; ++i) {
        const int drawn = std::rand() % randomRange;
        if (range.containsIndex(drawn)) {
            game.randomIndex = drawn;
            setTarget(drawn);
            return;
        }
    }
}

void MatchSession::clears()
{
    furniture.ui.leMatch->clear();
    furniture.ui.leUser->clear();
    furniture.ui.leMatch->setEnabled(false);
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
    game.fadeRunning = false;
    restoreImages();
    game.gameRunning = false;
    animation.unlock();
    wear(furniture.ui.animationOff, "color: black;");
    wear(furniture.ui.animationOn, "color: blue;");
    instructor.killChebTimer();
    furniture.ui.goldenHighlight->setEnabled(false);
    furniture.ui.lineHighlight->setEnabled(false);
    emit stopped();
    wear(furniture.ui.goldenHighlight, wardrobe.looks.highlightButtonDisabled());
    setStartColors("black", "maroon");
    furniture.ui.leMatch->setEnabled(false);
    furniture.ui.leUser->setEnabled(false);
}

// Whatever a game has laid on the keys or taken from them, the pictures of keys at rest stay.
void MatchSession::restoreImages()
{
    const bool shown = wardrobe.images.keys.isOn();
    for (QLabel *image : qAsConst(furniture.widgets.keyImgList)) {
        if (!shown)
            image->hide();
        else if (game.gameRunning)
            image->show();
    }
}

void MatchSession::endGame()
{
    game.gameRunning = false;
    game.gameFinished = true;
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
    (strict ? furniture.ui.strict : furniture.ui.soft)->setChecked(true);
    wear(furniture.ui.soft, strict ? "color: black;" : "color: blue;");
    wear(furniture.ui.strict, strict ? "color: blue;" : "color: black;");
    furniture.ui.startGame_4->setText(strict ? "Then type what you see."
                                             : "Type it, then press Space.");
    furniture.ui.displaySoft->setVisible(!strict);
    furniture.ui.displayStrict->setVisible(strict);
}

void MatchSession::setStartColors(const char *start, const char *stop)
{
    const QString font = "font-size: 16pt; font-family: 'MS Shell Dlg 2'; ";
    wear(furniture.ui.start, font + "color: " + QLatin1String(start) + ";");
    wear(furniture.ui.stop, font + " color: " + QLatin1String(stop) + ";");
}
