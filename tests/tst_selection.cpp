#include "waves.h"
#include "window.h"

namespace {

const QStringList shields{"shieldConsonants", "shieldVarious", "shieldNumberLine",
                          "shieldEverything", "shieldStart"};

// The wave: sweeps as "keys@first step" ("+" puts back), or single keys as "step:key" and
// from there on one key per step; at last the step that ends it.
const struct Selector
{
    const char *button; // without "pb"
    const char *radios; // direction, set, the very choice
    const char *direction;
    const char *type;
    int length;
    const char *typeOfGame;
    const char *wave;
} selectors[] = {
    // 8 and 9 share a step, and 89 catches up.
    {"ForwardAll", "rbForward_2 rbAll forAll", "Forward", "Everything !!", 94, "a - ?",
     "1-8@1 9-88@8 89-94@89 +1-94@95 189"},
    {"ForwardConsonants", "rbForward_2 rbConsonants forCon", "Forward", "Uppercase", 26, "A - Z",
     "27-52@1 +27-52@27 53"},
    // Nothing happens at step 35.
    {"ForwardVarious", "rbForward_2 rbVarious forVar", "Forward", "Lowercase", 26, "a - z",
     "1-8@1 9-26@8 +1-9@26 +10-26@36 53"},
    {"ForwardNumberLine", "rbForward_2 rbNumberLine forNum", "Forward", "Number Line", 42, "` - ?",
     "53-94@1 +53-94@43 85"},
    {"ReverseAll", "rbReverse_2 rbAll revAll", "Reverse", "Everything !!", 94, "? - a",
     "94-1@1 +94-1@95 189"},
    {"ReverseConsonants", "rbReverse_2 rbConsonants revCon", "Reverse", "Uppercase", 26, "Z - A",
     "52-27@1 +52-27@27 53"},
    {"ReverseVarious", "rbReverse_2 rbVarious revVar", "Reverse", "Lowercase", 26, "z - a",
     "26-1@1 +26-1@27 53"},
    {"ReverseNumberLine", "rbReverse_2 rbNumberLine revNum", "Reverse", "Number Line", 42, "? - `",
     "94-53@1 +94-53@43 85"},
    // Ten keys are missing.
    {"RandomAll", "rbRandom_2 rbAll ranAll", "Random", "Everything !!", 94, "x $ W",
     "1:70 23 51 29 38 55 53 25 6 14 54 71 42 1 3 5 17 30 74 22 86 58 67 85 47 59 77 80 48 72 65 "
     "44 31 46 2 34 10 60 7 4 94 35 28 9 37 12 11 26 78 73 81 57 13 27 76 18 45 63 69 66 24 50 68 "
     "43 49 64 84 33 56 15 82 79 83 32 36 52 40 39 19 20 61 16 62 41 85"},
    {"RandomConsonants", "rbRandom_2 rbConsonants ranCon", "Random", "Uppercase", 26, "F Q I",
     "1:38 2:34 3:39 5:35 7:42 9:37 10:47 12:50 14:44 17:45 20:41 21:46 23:51 24:52 26:48 27:49 "
     "31:43 33:36 34:40 35:29 36:32 37:27 38:31 39:30 40:33 41:28 43"},
    // Begins at step 2, and comes to z twice.
    {"RandomVarious", "rbRandom_2 rbVarious ranVar", "Random", "Lowercase", 26, "j r w",
     "2:20 11 12 13 1 16 23 5 10 18 26 19 22 2 14 17 3 9 25 24 15 8 26 26"},
    {"RandomNumberLine", "rbRandom_2 rbNumberLine ranNum", "Random", "Number Line", 42, "% 7 [",
     "1:87 92 83 80 94 79 58 85 91 63 90 69 84 59 82 77 89 72 81 60 70 88 74 62 55 61 66 56 65 73 "
     "67 90 71 53 75 68 93 54 74 57 64 76 86 44"},
};

QStringList steps(const QString &wave)
{
    QStringList result;
    QStringList words = wave.split(' ');
    const QString end = words.takeLast();
    int step = 0;
    for (const QString &word : qAsConst(words)) {
        if (word.contains('@')) {
            const QStringList sweep = word.split(QRegExp("[-@]"));
            const int first = sweep[0].toInt(); // a "+" is a sign like any other
            const int last = sweep[1].toInt();
            for (int i = 0; i <= qAbs(last - first); ++i)
                result << QString(word[0] == '+' ? "%1 off %2" : "%1 on %2")
                              .arg(sweep[2].toInt() + i)
                              .arg(last < first ? first - i : first + i);
        } else {
            step = word.contains(':') ? word.section(':', 0, 0).toInt() : step + 1;
            const QString key = word.section(':', -1);
            result << QString("%1 on %2").arg(step).arg(key)
                   << QString("%1 off %2").arg(step + 1).arg(key);
        }
    }
    return result << end + " end 0";
}

} // namespace

