#include "gradienttext.h"
#include "looks.h"
#include "painttables.h"
#include "styletext.h"

#include <QtTest>

class TestLooks : public QObject
{
    Q_OBJECT

private slots:
    void gradientTexts()
    {
        // What stands between "background-color: " or "px; border-color: " and the colors.
        const QStringList heads{
            "", // solid: the end color alone
            "qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 ",
            "qlineargradient(x1: 0, y1: 0, x2: 1, y2: 0, stop: 0 ",
            "qlineargradient(x1: .8, y1: .8, x2: 0, y2: 0, stop: 0 ",
            "qradialgradient( cx: .5,  cy: .5, radius: .5, fx:0.5, fy:0.5, stop : 0 ",
            "qradialgradient(spread:repeat, cx:  .5, cy:  .5, radius: .1,fx:0.5, fy:0.5,   stop : "
            "0 ",
        };
        QCOMPARE(GradientText::background(0, {"red", ".3", "blue"}),
                 QString("background-color: blue; "));
        QCOMPARE(GradientText::border(0, "7", {"red", ".3", "blue"}),
                 QString("border-style:solid; border-width: 7px; border-color: blue;"));
        for (int shape = 1; shape < heads.size(); ++shape) {
            const QString gradient = heads[shape] + "red, stop: .3  blue);";
            QCOMPARE(GradientText::background(shape, {"red", ".3", "blue"}),
                     "background-color: " + gradient);
            QCOMPARE(GradientText::border(shape, "7", {"red", ".3", "blue"}),
                     "border-style:solid; border-width:7px; border-color: " + gradient);
        }
        for (int shape : {-1, 6, 1000})
            QCOMPARE(GradientText::background(shape, {"red", ".5", "blue"}),
                     QString("background-color: blue; "));
    }

    // Alpha cannot go into the radial shape: it takes the twins without.
    void radialTakesTheHexColors()
    {
        Look look;
        look.bgStart = look.bgEnd = "rgba(1, 2, 3, 4 ) ";
        look.bgStartHex = "#010203";
        look.bgEndHex = "#040506";
        look.bgShape = GradientText::Radial;
        look.buildBackground();
        QVERIFY(look.bgStyle.contains("stop : 0 #010203, stop: .5  #040506);"));
        QVERIFY(!look.bgStyle.contains("rgba"));
    }

