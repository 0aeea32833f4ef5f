#include "shadows.h"

#include "dresser.h"
#include "furniture.h"
#include "gradientpanels.h"
#include "mousetable.h"
#include "optionforms.h"
#include "ui_gameplaypanel.h"
#include "ui_shadowspanel.h"
#include "ui_tambrel.h"
#include "wardrobe.h"
#include "wear.h"

#include <QGraphicsDropShadowEffect>
#include <QSlider>

namespace {

using Group = ShadowFields::Group;

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

// Top right, top left, bottom right, bottom left.
constexpr QPoint directions[] = {{1, -1}, {-1, -1}, {1, 1}, {-1, 1}};
constexpr int bottomRight = 2;

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

Shadows::Shadows(Furniture &usedFurniture, Wardrobe &usedWardrobe, GradientPanels &gradientPanels,
                 Dresser &usedDresser, const OptionForms &optionForms, MouseTable &mouse)
    : furniture(usedFurniture),
      wardrobe(usedWardrobe),
      panels(gradientPanels),
      dresser(usedDresser),
      form(*optionForms.shadows),
      controls(controlsOf(optionForms))
{
    for (int group = 0; group < ShadowFields::groupCount; ++group)
        connectGroup(static_cast<Group>(group), mouse);
    const std::array<QWidget *, std::size(themes)> tiles{form.shadowTheme1, form.shadowTheme2,
                                                         form.shadowTheme3, form.shadowTheme4};
    for (size_t i = 0; i < tiles.size(); ++i)
        mouse.add(tiles[i], {{}, {}, [this, number = int(i) + 1] { shadowTh(number); }});
    connect(form.shadow3dOn, &QAbstractButton::toggled, this,
            [this](bool on) { wardrobe.shadows.shadow3dOn = on; });
}

std::array<Shadows::Controls, ShadowFields::groupCount>
Shadows::controlsOf(const OptionForms &forms)
{
    const Ui::shadowsPanel &s = *forms.shadows;
    const Ui::gamePlayPanel &g = *forms.gamePlay;
    std::array<Controls, ShadowFields::groupCount> rows;
    rows[Group::Tambrel] = {
        s.textShadowTambrel,
        s.textShadowTambrelDisplay,
        s.sliderTextShadowTamKey,
        {s.topRightTamKey, s.topLeftTamKey, s.bottomRightTamKey, s.bottomLeftTamKey},
        {s.topRightLabTamKey, s.topLeftLabTamKey, s.bottomRightLabTamKey, s.bottomLeftLabTamKey}};
    rows[Group::TambrelLow] = {
        s.textShadowTambrelLow,
        s.textShadowTambrelLowDisplay,
        s.sliderTextShadowTamLowKey,
        {s.topRightTamLowKey, s.topLeftTamLowKey, s.bottomRightTamLowKey, s.bottomLeftTamLowKey},
        {s.topRightLabTamLowKey, s.topLeftLabTamLowKey, s.bottomRightLabTamLowKey,
         s.bottomLeftLabTamLowKey}};
    rows[Group::TambrelAbc] = {
        s.textShadowTambrelAbc,
        s.textShadowTambrelAbcDisplay,
        s.sliderTextShadowTamAbc,
        {s.topRightTamAbc, s.topLeftTamAbc, s.bottomRightTamAbc, s.bottomLeftTamAbc},
        {s.topRightLabTamAbc, s.topLeftLabTamAbc, s.bottomRightLabTamAbc, s.bottomLeftLabTamAbc}};
    rows[Group::TambrelLowAbc] = {
        s.textShadowTambrelLowAbc,
        s.textShadowTambrelLowAbcDisplay,
        s.sliderTextShadowTamLowAbc,
        {s.topRightTamLowAbc, s.topLeftTamLowAbc, s.bottomRightTamLowAbc, s.bottomLeftTamLowAbc},
        {s.topRightLabTamLowAbc, s.topLeftLabTamLowAbc, s.bottomRightLabTamLowAbc,
         s.bottomLeftLabTamLowAbc}};
    rows[Group::TambrelAbcBg] = {
        s.textShadowTambrelAbcBg,
        s.textShadowTambrelAbcBgDisplay,
        s.sliderTextShadowAbcBg,
        {s.topRightAbc, s.topLeftAbc, s.bottomRightAbc, s.bottomLeftAbc},
        {s.topRightLabAbc, s.topLeftLabAbc, s.bottomRightLabAbc, s.bottomLeftLabAbc}};
    rows[Group::TambrelLowAbcBg] = {
        s.textShadowTambrelLowAbcBg,
        s.textShadowTambrelLowAbcBgDisplay,
        s.sliderTextShadowLowAbcBg,
        {s.topRightLowAbc, s.topLeftLowAbc, s.bottomRightLowAbc, s.bottomLeftLowAbc},
        {s.topRightLabLowAbc, s.topLeftLabLowAbc, s.bottomRightLabLowAbc, s.bottomLeftLabLowAbc}};
    rows[Group::Keys] = {s.shadowKeys,
                         s.shadowKeysDisplay,
                         s.sliderTextShadowKeyboardBg,
                         {s.topRight, s.topLeft, s.bottomRight, s.bottomLeft},
                         {s.topRightLab, s.topLeftLab, s.bottomRightLab, s.bottomLeftLab},
                         s.sliderTricks};
    rows[Group::Keys_2] = {s.shadowKeys_2,
                           s.shadowKeys_2Display,
                           s.sliderTextShadowKeyboardBg_2,
                           {s.topRight_2, s.topLeft_2, s.bottomRight_2, s.bottomLeft_2},
                           {s.topRightLab_2, s.topLeftLab_2, s.bottomRightLab_2, s.bottomLeftLab_2},
                           s.sliderTricks_2};
    rows[Group::GamePlayText] = {
        g.tsGamePlayText,
        g.tsGamePlayTextDisplay,
        g.sliderTsGpText,
        {g.topRightGpText, g.topLeftGpText, g.bottomRightGpText, g.bottomLeftGpText},
        {g.topRightLabGpText, g.topLeftLabGpText, g.bottomRightLabGpText, g.bottomLeftLabGpText},
        nullptr,
        g.matchThisCb};
    rows[Group::GamePlayBg] = {
        g.tsGamePlayBg,
        g.tsGamePlayBgDisplay,
        g.sliderTsGpBg,
        {g.topRightGpBg, g.topLeftGpBg, g.bottomRightGpBg, g.bottomLeftGpBg},
        {g.topRightLabGpBg, g.topLeftLabGpBg, g.bottomRightLabGpBg, g.bottomLeftLabGpBg},
        nullptr,
        g.matchThisCb};
    rows[Group::GamePlayText_2] = {
        g.tsGamePlayText_2,
        g.tsGamePlayText_2Display,
        g.sliderTsGpText_2,
        {g.topRightGpText_2, g.topLeftGpText_2, g.bottomRightGpText_2, g.bottomLeftGpText_2},
        {g.topRightLabGpText_2, g.topLeftLabGpText_2, g.bottomRightLabGpText_2,
         g.bottomLeftLabGpText_2},
        nullptr,
        g.yourEntryCb};
    rows[Group::GamePlayBg_2] = {
        g.tsGamePlayBg_2,
        g.tsGamePlayBg_2Display,
        g.sliderTsGpBg_2,
        {g.topRightGpBg_2, g.topLeftGpBg_2, g.bottomRightGpBg_2, g.bottomLeftGpBg_2},
        {g.topRightLabGpBg_2, g.topLeftLabGpBg_2, g.bottomRightLabGpBg_2, g.bottomLeftLabGpBg_2},
        nullptr,
        g.yourEntryCb};
    return rows;
}

void Shadows::connectGroup(Group group, MouseTable &mouse)
{
    const Controls &c = controls[group];
    const auto run = [this, group] { apply(group); };
    connect(c.on, &QAbstractButton::clicked, this, run);
    connect(c.strength, &QSlider::valueChanged, this, run);
    if (c.tricks)
        connect(c.tricks, &QSlider::valueChanged, this, run);
    for (size_t i = 0; i < cornerCount; ++i) {
        connect(c.corners[i], &QAbstractButton::clicked, this, run);
        mouse.add(c.cornerLabels[i], {{}, {}, [run, radio = c.corners[i]] {
                                          radio->setChecked(true);
                                          run();
                                      }});
    }
    if (c.header)
        connect(c.header, &QAbstractButton::clicked, this, [run, on = c.on] {
            if (on->isChecked())
                run();
        });
}

QWidgetList Shadows::keyBackgrounds(Group half) const
{
    QWidgetList list;
    for (int cap = 1; cap <= Keys::capCount; ++cap) {
        if (ShadowFields::halfOf(cap) == half)
            list.append(furniture.widgets.background(cap));
    }
    using Keys::Control;
    const auto add = [&](std::initializer_list<Control> keys) {
        for (const Control control : keys)
            list.append(furniture.widgets.background(Keys::Place::ofControl(control)));
    };
    if (half == Group::Keys) {
        list.append(furniture.ui.aKeysMap5);
        add({Control::BackSpace, Control::CapsLock, Control::Enter, Control::Spacebar});
    } else {
        add({Control::Tab, Control::ShiftLeft, Control::ShiftRight});
    }
    return list;
}

QWidgetList Shadows::widgetsOf(Group group) const
{
    const Ui::tambrel &ui = furniture.ui;
    QWidgetList list;
    for (int cap = 1; cap <= Keys::capCount; ++cap) {
        const int upper = Keys::shifted(cap), lower = Keys::unshifted(cap);
        switch (group) {
        case Group::Tambrel:
            list.append(furniture.widgets.keyText(upper));
            break;
        case Group::TambrelLow:
            list.append(furniture.widgets.keyText(lower));
            break;
        case Group::TambrelAbc:
            list.append(furniture.widgets.barLetter(upper));
            break;
        case Group::TambrelLowAbc:
            list.append(furniture.widgets.barLetter(lower));
            break;
        case Group::TambrelAbcBg:
            list.append(furniture.widgets.barBackground(upper));
            break;
        case Group::TambrelLowAbcBg:
            list.append(furniture.widgets.barBackground(lower));
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
    const Controls &c = controls[group];
    for (size_t i = 0; i < cornerCount; ++i) {
        if (c.corners[i]->isChecked())
            return directions[i] * (c.strength->value() + nearest);
    }
    return wardrobe.shadows[group].offset;
}

void Shadows::apply(Group group)
{
    const Controls &c = controls[group];
    ShadowGroup &shadow = wardrobe.shadows[group];
    shadow.on = c.on->isChecked();
    shadow.offset = offsetOf(group);
    const int trick = c.tricks ? c.tricks->value() : 0;
    const bool withHeader = !c.header || c.header->isChecked();

    const QWidgetList list = widgetsOf(group);
    for (int i = 0; i < list.size(); ++i) {
        // A key that has faded wears its shadow once it is back.
        if (furniture.presence.isFaded(list[i]))
            continue;
        if (!shadow.on || (i > 0 && !withHeader)) {
            list[i]->setGraphicsEffect(nullptr);
            continue;
        }
        // The tricks throw every second shadow along the other diagonal.
        const bool turned = trick != 0 && (i % 2 == 0) == (trick == 1);
        auto *effect = new QGraphicsDropShadowEffect(this);
        effect->setOffset(turned ? shadow.offset.transposed() : shadow.offset);
        effect->setColor(QColor(shadow.color));
        list[i]->setGraphicsEffect(effect);
    }
    panels.dressTextSwatches();
}

void Shadows::showColor(Group group, const QString &color)
{
    wardrobe.shadows[group].color = color;
    wear(controls[group].sample, "background-color: " + color + ";");
}

void Shadows::setColor(int number, const QString &color)
{
    const auto group = static_cast<Group>(number);
    showColor(group, color);
    apply(group);
}

void Shadows::shadowThClear()
{
    for (const Group group : cleared)
        controls[group].on->setChecked(false);
    for (const Group group : clearingOrder)
        apply(group);
}

void Shadows::shadowTh(int number)
{
    if (number < 1 || number > int(std::size(themes)))
        return;
    const Theme &theme = themes[number - 1];
    for (const auto part :
         {PaintTables::Background, PaintTables::Border, PaintTables::Lower, PaintTables::Upper})
        wardrobe.paint.parts[part].on = false;
    for (int each = 0; each < ShadowFields::groupCount; ++each) {
        const auto group = static_cast<Group>(each);
        const Controls &c = controls[group];
        const bool text = isText(group);
        const bool key = group == Group::Keys || group == Group::Keys_2;
        c.corners[bottomRight]->setChecked(true);
        c.on->setChecked(text ? theme.texts : theme.boxes);
        const QSignalBlocker quiet(c.strength);
        c.strength->setValue(text ? theme.textStrength : theme.boxStrength);
        showColor(group, text ? theme.textColor : key ? theme.keyColor : theme.boxColor);
        apply(group);
    }
    // The paint has gone with its switches.
    dresser.all();
}
