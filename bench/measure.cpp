#include "measure.h"

#include <QtWidgets>
#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

QFile figures;

double read(clockid_t clock)
{
    timespec t;
    clock_gettime(clock, &t);
    return t.tv_sec * 1e3 + t.tv_nsec / 1e6;
}

} // namespace

double nowMs()
{
    return read(CLOCK_MONOTONIC);
}

double cpuMs()
{
    return read(CLOCK_PROCESS_CPUTIME_ID);
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

long kilobytes(const char *file, const char *key)
{
    QFile proc(QString("/proc/self/") + file);
    proc.open(QIODevice::ReadOnly);
    const QByteArray all = proc.readAll();
    const int at = all.indexOf(key);
    return at < 0 ? 0 : all.mid(at + int(strlen(key))).trimmed().split(' ').first().toLong();
}

void row(const char *what, const QString &text)
{
    printf("| %-46s | %-44s |\n", what, qPrintable(text));
    fflush(stdout);
}

bool writeFiguresTo(const QString &path)
{
    figures.setFileName(path);
    return figures.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

void figure(const char *what, double value, const char *unit)
{
    if (figures.isOpen())
        figures.write(QString("%1\t%2\t%3\n").arg(what).arg(value, 0, 'f', 2).arg(unit).toUtf8());
}

QString ms(double value)
{
    return QString::number(value, 'f', 2) + " ms";
}

void settle(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

std::unique_ptr<tambrel> openWindow(bool realSound)
{
    auto window = realSound
                      ? std::make_unique<tambrel>()
                      : std::make_unique<tambrel>(
                            nullptr, tambrel::Outside{std::make_unique<SilentPlayer>(), nullptr});
    window->openTambrel();
    for (QWidget *other : QApplication::topLevelWidgets()) {
        if (other != window.get())
            other->close();
    }
    settle(300);
    return window;
}

void sendKey(QWidget *window, QEvent::Type type, int code, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent event(type, code, modifiers);
    QCoreApplication::sendEvent(window, &event);
}
