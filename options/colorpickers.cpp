#include "colorpickers.h"

#include "dresser.h"
#include "furniture.h"
#include "mousetable.h"
#include "optionforms.h"
#include "pickertable.h"
#include "sequence.h"
#include "styletext.h"
#include "ui_colormadness.h"
#include "ui_gameplaypanel.h"
#include "ui_tambrel.h"
#include "wardrobe.h"
#include "wear.h"

#include <QColorDialog>
#include <QIcon>
#include <QSignalBlocker>
#include <QWindow>
#include <utility>

namespace {

constexpr int focusMs = 1000; // from OK or Cancel until keys belong to the game again
using Panels = GradientPanels;

// The later in it, the higher it lies; pickers that are not in it lie above all.
constexpr int raiseOrder[] = {1,  2,  3,  14, 4,  5,  6,  17, 7,  8,  9,  18, 25, 15, 16,
                              19, 10, 11, 20, 13, 22, 23, 24, 30, 29, 27, 28, 26, 12, 21};

QString components(const QColor &c)
{
    return QString("rgba(%1, %2, %3, %4").arg(c.red()).arg(c.green()).arg(c.blue()).arg(c.alpha());
}

QString rgba(const QColor &c)
{
    return components(c) + " ) ";
}

QString textStyle(PickerRow::Spelling spelling, const QColor &c)
{
    switch (spelling) {
    case PickerRow::Spelling::A:
        return "color: " + components(c) + " );;";
    case PickerRow::Spelling::B:
        return "color: " + rgba(c) + ";";
    case PickerRow::Spelling::C:
        break;
    }
    return " color: " + rgba(c) + "; ";
}

// The shadows that a picker colors.
bool isColoredBy(int number, int group)
{
    return PickerRow::colorsBoxes(number) == (group >= ShadowFields::firstOfBoxes);
}

} // namespace

struct Before
{
    Looks looks;
    ShadowFields shadows;
    int lineShape;
};

ColorPickers::ColorPickers(Furniture &usedFurniture, Wardrobe &usedWardrobe,
                           GradientPanels &gradientPanels, Dresser &usedDresser,
                           const OptionForms &optionForms, MouseTable &mouse, QWidget &window)
    : furniture(usedFurniture),
      wardrobe(usedWardrobe),
      panels(gradientPanels),
      dresser(usedDresser),
      forms(optionForms),
      mainWindow(window),
      pickers(size_t(PickerRow::count))
{
    for (int number = 1; number <= PickerRow::count; ++number) {
        // What the mouse paints with has more than one target, and an opener of its own.
        if (PickerRow::of(number).panel != Panels::Paint)
            mouse.add(panels.swatch(number), {{}, {}, [this, number] { enableColor(number); }});
    }
}

ColorPickers::~ColorPickers() = default;

QColorDialog &ColorPickers::dialog(int number)
{
    Picker &each = picker(number);
    if (each.dialog)
        return *each.dialog;
    const PickerRow &row = PickerRow::of(number);
    each.dialog = std::make_unique<QColorDialog>();
    QColorDialog &made = *each.dialog;
    // A desktop's own dialog does not stay where it is put.
    made.setOption(QColorDialog::DontUseNativeDialog);
    made.setOption(QColorDialog::ShowAlphaChannel, row.hasAlpha());
    made.setWindowTitle(row.title);
    if (row.hasIcon())
        made.setWindowIcon(QIcon(":/new/prefix1/english.gif"));
    made.move(row.place);
    connect(&made, &QColorDialog::currentColorChanged, this,
            [this, number](const QColor &color) { drag(number, color); });
    connect(&made, &QColorDialog::colorSelected, this,
            [this, number](const QColor &color) { final(number, color); });
    connect(&made, &QDialog::accepted, this, [this, number] { accepted(number); });
    connect(&made, &QDialog::rejected, this, [this, number] { rejected(number); });
    return made;
}

// Above the main window, also when that is clicked, and yet no child of it.
void ColorPickers::keepInFront(QColorDialog &dialog) const
{
    dialog.winId();
    if (QWindow *window = mainWindow.windowHandle())
        dialog.windowHandle()->setTransientParent(window);
}

