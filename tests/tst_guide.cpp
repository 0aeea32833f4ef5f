#include "instructor.h"
#include "timers.h"
#include "window.h"

namespace {

// Lets the pending single-shot timers run at a time of its own, in the order of their
// delays. Qt keeps such timers as children of the event dispatcher.
class DrivenClock
{
public:
    void advance(int ms)
    {
        const int end = now + ms;
        while (const auto *next = earliest()) {
            if (next->due > end)
                break;
            const Pending timer = *next;
            pending.removeAt(int(next - pending.constData()));
            now = timer.due;
            QTimerEvent event(timer.id);
            if (timer.object)
                QCoreApplication::sendEvent(timer.object, &event);
        }
        now = end;
    }

private:
    struct Pending
    {
        QPointer<QObject> object;
        int id;
        int due;
    };
    const Pending *earliest()
    {
        auto *dispatcher = QAbstractEventDispatcher::instance();
        for (QObject *child : dispatcher->children()) {
            const auto timers = dispatcher->registeredTimers(child);
            const auto known = [child](const Pending &timer) { return timer.object == child; };
            if (!timers.isEmpty() && std::none_of(pending.begin(), pending.end(), known))
                pending.append({child, timers[0].timerId, now + timers[0].interval});
        }
        const auto first = std::min_element(
            pending.constBegin(), pending.constEnd(),
            [](const Pending &left, const Pending &right) { return left.due < right.due; });
        return first == pending.constEnd() ? nullptr : &*first;
    }

    int now = 0;
    QVector<Pending> pending;
};

const QString lower = "font-family: Low;";
const QString upper = "font-family: Upp;";
const QString out = "background-color: transparent;";

} // namespace

class TestGuide : public WindowTest
{
    Q_OBJECT

    std::unique_ptr<DrivenClock> clock;

    void prepare() override
    {
        clock = std::make_unique<DrivenClock>();
        clock->advance(0); // takes note of the tour that has just been armed
        Looks &looks = window->board().looks;
        looks.lowerFontStyle = lower;
        looks.upperFontStyle = upper;
        looks.finished.bgStyle = "background-color: #222222;";
        looks.finishedTextStyle = "color: #111111;";
        looks.demRadiusStyle = "border-radius: 3px;";
        click("animationOff");
        std::srand(1);
    }
    void start(const QString &set)
    {
        click(set);
        click("start");
    }
    // What a player sees of the tour.
    QString tour() const
    {
        QStringList seen;
        for (const char *frame : {"demo1", "demo2", "demo3", "demo4"}) {
            if (shown(frame) && sheet(frame).contains("lightsteelblue"))
                seen << frame;
        }
        for (const char *arrow : {"arrow1", "arrow2", "arrow3", "arrow6"}) {
            if (shown(arrow) && window->rect().intersects(find(arrow)->geometry()))
                seen << arrow;
        }
        return seen.join(' ');
    }
    // What the instructor says at each new target; targets without a word are left out.
    QMap<QString, QString> remarks(int entries)
    {
        QMap<QString, QString> said;
        for (int i = 0; i < entries; ++i) {
            find("display2")->clear();
            enterTarget();
            if (!text("display2").isEmpty())
                said[text("leMatch")] = text("display2");
        }
        return said;
    }
    QString samplesWorn() const
    {
        const QString look = "border-radius: 3px;background-color: #222222;color: #111111;"
                             "font-size: 20pt;";
        QString result;
        for (const char *name : {"dem1", "dem6", "dem2"}) {
            result += text(name);
            result += sheet(name) == look + lower   ? " lower "
                      : sheet(name) == look + upper ? " upper "
                                                    : sheet(name);
        }
        return result.trimmed();
    }
    void seconds(int count)
    {
        const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(window.get());
        for (int i = 0; i < count; ++i) {
            for (const auto &timer : timers) {
                QTimerEvent event(timer.timerId);
                if (timer.interval == 1000)
                    QCoreApplication::sendEvent(window.get(), &event);
            }
        }
    }
    QString picture() const
    {
        const QImage image = find("piclabel1")->pixmap(Qt::ReturnByValue).toImage();
        for (const char *name : {"chdown", "chmiddle", "chup"}) {
            if (image == QPixmap(QString(":/new/prefix1/%1.png").arg(name)).toImage())
                return name;
        }
        return "none";
    }

private slots:
    void tourWalksInACycle()
    {
        const QString lit = "background-color: lightsteelblue;  border: 1px solid black;";
        const QString last = "background-color: lightsteelblue; border: 1px solid black;";
        const struct
        {
            int ms; // from the step before
            const char *seen;
            QStringList frames; // their sheets
        } steps[] = {{1, "demo1 arrow1 arrow2 arrow3", {lit, out, out, out}},
                     {3500, "demo2", {out, lit, out, out}},
                     {3500, "demo3", {out, out, lit, out}},
                     {3500, "demo4", {out, out, out, last}},
                     {3500, "arrow6", {out, out, out, out}},
                     {50 + 3499, "arrow6", {out, out, out, out}}};
        clock->advance(3499);
        QCOMPARE(tour(), QString());
        for (int round = 0; round < 2; ++round) {
            for (int i = 0; i < 6; ++i) {
                clock->advance(steps[i].ms);
                QCOMPARE(tour(), QString(steps[i].seen));
                if (round == 1)
                    QCOMPARE((QStringList{sheet("demo1"), sheet("demo2"), sheet("demo3"),
                                          sheet("demo4")}),
                             steps[i].frames);
            }
        }
        QCOMPARE(find("arrow1")->pos(), QPoint(8, 178));
        QCOMPARE(find("arrow2")->pos(), QPoint(52, 178));
        QCOMPARE(find("arrow3")->pos(), QPoint(96, 178));
        QCOMPARE(find("arrow6")->pos(), QPoint(938, 42));
    }

