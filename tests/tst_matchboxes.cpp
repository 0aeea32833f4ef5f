#include "matchboxes.h"
#include "window.h"

// Every fragment is told apart, so that each text below names one branch.
static const QString match = "color: black; font-size: 24pt; border: none;";
static const QString user = "color: #0000bb; font-size: 24pt; border: none;";
static const QString plain = "background-color: transparent;";
static const QString italic = plain + " font-style: italic; ";
static const QString lower = "font-family: Low;";
static const QString upper = "font-family: Upp;";
static const QString untouched = "color: red;";
static const QString neither = untouched + "|" + untouched;
static const QStringList runEnds = QString("a A z Z ` ~ = + [ { / ?").split(' '); // in turn

class TestMatchBoxes : public WindowTest
{
    Q_OBJECT

    std::unique_ptr<MatchBoxes> boxes; // must outlive the window, whose boxes know it

    void prepare() override
    {
        window->board().looks.userTextStyle = user.section(' ', 0, 1);
        window->board().looks.lowerFontStyle = lower;
        window->board().looks.upperFontStyle = upper;
        boxes = std::make_unique<MatchBoxes>(window->board());
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
            // Random games over mixed sets go by the target too, and turn italic at once.
            for (const char *set : {"pbRandomAll", "pbRandomNumberLine"}) {
                click(set);
                QCOMPARE(worn(&MatchBoxes::set_User_StyleSheet, c), c + both(fontOf(c)));
                QCOMPARE(worn(&MatchBoxes::set_final_match_stylesheet, c), c + both(fontOf(c)));
            }
        }
        for (const QString other : {"", " ", "ab", "\u00e9"}) {
            QCOMPARE(worn(&MatchBoxes::set_Match_StyleSheet, other), other + neither);
            QCOMPARE(worn(&MatchBoxes::set_Match_StyleSheet_italic, other), other + neither);
        }
    }

    void byDirectionAndSet()
    {
        const QString uppers = "ForwardAll ForwardConsonants ForwardNumberLine ReverseConsonants "
                               "RandomConsonants";
        const QString lowers = " ForwardVarious ReverseAll ReverseNumberLine RandomVarious";
        for (const QString &set : QString(uppers + lowers).split(' ')) {
            click("pb" + set);
            const QString font = uppers.contains(set) ? upper : lower;
            const QString gap = set.startsWith("Forward") ? "" : " ";
            const QString c = font == upper ? "5" : "Q"; // whose own font does not matter
            QCOMPARE(set + worn(&MatchBoxes::set_User_StyleSheet, c),
                     set + c + untouched + "|" + plain + gap + font + user);
            QCOMPARE(worn(&MatchBoxes::set_final_match_stylesheet, c), c + both(font));
        }
        click("pbReverseVarious"); // no branch takes it
        QCOMPARE(worn(&MatchBoxes::set_User_StyleSheet, "5"), "5" + neither);
        QCOMPARE(worn(&MatchBoxes::set_final_match_stylesheet, "5"), "5" + neither);
    }

    void inAGame()
    {
        click("pbReverseAll");
        click("start");
        QCOMPARE(sheet("leMatch"), plain + upper + match);
        for (const QString &entry : runEnds) {
            type(entry);
            QCOMPARE(sheet("leUser"), plain + fontOf(entry) + user);
        }
        for (int i = 0; i < 8; ++i)
            enterTarget();
        QCOMPARE(text("leMatch") + sheet("leMatch"), "/" + plain + lower + match);
        click("stop");
        type("a"); // no entry any more: keeps the look of the last
        QCOMPARE(sheet("leUser"), plain + upper + user);
    }
};

QTEST_MAIN(TestMatchBoxes)
#include "tst_matchboxes.moc"
