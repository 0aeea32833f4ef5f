#include "waves.h"
#include "window.h"

namespace {
const QStringList directions{"Forward", "Reverse", "Random"};
const QStringList sets{"All", "Consonants", "Various", "NumberLine"};

// The twelve, by direction and set: the text beside them, the wave as sweeps "keys@first step" ("+"
// puts back) or as single keys, one per step, some with "step:" before them, and the last step.
const QString selectors[] = {
    "a - ?=1-8@1 9-88@8 89-94@89 +1-94@95=189", // 8 and 9 share a step, and 89 catches up
    "A - Z=27-52@1 +27-52@27=53",
    "a - z=1-8@1 9-26@8 +1-9@26 +10-26@36=53", // nothing at step 35
    "` - ?=53-94@1 +53-94@43=85",
    "? - a=94-1@1 +94-1@95=189",
    "Z - A=52-27@1 +52-27@27=53",
    "z - a=26-1@1 +26-1@27=53",
    "? - `=94-53@1 +94-53@43=85",
    "x $ W=1:70 23 51 29 38 55 53 25 6 14 54 71 42 1 3 5 17 30 74 22 86 58 67 85 47 59 77 80 48 72 "
    "65 44 31 46 2 34 10 60 7 4 94 35 28 9 37 12 11 26 78 73 81 57 13 27 76 18 45 63 69 66 24 50 "
    "68 43 49 64 84 33 56 15 82 79 83 32 36 52 40 39 19 20 61 16 62 41=85", // ten keys are missing
    "F Q I=1:38 2:34 3:39 5:35 7:42 9:37 10:47 12:50 14:44 17:45 20:41 21:46 23:51 24:52 26:48 "
    "27:49 31:43 33:36 34:40 35:29 36:32 37:27 38:31 39:30 40:33 41:28=43",
    "j r w=2:20 11 12 13 1 16 23 5 10 18 26 19 22 2 14 17 3 9 25 24 15 8 26=26", // z twice
    "% 7 [=1:87 92 83 80 94 79 58 85 91 63 90 69 84 59 82 77 89 72 81 60 70 88 74 62 55 61 66 56 "
    "65 73 67 90 71 53 75 68 93 54 74 57 64 76 86=44",
};

QStringList steps(const QString &selector)
{
    QStringList result;
    int step = 0;
    for (const QString &word : selector.section('=', 1, 1).split(' ')) {
        const QStringList parts = word.split(QRegExp("[-@:]"));
        if (parts.size() == 3) {
            const int first = parts[0].toInt(); // a "+" is a sign like any other
            const int count = parts[1].toInt() - first;
            const QString line = word[0] == '+' ? "%1 off %2" : "%1 on %2";
            for (int i = 0; i <= qAbs(count); ++i)
                result << line.arg(parts[2].toInt() + i).arg(count < 0 ? first - i : first + i);
        } else {
            step = parts.size() == 2 ? parts[0].toInt() : step + 1;
            result << QString("%1 on %2").arg(step).arg(parts.last())
                   << QString("%1 off %2").arg(step + 1).arg(parts.last());
        }
    }
    return result << selector.section('=', 2) + " end 0";
}
} // namespace

class TestSelection : public WindowTest
{
    Q_OBJECT

    int passed = 0; // cells that wore the passing look