void ColorPickers::enableColor(int number)
{
    if (number < 1 || number > PickerRow::count)
        return;
    QColorDialog &opened = dialog(number);
    if (number == 24) {
        if (forms.colorMadness->rainbowBackground->isChecked())
            opened.setWindowTitle("Paint Background Gradient 2");
        if (forms.colorMadness->rainbowBorder->isChecked())
            opened.setWindowTitle("Paint Border Gradient 2");
    }
    const bool reopened = opened.isVisible();
    const QColor now = target(number);
    if (now.isValid()) {
        const QSignalBlocker quiet(opened);
        opened.setCurrentColor(now);
    }
    keepInFront(opened);
    allRise();
    // Not open(), which would be modal to the window that it stays in front of.
    opened.show();
    if (!reopened)
        remember(number);
    const PickerRow &row = PickerRow::of(number);
    if (row.role == PickerRow::Gradient)
        (row.panel == Panels::Line ? wardrobe.looks.lineHigh.gradPicked
                                   : panels.look(row.panel).gradPicked) = true;
    paintPickerOpen = paintPickerOpen || number == 23;
    paintGradPickerOpen = paintGradPickerOpen || number == 24;
}

// The color that the picker would change now.
QColor ColorPickers::target(int number) const
{
    Looks &looks = wardrobe.looks;
    const PickerRow &row = PickerRow::of(number);
    switch (row.role) {
    case PickerRow::Character:
        return StyleText::textColor(row.fragment(looks));
    case PickerRow::BoxText:
        return StyleText::textColor(panels.worksOnMatch() ? looks.matchTextStyle
                                                          : looks.userTextStyle);
    case PickerRow::Shadow:
        return StyleText::color(wardrobe.shadows.picked(PickerRow::colorsBoxes(number)).color);
    case PickerRow::Main:
    case PickerRow::Gradient:
        break;
    }
    const bool gradient = row.role == PickerRow::Gradient;
    if (row.panel == Panels::Line) {
        const LineLook &lines = looks.lineHigh;
        if (panels.worksOnVertical())
            return StyleText::color(gradient ? lines.verticalStart : lines.verticalEnd);
        return StyleText::color(gradient ? lines.horizontalStart : lines.horizontalEnd);
    }
    if (row.panel == Panels::Paint && !gradient && panels.paintsText())
        return StyleText::textColor(looks.brush(panels.paintsUppercase()));
    const Look &look = panels.look(row.panel);
    const bool hex = panels.shape(row.panel) == GradientText::Radial;
    if (panels.worksOnBorder(row.panel))
        return StyleText::color(gradient ? (hex ? look.borderStartHex : look.borderStart)
                                         : (hex ? look.borderEndHex : look.borderEnd));
    return StyleText::color(gradient ? (hex ? look.bgStartHex : look.bgStart)
                                     : (hex ? look.bgEndHex : look.bgEnd));
}

void ColorPickers::allRise()
{
    const auto rise = [this](int number) {
        if (picker(number).dialog)
            picker(number).dialog->raise();
    };
    for (const int number : raiseOrder)
        rise(number);
    for (int number = int(std::size(raiseOrder)) + 1; number <= PickerRow::count; ++number)
        rise(number);
}

void ColorPickers::closeOther()
{
    for (Picker &each : pickers) {
        if (each.dialog)
            each.dialog->close();
    }
}

// ---- colors on their way

void ColorPickers::drag(int number, const QColor &color)
{
    if (!picker(number).dragged.isValid())
        Sequence::after(0, this, [this, number] { takeDragged(number); });
    picker(number).dragged = color;
}

void ColorPickers::takeDragged(int number)
{
    const QColor color = std::exchange(picker(number).dragged, QColor());
    if (color.isValid())
        take(number, color, false);
}

void ColorPickers::take(int number, const QColor &color, bool last)
{
    switch (PickerRow::of(number).role) {
    case PickerRow::Character:
        colorCharacter(number, color, last);
        break;
    case PickerRow::Main:
        colorMain(number, color, last);
        break;
    case PickerRow::Gradient:
        colorGradient(number, color);
        break;
    case PickerRow::BoxText:
        colorGamePlayText(color);
        break;
    case PickerRow::Shadow:
        colorShadows(number, color);
        break;
    }
}

