#include "timers.h"

#include <QTimerEvent>

int Timers::start(int interval, std::function<void()> tick)
{
    const int id = object.startTimer(interval, Qt::CoarseTimer);
    ticks.insert(id, std::move(tick));
    return id;
}

void Timers::stop(int &id)
{
    if (ticks.remove(id) > 0)
        object.killTimer(id);
    id = 0;
}

bool Timers::dispatch(const QTimerEvent &event)
{
    // A copy, since a tick may stop its own timer.
    const auto tick = ticks.value(event.timerId());
    if (!tick)
        return false;
    tick();
    return true;
}
