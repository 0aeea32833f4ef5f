#include "colorpickers.h"

#include "board.h"
#include "instructor.h"
#include "keyfeedback.h"
#include "mousetable.h"
#include "sequence.h"
#include "targethighlights.h"
#include "ui_tambrel.h"
#include "wear.h"

#include <QColorDialog>
#include <QIcon>

namespace {

constexpr int focusMs = 1000; // from OK or Cancel until keys belong to the game again
constexpr const char *clear = "background-color: transparent;";

using Panels = GradientPanels;

struct Row
{
    const char *title;
    const char *opener; // null: opened by MousePaint
    const char *start;  // null: as Qt has it
    QPoint place;       // px on the screen
    bool alpha;
    bool icon;
};

// Picker 1 first.
const Row rows[] = {
    {"Uppercase Key", "colorPickerE", nullptr, {725, 30}, true, true},
    {"Lowercase Key", "colorPickerD", nullptr, {725, 60}, true, true},
    {"Key Background", "colorPickerBg", "black", {2, 90}, true, false},
    {"Keypress Uppercase", "colorPickerKpE", "blue", {725, 30}, true, true},
    {"Keypress Lowercase", "colorPickerKpD", "blue", {725, 60}, true, true},
    {"Keypress Background", "colorPickerKpBg", "black", {2, 90}, true, false},
    {"Mouseover Uppercase", "colorPickerMoE", "blue", {725, 30}, true, true},
    {"Mouseover Lowercase", "colorPickerMoD", "blue", {725, 60}, true, true},
    {"Mouseover Background", "colorPickerMoBg", "gold", {2, 90}, true, false},
    {"Finished Keys", "colorPickerF", nullptr, {725, 30}, true, true},
    {"Finished Keys Background", "colorPickerFBg", "#737373", {2, 90}, true, false},
    {"Line Highlight Color", "colorPickerKeyboard", nullptr, {2, 290}, false, false},
    {"Wallpaper Background", "colorPickerWallpaper", nullptr, {2, 90}, true, false},
    {"Key Background-Gradient", "colorPickerGradBottom1", "black", {725, 90}, true, false},
    {"Lowercase Highlight", "colorPickerHiD", "black", {725, 60}, true, true},
    {"Highlight Background", "colorPickerHiBg", "gold", {2, 90}, true, false},
    {"Keypress Background-Gradient", "colorPickerGradBottom2", "black", {725, 90}, true, false},
    {"Mouseover Background-Gradient", "colorPickerGradBottom3", nullptr, {725, 90}, true, false},
    {"Highlight Background-Gradient", "colorPickerGradBottom4", "gold", {725, 90}, true, false},
    {"Finished Keys Background-Gradient",
     "colorPickerGradBottom5",
     nullptr,
     {725, 90},
     true,
     false},
    {"Line Highlight Color-Gradient", "colorPickerGradBottom6", nullptr, {725, 290}, false, false},
    {"Wallpaper Background-Gradient", "colorPickerGradBottom7", nullptr, {725, 90}, true, false},
    {"", nullptr, "black", {2, 90}, true, false},
    {"", nullptr, "black", {725, 90}, true, false},
    {"Uppercase Highlight", "colorPickerHiE", "black", {725, 30}, true, true},
    {"All Shadow Colors", "textShadowColorBox", "#484848", {2, 30}, false, false},
    {"Game Play Background", "colorPicker27", nullptr, {2, 90}, true, false},
    {"Game Play Background-Gradient", "colorPickerGradBottom27", nullptr, {725, 90}, true, false},
    {"Game Play Key", "colorPicker29", nullptr, {725, 30}, true, true},
    {"Game Play Shadow", "colorPicker30", "#484848", {2, 30}, false, false},
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

// The shadows that a picker colours, by their check boxes.
const QStringList &shadowBoxes(int number)
{
    static const QStringList ofKeys{"textShadowTambrel",
                                    "textShadowTambrelLow",
                                    "textShadowTambrelAbc",
                                    "textShadowTambrelLowAbc",
                                    "shadowKeys",
                                    "shadowKeys_2",
                                    "textShadowTambrelAbcBg",
                                    "textShadowTambrelLowAbcBg"};
    static const QStringList ofGamePlay{"tsGamePlayText", "tsGamePlayBg", "tsGamePlayText_2",
                                        "tsGamePlayBg_2"};
    return number == 26 ? ofKeys : ofGamePlay;
}

} // namespace

ColorPickers::ColorPickers(Board &usedBoard, GradientPanels &gradientPanels,
                           KeyFeedback &keyFeedback, Instructor &virtualInstructor,
                           TargetHighlights &targetHighlights)
    : board(usedBoard),
      panels(gradientPanels),
      feedback(keyFeedback),
      instructor(virtualInstructor),
      highlights(targetHighlights)
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
    if (row.start)
        made.setCurrentColor(QColor(row.start));
    made.move(row.place);
    connect(&made, &QColorDialog::currentColorChanged, this,
            [this, number](const QColor &color) { live(number, color); });
    connect(&made, &QColorDialog::colorSelected, this,
            [this, number](const QColor &color) { final(number, color); });
    connect(&made, &QDialog::accepted, this, [this, number] { accepted(number); });
    connect(&made, &QDialog::rejected, this, [this, number] { rejected(number); });
    return made;
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
    allRise();
    opened.open();
    if (number == 23) {
        paintPickerOpen = true;
        return; // its Cancel keeps the last colour
    }
    picker(number).saved = opened.currentColor();
    if (const LookPickers *own = lookOf(number)) {
        if (own->gradient == number) {
            if (own->panel == Panels::Line)
                board.looks.lineHigh.gradPicked = true;
            else
                panels.look(own->panel).gradPicked = true;
        }
    }
    if (number == 24)
        paintGradPickerOpen = true;
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
        number == own->main ? colorMain(number, color, false) : colorGradient(number, color, false);
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
        colorGradient(number, color, true);
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
        panels.dressCharacter(row.preview, fragment, row.shifted);
    if (number <= 2)
        refreshCharacters(number, last);
    if (number == 10) {
        panels.dressCharacter("demoLetterFinishedLowercase", fragment, false);
        if (last)
            panels.bgColorLoops();
        else
            instructor.set_dem_StyleSheet();
    }
}

