#include "displaymodes.h"

#include "furniture.h"
#include "keyfeedback.h"
#include "mousetable.h"
#include "ui_tambrel.h"
#include "wear.h"

DisplayModes::DisplayModes(Furniture &usedFurniture, KeyFeedback &keyFeedback)
    : furniture(usedFurniture), feedback(keyFeedback)
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
        {furniture.ui.rcBoth, furniture.ui.both, &DisplayModes::displayBoth,
         " color:blue;  font: 9pt 'MS Shell Dlg 2' ; ", black},
        {furniture.ui.rcEnglish, furniture.ui.english, &DisplayModes::displayEnglish, blue, black},
        {furniture.ui.rcRussian, furniture.ui.russian2, &DisplayModes::displayTambrel, blue, black},
        {furniture.ui.rcNone, furniture.ui.none, &DisplayModes::displayNone, blue,
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
    furniture.presence.showCharacters(true, false);
    feedback.allChangeColorBack();
    mark(Mode::Tambrel);
}

void DisplayModes::displayEnglish()
{
    phantomLablesHide();
    furniture.presence.showCharacters(false, true);
    feedback.allChangeColorBack();
    mark(Mode::English);
}

void DisplayModes::displayBoth()
{
    phantomLablesHide();
    furniture.presence.showCharacters(true, true);
    feedback.allChangeColorBack();
    mark(Mode::Both);
}

void DisplayModes::displayFlags()
{
    QLabel *const marks[] = {furniture.ui.checkNone, furniture.ui.checkRussian,
                             furniture.ui.checkEnglish, furniture.ui.checkBoth};
    marks[static_cast<int>(mode)]->show();
}

void DisplayModes::mark(Mode newMode)
{
    mode = newMode;
    for (QLabel *check : {furniture.ui.checkNone, furniture.ui.checkRussian,
                          furniture.ui.checkEnglish, furniture.ui.checkBoth})
        check->hide();
    displayFlags();
}

void DisplayModes::phantomLablesShow()
{
    for (QLabel *cover : qAsConst(furniture.widgets.displayNoneList))
        cover->show();
}

void DisplayModes::phantomLablesHide()
{
    for (QLabel *cover : qAsConst(furniture.widgets.displayNoneList))
        cover->hide();
}
