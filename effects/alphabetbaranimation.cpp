#include "alphabetbaranimation.h"

#include "board.h"
#include "ui_tambrel.h"
#include "wear.h"

AlphabetBarAnimation::AlphabetBarAnimation(Board &usedBoard) : board(usedBoard)
{
    QObject::connect(board.ui.animationOn, &QRadioButton::clicked,
                     [this] { animationOn_function(); });
    QObject::connect(board.ui.animationOff, &QRadioButton::clicked,
                     [this] { animationOff_function(); });
}

void AlphabetBarAnimation::labelAnimate(int number)
{
    if (!Keys::isKey(number))
        return;
    wear(board.widgets.barLetter(number),
         "background-color: black; color:blue;" + board.looks.font(Keys::isShifted(number)));
}

void AlphabetBarAnimation::animationOn_function()
{
    board.ui.animationOn->setChecked(true);
    board.game.animationEnabled = true;
    wear(board.ui.animationOn, "color:  blue;");
    wear(board.ui.animationOff, "color: black;");
}

void AlphabetBarAnimation::animationOff_function()
{
    board.ui.animationOff->setChecked(true);
    board.game.animationEnabled = false;
    wear(board.ui.animationOff, "color:  blue;");
    wear(board.ui.animationOn, "color: black;");
}

void AlphabetBarAnimation::lock()
{
    board.game.animationEnabled = false;
    for (QRadioButton *button : {board.ui.animationOn, board.ui.animationOff}) {
        button->setEnabled(false);
        wear(button, "color: #6e6e6e;");
    }
}

void AlphabetBarAnimation::unlock()
{
    board.game.animationEnabled = true;
    board.ui.animationOn->setEnabled(true);
    board.ui.animationOff->setEnabled(true);
    board.ui.animationOn->setChecked(true);
}
