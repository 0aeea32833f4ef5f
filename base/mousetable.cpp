#include "mousetable.h"

#include <QMouseEvent>
#include <QWidget>

namespace {

void run(const std::function<void()> &action)
{
    if (action)
        action();
}

} // namespace

void MouseTable::add(QWidget *widget, Row row)
{
    if (!rows.contains(widget) && (row.enter || row.leave))
        widget->installEventFilter(&filter);
    rows.insert(widget, std::move(row));
}

void MouseTable::filtered(const QObject *watched, const QEvent &event) const
{
    if (event.type() != QEvent::Enter && event.type() != QEvent::Leave)
        return;
    const auto row = rows.constFind(watched);
    if (row != rows.constEnd())
        run(event.type() == QEvent::Enter ? row->enter : row->leave);
}

void MouseTable::pressed(const QWidget &window, const QMouseEvent &event) const
{
    if (event.buttons() != Qt::LeftButton)
        return;
    for (const QWidget *widget = window.childAt(event.pos()); widget && widget != &window;
         widget = widget->parentWidget()) {
        const auto row = rows.constFind(widget);
        if (row != rows.constEnd())
            run(row->press);
    }
}
