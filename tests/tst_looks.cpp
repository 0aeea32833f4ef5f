#include "gradienttext.h"
#include "looks.h"
#include "painttables.h"

#include <QtTest>

class TestLooks : public QObject
{
    Q_OBJECT

private slots:
    void gradientTexts()
    {
        // What stands between "background-color: " or "px; border-color: " and the colours.
        const QStringList heads{
            "", // solid: the end colour alone
            "qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 ",
            "qlineargradient(x1: 0, y1: 0, x2: 1, y2: 0, stop: 0 ",
            "qlineargradient(x1: .8, y1: .8, x2: 0, y2: 0, stop: 0 ",
            "qradialgradient( cx: .5,  cy: .5, radius: .5, fx:0.5, fy:0.5, stop : 0 ",
            "qradialgradient(spread:repeat, cx:  .5, cy:  .5, radius: .1,fx:0.5, fy:0.5,   stop : "
            "0 ",
        };
        QCOMPARE(GradientText::background(0, {"S", ".3", "E"}), QString("background-color: E; "));
        QCOMPARE(GradientText::border(0, "7", {"S", ".3", "E"}),
                 QString("border-style:solid; border-width: 7px; border-color: E;"));
        for (int shape = 1; shape < heads.size(); ++shape) {
            const QString gradient = heads[shape] + "S, stop: .3  E);";
            QCOMPARE(GradientText::background(shape, {"S", ".3", "E"}),
                     "background-color: " + gradient);
            QCOMPARE(GradientText::border(shape, "7", {"S", ".3", "E"}),
                     "border-style:solid; border-width:7px; border-color: " + gradient);
        }
        for (int shape : {-1, 6, 1000})
            QCOMPARE(GradientText::background(shape, {"S", ".5", "E"}),
                     QString("background-color: E; "));
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
