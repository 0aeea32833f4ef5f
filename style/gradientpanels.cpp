#include "gradientpanels.h"

#include "board.h"
#include "instructor.h"
#include "keyfeedback.h"
#include "matchboxes.h"
#include "mousetable.h"
#include "targethighlights.h"
#include "ui_tambrel.h"
#include "wear.h"

#include <QAbstractButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>

namespace {

constexpr int sliderEnd = 10; // px; a width slider at its end stands for any larger width
constexpr int stopEnd = 10;
constexpr const char *clear = "background-color: transparent;";

// "0", ".1" to ".9", "1"
QString stopText(int position)
{
    if (position == 0 || position == stopEnd)
        return QString::number(position / stopEnd);
    return "." + QString::number(position);
}

} // namespace

struct PanelRow
{
    GradientPanels::Panel panel;
    const char *background; // radio buttons
    const char *border;
    int widthNumber;    // in the names of the width pair, 0: none
    int widest;         // px
    const char *swatch; // of the main colour
};

namespace {

using Panels = GradientPanels;

constexpr PanelRow rows[] = {
    {Panels::Key, "backgroundLeft", "borderLeft", 1, 99, "colorPickerBg"},
    {Panels::Keypress, "backgroundCenter", "borderCenter", 2, 99, "colorPickerKpBg"},
    {Panels::Mouseover, "backgroundRight", "borderRight", 3, 99, "colorPickerMoBg"},
    {Panels::Highlight, "backgroundHi", "borderHi", 4, 99, "colorPickerHiBg"},
    {Panels::Finished, nullptr, nullptr, 0, 0, "colorPickerFBg"},
    {Panels::Line, nullptr, nullptr, 0, 0, "colorPickerKeyboard"},
    // The width pair of the wallpaper has the number that the finished keys do not need.
    {Panels::Wallpaper, "backgroundWallpaper", "borderWallpaper", 5, 1500, "colorPickerWallpaper"},
    {Panels::Paint, "rainbowBackground", "rainbowBorder", 8, 99, "colorPickerRainbowBg"},
    {Panels::GamePlay, "backgroundGamePlay", "borderGamePlay", 27, 199, "colorPicker27"},
};

// The targets that the sliders do not follow.
constexpr std::pair<const char *, Panels::Panel> onlySwatches[] = {
    {"backgroundHi", Panels::Highlight}, {"borderHi", Panels::Highlight},
    {"lhVerticalRadio", Panels::Line},   {"lhHorizontalRadio", Panels::Line},
    {"lhBothRadio", Panels::Line},       {"rainbowLowercase", Panels::Paint},
    {"rainbowUppercase", Panels::Paint},
};

const PanelRow &rowOf(Panels::Panel panel)
{
    const PanelRow *row = rows;
    while (row->panel != panel)
        ++row;
    return *row;
}

} // namespace

GradientPanels::GradientPanels(Board &usedBoard, KeyFeedback &keyFeedback, MatchBoxes &matchBoxes,
                               Instructor &virtualInstructor, TargetHighlights &targetHighlights)
    : board(usedBoard),
      feedback(keyFeedback),
      boxes(matchBoxes),
      instructor(virtualInstructor),
      highlights(targetHighlights)
{}

void GradientPanels::attach(MouseTable &mouse)
{
    for (const PanelRow &row : rows)
        connectPanel(row, mouse);
    for (const auto &[button, panel] : onlySwatches) {
        connect(board.panelWidgets.button(button), &QAbstractButton::clicked, this,
                [this, panel = panel] { dressSwatches(rowOf(panel)); });
    }
    dressPreviews();
}

