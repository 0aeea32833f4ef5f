#pragma once

#include <QWidget>

// The one place that puts a style sheet on a widget while the program runs. A
// sheet that is worn already is left alone: Qt would parse and polish it again,
// and a full repaint of the keyboard mostly finds nothing to change.
inline void wear(QWidget *widget, const QString &styleSheet)
{
    if (widget->styleSheet() != styleSheet)
        widget->setStyleSheet(styleSheet);
}
