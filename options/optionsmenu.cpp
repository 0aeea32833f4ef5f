#include "optionsmenu.h"

#include "furniture.h"
#include "picture.h"
#include "sequence.h"
#include "ui_tambrel.h"
#include "wear.h"

#include <QPropertyAnimation>

namespace {

constexpr int reopenMs = 60;    // until then the options refuse to open again
constexpr int slideOutMs = 200; // from Close to the first slide
constexpr int arrowsMs = 1000;  // from Options to the arrows
constexpr int firstTextMs = 50; // from the arrows to the texts
constexpr int secondTextMs = 200;

} // namespace

// x, y, width, height in px. The ways in and out differ a little; both are as they always were.
struct Slide
{
    QWidget *widget;
    QRect from, to;
    int ms;
};

OptionsMenu::OptionsMenu(Furniture &usedFurniture, std::function<OptionPanels &()> builtPanels)
    : furniture(usedFurniture), panels(std::move(builtPanels))
{
    const Ui::tambrel &ui = furniture.ui;
    for (QLabel *arrow : {ui.optionsArrow1, ui.optionsArrow2, ui.optionsArrow3})
        arrow->setPixmap(picture(":/new/prefix1/optionsArrow.png"));
    const std::pair<QPushButton *, OptionPanels::Panel> buttons[] = {
        {ui.menuColorMadness, OptionPanels::ColorMadness},
        {ui.menuKestrixKeyboard, OptionPanels::KestrixKeyboard},
        {ui.menuFonts, OptionPanels::Fonts},
        {ui.menuPhotos, OptionPanels::Photos},
        {ui.menuShadows, OptionPanels::Shadows},
        {ui.menuAudio, OptionPanels::Audio},
        {ui.menuGamePlay, OptionPanels::GamePlay},
    };
    for (const auto &[button, panel] : buttons) {
        connect(button, &QPushButton::clicked, this, [this, panel = panel] {
            if (!tableLeaves)
                panels().show(panel);
        });
    }
    connect(ui.options, &QPushButton::clicked, this, &OptionsMenu::showFrame);
    connect(ui.closeX, &QPushButton::clicked, this, &OptionsMenu::hideFrame);
    connect(ui.lineHighOptions, &QPushButton::clicked, this,
            [this] { panels().lineHighOptions_function(); });
    // Bursts rise to below the shield, which waits beside the window.
    raiseFurniture();
}

void OptionsMenu::raiseFurniture()
{
    Ui::tambrel &ui = furniture.ui;
    for (QWidget *widget :
         QList<QWidget *>{ui.optionsShield, ui.tableOfContents, ui.closeX, ui.optionsArrow1,
                          ui.optionsArrow2, ui.optionsArrow3, ui.optionsText1, ui.optionsText2})
        widget->raise();
}

void OptionsMenu::showFrame()
{
    if (advancedOptionsOpen)
        return;
    panels();
    advancedOptionsOpen = true;
    wantedOpen = true;
    tableLeaves = false;
    Ui::tambrel &ui = furniture.ui;
    ui.optionsShield->show();
    raiseFurniture();
    slide({ui.optionsShield, {-4, -316, 1211, 337}, {-4, -75, 1211, 337}, 1000});
    slide({ui.tableOfContents, {1215, 0, 142, 695}, {1070, 0, 142, 695}, 500});
    slide({ui.closeX, {1364, 629, 90, 66}, {890, 629, 90, 66}, 700});
    Sequence::after(arrowsMs, this, [this] { slideIn(); });
    wear(ui.letterOfAlphabet2, "color: white;   font: 10pt 'MS Shell Dlg 2';");
}

// The options may have been closed again in the meantime.
void OptionsMenu::slideIn()
{
    if (!wantedOpen)
        return;
    Ui::tambrel &ui = furniture.ui;
    slide({ui.optionsArrow1, {890, -2, 70, 56}, {890, 4, 70, 56}, 500});
    slide({ui.optionsArrow2, {890, -2, 70, 56}, {890, 74, 70, 56}, 600});
    slide({ui.optionsArrow3, {890, -2, 70, 56}, {890, 144, 70, 56}, 700});
    const auto textIn = [this](int ms, const Slide &row) {
        Sequence::after(ms, this, [this, row] {
            if (wantedOpen)
                slide(row);
        });
    };
    textIn(firstTextMs, {ui.optionsText1, {1215, 214, 180, 23}, {890, 204, 180, 23}, 500});
    textIn(secondTextMs, {ui.optionsText2, {1215, 238, 180, 23}, {890, 228, 180, 23}, 500});
}

void OptionsMenu::hideFrame()
{
    wantedOpen = false;
    tableLeaves = true;
    Ui::tambrel &ui = furniture.ui;
    slide({ui.optionsArrow1, {890, 0, 70, 56}, {890, -72, 70, 56}, 1000});
    slide({ui.optionsArrow2, {890, 74, 70, 56}, {890, -72, 70, 56}, 600});
    slide({ui.optionsArrow3, {890, 144, 70, 56}, {890, -72, 70, 56}, 700});
    Sequence::after(slideOutMs, this, [this] { slideOut(); });
    const auto textOut = [this](int ms, const Slide &row) {
        Sequence::after(ms, this, [this, row] {
            if (!wantedOpen)
                slide(row);
        });
    };
    textOut(firstTextMs, {ui.optionsText1, {890, 214, 180, 23}, {1215, 214, 180, 23}, 500});
    textOut(secondTextMs, {ui.optionsText2, {890, 238, 104, 36}, {1215, 238, 104, 36}, 500});
    wear(ui.letterOfAlphabet2, "color: #6e6e6e;   font: 10pt 'MS Shell Dlg 2';");
    panels().hideAll();
    Sequence::after(reopenMs, this, [this] { advancedOptionsOpen = false; });
}

// Unless the options were opened once more in the meantime.
void OptionsMenu::slideOut()
{
    if (wantedOpen)
        return;
    Ui::tambrel &ui = furniture.ui;
    slide({ui.optionsShield, {-4, -8, 1211, 258}, {-4, -266, 1211, 258}, 1000});
    slide({ui.tableOfContents, {1070, 0, 142, 695}, {1215, 0, 142, 695}, 500});
    slide({ui.closeX, {890, 629, 90, 66}, {1364, 629, 90, 99}, 500});
}

// One slide at a time for each widget: a newer one takes over.
void OptionsMenu::slide(const Slide &row)
{
    if (QPropertyAnimation *running = slides.value(row.widget))
        running->stop();
    auto *animation = new QPropertyAnimation(row.widget, "geometry", this);
    animation->setDuration(row.ms);
    animation->setStartValue(row.from);
    animation->setEndValue(row.to);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
    slides.insert(row.widget, animation);
}

void OptionsMenu::lockForGame()
{
    panels().hide(OptionPanels::KestrixKeyboard);
    furniture.ui.menuKestrixKeyboard->setEnabled(false);
    wear(furniture.ui.mustStopGameToAccess,
         "background-color: transparent; font: italic 8pt 'MS Shell Dlg 2'; color:  red;");
}

void OptionsMenu::unlockAfterGame()
{
    furniture.ui.menuKestrixKeyboard->setEnabled(true);
    wear(furniture.ui.mustStopGameToAccess,
         "background-color: transparent;font: italic 8pt 'MS Shell Dlg 2'; color:  #6e6e6e");
}
