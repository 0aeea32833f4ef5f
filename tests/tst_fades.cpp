#include "window.h"

#include <QGraphicsDropShadowEffect>
#include <QGraphicsOpacityEffect>

namespace {

using FadeLists::Step;

// "500:17 550:1 ..." of one half of a sweep.
QString listed(const FadeLists::Steps &steps, Step::What what)
{
    QStringList parts;
    for (const Step &step : steps) {
        if (step.what == what)
            parts << QString("%1:%2").arg(step.step).arg(step.place.number());
    }
    return parts.join(' ');
}

constexpr auto Out = GameState::Fade::Out, OutIn = GameState::Fade::OutIn;
constexpr auto Forward = Direction::Forward, Reverse = Direction::Reverse,
               Random = Direction::Random;
constexpr auto Uppercase = Keys::Set::Uppercase, Lowercase = Keys::Set::Lowercase,
               NumberLine = Keys::Set::NumberLine, Everything = Keys::Set::Everything;

} // namespace

class TestFades : public WindowTest
{
    Q_OBJECT

    FadeEngine &fades() { return window->fadeEngine(); }
    const KeyboardWidgets &widgets() { return window->furniture().widgets; }

    double opacity(const QString &name) const
    {
        const auto *effect = qobject_cast<QGraphicsOpacityEffect *>(find(name)->graphicsEffect());
        return effect ? effect->opacity() : 1;
    }

    bool shadow(const QString &name) const
    {
        return qobject_cast<QGraphicsDropShadowEffect *>(find(name)->graphicsEffect());
    }

    // In a game without the opening animation, with the first target entered.
    void fadeOutA()
    {
        click("animationOff");
        click("pbForwardVarious");
        fades().fadeOut_function();
        click("start");
        enterTarget();
    }
    bool isBack(const QString &name) const { return !find(name)->graphicsEffect(); }

private slots:
    void sweeps()
    {
        const struct
        {
            GameState::Fade fade;
            int index;
            Direction direction;
            Keys::Set set;
            int count; // places that come back
            QString begins, ends;
        } rows[] = {
            {Out, 25, Forward, Lowercase, 26, "500:17 550:1", "1600:11 1700:15 1750:12 1850:16"},
            {Out, 25, Forward, Everything, 26, "500:17 550:1", "1850:16"},
            {Out, 0, Reverse, Lowercase, 26, "650:16 700:12 750:15", "1900:17"},
            {Out, 26, Reverse, Uppercase, 26, "650:16 750:12 800:15 900:11", "2000:17"},
            {Out, 52, Reverse, NumberLine, 21,
             "550:47 600:46 650:45 700:44 750:43 700:42 850:41 800:40 900:39", "1500:27"},
            {Out, 64, Forward, NumberLine, 13, "500:27 550:28", "1100:39"},
            {Out, 65, Reverse, Everything, 13, "600:39 650:38", "1100:29 1150:28 1150:27"},
            {Out, 85, Forward, NumberLine, 9, "500:45 550:46 600:43 650:47 700:40 750:43",
             "900:42"},
            {Out, 86, Reverse, NumberLine, 9, "500:42 550:41 600:44 650:40 700:43 750:47 800:43",
             "900:45"},
            {Out, 93, Forward, NumberLine, 21,
             "550:27 600:28 650:29 700:30 750:31 700:32 850:33 800:34 900:35 950:36", "1500:47"},
            {Out, 93, Forward, Everything, 47, "500:27 550:28 600:17",
             "1900:13 1950:9 2050:11 2100:35 2150:45 2200:15 2250:12 2300:36 2350:46 2400:16 "
             "2450:43 2500:37 "
             "2550:47 2600:40 2650:44 2700:38 2750:41 2800:42 2850:39"},
            {Out, 0, Reverse, Everything, 47, "450:39 500:42",
             "2350:5 2500:24 2550:19 2600:23 2600:29 2700:26 2750:1 2800:17 2850:28 2900:27"},
            {Out, 87, Forward, Everything, 0, "", ""},
            {Out, 51, Forward, Everything, 0, "", ""},
            {Out, 25, Random, Lowercase, 0, "", ""},
            {OutIn, 25, Forward, Lowercase, 26, "3500:17 3550:1", "4850:16"},
            {OutIn, 26, Reverse, Uppercase, 26, "3650:16 3750:12", "5000:17"},
            {OutIn, 52, Reverse, NumberLine, 22, "3500:42 3550:39 3600:41",
             "4150:45 4200:34 4250:33 4300:32 4350:31 4400:30 4450:29 4500:28 4550:27"},
            {OutIn, 93, Forward, NumberLine, 21, "3500:27", "4400:39 4450:40 4500:41"},
            {OutIn, 93, Forward, Everything, 54, "3000:27 3000:49 3000:50 3000:52 3100:28",
             "4200:39 4200:41 4200:51 4300:48 4300:42"},
            {OutIn, 0, Reverse, Everything, 54, "3000:48 3000:42 3100:39",
             "4300:27 4300:49 4300:50 4300:52 3200:53"},
        };
        QStringList wrong;
        for (const auto &row : rows) {
            const auto steps = FadeLists::closingSweep(row.fade, row.index, row.direction, row.set);
            const QString back = listed(steps, Step::In), gone = listed(steps, Step::Out);
            if ((row.count && !(back.startsWith(row.begins) && back.endsWith(row.ends))) ||
                back.count(':') != row.count ||
                gone.count(':') != (row.fade == Out ? 0 : row.count))
                wrong << QString("from index %1: %2, gone %3").arg(row.index).arg(back, gone);
        }
        QCOMPARE(wrong.join('\n'), QString());
    }