void GradientPanels::connectPanel(const PanelRow &row, MouseTable &mouse)
{
    const Panel panel = row.panel;
    const PanelWidgets &widgets = board.panelWidgets;
    Controls c;
    c.shape = widgets.find<QSlider>("hoSlider" + QString::number(panel));
    c.stop = widgets.find<QSlider>("slider" + QString::number(panel));
    connect(c.shape, &QSlider::valueChanged, this, [this, panel] { shapeChosen(panel); });
    connect(c.stop, &QSlider::valueChanged, this,
            [this, panel](int position) { stopMoved(panel, position); });
    for (int shape = 0; shape < GradientText::shapeCount; ++shape) {
        QWidget *box = widgets.find(QString("grad%1%2").arg(panel).arg(shape));
        mouse.add(box, {{}, {}, [this, panel, shape, slider = c.shape] {
                            if (slider->value() == shape)
                                shapeChosen(panel);
                            else
                                slider->setValue(shape);
                        }});
    }
    auto *swap = widgets.find<QAbstractButton>("swapGradient" + QString::number(panel));
    connect(swap, &QAbstractButton::clicked, this, [this, panel] { swapColors(panel); });

    if (row.background) {
        c.background = widgets.button(row.background);
        c.border = widgets.button(row.border);
        // The Highlight's controls do not follow its buttons. Those of Paint open a picker.
        if (panel != Highlight && panel != Paint) {
            connect(c.background, &QAbstractButton::clicked, this,
                    [this, panel] { showBackground(panel); });
            connect(c.border, &QAbstractButton::clicked, this,
                    [this, panel] { showBorder(panel); });
        }
    }
    if (row.widthNumber) {
        c.width = widgets.find<QSlider>("sliderBorderWidth" + QString::number(row.widthNumber));
        c.spin = widgets.find<QSpinBox>("spinBox" + QString::number(row.widthNumber));
        const auto changed = [this, panel](int width) { widthChanged(panel, width); };
        connect(c.width, &QSlider::valueChanged, this, changed);
        connect(c.spin, QOverload<int>::of(&QSpinBox::valueChanged), this, changed);
        if (panel == Paint) // a click into it takes the keyboard until the number is done
            connect(c.spin, &QSpinBox::editingFinished, c.spin, &QWidget::clearFocus);
        else
            mouse.add(c.spin, {[spin = c.spin] { spin->setFocus(Qt::MouseFocusReason); },
                               [spin = c.spin] { spin->clearFocus(); },
                               {}});
    }
    if (panel == Key) {
        connect(c.stop, &QSlider::sliderReleased, this, [this] {
            dressKeys();
            dressBar();
            bgColorLoops();
        });
    }
    if (panel == Finished)
        connect(c.stop, &QSlider::sliderReleased, this, [this] { bgColorLoops(); });
    controls.emplace(panel, c);
}

Look &GradientPanels::look(Panel panel) const
{
    Looks &looks = board.looks;
    switch (panel) {
    case Keypress:
        return looks.keypress;
    case Mouseover:
        return looks.mouseover;
    case Highlight:
        return looks.highlight;
    case Finished:
        return looks.finished;
    case Wallpaper:
        return looks.wallpaper;
    case Paint:
        return looks.rainbow;
    case GamePlay:
        return looks.gamePlay;
    case Key:
    case Line:
        break;
    }
    return looks.key;
}

bool GradientPanels::worksOnBorder(Panel panel) const
{
    const QAbstractButton *border = of(panel).border;
    return border && border->isChecked();
}

int GradientPanels::shape(Panel panel) const
{
    return of(panel).shape->value();
}

bool GradientPanels::worksOnVertical() const
{
    return board.panelWidgets.isChecked("lhVerticalRadio") ||
           board.panelWidgets.isChecked("lhBothRadio");
}

bool GradientPanels::worksOnHorizontal() const
{
    return board.panelWidgets.isChecked("lhHorizontalRadio") ||
           board.panelWidgets.isChecked("lhBothRadio");
}

// ---- rebuilding

