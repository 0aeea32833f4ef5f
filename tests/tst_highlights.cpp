#include "instructor.h"
#include "targethighlights.h"
#include "timers.h"
#include "window.h"

namespace {

const QString characters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                           "`1234567890-=~!@#$%^&*()_+[]\\;',./{}|:\"<>?";

// All fragments are told apart, so that the joins below name what each widget must wear.
const QString radius = "border-radius: 11px;";
const QString barRadius = "border-radius: 12px;";
const QString highBg = "background-color: #a00001;";
const QString highBorder = "border: 1px solid #a00002;";
const QString highLower = "color: #a00003;";
const QString highUpper = "color: #a00004;";
const QString saved = "color: #a00005;"; // the keypress colour of a highlighted key
const QString restBg = "background-color: #b00001;";
const QString restBorder = "border: 1px solid #b00002;";
const QString restLower = "color: #b00003;";
const QString restUpper = "color: #b00004;";
const QString lower = "font-family: Low;";
const QString upper = "font-family: Upp;";

QString paint(const char *what, int index)
{
    return QString("%1: #%2;").arg(what).arg(0xd00000 + index, 6, 16);
}
bool isShifted(int k)
{
    return (k >= 26 && k <= 51) || (k >= 65 && k <= 77) || k >= 86;
}
int capOf(int k)
{
    return k <= 25 ? k + 1 : k <= 64 ? k - 25 : k <= 85 ? k - 38 : k - 46;
}

// The horizontal line, then the characters with their vertical lines.
const char *const lineTable[] = {
    "h1 `22 120 21 317 44 56 67 78 810 911 012 -24 =26",
    "h1_2 ~21 !23 @16 #19 $5 %3 ^18 &2 *13 (9 )14 _15 +25",
    "h2 e5 i9 o14 p15 q16 r3 t18 u13 w19 y2 [25 ]27 \\29",
    "h2_2 E17 I10 O11 P12 Q20 R4 T6 U8 W1 Y7 {24 }26 |28",
    "h3 a1 d4 f6 g7 h8 j10 k11 l12 s17 ;24 '26",
    "h3_2 A16 D5 F3 G18 H2 J13 K9 L14 S19 :15 \"25",
    "h4 b2 c3 m9 n13 v18 x5 z19 ,14 .15 /25",
    "h4_2 B7 C4 M10 N8 V6 X17 Z1 <11 >12 ?24",
};

} // namespace

class TestHighlights : public WindowTest
{
    Q_OBJECT

    std::unique_ptr<Timers> timers;
    std::unique_ptr<Instructor> instructor;
    std::unique_ptr<TargetHighlights> highlights; // for slots that no control reaches
    QStringList lineNames;
    QStringList restyled;
    int mostLines = 0;