void ColorPickers::final(int number, const QColor &color)
{
    takeDragged(number);
    const PickerRow &row = PickerRow::of(number);
    if (row.last == PickerRow::Last::Write)
        take(number, color, true);
    else if (row.last == PickerRow::Last::Repaint)
        panels.grad(row.panel);
}

void ColorPickers::colorCharacter(int number, const QColor &color, bool last)
{
    const PickerRow &row = PickerRow::of(number);
    QString &fragment = row.fragment(wardrobe.looks);
    fragment = textStyle(last ? row.final : row.live, color);
    panels.dressTextSwatches();
    if (number == 5)
        wardrobe.looks.keypressLowerTextSaved = fragment;
    dresser.character(number);
    if (number <= 2) {
        dresser.characters(row.shifted, row.shifted ? "background-color: transparent;" : "");
        // What is not painted is painted in the color of the keys.
        dresser.brush(row.shifted);
        dresser.finishedKeys();
    }
    if (number == 10)
        dresser.finished();
}

void ColorPickers::colorMain(int number, const QColor &color, bool last)
{
    const Panels::Panel panel = PickerRow::of(number).panel;
    if (panel == Panels::Line) {
        colorLines(false, color);
        return;
    }
    Look &look = panels.look(panel);
    const bool border = panels.worksOnBorder(panel);
    // While it is dragged over, the key look takes what its shape needs and no more.
    const bool key = panel == Panels::Key;
    const bool radial = key && panels.shape(panel) == GradientText::Radial;
    const bool writesHex = last || !key || radial;
    const bool writesRgba = last || !key || !radial;
    const bool alsoStart = !look.gradPicked &&
                           !(last && (key || panel == Panels::Highlight || panel == Panels::Paint));
    if (writesHex) {
        (border ? look.borderEndHex : look.bgEndHex) = color.name();
        if (alsoStart)
            (border ? look.borderStartHex : look.bgStartHex) = color.name();
    }
    if (writesRgba) {
        (border ? look.borderEnd : look.bgEnd) = rgba(color);
        if (alsoStart)
            (border ? look.borderStart : look.bgStart) = rgba(color);
    }
    if (panel == Panels::Paint && panels.paintsText()) {
        const bool shifted = panels.paintsUppercase();
        (shifted ? wardrobe.looks.upperBrush : wardrobe.looks.lowerBrush) =
            "color: " + rgba(color) + ";";
        dresser.brush(shifted);
    }
    panels.grad(panel);
    if (key)
        dresser.keyLookAlone();
}

void ColorPickers::colorGradient(int number, const QColor &color)
{
    const Panels::Panel panel = PickerRow::of(number).panel;
    if (panel == Panels::Line) {
        colorLines(true, color);
        return;
    }
    Look &look = panels.look(panel);
    const bool border = panels.worksOnBorder(panel);
    (border ? look.borderStartHex : look.bgStartHex) = color.name();
    (border ? look.borderStart : look.bgStart) = rgba(color);
    panels.grad(panel);
    if (panel == Panels::Key)
        dresser.keys();
}

void ColorPickers::colorLines(bool start, const QColor &color)
{
    LineLook &lines = wardrobe.looks.lineHigh;
    const bool alsoStart = start || !lines.gradPicked;
    if (panels.worksOnVertical()) {
        if (!start) {
            lines.verticalEndHex = color.name();
            lines.verticalEnd = rgba(color);
        }
        if (alsoStart) {
            lines.verticalStartHex = color.name();
            lines.verticalStart = rgba(color);
        }
    }
    if (panels.worksOnHorizontal()) {
        if (!start) {
            lines.horizontalEndHex = color.name();
            lines.horizontalEnd = rgba(color);
        }
        if (alsoStart) {
            lines.horizontalStartHex = color.name();
            lines.horizontalStart = rgba(color);
        }
    }
    panels.grad(Panels::Line);
}

