#pragma once

#include "shadowfields.h"

#include <QObject>
#include <QWidgetList>

class Dresser;
class GradientPanels;
class MouseTable;
struct Board;

// The twelve groups of drop shadows: switch, strength, corner and colour, and four ready-made
// settings of them all.
class Shadows : public QObject
{
    Q_OBJECT

public:
    using Group = ShadowFields::Group;

    Shadows(Board &usedBoard, GradientPanels &gradientPanels, Dresser &usedDresser);

    // Once the panels stand in the window.
    void attach(MouseTable &mouse);

    // Reads the group's controls and dresses its widgets anew.
    void apply(Group group);
    void setColor(int group, const QString &color); // and the sample beside its check box

    void shadowThClear();
    void shadowTh(int number); // 1 to 4

private:
    QWidgetList widgetsOf(Group group) const;
    QWidgetList keyBackgrounds(Group half) const;
    QPoint offsetOf(Group group) const;
    bool header(const char *name) const;

    Board &board;
    GradientPanels &panels;
    Dresser &dresser;
};
