#include "matchboxes.h"
#include "window.h"

// Every fragment is told apart, so that each text below names one branch.
static const QString match = "color: black; font-size: 24pt; border: none;";
static const QString user = "color: #0000bb; font-size: 24pt; border: none;";
static const QString plain = "background-color: transparent;";
static const QString italic = plain + " font-style: italic; ";
static const QString lower = "font-family: Low;", upper = "font-family: Upp;";
static const QString untouched = "color: red;", neither = untouched + "|" + untouched;
static const QStringList runEnds = QString("a A z Z ` ~ = + [ { / ?").split(' '); // in turn

class TestMatchBoxes : public WindowTest
{
    Q_OBJECT

    std::unique_ptr<MatchBoxes> boxes; // must outlive the window, whose boxes know it

    void prepare() override
    {
        window->wardrobe().looks.userTextStyle = user.section(' ', 0, 1);
        window->wardrobe().looks.lowerFontStyle = lower;
        window->wardrobe().looks.upperFontStyle = upper;
        boxes =
            std::make_unique<MatchBoxes>(window->furniture(), window->wardrobe(), window->game());
        click("animationOff");
    }
    QString worn(void (MatchBoxes::*slot)(), const QString &target)
    {
        find<QLineEdit>("leMatch")->setText(target);
        for (const char *box : {"leMatch", "leUser"})
            find<QLineEdit>(box)->setStyleSheet(untouched);
        (boxes.get()->*slot)();
        return target + sheet("leMatch") + "|" + sheet("leUser");
    }
    static QString fontOf(const QString &c) { return stroke(c).modifiers ? upper : lower; }
    static QString both(const QString &f) { return italic + f + match + "|" + italic + f + user; }

private slots:
    void byTarget()
    {
        for (const QString &c : runEnds) {
            QCOMPARE(worn(&MatchBoxes::set_Match_StyleSheet, c),
                     c + plain + fontOf(c) + match + "|" + untouched);
            QCOMPARE(worn(&MatchBoxes::set_Match_StyleSheet_italic, c), c + both(fontOf(c)));
            click("pbRandomAll"); // goes by the target too, and turns italic at once
            QCOMPARE(worn(&MatchBoxes::set_User_StyleSheet, c), c + both(fontOf(c)));
            QCOMPARE(worn(&MatchBoxes::set_final_match_stylesheet, c), c + both(fontOf(c)));
        }
    }

    void byDirectionAndSet()
    {
        const QString uppers = "ForwardAll ForwardConsonants ForwardNumberLine ReverseConsonants";
        const QString lowers = " ForwardVarious ReverseAll ReverseNumberLine RandomVarious";
        for (const QString &set : QString(uppers + lowers).split(' ')) {
            click("pb" + set);
            const QString font = uppers.contains(set) ? upper : lower;
            const QString c = font == upper ? "5" : "Q"; // whose own font does not matter
            QVERIFY2(worn(&MatchBoxes::set_User_StyleSheet, c).endsWith(font + user),
                     qPrintable(set));
            QCOMPARE(worn(&MatchBoxes::set_final_match_stylesheet, c), c + both(font));
        }
        click("pbReverseVarious"); // no branch takes it
        QCOMPARE(worn(&MatchBoxes::set_User_StyleSheet, "5"), "5" + neither);
    }

    void inAGame()
    {
        click("pbReverseAll");
        click("start");
        QCOMPARE(sheet("leMatch"), plain + upper + match);
        type("A");
        QCOMPARE(sheet("leUser"), plain + upper + user);
    }
};

QTEST_MAIN(TestMatchBoxes)
#include "tst_matchboxes.moc"
