#include "window.h"

static const QString characters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                  "`1234567890-=~!@#$%^&*()_+[]\\;',./{}|:\"<>?";
static const QString lower = "font-family: Low;", upper = "font-family: Upp;";
static const QString savedColor = "color: #a00005;"; // the keypress color of a highlighted key

// Of each row the horizontal line, then its characters with their vertical lines.
static const QString lineTable =
    "\nh1 `22 120 21 317 44 56 67 78 810 911 012 -24 =26 \nh1_2 ~21 !23 @16 #19 $5 %3 ^18 &2 *13 "
    "(9 )14 _15 +25 \nh2 e5 i9 o14 p15 q16 r3 t18 u13 w19 y2 [25 ]27 \\29 \nh2_2 E17 I10 O11 P12 "
    "Q20 R4 T6 U8 W1 Y7 {24 }26 |28 \nh3 a1 d4 f6 g7 h8 j10 k11 l12 s17 ;24 '26 \nh3_2 A16 D5 F3 "
    "G18 H2 J13 K9 L14 S19 :15 \"25 \nh4 b2 c3 m9 n13 v18 x5 z19 ,14 .15 /25 \nh4_2 B7 C4 M10 N8 "
    "V6 X17 Z1 <11 >12 ?24";

static const QString aids = "goldenHighlight lineHighlight";

class TestHighlights : public WindowTest
{
    Q_OBJECT

    Looks &looks() { return window->wardrobe().looks; }
    PaintTables &paint() { return window->wardrobe().paint; }
    KeyFeedback &feedback() { return window->keyFeedback(); }

    KeyLook high, rest;
    int mostLines = 0;

    static QString color(int rgb) { return QString("color: #%1;").arg(rgb, 0, 16); }
    void prepare() override
    {
        // All fragments are told apart, so that the joins below name what widgets must wear.
        looks().barRadiusStyle = "border-radius: 12px;";
        looks().lowerFontStyle = lower;
        looks().upperFontStyle = upper;
        looks().keypressLowerTextSaved = savedColor;
        looks().key.upperTextStyle = color(0xb00000);
        rest = looks().key;
        high.bgStyle = color(0xa00001);
        high.borderStyle = color(0xa00002);
        high.lowerTextStyle = color(0xa00003);
        high.upperTextStyle = color(0xa00004);
        looks().highlight = high;
        for (int i = 0; i < 94; ++i) {
            paint().paintTextStyle[i] = color(0xd00000 + i);
            paint().paintKeyBgStyle[i / 2] = color(0xd10000 + i / 2);
            paint().paintKeyBorderStyle[i / 2] = color(0xd20000 + i / 2);
        }
        feedback().allChangeColorBack();
        click("animationOff");
    }
    QSet<QString> restyled; // widgets that got another style sheet
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::StyleChange)
            restyled << object->objectName();
        if (event->type() == QEvent::Show)
            mostLines = qMax(mostLines, lines().split(' ').size());
        return false;
    }
    void target(const QString &character) { find<QLineEdit>("leMatch")->setText(character); }
    void clicks(const QString &buttons)
    {
        for (const QString &button : buttons.split(' '))
            click(button);
    }
    void start(const QString &set = "pbForwardAll") { clicks(set + " start " + aids); }
    QStringList named(const char *like, const char *style) const
    {
        QStringList names;
        for (const QWidget *widget : window->findChildren<QWidget *>(QRegularExpression(like))) {
            if (!widget->isHidden() && widget->styleSheet().contains(style))
                names << widget->objectName();
        }
        names.sort();
        return names;
    }
    QString lines() const { return named("^[hv]\\d", "").join(' '); }
    QStringList highlighted() const { return named("^(r|bg)\\d|^underScore", "#a0000"); }
    bool bare() const { return highlighted().isEmpty() && lines().isEmpty(); }
    static QString linesOf(const QString &c)
    {
        const QString place = "\n(\\S+)[^\n]* " + QRegularExpression::escape(c) + "(\\d+)";
        const auto found = QRegularExpression(place).match(lineTable);
        return found.captured(1) + " v" + found.captured(2);
    }
    // Cap, bar letter, key letter and bar cell of a character: sorted.
    static QStringList widgetsOf(int k)
    {
        const int cap = k <= 25 ? k + 1 : k <= 64 ? k - 25 : k <= 85 ? k - 38 : k - 46;
        const QString r = QString("r%1").arg(k + 1);
        return {QString("bg%1").arg(cap), r, r + "_2", r + "bg"};
    }
    QString worn(int k) const
    {
        QString result = characters.mid(k, 1);
        for (const QString &name : widgetsOf(k))
            result += "\n" + sheet(name);
        return result;
    }