void ColorPickers::colorGamePlayText(const QColor &color)
{
    const QString text = textStyle(PickerRow::Spelling::B, color);
    if (panels.worksOnMatch())
        wardrobe.looks.matchTextStyle = text;
    if (panels.worksOnUser())
        wardrobe.looks.userTextStyle = text;
    // The header takes the look with the box.
    if (forms.gamePlay->gamePlayCb->isChecked())
        panels.putOnBoxes();
    dresser.boxTexts(panels.worksOnMatch(), panels.worksOnUser());
    panels.dressTextSwatches();
}

void ColorPickers::colorShadows(int number, const QColor &color)
{
    for (int group = 0; group < ShadowFields::groupCount; ++group) {
        if (isColoredBy(number, group) && wardrobe.shadows.groups[static_cast<size_t>(group)].on)
            emit shadowColored(group, color.name());
    }
}

// ---- OK and Cancel

void ColorPickers::accepted(int number)
{
    allRise();
    Looks &looks = wardrobe.looks;
    PaintTables &paint = wardrobe.paint;
    switch (number) {
    case 1:
        paint.parts[PaintTables::English].keep(false);
        break;
    case 2:
        paint.parts[PaintTables::Upper].keep(false);
        paint.parts[PaintTables::Lower].keep(false);
        break;
    case 3: {
        paint.parts[PaintTables::Background].keep(false);
        paint.parts[PaintTables::Border].keep(false);
        const bool radial = panels.shape(Panels::Key) == GradientText::Radial;
        looks.rainbow.bgEnd = radial ? looks.key.bgEndHex : looks.key.bgEnd;
        looks.rainbow.bgStart = radial ? looks.key.bgStartHex : looks.key.bgStart;
        looks.rainbow.gradStop = looks.key.gradStop;
        looks.rainbow.bgStyle = looks.key.bgStyle;
        break;
    }
    case 23:
        paintPickerOpen = false;
        keepPaintFlags(true);
        dialog(23).close();
        break;
    case 24:
        paintGradPickerOpen = false;
        keepPaintFlags(false);
        break;
    default:
        break;
    }
    // Qt tells of the chosen color before it tells of OK, so this comes last: what was seen
    // stays.
    panels.dressSwatches();
    dresser.all();
    if (PickerRow::of(number).givesFocusAfterOk())
        Sequence::after(focusMs, this, [this] { emit closed(); });
}

void ColorPickers::keepPaintFlags(bool border)
{
    PaintTables &paint = wardrobe.paint;
    const Ui::colorMadnessPanel &form = *forms.colorMadness;
    const std::pair<QRadioButton *, PaintTables::Part> parts[] = {
        {form.rainbowBorder, PaintTables::Border},
        {form.rainbowBackground, PaintTables::Background},
        {form.rainbowLowercase, PaintTables::Lower},
        {form.rainbowUppercase, PaintTables::Upper},
        {form.rainbowEnglish, PaintTables::English},
    };
    for (const auto &[button, part] : parts) {
        if (button->isChecked() && (border || part != PaintTables::Border))
            paint.parts[part].keep(true);
    }
}

void ColorPickers::rejected(int number)
{
    picker(number).dragged = QColor();
    allRise();
    paintPickerOpen = paintPickerOpen && number != 23;
    paintGradPickerOpen = paintGradPickerOpen && number != 24;
    restore(number);
    if (number == 12)
        wear(furniture.ui.imgBack, " background-color: transparent;"); // what lies behind all
    panels.showLooks();
    dresser.all();
    if (PickerRow::of(number).givesFocusAfterCancel())
        Sequence::after(focusMs, this, [this] { emit closed(); });
}

void ColorPickers::remember(int number)
{
    picker(number).before.reset(
        new Before{wardrobe.looks, wardrobe.shadows, panels.shape(Panels::Line)});
}

