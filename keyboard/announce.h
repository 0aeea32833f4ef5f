#pragma once

#include <QAccessible>
#include <QWidget>

// Tells a screen reader that the text of a widget that never has the focus is news.
inline void announce(QWidget *widget)
{
    QAccessibleEvent event(widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}
