#include "displaymodes.h"

#include "board.h"
#include "keyfeedback.h"
#include "mousetable.h"
#include "ui_tambrel.h"
#include "wear.h"

DisplayModes::DisplayModes(Board &usedBoard, KeyFeedback &keyFeedback)
    : board(usedBoard), feedback(keyFeedback)
{}

void DisplayModes::addMouseRows(MouseTable &mouse)
{
    struct Choice
    {
        QLabel *sample;
        QLabel *caption;
        void (DisplayModes::*slot)();
        const char *hovered;
        const char *left;
    };
    constexpr const char *blue = " color:blue; font: 9pt 'MS Shell Dlg 2' ; ";
    constexpr const char *black = " color:black; font: 9pt 'MS Shell Dlg 2' ; ";
    const Choice choices[] = {
        {board.ui.rcBoth, board.ui.both, &DisplayModes::displayBoth,
         " color:blue;  font: 9pt 'MS Shell Dlg 2' ; ", black},
        {board.ui.rcEnglish, board.ui.english, &DisplayModes::displayEnglish, blue, black},
        {board.ui.rcRussian, board.ui.russian2, &DisplayModes::displayTambrel, blue, black},
        {board.ui.rcNone, board.ui.none, &DisplayModes::displayNone, blue,
         " color:black;  font: 9pt 'MS Shell Dlg 2' ; "},
    };
    for (const Choice &choice : choices) {
        const auto press = [this, slot = choice.slot] { (this->*slot)(); };
        mouse.add(choice.sample, {[choice] { wear(choice.caption, choice.hovered); },
                                  [choice] { wear(choice.caption, choice.left); }, press});
        mouse.add(choice.caption, {{}, {}, press});
    }
}

void DisplayModes::displayNone()
{
    phantomLablesShow();
    mark(Mode::None);
}

void DisplayModes::displayTambrel()
{
    phantomLablesHide();
    board.presence.showCharacters(true, false);
    feedback.allChangeColorBack();
    mark(Mode::Tambrel);
}

void DisplayModes::displayEnglish()
{
    phantomLablesHide();
    board.presence.showCharacters(false, true);
    feedback.allChangeColorBack();
    mark(Mode::English);
}

void DisplayModes::displayBoth()
{
    phantomLablesHide();
    board.presence.showCharacters(true, true);
    feedback.allChangeColorBack();
    mark(Mode::Both);
}

void DisplayModes::displayFlags()
{
    QLabel *const marks[] = {board.ui.checkNone, board.ui.checkRussian, board.ui.checkEnglish,
                             board.ui.checkBoth};
    marks[static_cast<int>(mode)]->show();
}

void DisplayModes::mark(Mode newMode)
{
    mode = newMode;
    for (QLabel *check :
         {board.ui.checkNone, board.ui.checkRussian, board.ui.checkEnglish, board.ui.checkBoth})
        check->hide();
    displayFlags();
}

void DisplayModes::phantomLablesShow()
{
    for (QLabel *cover : qAsConst(board.widgets.displayNoneList))
        cover->show();
}

void DisplayModes::phantomLablesHide()
{
    for (QLabel *cover : qAsConst(board.widgets.displayNoneList))
        cover->hide();
}
