#include "window.h"

#include <QGraphicsOpacityEffect>

namespace {

using FadeLists::Step;

// "500:17 550:1 ..." of one half of a sweep.
QString listed(const FadeLists::Steps &steps, Step::What what)
{
    QStringList parts;
    for (const Step &step : steps) {
        if (step.what == what)
            parts << QString("%1:%2").arg(step.step).arg(step.place);
    }
    return parts.join(' ');
}

constexpr auto Out = GameState::Fade::Out, OutIn = GameState::Fade::OutIn;
constexpr auto Forward = Direction::Forward, Reverse = Direction::Reverse,
               Random = Direction::Random;
constexpr auto Uppercase = Keys::Set::Uppercase, Lowercase = Keys::Set::Lowercase,
               NumberLine = Keys::Set::NumberLine, Everything = Keys::Set::Everything;

} // namespace

Q_DECLARE_METATYPE(GameState::Fade)
Q_DECLARE_METATYPE(Direction)
Q_DECLARE_METATYPE(Keys::Set)

class TestFades : public WindowTest
{
    Q_OBJECT

    double opacity(const QString &name) const
    {
        const auto *effect = qobject_cast<QGraphicsOpacityEffect *>(find(name)->graphicsEffect());
        return effect ? effect->opacity() : 1;
    }

private slots:
    void sweeps_data()
    {
        QTest::addColumn<GameState::Fade>("fade");
        QTest::addColumn<int>("index");
        QTest::addColumn<Direction>("direction");
        QTest::addColumn<Keys::Set>("set");
        QTest::addColumn<QString>("begins");
        QTest::addColumn<QString>("ends");
        QTest::addColumn<int>("count");
        QTest::newRow("z of Forward Lowercase")
            << Out << 25 << Forward << Lowercase << "500:17 550:1 600:26"
            << "1600:11 1700:15 1750:12 1850:16" << 26;
        QTest::newRow("z of Forward Everything")
            << Out << 25 << Forward << Everything << "500:17 550:1"
            << "1850:16" << 26;
        QTest::newRow("a of Reverse Lowercase")
            << Out << 0 << Reverse << Lowercase << "650:16 700:12 750:15"
            << "1900:17" << 26;
        QTest::newRow("A of Reverse")
            << Out << 26 << Reverse << Uppercase << "650:16 750:12 800:15 900:11"
            << "2000:17" << 26;
        QTest::newRow("` of Reverse Number Line")
            << Out << 52 << Reverse << NumberLine
            << "550:47 600:46 650:45 700:44 750:43 700:42 850:41 800:40 900:39"
            << "1500:27" << 21;
        QTest::newRow("= of Forward") << Out << 64 << Forward << NumberLine << "500:27 550:28"
                                      << "1100:39" << 13;
        QTest::newRow("~ of Reverse") << Out << 65 << Reverse << Everything << "600:39 650:38"
                                      << "1100:29 1150:28 1150:27" << 13;
        QTest::newRow("/ of Forward")
            << Out << 85 << Forward << NumberLine << "500:45 550:46 600:43 650:47 700:40 750:43"
            << "900:42" << 9;
        QTest::newRow("{ of Reverse") << Out << 86 << Reverse << NumberLine
                                      << "500:42 550:41 600:44 650:40 700:43 750:47 800:43"
                                      << "900:45" << 9;
        QTest::newRow("? of Forward Number Line")
            << Out << 93 << Forward << NumberLine
            << "550:27 600:28 650:29 700:30 750:31 700:32 850:33 800:34 900:35 950:36"
            << "1500:47" << 21;
        QTest::newRow("? of Forward Everything")
            << Out << 93 << Forward << Everything << "500:27 550:28 600:17"
            << "1900:13 1950:9 2050:11 2100:35 2150:45 2200:15 2250:12 2300:36 2350:46 2400:16 "
               "2450:43 2500:37 2550:47 2600:40 2650:44 2700:38 2750:41 2800:42 2850:39"
            << 47;
        QTest::newRow("a of Reverse Everything")
            << Out << 0 << Reverse << Everything << "450:39 500:42"
            << "2350:5 2500:24 2550:19 2600:23 2600:29 2700:26 2750:1 2800:17 2850:28 2900:27"
            << 47;
        QTest::newRow("nothing at } of Forward Everything")
            << Out << 87 << Forward << Everything << ""
            << "" << 0;
        QTest::newRow("nothing at Z of Forward Everything")
            << Out << 51 << Forward << Everything << ""
            << "" << 0;
        QTest::newRow("nothing in Random") << Out << 25 << Random << Lowercase << ""
                                           << "" << 0;
        QTest::newRow("out and in, z of Forward Lowercase")
            << OutIn << 25 << Forward << Lowercase << "3500:17 3550:1"
            << "4850:16" << 26;
        QTest::newRow("out and in, A of Reverse Uppercase")
            << OutIn << 26 << Reverse << Uppercase << "3650:16 3750:12"
            << "5000:17" << 26;
        QTest::newRow("out and in, ` of Reverse Number Line")
            << OutIn << 52 << Reverse << NumberLine << "3500:42 3550:39 3600:41"
            << "4150:45 4200:34 4250:33 4300:32 4350:31 4400:30 4450:29 4500:28 4550:27" << 22;
        QTest::newRow("out and in, ? of Forward Number Line")
            << OutIn << 93 << Forward << NumberLine << "3500:27"
            << "4400:39 4450:40 4500:41" << 21;
        QTest::newRow("out and in, all")
            << OutIn << 93 << Forward << Everything << "3000:27 3000:49 3000:50 3000:52 3100:28"
            << "4200:39 4200:41 4200:51 4300:48 4300:42" << 54;
        QTest::newRow("out and in, all, Reverse")
            << OutIn << 0 << Reverse << Everything << "3000:48 3000:42 3100:39"
            << "4300:27 4300:49 4300:50 4300:52 3200:53" << 54;
    }
    void sweeps()
    {
        QFETCH(GameState::Fade, fade);
        QFETCH(int, index);
        QFETCH(Direction, direction);
        QFETCH(Keys::Set, set);
        QFETCH(QString, begins);
        QFETCH(QString, ends);
        QFETCH(int, count);
        const auto steps = FadeLists::closingSweep(fade, index, direction, set);
        const QString back = listed(steps, Step::In);
        QCOMPARE(back.isEmpty(), begins.isEmpty());
        QVERIFY2(back.isEmpty() || (back.startsWith(begins) && back.endsWith(ends)),
                 qPrintable(back));
        QCOMPARE(back.split(' ', Qt::SkipEmptyParts).size(), count);
        // What comes back has gone, exactly a second or more before.
        const QString gone = listed(steps, Step::Out);
        QCOMPARE(gone.isEmpty(), fade == Out || count == 0);
        if (!gone.isEmpty())
            QCOMPARE(gone.split(' ').size(), count);
    }

