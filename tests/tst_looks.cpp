#include "gradienttext.h"
#include "looks.h"
#include "painttables.h"

#include <QtTest>

class TestLooks : public QObject
{
    Q_OBJECT

private slots:
    void gradientTexts_data()
    {
        QTest::addColumn<QString>("background");
        QTest::addColumn<QString>("border");
        QTest::newRow("solid takes the end colour")
            << "background-color: E; "
            << "border-style:solid; border-width: 7px; border-color: E;";
        QTest::newRow("top to bottom") << "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, "
                                          "y2: 1, stop: 0 S, stop: .3  E);"
                                       << "border-style:solid; border-width:7px; border-color: "
                                          "qlineargradient(x1: 0, y1: 0, x2: "
                                          "0, y2: 1, stop: 0 S, stop: .3  E);";
        QTest::newRow("left to right") << "background-color: qlineargradient(x1: 0, y1: 0, x2: 1, "
                                          "y2: 0, stop: 0 S, stop: .3  E);"
                                       << "border-style:solid; border-width:7px; border-color: "
                                          "qlineargradient(x1: 0, y1: 0, x2: "
                                          "1, y2: 0, stop: 0 S, stop: .3  E);";
        QTest::newRow("corner to corner") << "background-color: qlineargradient(x1: .8, y1: .8, "
                                             "x2: 0, y2: 0, stop: 0 S, stop: .3  "
                                             "E);"
                                          << "border-style:solid; border-width:7px; border-color: "
                                             "qlineargradient(x1: .8, y1: .8, "
                                             "x2: 0, y2: 0, stop: 0 S, stop: .3  E);";
        QTest::newRow("radial") << "background-color: qradialgradient( cx: .5,  cy: .5, radius: "
                                   ".5, fx:0.5, fy:0.5, stop : "
                                   "0 S, stop: .3  E);"
                                << "border-style:solid; border-width:7px; border-color: "
                                   "qradialgradient( cx: .5,  cy: .5, "
                                   "radius: .5, fx:0.5, fy:0.5, stop : 0 S, stop: .3  E);";
        QTest::newRow("repeating radial")
            << "background-color: qradialgradient(spread:repeat, cx:  .5, cy:  .5, radius: "
               ".1,fx:0.5, fy:0.5,   stop : 0 S, stop: .3  E);"
            << "border-style:solid; border-width:7px; border-color: qradialgradient(spread:repeat, "
               "cx:  .5, cy:  .5, radius: .1,fx:0.5, fy:0.5,   stop : 0 S, stop: .3  E);";
    }
    void gradientTexts()
    {
        static int shape = 0;
        QFETCH(QString, background);
        QFETCH(QString, border);
        QCOMPARE(GradientText::background(shape, {"S", ".3", "E"}), background);
        QCOMPARE(GradientText::border(shape, "7", {"S", ".3", "E"}), border);
        ++shape;
    }

    void shapeOutOfRangeIsSolid()
    {
        for (int shape : {-1, 6, 1000})
            QCOMPARE(GradientText::background(shape, {"S", ".5", "E"}),
                     QString("background-color: E; "));
    }

    void defaultBackgrounds_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("colour");
        const Looks looks;
        QTest::newRow("key") << looks.key.bgStyle << "black";
        QTest::newRow("keypress") << looks.keypress.bgStyle << "black";
        QTest::newRow("mouseover") << looks.mouseover.bgStyle << "gold";
        QTest::newRow("highlight") << looks.highlight.bgStyle << "gold";
        QTest::newRow("finished") << looks.finished.bgStyle << "rgb(115, 115, 115)";
        QTest::newRow("wallpaper") << looks.wallpaper.bgStyle << "white";
        QTest::newRow("rainbow") << looks.rainbow.bgStyle << "black";
        QTest::newRow("game play") << looks.gamePlay.bgStyle << "white";
        QTest::newRow("horizontal line") << looks.lineHigh.horizontalStyle << "blue";
        QTest::newRow("vertical line") << looks.lineHigh.verticalStyle << "blue";
    }
    void defaultBackgrounds()
    {
        QFETCH(QString, style);
        QFETCH(QString, colour);
        QCOMPARE(style, "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 " +
                            colour + ", stop: .5  " + colour + ");");
    }

    void defaultBorderColours()
    {
        const Looks looks;
        QCOMPARE(looks.wallpaper.borderStart, QString("transparent"));
        QCOMPARE(looks.wallpaper.borderEndHex, QString("rgb(115, 115, 115)"));
        QCOMPARE(looks.gamePlay.borderEnd, QString("black"));
        QCOMPARE(looks.gamePlay.borderEndHex, QString("white"));
        QCOMPARE(looks.mouseover.borderStart, QString("gold"));
        QVERIFY(looks.finished.borderEnd.isEmpty());
        QVERIFY(looks.key.borderStyle.isEmpty());
        QCOMPARE(looks.keypress.borderStyle,
                 QString("border-style:none; border-width:0px;  border-color: transparent;"));
    }

    // Alpha cannot go into the radial shape: it takes the twins without.
    void radialTakesTheHexColours()
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

    void paintReplacesTheRestLook()
    {
        Looks looks;
        PaintTables paint(looks);
        looks.key.borderStyle = "KB;";
        paint.paintKeyBgStyle[4] = "PB;";
        paint.paintKeyBorderStyle[4] = "PE;";
        paint.paintTextStyle[4] = "PT;";
        QCOMPARE(paint.restKeyBackground(4), "border-radius: 10px;" + looks.key.bgStyle + "KB;");
        QCOMPARE(paint.restBarBackground(4), "border-radius: 10px;" + looks.key.bgStyle);
        QCOMPARE(paint.restText(5), QString("color: white;"));

        // A painted border alone puts the painted background on the key, but not on the bar.
        paint.paintBorderOn = true;
        QCOMPARE(paint.restKeyBackground(4), QString("border-radius: 10px;PB;PE;"));
        QCOMPARE(paint.restBarBackground(4), "border-radius: 10px;" + looks.key.bgStyle);
        paint.paintBackgroundOn = true;
        QCOMPARE(paint.restBarBackground(4), QString("border-radius: 10px;PB;"));
        paint.paintUpperOn = true;
        QCOMPARE(paint.restText(5), QString("color: white;"));
        paint.paintLowerOn = true;
        QCOMPARE(paint.restText(5), QString("PT;"));
        paint.fillRainbowLow();
        QCOMPARE(paint.restText(5), QString("color: white;"));
    }
};

QTEST_APPLESS_MAIN(TestLooks)
#include "tst_looks.moc"
