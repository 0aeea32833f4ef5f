#include "gradientpanels.h"

#include "dresser.h"
#include "mousetable.h"
#include "optionforms.h"
#include "pickertable.h"
#include "styletext.h"
#include "ui_colormadness.h"
#include "ui_gameplaypanel.h"
#include "ui_linehighlightpanel.h"
#include "ui_lookpage.h"
#include "ui_shadowspanel.h"
#include "wardrobe.h"
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

GradientPanels::GradientPanels(Wardrobe &usedWardrobe, Dresser &usedDresser,
                               const OptionForms &optionForms, MouseTable &mouse)
    : wardrobe(usedWardrobe), dresser(usedDresser), forms(optionForms), controls(controlsOf(forms))
{
    for (int panel = 0; panel < panelCount; ++panel)
        connectPanel(static_cast<Panel>(panel), mouse);
    // Targets that the sliders do not follow.
    const Ui::colorMadnessPanel &c = *forms.colorMadness;
    const Ui::lineHighlightPanel &l = *forms.lines;
    const Ui::gamePlayPanel &g = *forms.gamePlay;
    for (QRadioButton *target :
         {forms.highlight->background, forms.highlight->border, c.rainbowLowercase,
          c.rainbowUppercase, l.lhVerticalRadio, l.lhHorizontalRadio, l.lhBothRadio, g.matchThisCm,
          g.yourEntryCm, g.yourEntryCm_2})
        connect(target, &QAbstractButton::clicked, this, [this] { dressSwatches(); });
    showLooks();
    dresser.previews();
}

std::array<GradientPanels::Controls, GradientPanels::panelCount>
GradientPanels::controlsOf(const OptionForms &forms)
{
    const Ui::colorMadnessPanel &c = *forms.colorMadness;
    const Ui::lineHighlightPanel &l = *forms.lines;
    const Ui::gamePlayPanel &g = *forms.gamePlay;
    std::array<Controls, panelCount> rows;
    const auto ofKey = [](const Ui::lookPage &page, int mainPicker, int gradientPicker) {
        return Controls{
            page.shape,
            page.stop,
            {page.shape0, page.shape1, page.shape2, page.shape3, page.shape4, page.shape5},
            page.swap,
            mainPicker,
            gradientPicker,
            page.background,
            page.border,
            page.width,
            page.spin,
            99};
    };
    rows[Key] = ofKey(*forms.keys, 3, 14);
    rows[Keypress] = ofKey(*forms.keypress, 6, 17);
    rows[Mouseover] = ofKey(*forms.mouseover, 9, 18);
    rows[Highlight] = ofKey(*forms.highlight, 16, 19);
    rows[Finished] = {
        c.hoSlider5,     c.slider5, {c.grad50, c.grad51, c.grad52, c.grad53, c.grad54, c.grad55},
        c.swapGradient5, 11,        20};
    rows[Line] = {
        l.hoSlider6,     l.slider6, {l.grad60, l.grad61, l.grad62, l.grad63, l.grad64, l.grad65},
        l.swapGradient6, 12,        21};
    // The width pair of the wallpaper has the number that the finished keys do not need.
    rows[Wallpaper] = {c.hoSlider7,
                       c.slider7,
                       {c.grad70, c.grad71, c.grad72, c.grad73, c.grad74, c.grad75},
                       c.swapGradient7,
                       13,
                       22,
                       c.backgroundWallpaper,
                       c.borderWallpaper,
                       c.sliderBorderWidth5,
                       c.spinBox5,
                       1500};
    rows[Paint] = {c.hoSlider8,
                   c.slider8,
                   {c.grad80, c.grad81, c.grad82, c.grad83, c.grad84, c.grad85},
                   c.swapGradient8,
                   23,
                   24,
                   c.rainbowBackground,
                   c.rainbowBorder,
                   c.sliderBorderWidth8,
                   c.spinBox8,
                   99};
    rows[GamePlay] = {g.hoSlider27,
                      g.slider27,
                      {g.grad270, g.grad271, g.grad272, g.grad273, g.grad274, g.grad275},
                      g.swapGradient27,
                      27,
                      28,
                      g.backgroundGamePlay,
                      g.borderGamePlay,
                      g.sliderBorderWidth27,
                      g.spinBox27,
                      199};
    return rows;
}