    void resetBringsBackWhatHasFaded()
    {
        const struct
        {
            Direction direction;
            Keys::Set set;
            QList<int> matched; // keys
            const char *back;
        } rows[] = {
            {Forward, Lowercase, {1, 2, 3}, "550:1 900:3 1200:2"},
            {Reverse, Lowercase, {26, 25, 24}, "950:25 1450:24 1600:26"},
            {Forward, Everything, {26}, "600:1 650:26"}, // cap 1 looks at z
            {Forward, Lowercase, {62}, "700:19"},        // and cap 19 at 9
            {Reverse, Everything, {23, 55, 26}, "2500:23 2500:29 2600:26 2650:1"},
            {Forward, NumberLine, {53, 54}, "450:27 500:28"},
            {Forward, NumberLine, {53, 65, 66}, "450:27"},
            {Forward, NumberLine, {65, 79, 80}, "500:40 550:41"},
            {Reverse, NumberLine, {94, 93}, "500:47 550:46"},
            {Reverse, NumberLine, {94, 87, 86, 85, 84}, "500:47 500:46 600:45"},
        };
        for (const auto &row : rows) {
            GameState state;
            for (int key : row.matched)
                state.setKeyPressed(key);
            QCOMPARE(listed(FadeLists::reset(row.direction, row.set, state), Step::In),
                     QString(row.back));
        }
    }

    // A located key goes with all that lies on it, and Stop brings it back.
    void fadeOutAndStop()
    {
        fadeOutA();
        QVERIFY(!shown("shield1"));
        QVERIFY(shown("shield2"));
        pass(900);
        QVERIFY(opacity("bg1") > 0);
        pass(110);
        for (const char *name : {"bg1", "r1_2", "r27_2", "img1"})
            QCOMPARE(opacity(name), 0.0);
        QCOMPARE(opacity("bg2"), 1.0);
        click("stop");
        QTRY_VERIFY_WITH_TIMEOUT(shown("shield1") && isBack("bg1"), 15000);
        QVERIFY(isBack("bg2"));

        // Also when another set was chosen in mid-game.
        click("start");
        enterTarget();
        click("pbForwardNumberLine");
        click("stop");
        QTRY_VERIFY_WITH_TIMEOUT(shown("shield1") && isBack("bg1"), 15000);
    }

    void fadesInRandom()
    {
        click("animationOff");
        click("pbRandomVarious");
        fades().fadeOut_function();
        click("start");
        const int cap = 1 + widgets().indexOf(text("leMatch"));
        enterTarget();
        QVERIFY(shown(QString("shield%1").arg(cap)));
        fades().fadeInOut_function();
        const int next = 1 + widgets().indexOf(text("leMatch"));
        enterTarget();
        QVERIFY(!shown(QString("shield%1").arg(next)));
        QTRY_VERIFY(shown(QString("shield%1").arg(next)));
    }

    // A step of a fade that is over does nothing to the next one.
    void lateShadowsLeaveNewFadesAlone()
    {
        fadeOutA();
        QTRY_COMPARE(opacity("bg1"), 0.0);
        click("stop");
        QTRY_VERIFY_WITH_TIMEOUT(isBack("bg1"), 15000);
        click("start"); // the shadow of the first fade is still to come
        enterTarget();
        pass(1500);
        QCOMPARE(opacity("bg1"), 0.0);
        QVERIFY(!shown("shield1"));
        click("start"); // and all keys are back at once
        QCOMPARE(opacity("bg1"), 1.0);
        QVERIFY(shown("shield1"));
    }

    // What changes shadows in mid-game brings nothing back that has faded.
    void shadowsOfGoneKeys()
    {
        window->options();
        fadeOutA();
        QTRY_COMPARE(opacity("r1_2"), 0.0);
        choose("textShadowTambrelLow");
        set("sliderTextShadowTamLowKey", 4);
        choose("shadowKeys");
        QCOMPARE(opacity("r1_2") + opacity("bg1") + opacity("r27_2"), 0.0);
        click("stop");
        QTRY_COMPARE_WITH_TIMEOUT(shadow("r1_2"), true, 5000);
        // Each case keeps its own: only the lowercase has one.
        QVERIFY(!shadow("r27_2") && shadow("bg1"));
        const auto *back = static_cast<QGraphicsDropShadowEffect *>(find("r1_2")->graphicsEffect());
        QCOMPARE(back->offset(), QPointF(6, 6));
        QCOMPARE(back->color(), QColor("#484848"));
    }

    void homeRowMarksFadeWithTheirKeys()
    {
        fades().fadeOut(Keys::Place::ofCap(6));
        fades().fadeOut(Keys::Place::ofCap(10));
        // The right background and image for each text.
        fades().fadeOut(Keys::Place::ofControl(Keys::Control::ShiftLeft));
        for (const char *name :
             {"underScoreLeft", "underScoreRight", "labelShiftLeft", "bgShiftLeft", "imgShiftLeft"})
            QVERIFY2(!isBack(name), name);
        QVERIFY(isBack("bgShiftRight"));
    }

    void twoHundredFadesLeaveNothingBehind()
    {
        const auto objects = [this] { return window->findChildren<QObject *>().size(); };
        const int before = objects();
        for (int i = 0; i < 200; ++i) {
            fades().fadeOut(Keys::Place::numbered(1 + i % 54));
            fades().fadeIn(Keys::Place::numbered(1 + i % 54));
        }
        QTRY_COMPARE_WITH_TIMEOUT(objects(), before, 5000);
    }
};

QTEST_MAIN(TestFades)
#include "tst_fades.moc"
