#include "filechoice.h"
#include "measure.h"
#include "optionrooms.h"
#include "ui_colormadness.h"
#include "ui_tambrel.h"

#include <QColorDialog>
#include <QtWidgets>
#include <algorithm>
#include <functional>

namespace {

constexpr double frameMs = 1000 / 60.;
constexpr int rounds = 5;

// The longest time between two ticks of a timer that is due every millisecond.
class LongestGap : public QObject
{
public:
    LongestGap()
    {
        connect(&timer, &QTimer::timeout, this, [this] {
            const double now = nowMs();
            longest = std::max(longest, now - last);
            last = now;
        });
        timer.setTimerType(Qt::PreciseTimer);
        timer.start(1);
    }
    double during(const std::function<void()> &act, int settleMs)
    {
        settle(50);
        last = nowMs();
        longest = 0;
        act();
        settle(settleMs);
        return longest;
    }

private:
    QTimer timer;
    double last = 0;
    double longest = 0;
};

class NamedFile : public FileChoice
{
public:
    explicit NamedFile(const QString &named) : file(named) {}
    QStringList files(const QString &) override { return {file}; }
    QString toOpen(const QString &) override { return file; }
    QString toSave(const QString &, const QString &) override { return file; }

private:
    const QString &file;
};

// As the window tells the room behind the label.
void clickLabel(QWidget *label)
{
    const QPoint at = label->rect().center();
    QMouseEvent press(QEvent::MouseButtonPress, label->mapTo(label->window(), at),
                      label->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(label->window(), &press);
}

struct Act
{
    QString name;
    std::function<void()> perform;
    int settleMs; // until what it started is over
};

} // namespace

void blocking()
{
    QTemporaryDir folder;
    QString file;
    LongestGap gap;
    QMap<int, std::vector<double>> gaps;
    QStringList names;
    for (int round = 0; round < rounds; ++round) {
        std::unique_ptr<tambrel> window;
        const auto button = [&](const QString &name) {
            return [&window, name] {
                auto *found = window->findChild<QAbstractButton *>(name);
                if (!found)
                    qFatal("no button %s", qPrintable(name));
                found->click();
            };
        };
        const auto inAnotherWindow = [](const char *name) {
            return [name] {
                for (QWidget *each : QApplication::topLevelWidgets()) {
                    if (auto *found = each->findChild<QAbstractButton *>(name))
                        return found->click();
                }
            };
        };
        const auto type = [&] {
            for (int i = 0; i < 60; ++i) {
                sendKey(window.get(), QEvent::KeyPress, 'A' + i % 26);
                settle(10);
                sendKey(window.get(), QEvent::KeyRelease, 'A' + i % 26);
            }
        };
        std::vector<Act> acts{
            {"the window is built at the start",
             [&] {
                 window = std::make_unique<tambrel>(
                     nullptr, tambrel::Outside{std::make_unique<SilentPlayer>(),
                                               std::make_unique<NamedFile>(file)});
                 settle(100);
             },
             0},
            {"the panels are built after the start", [] {}, 1500},
            {"Start in the opening window", [&] { window->openTambrel(); }, 500},
            {"Instructions", inAnotherWindow("instructionsButton"), 500},
            {"Start, Everything",
             [&] {
                 button("pbForwardAll")();
                 button("start")();
             },
             300},
            {"60 keys in a game", type, 100},
            {"Stop", button("stop"), 300},
            {"Key Shape",
             [&] {
                 auto *slider = window->furniture().ui.sliderKeyShape;
                 slider->setValue(1 - slider->value());
             },
             500},
            {"Options", button("options"), 1500},
        };
        for (const char *panel : {"menuColorMadness", "menuKestrixKeyboard", "menuFonts",
                                  "menuPhotos", "menuShadows", "menuAudio", "menuGamePlay"})
            acts.push_back({QString(panel).mid(4), button(panel), 400});
        acts.insert(acts.end(), {{"a color dialog, the first time",
                                  [&] { window->options().pickers.enableColor(3); }, 400},
                                 {"a color is dragged",
                                  [&] {
                                      for (int i = 0; i < 20; ++i) {
                                          window->options().pickers.dialog(3).setCurrentColor(
                                              QColor(10 * i, 90, 200 - 10 * i));
                                          settle(10);
                                      }
                                  },
                                  100},
                                 {"a color dialog closes",
                                  [&] { window->options().pickers.closeOther(); }, 200},
                                 {"Theme 1",
                                  [&] {
                                      const auto &madness = *window->options().forms.colorMadness;
                                      if (madness.tabWidget->isHidden())
                                          button("menuColorMadness")();
                                      clickLabel(madness.labelTab10);
                                      clickLabel(madness.theme1);
                                  },
                                  300},
                                 {"a keyboard theme is saved",
                                  [&] {
                                      file = folder.filePath("k.txt");
                                      button("saveKeyboard")();
                                  },
                                  100},
                                 {"a keyboard theme is opened", button("openKeyboard"), 300}});
        for (size_t i = 0; i < acts.size(); ++i) {
            const double longest = gap.during(acts[i].perform, acts[i].settleMs);
            gaps[int(i)].push_back(longest);
            if (round == 0)
                names << acts[i].name;
        }
    }
    row("longest wait of the window, least of 5", "");
    for (int i = 0; i < names.size(); ++i) {
        const double longest = *std::min_element(gaps[i].begin(), gaps[i].end());
        row(qPrintable("  " + names[i]), ms(longest) + (longest > frameMs ? ", over a frame" : ""));
        figure(qPrintable("wait: " + names[i]), longest, "ms");
    }
}
