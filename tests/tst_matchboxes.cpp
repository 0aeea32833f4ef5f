#include "matchboxes.h"
#include "window.h"

namespace {

// Every fragment is told apart, so that each text below names one branch.
const QString matchTail = "color: #0000aa; font-size: 24pt; border: none;";
const QString userTail = "color: #0000bb; font-size: 24pt; border: none;";
const QString plain = "background-color: transparent;";
const QString plainBlank = "background-color: transparent; ";
const QString italic = "background-color: transparent; font-style: italic; ";
const QString lower = "font-family: Low;";
const QString upper = "font-family: Upp;";
const QString untouched = "color: red;";

} // namespace

class TestMatchBoxes : public WindowTest
{
    Q_OBJECT

    std::unique_ptr<MatchBoxes> boxes;

    void prepare() override
    {
        Looks &looks = window->board().looks;
        looks.lowerFontStyle = lower;
        looks.upperFontStyle = upper;
        looks.matchTextStyle = "color: #0000aa;";
        looks.userTextStyle = "color: #0000bb;";
        boxes = std::make_unique<MatchBoxes>(window->board());
        click("animationOff");
    }
    // What both boxes wear after a slot, with the target given.
    QString worn(void (MatchBoxes::*slot)(), const QString &target)
    {
        find<QLineEdit>("leMatch")->setText(target);
        find<QLineEdit>("leMatch")->setStyleSheet(untouched);
        find<QLineEdit>("leUser")->setStyleSheet(untouched);
        (boxes.get()->*slot)();
        return sheet("leMatch") + "|" + sheet("leUser");
    }
    static QString bothItalic(const QString &font)
    {
        return italic + font + matchTail + "|" + italic + font + userTail;
    }

private slots:
    void targetByItsClass_data()
    {
        QTest::addColumn<QString>("font");
        for (const char *character : {"a", "z", "`", "=", "[", "/"})
            QTest::newRow(character) << lower;
        for (const char *character : {"A", "Z", "~", "+", "{", "?"})
            QTest::newRow(character) << upper;
    }
    void targetByItsClass()
    {
        QFETCH(QString, font);
        const QString target = QTest::currentDataTag();
        QCOMPARE(worn(&MatchBoxes::set_Match_StyleSheet, target),
                 plain + font + matchTail + "|" + untouched);
        QCOMPARE(worn(&MatchBoxes::set_Match_StyleSheet_italic, target), bothItalic(font));
        // Random games over mixed sets go by the target too, and turn italic at once.
        for (const char *set : {"pbRandomAll", "pbRandomNumberLine"}) {
            click(set);
            QCOMPARE(worn(&MatchBoxes::set_User_StyleSheet, target), bothItalic(font));
            QCOMPARE(worn(&MatchBoxes::set_final_match_stylesheet, target), bothItalic(font));
        }
    }

    void otherTextsKeepTheirStyle()
    {
        for (const char *target : {"", " ", "ab", "\u00e9"}) {
            QCOMPARE(worn(&MatchBoxes::set_Match_StyleSheet, target), untouched + "|" + untouched);
            QCOMPARE(worn(&MatchBoxes::set_Match_StyleSheet_italic, target),
                     untouched + "|" + untouched);
        }
    }

    void byDirectionAndSet_data()
    {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QString>("both");
        QTest::newRow("pbForwardAll") << plain + upper + userTail << bothItalic(upper);
        QTest::newRow("pbForwardConsonants") << plain + upper + userTail << bothItalic(upper);
        QTest::newRow("pbForwardNumberLine") << plain + upper + userTail << bothItalic(upper);
        QTest::newRow("pbForwardVarious") << plain + lower + userTail << bothItalic(lower);
        QTest::newRow("pbReverseAll") << plainBlank + lower + userTail << bothItalic(lower);
        QTest::newRow("pbReverseConsonants") << plainBlank + upper + userTail << bothItalic(upper);
        QTest::newRow("pbReverseNumberLine") << plainBlank + lower + userTail << bothItalic(lower);
        // No branch takes it: both boxes stay as they are.
        QTest::newRow("pbReverseVarious") << untouched << untouched + "|" + untouched;
        QTest::newRow("pbRandomConsonants") << plainBlank + upper + userTail << bothItalic(upper);
        QTest::newRow("pbRandomVarious") << plainBlank + lower + userTail << bothItalic(lower);
    }
    void byDirectionAndSet()
    {
        QFETCH(QString, user);
        QFETCH(QString, both);
        click(QTest::currentDataTag());
        for (const char *target : {"5", "Q"}) { // does not matter
            QCOMPARE(worn(&MatchBoxes::set_User_StyleSheet, target), untouched + "|" + user);
            QCOMPARE(worn(&MatchBoxes::set_final_match_stylesheet, target), both);
        }
    }

    void inAGame()
    {
        type("A");
        QVERIFY(!sheet("leUser").contains("Upp"));
        click("pbReverseAll");
        click("start");
        QCOMPARE(sheet("leMatch"), plain + upper + matchTail);
        for (const char *shifted : {"A", "Z", "~", "+", "{", "?"}) {
            type("a");
            QCOMPARE(sheet("leUser"), plain + lower + userTail);
            type(shifted);
            QCOMPARE(sheet("leUser"), plain + upper + userTail);
        }
        for (int i = 0; i < 8; ++i)
            enterTarget();
        QCOMPARE(text("leMatch"), QString("/"));
        QCOMPARE(sheet("leMatch"), plain + lower + matchTail);
        click("stop");
        type("a"); // no entry any more: keeps the look of the last
        QCOMPARE(sheet("leUser"), plain + upper + userTail);
    }
};

QTEST_MAIN(TestMatchBoxes)
#include "tst_matchboxes.moc"