void GradientPanels::grad(Panel panel)
{
    Looks &looks = board.looks;
    if (panel == Line) {
        buildLines();
        dressSwatches(rowOf(panel));
        return;
    }
    Look &target = look(panel);
    if (worksOnBorder(panel)) {
        target.borderShape = shape(panel);
        target.buildBorder();
    } else {
        target.bgShape = shape(panel);
        target.buildBackground();
    }

    switch (panel) {
    case Key:
        // The repeating shape takes the place of whatever was painted.
        if (shape(Key) == GradientText::RepeatingRadial) {
            looks.rainbow.bgStyle = looks.key.bgStyle;
            board.paint.fillRainbowBg();
            looks.rainbow.borderStyle = looks.key.borderStyle;
            board.paint.fillRainbowBorder();
        }
        dressKeySamples();
        break;
    case Keypress:
        dressSample("demoLetterCenterBG", target.bgStyle + target.borderStyle);
        break;
    case Mouseover:
        dressSample("demoLetterRightBg", target.bgStyle + target.borderStyle);
        break;
    case Highlight:
        dressSample("demoLetterHiBg", target.bgStyle + target.borderStyle);
        dressSample("demoLetter4Bg", target.bgStyle + target.borderStyle);
        break;
    case Finished:
        dressSample("demoLetterFinishedBg", target.bgStyle);
        break;
    case Wallpaper:
        wear(board.ui.wallpaper, target.bgStyle + target.borderStyle);
        break;
    case Paint:
        if (board.panelWidgets.isChecked("rainbowLowercase"))
            looks.key.lowerTextStyle = "color: " + target.bgEnd + ";";
        if (board.panelWidgets.isChecked("rainbowUppercase"))
            looks.key.upperTextStyle = "color: " + target.bgEnd + ";";
        dressTextSwatches();
        dressSample("demoLetter4Bg", target.bgStyle + target.borderStyle);
        dressCharacter("demoLetter4LowerCase", looks.key.lowerTextStyle, false);
        dressCharacter("demoLetter4English", looks.key.upperTextStyle, true);
        break;
    case GamePlay:
        dressGamePlay();
        break;
    case Line:
        break;
    }
    dressSwatches(rowOf(panel));
}

// With Both, the horizontal lines take the colours of the vertical ones: a picker writes
// only those.
void GradientPanels::buildLines()
{
    LineLook &lines = board.looks.lineHigh;
    const bool hex = shape(Line) == GradientText::Radial;
    const GradientText::Stops vertical{hex ? lines.verticalStartHex : lines.verticalStart,
                                       lines.gradStop,
                                       hex ? lines.verticalEndHex : lines.verticalEnd};
    const GradientText::Stops horizontal{hex ? lines.horizontalStartHex : lines.horizontalStart,
                                         lines.gradStop,
                                         hex ? lines.horizontalEndHex : lines.horizontalEnd};
    if (worksOnVertical())
        lines.verticalStyle = GradientText::background(shape(Line), vertical);
    if (worksOnHorizontal())
        lines.horizontalStyle =
            GradientText::background(shape(Line), worksOnVertical() ? vertical : horizontal);
    highlights.dressLines();
    for (const char *name : {"lhVertDisplay", "lhVertDisplay_2"})
        wear(board.panelWidgets.find(name), lines.verticalStyle);
    for (const char *name : {"liHordisplay", "liHordisplay_3"})
        wear(board.panelWidgets.find(name), lines.horizontalStyle);
}

void GradientPanels::dressGamePlay()
{
    const QString sheet = board.looks.gamePlayBackground();
    const bool header = board.panelWidgets.isChecked("gamePlayCb");
    if (!board.panelWidgets.isChecked("yourEntryCm")) {
        wear(board.ui.leMatchBg, sheet);
        if (header)
            wear(board.panelWidgets.find("matchThisBg"), sheet);
    }
    if (!board.panelWidgets.isChecked("matchThisCm")) {
        wear(board.ui.leUserBg, sheet);
        if (header)
            wear(board.panelWidgets.find("yourEntryBg"), sheet);
    }
}

