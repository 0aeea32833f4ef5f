#include "gradientpanels.h"

#include "board.h"
#include "dresser.h"
#include "mousetable.h"
#include "styletext.h"
#include "wear.h"

#include <QAbstractButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>

namespace {

constexpr int sliderEnd = 10; // px; a width slider at its end stands for any larger width
constexpr int stopEnd = 10;
constexpr int brushWidth = 3; // px

// "0", ".1" to ".9", "1"
QString stopText(int position)
{
    if (position == 0 || position == stopEnd)
        return QString::number(position / stopEnd);
    return "." + QString::number(position);
}

// -1 for what no slider has set
int stopPosition(const QString &text)
{
    for (int position = 0; position <= stopEnd; ++position) {
        if (text == stopText(position))
            return position;
    }
    return -1;
}

// The setting of a control without what it would set off.
template <class Control>
void setQuietly(Control *control, int value)
{
    const QSignalBlocker quiet(control);
    control->setValue(value);
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
    {"rainbowUppercase", Panels::Paint}, {"matchThisCm", Panels::GamePlay},
    {"yourEntryCm", Panels::GamePlay},   {"yourEntryCm_2", Panels::GamePlay},
};

const PanelRow &rowOf(Panels::Panel panel)
{
    const PanelRow *row = rows;
    while (row->panel != panel)
        ++row;
    return *row;
}

} // namespace

GradientPanels::GradientPanels(Board &usedBoard, Dresser &usedDresser)
    : board(usedBoard), dresser(usedDresser)
{}

void GradientPanels::attach(MouseTable &mouse)
{
    for (const PanelRow &row : rows)
        connectPanel(row, mouse);
    for (const auto &[button, panel] : onlySwatches) {
        connect(board.panelWidgets.button(button), &QAbstractButton::clicked, this,
                [this] { dressSwatches(); });
    }
    showLooks();
    dresser.previews();
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
            dresser.keys();
            dresser.finishedKeys();
        });
    }
    if (panel == Finished)
        connect(c.stop, &QSlider::sliderReleased, this, [this] { dresser.finishedKeys(); });
    controls.emplace(panel, c);
}

Look &GradientPanels::look(Panel panel) const
{
    return *lookIn(board.looks, panel);
}

Look *GradientPanels::lookIn(Looks &looks, Panel panel)
{
    switch (panel) {
    case Keypress:
        return &looks.keypress;
    case Mouseover:
        return &looks.mouseover;
    case Highlight:
        return &looks.highlight;
    case Finished:
        return &looks.finished;
    case Wallpaper:
        return &looks.wallpaper;
    case Paint:
        return &looks.rainbow;
    case GamePlay:
        return &looks.gamePlay;
    case Key:
    case Line:
        break;
    }
    return &looks.key;
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
    if (panel == Line) {
        buildLines();
        dresser.lines();
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
            board.looks.rainbow.bgStyle = target.bgStyle;
            board.paint.fillRainbowBg();
            board.looks.rainbow.borderStyle = target.borderStyle;
            board.paint.fillRainbowBorder();
        }
        dresser.keySamples();
        break;
    case Finished:
        dresser.finished();
        break;
    case Wallpaper:
        dresser.wallpaper();
        break;
    case GamePlay:
        putOnBoxes();
        break;
    default:
        dresser.sample(target);
        break;
    }
    dressSwatches(rowOf(panel));
}

// What is shown with Both is what either keeps.
void GradientPanels::buildLines()
{
    LineLook &lines = board.looks.lineHigh;
    if (worksOnVertical())
        lines.buildVertical(shape(Line));
    if (worksOnHorizontal())
        lines.buildHorizontal(shape(Line));
}

void GradientPanels::putOnBoxes()
{
    Looks &looks = board.looks;
    const bool withHeader = board.panelWidgets.isChecked("gamePlayCb");
    const auto putOn = [&](BoxLook &box) {
        box = {looks.gamePlay.bgStyle, looks.gamePlay.borderStyle, withHeader};
    };
    if (!board.panelWidgets.isChecked("yourEntryCm"))
        putOn(looks.matchBox);
    if (!board.panelWidgets.isChecked("matchThisCm"))
        putOn(looks.userBox);
    dresser.boxes();
}

// ---- the controls

void GradientPanels::shapeChosen(Panel panel)
{
    grad(panel);
    switch (panel) {
    case Key:
        dresser.keys();
        dresser.finishedKeys();
        break;
    case Keypress:
    case Finished:
        dresser.finishedKeys();
        break;
    case Highlight:
        dresser.highlight();
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
        dresser.keys();
    } else if (panel == Finished) {
        // Repainting the bar waits for the release, unless the stop of the other look is here:
        // an old trait.
        const QString &keyStop = board.looks.key.gradStop;
        if (keyStop == QLatin1String("1") || keyStop == QLatin1String(".1"))
            dresser.finishedKeys();
    }
}

void GradientPanels::widthChanged(Panel panel, int width)
{
    look(panel).borderWidth = QString::number(qBound(0, width, rowOf(panel).widest));
    showWidth(panel);
    grad(panel);
    if (panel == Key) {
        dresser.keys();
        dresser.highlight();
    }
}

