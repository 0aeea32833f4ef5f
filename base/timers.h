#pragma once

#include <QHash>
#include <functional>

class QObject;
class QTimerEvent;

// The repeating timers of the main window. All of them arrive in its timerEvent,
// which hands them on to dispatch(); an id that was stopped means nothing.
class Timers
{
public:
    explicit Timers(QObject &timedObject) : object(timedObject) {}

    // Coarse, in ms. Returns the id, never 0.
    int start(int interval, std::function<void()> tick);
    // Forgets the id (sets it to 0). Harmless for 0.
    void stop(int &id);
    // False for an event that belongs to none of these timers.
    bool dispatch(const QTimerEvent &event);

private:
    QObject &object;
    QHash<int, std::function<void()>> ticks;
};