// Both headers wear the color of Match This, also where Your Entry is colored.
void GradientPanels::dressGamePlayTexts()
{
    const bool headers = board.panelWidgets.isChecked("gamePlayCb");
    const bool matchAlone = board.panelWidgets.isChecked("matchThisCm");
    const bool entryAlone = board.panelWidgets.isChecked("yourEntryCm");
    const QString sheet = " font: 12pt 'MS Shell Dlg 2';" + board.looks.matchTextStyle;
    if (!entryAlone) {
        boxes.set_Match_StyleSheet();
        if (headers)
            wear(board.ui.matchThis, clear + QString(matchAlone ? " " : "") + sheet);
    }
    if (!matchAlone) {
        boxes.set_User_StyleSheet();
        if (headers)
            wear(board.ui.yourEntry, clear + sheet);
    }
}

// ---- the controls

void GradientPanels::shapeChosen(Panel panel)
{
    grad(panel);
    switch (panel) {
    case Key:
        dressKeys();
        dressBar();
        bgColorLoops();
        break;
    case Keypress:
        bgColorLoops();
        break;
    case Highlight:
        goldHighAgain();
        break;
    case Finished:
        finishedAgain();
        goldHighAgain();
        break;
    default:
        break;
    }
}

void GradientPanels::stopMoved(Panel panel, int position)
{
    if (position < 0 || position > stopEnd)
        return;
    if (panel == Line) {
        board.looks.lineHigh.gradStop = stopText(position);
    } else {
        Look &target = look(panel);
        target.gradStop = stopText(position);
        if (worksOnBorder(panel))
            target.borderStopPos = position;
        else if (panel != Paint || board.panelWidgets.isChecked("rainbowBackground"))
            target.bgStopPos = position;
    }
    grad(panel);
    if (panel == Key) {
        dressKeys();
        dressBar();
    } else if (panel == Finished) {
        instructor.set_dem_StyleSheet();
        // The stop of the other look decides, which is wanted.
        const QString &keyStop = board.looks.key.gradStop;
        if (keyStop == QLatin1String("1") || keyStop == QLatin1String(".1"))
            finishedAgain();
    }
}

void GradientPanels::widthChanged(Panel panel, int width)
{
    const int px = qBound(0, width, rowOf(panel).widest);
    look(panel).borderWidth = QString::number(px);
    const Controls &c = of(panel);
    {
        const QSignalBlocker quietSlider(c.width), quietSpin(c.spin);
        c.width->setValue(qMin(px, sliderEnd));
        c.spin->setValue(px);
    }
    if (panel == Paint)
        rainbowBorderWidthValue = px;
    grad(panel);
    if (panel == Paint) {
        dressKeySamples();
    } else if (panel == Key) {
        dressKeys();
        goldHighAgain();
    }
}

void GradientPanels::swapColors(Panel panel)
{
    if (panel == Line) {
        LineLook &lines = board.looks.lineHigh;
        if (worksOnVertical()) {
            lines.verticalStart.swap(lines.verticalEnd);
            lines.verticalStartHex.swap(lines.verticalEndHex);
        }
        if (worksOnHorizontal()) {
            lines.horizontalStart.swap(lines.horizontalEnd);
            lines.horizontalStartHex.swap(lines.horizontalEndHex);
        }
    } else if (worksOnBorder(panel)) {
        Look &target = look(panel);
        target.borderStart.swap(target.borderEnd);
        target.borderStartHex.swap(target.borderEndHex);
        if (panel == Keypress)
            target.borderStartHex = target.bgEnd; // borrowed from the background, as it stands
    } else {
        Look &target = look(panel);
        target.bgStart.swap(target.bgEnd);
        target.bgStartHex.swap(target.bgEndHex);
    }
    grad(panel);
    if (panel == Key) {
        dressKeys();
        dressBar();
        bgColorLoops();
    } else if (panel == Finished) {
        instructor.set_dem_StyleSheet();
        bgColorLoops();
    }
}

