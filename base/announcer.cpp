#include "announcer.h"

#include <QAccessibleWidget>
#include <QLabel>

namespace {

QAccessibleInterface *notification(const QString &className, QObject *object)
{
    if (className != QLatin1String("Announcer"))
        return nullptr;
    return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Notification);
}

} // namespace

Announcer::Announcer(QWidget *parent) : QWidget(parent), text(new QLabel(this))
{
    QAccessible::installFactory(notification);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    // Hidden, it would not be read; so it is a point, and its text lies outside of that.
    setGeometry(0, 0, 1, 1);
    text->move(1, 0);
    lower();
}

void Announcer::say(const QString &news)
{
    if (news.isEmpty())
        return;
    text->setText(news);
    // Coming up is what readers tell of a notification; an alert event Qt does not pass on.
    QAccessibleEvent event(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}
