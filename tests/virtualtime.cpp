#include "virtualtime.h"

#include <QEventLoop>
#include <QTimer>

#include <csignal>
#include <ctime>
#include <dlfcn.h>
#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr qint64 second = 1'000'000'000; // ns
constexpr qint64 look = 1;               // ns that pass with each look at the clock
constexpr qint64 longest = 60;           // s of a wait; for ever is more than can be added up
thread_local bool running = false;
qint64 now = 1000 * second;

} // namespace

void VirtualTime::begin()
{
    // The other event loop waits in a way of its own.
    qputenv("QT_NO_GLIB", "1");
    running = true;
}

void VirtualTime::pass(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

// These stand before the C library's own: Qt reads the clock with the first, waits for events and
// timers with the second, and its tests sleep by the third.

extern "C" int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    if (clock != CLOCK_MONOTONIC || !running)
        return int(syscall(SYS_clock_gettime, clock, time));
    now += look;
    *time = {now / second, now % second};
    return 0;
}

extern "C" int ppoll(pollfd *files, nfds_t count, const timespec *timeout, const sigset_t *mask)
{
    static const auto wait = reinterpret_cast<decltype(&ppoll)>(dlsym(RTLD_NEXT, "ppoll"));
    if (!timeout || !running)
        return wait(files, count, timeout, mask);
    constexpr timespec none{};
    const int ready = wait(files, count, &none, mask);
    if (ready == 0)
        now += qMin<qint64>(timeout->tv_sec, longest) * second + timeout->tv_nsec;
    return ready;
}

extern "C" int nanosleep(const timespec *time, timespec *left)
{
    if (!running)
        return int(syscall(SYS_nanosleep, time, left));
    now += time->tv_sec * second + time->tv_nsec;
    return 0;
}
