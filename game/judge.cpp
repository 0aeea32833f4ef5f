#include "judge.h"

#include "furniture.h"
#include "game.h"
#include "instructor.h"
#include "keyfeedback.h"
#include "matchboxes.h"
#include "matchsession.h"
#include "scoreboard.h"
#include "sequence.h"
#include "ui_tambrel.h"
#include "wardrobe.h"

#include <utility>

namespace {

// How a Forward or Reverse game closes. The figures of the three smaller Reverse
// games are fixed closing figures, not the counts of their sets.
struct Ending
{
    Direction direction;
    Keys::Set set;
    int closingFigure;
    int lastKey;
    std::pair<QLabel * Ui_tambrel::*, QLabel * Ui_tambrel::*> lines; // of the last target
};

constexpr auto Forward = Direction::Forward, Reverse = Direction::Reverse;
constexpr auto Uppercase = Keys::Set::Uppercase, Lowercase = Keys::Set::Lowercase,
               NumberLine = Keys::Set::NumberLine, Everything = Keys::Set::Everything;

constexpr Ending endings[] = {
    {Forward, Uppercase, 26, 52, {&Ui_tambrel::h4_2, &Ui_tambrel::v1}},
    {Forward, Lowercase, 26, 26, {&Ui_tambrel::h4, &Ui_tambrel::v19}},
    {Forward, NumberLine, 42, 94, {&Ui_tambrel::h4_2, &Ui_tambrel::v24}},
    {Forward, Everything, 94, 94, {&Ui_tambrel::h4_2, &Ui_tambrel::v24}},
    {Reverse, Uppercase, 33, 27, {&Ui_tambrel::h3_2, &Ui_tambrel::v16}},
    {Reverse, Lowercase, 33, 1, {&Ui_tambrel::h3, &Ui_tambrel::v1}},
    {Reverse, NumberLine, 28, 53, {&Ui_tambrel::h1, &Ui_tambrel::v22}},
    {Reverse, Everything, 94, 1, {&Ui_tambrel::h1, &Ui_tambrel::v22}},
};

const Ending &ending(const GameChoice &choice)
{
    for (const Ending &row : endings) {
        if (row.direction == choice.direction() && row.set == choice.keySet())
            return row;
    }
    Q_UNREACHABLE();
}

// A finished key takes its font by the target's index. The bounds are not those of the
// sets, so some keys at the joints take the font of the class beside them.
constexpr bool upperFontAt(int targetIndex)
{
    return (targetIndex >= 26 && targetIndex <= 51) || (targetIndex >= 66 && targetIndex <= 77) ||
           targetIndex >= 86;
}

} // namespace

Judge::Judge(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
             KeyFeedback &keyFeedback, MatchSession &matchSession, ScoreBoard &counts,
             MatchBoxes &matchBoxes, Instructor &virtualInstructor)
    : furniture(usedFurniture),
      wardrobe(usedWardrobe),
      game(usedGame),
      feedback(keyFeedback),
      session(matchSession),
      scoreBoard(counts),
      boxes(matchBoxes),
      instructor(virtualInstructor)
{}

void Judge::judgeEntry()
{
    const auto due = [this](Direction direction) {
        return !furniture.ui.leUser->text().isEmpty() && game.choice.direction() == direction;
    };
    if (due(Direction::Random))
        randomMG();
    if (due(Direction::Forward))
        forwardMG();
    if (due(Direction::Reverse))
        reverseMG();
}

bool Judge::expects(int index) const
{
    return game.gameRunning && furniture.ui.leMatch->text() == furniture.widgets.letterAt(index);
}

bool Judge::endsGame(int nextIndex) const
{
    return game.correctCount >= game.gameLength - 1 ||
           furniture.widgets.letterAt(nextIndex).isEmpty();
}

bool Judge::entryMatches() const
{
    return furniture.ui.leUser->text() == furniture.ui.leMatch->text();
}

void Judge::countWrong()
{
    ++game.incorrectCount;
    game.correctStreak = 0;
}

void Judge::countRight()
{
    ++game.correctStreak;
    instructor.showLetterHint();
}

