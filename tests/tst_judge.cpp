#include "window.h"

// Fragments are told apart, so that each text below names one look.
static const QString finishedText = "color: #111111;";
static const QString finishedCell = "background-color: #222222;";

static const QString characters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                  "`1234567890-=~!@#$%^&*()_+[]\\;',./{}|:\"<>?";

class TestJudge : public WindowTest
{
    Q_OBJECT

    void prepare() override
    {
        Looks &looks = window->wardrobe().looks;
        looks.upperFontStyle = "font-family: Upp;";
        looks.finishedTextStyle = finishedText;
        looks.finished.bgStyle = finishedCell;
        window->keyFeedback().allChangeColorBack();
        click("animationOff"); // no shields over Start
        std::srand(1);
    }
    void start(const QString &set, bool strict = false)
    {
        click(set);
        click(strict ? "strict" : "soft");
        click("start");
    }
    void enter(const QString &character)
    {
        type(character);
        if (find<QAbstractButton>("soft")->isChecked())
            space();
    }
    void shift() { QTest::keyPress(window.get(), Qt::Key_Shift); }
    QString counts() const { return text("labelCorrect") + " " + text("labelIncorrect"); }

private slots:
    void wholeGames_data()
    {
        QTest::addColumn<QString>("set");
        for (const char *set : {"Consonants", "Various", "NumberLine", "All"})
            for (const char *direction : {"Forward", "Reverse", "Random"})
                for (const char *difficulty : {"Soft", "Strict"})
                    QTest::addRow("pb%s%s %s", direction, set, difficulty) << set;
    }
    void wholeGames()
    {
        QFETCH(QString, set);
        const QString row = QTest::currentDataTag();
        const bool random = row.startsWith("pbRandom");
        const int firstKey = set == "Consonants" ? 27 : set == "NumberLine" ? 53 : 1;
        int length = set == "All" ? 94 : set == "NumberLine" ? 42 : 26;
        QString expected = characters.mid(firstKey - 1, length);
        QString closing = QString::number(length);
        if (row.startsWith("pbReverse")) {
            std::reverse(expected.begin(), expected.end());
            // The closing figures of these three are fixed; they are not the count.
            closing = set == "All" ? "94" : set == "NumberLine" ? "28" : "33";
        }
        if (random) {
            game().randomEndCount = length = set == "All" ? 200 : 9;
            closing = "200";
        }
        game().clearUserDelay = 0; // in Strict, Shift would judge an entry that still stands
        start(row.section(' ', 0, 0), row.endsWith("Strict"));
        const QString first = text("leMatch");
        enter("\\");
        QCOMPARE(text("leMatch"), first); // a wrong entry leaves the target
        QString asked;
        for (int i = 0; i < length; ++i) {
            QCoreApplication::processEvents();
            const QString c = text("leMatch");
            const int key = characters.indexOf(c) + 1;
            QVERIFY(game().gameRunning && expected.contains(c) && !game().isKeyPressed(key));
            QCOMPARE(counts(), QString("%1 1").arg(i));
            QCOMPARE(sheet("leMatch").contains("Upp;"), stroke(c).modifiers == Qt::ShiftModifier);
            enterTarget();
            asked += c;
            QCOMPARE(game().isKeyPressed(key), !random);
        }
        QCOMPARE(asked, random ? asked : expected);
        QVERIFY(!game().gameRunning && game().gameFinished && game().animationEnabled);
        QCOMPARE(counts(), closing + " 1");
        QVERIFY(sheet("labelCorrect").endsWith("font-style:italic;"));
        pass(5); // long enough to clear any entry but the last
        QCOMPARE(text("leMatch") + text("leUser"), asked.right(1).repeated(2));
        for (const char *name : {"leMatch", "leUser", "lineHighlight", "goldenHighlight"})
            QVERIFY(!find<QWidget>(name)->isEnabled());
        for (int key = 1; key <= 94; ++key) {
            const bool finished = !random && key >= firstKey && key < firstKey + length;
            const QString cell = QString("r%1").arg(key);
            QCOMPARE(game().isKeyPressed(key), finished);
            QVERIFY(sheet(cell + "bg").endsWith(finishedCell) == finished);
            QCOMPARE(sheet(cell).startsWith(finishedText), finished);
            QVERIFY(!sheet(cell + "_2").startsWith(finishedText)); // the bar alone
        }
        enter(asked.right(1)); // judged no more
        QCOMPARE(game().correctCount, length);
        click("start");
        enterTarget();
        QCOMPARE(counts(), QString("1 0"));
        QVERIFY(sheet("labelCorrect").endsWith("font-style:normal;"));
    }

    void wrongEntries()
    {
        start("pbReverseVarious");
        enterTarget();
        enterTarget();
        QCOMPARE(game().correctStreak, 2);
        enter("a");
        enter("X"); // the target is "x"
        QCOMPARE(text("leMatch") + counts(), QString("x2 2"));
        QVERIFY(game().correctStreak == 0 && !game().isKeyPressed(24));
        find<QLineEdit>("leMatch")->setText("?"); // no target of this set: not judged
        enter("?");
        enter("d");
        QCOMPARE(counts(), QString("2 2"));
    }

    void softAndStrict()
    {
        game().clearUserDelay = 20;
        start("pbForwardVarious");
        space(); // nothing was typed
        type("b");
        type("a"); // the last character before Space counts
        space();
        QCOMPARE(counts(), QString("1 0"));
        space(); // the old entry still stands: wrong for "b"
        QTRY_COMPARE(text("leUser"), QString());
        space();
        type("b");
        shift();
        QCOMPARE(counts(), QString("1 1"));

        start("pbForwardVarious", true);
        shift();
        space();
        QCOMPARE(game().incorrectCount, 0);
        press("q");
        QCOMPARE(counts(), QString("0 1"));
        shift();      // judges "q" again
        release("q"); // a release judges nothing
        QTRY_COMPARE(text("leUser"), QString());
        shift();
        QCOMPARE(counts(), QString("0 2"));
        type("a");
        space();
        QCOMPARE(counts(), QString("1 3"));
    }
};

QTEST_MAIN(TestJudge)
#include "tst_judge.moc"