    void prepare() override
    {
        Board &board = window->board();
        Looks &looks = board.looks;
        looks.keyRadiusStyle = radius;
        looks.barRadiusStyle = barRadius;
        looks.lowerFontStyle = lower;
        looks.upperFontStyle = upper;
        looks.highlight.bgStyle = highBg;
        looks.highlight.borderStyle = highBorder;
        looks.highlight.lowerTextStyle = highLower;
        looks.highlight.upperTextStyle = highUpper;
        looks.keypressLowerTextSaved = saved;
        looks.key.bgStyle = restBg;
        looks.key.borderStyle = restBorder;
        looks.key.lowerTextStyle = restLower;
        looks.key.upperTextStyle = restUpper;
        for (int i = 0; i < 94; ++i)
            board.paint.paintTextStyle[i] = paint("color", i);
        for (int i = 0; i < 47; ++i) {
            board.paint.paintKeyBgStyle[i] = paint("background-color", i);
            board.paint.paintKeyBorderStyle[i] = paint("border-color", i);
        }
        board.paint.paintExtraTextStyle[7] = "color: #e00007;";
        board.paint.paintExtraTextStyle[8] = "color: #e00008;";
        window->keyFeedback().allChangeColorBack();
        timers = std::make_unique<Timers>(*window);
        instructor = std::make_unique<Instructor>(board, *timers);
        highlights = std::make_unique<TargetHighlights>(board, *instructor);
        // The buttons are answered by the window's own.
        for (const char *button : {"goldenHighlight", "lineHighlight"})
            find<QWidget>(button)->disconnect(highlights.get());
        lineNames = QString("h1 h2 h3 h4 h1_2 h2_2 h3_2 h4_2").split(' ');
        for (int i = 1; i <= 29; ++i)
            lineNames << QString("v%1").arg(i);
        click("animationOff");
        std::srand(1);
    }
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::StyleChange)
            restyled << object->objectName();
        if (event->type() == QEvent::Show && lineNames.contains(object->objectName()))
            mostLines = qMax(mostLines, lines().count(' ') + 1);
        return false;
    }
    void target(const QString &character) { find<QLineEdit>("leMatch")->setText(character); }
    void start(const QString &set = "pbForwardAll") // with both aids
    {
        for (const QString &button :
             {set, QString("start"), QString("goldenHighlight"), QString("lineHighlight")})
            click(button);
    }
    QString lines() const
    {
        QStringList seen;
        for (const QString &line : lineNames) {
            if (shown(line))
                seen << line;
        }
        return seen.join(' ');
    }
    static QString linesOf(const QString &character)
    {
        for (const char *row : lineTable) {
            const QStringList words = QString(row).split(' ');
            for (const QString &word : words.mid(1)) {
                if (word.startsWith(character))
                    return words[0] + " v" + word.mid(1);
            }
        }
        return "none";
    }
    // Cap, bar letter, key letter and bar cell of a character: sorted.
    static QStringList widgetsOf(int k)
    {
        const QString r = QString("r%1").arg(k + 1);
        return {QString("bg%1").arg(capOf(k)), r, r + "_2", r + "bg"};
    }
    QStringList widgetsOfTarget() const { return widgetsOf(characters.indexOf(text("leMatch"))); }
    // Everything on the keyboard and the bar that wears a piece of the highlight.
    QStringList highlighted() const
    {
        QStringList names{"underScoreLeft", "underScoreRight"};
        for (int k = 0; k < 94; ++k)
            names << widgetsOf(k);
        names.removeDuplicates();
        QStringList result;
        for (const QString &name : qAsConst(names)) {
            if (sheet(name).contains("#a0000"))
                result << name;
        }
        result.sort();
        return result;
    }
    QStringList sheets(int k) const
    {
        QStringList result;
        for (const QString &name : widgetsOf(k))
            result << sheet(name);
        return result;
    }
    void later(int ms)
    {
        bool passed = false;
        QTimer::singleShot(ms, this, [&passed] { passed = true; });
        QTRY_VERIFY(passed);
    }

