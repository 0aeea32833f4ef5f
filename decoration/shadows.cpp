#include "shadows.h"

#include "board.h"
#include "dresser.h"
#include "gradientpanels.h"
#include "mousetable.h"
#include "ui_tambrel.h"
#include "wear.h"

#include <QGraphicsDropShadowEffect>
#include <QSlider>

namespace {

using Group = ShadowFields::Group;

struct Row
{
    Group group;
    const char *slider;
    const char *corner; // what follows "topLeft", "topLeftLab" and so on
};

constexpr Row rows[] = {
    {Group::Tambrel, "sliderTextShadowTamKey", "TamKey"},
    {Group::TambrelLow, "sliderTextShadowTamLowKey", "TamLowKey"},
    {Group::TambrelAbc, "sliderTextShadowTamAbc", "TamAbc"},
    {Group::TambrelLowAbc, "sliderTextShadowTamLowAbc", "TamLowAbc"},
    {Group::TambrelAbcBg, "sliderTextShadowAbcBg", "Abc"},
    {Group::TambrelLowAbcBg, "sliderTextShadowLowAbcBg", "LowAbc"},
    {Group::Keys, "sliderTextShadowKeyboardBg", ""},
    {Group::Keys_2, "sliderTextShadowKeyboardBg_2", "_2"},
    {Group::GamePlayText, "sliderTsGpText", "GpText"},
    {Group::GamePlayBg, "sliderTsGpBg", "GpBg"},
    {Group::GamePlayText_2, "sliderTsGpText_2", "GpText_2"},
    {Group::GamePlayBg_2, "sliderTsGpBg_2", "GpBg_2"},
};
static_assert(std::size(rows) == ShadowFields::groupCount);

constexpr const char *checkBox(Group group)
{
    return ShadowFields::checkBoxes[group];
}

// Clearing switches these off; the shifted texts of the bar are not among them, so theirs
// stays.
constexpr Group cleared[] = {Group::TambrelLowAbc,  Group::Tambrel,         Group::TambrelLow,
                             Group::TambrelAbcBg,   Group::TambrelLowAbcBg, Group::Keys,
                             Group::Keys_2,         Group::GamePlayText,    Group::GamePlayBg,
                             Group::GamePlayText_2, Group::GamePlayBg_2};
constexpr Group clearingOrder[] = {Group::TambrelAbc, Group::TambrelLowAbc,  Group::Tambrel,
                                   Group::TambrelLow, Group::TambrelAbcBg,   Group::TambrelLowAbcBg,
                                   Group::Keys,       Group::Keys_2,         Group::GamePlayText,
                                   Group::GamePlayBg, Group::GamePlayText_2, Group::GamePlayBg_2};

struct Corner
{
    const char *name;
    QPoint direction;
};

const Corner corners[] = {
    {"topRight", {1, -1}}, {"topLeft", {-1, -1}}, {"bottomRight", {1, 1}}, {"bottomLeft", {-1, 1}}};

constexpr int nearest = 2; // px, at the slider's beginning

// A ready-made setting: texts, keys and the other boxes each in one color.
struct Theme
{
    bool texts;
    const char *textColor;
    int textStrength; // slider positions
    bool boxes;
    const char *boxColor;
    int boxStrength;
    const char *keyColor;
};

constexpr Theme themes[] = {
    {false, "#484848", 3, true, "#aa0000", 2, "#d6b400"},
    {true, "#aa0000", 0, true, "#aa0000", 4, "#aa0000"},
    {true, "#3e3e3e", 0, true, "#3e3e3e", 4, "#3e3e3e"},
    {true, "#2f7fd1", 0, true, "#2f7fd1", 3, "#2f7fd1"},
};

bool isText(Group group)
{
    return group <= Group::TambrelLowAbc || group == Group::GamePlayText ||
           group == Group::GamePlayText_2;
}

} // namespace

Shadows::Shadows(Board &usedBoard, GradientPanels &gradientPanels, Dresser &usedDresser)
    : board(usedBoard), panels(gradientPanels), dresser(usedDresser)
{}

