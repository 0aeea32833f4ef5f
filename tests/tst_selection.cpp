#include "waves.h"
#include "window.h"

namespace {
const QStringList directions{"Forward", "Reverse", "Random"};
const QStringList sets{"All", "Consonants", "Various", "NumberLine"};

// The twelve, by direction and set: the text beside them, the wave as sweeps "keys@first step" ("+"
// puts back) and its last step; or, in no order to be told, a sum that any exchange changes.
const QString selectors[] = {
    "a - ?=1-8@1 9-88@8 89-94@89 +1-94@95=189", // 8 and 9 share a step, and 89 catches up
    "A - Z=27-52@1 +27-52@27=53",
    "a - z=1-8@1 9-26@8 +1-9@26 +10-26@36=53", // nothing at step 35
    "` - ?=53-94@1 +53-94@43=85",
    "? - a=94-1@1 +94-1@95=189",
    "Z - A=52-27@1 +52-27@27=53",
    "z - a=26-1@1 +26-1@27=53",
    "? - `=94-53@1 +94-53@43=85",
    "x $ W=509437",
    "F Q I=70341",
    "j r w=15523",
    "% 7 [=211587",
};

QStringList sweeps(const QString &selector)
{
    QStringList result;
    for (const QString &word : selector.section('=', 1, 1).split(' ')) {
        const QStringList parts = word.split(QRegExp("[-@]"));
        const int first = parts[0].toInt(); // a "+" is a sign like any other
        const int way = parts[1].toInt() < first ? -1 : 1;
        const QString line = word[0] == '+' ? "%1 1 %2" : "%1 0 %2";
        for (int i = 0; i <= way * (parts[1].toInt() - first); ++i)
            result << line.arg(parts[2].toInt() + i).arg(first + way * i);
    }
    return result << selector.section('=', 2) + " 2 0";
}
} // namespace

class TestSelection : public WindowTest
{
    Q_OBJECT

    static QString button(int i) { return "pb" + directions[i / 4] + sets[i % 4]; }
    bool shielded() const { return shown("shieldStart"); }
    QPoint center(const QString &name) const
    {
        return find<QWidget>(name)->mapTo(window.get(), find<QWidget>(name)->rect().center());
    }
    // How much of it lies under the veil, percent from the left.
    int veiled(const QString &shield) const
    {
        auto *label = find(shield);
        QImage image(label->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        label->render(&image, {}, {}, QWidget::DrawChildren);
        int columns = 0;
        while (columns < image.width() && qAlpha(image.pixel(columns, image.height() / 2)) > 100)
            ++columns;
        return columns * 100 / image.width();
    }
    QString onTop(const QString &name) { return window->childAt(center(name))->objectName(); }

private slots:
    void veilDrainsWithTheWave()
    {
        click("pbForwardConsonants"); // 53 steps of 50 ms
        for (const QString shield : {"shieldStart", "shieldEverything"}) {
            QVERIFY(veiled(shield) >= 98);
            QVERIFY(!find(shield)->toolTip().isEmpty());
            QCOMPARE(find(shield)->cursor().shape(), Qt::BusyCursor);
        }
        int before = 100;
        for (const int percent : {75, 50, 25}) {
            pass(660);
            QVERIFY(veiled("shieldStart") < before);
            QVERIFY(qAbs(veiled("shieldStart") - percent) <= 3);
            before = veiled("shieldStart");
        }
        pass(700);
        QVERIFY(!shielded());
        click("pbRandomVarious"); // whole again
        QVERIFY(veiled("shieldStart") >= 98);
    }

    void choiceIsStored()
    {
        QVERIFY(!shielded() && text("typeOfGame") == "a - ?");
        const QStringList types{"Everything !!", "Uppercase", "Lowercase", "Number Line"};
        for (int i = 0; i < 36; ++i) {
            const int row = i % 12;
            const QString direction = directions[row / 4], set = sets[row % 4];
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
            const int lengths[] = {94, 26, 26, 42};
            QVERIFY(game().gameLength == lengths[row % 4] && shielded() == (i < 12));
        }
    }

    void waves()
    {
        const Keys::Set keys[] = {Keys::Set::Everything, Keys::Set::Uppercase, Keys::Set::Lowercase,
                                  Keys::Set::NumberLine};
        for (int i = 0; i < 12; ++i) {
            QStringList actual;
            int sum = 0;
            for (const auto &step : Waves::wave(static_cast<Direction>(i / 4), keys[i % 4])) {
                actual << QString("%1 %2 %3").arg(step.step).arg(int(step.what)).arg(step.key);
                sum += step.step * (step.key + 1) * (int(step.what) + 1);
            }
            if (i < 8)
                QCOMPARE(actual, sweeps(selectors[i]));
            else
                QCOMPARE(sum, selectors[i].section('=', 1).toInt());
        }
    }

    void waveRunsAndRestsBehindShields()
    {
        game().delayStep = 20; // long enough for the clicks
        click("pbForwardVarious");
        game().delayStep = 1000; // read when the button was pressed, not later
        const QStringList names{"start", button(0), button(5), button(11)};
        for (const QString &name : names) {
            QVERIFY2(onTop(name).startsWith("shield"), qPrintable(name));
            QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, center(name));
        }
        QVERIFY(!game().gameRunning && text("typeOfGame") == "a - z");
        QVERIFY(onTop("stop") == "stop" && onTop("soft") == "soft" && onTop("pbQuit") == "pbQuit");
        const auto cells = window->furniture().widgets.alphabetLabelList;
        QTRY_VERIFY(cells[25]->styleSheet().startsWith("background-color: black"));
        QTRY_VERIFY(!shielded());
        for (const QLabel *cell : cells)
            QCOMPARE(cell->styleSheet(), QString("color: white;font-family: Calibri;"));
        for (const QString &name : names)
            QCOMPARE(onTop(name), name);
    }

