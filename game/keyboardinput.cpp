#include "keyboardinput.h"

#include "board.h"
#include "judge.h"
#include "keyfeedback.h"
#include "matchboxes.h"
#include "ui_tambrel.h"

#include <QKeyEvent>

KeyboardInput::KeyboardInput(Board &usedBoard, KeyFeedback &keyFeedback, MatchBoxes &matchBoxes,
                             Judge &gameJudge)
    : board(usedBoard), feedback(keyFeedback), boxes(matchBoxes), judge(gameJudge)
{}

void KeyboardInput::pressed(const QKeyEvent &event)
{
    // Shift alone makes a capital: with any other modifier beside it, and under Caps
    // Lock, a letter is lowercase.
    const int key = Keys::fromCode(event.key(), event.modifiers() == Qt::ShiftModifier);
    if (Keys::isKey(key))
        type(key);
    else if (event.key() == Qt::Key_Space && !board.choice.isStrict())
        judge.judgeEntry();
    // Whatever the key was, Shift and Space included.
    if (board.choice.isStrict())
        judge.judgeEntry();
}

void KeyboardInput::type(int key)
{
    if (Keys::isShifted(key))
        boxes.set_User_StyleSheet_Uppercase();
    else
        boxes.set_User_StyleSheet_Lowercase();
    board.game.letterNumber = Keys::index(key);
    feedback.key(key);
    litUntilRelease[static_cast<size_t>(Keys::cap(key) - 1)] = !board.choice.isFlash();
    if (board.game.gameRunning) {
        ++board.game.entriesTyped;
        board.ui.leUser->setText(board.widgets.letterList[board.game.letterNumber]);
    }
}

// Modifiers do not matter here: a key may be released without the Shift it was pressed with.
void KeyboardInput::released(const QKeyEvent &event)
{
    const int key = Keys::fromCode(event.key(), false);
    if (!Keys::isKey(key))
        return;
    bool &lit = litUntilRelease[static_cast<size_t>(Keys::cap(key) - 1)];
    if (board.choice.isFlash() && !lit)
        return;
    lit = false;
    feedback.changeColorBack(Keys::unshifted(Keys::cap(key)));
    feedback.changeColorBack(Keys::shifted(Keys::cap(key)));
}