    void resetBringsBackWhatHasFaded_data()
    {
        QTest::addColumn<Direction>("direction");
        QTest::addColumn<Keys::Set>("set");
        QTest::addColumn<QList<int>>("matched");
        QTest::addColumn<QString>("back");
        QTest::newRow("abc") << Forward << Lowercase << QList<int>{1, 2, 3} << "550:1 900:3 1200:2";
        QTest::newRow("zyx") << Reverse << Lowercase << QList<int>{26, 25, 24}
                             << "950:25 1450:24 1600:26";
        QTest::newRow("cap 1 looks at z")
            << Forward << Everything << QList<int>{26} << "600:1 650:26";
        QTest::newRow("cap 19 looks at 9") << Forward << Lowercase << QList<int>{62} << "700:19";
        QTest::newRow("Everything backwards")
            << Reverse << Everything << QList<int>{23, 55, 26} << "2500:23 2500:29 2600:26 2650:1";
        QTest::newRow("number row forward")
            << Forward << NumberLine << QList<int>{53, 54} << "450:27 500:28";
        QTest::newRow("shifted number row")
            << Forward << NumberLine << QList<int>{53, 65, 66} << "450:27";
        QTest::newRow("punctuation")
            << Forward << NumberLine << QList<int>{65, 79, 80} << "500:40 550:41";
        QTest::newRow("last signs backwards")
            << Reverse << NumberLine << QList<int>{94, 93} << "500:47 550:46";
        QTest::newRow("unshifted signs backwards")
            << Reverse << NumberLine << QList<int>{94, 87, 86, 85, 84} << "500:47 500:46 600:45";
    }
    void resetBringsBackWhatHasFaded()
    {
        QFETCH(Direction, direction);
        QFETCH(Keys::Set, set);
        QFETCH(QList<int>, matched);
        QFETCH(QString, back);
        GameState state;
        for (int key : matched)
            state.setKeyPressed(key);
        QCOMPARE(listed(FadeLists::reset(direction, set, state), Step::In), back);
    }