void GradientPanels::showBackground(Panel panel)
{
    const Controls &c = of(panel);
    c.background->setChecked(true);
    c.shape->setValue(look(panel).bgShape);
    c.stop->setValue(look(panel).bgStopPos);
    // Its shape, on the stop slider: so it has always been.
    if (panel == Key && board.paint.paintBackgroundOn)
        c.stop->setValue(board.looks.rainbow.bgShape);
    dressSwatches(rowOf(panel));
}

void GradientPanels::showBorder(Panel panel)
{
    const Controls &c = of(panel);
    c.border->setChecked(true);
    c.shape->setValue(look(panel).borderShape);
    c.stop->setValue(look(panel).borderStopPos);
    if (panel == Key && board.paint.paintBorderOn) {
        c.width->setValue(rainbowBorderWidthValue);
        c.spin->setValue(rainbowBorderWidthValue);
    }
    dressSwatches(rowOf(panel));
}

// ---- repainting

void GradientPanels::dressKeys()
{
    const Looks &looks = board.looks;
    for (int pile = 0; pile < Keys::pileCount; ++pile)
        wear(board.widgets.keyBgList[pile],
             pile < Keys::capCount ? looks.keyBackground(looks.key) : looks.controlKeyBackground());
}

void GradientPanels::dressBar()
{
    for (QWidget *cell : qAsConst(board.widgets.alphabetBgList))
        wear(cell, board.looks.barBackground(board.looks.key.bgStyle));
}

void GradientPanels::dressKeySamples()
{
    const Looks &looks = board.looks;
    dressSample("demoLetter1Bg", looks.key.bgStyle + looks.key.borderStyle);
    dressSampleKeys(looks.keyBackground(looks.key));
}

void GradientPanels::dressSampleKeys(const QString &background)
{
    for (const char *name : {"aKeysMap5", "linePosition1BG", "linePosition2BG"})
        wear(board.panelWidgets.find(name), background);
}

void GradientPanels::dressSampleKeys(const QString &text, bool shifted)
{
    const char *const samples[2][3] = {
        {"aKeysMap3", "linePosition1Lowercase", "linePosition2Lowercase"},
        {"aKeysMap4", "linePosition1Uppercase", "linePosition2Uppercase"}};
    for (const char *name : samples[shifted])
        wear(board.panelWidgets.find(name), clear + text + board.looks.font(shifted));
}

void GradientPanels::shapeOfKeysChanged()
{
    dressPreviews();
    if (controls.empty())
        return;
    dressSampleKeys(board.paint.restKeyBackground(0));
    for (const bool shifted : {false, true})
        dressSampleKeys(board.paint.restText(Keys::keyOfCap(1, shifted)), shifted);
}

void GradientPanels::dressKeyCharacters(bool shifted)
{
    const Looks &looks = board.looks;
    const QString &text = looks.key.text(shifted);
    dressCharacter(shifted ? "demoLetter1_Uppercase" : "demoLetter1_Lowercase", text, shifted);
    dressSampleKeys(text, shifted);
    if (!shifted)
        dressCharacter("demoLetter4LowerCase", text, false);
}

// A swatch shows the colour that its picker changes now.
void GradientPanels::dressSwatches(const PanelRow &row)
{
    const Panel panel = row.panel;
    const bool hex = shape(panel) == GradientText::Radial;
    const auto show = [&](const QString &end, const QString &start) {
        wear(board.panelWidgets.find(row.swatch), "background-color: " + end + ";");
        wear(board.panelWidgets.find(QString("colorPickerGradBottom%1").arg(panel)),
             "background-color: " + start + ";");
    };
    if (panel == Line) {
        const LineLook &lines = board.looks.lineHigh;
        if (worksOnVertical())
            show(hex ? lines.verticalEndHex : lines.verticalEnd,
                 hex ? lines.verticalStartHex : lines.verticalStart);
        else
            show(hex ? lines.horizontalEndHex : lines.horizontalEnd,
                 hex ? lines.horizontalStartHex : lines.horizontalStart);
        return;
    }
    const Look &shown = look(panel);
    if (worksOnBorder(panel))
        show(hex ? shown.borderEndHex : shown.borderEnd,
             hex ? shown.borderStartHex : shown.borderStart);
    else
        show(hex ? shown.bgEndHex : shown.bgEnd, hex ? shown.bgStartHex : shown.bgStart);
}

