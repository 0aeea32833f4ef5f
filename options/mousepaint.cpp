#include "mousepaint.h"

#include "colorpickers.h"
#include "dresser.h"
#include "furniture.h"
#include "gradientpanels.h"
#include "mousetable.h"
#include "optionforms.h"
#include "ui_colormadness.h"
#include "ui_tambrel.h"
#include "wardrobe.h"
#include "wear.h"

#include <QColorDialog>
#include <QIcon>

namespace {

constexpr int mainPicker = 23;
constexpr int gradientPicker = 24;

constexpr int capOfLeftMark = 6; // f and j
constexpr int capOfRightMark = 10;
constexpr int leftMark = Keys::controlCount; // in paintExtraTextStyle
constexpr int rightMark = leftMark + 1;

// Cells of the bar that paint otherwise than the rule.
constexpr int withoutText = 1;       // a: its letter is never painted from the bar
constexpr int bordersAnotherCap = 1; // a: its border goes to the cap of f
constexpr auto borderedInstead = Keys::Place::ofCap(6); //
constexpr int paintsAnotherCell = 21;  // u: with Both it paints the cell of "+" from another cap
constexpr int cellPaintedInstead = 47; //
constexpr auto paintOfThatCell = Keys::Place::ofCap(20); //
constexpr int sampleWithoutHead = 27; // A: the sample of the upper letter keeps no clear ground

} // namespace

MousePaint::MousePaint(Furniture &usedFurniture, Wardrobe &usedWardrobe,
                       GradientPanels &gradientPanels, Dresser &usedDresser,
                       ColorPickers &colorPickers, const OptionForms &optionForms,
                       KeyHover &keyHover, MouseTable &mouse)
    : furniture(usedFurniture),
      wardrobe(usedWardrobe),
      panels(gradientPanels),
      dresser(usedDresser),
      pickers(colorPickers),
      form(*optionForms.colorMadness),
      hover(keyHover)
{
    const char *const icon = ":/new/prefix1/english.gif";
    parts = {{
        {form.rainbowBackground,
         PaintTables::Background,
         "Paint Background / Gradient 1",
         nullptr,
         {}},
        {form.rainbowBorder, PaintTables::Border, "Paint Border / Gradient 1", nullptr, {}},
        {form.rainbowLowercase, PaintTables::Lower, "Paint Lowercase", icon, {978, 24}},
        {form.rainbowUppercase, PaintTables::Upper, "Paint Uppercase", icon, {20, 24}},
    }};
    for (const Part &part : parts)
        connect(part.button, &QAbstractButton::clicked, this, [this, part] { choose(part); });
    mouse.add(panels.swatch(mainPicker), {{}, {}, [this] {
                                              for (const Part &part : parts) {
                                                  if (part.button->isChecked())
                                                      choose(part);
                                              }
                                          }});
    mouse.add(panels.swatch(gradientPicker),
              {{}, {}, [this] {
                   for (const Part &part : parts) {
                       if (part.button->isChecked() && hasGradient(part))
                           chooseGradient(part);
                   }
               }});
    hover.setPainter(this);
}

MousePaint::~MousePaint()
{
    hover.setPainter(nullptr);
}

bool MousePaint::isPainting() const
{
    return pickers.isPainting();
}

bool MousePaint::hasGradient(const Part &part)
{
    return part.id == PaintTables::Background || part.id == PaintTables::Border;
}

// ---- painting

MousePaint::Painted MousePaint::painted() const
{
    const bool both = form.rainbowBoth->isChecked();
    const bool border = both || form.rainbowBorder->isChecked();
    return {both, border, both || (!border && form.rainbowBackground->isChecked())};
}

// What is painted shows at rest.
void MousePaint::paintPlace(Keys::Place place, Keys::Place bordered)
{
    const Looks &looks = wardrobe.looks;
    PaintTables &paint = wardrobe.paint;
    const auto [both, border, background] = painted();
    Q_UNUSED(both)
    if (border) {
        panels.giveBrushWidth();
        paint.paintKeyBorderStyle[static_cast<size_t>(bordered.index())] =
            looks.rainbow.borderStyle;
        paint.parts[PaintTables::Border].on = true;
    }
    if (background) {
        paint.paintKeyBgStyle[static_cast<size_t>(place.index())] = looks.rainbow.bgStyle;
        paint.parts[PaintTables::Background].on = true;
    }
}