    bool eventFilter(QObject *cell, QEvent *event) override
    {
        if (event->type() == QEvent::StyleChange &&
            cell->property("styleSheet").toString().startsWith("background-color: black"))
            ++passed;
        return false;
    }
    static QString button(int i) { return "pb" + directions[i / 4] + sets[i % 4]; }
    bool shielded() const { return shown("shieldStart"); }
    QPoint centre(const QString &name) const
    {
        return find<QWidget>(name)->mapTo(window.get(), find<QWidget>(name)->rect().center());
    }
    QString onTop(const QString &name) { return window->childAt(centre(name))->objectName(); }

private slots:
    void choiceIsStored()
    {
        QVERIFY(!shielded() && text("typeOfGame") == "a - ?");
        QCOMPARE(find<QWidget>("pbForwardConsonants")->toolTip(), QString("Forward order"));
        QVERIFY(find<QWidget>("pbRandomAll")->toolTip().endsWith("there are 200 correct entries"));
        const QStringList types{"Everything !!", "Uppercase", "Lowercase", "Number Line"};
        for (int i = 0; i < 36; ++i) {
            const int row = i % 12;
            const QString direction = directions[row / 4];
            const QString set = sets[row % 4];
            open();
            if (i >= 12) // without the wave
                click(i < 24 ? "start" : "animationOff");
            click(row < 4 ? "pbRandomConsonants" : "pbForwardVarious"); // must leave no trace
            click(button(row));
            const QString own = direction.left(3).toLower() + set.left(3);
            QSet<QString> checked;
            const QRegularExpression radios("^(rb|for|rev|ran)[A-Z]");
            for (const auto *radio : window->findChildren<QAbstractButton *>(radios)) {
                if (radio->isChecked() && !radio->isVisible())
                    checked << radio->objectName();
            }
            QCOMPARE(checked, (QSet<QString>{"rb" + direction + "_2", "rb" + set, own}));
            QCOMPARE(text("direction") + text("type"), direction + types[row % 4]);
            QCOMPARE(text("typeOfGame"), selectors[row].section('=', 0, 0));
            QCOMPARE(game().gameLength, QVector<int>({94, 26, 26, 42})[row % 4]);
            QCOMPARE(shielded(), i < 12);
        }
    }

    void waves()
    {
        const Keys::Set keys[] = {Keys::Set::Everything, Keys::Set::Uppercase, Keys::Set::Lowercase,
                                  Keys::Set::NumberLine};
        const char *const what[] = {"on", "off", "end"};
        for (int i = 0; i < 12; ++i) {
            QStringList actual;
            for (const auto &step : Waves::wave(static_cast<Direction>(i / 4), keys[i % 4]))
                actual << QString("%1 %2 %3").arg(step.step).arg(what[step.what]).arg(step.key);
            QCOMPARE(actual, steps(selectors[i]));
        }
    }

    void waveRunsAndRests()
    {
        for (const char *name : {"pbForwardAll", "pbRandomVarious"}) {
            game().delayStep = game().randomDelayStep = 1;
            passed = 0;
            const auto cells = window->board().widgets.alphabetLabelList;
            for (QLabel *cell : cells)
                cell->installEventFilter(this);
            click(name);
            game().delayStep = 1000; // read when the button was pressed, not later
            QVERIFY(shielded());
            QTRY_VERIFY(!shielded());
            QCOMPARE(passed, name == QString("pbForwardAll") ? 94 : 23);
            for (const QLabel *cell : cells)
                QCOMPARE(cell->styleSheet(), QString("color: white;font-family: Calibri;"));
        }
    }

    void shieldsKeepTheMouseOut()
    {
        game().delayStep = 20; // long enough for the clicks
        click("pbForwardVarious");
        QStringList names{"start"};
        for (int i = 0; i < 12; ++i)
            names << button(i);
        for (const QString &name : qAsConst(names)) {
            QVERIFY2(onTop(name).startsWith("shield"), qPrintable(name));
            QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, centre(name));
        }
        QVERIFY(!game().gameRunning && text("typeOfGame") == "a - z");
        for (const char *free :
             {"stop", "soft", "on", "off", "animationOff", "pbQuit", "helpButton"})
            QCOMPARE(onTop(free), QString(free));
        QTRY_VERIFY(!shielded());
        for (const QString &name : qAsConst(names))
            QCOMPARE(onTop(name), name);
    }

    void anotherDirectionInMidGameSilencesTheJudge()
    {
        click("start");
        enterTarget();
        click("pbReverseAll");
        enterTarget();
        QVERIFY(game().gameRunning);
        QCOMPARE(text("leMatch") + text("labelCorrect"), QString("b1"));
        click("start");
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
        QVERIFY(game().gameRunning && game().correctCount == 27);
    }
};

QTEST_MAIN(TestSelection)
#include "tst_selection.moc"
