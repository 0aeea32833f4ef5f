#include "window.h"

namespace {

// Fragments are told apart, so that each text below names one look.
const QString lower = "font-family: Low;";
const QString upper = "font-family: Upp;";
const QString finishedText = "color: #111111;";
const QString finishedCell = "border-radius: 10px;background-color: #222222;";
const QString restCell = "border-radius: 10px;background-color: #333333;";

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
        looks.finished.bgStyle = "background-color: #222222;";
        looks.key.bgStyle = "background-color: #333333;";
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
    void pressShift()
    {
        QKeyEvent shift(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier);
        QCoreApplication::sendEvent(window.get(), &shift);
    }
    QString counts() const { return text("labelCorrect") + " " + text("labelIncorrect"); }

private slots:
    void wholeGames_data()
    {
        QTest::addColumn<QString>("characters"); // in their order; none: by chance
        QTest::addColumn<int>("firstKey");
        QTest::addColumn<int>("length");
        QTest::addColumn<QString>("closing");
        const QString lowercase = "abcdefghijklmnopqrstuvwxyz";
        const QString numberLine = "`1234567890-=~!@#$%^&*()_+[]\\;',./{}|:\"<>?";
        const QString all = lowercase + lowercase.toUpper() + numberLine;
        for (const char *difficulty : {"Soft", "Strict"}) {
            const auto row = [difficulty](const char *set) -> QTestData & {
                return QTest::addRow("%s %s", set, difficulty);
            };
            row("pbForwardConsonants") << lowercase.toUpper() << 27 << 26 << "26";
            row("pbForwardVarious") << lowercase << 1 << 26 << "26";
            row("pbForwardNumberLine") << numberLine << 53 << 42 << "42";
            row("pbForwardAll") << all << 1 << 94 << "94";
            // The closing figures of these three are fixed; they are not the count.
            row("pbReverseConsonants") << lowercase.toUpper() << 27 << 26 << "33";
            row("pbReverseVarious") << lowercase << 1 << 26 << "33";
            row("pbReverseNumberLine") << numberLine << 53 << 42 << "28";
            row("pbReverseAll") << all << 1 << 94 << "94";
            for (const char *set : {"pbRandomConsonants", "pbRandomVarious", "pbRandomNumberLine"})
                row(set) << QString() << 0 << 9 << "200";
            row("pbRandomAll") << QString() << 0 << 200 << "200";
        }
    }
    void wholeGames()
    {
        QFETCH(QString, characters);
        QFETCH(int, firstKey);
        QFETCH(int, length);
        QFETCH(QString, closing);
        const QString row = QTest::currentDataTag();
        const bool random = characters.isEmpty();
        if (row.contains("Reverse"))
            std::reverse(characters.begin(), characters.end());
        if (random)
            game().randomEndCount = length;
        game().clearUserDelay = 0; // in Strict, Shift would judge an entry that still stands
        start(row.section(' ', 0, 0), row.endsWith("Strict"));
        enter("\\");
        QString asked;
        for (int i = 0; i < length; ++i) {
            QCoreApplication::processEvents();
            QVERIFY(game().gameRunning);
            QCOMPARE(counts(), QString("%1 1").arg(i));
            asked += text("leMatch");
            enterTarget();
        }
        if (!random)
            QCOMPARE(asked, characters);
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
            QCOMPARE(sheet(cell + "bg"), finished ? finishedCell : restCell);
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

    void fontsAtTheJoints_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("font");
        // Forward, the font goes by the target that follows.
        QTest::newRow("Forward y") << 25 << lower;
        QTest::newRow("Forward z, before a capital") << 26 << upper;
        QTest::newRow("Forward Y") << 51 << upper;
        QTest::newRow("Forward Z, before the number row") << 52 << lower;
        QTest::newRow("Forward =") << 65 << lower;
        QTest::newRow("Forward ~") << 66 << upper;
        QTest::newRow("Forward +, before [") << 78 << lower;
        QTest::newRow("Forward /, before {") << 86 << upper;
        // Reverse, it goes by the key itself, and ~ alone is off.
        QTest::newRow("Reverse /") << 86 << lower;
        QTest::newRow("Reverse +") << 78 << upper;
        QTest::newRow("Reverse ~, in the lower font") << 66 << lower;
        QTest::newRow("Reverse =") << 65 << lower;
        QTest::newRow("Reverse Z") << 52 << upper;
        QTest::newRow("Reverse z") << 26 << lower;
    }
    void fontsAtTheJoints()
    {
        QFETCH(int, key);
        QFETCH(QString, font);
        const QString row = QTest::currentDataTag();
        start("pb" + row.section(' ', 0, 0) + "All");
        while (text("leMatch") != row.mid(8, 1))
            enterTarget();
        QVERIFY(!game().isKeyPressed(key));
        enterTarget();
        QVERIFY(game().isKeyPressed(key));
        QCOMPARE(sheet(QString("r%1").arg(key)), finishedText + font);
        QCOMPARE(sheet(QString("r%1bg").arg(key)), finishedCell);
        QVERIFY(!sheet(QString("r%1_2").arg(key)).startsWith(finishedText)); // the bar alone
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

    void softSpace()
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
        pressShift();
        QCOMPARE(counts(), QString("1 1"));
    }

    void strictKeys()
    {
        game().clearUserDelay = 20;
        start("pbForwardVarious", true);
        pressShift();
        space();
        QCOMPARE(game().incorrectCount, 0);
        press("q");
        QCOMPARE(counts(), QString("0 1"));
        pressShift(); // judges "q" again
        QCOMPARE(counts(), QString("0 2"));
        release("q"); // a release judges nothing
        QTRY_COMPARE(text("leUser"), QString());
        pressShift();
        QCOMPARE(counts(), QString("0 2"));
        type("a");
        space();
        QCOMPARE(counts(), QString("1 3"));
    }

    void randomTargets()
    {
        start("pbRandomVarious", true);
        for (int i = 1; i <= 60; ++i) {
            const QString target = text("leMatch");
            QVERIFY(target >= "a" && target <= "z");
            enter(target == "m" ? "n" : "m");
            QCOMPARE(text("leMatch"), target);
            enterTarget();
            QCOMPARE(counts(), QString("%1 %1").arg(i));
        }
    }
};

QTEST_MAIN(TestJudge)
#include "tst_judge.moc"