void GradientPanels::dressSample(const char *name, const QString &sheet)
{
    wear(board.panelWidgets.find(name), board.looks.demoRadiusStyle + sheet);
}

void GradientPanels::dressCharacter(const char *name, const QString &text, bool shifted)
{
    const Looks &looks = board.looks;
    wear(board.panelWidgets.find(name),
         clear + text + (shifted ? looks.upperFontSizeStyle : looks.lowerFontSizeStyle) +
             looks.font(shifted));
}

void GradientPanels::dressPreviews()
{
    if (controls.empty())
        return;
    const Looks &looks = board.looks;
    for (const PanelRow &row : rows)
        dressSwatches(row);
    dressTextSwatches();
    dressKeySamples();
    const auto background = [this](const char *name, const Look &shown) {
        dressSample(name, shown.bgStyle + shown.borderStyle);
    };
    background("demoLetterCenterBG", looks.keypress);
    background("demoLetterRightBg", looks.mouseover);
    background("demoLetterHiBg", looks.highlight);
    background("demoLetterFinishedBg", looks.finished);
    background("demoLetter4Bg", looks.rainbow);
    dressKeyCharacters(true);
    dressKeyCharacters(false);
    dressCharacter("demoLetter1", looks.keypress.upperTextStyle, true);
    dressCharacter("demoLetter3", looks.keypress.lowerTextStyle, false);
    dressCharacter("demoLetter1_3", looks.mouseover.upperTextStyle, true);
    dressCharacter("demoLetter3_3", looks.mouseover.lowerTextStyle, false);
    dressCharacter("demoLetterHiE", looks.highlight.upperTextStyle, true);
    dressCharacter("demoLetterHiLowD", looks.highlight.lowerTextStyle, false);
    dressCharacter("demoLetterFinishedUppercase", looks.finishedTextStyle, true);
    dressCharacter("demoLetterFinishedLowercase", looks.finishedTextStyle, false);
    dressCharacter("demoLetter4English", looks.key.upperTextStyle, true);
}

void GradientPanels::dressTextSwatches()
{
    const Looks &looks = board.looks;
    const std::pair<const char *, const QString &> swatches[] = {
        {"colorPickerE", looks.key.upperTextStyle},
        {"colorPickerD", looks.key.lowerTextStyle},
        {"colorPickerKpE", looks.keypress.upperTextStyle},
        {"colorPickerKpD", looks.keypress.lowerTextStyle},
        {"colorPickerMoE", looks.mouseover.upperTextStyle},
        {"colorPickerMoD", looks.mouseover.lowerTextStyle},
        {"colorPickerHiE", looks.highlight.upperTextStyle},
        {"colorPickerHiD", looks.highlight.lowerTextStyle},
        {"colorPickerF", looks.finishedTextStyle},
        {"colorPicker29", looks.matchTextStyle},
    };
    // "color: ...;" becomes "background-color: ...;"
    for (const auto &[name, text] : swatches)
        wear(board.panelWidgets.find(name),
             text.isEmpty() ? QString() : QString("background-" + text.trimmed()));
}

void GradientPanels::bgColorLoops()
{
    finishedAgain();
    goldHighAgain();
}

void GradientPanels::finishedAgain()
{
    if (board.game.correctCount > 0 && board.choice.direction() != Direction::Random)
        feedback.allChangeColorBack();
}

void GradientPanels::goldHighAgain()
{
    if (board.game.goldHighFlag)
        highlights.goldHighOn();
}