class TestSelection : public WindowTest
{
    Q_OBJECT

    QStringList passed; // cells that wore the passing look, in order

    bool eventFilter(QObject *object, QEvent *event) override
    {
        const auto *label = qobject_cast<QLabel *>(object);
        if (event->type() == QEvent::StyleChange && label &&
            label->styleSheet() == "background-color: black; color:blue;font-family: Calibri;")
            passed << label->objectName();
        return false;
    }
    QStringList shieldsShown() const
    {
        QStringList result = shields;
        result.erase(std::remove_if(result.begin(), result.end(),
                                    [this](const QString &name) { return !shown(name); }),
                     result.end());
        return result;
    }
    QPoint centre(const QString &name) const
    {
        auto *widget = find<QWidget>(name);
        return widget->mapTo(window.get(), widget->rect().center());
    }
    // As the mouse does it: whatever lies on top gets the click.
    void clickAt(const QPoint &place)
    {
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    }

private slots:
    void choiceIsStored_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("when");
        for (int i = 0; i < 12; ++i) {
            for (const char *when : {"idle", "animation off", "in a game"})
                QTest::addRow("%s, %s", selectors[i].button, when) << i << when;
        }
    }
    void choiceIsStored()
    {
        QFETCH(int, row);
        QFETCH(QString, when);
        const Selector &selector = selectors[row];
        if (when != "idle")
            click(when == "in a game" ? "start" : "animationOff");
        click(row < 4 ? "pbRandomConsonants" : "pbForwardVarious"); // must leave no trace
        click(QString("pb") + selector.button);
        QStringList radios =
            QString("rbForward_2 rbReverse_2 rbRandom_2 rbAll rbConsonants rbVarious rbNumberLine")
                .split(' ');
        for (const Selector &other : selectors)
            radios << QString(other.radios).section(' ', 2);
        QStringList checked;
        for (const QString &radio : qAsConst(radios)) {
            QVERIFY(!find<QWidget>(radio)->isVisible());
            if (find<QAbstractButton>(radio)->isChecked())
                checked << radio;
        }
        QCOMPARE(checked.join(' '), QString(selector.radios));
        QCOMPARE(text("direction"), QString(selector.direction));
        QCOMPARE(text("type"), QString(selector.type));
        QCOMPARE(text("typeOfGame"), QString(selector.typeOfGame));
        QCOMPARE(game().gameLength, selector.length);
        QCOMPARE(shieldsShown(), when == "idle" ? shields : QStringList());
    }

    void defaultsAndToolTips()
    {
        QCOMPARE(text("direction") + text("type") + text("typeOfGame"),
                 QString("ForwardEverything !!a - ?"));
        QCOMPARE(shieldsShown(), QStringList());
        const QString special = "Number line plus special characters\n";
        const QString random = "Random order\nStops when there are 200 correct entries";
        QStringList tips;
        for (const Selector &selector : selectors)
            tips << find<QWidget>(QString("pb") + selector.button)->toolTip();
        QCOMPARE(tips,
                 (QStringList{"Lowercase, Uppercase, then Number Line Plus+\nForward direction",
                              "Forward order", "Forward order", special + "Forward order",
                              "Number Line Plus+,  Uppercase, then Lowercase\nReverse direction",
                              "Reverse order", "Reverse order", special + "reverse order", random,
                              random, random, special + random}));
    }

    void waves_data()
    {
        QTest::addColumn<int>("row");
        for (int i = 0; i < 12; ++i)
            QTest::newRow(selectors[i].button) << i;
    }
    void waves()
    {
        QFETCH(int, row);
        const Direction directions[] = {Direction::Forward, Direction::Reverse, Direction::Random};
        const Keys::Set sets[] = {Keys::Set::Everything, Keys::Set::Uppercase, Keys::Set::Lowercase,
                                  Keys::Set::NumberLine};
        const char *const what[] = {"on", "off", "end"};
        QStringList actual;
        for (const Waves::Step &step : Waves::wave(directions[row / 4], sets[row % 4]))
            actual << QString("%1 %2 %3").arg(step.step).arg(what[step.what]).arg(step.key);
        QCOMPARE(actual, steps(selectors[row].wave));
    }

    void waveRunsAndRests_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<int>("count");
        QTest::newRow("pbForwardAll") << "r1 r2 r3" << 94;
        QTest::newRow("pbReverseNumberLine") << "r94 r93 r92" << 42;
        QTest::newRow("pbRandomConsonants") << "r38 r34 r39" << 26;
        QTest::newRow("pbRandomVarious") << "r20 r11 r12" << 23;
    }
    void waveRunsAndRests()
    {
        QFETCH(QString, first);
        QFETCH(int, count);
        game().delayStep = 1;
        game().randomDelayStep = 1;
        passed.clear();
        for (QLabel *cell : qAsConst(window->board().widgets.alphabetLabelList))
            cell->installEventFilter(this);
        click(QTest::currentDataTag());
        game().delayStep = 1000; // read when the button was pressed, not later
        QCOMPARE(shieldsShown(), shields);
        QTRY_COMPARE(shieldsShown(), QStringList());
        QCOMPARE(passed.mid(0, 3).join(' '), first);
        QCOMPARE(passed.size(), count);
        for (int key = 1; key <= 94; ++key)
            QCOMPARE(sheet(QString("r%1").arg(key)), QString("color: white;font-family: Calibri;"));
    }

    void shieldsKeepTheMouseOut()
    {
        QStringList buttons{"start"};
        for (const Selector &selector : selectors)
            buttons << QString("pb") + selector.button;
        click("pbForwardVarious");
        for (const QString &button : qAsConst(buttons)) {
            QVERIFY2(shields.contains(window->childAt(centre(button))->objectName()),
                     qPrintable(button));
            clickAt(centre(button));
        }
        QVERIFY(!game().gameRunning);
        QCOMPARE(text("typeOfGame"), QString("a - z"));
        for (const char *free : {"stop", "soft", "strict", "on", "off", "animationOff",
                                 "goldenHighlight", "pbQuit", "helpButton"})
            QCOMPARE(window->childAt(centre(free)), find<QWidget>(free));
        for (const QString &shield : shields)
            find(shield)->hide();
        for (const QString &button : qAsConst(buttons))
            QCOMPARE(window->childAt(centre(button)), find<QWidget>(button));
        clickAt(centre("pbReverseNumberLine"));
        QCOMPARE(text("typeOfGame"), QString("? - `"));
    }

    void anotherDirectionInMidGameSilencesTheJudge()
    {
        click("start");
        enterTarget();
        click("pbReverseAll");
        for (const char *entry : {"b", "x"}) {
            type(entry);
            space();
        }
        QVERIFY(game().gameRunning);
        QCOMPARE(text("leMatch"), QString("b"));
        QCOMPARE(text("labelCorrect") + text("labelIncorrect"), QString("10"));
        click("start");
        QCOMPARE(text("leMatch"), QString("?"));
        enterTarget();
        QCOMPARE(text("leMatch"), QString(">"));
    }

    void anotherSetInMidGameMovesTheEnd()
    {
        click("animationOff");
        click("pbForwardVarious");
        click("start");
        click("pbForwardAll");
        for (int i = 0; i < 27; ++i)
            enterTarget();
        QCOMPARE(text("leMatch"), QString("B"));
        click("pbForwardConsonants"); // shorter than the game is already: judged no more
        enterTarget();
        QVERIFY(game().gameRunning);
        QCOMPARE(game().correctCount, 27);
    }
};

QTEST_MAIN(TestSelection)
#include "tst_selection.moc"
