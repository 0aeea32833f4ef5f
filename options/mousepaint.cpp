#include "mousepaint.h"

#include "board.h"
#include "colorpickers.h"
#include "dresser.h"
#include "gradientpanels.h"
#include "keyfeedback.h"
#include "mousetable.h"
#include "ui_tambrel.h"
#include "wear.h"

#include <QAbstractButton>
#include <QColorDialog>
#include <QIcon>
#include <QSlider>

namespace {

constexpr int mainPicker = 23;
constexpr int gradientPicker = 24;

constexpr int capOfLeftMark = 6; // f and j
constexpr int capOfRightMark = 10;
constexpr int leftMark = Keys::controlCount; // in paintExtraTextStyle
constexpr int rightMark = leftMark + 1;

// Irregular rows of the bar, kept.
constexpr int withoutText = 1;         // a: its letter is never painted from the bar
constexpr int bordersAnotherCap = 1;   // a: its border goes to the cap of f
constexpr int borderedInstead = 6;     //
constexpr int paintsAnotherCell = 21;  // u: with Both it paints the cell of "+" from another cap
constexpr int cellPaintedInstead = 47; //
constexpr int paintOfThatCell = 19;    // index
constexpr int sampleWithoutHead = 27;  // A: the sample of the upper letter keeps no clear ground

// Moving over a letter's key tells its number, save at the grave's key, which lies between.
constexpr int lastLetterCap = 26;
constexpr int silentCap = 27;

constexpr int barNumberShift = 33; // of the first digits and signs in the bar
constexpr int lastShifted = 66;    // of them

} // namespace

struct MousePaint::Part
{
    const char *button;
    bool PaintTables::*on;
    QString PaintTables::*text;
    const char *title;
    const char *icon;
    QPoint place; // px on the screen; null: where it is
};

const MousePaint::Part MousePaint::parts[4] = {
    {"rainbowBackground",
     &PaintTables::paintBackgroundOn,
     &PaintTables::paintBackgroundOnText,
     "Paint Background / Gradient 1",
     nullptr,
     {}},
    {"rainbowBorder",
     &PaintTables::paintBorderOn,
     &PaintTables::paintBorderOnText,
     "Paint Border / Gradient 1",
     nullptr,
     {}},
    {"rainbowLowercase",
     &PaintTables::paintLowerOn,
     &PaintTables::paintLowerOnText,
     "Paint Lowercase",
     ":/new/prefix1/english.gif",
     {978, 24}},
    {"rainbowUppercase",
     &PaintTables::paintUpperOn,
     &PaintTables::paintUpperOnText,
     "Paint Uppercase",
     ":/new/prefix1/english.gif",
     {20, 24}},
};

MousePaint::MousePaint(Board &usedBoard, KeyFeedback &keyFeedback, GradientPanels &gradientPanels,
                       Dresser &usedDresser, ColorPickers &colorPickers, MouseTable &mouse)
    : board(usedBoard),
      feedback(keyFeedback),
      panels(gradientPanels),
      dresser(usedDresser),
      pickers(colorPickers)
{
    addKeyRows(mouse);
}

void MousePaint::addKeyRows(MouseTable &mouse)
{
    for (int i = 0; i < Keys::controlCount; ++i)
        mouse.add(board.widgets.lowerKeyList[Keys::capCount + i], {[this, i] {
                                                                       if (pickers.isPainting())
                                                                           paintControl(i);
                                                                   },
                                                                   {},
                                                                   {}});
    for (int cap = 1; cap <= Keys::capCount; ++cap) {
        mouse.add(board.widgets.shield(cap),
                  {[this, cap] { pickers.isPainting() ? paintCap(cap) : enterCap(cap); },
                   [this, cap] {
                       if (!pickers.isPainting())
                           leaveCap(cap);
                   },
                   {}});
    }
    for (int key = 1; key <= Keys::count; ++key) {
        mouse.add(board.widgets.barLetter(key),
                  {[this, key] { pickers.isPainting() ? paintBar(key) : enterBar(key); },
                   [this, key] {
                       if (!pickers.isPainting())
                           feedback.changeColorBack(key);
                   },
                   {}});
    }
}

