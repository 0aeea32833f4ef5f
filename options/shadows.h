#pragma once

#include "shadowfields.h"

#include <QObject>
#include <QWidgetList>
#include <array>

class Dresser;
class GradientPanels;
class MouseTable;
class OptionForms;
class QCheckBox;
class QRadioButton;
class QSlider;
struct Furniture;
struct Wardrobe;

namespace Ui {
class shadowsPanel;
}

// The twelve groups of drop shadows: switch, strength, corner and color, and four ready-made
// settings of them all.
class Shadows : public QObject
{
    Q_OBJECT

public:
    using Group = ShadowFields::Group;

    Shadows(Furniture &usedFurniture, Wardrobe &usedWardrobe, GradientPanels &gradientPanels,
            Dresser &usedDresser, const OptionForms &optionForms, MouseTable &mouse);

    // Reads the group's controls and dresses its widgets anew.
    void apply(Group group);
    void setColor(int group, const QString &color); // and the sample beside its check box

    void shadowThClear();
    void shadowTh(int number); // 1 to 4

private:
    static constexpr int cornerCount = 4;
    struct Controls
    {
        QCheckBox *on;
        QWidget *sample; // of the color
        QSlider *strength;
        std::array<QRadioButton *, cornerCount> corners; // as in the table of the directions
        std::array<QWidget *, cornerCount> cornerLabels;
        QSlider *tricks = nullptr;
        QCheckBox *header = nullptr; // whether the box's header wears the shadow too
    };

    static std::array<Controls, ShadowFields::groupCount> controlsOf(const OptionForms &forms);
    void connectGroup(Group group, MouseTable &mouse);
    void showColor(Group group, const QString &color);
    QWidgetList widgetsOf(Group group) const;
    QWidgetList keyBackgrounds(Group half) const;
    QPoint offsetOf(Group group) const;

    Furniture &furniture;
    Wardrobe &wardrobe;
    GradientPanels &panels;
    Dresser &dresser;
    const Ui::shadowsPanel &form;
    const std::array<Controls, ShadowFields::groupCount> controls; // by group
};
