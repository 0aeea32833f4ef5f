#include "keyboardview.h"
#include "keys.h"
#include "window.h"

// The labels of the keyboard as they stand in the window: where, and over what.
class TestKeyboardView : public WindowTest
{
    Q_OBJECT

private slots:
    void placesOfKeys()
    {
        const QString places = "bg27 148,394,54,54|bg39 892,394,54,54|bgBackSpace 954,394,104,54|"
                               "bgTab 148,454,86,54|bg17 242,454,54,54|bg42 986,454,72,54|"
                               "bgCapsLock 148,514,118,54|bg1 274,514,54,54|bg44 894,514,54,54|"
                               "bgEnter 956,514,102,54|bgShiftLeft 148,574,148,54|"
                               "bg26 304,574,54,54|bg47 862,574,54,54|"
                               "bgShiftRight 924,574,134,54|bgSpacebar 474,634,228,54|"
                               "pulsate1 248,491,96,96|pulsate42 969,431,96,96|"
                               "pulsate48 958,371,96,96|pulsate54 542,608,96,96|"
                               "shield27 148,392,54,54|r1 214,294,28,28|r52 914,266,28,28|"
                               "r53 186,358,28,28|r66 186,330,28,28|r81 690,358,28,28|"
                               "r90 776,330,28,28|r94 942,330,28,28";
        for (const QString &row : places.split('|')) {
            const QRect place = find(row.section(' ', 0, 0))->geometry();
            const QString seen = QString("%1,%2,%3,%4")
                                     .arg(place.x())
                                     .arg(place.y())
                                     .arg(place.width())
                                     .arg(place.height());
            QCOMPARE(row.section(' ', 0, 0) + ' ' + seen, row);
        }
    }

    // What stands at one place of the keyboard covers it, and no two places share a pixel.
    void pilesStandOnTheirKeys()
    {
        const KeyboardWidgets &keys = window->furniture().widgets;
        QRegion taken;
        for (const Keys::Place place : Keys::places) {
            const QRect ground = keys.background(place)->geometry();
            QVERIFY2(!taken.intersects(ground), qPrintable(keys.text(place)->text()));
            taken += ground;
            QCOMPARE(keys.image(place)->geometry(), ground);
            QCOMPARE(keys.displayNoneList[place.index()]->geometry(), ground);
            QVERIFY(keys.burst(place)->geometry().contains(ground.center()));
        }
        for (int cap = 1; cap <= Keys::capCount; ++cap)
            QVERIFY(
                keys.shield(cap)->geometry().contains(keys.background(cap)->geometry().center()));
        for (int key = 1; key <= Keys::count; ++key)
            QCOMPARE(keys.barLetter(key)->geometry(), keys.barBackground(key)->geometry());
    }

    void labelsLieInTheirLayers()
    {
        const QObjectList all = find<QWidget>("centralWidget")->children();
        const auto at = [&](const char *name) { return all.indexOf(find<QWidget>(name)); };
        const QStringList upwards =
            QString("piclabel1 keyFaces bg1 bgSpacebar img1 r1_2 r94_2 labelBackSpace "
                    "underScoreLeft underScoreRight keyShields shield1 shield47 alphabetBar r1bg "
                    "r94bg r1 r94 start keyBursts displayNone1 "
                    "displayNone54 pulsate1 pulsate54")
                .split(' ');
        for (int i = 1; i < upwards.size(); ++i)
            QVERIFY2(at(qPrintable(upwards[i - 1])) < at(qPrintable(upwards[i])),
                     qPrintable(upwards[i]));
    }

    // The layers themselves are only there for their place in the form.
    void layersAreNotSeen()
    {
        for (const char *layer : {"keyFaces", "keyShields", "alphabetBar", "keyBursts"})
            QVERIFY2(!shown(layer) && find<QWidget>(layer)->children().isEmpty(), layer);
    }
};

QTEST_MAIN(TestKeyboardView)
#include "tst_keyboardview.moc"
