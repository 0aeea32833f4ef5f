// Prints one table of figures. Run through bench/run; "bench NAME ..." runs single rows, and
// "bench --figures FILE ..." writes them for bench/compare too.

#include "measure.h"
#include "optionrooms.h"
#include "picture.h"
#include "platform.h"
#include "resources.h"
#include "ui_kestrixkeyboardpanel.h"
#include "ui_tambrel.h"

#include <QtWidgets>
#include <algorithm>

namespace {

class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *widget) : watched(widget) { widget->installEventFilter(this); }
    bool painted = false;
    void wait()
    {
        while (!painted)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::processEvents();
    }

private:
    QWidget *watched;
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            painted = true;
        return false;
    }
};

// ---- rows measured in this process

void keyPress()
{
    const int rounds = 400;
    QLabel bare("a");
    bare.resize(200, 100);
    bare.show();
    settle(300);
    std::vector<double> bareTimes;
    PaintWatch bareWatch(&bare);
    for (int i = 0; i < rounds; ++i) {
        bareWatch.painted = false;
        const double start = nowMs();
        bare.setText(i % 2 ? "a" : "b");
        bareWatch.wait();
        bareTimes.push_back(nowMs() - start);
    }
    bare.hide();

    const auto window = openWindow();
    window->furniture().ui.start->click();
    settle(300);
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        const int key = 1 + i % 26;
        PaintWatch watch(window->furniture().widgets.keyText(key));
        const double start = nowMs();
        sendKey(window.get(), QEvent::KeyPress, 'A' + key - 1);
        watch.wait();
        times.push_back(nowMs() - start);
        sendKey(window.get(), QEvent::KeyRelease, 'A' + key - 1);
        QCoreApplication::processEvents();
    }
    row("key press to paint, median", ms(median(times)) + ", a bare label " +
                                          ms(median(bareTimes)) + ", more by " +
                                          ms(median(times) - median(bareTimes)));
    figure("key press to paint", median(times), "ms");
}

void repaint()
{
    const auto window = openWindow();
    std::vector<double> unchanged, changed;
    for (int i = 0; i < 200; ++i) {
        const double start = nowMs();
        window->keyFeedback().allChangeColorBack();
        unchanged.push_back(nowMs() - start);
    }
    for (int i = 0; i < 60; ++i) {
        Looks &looks = window->wardrobe().looks;
        const QString color = i % 2 ? "black" : "navy";
        looks.key.bgStart = looks.key.bgEnd = color;
        looks.key.buildBackground();
        PaintWatch watch(window->furniture().widgets.keyText(47));
        const double start = nowMs();
        window->keyFeedback().allChangeColorBack();
        watch.wait();
        changed.push_back(nowMs() - start);
    }
    row("all 94 keys put back, nothing changed, median", ms(median(unchanged)));
    row("all keys and cells recolored and painted, median", ms(median(changed)));
    figure("all keys put back", median(unchanged), "ms");
    figure("all keys recolored", median(changed), "ms");
}

void presses(const char *name, bool realSound)
{
    const auto window = openWindow(realSound);
    if (realSound)
        window->wardrobe().sounds.keyAudio = ":/new/prefix1/typewriter.wav";
    window->furniture().ui.start->click();
    std::srand(7);
    long afterFirst = 0;
    for (int i = 1; i <= 10000; ++i) {
        const int code = 33 + std::rand() % 94;
        const auto modifiers = std::rand() % 2 ? Qt::ShiftModifier : Qt::NoModifier;
        sendKey(window.get(), QEvent::KeyPress, code, modifiers);
        sendKey(window.get(), QEvent::KeyRelease, code, modifiers);
        if (i % 3 == 0)
            sendKey(window.get(), QEvent::KeyPress, Qt::Key_Space);
        QCoreApplication::processEvents();
        if (i == 1000)
            afterFirst = kilobytes("status", "VmRSS:");
    }
    row(name, QString("resident %1 MiB after 1,000, %2 KiB more at the end")
                  .arg(afterFirst / 1024)
                  .arg(kilobytes("status", "VmRSS:") - afterFirst));
    figure(name, kilobytes("status", "VmRSS:") / 1024., "MiB");
}

