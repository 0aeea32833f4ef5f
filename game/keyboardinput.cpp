#include "keyboardinput.h"

#include "furniture.h"
#include "game.h"
#include "judge.h"
#include "keyfeedback.h"
#include "matchboxes.h"
#include "ui_tambrel.h"

#include <QKeyEvent>

KeyboardInput::KeyboardInput(Furniture &usedFurniture, Game &usedGame, KeyFeedback &keyFeedback,
                             MatchBoxes &matchBoxes, Judge &gameJudge)
    : furniture(usedFurniture),
      game(usedGame),
      feedback(keyFeedback),
      boxes(matchBoxes),
      judge(gameJudge)
{}

void KeyboardInput::pressed(const QKeyEvent &event)
{
    // Shift alone makes a capital: with any other modifier beside it, and under Caps
    // Lock, a letter is lowercase.
    const int key = Keys::fromCode(event.key(), event.modifiers() == Qt::ShiftModifier);
    if (Keys::isKey(key)) {
        if (event.nativeScanCode() != 0)
            capLitBy[event.nativeScanCode()] = Keys::cap(key);
        type(key);
    } else if (event.key() == Qt::Key_Space && !game.choice.isStrict()) {
        judge.judgeEntry();
    }
    // Whatever the key was, Shift and Space included.
    if (game.choice.isStrict())
        judge.judgeEntry();
}

void KeyboardInput::type(int key)
{
    if (Keys::isShifted(key))
        boxes.set_User_StyleSheet_Uppercase();
    else
        boxes.set_User_StyleSheet_Lowercase();
    game.letterNumber = Keys::index(key);
    feedback.key(key);
    // A character of the same cap may still be lit from before Flash was chosen.
    if (!game.choice.isFlash())
        litUntilRelease[static_cast<size_t>(Keys::cap(key) - 1)] = true;
    if (game.gameRunning) {
        ++game.entriesTyped;
        furniture.ui.leUser->setText(furniture.widgets.letterList[game.letterNumber]);
    }
}

// Modifiers do not matter here: a key may be released without the Shift it was pressed with.
void KeyboardInput::released(const QKeyEvent &event)
{
    const int key = Keys::fromCode(event.key(), false);
    const int cap = Keys::isKey(key) ? Keys::cap(key) : 0;
    const int litCap = capLitBy.take(event.nativeScanCode());
    if (litCap != 0 && litCap != cap)
        putBack(litCap);
    if (cap != 0)
        putBack(cap);
}

void KeyboardInput::putBack(int cap)
{
    bool &lit = litUntilRelease[static_cast<size_t>(cap - 1)];
    if (game.choice.isFlash() && !lit)
        return;
    lit = false;
    feedback.changeColorBack(Keys::unshifted(cap));
    feedback.changeColorBack(Keys::shifted(cap));
}
