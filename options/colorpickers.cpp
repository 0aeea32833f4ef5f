#include "colorpickers.h"

#include "board.h"
#include "dresser.h"
#include "mousetable.h"
#include "sequence.h"
#include "styletext.h"
#include "ui_tambrel.h"
#include "wear.h"

#include <QColorDialog>
#include <QIcon>
#include <QSignalBlocker>
#include <QWindow>

namespace {

constexpr int focusMs = 1000; // from OK or Cancel until keys belong to the game again
using Panels = GradientPanels;

struct Row
{
    const char *title;
    const char *opener; // null: opened by MousePaint
    QPoint place;       // px on the screen
    bool alpha;
    bool icon;
};

// Picker 1 first.
const Row rows[] = {
    {"Uppercase Key", "colorPickerE", {725, 30}, true, true},
    {"Lowercase Key", "colorPickerD", {725, 60}, true, true},
    {"Key Background", "colorPickerBg", {2, 90}, true, false},
    {"Keypress Uppercase", "colorPickerKpE", {725, 30}, true, true},
    {"Keypress Lowercase", "colorPickerKpD", {725, 60}, true, true},
    {"Keypress Background", "colorPickerKpBg", {2, 90}, true, false},
    {"Mouseover Uppercase", "colorPickerMoE", {725, 30}, true, true},
    {"Mouseover Lowercase", "colorPickerMoD", {725, 60}, true, true},
    {"Mouseover Background", "colorPickerMoBg", {2, 90}, true, false},
    {"Finished Keys", "colorPickerF", {725, 30}, true, true},
    {"Finished Keys Background", "colorPickerFBg", {2, 90}, true, false},
    {"Line Highlight Color", "colorPickerKeyboard", {2, 290}, false, false},
    {"Wallpaper Background", "colorPickerWallpaper", {2, 90}, true, false},
    {"Key Background-Gradient", "colorPickerGradBottom1", {725, 90}, true, false},
    {"Lowercase Highlight", "colorPickerHiD", {725, 60}, true, true},
    {"Highlight Background", "colorPickerHiBg", {2, 90}, true, false},
    {"Keypress Background-Gradient", "colorPickerGradBottom2", {725, 90}, true, false},
    {"Mouseover Background-Gradient", "colorPickerGradBottom3", {725, 90}, true, false},
    {"Highlight Background-Gradient", "colorPickerGradBottom4", {725, 90}, true, false},
    {"Finished Keys Background-Gradient", "colorPickerGradBottom5", {725, 90}, true, false},
    {"Line Highlight Color-Gradient", "colorPickerGradBottom6", {725, 290}, false, false},
    {"Wallpaper Background-Gradient", "colorPickerGradBottom7", {725, 90}, true, false},
    {"", nullptr, {2, 90}, true, false},
    {"", nullptr, {725, 90}, true, false},
    {"Uppercase Highlight", "colorPickerHiE", {725, 30}, true, true},
    {"All Shadow Colors", "textShadowColorBox", {2, 30}, false, false},
    {"Game Play Background", "colorPicker27", {2, 90}, true, false},
    {"Game Play Background-Gradient", "colorPickerGradBottom27", {725, 90}, true, false},
    {"Game Play Key", "colorPicker29", {725, 30}, true, true},
    {"Game Play Shadow", "colorPicker30", {2, 30}, false, false},
};
static_assert(std::size(rows) == ColorPickers::count);

constexpr int raiseOrder[] = {1,  2,  3,  14, 4,  5,  6,  17, 7,  8,  9,  18, 25, 15, 16,
                              19, 10, 11, 20, 13, 22, 23, 24, 30, 29, 27, 28, 26, 12, 21};
static_assert(std::size(raiseOrder) == ColorPickers::count);

// Closing these gives the keys back to the game after a second.
constexpr int focusAfterOk[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 18, 20, 25};
constexpr int focusAfterCancel[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 23};

template <class List>
bool contains(const List &list, int number)
{
    return std::find(std::begin(list), std::end(list), number) != std::end(list);
}

// The main and the gradient picker of a look.
struct LookPickers
{
    int main;
    int gradient;
    Panels::Panel panel;
};

constexpr LookPickers lookPickers[] = {
    {3, 14, Panels::Key},        {6, 17, Panels::Keypress},  {9, 18, Panels::Mouseover},
    {16, 19, Panels::Highlight}, {11, 20, Panels::Finished}, {12, 21, Panels::Line},
    {13, 22, Panels::Wallpaper}, {23, 24, Panels::Paint},    {27, 28, Panels::GamePlay},
};

const LookPickers *lookOf(int number)
{
    for (const LookPickers &each : lookPickers) {
        if (each.main == number || each.gradient == number)
            return &each;
    }
    return nullptr;
}

QString components(const QColor &c)
{
    return QString("rgba(%1, %2, %3, %4").arg(c.red()).arg(c.green()).arg(c.blue()).arg(c.alpha());
}

QString rgba(const QColor &c)
{
    return components(c) + " ) ";
}

// The spelling of a text's colour differs from look to look, and themes keep it.
enum class Form { A, B, C };

QString textStyle(Form form, const QColor &c)
{
    switch (form) {
    case Form::A:
        return "color: " + components(c) + " );;";
    case Form::B:
        return "color: " + rgba(c) + ";";
    case Form::C:
        break;
    }
    return " color: " + rgba(c) + "; ";
}

struct CharacterPicker
{
    int number;
    QString &(*fragment)(Looks &);
    Form live;
    Form final;
    bool shifted;
    const char *preview; // null: several, told where they are refreshed
};

const CharacterPicker characterPickers[] = {
    {1, [](Looks &l) -> QString & { return l.key.upperTextStyle; }, Form::A, Form::A, true,
     nullptr},
    {2, [](Looks &l) -> QString & { return l.key.lowerTextStyle; }, Form::A, Form::A, false,
     nullptr},
    {4, [](Looks &l) -> QString & { return l.keypress.upperTextStyle; }, Form::A, Form::A, true,
     "demoLetter1"},
    {5, [](Looks &l) -> QString & { return l.keypress.lowerTextStyle; }, Form::A, Form::A, false,
     "demoLetter3"},
    {7, [](Looks &l) -> QString & { return l.mouseover.upperTextStyle; }, Form::B, Form::B, true,
     "demoLetter1_3"},
    {8, [](Looks &l) -> QString & { return l.mouseover.lowerTextStyle; }, Form::B, Form::B, false,
     "demoLetter3_3"},
    {10, [](Looks &l) -> QString & { return l.finishedTextStyle; }, Form::C, Form::C, true,
     "demoLetterFinishedUppercase"},
    {15, [](Looks &l) -> QString & { return l.highlight.lowerTextStyle; }, Form::B, Form::C, false,
     "demoLetterHiLowD"},
    {25, [](Looks &l) -> QString & { return l.highlight.upperTextStyle; }, Form::B, Form::B, true,
     "demoLetterHiE"},
};

const CharacterPicker *characterOf(int number)
{
    for (const CharacterPicker &each : characterPickers) {
        if (each.number == number)
            return &each;
    }
    return nullptr;
}

// The shadows that a picker colors.
bool isColoredBy(int number, int group)
{
    return (number == 30) == (group >= ShadowFields::firstOfBoxes);
}

} // namespace