    void startEndsTheTour_data()
    {
        QTest::addColumn<int>("ms");
        QTest::newRow("before its first step") << 10;
        QTest::newRow("step 1, arrows at the column") << 3600;
        QTest::newRow("step 2") << 7100;
        QTest::newRow("step 4") << 14100;
        QTest::newRow("last arrow, before the next cycle is armed") << 17520;
        QTest::newRow("last arrow, next cycle armed") << 17600;
    }
    void startEndsTheTour()
    {
        QFETCH(int, ms);
        clock->advance(ms);
        click("start");
        for (int i = 0; i < 100; ++i) {
            QCOMPARE(tour(), QString());
            if (i == 40)
                click("stop");
            if (i == 50)
                window->openTambrel(); // back from the opening window
            clock->advance(400);
        }
        QVERIFY(!shown("display3")); // the greeting, gone for good too
    }

    void hintsAtTheirLetters()
    {
        const QString above = "First letter is above\nthe last letter";
        const QString row = "Three in a row, on\ndifferent levels with\nsame finger";
        const QString bar = "One of the many in\nsequence with the \nabc bar";
        const QString hidden = "Hidden word out\nof sequence";
        const QString inSequence = "Hidden word\nin sequence";
        const QString below = "Last letter is below\nthe first letter";
        const QMap<QString, QString> expected{{"b", above},
                                              {"B", above},
                                              {"d", row},
                                              {"D", row},
                                              {"g", bar},
                                              {"G", bar},
                                              {"i", hidden},
                                              {"I", hidden},
                                              {"p", inSequence},
                                              {"P", inSequence},
                                              {"A", below},
                                              {"`", below},
                                              {"#", "This used to be the\ncent symbol - \u00a2"}};
        start("pbForwardAll");
        QCOMPARE(text("display2"), QString());
        QCOMPARE(remarks(93), expected);
        for (const char *set : {"pbReverseAll", "pbRandomAll"}) {
            start("pbForwardAll");
            enterTarget(); // leaves its index behind
            start(set);
            QCOMPARE(text("display2"), QString());
            QCOMPARE(remarks(93), (QMap<QString, QString>()));
        }
    }

    void greetingAtStart_data()
    {
        QTest::addColumn<QString>("greeting");
        QTest::newRow("pbForwardConsonants") << "Last letter is below\nthe first letter";
        QTest::newRow("pbForwardNumberLine") << "Last letter is below\nthe first letter";
        QTest::newRow("pbForwardVarious") << QString();
        QTest::newRow("pbReverseConsonants") << QString();
        QTest::newRow("pbRandomNumberLine") << QString();
    }
    void greetingAtStart()
    {
        QFETCH(QString, greeting);
        QCOMPARE(text("display3"), QString("Hello. \nI am your \ninstructor."));
        QVERIFY(shown("display3"));
        start(QTest::currentDataTag());
        QVERIFY(!shown("display3") && text("display3").isEmpty());
        QCOMPARE(text("display2"), greeting);
        start("pbForwardVarious");
        QCOMPARE(text("display2"), QString());
        enterTarget();
        start(QTest::currentDataTag()); // out of a game
        clock->advance(6999);
        QCOMPARE(text("display2"), greeting);
        clock->advance(1);
        QCOMPARE(text("display2"), QString());
    }

    void fadeOutDoesNotWorkWithRandom()
    {
        game().fade = GameState::Fade::OutIn;
        start("pbRandomVarious");
        QCOMPARE(text("display2"), QString());
        game().fade = GameState::Fade::Out;
        start("pbForwardVarious");
        QCOMPARE(text("display2"), QString());
        start("pbRandomVarious");
        QCOMPARE(text("display2"), QString("Fade Out does not\nwork with Random."));
        clock->advance(7000);
        QCOMPARE(text("display2"), QString());
        enterTarget();
        clock->advance(6999);
        QCOMPARE(text("display2"), QString("Fade Out does not work with Random"));
        clock->advance(1);
        QCOMPARE(text("display2"), QString());
    }

