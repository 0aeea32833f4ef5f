#include "sequence.h"

#include <QTimer>

void Sequence::after(int ms, QObject *context, std::function<void()> action)
{
    QTimer::singleShot(ms, Qt::PreciseTimer, context, std::move(action));
}
