#pragma once

#include <QHash>
#include <QPoint>
#include <functional>

class QEvent;
class QMouseEvent;
class QObject;
class QWidget;

// What the mouse does over widgets that are no controls of their own. Every room
// adds the rows of its widgets; the main window hands over what its event filter
// and its mousePressEvent receive.
class MouseTable
{
public:
    struct Row
    {
        std::function<void()> enter;
        std::function<void()> leave;
        std::function<void()> press; // the left button alone
    };

    explicit MouseTable(QObject &filterOwner) : filter(filterOwner) {}

    // Watches the widget; a second row for one widget replaces the first.
    void add(QWidget *widget, Row row);

    void filtered(const QObject *watched, const QEvent &event) const;
    // The topmost widget of the window under the mouse decides, then its parents.
    void pressed(const QWidget &window, const QMouseEvent &event) const;

private:
    QObject &filter;
    QHash<const QObject *, Row> rows;
};