void ColorPickers::refreshCharacters(int number, bool last)
{
    const bool shifted = number == 1;
    const KeyboardWidgets &keyboard = board.widgets;
    const QString text = board.looks.key.text(shifted) + board.looks.font(shifted);
    for (QWidget *letter : shifted ? keyboard.upperLabelList : keyboard.lowerLabelList)
        wear(letter, text);
    for (QWidget *letter : shifted ? keyboard.upperKeyList : keyboard.lowerKeyList)
        wear(letter, shifted ? clear + text : text);
    panels.dressKeyCharacters(shifted);
    if (shifted) {
        last ? board.paint.fillRainbowE() : board.paint.fillRainbowUp();
        return;
    }
    wear(board.ui.underScoreRight, text);
    wear(board.ui.underScoreLeft, text);
    panels.finishedAgain();
    if (last)
        board.paint.fillRainbowUp();
    board.paint.fillRainbowLow();
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
    panels.grad(panel);
    if (key) {
        panels.dressKeys();
        panels.dressBar();
        if (last)
            feedback.allChangeColorBack();
    } else if (panel == Panels::Finished && last) {
        panels.bgColorLoops();
    }
}

void ColorPickers::colorGradient(int number, const QColor &color, bool last)
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
    if (panel == Panels::Key) {
        panels.dressKeys();
        panels.dressBar();
    } else if (panel == Panels::Finished && last) {
        instructor.set_dem_StyleSheet();
        panels.bgColorLoops();
    }
}

// Either the vertical lines, also for both, or the horizontal ones.
void ColorPickers::colorLines(bool start, const QColor &color)
{
    LineLook &lines = board.looks.lineHigh;
    const bool vertical = panels.worksOnVertical();
    if (!start) {
        (vertical ? lines.verticalEndHex : lines.horizontalEndHex) = color.name();
        (vertical ? lines.verticalEnd : lines.horizontalEnd) = rgba(color);
    }
    if (start || !lines.gradPicked) {
        (vertical ? lines.verticalStartHex : lines.horizontalStartHex) = color.name();
        (vertical ? lines.verticalStart : lines.horizontalStart) = rgba(color);
    }
    panels.grad(Panels::Line);
}

