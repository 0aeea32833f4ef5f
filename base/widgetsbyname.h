#pragma once

#include <QHash>
#include <QWidget>

// The window's widgets of one kind by objectName, found in one pass.
template <class Widget>
QHash<QString, Widget *> widgetsByName(const QWidget &window)
{
    QHash<QString, Widget *> widgets;
    for (Widget *widget : window.findChildren<Widget *>())
        widgets.insert(widget->objectName(), widget);
    return widgets;
}