struct Before
{
    Looks looks;
    ShadowFields shadows;
    int lineShape;
};

ColorPickers::ColorPickers(Board &usedBoard, GradientPanels &gradientPanels, Dresser &usedDresser,
                           QWidget &window)
    : board(usedBoard), panels(gradientPanels), dresser(usedDresser), mainWindow(window)
{}

ColorPickers::~ColorPickers() = default;

void ColorPickers::attach(MouseTable &mouse)
{
    for (int number = 1; number <= count; ++number) {
        if (const char *opener = rows[number - 1].opener)
            mouse.add(board.panelWidgets.find(opener),
                      {{}, {}, [this, number] { enableColor(number); }});
    }
}

QColorDialog &ColorPickers::dialog(int number)
{
    Picker &each = picker(number);
    if (each.dialog)
        return *each.dialog;
    const Row &row = rows[number - 1];
    each.dialog = std::make_unique<QColorDialog>();
    QColorDialog &made = *each.dialog;
    // A desktop's own dialog does not stay where it is put.
    made.setOption(QColorDialog::DontUseNativeDialog);
    made.setOption(QColorDialog::ShowAlphaChannel, row.alpha);
    made.setWindowTitle(row.title);
    if (row.icon)
        made.setWindowIcon(QIcon(":/new/prefix1/english.gif"));
    made.move(row.place);
    connect(&made, &QColorDialog::currentColorChanged, this,
            [this, number](const QColor &color) { live(number, color); });
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
    if (number < 1 || number > count)
        return;
    QColorDialog &opened = dialog(number);
    if (number == 24) {
        if (board.panelWidgets.isChecked("rainbowBackground"))
            opened.setWindowTitle("Paint Background Gradient 2");
        if (board.panelWidgets.isChecked("rainbowBorder"))
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
    if (const LookPickers *own = lookOf(number)) {
        if (own->gradient == number) {
            if (own->panel == Panels::Line)
                board.looks.lineHigh.gradPicked = true;
            else
                panels.look(own->panel).gradPicked = true;
        }
    }
    paintPickerOpen = paintPickerOpen || number == 23;
    paintGradPickerOpen = paintGradPickerOpen || number == 24;
}

// The color that the picker would change now.
QColor ColorPickers::target(int number) const
{
    Looks &looks = board.looks;
    if (const CharacterPicker *row = characterOf(number))
        return StyleText::textColor(row->fragment(looks));
    if (number == 29)
        return StyleText::textColor(board.panelWidgets.isChecked("yourEntryCm")
                                        ? looks.userTextStyle
                                        : looks.matchTextStyle);
    if (number == 26 || number == 30)
        return StyleText::color(board.shadows.picked(number == 30).colour);
    const LookPickers &own = *lookOf(number);
    const bool gradient = number == own.gradient;
    if (own.panel == Panels::Line) {
        const LineLook &lines = looks.lineHigh;
        if (panels.worksOnVertical())
            return StyleText::color(gradient ? lines.verticalStart : lines.verticalEnd);
        return StyleText::color(gradient ? lines.horizontalStart : lines.horizontalEnd);
    }
    if (number == 23 && paintsText())
        return StyleText::textColor(looks.brush(board.panelWidgets.isChecked("rainbowUppercase")));
    const Look &look = panels.look(own.panel);
    const bool hex = panels.shape(own.panel) == GradientText::Radial;
    if (panels.worksOnBorder(own.panel))
        return StyleText::color(gradient ? (hex ? look.borderStartHex : look.borderStart)
                                         : (hex ? look.borderEndHex : look.borderEnd));
    return StyleText::color(gradient ? (hex ? look.bgStartHex : look.bgStart)
                                     : (hex ? look.bgEndHex : look.bgEnd));
}

bool ColorPickers::paintsText() const
{
    return board.panelWidgets.isChecked("rainbowLowercase") ||
           board.panelWidgets.isChecked("rainbowUppercase");
}

void ColorPickers::allRise()
{
    for (const int number : raiseOrder) {
        if (picker(number).dialog)
            picker(number).dialog->raise();
    }
}

void ColorPickers::closeOther()
{
    for (Picker &each : pickers) {
        if (each.dialog)
            each.dialog->close();
    }
}

// ---- colours on their way

void ColorPickers::live(int number, const QColor &color)
{
    if (characterOf(number))
        colorCharacter(number, color, false);
    else if (const LookPickers *own = lookOf(number))
        number == own->main ? colorMain(number, color, false) : colorGradient(number, color);
    else if (number == 29)
        colorGamePlayText(color);
    else
        colorShadows(number, color);
}

// Some pickers have no last step.
void ColorPickers::final(int number, const QColor &color)
{
    switch (number) {
    case 1:
    case 2:
    case 10:
    case 15:
    case 25:
        colorCharacter(number, color, true);
        break;
    case 3:
    case 11:
    case 16:
    case 23:
    case 27:
        colorMain(number, color, true);
        break;
    case 14:
    case 17:
    case 18:
    case 20:
    case 28:
        colorGradient(number, color);
        break;
    case 21:
        panels.grad(Panels::Line);
        break;
    case 22:
        panels.grad(Panels::Wallpaper);
        break;
    case 24:
        panels.grad(Panels::Paint);
        break;
    case 26:
    case 30:
        colorShadows(number, color);
        break;
    case 29:
        colorGamePlayText(color);
        break;
    default:
        break;
    }
}

void ColorPickers::colorCharacter(int number, const QColor &color, bool last)
{
    const CharacterPicker &row = *characterOf(number);
    QString &fragment = row.fragment(board.looks);
    fragment = textStyle(last ? row.final : row.live, color);
    panels.dressTextSwatches();
    if (number == 4)
        board.looks.keypressUpperTextSaved = fragment;
    if (number == 5)
        board.looks.keypressLowerTextSaved = fragment;
    if (row.preview)
        dresser.character(row.preview, fragment, row.shifted);
    if (number <= 2) {
        dresser.characters(row.shifted, row.shifted ? "background-color: transparent;" : "");
        // What is not painted is painted in the color of the keys.
        dresser.character(row.shifted ? "demoLetter4English" : "demoLetter4LowerCase",
                          board.looks.brush(row.shifted), row.shifted);
        dresser.finishedKeys();
    }
    if (number == 10)
        dresser.finished();
}

void ColorPickers::colorMain(int number, const QColor &color, bool last)
{
    const Panels::Panel panel = lookOf(number)->panel;
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
    if (panel == Panels::Paint && paintsText()) {
        const bool shifted = board.panelWidgets.isChecked("rainbowUppercase");
        QString &brush = shifted ? board.looks.upperBrush : board.looks.lowerBrush;
        brush = "color: " + rgba(color) + ";";
        dresser.character(shifted ? "demoLetter4English" : "demoLetter4LowerCase", brush, shifted);
    }
    panels.grad(panel);
    if (key)
        dresser.keyLookAlone();
}

void ColorPickers::colorGradient(int number, const QColor &color)
{
    const Panels::Panel panel = lookOf(number)->panel;
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
    LineLook &lines = board.looks.lineHigh;
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
    const QString text = textStyle(Form::B, color);
    const bool matchAlone = board.panelWidgets.isChecked("matchThisCm");
    const bool entryAlone = board.panelWidgets.isChecked("yourEntryCm");
    if (!entryAlone)
        board.looks.matchTextStyle = text;
    if (!matchAlone)
        board.looks.userTextStyle = text;
    // The header takes the look with the box.
    if (board.panelWidgets.isChecked("gamePlayCb"))
        panels.putOnBoxes();
    dresser.boxTexts(matchAlone || !entryAlone, !matchAlone);
    panels.dressTextSwatches();
}

void ColorPickers::colorShadows(int number, const QColor &color)
{
    for (int group = 0; group < ShadowFields::groupCount; ++group) {
        const char *box = ShadowFields::checkBoxes[group];
        if (isColoredBy(number, group) && board.panelWidgets.isChecked(box))
            emit shadowColored(group, color.name());
    }
}

// ---- OK and Cancel

void ColorPickers::accepted(int number)
{
    allRise();
    Looks &looks = board.looks;
    PaintTables &paint = board.paint;
    switch (number) {
    case 1:
        paint.paintEnglishOn = false;
        paint.paintEnglishOnText = "0";
        break;
    case 2:
        paint.paintUpperOn = paint.paintLowerOn = false;
        paint.paintUpperOnText = paint.paintLowerOnText = "0";
        break;
    case 3: {
        paint.paintBackgroundOn = paint.paintBorderOn = false;
        paint.paintBackgroundOnText = paint.paintBorderOnText = "0";
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
    if (contains(focusAfterOk, number))
        Sequence::after(focusMs, this, [this] { emit closed(); });
}

void ColorPickers::keepPaintFlags(bool border)
{
    PaintTables &paint = board.paint;
    const struct
    {
        const char *button;
        bool &on;
        QString &text;
    } flags[] = {
        {"rainbowBorder", paint.paintBorderOn, paint.paintBorderOnText},
        {"rainbowBackground", paint.paintBackgroundOn, paint.paintBackgroundOnText},
        {"rainbowLowercase", paint.paintLowerOn, paint.paintLowerOnText},
        {"rainbowUppercase", paint.paintUpperOn, paint.paintUpperOnText},
        {"rainbowEnglish", paint.paintEnglishOn, paint.paintEnglishOnText},
    };
    for (const auto &flag : flags) {
        if (board.panelWidgets.isChecked(flag.button) && (border || &flag != flags)) {
            flag.on = true;
            flag.text = "1";
        }
    }
}

void ColorPickers::rejected(int number)
{
    allRise();
    paintPickerOpen = paintPickerOpen && number != 23;
    paintGradPickerOpen = paintGradPickerOpen && number != 24;
    restore(number);
    if (number == 12)
        wear(board.ui.imgBack, " background-color: transparent;"); // what lies behind all
    panels.showLooks();
    dresser.all();
    if (contains(focusAfterCancel, number))
        Sequence::after(focusMs, this, [this] { emit closed(); });
}

void ColorPickers::remember(int number)
{
    picker(number).before.reset(new Before{board.looks, board.shadows, panels.shape(Panels::Line)});
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
    Looks &looks = board.looks;
    if (const CharacterPicker *row = characterOf(number)) {
        Looks copy = then;
        row->fragment(looks) = row->fragment(copy);
        looks.keypressUpperTextSaved = looks.keypress.upperTextStyle;
        looks.keypressLowerTextSaved = looks.keypress.lowerTextStyle;
        return;
    }
    if (number == 29) {
        looks.matchTextStyle = then.matchTextStyle;
        looks.userTextStyle = then.userTextStyle;
        looks.matchBox.header = then.matchBox.header;
        looks.userBox.header = then.userBox.header;
        return;
    }
    if (number == 26 || number == 30) {
        for (int group = 0; group < ShadowFields::groupCount; ++group) {
            const QString &color = each.shadows.groups[static_cast<size_t>(group)].colour;
            if (isColoredBy(number, group) &&
                board.shadows.groups[static_cast<size_t>(group)].colour != color)
                emit shadowColored(group, color);
        }
        return;
    }
    const LookPickers &own = *lookOf(number);
    const bool main = number == own.main;
    if (own.panel == Panels::Line) {
        restoreLines(then.lineHigh, main, each.lineShape);
        return;
    }
    Look &look = panels.look(own.panel);
    Looks copy = then;
    const Look &before = *panels.lookIn(copy, own.panel);
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
    if (own.panel == Panels::GamePlay) {
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
    LineLook &lines = board.looks.lineHigh;
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