void ColorPickers::colorGamePlayText(const QColor &color)
{
    const QString text = textStyle(Form::B, color);
    const bool matchAlone = board.panelWidgets.isChecked("matchThisCm");
    if (matchAlone || !board.panelWidgets.isChecked("yourEntryCm"))
        board.looks.matchTextStyle = text;
    if (!matchAlone)
        board.looks.userTextStyle = text;
    panels.dressGamePlayTexts();
    panels.dressTextSwatches();
}

void ColorPickers::colorShadows(int number, const QColor &color)
{
    for (const QString &box : shadowBoxes(number)) {
        if (!board.panelWidgets.isChecked(box))
            continue;
        wear(board.panelWidgets.find(box + "Display"), "background-color: " + color.name() + ";");
        emit shadowColored(box, color.name());
    }
}

// ---- OK and Cancel

void ColorPickers::accepted(int number)
{
    picker(number).accepted = true;
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
    case 6:
        if (dialog(6).currentColor() != Qt::white)
            panels.grad(Panels::Keypress);
        break;
    case 15:
    case 16:
    case 19:
    case 25:
        dressHighlight();
        break;
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

void ColorPickers::dressHighlight()
{
    highlights.dressButton();
    if (board.game.goldHighFlag)
        highlights.goldHighOn();
}

void ColorPickers::rejected(int number)
{
    // The dialog tells of the change, and the colour goes where the preview went.
    if (number != 23)
        dialog(number).setCurrentColor(picker(number).saved);
    allRise();
    switch (number) {
    case 1:
        panels.bgColorLoops();
        feedback.allChangeColorBack();
        break;
    case 2:
        feedback.allChangeColorBack();
        break;
    case 3:
        panels.bgColorLoops();
        panels.dressKeySamples();
        panels.dressKeyCharacters(true);
        feedback.allChangeColorBack();
        break;
    case 11:
        instructor.set_dem_StyleSheet();
        break;
    case 23:
        paintPickerOpen = false;
        break;
    case 24:
        paintGradPickerOpen = false;
        break;
    default:
        break;
    }
    if (!picker(number).accepted)
        undoGradient(number);
    if (contains(focusAfterCancel, number))
        Sequence::after(focusMs, this, [this] { emit closed(); });
}

// A picker that never was accepted leaves a flat look. Where a row borrows from another
// colour or rebuilds another look, that is wanted.
void ColorPickers::undoGradient(int number)
{
    Looks &looks = board.looks;
    const LookPickers *own = lookOf(number);
    switch (number) {
    case 13:
        wear(board.ui.wallpaper, " background-color:  #E0E0E0; border:none;");
        break;
    case 14:
        if (panels.worksOnBorder(Panels::Key)) {
            looks.key.borderStart = looks.key.bgEnd;
            looks.key.borderStartHex = looks.key.borderEndHex;
        } else {
            looks.key.bgStart = looks.key.bgEnd;
            looks.key.bgStartHex = looks.key.bgEndHex;
        }
        panels.grad(Panels::Key);
        break;
    case 16:
        looks.highlight.bgStart = looks.highlight.bgEnd;
        break;
    case 17:
    case 18: {
        Look &look = panels.look(own->panel);
        if (panels.worksOnBorder(own->panel))
            look.borderStart = look.borderEnd;
        else
            look.bgStart = look.bgEnd;
        panels.grad(own->panel);
        break;
    }
    case 19:
    case 20:
        panels.look(own->panel).bgStart = panels.look(own->panel).bgEnd;
        panels.grad(own->panel);
        break;
    case 21:
        looks.lineHigh.horizontalEnd = " transparent";
        looks.lineHigh.horizontalStart = looks.lineHigh.horizontalEnd;
        panels.grad(Panels::Line);
        break;
    case 22:
        if (panels.worksOnBorder(Panels::Wallpaper))
            looks.wallpaper.borderStart = looks.finished.bgEnd;
        else
            looks.wallpaper.bgStart = looks.wallpaper.bgEnd;
        panels.grad(Panels::Key);
        break;
    case 24:
        looks.rainbow.bgStart = looks.rainbow.bgEnd;
        looks.rainbow.borderStart = looks.rainbow.borderEnd;
        panels.grad(Panels::Paint);
        break;
    default:
        break;
    }
}