void GradientPanels::showWidth(Panel panel)
{
    const Controls &c = of(panel);
    if (!c.width)
        return;
    const int px = look(panel).borderWidth.toInt();
    setQuietly(c.width, qMin(px, sliderEnd));
    setQuietly(c.spin, px);
}

void GradientPanels::giveBrushWidth()
{
    Look &brush = board.looks.rainbow;
    if (StyleText::borderWidth(brush.borderStyle) > 0)
        return;
    if (brush.borderWidth.toInt() == 0)
        brush.borderWidth = QString::number(brushWidth);
    brush.buildBorder();
    showWidth(Paint);
    dresser.sample(brush);
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
    if (panel == Key)
        dresser.keys();
    if (panel == Key || panel == Finished)
        dresser.finishedKeys();
    if (panel == Highlight)
        dresser.highlight();
}

void GradientPanels::showBackground(Panel panel)
{
    const Controls &c = of(panel);
    c.background->setChecked(true);
    c.shape->setValue(look(panel).bgShape);
    c.stop->setValue(look(panel).bgStopPos);
    // The brush's shape, on the stop slider: an old trait of a painted keyboard.
    if (panel == Key && board.paint.paintBackgroundOn)
        c.stop->setValue(board.looks.rainbow.bgShape);
    dressSwatches(rowOf(panel));
}

void GradientPanels::showBorder(Panel panel)
{
    const Controls &c = of(panel);
    Look &target = look(panel);
    c.border->setChecked(true);
    c.shape->setValue(target.borderShape);
    c.stop->setValue(target.borderStopPos);
    if (panel == Key && board.paint.paintBorderOn)
        c.spin->setValue(board.looks.rainbow.borderWidth.toInt());
    // A width that was set while the background was being worked on shows now.
    if (StyleText::borderWidth(target.borderStyle) != target.borderWidth.toInt())
        widthChanged(panel, target.borderWidth.toInt());
    dressSwatches(rowOf(panel));
}

void GradientPanels::showLooks()
{
    if (controls.empty())
        return;
    for (const PanelRow &row : rows) {
        const Panel panel = row.panel;
        const Controls &c = of(panel);
        if (panel == Line) {
            setQuietly(c.stop, stopPosition(board.looks.lineHigh.gradStop));
            continue;
        }
        const Look &shown = look(panel);
        const bool border = worksOnBorder(panel);
        setQuietly(c.shape, border ? shown.borderShape : shown.bgShape);
        setQuietly(c.stop, border ? shown.borderStopPos : shown.bgStopPos);
        showWidth(panel);
    }
    dressSwatches();
}

// ---- swatches

void GradientPanels::dressSwatches()
{
    for (const PanelRow &row : rows)
        dressSwatches(row);
    dressTextSwatches();
}

void GradientPanels::dressSwatches(const PanelRow &row)
{
    const Panel panel = row.panel;
    const bool hex = shape(panel) == GradientText::Radial;
    const auto wearColor = [this](const QString &name, const QString &color) {
        wear(board.panelWidgets.find(name),
             StyleText::isColor(color) ? "background-color: " + color + ";" : QString());
    };
    const auto show = [&](const QString &end, const QString &start) {
        wearColor(row.swatch, end);
        wearColor(QString("colorPickerGradBottom%1").arg(panel), start);
    };
    if (panel == Line) {
        const LineLook &lines = board.looks.lineHigh;
        if (worksOnVertical())
            show(lines.verticalEnd, lines.verticalStart);
        else
            show(lines.horizontalEnd, lines.horizontalStart);
        return;
    }
    const Look &shown = look(panel);
    if (worksOnBorder(panel))
        show(hex ? shown.borderEndHex : shown.borderEnd,
             hex ? shown.borderStartHex : shown.borderStart);
    else
        show(hex ? shown.bgEndHex : shown.bgEnd, hex ? shown.bgStartHex : shown.bgStart);
    if (panel == Paint) {
        for (const bool shifted : {false, true}) {
            if (board.panelWidgets.isChecked(shifted ? "rainbowUppercase" : "rainbowLowercase"))
                wearColor(row.swatch,
                          StyleText::textColor(board.looks.brush(shifted)).name(QColor::HexArgb));
        }
    }
    if (panel == GamePlay)
        dressTextSwatches();
}

void GradientPanels::dressTextSwatches()
{
    const Looks &looks = board.looks;
    const bool entry = board.panelWidgets.isChecked("yourEntryCm");
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
        {"colorPicker29", entry ? looks.userTextStyle : looks.matchTextStyle},
    };
    // "color: ...;" becomes "background-color: ...;"
    for (const auto &[name, text] : swatches)
        wear(board.panelWidgets.find(name), StyleText::textColor(text).isValid()
                                                ? QString("background-" + text.trimmed())
                                                : QString());
    for (const bool ofBoxes : {false, true})
        wear(board.panelWidgets.find(ofBoxes ? "colorPicker30" : "textShadowColorBox"),
             "background-color: " + board.shadows.picked(ofBoxes).colour + ";");
}