private slots:
    void everyTarget()
    {
        click("start");
        for (int k = 0; k < 94; ++k) {
            const QString c = characters.mid(k, 1);
            target(c);
            find<QWidget>("goldenHighlight")->setStyleSheet({});
            highlights->goldHighOn();
            // These seven wear the lowercase colour in the uppercase font.
            const bool lowerColour = !isShifted(k) || QString("^&*()_+").contains(c);
            const QString font = isShifted(k) ? upper : lower;
            QString bar = (lowerColour ? highLower : highUpper) + font;
            QString key = bar;
            if (c == "u")
                bar = highLower;
            if (c == "`")
                key = highUpper + lower;
            if (c == "+")
                key = highUpper + upper;
            QCOMPARE(sheets(k),
                     (QStringList{radius + highBg + highBorder, bar, key, barRadius + highBg}));
            QCOMPARE(highlighted(), widgetsOf(k));
            QCOMPARE(sheet("goldenHighlight"), c == "a" ? radius + highBg + highUpper : QString());

            // Pressed, and highlighted again once it is put back.
            game().goldHighFlag = true;
            game().letterNumber = k;
            window->keyFeedback().key(k + 1);
            key = saved + font;
            bar = c == "z" ? saved + upper : key; // one irregular word
            QCOMPARE(sheets(k), (QStringList{radius + highBg, bar, key, barRadius + highBg}));
            window->keyFeedback().changeColorBack(k + 1);
            QCOMPARE(highlighted(), widgetsOf(k));
            QCOMPARE(sheets(k)[0], radius + highBg + highBorder);
            highlights->goldHighOff();
            // Without the Highlight a press has the pressed look alone.
            game().goldHighFlag = false;
            window->keyFeedback().key(k + 1);
            window->keyFeedback().changeColorBack(k + 1);
            QCOMPARE(highlighted(), QStringList());

            highlights->lineHighOn();
            QCOMPARE(lines(), linesOf(c));
            highlights->lineHighOff();
            QCOMPARE(lines(), QString());
        }
    }

    void highlightOff_data()
    {
        QTest::addColumn<bool>("lowerOn");
        QTest::addColumn<bool>("upperOn");
        QTest::addColumn<bool>("backgroundOn");
        QTest::addColumn<bool>("borderOn");
        QTest::newRow("unpainted") << false << false << false << false;
        QTest::newRow("all painted") << true << true << true << true;
        QTest::newRow("lowercase and border painted") << true << false << false << true;
        QTest::newRow("uppercase and background painted") << false << true << true << false;
    }
    void highlightOff()
    {
        QFETCH(bool, lowerOn);
        QFETCH(bool, upperOn);
        QFETCH(bool, backgroundOn);
        QFETCH(bool, borderOn);
        PaintTables &tables = window->board().paint;
        tables.paintLowerOn = lowerOn;
        tables.paintUpperOn = upperOn;
        tables.paintBackgroundOn = backgroundOn;
        tables.paintBorderOn = borderOn;
        click("start");
        for (int k = 0; k < 94; ++k) {
            const QString c = characters.mid(k, 1);
            target(c);
            highlights->goldHighOn();
            find("underScoreLeft")->setStyleSheet("color: red;");
            find("underScoreRight")->setStyleSheet("color: red;");
            highlights->goldHighOff();
            const QString font = isShifted(k) ? upper : lower;
            const QString rest = (isShifted(k) ? restUpper : restLower) + font;
            const QString painted = paint("color", k) + font;
            QString bar = (isShifted(k) ? upperOn : lowerOn) ? painted : rest;
            QString key = bar;
            if (c == "u" && !lowerOn)
                bar = restUpper + lower;
            if (c == "A")
                key = lowerOn ? painted : rest; // the other switch
            if (k >= 86 && !upperOn)
                key = upper + upper;                      // without a colour
            const int slot = c == "a" ? 5 : capOf(k) - 1; // "a" wears the paint of "f"
            const QString paintedBg = paint("background-color", slot);
            const QString cap = backgroundOn || borderOn ? paintedBg + paint("border-color", slot)
                                                         : restBg + restBorder;
            QCOMPARE(sheets(k), (QStringList{radius + cap, bar, key,
                                             barRadius + (backgroundOn ? paintedBg : restBg)}));
            QString left = "color: red;";
            QString right = "color: red;";
            if (c == "f" || c == "F")
                left = (lowerOn ? "color: #e00007;" : restLower) + lower;
            if (c == "H")
                left = (upperOn ? "color: #e00007;" : restUpper) + upper;
            if (c == "j" || c == "J")
                right = (lowerOn ? "color: #e00008;" : restLower) + lower;
            QCOMPARE(c + sheet("underScoreLeft"), c + left);
            QCOMPARE(c + sheet("underScoreRight"), c + right);
        }
    }

    void partners()
    {
        start();
        // Typed and target: the second half are no partners.
        const QStringList pairs = QString("aH G~ Ha ~G ![ +: [! :+ \"> <? >\" ?< "
                                          "aA Aa ha ?/ zy")
                                      .split(' ');
        for (int i = 0; i < pairs.size(); ++i) {
            highlights->goldHighOff();
            target(pairs[i].mid(1));
            highlights->goldHighOn();
            const QStringList before = highlighted();
            const int k = characters.indexOf(pairs[i][0]);
            press(pairs[i].left(1));
            QVERIFY2(sheets(k)[2].startsWith(saved) == (i < 12), qPrintable(pairs[i]));
            QCOMPARE(sheets(k)[0] == radius + highBg, i < 12);
            QVERIFY(!sheets(k)[3].contains(highBg)); // in the bar the target alone is lit
            release(pairs[i].left(1));
            QCOMPARE(highlighted(), before);
        }
        // "/" goes by its own label where all others go by the last key typed.
        for (const char *c : {"/", "."}) {
            game().letterNumber = 3;
            target(c);
            window->keyFeedback().key(characters.indexOf(c) + 1);
            QCOMPARE(sheets(characters.indexOf(c))[3] == barRadius + highBg, QString(c) == "/");
        }
    }

    void pictures()
    {
        ImageStates &images = window->board().images;
        images.highlight.on = "1";
        start();
        QLabel *image = find("img1");
        QVERIFY(shown("img1") && image->movie() == &images.highlight.movie);
        images.keypress.on = "1";
        press("a");
        QCOMPARE(image->movie(), &images.highlight.movie);
        release("a");
        QVERIFY(shown("img1") && image->movie() == &images.highlight.movie);
        images.keypressOverridesHighlight = true;
        press("a");
        QCOMPARE(image->movie(), &images.keypress.movie);
        QVERIFY(!sheet("bg1").contains(highBg)); // the picture stands for the colour
        release("a");
        enterTarget();
        QVERIFY(!shown("img1") && shown("img2"));
        images.keys.on = "1";
        enterTarget();
        QVERIFY(shown("img2") && find("img2")->movie() == &images.keys.movie);
    }

    void linesStandInTheirPlaces()
    {
        const int ys[] = {434, 494, 556, 614, 404, 463, 524, 584};
        const int xs[] = {314, 592, 468, 438, 404, 500, 562, 624, 714, 686, 748, 810, 654, 776, 838,
                          282, 376, 530, 344, 250, 158, 190, 220, 872, 900, 934, 964, 996, 1042};
        for (int i = 0; i < 37; ++i) {
            QCOMPARE(find(lineNames[i])->geometry(),
                     i < 8 ? QRect(0, ys[i], 1211, 5) : QRect(xs[i - 8], 0, 5, 695));
            QVERIFY(!shown(lineNames[i]) && sheet(lineNames[i]).contains("stop: 0 blue"));
        }
        const auto depth = [this](const QString &name) {
            return window->centralWidget()->children().indexOf(find(name));
        };
        for (bool raised : {false, true, false}) {
            for (const QString &line : qAsConst(lineNames)) {
                QVERIFY(depth(line) > depth("wallpaper"));
                for (const char *part : {"bg1", "img1", "r1_2", "r27_2", "bgSpacebar"})
                    QCOMPARE(depth(line) > depth(part), raised);
            }
            raised ? highlights->lineHighlightLower() : highlights->lineHighlightRaise();
        }
    }

    void buttonsToggle()
    {
        click("goldenHighlight"); // grey between games
        click("lineHighlight");
        QCOMPARE(highlighted().join(' ') + lines(), QString());
        click("start");
        type("a");
        click("goldenHighlight");
        QCOMPARE(highlighted(), widgetsOf(0));
        QCOMPARE(text("letterOfAlphabet2") + lines(), QString());
        click("lineHighlight");
        type("a");
        click("goldenHighlight");
        QCOMPARE(text("letterOfAlphabet2"), QString("Letter-number: 1"));
        QCOMPARE(highlighted(), QStringList());
        QCOMPARE(lines(), QString("h3 v1"));
        QCOMPARE(sheet("goldenHighlight"), radius + highBg + highUpper);
        click("lineHighlight");
        enterTarget(); // off is off
        QCOMPARE(highlighted().join(' ') + lines(), QString());
        target("ab"); // no character of the keyboard
        click("goldenHighlight");
        click("lineHighlight");
        window->keyFeedback().allChangeColorBack();
        QCOMPARE(highlighted().join(' ') + lines(), QString());
    }

    void survivesPressFlashAndRepaint()
    {
        start();
        const QStringList on = widgetsOf(0);
        window->keyFeedback().allChangeColorBack();
        QCOMPARE(highlighted(), on);
        for (const char *entry : {"x", "A", "H"}) {
            type(entry);
            space();
            QCOMPARE(highlighted(), on);
        }
        type("a");
        QCOMPARE(sheet("r1"), highLower + lower);
        click("rcRussian");
        QCOMPARE(highlighted(), on);
        click("keyFlash");
        game().keyFlashDelay = 20;
        press("a");
        QCOMPARE(sheet("r1"), saved + lower);
        QTRY_COMPARE(sheet("r1"), highLower + lower);
        QCOMPARE(sheet("bg1"), radius + highBg + highBorder);
        QCOMPARE(highlighted(), on);
    }

    void goneAtStop_data()
    {
        QTest::addColumn<QString>("held");
        QTest::addColumn<bool>("flash");
        QTest::newRow("nothing held") << "" << false;
        QTest::newRow("target held") << "a" << false;
        QTest::newRow("partner held") << "H" << false;
        QTest::newRow("target flashing") << "a" << true;
        QTest::newRow("partner flashing") << "H" << true;
    }
    void goneAtStop()
    {
        QFETCH(QString, held);
        QFETCH(bool, flash);
        game().keyFlashDelay = 20;
        click(flash ? "keyFlash" : "keyConstant");
        for (const char *end : {"stop", "start"}) {
            start();
            if (!held.isEmpty())
                press(held);
            click(end);
            QCOMPARE(lines(), QString());
            QVERIFY(!game().goldHighFlag);
            if (!held.isEmpty())
                release(held);
            later(flash ? 40 : 0);
            QCOMPARE(highlighted(), QStringList());
        }
        enterTarget(); // the new game goes without
        QCOMPARE(highlighted().join(' ') + lines(), QString());
    }

    void wholeGames_data()
    {
        QTest::addColumn<bool>("flash");
        QTest::addColumn<bool>("strict");
        for (const char *set : {"pbForwardAll", "pbReverseAll", "pbRandomAll"}) {
            QTest::addRow("%s Constant Soft", set) << false << false;
            QTest::addRow("%s Constant Strict", set) << false << true;
            QTest::addRow("%s Flash Soft", set) << true << false;
            QTest::addRow("%s Flash Strict", set) << true << true;
        }
    }
    void wholeGames()
    {
        QFETCH(bool, flash);
        QFETCH(bool, strict);
        click(strict ? "strict" : "soft");
        click(flash ? "keyFlash" : "keyConstant");
        game().keyFlashDelay = 3;
        game().randomEndCount = 60;
        start(QString(QTest::currentDataTag()).section(' ', 0, 0));
        mostLines = 0;
        qApp->installEventFilter(this);
        for (int i = 0; game().gameRunning && i < 94; ++i) {
            QCOMPARE(lines(), linesOf(text("leMatch")));
            if (!flash) // else the last key may still be on its way back
                QCOMPARE(highlighted(), widgetsOfTarget());
            enterTarget();
            if (flash && i % 7 == 0)
                later(5);
        }
        qApp->removeEventFilter(this);
        QVERIFY(game().gameFinished);
        QCOMPARE(mostLines, 2);
        for (int round = 0; round < 2; ++round) { // nor do they come back at a press
            later(40);
            QCOMPARE(highlighted().join(' ') + lines(), QString());
            for (const QChar c : characters)
                type(c);
        }
    }

    void entryTouchesTheTargetsWidgetsOnly()
    {
        for (const char *set :
             {"pbForwardAll", "pbForwardNumberLine", "pbReverseAll", "pbRandomVarious"}) {
            start(set);
            for (int i = 0; i < 9; ++i) {
                QStringList allowed = widgetsOfTarget();
                type(text("leMatch"));
                restyled.clear();
                qApp->installEventFilter(this);
                space();
                qApp->removeEventFilter(this);
                allowed += widgetsOfTarget();
                allowed += {"leMatch", "underScoreLeft", "underScoreRight"};
                QVERIFY(!restyled.isEmpty() && restyled.size() <= 14);
                for (const QString &name : qAsConst(restyled))
                    QVERIFY2(allowed.contains(name), qPrintable(name));
            }
        }
    }
};

QTEST_MAIN(TestHighlights)
#include "tst_highlights.moc"