    void closingQuestion_data()
    {
        QTest::addColumn<int>("entries");
        QTest::newRow("pbForwardVarious") << 26;
        QTest::newRow("pbReverseConsonants") << 26;
        QTest::newRow("pbRandomAll") << 5;
    }
    void closingQuestion()
    {
        QFETCH(int, entries);
        const QString question = "Would you like\nto play again?";
        game().randomEndCount = 5;
        start(QTest::currentDataTag());
        for (int i = 0; i < entries; ++i)
            enterTarget();
        clock->advance(1999);
        QVERIFY(text("display2") != question);
        clock->advance(1);
        QCOMPARE(text("display2"), question);
        click("start");
        QCOMPARE(text("display2"), QString());
        click("stop"); // does not ask
        clock->advance(3000);
        QCOMPARE(text("display2"), QString());
    }

    void notesFold()
    {
        for (const QString side : {"Left", "Right"}) {
            const QString button = "buttonInstructions" + side;
            const QString note = "labelInstructions" + side;
            QVERIFY(shown(note) && text(button) == "<");
            click(button);
            click("start");
            click("stop");
            QVERIFY(!shown(note) && text(button) == ">>>");
            click(button);
            QVERIFY(shown(note) && text(button) == "<");
        }
    }

    void sample_data()
    {
        QTest::addColumn<QString>("target"); // wins over the set
        QTest::addColumn<QString>("shown");
        QTest::newRow("pbForwardAll") << ""
                                      << "a lower b lower c lower";
        QTest::newRow("pbReverseVarious") << ""
                                          << "a lower b lower c lower";
        QTest::newRow("pbRandomConsonants") << ""
                                            << "A upper B upper C upper";
        QTest::newRow("pbForwardNumberLine") << ""
                                             << "` lower 1 lower 2 lower";
        QTest::newRow("pbForwardVarious, A") << "A"
                                             << "a upper b upper c upper";
        QTest::newRow("pbForwardVarious, C") << "C"
                                             << "a upper b upper c upper";
        QTest::newRow("pbForwardVarious, D") << "D"
                                             << "a lower b lower c lower";
        QTest::newRow("pbForwardConsonants, c") << "c"
                                                << "A lower B lower C lower";
        QTest::newRow("pbForwardConsonants, d") << "d"
                                                << "A upper B upper C upper";
    }
    void sample()
    {
        QFETCH(QString, target);
        QFETCH(QString, shown);
        find<QLineEdit>("leMatch")->setText(target);
        click("pbReverseNumberLine");
        click(QString(QTest::currentDataTag()).section(',', 0, 0));
        QCOMPARE(samplesWorn(), shown);
        find("dem6")->setText("!");
        click("start"); // copies the letters once more
        QCOMPARE(samplesWorn(), shown);
    }

    void messages()
    {
        Timers timers(*window);
        Instructor instructor(window->board(), timers);
        click("start");
        instructor.whatAMess();
        QCOMPARE(text("display2"), QString("\n\"What a Mess.\n\nWait for it.\""));
        instructor.insMessages();
        QCOMPARE(text("display2"), QString());
        QCOMPARE(text("display3"), QString("forward vowels"));
        clock->advance(1999);
        QVERIFY(shown("display3") && !shown("table"));
        clock->advance(1);
        QVERIFY(!shown("display3"));
        // The two aids put an end to a message when they are turned on.
        for (const char *button : {"goldenHighlight", "lineHighlight"}) {
            find("display2")->setText("a text");
            click(button);
            clock->advance(4999);
            QCOMPARE(text("display2"), QString("a text"));
            clock->advance(1);
            QCOMPARE(text("display2"), QString());
        }
    }

    void instructorLooksUp()
    {
        click("start");
        // Seconds of the game and then ms, from the row before; the delays carry the tick.
        const struct
        {
            int seconds;
            int ms;
            const char *picture;
        } steps[] = {{19, 9999, "chdown"}, {1, 219, "chdown"}, {0, 1, "chmiddle"},
                     {0, 49, "chmiddle"},  {0, 1, "chup"},     {0, 1750, "chmiddle"},
                     {0, 2000, "chup"},    {0, 1999, "chup"},  {0, 1, "chdown"},
                     {19, 9999, "chdown"}, {1, 239, "chdown"}, {0, 1, "chmiddle"}};
        for (const auto &step : steps) {
            seconds(step.seconds);
            clock->advance(step.ms);
            QCOMPARE(picture(), QString(step.picture));
        }
        click("stop"); // he looks down at the next step and stays so
        for (int ms : {50, 2000, 2000, 2000}) {
            clock->advance(ms);
            QCOMPARE(picture(), QString("chdown"));
        }
        click("start"); // the count starts anew
        seconds(19);
        clock->advance(5000);
        QCOMPARE(picture(), QString("chdown"));
    }
};

QTEST_MAIN(TestGuide)
#include "tst_guide.moc"