void Shadows::attach(MouseTable &mouse)
{
    const PanelWidgets &widgets = board.panelWidgets;
    for (const Row &row : rows) {
        const auto run = [this, group = row.group] { apply(group); };
        connect(widgets.button(checkBox(row.group)), &QAbstractButton::clicked, this, run);
        connect(widgets.find<QSlider>(row.slider), &QSlider::valueChanged, this, run);
        for (const Corner &corner : corners) {
            QAbstractButton *radio = widgets.button(QString(corner.name) + row.corner);
            connect(radio, &QAbstractButton::clicked, this, run);
            mouse.add(widgets.find(QString(corner.name) + "Lab" + row.corner),
                      {{}, {}, [=] {
                           radio->setChecked(true);
                           run();
                       }});
        }
    }
    const auto alsoRuns = [this](const char *slider, Group group) {
        connect(board.panelWidgets.find<QSlider>(slider), &QSlider::valueChanged, this,
                [this, group] { apply(group); });
    };
    alsoRuns("sliderTricks", Group::Keys);
    alsoRuns("sliderTricks_2", Group::Keys_2);
    for (int number = 1; number <= int(std::size(themes)); ++number)
        mouse.add(widgets.find(QString("shadowTheme%1").arg(number)),
                  {{}, {}, [this, number] { shadowTh(number); }});

    const auto follow = [this](const char *headerBox, Group text, Group box) {
        connect(board.panelWidgets.button(headerBox), &QAbstractButton::clicked, this,
                [this, text, box] {
                    for (const Group group : {text, box}) {
                        if (board.panelWidgets.isChecked(checkBox(group)))
                            apply(group);
                    }
                });
    };
    follow("matchThisCb", Group::GamePlayText, Group::GamePlayBg);
    follow("yourEntryCb", Group::GamePlayText_2, Group::GamePlayBg_2);
    connect(widgets.button("shadow3dOn"), &QAbstractButton::toggled, this,
            [this](bool on) { board.shadows.shadow3dOn = on; });
}

bool Shadows::header(const char *name) const
{
    return board.panelWidgets.isChecked(name);
}

QWidgetList Shadows::keyBackgrounds(Group half) const
{
    QWidgetList list;
    for (int cap = 1; cap <= Keys::capCount; ++cap) {
        if (ShadowFields::halfOf(cap) == half)
            list.append(board.widgets.background(cap));
    }
    using Keys::Control;
    const auto add = [&](std::initializer_list<Control> controls) {
        for (Control control : controls)
            list.append(board.widgets.background(control));
    };
    if (half == Group::Keys) {
        list.append(board.ui.aKeysMap5);
        add({Control::BackSpace, Control::CapsLock, Control::Enter, Control::Spacebar});
    } else {
        add({Control::Tab, Control::ShiftLeft, Control::ShiftRight});
    }
    return list;
}

QWidgetList Shadows::widgetsOf(Group group) const
{
    const Ui::tambrel &ui = board.ui;
    QWidgetList list;
    for (int cap = 1; cap <= Keys::capCount; ++cap) {
        const int upper = Keys::shifted(cap), lower = Keys::unshifted(cap);
        switch (group) {
        case Group::Tambrel:
            list.append(board.widgets.keyText(upper));
            break;
        case Group::TambrelLow:
            list.append(board.widgets.keyText(lower));
            break;
        case Group::TambrelAbc:
            list.append(board.widgets.barLetter(upper));
            break;
        case Group::TambrelLowAbc:
            list.append(board.widgets.barLetter(lower));
            break;
        case Group::TambrelAbcBg:
            list.append(board.widgets.barBackground(upper));
            break;
        case Group::TambrelLowAbcBg:
            list.append(board.widgets.barBackground(lower));
            break;
        case Group::Keys:
        case Group::Keys_2:
            return keyBackgrounds(group);
        case Group::GamePlayText:
            return {ui.leMatch, ui.matchThis};
        case Group::GamePlayBg:
            return {ui.leMatchBg, ui.matchThisBg};
        case Group::GamePlayText_2:
            return {ui.leUser, ui.yourEntry};
        case Group::GamePlayBg_2:
            return {ui.leUserBg, ui.yourEntryBg};
        }
    }
    return list;
}