void MousePaint::attach(MouseTable &mouse)
{
    const auto onClick = [this](const char *name, void (MousePaint::*slot)()) {
        connect(board.panelWidgets.button(name), &QAbstractButton::clicked, this, slot);
    };
    onClick("rainbowBackground", &MousePaint::rainbowBackground);
    onClick("rainbowBorder", &MousePaint::rainbowBorder_function);
    onClick("rainbowLowercase", &MousePaint::rainbowLowercase);
    onClick("rainbowUppercase", &MousePaint::rainbowUppercase);
    mouse.add(board.panelWidgets.find("colorPickerRainbowBg"), {{}, {}, [this] {
                                                                    for (const Part &part : parts) {
                                                                        if (isChecked(part.button))
                                                                            choose(part);
                                                                    }
                                                                }});
    mouse.add(board.panelWidgets.find("colorPickerGradBottom8"),
              {{}, {}, [this] {
                   if (isChecked("rainbowBackground"))
                       rainbowBackgroundGradient();
                   else if (isChecked("rainbowBorder"))
                       rainbowBorderGradient_function();
               }});
}

bool MousePaint::isChecked(const char *button) const
{
    return board.panelWidgets.isChecked(button);
}

// ---- lighting

void MousePaint::lightBackground(int cap)
{
    const Looks &looks = board.looks;
    QLabel *image = board.widgets.image(cap);
    wear(board.widgets.background(cap), looks.keyBackground(looks.mouseover));
    image->setVisible(board.images.mouseover.isOn());
    if (board.images.mouseover.isOn())
        board.images.mouseover.layOn(image);
}

void MousePaint::lightText(int key, bool asUpper)
{
    const Looks &looks = board.looks;
    const QString text =
        looks.mouseover.text(Keys::isShifted(key)) + looks.font(Keys::isShifted(key));
    wear(board.widgets.barLetter(key), text);
    wear(board.widgets.keyText(key),
         asUpper ? looks.mouseover.upperTextStyle + looks.lowerFontStyle : text);
}

void MousePaint::enterCap(int cap)
{
    const Looks &looks = board.looks;
    if (cap <= lastLetterCap) {
        feedback.letterNumberText = QString::number(cap);
        feedback.letterOAlphabet();
    } else if (cap != silentCap) {
        feedback.letterOAlphabetNone();
    }
    for (const int key : {Keys::unshifted(cap), Keys::shifted(cap)}) {
        wear(board.widgets.barBackground(key), looks.barBackground(looks.mouseover.bgStyle));
        lightText(key, key == 1); // a alone takes the colour of the capitals on its key
    }
    lightBackground(cap);
    if (cap == capOfLeftMark || cap == capOfRightMark)
        wear(cap == capOfLeftMark ? board.ui.underScoreLeft : board.ui.underScoreRight,
             looks.mouseover.upperTextStyle + looks.lowerFontStyle);
}

void MousePaint::leaveCap(int cap)
{
    feedback.changeColorBack(Keys::unshifted(cap));
    feedback.changeColorBack(Keys::shifted(cap));
}

// The number of the key typed last is the game's too, and moving over the bar changes it.
void MousePaint::enterBar(int key)
{
    const Looks &looks = board.looks;
    const bool letter = key <= Keys::range(Keys::Set::Uppercase).last;
    int number = key;
    if (letter)
        number = Keys::cap(key);
    else if (key <= lastShifted)
        number = key - barNumberShift;
    feedback.letterNumberText = QString::number(number);
    board.game.letterNumber = letter ? Keys::cap(key) - 1 : Keys::index(key);
    if (letter)
        feedback.letterOAlphabet();
    else
        feedback.letterOAlphabetNone();
    wear(board.widgets.barBackground(key), looks.barBackground(looks.mouseover.bgStyle));
    lightText(key, false);
    lightBackground(Keys::cap(key));
}

// ---- painting

MousePaint::Painted MousePaint::painted() const
{
    const bool both = isChecked("rainbowBoth");
    const bool border = both || isChecked("rainbowBorder");
    return {both, border, both || (!border && isChecked("rainbowBackground"))};
}

// What is painted shows at rest.
void MousePaint::paintPile(size_t pile, size_t borderedPile)
{
    const Looks &looks = board.looks;
    PaintTables &paint = board.paint;
    const auto [both, border, background] = painted();
    Q_UNUSED(both)
    if (border) {
        panels.giveBrushWidth();
        paint.paintKeyBorderStyle[borderedPile] = looks.rainbow.borderStyle;
        paint.paintBorderOn = true;
    }
    if (background) {
        paint.paintKeyBgStyle[pile] = looks.rainbow.bgStyle;
        paint.paintBackgroundOn = true;
    }
}

// By the key's cap; key 0 is a move over the keyboard itself.
void MousePaint::paintBackgrounds(int cap, int key)
{
    const PaintTables &paint = board.paint;
    const auto [both, border, background] = painted();
    if (!border && !background)
        return;
    const auto pile = static_cast<size_t>(cap - 1);
    const bool strays = key == bordersAnotherCap && !both;
    paintPile(pile, strays ? borderedInstead - 1 : pile);
    const QString sheet = paint.restKeyBackground(int(pile));
    wear(board.widgets.background(cap), sheet);
    if (cap == 1)
        dresser.sampleKeys(sheet);
    if (!background)
        return; // the bar has no border
    for (const int cell : {Keys::unshifted(cap), Keys::shifted(cap)})
        wear(board.widgets.barBackground(cell), paint.restBarBackground(int(pile)));
    if (key == paintsAnotherCell && both)
        wear(board.widgets.barBackground(cellPaintedInstead),
             paint.restBarBackground(paintOfThatCell));
}