    void anotherChoiceInMidGame()
    {
        click("start");
        enterTarget();
        click("pbReverseAll"); // another direction silences the judge
        enterTarget();
        QVERIFY(game().gameRunning && text("leMatch") == "b" && game().correctCount == 1);
        open();
        for (const char *name : {"animationOff", "pbForwardVarious", "start", "pbForwardAll"})
            click(name); // the last, another set, moves the end
        for (int i = 0; i < 27; ++i)
            enterTarget();
        QCOMPARE(text("leMatch"), QString("B"));
        click("pbForwardConsonants"); // shorter than the game is already: over with this entry
        enterTarget();
        QVERIFY(!game().gameRunning && game().correctCount == 28 && game().isKeyPressed(28));
        QCOMPARE(text("labelCorrect"), QString("26"));
    }

    // The last character of the keyboard ends a game, whatever was chosen on the way.
    void aLargerSetInMidGame_data()
    {
        QTest::addColumn<QString>("second");
        QTest::addColumn<int>("entries");
        QTest::addColumn<QString>("closing");
        QTest::newRow("pbForwardNumberLine") << "pbForwardAll" << 42 << "94";
        QTest::newRow("pbForwardConsonants") << "pbForwardAll" << 68 << "94";
        QTest::newRow("pbReverseVarious") << "pbReverseAll" << 26 << "94";
        QTest::newRow("pbReverseConsonants") << "pbReverseAll" << 52 << "94";
        QTest::newRow("pbReverseVarious 2") << "pbReverseNumberLine" << 26 << "28";
    }
    void aLargerSetInMidGame()
    {
        QFETCH(QString, second);
        QFETCH(int, entries);
        click("animationOff");
        click(QString(QTest::currentDataTag()).section(' ', 0, 0));
        click("start");
        enterTarget();
        click(second);
        while (game().gameRunning && game().correctCount < 94)
            enterTarget();
        QVERIFY(!game().gameRunning && game().gameFinished);
        QCOMPARE(game().correctCount, entries);
        QTEST(text("labelCorrect"), "closing");
        QVERIFY(game().isKeyPressed(second.contains("Forward") ? 94 : 1));
        click("start"); // and the next game is a whole one
        enterTarget();
        QVERIFY(game().gameRunning && game().correctCount == 1);
    }
};

QTEST_MAIN(TestSelection)
#include "tst_selection.moc"