QPoint Shadows::offsetOf(Group group) const
{
    const PanelWidgets &widgets = board.panelWidgets;
    const Row &row = rows[group];
    const int distance = widgets.find<QSlider>(row.slider)->value() + nearest;
    for (const Corner &corner : corners) {
        if (widgets.isChecked(QString(corner.name) + row.corner))
            return corner.direction * distance;
    }
    return board.shadows[group].offset;
}

void Shadows::apply(Group group)
{
    const PanelWidgets &widgets = board.panelWidgets;
    ShadowGroup &shadow = board.shadows[group];
    shadow.on = widgets.isChecked(checkBox(group));
    shadow.offset = offsetOf(group);

    int trick = 0;
    if (group == Group::Keys || group == Group::Keys_2)
        trick = widgets.find<QSlider>(group == Group::Keys ? "sliderTricks" : "sliderTricks_2")
                    ->value();
    bool withHeader = true;
    if (group == Group::GamePlayText || group == Group::GamePlayBg)
        withHeader = header("matchThisCb");
    else if (group == Group::GamePlayText_2 || group == Group::GamePlayBg_2)
        withHeader = header("yourEntryCb");

    const QWidgetList list = widgetsOf(group);
    for (int i = 0; i < list.size(); ++i) {
        // A key that has faded wears its shadow once it is back.
        if (board.presence.isFaded(list[i]))
            continue;
        if (!shadow.on || (i > 0 && !withHeader)) {
            list[i]->setGraphicsEffect(nullptr);
            continue;
        }
        // The tricks throw every second shadow along the other diagonal.
        const bool turned = trick != 0 && (i % 2 == 0) == (trick == 1);
        auto *effect = new QGraphicsDropShadowEffect(this);
        effect->setOffset(turned ? shadow.offset.transposed() : shadow.offset);
        effect->setColor(QColor(shadow.colour));
        list[i]->setGraphicsEffect(effect);
    }
    panels.dressTextSwatches();
}

void Shadows::setColor(int group, const QString &color)
{
    board.shadows.groups[static_cast<size_t>(group)].colour = color;
    wear(board.panelWidgets.find(QString(ShadowFields::checkBoxes[group]) + "Display"),
         "background-color: " + color + ";");
    apply(static_cast<Group>(group));
}

void Shadows::shadowThClear()
{
    for (const Group group : cleared)
        board.panelWidgets.button(checkBox(group))->setChecked(false);
    for (const Group group : clearingOrder)
        apply(group);
}

void Shadows::shadowTh(int number)
{
    if (number < 1 || number > int(std::size(themes)))
        return;
    const Theme &theme = themes[number - 1];
    const PanelWidgets &widgets = board.panelWidgets;
    PaintTables &paint = board.paint;
    paint.paintBackgroundOn = paint.paintLowerOn = paint.paintBorderOn = paint.paintUpperOn = false;
    for (const Row &row : rows) {
        const bool text = isText(row.group);
        const bool key = row.group == Group::Keys || row.group == Group::Keys_2;
        const QString color = text ? theme.textColor : key ? theme.keyColor : theme.boxColor;
        widgets.button(QString("bottomRight") + row.corner)->setChecked(true);
        widgets.button(checkBox(row.group))->setChecked(text ? theme.texts : theme.boxes);
        auto *slider = widgets.find<QSlider>(row.slider);
        const QSignalBlocker quiet(slider);
        slider->setValue(text ? theme.textStrength : theme.boxStrength);
        wear(widgets.find(QString(checkBox(row.group)) + "Display"),
             "background-color: " + color + ";");
        board.shadows[row.group].colour = color;
        apply(row.group);
    }
    // The paint has gone with its switches.
    dresser.all();
}
