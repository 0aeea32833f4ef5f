#include "window.h"

namespace {

// Fragments are told apart, so that each text below names one look.
const QString lower = "font-family: Low;";
const QString upper = "font-family: Upp;";
const QString finishedText = "color: #111111;";
const QString finishedCell = "background-color: #222222;";
const QString restCell = "background-color: #333333;";

const QString characters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                           "`1234567890-=~!@#$%^&*()_+[]\\;',./{}|:\"<>?";

} // namespace

class TestJudge : public WindowTest
{
    Q_OBJECT

    void prepare() override
    {
        Looks &looks = window->board().looks;
        looks.lowerFontStyle = lower;
        looks.upperFontStyle = upper;
        looks.finishedTextStyle = finishedText;
        looks.finished.bgStyle = finishedCell;
        looks.key.bgStyle = restCell;
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
        QString asked = text("leMatch");
        enter("\\");
        QCOMPARE(text("leMatch"), asked); // a wrong entry leaves the target
        for (int i = 0; i < length; ++i) {
            QCoreApplication::processEvents();
            QVERIFY(game().gameRunning && expected.contains(asked.right(1)));
            QCOMPARE(counts(), QString("%1 1").arg(i));
            enterTarget();
            asked += text("leMatch");
        }
        asked.chop(1); // the last target stays
        if (!random)
            QCOMPARE(asked, expected);
        QVERIFY(!game().gameRunning && game().gameFinished && game().animationEnabled);
        QCOMPARE(game().correctCount, length);
        QCOMPARE(counts(), closing + " 1");
        for (const char *count : {"labelCorrect", "labelIncorrect"})
            QCOMPARE(sheet(count), QString("background-color: transparent; font-style:italic;"));
        QCOMPARE(text("leMatch"), asked.right(1));
        for (const char *name : {"leMatch", "leUser", "lineHighlight", "goldenHighlight"})
            QVERIFY(!find<QWidget>(name)->isEnabled());
        for (int key = 1; key <= 94; ++key) {
            const bool finished = !random && key >= firstKey && key < firstKey + length;
            const QString cell = QString("r%1").arg(key);
            QCOMPARE(game().isKeyPressed(key), finished);
            QCOMPARE(sheet(cell + "bg"),
                     "border-radius: 10px;" + (finished ? finishedCell : restCell));
            QCOMPARE(sheet(cell).startsWith(finishedText), finished);
        }
        enter(asked.right(1)); // judged no more
        QCOMPARE(game().correctCount, length);
        click("start");
        enterTarget();
        QCOMPARE(counts(), QString("1 0"));
        QCOMPARE(sheet("labelCorrect"),
                 QString("background-color: transparent; font-style:normal;"));
    }

    void lastEntryStays()
    {
        game().clearUserDelay = 0;
        start("pbForwardVarious");
        while (text("leMatch") != "z")
            enterTarget();
        QTRY_COMPARE(text("leUser"), QString());
        enterTarget();
        QCOMPARE(sheet("r26"), finishedText + lower);
        QCOMPARE(sheet("leMatch"), "background-color: transparent; font-style: italic; " + lower +
                                       "color: black; font-size: 24pt; border: none;");
        const QString question = "Would you like\nto play again?";
        QTRY_COMPARE_WITH_TIMEOUT(text("display2"), question, 4000);
        QCOMPARE(text("leUser"), QString("z"));
    }

    void fontsOfTheBar()
    {
        for (const QString set : {"pbForwardAll", "pbReverseAll"}) {
            start(set);
            while (game().correctCount < 93) {
                const QString c = text("leMatch");
                const int key = characters.indexOf(c) + 1;
                const QString cell = QString("r%1").arg(key);
                QVERIFY(!game().isKeyPressed(key));
                enterTarget();
                QVERIFY(game().isKeyPressed(key));
                // Forward, the font goes by the target that follows; Reverse, by the key
                // itself, and ~ alone is off.
                const bool forward = set == "pbForwardAll";
                const bool shifted = stroke(forward ? text("leMatch") : c).modifiers;
                const QString font = shifted && (forward || c != "~") ? upper : lower;
                QCOMPARE(c + sheet(cell), c + finishedText + font);
                QVERIFY(sheet(cell + "bg").endsWith(finishedCell));
                QVERIFY(!sheet(cell + "_2").startsWith(finishedText)); // the bar alone
            }
        }
    }

    void wrongEntries()
    {
        start("pbForwardVarious");
        enterTarget();
        QCOMPARE(game().letterNumber, 1); // stepped in Forward alone
        start("pbReverseVarious");
        enterTarget();
        QCOMPARE(game().letterNumber, 25);
        enterTarget();
        QCOMPARE(game().correctStreak, 2);
        enter("a");
        enter("X"); // the target is "x"
        QCOMPARE(text("leMatch"), QString("x"));
        QCOMPARE(counts(), QString("2 2"));
        QCOMPARE(game().correctStreak, 0);
        QVERIFY(game().isKeyPressed(25) && !game().isKeyPressed(24));
        enterTarget();
        QCOMPARE(game().correctStreak, 1);
        QCOMPARE(counts(), QString("3 2"));
    }

    void unexpectedTargetIsNotJudged()
    {
        for (const char *set : {"pbForwardVarious", "pbReverseVarious", "pbRandomVarious"}) {
            start(set);
            find<QLineEdit>("leMatch")->setText("?");
            enter("?");
            enter("d");
            QCOMPARE(game().correctCount + game().incorrectCount, 0);
            QCOMPARE(counts(), QString("0 0")); // shown all the same
            QTRY_COMPARE(text("leUser"), QString());
            QCOMPARE(text("leMatch"), QString("?"));
        }
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
        QCOMPARE(counts(), QString("1 1"));
        QTRY_COMPARE(text("leUser"), QString());
        space();
        type("b");
        shift();
        QCOMPARE(counts(), QString("1 1"));

        start("pbForwardVarious", true);
        shift();
        space();
        QCOMPARE(counts(), QString("0 0"));
        press("q");
        QCOMPARE(counts(), QString("0 1"));
        shift(); // judges "q" again
        QCOMPARE(counts(), QString("0 2"));
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
