#pragma once

#include "widgetsbyname.h"

#include <QAbstractButton>

// The controls of the Advanced Options by objectName. They are built a moment after the start
// or when first needed, so a room must not ask for one before it was told that they stand.
class PanelWidgets
{
public:
    void fill(const QWidget &window) { widgets = widgetsByName<QWidget>(window); }
    bool isFilled() const { return !widgets.isEmpty(); }

    // The widget must exist and be of the kind.
    template <class Widget = QWidget>
    Widget *find(const QString &name) const
    {
        auto *widget = qobject_cast<Widget *>(widgets.value(name));
        Q_ASSERT_X(widget, "PanelWidgets", qPrintable(name));
        return widget;
    }
    QAbstractButton *button(const QString &name) const { return find<QAbstractButton>(name); }
    bool isChecked(const QString &name) const { return button(name)->isChecked(); }

private:
    QHash<QString, QWidget *> widgets;
};