    // Qt's parser reads past the end of a gradient whose end it cannot read.
    void unreadableColors_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("end");
        QTest::addColumn<QString>("built"); // of shape 1; empty: nothing
        const QString head = "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
                             "stop: 0 ";
        QTest::newRow("no end") << "red"
                                << "" << head + "red, stop: .5  red);";
        QTest::newRow("no start") << " "
                                  << "#00ff00" << head + "#00ff00, stop: .5  #00ff00);";
        QTest::newRow("a word") << "reddish"
                                << "blue" << head + "blue, stop: .5  blue);";
        QTest::newRow("too much of a color") << "rgba(1, 2, 300, 4 ) "
                                             << "blue" << head + "blue, stop: .5  blue);";
        QTest::newRow("a second declaration")
            << "red"
            << "red; border: 9999px dashed" << head + "red, stop: .5  red);";
        QTest::newRow("a name with a blank in it") << "re d"
                                                   << "blue" << head + "blue, stop: .5  blue);";
        QTest::newRow("neither") << ""
                                 << "url(x)"
                                 << "";
    }
    void unreadableColors()
    {
        QFETCH(QString, start);
        QFETCH(QString, end);
        QFETCH(QString, built);
        QCOMPARE(GradientText::background(1, {start, ".5", end}), built);
        QCOMPARE(GradientText::border(0, "1", {start, ".5", end}).isEmpty(), built.isEmpty());
        QVERIFY(!GradientText::background(0, {start, ".5", end}).contains("9999"));
        QVERIFY(GradientText::background(1, {"red", "x", "red"}).contains("stop: .5  red"));
        QVERIFY(GradientText::background(1, {"red", " ", "red"}).contains("stop: .5  red"));
        QVERIFY(GradientText::border(1, "", {"red", "", "red"}).contains("border-width:0px"));
        QVERIFY(GradientText::border(1, "+7", {"red", "", "red"}).contains("border-width:7px"));
    }

    // A theme's line must mean nothing more when another one is joined to it.
    void whatALookIsMadeOf_data()
    {
        using StyleText::Kind;
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("taken");
        const auto row = [](const char *name, Kind kind, const QString &text, bool taken) {
            QTest::newRow(name) << int(kind) << text << taken;
        };
        row("text", Kind::Text, " color: rgba(1, 2, 3, 4 ) ; ", true);
        row("text with two semicolons", Kind::Text, "color: rgba(1, 2, 3, 4 );;", true);
        row("text without its semicolon", Kind::Text, "color: red", false);
        row("blank that sheets do not know", Kind::Text, QString("color: red") + QChar::Nbsp + ';',
            false);
        row("vertical tab", Kind::Text, "color:\vred;", false);
        row("blanks behind the end", Kind::Text, "color: red;\f", false);
        row("half of a picture", Kind::Text, "background-image: ur", false);
        row("the other half", Kind::Background, "l(/dev/zero);", false);
        row("whole picture", Kind::Background, "background-image: url(/dev/zero);", false);
        row("property of a widget", Kind::Text, "qproperty-text: 'x';", false);
        row("comment", Kind::Text, "color: red; /*", false);
        row("block", Kind::Background, "background-color: red; } * { color: red;", false);
        row("background", Kind::Background, "background-color: #123456; ", true);
        row("gradient", Kind::Background,
            "background-color: qradialgradient( cx: .5,  cy: .5, radius: .5, fx:0.5, fy:0.5, "
            "stop : 0 #000003, stop: .3  rgba(1, 2, 3, 4 ) );",
            true);
        row("gradient without its end", Kind::Background,
            "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 red, stop: .5 "
            " );",
            false);
        row("gradient of a name with a blank", Kind::Background,
            "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 re d, stop: .5 "
            " red);",
            false);
        row("a text's color as background", Kind::Background, "color: red;", false);
        row("border", Kind::Border, "border-style:solid; border-width:199px; border-color: red;",
            true);
        row("wide border", Kind::Border, "border-style:solid; border-width:200px;", false);
        row("of the wallpaper", Kind::WideBorder, "border-width: 1500px;", true);
        row("wider", Kind::WideBorder, "border-width: 1501px;", false);
        row("dashed", Kind::Border, "border: 3px dashed red;", false);
        row("solid", Kind::Border, "border: 1px solid #6e6e6e;", true);
        row("none", Kind::Border,
            "border-style:none; border-width:0px;  border-color: transparent;", true);
        row("font", Kind::Font, "font-family: DejaVu Sans;", true);
        row("quoted font", Kind::Font, "font-family: 'Modern No. 20';", true);
        row("font with brackets", Kind::Font, "font-family: 'Symbols (Bold)';", true);
        row("font that does not parse", Kind::Font, "font-family: Z003 [urw];", false);
        row("font of a giant", Kind::Font, "font-size: 999pt;", false);
        row("color", Kind::Color, " transparent", true);
        row("color and more", Kind::Color, "red;color:red", false);
        row("alpha where there is none", Kind::Color, "rgb(1, 2, 3, 4)", false);
        row("no alpha", Kind::Color, "rgba(1, 2, 3)", false);
        row("stop", Kind::Stop, ".5", true);
        row("stop of the breathing box", Kind::Stop, "0.0899999", true);
        row("stop beyond", Kind::Stop, "2", false);
        row("width", Kind::Width, "99", true);
        row("width with a sign", Kind::Width, "+9", false);
        row("width of a planet", Kind::Width, "99999", false);
        row("nothing", Kind::Border, "", true);
        row("a NUL byte", Kind::Plain, QString("a") + QChar::Null, false);
    }
    void whatALookIsMadeOf()
    {
        QFETCH(int, kind);
        QFETCH(QString, text);
        QTEST(StyleText::isHarmless(static_cast<StyleText::Kind>(kind), text), "taken");
    }

    void namesInSheets()
    {
        QCOMPARE(StyleText::url("/a b/c.png"), QString("url(/a b/c.png)"));
        QCOMPARE(StyleText::url("/it's.png"), QString("url(\"/it's.png\")"));
        QCOMPARE(StyleText::url("/12\".png"), QString("url('/12\".png')"));
        QCOMPARE(StyleText::url("/'\".png"), QString("none")); // nobody could read that
        QCOMPARE(StyleText::url("/two\nlines.png"), QString("none"));
        QCOMPARE(StyleText::fontFamily("Calibri"), QString("font-family: Calibri;"));
        QCOMPARE(StyleText::fontFamily("Symbols (Bold)"),
                 QString("font-family: 'Symbols (Bold)';"));
        QCOMPARE(StyleText::fontFamily("It's"), QString());
    }

    void paintReplacesTheRestLook()
    {
        Looks looks;
        PaintTables paint(looks);
        looks.key.borderStyle = "KB;";
        paint.paintKeyBgStyle[4] = "PB;";
        paint.paintKeyBorderStyle[4] = "PE;";
        paint.paintTextStyle[4] = "PT;";
        QCOMPARE(paint.restKeyBackground(Keys::Place::ofCap(5)),
                 "border-radius: 10px;" + looks.key.bgStyle + "KB;");
        QCOMPARE(paint.restBarBackground(Keys::Place::ofCap(5)),
                 "border-radius: 10px;" + looks.key.bgStyle);
        QCOMPARE(paint.restText(5), QString("color: white;"));

        // A painted border alone puts the painted background on the key, but not on the bar.
        paint.parts[PaintTables::Border].on = true;
        QCOMPARE(paint.restKeyBackground(Keys::Place::ofCap(5)),
                 QString("border-radius: 10px;PB;PE;"));
        QCOMPARE(paint.restBarBackground(Keys::Place::ofCap(5)),
                 "border-radius: 10px;" + looks.key.bgStyle);
        paint.parts[PaintTables::Background].on = true;
        QCOMPARE(paint.restBarBackground(Keys::Place::ofCap(5)),
                 QString("border-radius: 10px;PB;"));
        paint.parts[PaintTables::Upper].on = true;
        QCOMPARE(paint.restText(5), QString("color: white;"));
        paint.parts[PaintTables::Lower].on = true;
        QCOMPARE(paint.restText(5), QString("PT;"));

        // Its neighbor was not painted and follows the key look; so does what is wiped.
        looks.key.bgStyle = "background-color: blue;";
        looks.key.lowerTextStyle = "color: red;";
        QCOMPARE(paint.restKeyBackground(Keys::Place::ofCap(6)),
                 QString("border-radius: 10px;background-color: blue;KB;"));
        QCOMPARE(paint.restText(6), QString("color: red;"));
        paint.fillRainbowLow();
        QCOMPARE(paint.restText(5), QString("color: red;"));

        // For a file it is written as it looks, and read back as no paint.
        PaintTables shown = paint;
        shown.fillFromLooks();
        QCOMPARE(shown.paintKeyBgStyle[5] + shown.paintKeyBgStyle[4],
                 QString("background-color: blue;PB;"));
        shown.dropWhatLooksSay();
        QCOMPARE(shown.paintKeyBgStyle[5] + shown.paintKeyBgStyle[4], QString("PB;"));
    }
};

QTEST_APPLESS_MAIN(TestLooks)
#include "tst_looks.moc"