// A located key at every second press, each with its burst.
void bursts()
{
    const auto window = openWindow();
    const Ui::tambrel &ui = window->furniture().ui;
    const KeyboardWidgets &widgets = window->furniture().widgets;
    window->options().forms.kestrixKeyboard->explosion->click();
    ui.pbRandomAll->click();
    long afterFirst = 0;
    for (int i = 2; i <= 30000; i += 2) {
        if (!window->game().gameRunning)
            ui.start->click();
        const int key = Keys::fromIndex(window->game().target());
        sendKey(window.get(), QEvent::KeyPress,
                QString(widgets.letter(key)).at(0).toUpper().unicode(),
                Keys::isShifted(key) ? Qt::ShiftModifier : Qt::NoModifier);
        sendKey(window.get(), QEvent::KeyPress, Qt::Key_Space);
        QCoreApplication::processEvents();
        if (i == 20000)
            afterFirst = kilobytes("status", "VmRSS:");
    }
    row("30,000 presses, a fire ball at each second",
        QString("resident %1 MiB after 20,000, %2 KiB more at the end")
            .arg(afterFirst / 1024)
            .arg(kilobytes("status", "VmRSS:") - afterFirst));
    figure("30,000 presses with bursts", kilobytes("status", "VmRSS:") / 1024., "MiB");
}

void idle(const char *name)
{
    settle(4000); // splash, tool tips and the first paints are over
    const double start = cpuMs();
    settle(10000);
    const double spent = (cpuMs() - start) / 10;
    row(name, ms(spent) + " of processor a second, over 10 s");
    figure(name, spent, "ms/s");
}

// Frames painted and the longest gap between two while all keys fade out and in.
void fade()
{
    const auto window = openWindow();
    window->furniture().ui.start->click();
    settle(300);
    std::vector<double> frames;
    class Frames : public QObject
    {
    public:
        explicit Frames(std::vector<double> &seen) : at(seen) {}

    private:
        std::vector<double> &at;
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::Paint)
                at.push_back(nowMs());
            return false;
        }
    } counter(frames);
    window->furniture().ui.wallpaper->installEventFilter(&counter); // lies under every key
    window->fadeEngine().play(FadeLists::fadeAll());
    settle(2100); // the first column goes at 2000 ms
    frames.clear();
    const double start = nowMs();
    const double cpu = cpuMs();
    settle(3100); // the last column is back 5300 ms after the start
    const double seconds = (nowMs() - start) / 1000;
    double longest = 0;
    for (size_t i = 1; i < frames.size(); ++i)
        longest = std::max(longest, frames[i] - frames[i - 1]);
    row("all keys fade out and in", QString("%1 frames/s, longest gap %2 ms, processor %3 %")
                                        .arg(frames.size() / seconds, 0, 'f', 1)
                                        .arg(longest, 0, 'f', 0)
                                        .arg((cpuMs() - cpu) / seconds / 10, 0, 'f', 0));
    figure("fade, frames", frames.size() / seconds, "Hz");
    figure("fade, longest gap", longest, "ms");
}

// The tour moves on the first screen; the idle board is the one after a game.
void idleBoard()
{
    const auto window = openWindow();
    window->furniture().ui.start->click();
    window->furniture().ui.stop->click();
    idle("idle board");
}

void idleOptions(const char *name, QPushButton *Ui_tambrel::*panel)
{
    const auto window = openWindow();
    window->furniture().ui.start->click();
    window->furniture().ui.stop->click();
    window->furniture().ui.options->click();
    settle(2000); // they slide in
    if (panel)
        (window->furniture().ui.*panel)->click();
    idle(name);
}

void idleOpening()
{
    tambrel window(nullptr, {std::make_unique<SilentPlayer>(), nullptr});
    idle("opening window");
}

// ---- rows measured in processes of their own, from the moment before they start

struct Lap
{
    const char *name;
    double ms;
};

int firstWindow(double startedAt, bool bare)
{
    int argc = 1;
    char name[] = "bench";
    char *argv[] = {name, nullptr};
    std::vector<Lap> laps;
    const auto lap = [&laps, startedAt](const char *what) {
        laps.push_back({what, nowMs() - startedAt});
    };
    if (!bare)
        Platform::prepare();
    lap("process");
    QApplication application(argc, argv);
    lap("application");
    if (bare) {
        QLabel label("One label");
        label.resize(720, 467);
        label.show();
        PaintWatch(&label).wait();
        lap("window");
        settle(500);
    } else {
        Platform::limitCache();
        loadResources();
        QSplashScreen splash(picture(":/new/prefix1/kestrixTypingOrlamu.png"));
        splash.show();
        lap("splash");
        Platform::installFonts();
        lap("fonts");
        tambrel window(nullptr, {std::make_unique<SilentPlayer>(), nullptr});
        lap("window and rooms");
        PaintWatch watch(&window.firstWindow());
        splash.finish(&window.firstWindow());
        watch.wait();
        lap("opening window");
        settle(500);
    }
    for (const Lap &each : laps)
        printf("%s %.2f;", each.name, each.ms);
    printf("PSS %ld\n", kilobytes("smaps_rollup", "Pss:"));
    return 0;
}