void MousePaint::paintText(int key)
{
    const Looks &looks = board.looks;
    const bool shifted = Keys::isShifted(key);
    if (!isChecked(shifted ? "rainbowUppercase" : "rainbowLowercase"))
        return;
    QString &text = board.paint.paintTextStyle[static_cast<size_t>(Keys::index(key))];
    text = looks.brush(shifted);
    const QString sheet = text + looks.font(shifted);
    wear(board.widgets.keyText(key), sheet);
    wear(board.widgets.barLetter(key), sheet);
    if (Keys::cap(key) == 1)
        dresser.sampleKeys(text, shifted);
}

void MousePaint::paintMark(int cap)
{
    if ((cap != capOfLeftMark && cap != capOfRightMark) || !isChecked("rainbowLowercase"))
        return;
    const bool left = cap == capOfLeftMark;
    QString &text = board.paint.paintExtraTextStyle[left ? leftMark : rightMark];
    text = board.looks.brush(false);
    wear(left ? board.ui.underScoreLeft : board.ui.underScoreRight,
         text + board.looks.lowerFontStyle);
}

void MousePaint::paintCap(int cap)
{
    paintBackgrounds(cap, 0);
    paintText(Keys::unshifted(cap));
    paintMark(cap);
    paintText(Keys::shifted(cap));
}

void MousePaint::paintBar(int key)
{
    paintBackgrounds(Keys::cap(key), key);
    if (key != withoutText)
        paintText(key);
    if (!Keys::isShifted(key))
        paintMark(Keys::cap(key));
    if (key == sampleWithoutHead && isChecked("rainbowUppercase"))
        wear(board.panelWidgets.find("aKeysMap4"),
             board.paint.paintTextStyle[static_cast<size_t>(Keys::index(key))] +
                 board.looks.upperFontStyle);
}

void MousePaint::paintControl(int textOrderIndex)
{
    PaintTables &paint = board.paint;
    const int place = Keys::capCount + 1 + textOrderIndex;
    const auto pile = static_cast<size_t>(place - 1);
    paintPile(pile, pile);
    wear(board.widgets.placeBackground(place), paint.restKeyBackground(int(pile)));
    if (isChecked("rainbowLowercase")) {
        QString &text = paint.paintExtraTextStyle[static_cast<size_t>(textOrderIndex)];
        text = board.looks.brush(false);
        wear(board.widgets.placeText(place), text + board.looks.lowerFontStyle);
    }
}

// ---- choosing what to paint

void MousePaint::choose(const Part &part)
{
    // The five are exclusive, so this unchecks the others.
    board.panelWidgets.button(part.button)->setChecked(true);
    board.paint.*part.on = true;
    board.paint.*part.text = "1";
    QColorDialog &dialog = pickers.dialog(mainPicker);
    dialog.setWindowTitle(part.title);
    dialog.setWindowIcon(part.icon ? QIcon(part.icon) : QIcon());
    if (!part.place.isNull())
        dialog.move(part.place);
    showPart(part);
    pickers.enableColor(mainPicker);
    dresser.keyboard(); // what was painted before shows again
}

// The controls of the panel follow the part.
void MousePaint::showPart(const Part &part)
{
    if (part.on == &PaintTables::paintBorderOn)
        panels.showBorder(GradientPanels::Paint);
    else if (part.on == &PaintTables::paintBackgroundOn)
        panels.showBackground(GradientPanels::Paint);
    else
        panels.dressSwatches();
}

void MousePaint::chooseGradient(const Part &part)
{
    board.paint.*part.on = true;
    board.paint.*part.text = "1";
    showPart(part);
    pickers.enableColor(gradientPicker);
    dresser.keyboard();
}

void MousePaint::rainbowBackground()
{
    choose(parts[0]);
}

void MousePaint::rainbowBorder_function()
{
    choose(parts[1]);
}

void MousePaint::rainbowLowercase()
{
    choose(parts[2]);
}

void MousePaint::rainbowUppercase()
{
    choose(parts[3]);
}

void MousePaint::rainbowBackgroundGradient()
{
    chooseGradient(parts[0]);
}

void MousePaint::rainbowBorderGradient_function()
{
    chooseGradient(parts[1]);
}