private slots:
    void everyTarget_data()
    {
        for (const char *painted : {"lowerOn", "upperOn", "backgroundOn", "borderOn"})
            QTest::addColumn<bool>(painted);
        row("unpainted", false, false, false, false);
        row("all painted", true, true, true, true);
        row("lowercase and border", true, false, false, true);
        row("uppercase and background", false, true, true, false);
    }
    void everyTarget()
    {
        QFETCH(bool, lowerOn);
        QFETCH(bool, upperOn);
        QFETCH(bool, backgroundOn);
        QFETCH(bool, borderOn);
        click("start");
        paint().parts[PaintTables::Lower].on = lowerOn;
        paint().parts[PaintTables::Upper].on = upperOn;
        paint().parts[PaintTables::Background].on = backgroundOn;
        paint().parts[PaintTables::Border].on = borderOn;
        for (int k = 0; k < 94; ++k) {
            const QString c = characters.mid(k, 1);
            const bool shifted = stroke(c).modifiers;
            const QString font = looks().font(shifted);
            target(c);
            clicks(aids);
            QCOMPARE(c + lines(), c + linesOf(c));
            // These seven wear the lowercase color in the uppercase font.
            const QString lit = high.text(shifted && !QString("^&*()_+").contains(c)) + font;
            QString bar = c == "u" ? high.lowerTextStyle : lit;
            QString key = c == "`" || c == "+" ? high.upperTextStyle + font : lit;
            QString cap = looks().keyBackground(high);
            QString cell = looks().barRadiusStyle + high.bgStyle;
            QCOMPARE(worn(k), (QStringList{c, cap, bar, key, cell}.join('\n')));
            QCOMPARE(highlighted(), widgetsOf(k));

            game().letterNumber = k;
            feedback().key(k + 1);
            cap.remove(high.borderStyle);
            key = savedColor + font;
            bar = c == "z" ? savedColor + upper : key; // one irregular word
            QCOMPARE(worn(k), (QStringList{c, cap, bar, key, cell}.join('\n')));
            feedback().changeColorBack(k + 1);
            QVERIFY(highlighted() == widgetsOf(k) && worn(k).contains(high.borderStyle));

            clicks(aids);
            const QString painted = color(0xd00000 + k) + font;
            const QString plain = rest.text(shifted) + font;
            bar = key = (shifted ? upperOn : lowerOn) ? painted : plain;
            if (c == "u" && !lowerOn)
                bar = rest.upperTextStyle + lower;
            if (c == "A" || (k >= 86 && !upperOn)) // the other switch; without a color
                key = c != "A" ? upper + upper : lowerOn ? painted : plain;
            const int slot = c == "a" ? 5 : widgetsOf(k)[0].mid(2).toInt() - 1; // "a" as "f"
            cell = backgroundOn ? color(0xd10000 + slot) : rest.bgStyle;
            cap = looks().keyBackground(color(0xd10000 + slot), color(0xd20000 + slot));
            cap = backgroundOn || borderOn ? cap : looks().keyBackground(rest);
            const QStringList off{c, cap, bar, key, looks().barRadiusStyle + cell};
            QCOMPARE(worn(k), off.join('\n'));
            QVERIFY(bare());
        }
    }

    void partners()
    {
        start();
        // Typed and target: from "aA" on they are no partners.
        const QString pairs = "aH G~ Ha ~G ![ +: [! \"> <? aA Aa ha ?/ zy";
        for (const QString &pair : pairs.split(' ')) {
            click("goldenHighlight");
            target(pair[1]);
            click("goldenHighlight");
            const QStringList before = highlighted();
            press(pair[0]);
            const QString cap = worn(characters.indexOf(pair[0])).section('\n', 1, 1);
            const bool partner = pairs.indexOf(pair) < pairs.indexOf("aA");
            QVERIFY2(cap.contains(high.bgStyle) == partner, qPrintable(pair));
            release(pair[0]);
            QCOMPARE(highlighted(), before);
        }
    }

    void buttonsToggle()
    {
        const QString gray = "color: #6e6e6e";
        clicks(aids); // gray between games
        QVERIFY(bare() && sheet("goldenHighlight").contains(gray));
        click("start");
        QVERIFY(!sheet("goldenHighlight").contains(gray));
        click("goldenHighlight");
        for (const QString entry : {"x", "A", "H", "a"}) { // stays on, pressed or repainted
            QVERIFY2(lines().isEmpty() && highlighted() == widgetsOf(0), qPrintable(entry));
            type(entry);
            feedback().allChangeColorBack();
        }
        clicks(aids);
        QCOMPARE(highlighted().join(' ') + lines(), QString("h3 v1"));
        click("lineHighlight");
        enterTarget(); // off is off
        QVERIFY(bare());
    }

    void goneAtStop_data()
    {
        QTest::addColumn<QString>("held"); // at the end
        QTest::addColumn<bool>("flash");
        row("a key of no part", "x", false);
        row("the target", "a", false);
        row("its partner", "H", false);
        row("the target, flashing", "a", true);
        row("its partner, flashing", "H", true);
    }
    void goneAtStop()
    {
        QFETCH(QString, held);
        QFETCH(bool, flash);
        game().keyFlashDelay = 20;
        click(flash ? "keyFlash" : "keyConstant");
        for (const char *end : {"stop", "start"}) {
            start();
            press(held);
            click(end);
            QVERIFY(lines().isEmpty() && !game().goldHighFlag);
            release(held);
            pass(40);
            QTRY_VERIFY(bare()); // the flash is over, also on a slow machine
        }
    }

    // A correct entry repaints the old target and the new one, and never the whole keyboard.
    void onlyTheTargetIsRestyled()
    {
        start();
        type("a");
        qApp->installEventFilter(this);
        restyled.clear();
        space();
        qApp->removeEventFilter(this);
        QVERIFY(restyled.contains("r2_2") && restyled.contains("bg2"));
        restyled -= {"r1_2", "bg1", "r1bg", "r1", "r2_2", "bg2", "r2bg", "r2", "leMatch"};
        QVERIFY2(restyled.isEmpty(), qPrintable(restyled.values().join(' ')));
    }

    void wholeGames_data()
    {
        for (const char *column : {"buttons", "set"})
            QTest::addColumn<QString>(column);
        for (const char *key : {"keyConstant", "keyFlash"}) {
            for (const char *difficulty : {"soft", "strict"}) {
                for (const char *set : {"pbForwardAll", "pbReverseAll", "pbRandomAll"})
                    QTest::addRow("%s %s %s", set, difficulty, key)
                        << QString("%1 %2").arg(difficulty, key) << set;
            }
        }
    }
    void wholeGames()
    {
        QFETCH(QString, buttons);
        QFETCH(QString, set);
        const bool flash = buttons.endsWith("keyFlash");
        clicks(buttons);
        game().keyFlashDelay = 3;
        game().randomEndCount = 60;
        start(set);
        mostLines = 0;
        qApp->installEventFilter(this);
        for (int i = 0; game().gameRunning && i < 94; ++i) {
            QCOMPARE(lines(), linesOf(text("leMatch")));
            if (!flash || i % 7 == 0) // else the last key may still be on its way back
                QTRY_COMPARE(highlighted(), widgetsOf(characters.indexOf(text("leMatch"))));
            enterTarget();
        }
        qApp->removeEventFilter(this);
        QVERIFY(game().gameFinished);
        QCOMPARE(mostLines, 2);
        pass(40);
        QVERIFY(bare() && !game().goldHighFlag); // nor do they come back at a press
    }
};

QTEST_MAIN(TestHighlights)
#include "tst_highlights.moc"
