#include "tour.h"

#include "furniture.h"
#include "game.h"
#include "picture.h"
#include "sequence.h"
#include "ui_tambrel.h"
#include "wear.h"

namespace {

constexpr int stepMs = 3500;
constexpr int stepCount = 4;
constexpr int pauseMs = 50;          // from the end of one cycle to the next
constexpr int awayFromScreen = -400; // y, px: a late timer may show an arrow, but nobody sees it

constexpr const char *dark = "background-color: transparent;";

struct Arrow
{
    QLabel *Ui_tambrel::*label;
    int x, y; // px
    const char *picture;
};

constexpr Arrow arrows[] = {
    {&Ui_tambrel::arrow1, 8, 178, ":/new/prefix1/arrowDown.png"},
    {&Ui_tambrel::arrow2, 52, 178, ":/new/prefix1/arrowDown.png"},
    {&Ui_tambrel::arrow3, 96, 178, ":/new/prefix1/arrowDown.png"},
    {&Ui_tambrel::arrow6, 938, 42, ":/new/prefix1/arrowLeft.png"},
};
constexpr const Arrow &arrowToLastFrame = arrows[3];

constexpr QLabel *Ui_tambrel::*frames[stepCount] = {&Ui_tambrel::demo1, &Ui_tambrel::demo2,
                                                    &Ui_tambrel::demo3, &Ui_tambrel::demo4};

// The last frame's sheet has one blank less.
QString litSheet(int number)
{
    return number == stepCount ? "background-color: lightsteelblue; border: 1px solid black;"
                               : "background-color: lightsteelblue;  border: 1px solid black;";
}

} // namespace

Tour::Tour(Furniture &usedFurniture, Game &usedGame) : furniture(usedFurniture), game(usedGame)
{
    for (const Arrow &arrow : arrows) {
        (furniture.ui.*arrow.label)->setPixmap(picture(arrow.picture));
        (furniture.ui.*arrow.label)->setAttribute(Qt::WA_TransparentForMouseEvents);
        (furniture.ui.*arrow.label)->hide();
    }
}

void Tour::demo()
{
    if (game.demoFlag) {
        hideDemo();
        return;
    }
    if (armed)
        return;
    armed = true;
    moveArrows(true);
    for (int number = 1; number <= stepCount; ++number)
        Sequence::after(number * stepMs, this, [this, number] { step(number); });
    Sequence::after((stepCount + 1) * stepMs, this, [this] { arrowShow(); });
}

void Tour::step(int number)
{
    const int previous = number == 1 ? stepCount : number - 1;
    wear(furniture.ui.*frames[number - 1], litSheet(number));
    wear(furniture.ui.*frames[previous - 1], dark);
    for (const Arrow &arrow : arrows) {
        const bool toColumn = &arrow != &arrowToLastFrame;
        if (number == 1)
            (furniture.ui.*arrow.label)->setVisible(toColumn);
        else if (number == 2 && toColumn)
            (furniture.ui.*arrow.label)->hide();
    }
}

void Tour::arrowShow()
{
    (furniture.ui.*arrowToLastFrame.label)->show();
    wear(furniture.ui.demo4, dark);
    armed = false;
    Sequence::after(pauseMs, this, [this] { demo(); });
}

void Tour::hideDemo()
{
    for (const Arrow &arrow : arrows)
        (furniture.ui.*arrow.label)->hide();
    for (auto frame : frames)
        (furniture.ui.*frame)->hide();
    moveArrows(false);
}

void Tour::moveArrows(bool inPlace)
{
    for (const Arrow &arrow : arrows)
        (furniture.ui.*arrow.label)->move(arrow.x, inPlace ? arrow.y : awayFromScreen);
}