void Judge::forwardMG()
{
    bool ended = false;
    if (expects(game.forwardIndex)) {
        if (!entryMatches()) {
            countWrong();
        } else {
            ended = endsGame(game.forwardIndex + 1);
            if (!ended) {
                emit bursting();
                emit fading();
                emit leaving();
                ++game.forwardIndex;
                furniture.ui.leMatch->setText(furniture.widgets.letterAt(game.forwardIndex));
                ++game.letterNumber;
                boxes.set_Match_StyleSheet();
            }
            ++game.correctCount;
            forwardIsKeyPressed();
            emit moved();
            countRight();
        }
    }
    if (ended) {
        session.endGame();
        emit fading();
        emit bursting();
        finishLastKey();
    } else {
        showProgress();
    }
}

void Judge::reverseMG()
{
    bool ended = false;
    if (expects(game.reverseIndex)) {
        if (!entryMatches()) {
            countWrong();
        } else {
            ended = endsGame(game.reverseIndex - 1);
            emit bursting();
            emit fading();
            emit leaving();
            reverseIsKeyPressed();
            if (!ended) {
                --game.reverseIndex;
                furniture.ui.leMatch->setText(furniture.widgets.letterAt(game.reverseIndex));
            }
            boxes.set_Match_StyleSheet();
            ++game.correctCount;
            emit moved();
            countRight();
        }
    }
    if (ended) {
        session.endGame();
        emit bursting();
        finishLastKey();
    } else {
        showProgress();
    }
}

void Judge::randomMG()
{
    if (expects(game.randomIndex)) {
        if (!entryMatches()) {
            countWrong();
        } else {
            emit leaving();
            emit bursting();
            emit fading();
            session.drawRandomTarget();
            emit moved();
            if (game.correctCount < game.randomEndCount + 1)
                boxes.set_Match_StyleSheet();
            ++game.correctCount;
            countRight();
        }
    }
    if (game.correctCount >= game.randomEndCount && game.gameRunning) {
        // A next target was drawn that nobody will type; nothing may point at it.
        emit leaving();
        furniture.ui.leMatch->setText(furniture.ui.leUser->text());
        emit randomEnding();
        feedback.allChangeColorBack();
        session.endGame();
        closeGame(200);
    } else {
        showProgress();
    }
}

// What an entry after the end leaves on view is the closing figure.
void Judge::showProgress()
{
    if (!game.gameRunning)
        return;
    // Who types on at once does not lose the next character.
    Sequence::after(game.clearUserDelay, this, [this, judged = game.entriesTyped] {
        if (game.entriesTyped == judged)
            clearUser();
    });
    scoreBoard.showCounts();
}

void Judge::finishLastKey()
{
    const Ending &end = ending(game.choice);
    (furniture.ui.*end.lines.first)->hide();
    (furniture.ui.*end.lines.second)->hide();
    game.setKeyPressed(end.lastKey);
    feedback.changeColorBack(end.lastKey);
    // After a choice in mid-game the entry that ended it may have been another.
    const int target = game.target();
    if (target >= 0 && Keys::fromIndex(target) != end.lastKey) {
        game.setKeyPressed(Keys::fromIndex(target));
        feedback.changeColorBack(Keys::fromIndex(target));
    }
    if (wardrobe.images.keys.isOn()) {
        QLabel *image = furniture.widgets.image(Keys::cap(end.lastKey));
        image->show();
        wardrobe.images.keys.layOn(image);
    }
    closeGame(end.closingFigure);
    emit finished();
}

void Judge::closeGame(int closingFigure)
{
    scoreBoard.showFinalCount(closingFigure);
    scoreBoard.stopCounter();
    scoreBoard.setItalic(true);
}

// The target has moved already, so the key before it is the one just matched. The last
// key of a game is left to its end: there the target has not moved, and the key before
// is painted once more.
void Judge::forwardIsKeyPressed()
{
    const int target = game.target();
    if (target >= 1)
        paintFinished(Keys::fromIndex(target) - 1, target);
}

void Judge::reverseIsKeyPressed()
{
    const int target = game.target();
    if (target >= 0)
        paintFinished(Keys::fromIndex(target), target);
}

void Judge::paintFinished(int key, int targetIndex)
{
    game.setKeyPressed(key);
    feedback.paintFinished(key, wardrobe.looks.font(upperFontAt(targetIndex)));
}

void Judge::clearUser()
{
    furniture.ui.leUser->clear();
}