    // A located key goes with all that lies on it, and Stop brings it back.
    void fadeOutAndStop()
    {
        click("animationOff");
        click("pbForwardVarious");
        window->fadeEngine().fadeOut_function();
        click("start");
        enterTarget();
        QVERIFY(!shown("shield1"));
        QVERIFY(shown("shield2"));
        QTRY_COMPARE(opacity("bg1"), 0.0);
        for (const char *name : {"r1_2", "r27_2", "img1"})
            QCOMPARE(opacity(name), 0.0);
        QCOMPARE(opacity("bg2"), 1.0);
        click("stop");
        QTRY_VERIFY_WITH_TIMEOUT(shown("shield1") && find("bg1")->graphicsEffect() == nullptr,
                                 4000);
        QVERIFY(find("bg2")->graphicsEffect() == nullptr);
    }

    void fadesInRandom()
    {
        click("animationOff");
        click("pbRandomVarious");
        window->fadeEngine().fadeOut_function();
        click("start");
        QCOMPARE(text("display2"), QString("Fade Out does not\nwork with Random."));
        const int cap = 1 + window->board().widgets.indexOf(text("leMatch"));
        enterTarget();
        QVERIFY(shown(QString("shield%1").arg(cap)));
        QCOMPARE(text("display2"), QString("Fade Out does not work with Random"));
        window->fadeEngine().fadeInOut_function();
        const int next = 1 + window->board().widgets.indexOf(text("leMatch"));
        enterTarget();
        QVERIFY(!shown(QString("shield%1").arg(next)));
        QTRY_VERIFY(shown(QString("shield%1").arg(next)));
    }

    void homeRowMarksFadeWithTheirKeys()
    {
        window->fadeEngine().fadeOut(6);
        window->fadeEngine().fadeOut(10);
        QVERIFY(find("underScoreLeft")->graphicsEffect());
        QVERIFY(find("underScoreRight")->graphicsEffect());
        // Control keys: the right background and image for each text.
        window->fadeEngine().fadeOut(52);
        for (const char *name : {"labelShiftLeft", "bgShiftLeft", "imgShiftLeft"})
            QVERIFY2(find(name)->graphicsEffect(), name);
        QVERIFY(!find("bgShiftRight")->graphicsEffect());
        for (int place : {0, -1, 55, 1000}) {
            window->fadeEngine().fadeOut(place);
            window->fadeEngine().fadeIn(place);
            window->fadeEngine().fadeInShadow(place);
        }
    }

    void shadowsComeBackAfterAFade()
    {
        ShadowFields &shadows = window->board().shadows;
        shadows.shadowKeys.on = true;
        shadows.shadowKeys.colour = "#123456";
        window->fadeEngine().fadeInShadow(1);
        auto *shadow = qobject_cast<QGraphicsDropShadowEffect *>(find("bg1")->graphicsEffect());
        QVERIFY(shadow);
        QCOMPARE(shadow->color(), QColor("#123456"));
        window->fadeEngine().fadeInShadow(2); // asks for the other half
        QVERIFY(!find("bg2")->graphicsEffect());
        window->fadeEngine().fadeInShadow(24); // asks for both
        QVERIFY(!find("bg24")->graphicsEffect());
        shadows.shadowKeys_2.on = true;
        window->fadeEngine().fadeInShadow(50); // Caps Lock dresses Tab too
        QVERIFY(find("bgTab")->graphicsEffect() && find("bgCapsLock")->graphicsEffect());
    }

    void twoHundredFadesLeaveNothingBehind()
    {
        const auto objects = [this] { return window->findChildren<QObject *>().size(); };
        const int before = objects();
        for (int i = 0; i < 200; ++i) {
            window->fadeEngine().fadeOut(1 + i % 54);
            window->fadeEngine().fadeIn(1 + i % 54);
        }
        QTRY_COMPARE_WITH_TIMEOUT(objects(), before, 5000);
    }
};

QTEST_MAIN(TestFades)
#include "tst_fades.moc"