// By the key's cap; key 0 is a move over the keyboard itself.
void MousePaint::paintBackgrounds(int cap, int key)
{
    const PaintTables &paint = wardrobe.paint;
    const auto [both, border, background] = painted();
    if (!border && !background)
        return;
    const auto place = Keys::Place::ofCap(cap);
    const bool strays = key == bordersAnotherCap && !both;
    paintPlace(place, strays ? borderedInstead : place);
    const QString sheet = paint.restKeyBackground(place);
    wear(furniture.widgets.background(cap), sheet);
    if (cap == 1)
        dresser.sampleKeys(sheet);
    if (!background)
        return; // the bar has no border
    for (const int cell : {Keys::unshifted(cap), Keys::shifted(cap)})
        wear(furniture.widgets.barBackground(cell), paint.restBarBackground(place));
    if (key == paintsAnotherCell && both)
        wear(furniture.widgets.barBackground(cellPaintedInstead),
             paint.restBarBackground(paintOfThatCell));
}

void MousePaint::paintText(int key)
{
    const Looks &looks = wardrobe.looks;
    const bool shifted = Keys::isShifted(key);
    if (!(shifted ? form.rainbowUppercase : form.rainbowLowercase)->isChecked())
        return;
    QString &text = wardrobe.paint.paintTextStyle[static_cast<size_t>(Keys::index(key))];
    text = looks.brush(shifted);
    const QString sheet = text + looks.font(shifted);
    wear(furniture.widgets.keyText(key), sheet);
    wear(furniture.widgets.barLetter(key), sheet);
    if (Keys::cap(key) == 1)
        dresser.sampleKeys(text, shifted);
}

void MousePaint::paintMark(int cap)
{
    if ((cap != capOfLeftMark && cap != capOfRightMark) || !form.rainbowLowercase->isChecked())
        return;
    const bool left = cap == capOfLeftMark;
    QString &text = wardrobe.paint.paintExtraTextStyle[left ? leftMark : rightMark];
    text = wardrobe.looks.brush(false);
    wear(left ? furniture.ui.underScoreLeft : furniture.ui.underScoreRight,
         text + wardrobe.looks.lowerFontStyle);
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
    if (key == sampleWithoutHead && form.rainbowUppercase->isChecked())
        wear(furniture.ui.aKeysMap4,
             wardrobe.paint.paintTextStyle[static_cast<size_t>(Keys::index(key))] +
                 wardrobe.looks.upperFontStyle);
}

void MousePaint::paintControl(int textOrderIndex)
{
    PaintTables &paint = wardrobe.paint;
    const auto place = Keys::Place::ofControl(textOrderIndex);
    paintPlace(place, place);
    wear(furniture.widgets.background(place), paint.restKeyBackground(place));
    if (form.rainbowLowercase->isChecked()) {
        QString &text = paint.paintExtraTextStyle[static_cast<size_t>(textOrderIndex)];
        text = wardrobe.looks.brush(false);
        wear(furniture.widgets.text(place), text + wardrobe.looks.lowerFontStyle);
    }
}

// ---- choosing what to paint

void MousePaint::choose(const Part &part)
{
    // The five are exclusive, so this unchecks the others.
    part.button->setChecked(true);
    wardrobe.paint.parts[part.id].keep(true);
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
    if (part.id == PaintTables::Border)
        panels.showBorder(GradientPanels::Paint);
    else if (part.id == PaintTables::Background)
        panels.showBackground(GradientPanels::Paint);
    else
        panels.dressSwatches();
}

void MousePaint::chooseGradient(const Part &part)
{
    wardrobe.paint.parts[part.id].keep(true);
    showPart(part);
    pickers.enableColor(gradientPicker);
    dresser.keyboard();
}