// What Platform::prepare() sets is inherited by processes, and a bare Qt program has none of it.
QProcessEnvironment untouched;

struct Started
{
    double total;
    QString laps;
    long pss;
};

Started start(const char *mode)
{
    QProcess process;
    process.setProcessEnvironment(untouched);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(),
                  {mode, QString::number(nowMs(), 'f', 3)});
    process.waitForFinished();
    QStringList parts = QString::fromUtf8(process.readAll()).trimmed().split(';');
    const long pss = parts.takeLast().section(' ', -1).toLong();
    QString laps;
    double before = 0;
    for (const QString &part : qAsConst(parts)) {
        const double at = part.section(' ', -1).toDouble();
        laps += part.section(' ', 0, -2) + " " + QString::number(at - before, 'f', 0) + ", ";
        before = at;
    }
    laps.chop(2);
    return {before, laps, pss};
}

void startUp()
{
    std::vector<Started> bare, full;
    for (int i = 0; i < 9; ++i) {
        bare.push_back(start("--bare"));
        full.push_back(start("--full"));
    }
    const auto middle = [](std::vector<Started> &runs) {
        std::sort(runs.begin(), runs.end(), [](auto &a, auto &b) { return a.total < b.total; });
        return runs[runs.size() / 2];
    };
    const Started b = middle(bare), f = middle(full);
    row("start to opening window, median of 9", QString("%1 ms, bare %2 ms, ratio %3")
                                                    .arg(f.total, 0, 'f', 0)
                                                    .arg(b.total, 0, 'f', 0)
                                                    .arg(f.total / b.total, 0, 'f', 2));
    row("  where it goes, ms", f.laps);
    row("  where the bare one's goes, ms", b.laps);
    row("memory (PSS) at the opening window", QString("%1 MiB, bare %2 MiB")
                                                  .arg(f.pss / 1024.0, 0, 'f', 1)
                                                  .arg(b.pss / 1024.0, 0, 'f', 1));
    figure("start to opening window", f.total, "ms");
    figure("memory at the opening window", f.pss / 1024., "MiB");
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc == 3 && (!strcmp(argv[1], "--bare") || !strcmp(argv[1], "--full")))
        return firstWindow(QString(argv[2]).toDouble(), argv[1][2] == 'b');

    untouched = QProcessEnvironment::systemEnvironment();
    Platform::prepare();
    QApplication application(argc, argv);
    Platform::limitCache();
    loadResources();
    Platform::installFonts();
    const struct
    {
        const char *name;
        std::function<void()> run;
    } rows[] = {
        {"start", startUp},
        {"press", keyPress},
        {"repaint", repaint},
        {"fade", fade},
        {"blocking", blocking},
        {"memory", [] { presses("10,000 random presses in a game", false); }},
        {"sound", [] { presses("10,000 presses with a sound, no device", true); }},
        {"bursts", bursts},
        {"opening", idleOpening},
        {"board", idleBoard},
        {"options", [] { idleOptions("idle board with the options open", nullptr); }},
        {"panel",
         [] {
             idleOptions("  and Color Madness open", &Ui_tambrel::menuColorMadness);
             idleOptions("  and Kestrix Keyboard open, 12 animations",
                         &Ui_tambrel::menuKestrixKeyboard);
         }},
    };
    QStringList wanted = application.arguments().mid(1);
    if (wanted.value(0) == "--figures") {
        if (!writeFiguresTo(wanted.value(1))) {
            fprintf(stderr, "bench: cannot write %s\n", qPrintable(wanted.value(1)));
            return 1;
        }
        wanted = wanted.mid(2);
    }
    row("what", "figure");
    row("---", "---");
    for (const auto &each : rows) {
        if (wanted.isEmpty() || wanted.contains(each.name))
            each.run();
    }
    return 0;
}