void GradientPanels::connectPanel(Panel panel, MouseTable &mouse)
{
    const Controls &c = of(panel);
    connect(c.shape, &QSlider::valueChanged, this, [this, panel] { shapeChosen(panel); });
    connect(c.stop, &QSlider::valueChanged, this,
            [this, panel](int position) { stopMoved(panel, position); });
    for (size_t shape = 0; shape < c.boxes.size(); ++shape) {
        mouse.add(c.boxes[shape], {{}, {}, [this, panel, shape = int(shape), slider = c.shape] {
                                       if (slider->value() == shape)
                                           shapeChosen(panel);
                                       else
                                           slider->setValue(shape);
                                   }});
    }
    connect(c.swap, &QAbstractButton::clicked, this, [this, panel] { swapColors(panel); });
    // The Highlight's controls do not follow its buttons. Those of Paint open a picker.
    if (c.background && panel != Highlight && panel != Paint) {
        connect(c.background, &QAbstractButton::clicked, this,
                [this, panel] { showBackground(panel); });
        connect(c.border, &QAbstractButton::clicked, this, [this, panel] { showBorder(panel); });
    }
    if (c.width) {
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
}

Look &GradientPanels::look(Panel panel) const
{
    return *lookIn(wardrobe.looks, panel);
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
    return forms.lines->lhVerticalRadio->isChecked() || forms.lines->lhBothRadio->isChecked();
}

bool GradientPanels::worksOnHorizontal() const
{
    return forms.lines->lhHorizontalRadio->isChecked() || forms.lines->lhBothRadio->isChecked();
}

bool GradientPanels::worksOnMatch() const
{
    return !forms.gamePlay->yourEntryCm->isChecked();
}

bool GradientPanels::worksOnUser() const
{
    return !forms.gamePlay->matchThisCm->isChecked();
}

bool GradientPanels::paintsText() const
{
    return forms.colorMadness->rainbowLowercase->isChecked() || paintsUppercase();
}

bool GradientPanels::paintsUppercase() const
{
    return forms.colorMadness->rainbowUppercase->isChecked();
}

// ---- rebuilding

void GradientPanels::grad(Panel panel)
{
    if (panel == Line) {
        buildLines();
        dresser.lines();
        dressSwatches(panel);
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
            wardrobe.looks.rainbow.bgStyle = target.bgStyle;
            wardrobe.paint.fillRainbowBg();
            wardrobe.looks.rainbow.borderStyle = target.borderStyle;
            wardrobe.paint.fillRainbowBorder();
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
    dressSwatches(panel);
}

// What is shown with Both is what either keeps.
void GradientPanels::buildLines()
{
    LineLook &lines = wardrobe.looks.lineHigh;
    if (worksOnVertical())
        lines.buildVertical(shape(Line));
    if (worksOnHorizontal())
        lines.buildHorizontal(shape(Line));
}

void GradientPanels::putOnBoxes()
{
    Looks &looks = wardrobe.looks;
    const bool withHeader = forms.gamePlay->gamePlayCb->isChecked();
    const auto putOn = [&](BoxLook &box) {
        box = {looks.gamePlay.bgStyle, looks.gamePlay.borderStyle, withHeader};
    };
    if (worksOnMatch())
        putOn(looks.matchBox);
    if (worksOnUser())
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
        wardrobe.looks.lineHigh.gradStop = stopText(position);
    } else {
        Look &target = look(panel);
        target.gradStop = stopText(position);
        if (worksOnBorder(panel))
            target.borderStopPos = position;
        else if (panel != Paint || of(panel).background->isChecked())
            target.bgStopPos = position;
    }
    grad(panel);
    if (panel == Key) {
        dresser.keys();
    } else if (panel == Finished) {
        // While the slider is dragged, repainting the bar waits for the release, unless the stop of
        // the other look is here: an old trait.
        const QString &keyStop = wardrobe.looks.key.gradStop;
        if (!of(panel).stop->isSliderDown() || keyStop == QLatin1String("1") ||
            keyStop == QLatin1String(".1"))
            dresser.finishedKeys();
    }
}

void GradientPanels::widthChanged(Panel panel, int width)
{
    look(panel).borderWidth = QString::number(qBound(0, width, of(panel).widest));
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
    Look &brush = wardrobe.looks.rainbow;
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
        LineLook &lines = wardrobe.looks.lineHigh;
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
    if (panel == Key && wardrobe.paint.isOn(PaintTables::Background))
        c.stop->setValue(wardrobe.looks.rainbow.bgShape);
    dressSwatches(panel);
}

void GradientPanels::showBorder(Panel panel)
{
    const Controls &c = of(panel);
    Look &target = look(panel);
    c.border->setChecked(true);
    c.shape->setValue(target.borderShape);
    c.stop->setValue(target.borderStopPos);
    if (panel == Key && wardrobe.paint.isOn(PaintTables::Border))
        c.spin->setValue(wardrobe.looks.rainbow.borderWidth.toInt());
    // A width that was set while the background was being worked on shows now.
    if (StyleText::borderWidth(target.borderStyle) != target.borderWidth.toInt())
        widthChanged(panel, target.borderWidth.toInt());
    dressSwatches(panel);
}

void GradientPanels::showLooks()
{
    for (int each = 0; each < panelCount; ++each) {
        const auto panel = static_cast<Panel>(each);
        const Controls &c = of(panel);
        if (panel == Line) {
            setQuietly(c.stop, stopPosition(wardrobe.looks.lineHigh.gradStop));
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

QWidget *GradientPanels::swatch(int picker) const
{
    return PickerRow::of(picker).swatch(forms);
}

void GradientPanels::dressSwatches()
{
    for (int panel = 0; panel < panelCount; ++panel)
        dressSwatches(static_cast<Panel>(panel));
    dressTextSwatches();
}

void GradientPanels::dressSwatches(Panel panel)
{
    const Controls &c = of(panel);
    const auto wearColor = [this](int picker, const QString &color) {
        wear(swatch(picker),
             StyleText::isColor(color) ? "background-color: " + color + ";" : QString());
    };
    const auto show = [&](const QString &end, const QString &start) {
        wearColor(c.mainPicker, end);
        wearColor(c.gradientPicker, start);
    };
    if (panel == Line) {
        const LineLook &lines = wardrobe.looks.lineHigh;
        if (worksOnVertical())
            show(lines.verticalEnd, lines.verticalStart);
        else
            show(lines.horizontalEnd, lines.horizontalStart);
        return;
    }
    const Look &shown = look(panel);
    const bool hex = shape(panel) == GradientText::Radial;
    if (worksOnBorder(panel))
        show(hex ? shown.borderEndHex : shown.borderEnd,
             hex ? shown.borderStartHex : shown.borderStart);
    else
        show(hex ? shown.bgEndHex : shown.bgEnd, hex ? shown.bgStartHex : shown.bgStart);
    if (panel == Paint && paintsText())
        wearColor(
            c.mainPicker,
            StyleText::textColor(wardrobe.looks.brush(paintsUppercase())).name(QColor::HexArgb));
    if (panel == GamePlay)
        dressTextSwatches();
}

void GradientPanels::dressTextSwatches()
{
    Looks &looks = wardrobe.looks;
    // "color: ...;" becomes "background-color: ...;"
    const auto show = [this](int picker, const QString &text) {
        wear(swatch(picker), StyleText::textColor(text).isValid()
                                 ? QString("background-" + text.trimmed())
                                 : QString());
    };
    for (int number = 1; number <= PickerRow::count; ++number) {
        const PickerRow &row = PickerRow::of(number);
        if (row.role == PickerRow::Character)
            show(number, row.fragment(looks));
        else if (row.role == PickerRow::BoxText)
            show(number, worksOnMatch() ? looks.matchTextStyle : looks.userTextStyle);
        else if (row.role == PickerRow::Shadow)
            wear(swatch(number), "background-color: " +
                                     wardrobe.shadows.picked(PickerRow::colorsBoxes(number)).color +
                                     ";");
    }
}