namespace {

// The pieces that are built from the colors: as they were, unless the other controls of the
// look have been used meanwhile.
void restoreBackground(Look &look, const Look &then)
{
    if (look.bgShape == then.bgShape && look.gradStop == then.gradStop &&
        look.bgStart == then.bgStart && look.bgEnd == then.bgEnd &&
        look.bgStartHex == then.bgStartHex && look.bgEndHex == then.bgEndHex)
        look.bgStyle = then.bgStyle;
    else
        look.buildBackground();
}

void restoreBorder(Look &look, const Look &then)
{
    if (look.borderShape == then.borderShape && look.gradStop == then.gradStop &&
        look.borderWidth == then.borderWidth && look.borderStart == then.borderStart &&
        look.borderEnd == then.borderEnd && look.borderStartHex == then.borderStartHex &&
        look.borderEndHex == then.borderEndHex)
        look.borderStyle = then.borderStyle;
    else
        look.buildBorder();
}

} // namespace

// Puts back what this picker can have written, as it was when it opened. Other pickers may be
// open beside it and have been closed with OK in the meantime.
void ColorPickers::restore(int number)
{
    if (!picker(number).before)
        return;
    const Before &each = *picker(number).before;
    const Looks &then = each.looks;
    Looks &looks = wardrobe.looks;
    const PickerRow &row = PickerRow::of(number);
    if (row.role == PickerRow::Character) {
        Looks copy = then;
        row.fragment(looks) = row.fragment(copy);
        looks.keypressLowerTextSaved = looks.keypress.lowerTextStyle;
        return;
    }
    if (row.role == PickerRow::BoxText) {
        looks.matchTextStyle = then.matchTextStyle;
        looks.userTextStyle = then.userTextStyle;
        looks.matchBox.header = then.matchBox.header;
        looks.userBox.header = then.userBox.header;
        return;
    }
    if (row.role == PickerRow::Shadow) {
        for (int group = 0; group < ShadowFields::groupCount; ++group) {
            const QString &color = each.shadows.groups[static_cast<size_t>(group)].color;
            if (isColoredBy(number, group) &&
                wardrobe.shadows.groups[static_cast<size_t>(group)].color != color)
                emit shadowColored(group, color);
        }
        return;
    }
    const bool main = row.role == PickerRow::Main;
    if (row.panel == Panels::Line) {
        restoreLines(then.lineHigh, main, each.lineShape);
        return;
    }
    Look &look = panels.look(row.panel);
    Looks copy = then;
    const Look &before = *panels.lookIn(copy, row.panel);
    if (main) {
        look.bgEnd = before.bgEnd;
        look.bgEndHex = before.bgEndHex;
        look.borderEnd = before.borderEnd;
        look.borderEndHex = before.borderEndHex;
    }
    if (!main || !look.gradPicked) {
        look.bgStart = before.bgStart;
        look.bgStartHex = before.bgStartHex;
        look.borderStart = before.borderStart;
        look.borderStartHex = before.borderStartHex;
    }
    if (!main)
        look.gradPicked = before.gradPicked;
    restoreBackground(look, before);
    restoreBorder(look, before);
    if (row.panel == Panels::GamePlay) {
        looks.matchBox = then.matchBox;
        looks.userBox = then.userBox;
    }
    if (number == 23) {
        looks.upperBrush = then.upperBrush;
        looks.lowerBrush = then.lowerBrush;
    }
}

void ColorPickers::restoreLines(const LineLook &then, bool main, int shapeThen)
{
    LineLook &lines = wardrobe.looks.lineHigh;
    if (main) {
        lines.verticalEnd = then.verticalEnd;
        lines.verticalEndHex = then.verticalEndHex;
        lines.horizontalEnd = then.horizontalEnd;
        lines.horizontalEndHex = then.horizontalEndHex;
    }
    if (!main || !lines.gradPicked) {
        lines.verticalStart = then.verticalStart;
        lines.verticalStartHex = then.verticalStartHex;
        lines.horizontalStart = then.horizontalStart;
        lines.horizontalStartHex = then.horizontalStartHex;
    }
    if (!main)
        lines.gradPicked = then.gradPicked;
    const int shape = panels.shape(Panels::Line);
    if (shape == shapeThen && lines.gradStop == then.gradStop) {
        lines.verticalStyle = then.verticalStyle;
        lines.horizontalStyle = then.horizontalStyle;
    } else {
        lines.buildVertical(shape);
        lines.buildHorizontal(shape);
    }
}
