#include "window.h"

#include <QComboBox>
#include <QGraphicsDropShadowEffect>
#include <QMovie>
#include <QTemporaryDir>
#include <sys/stat.h>

// Fonts, shadows, pictures, sounds, and the bursts on located keys.
class TestDecoration : public WindowTest
{
    Q_OBJECT

    QTemporaryDir folder;

    QString path(const QString &name) const { return folder.filePath(name); }
    void choose(const QString &comboBox, const QString &family)
    {
        auto *box = find<QComboBox>(comboBox);
        box->setCurrentIndex(box->findText(family));
    }
    void check(const QString &button) { find<QAbstractButton>(button)->click(); }
    void enter(const QString &label)
    {
        QEvent event(QEvent::Enter);
        QApplication::sendEvent(find<QWidget>(label), &event);
    }
    QString shadow(const QString &name) const
    {
        auto *effect =
            qobject_cast<QGraphicsDropShadowEffect *>(find<QWidget>(name)->graphicsEffect());
        return effect ? QString("%1 %2 %3")
                            .arg(effect->xOffset())
                            .arg(effect->yOffset())
                            .arg(effect->color().name())
                      : QString("none");
    }
    QString picture(const QString &label) const
    {
        const QMovie *movie = find(label)->movie();
        return movie ? movie->fileName().section('/', -1) : QString("none");
    }

    void prepare() override { window->optionPanels().prepare(); }

private slots:
    void fontsAreNoMirrorImages()
    {
        const QString lower = "font-family: DejaVu Serif;", upper = "font-family: DejaVu Sans;";
        choose("fontComboBoxLowercase", "DejaVu Serif");
        for (const char *name : {"r1_2", "r1", "r86", "labelSpacebar", "underScoreLeft"})
            QCOMPARE(sheet(name), QString("color: white;") + lower);
        QCOMPARE(sheet("r27_2"), QString("color: white;font-family: Calibri;"));
        QCOMPARE(sheet("theme3_2"), "background-color: transparent; " + lower + "color: #00557f;");
        window->board().paint.paintUpperOn = true;
        window->board().paint.paintTextStyle[93] = "color: red;";
        choose("fontComboBoxUppercase", "DejaVu Sans");
        QCOMPARE(sheet("r94_2"), "color: red;" + upper);
        QCOMPARE(sheet("labelTab"), "color: white;" + lower);
        QCOMPARE(sheet("demoLetter1"), "background-color: transparent;color: blue;font-size: "
                                       "20pt;" +
                                           upper);
        QCOMPARE(sheet("theme3"), "background-color: transparent;" + upper + "color: #65307f;");
    }

    void shadows()
    {
        check("textShadowTambrel");
        QCOMPARE(shadow("r27_2") + shadow("r94_2"), QString("4 4 #4848484 4 #484848"));
        QCOMPARE(shadow("r1_2") + shadow("r27"), QString("nonenone"));
        find<QSlider>("sliderTextShadowTamKey")->setValue(4);
        check("topLeftTamKey");
        QCOMPARE(shadow("r78_2"), QString("-6 -6 #484848"));
        check("shadowKeys");
        check("topRight");
        QCOMPARE(shadow("bg1") + shadow("bgEnter"), QString("4 -4 #4848484 -4 #484848"));
        QCOMPARE(shadow("bg2") + shadow("bgTab"), QString("nonenone"));
        find<QSlider>("sliderTricks")->setValue(1);
        QCOMPARE(shadow("bg1") + shadow("bg4"), QString("-4 4 #4848484 -4 #484848"));
        find<QSlider>("sliderTricks")->setValue(2);
        QCOMPARE(shadow("bg1") + shadow("bg4"), QString("4 -4 #484848-4 4 #484848"));
        check("tsGamePlayText");
        QCOMPARE(shadow("leMatch") + shadow("matchThis"), QString("4 4 #484848none"));
        check("matchThisCb");
        QCOMPARE(shadow("matchThis"), QString("4 4 #484848"));
        click("menuShadows");
        QTest::mouseClick(find("shadowTheme1"), Qt::LeftButton);
        QCOMPARE(shadow("r27_2") + shadow("r27bg"), QString("none4 4 #aa0000"));
        check("textShadowTambrel"); // and off
        check("textShadowTambrel");
        QCOMPARE(shadow("r27_2"), QString("none"));
    }

    void picturesOfTheStates()
    {
        check("radioKittyWalk");
        check("radioKeys");
        for (const char *label : {"img1", "img47", "imgSpacebar", "displayKeys"})
            QCOMPARE(picture(label), QString("kittyWalk.gif"));
        QVERIFY(shown("img9") && sheet("displayKeys") == "border: 1px solid blue;");
        check("radioSheep"); // the selected state takes it at once
        QCOMPARE(picture("img1"), QString("bouncingSheepSmall.gif"));
        check("radioKeypress");
        QCOMPARE(picture("img1"), QString("bouncingSheepSmall.gif"));
        press("a");
        QCOMPARE(find("img1")->movie(), &window->board().images.keypress.movie);
        release("a");
        QCOMPARE(find("img1")->movie(), &window->board().images.keys.movie);
        check("clearKeysImage");
        QVERIFY(!shown("img1"));

        QImage image(108, 216, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(path("tall.png")));
        answer("openImageMouseover", path("tall.png"));
        QCOMPARE(window->board().images.mouseover.movie.scaledSize(), QSize(54, 108));
        enter("shield3");
        QCOMPARE(picture("img3"), QString("tall.png"));
        answer("openImageKeypress", QString());
        QCOMPARE(window->board().images.keypress.on, QString("0"));
        answer("openImageMain", path("tall.png"));
        QCOMPARE(picture("wallpaper"), QString("tall.png"));
        check("alignRight");
        QCOMPARE(find("wallpaper")->alignment(), Qt::AlignRight | Qt::AlignCenter);
        check("repeatYes");
        QVERIFY(sheet("wallpaper").endsWith("background-image: url(" + path("tall.png") + ");"));
        check("leftTop"); // has no effect on a repeated picture
        QCOMPARE(find("wallpaper")->alignment(), Qt::AlignRight | Qt::AlignCenter);
        check("clearMainImage");
        QCOMPARE(picture("wallpaper"), QString("none"));
    }

    void whatIsNoPicture()
    {
        QVERIFY(::mkfifo(path("pipe.png").toUtf8().constData(), 0600) == 0);
        QFile text(path("text.gif"));
        QVERIFY(text.open(QIODevice::WriteOnly) && text.write("GIF89a, it says") > 0);
        text.close();
        check("repeatYes");
        for (const char *name : {"pipe.png", "text.gif"}) {
            for (const char *button : {"openImageKeys", "openImageHighlight", "openImageMain"})
                answer(button, path(name));
            QCOMPARE(picture("img1"), QString("blank.gif"));
            QVERIFY(!sheet("wallpaper").contains("pipe"));
        }
        press("a");
    }

    void sounds()
    {
        check("audioQuack");
        press("a");
        QCOMPARE(played.last(), QString(":/new/prefix1/quack1.wav"));
        enter("playWhistle"); // heard, not chosen
        QCOMPARE(played.last(), QString(":/new/prefix1/whistle.wav"));
        check("audioNone");
        press("b");
        QCOMPARE(played.last(), QString());
        QVERIFY(QFile::copy(":/new/prefix1/bark.wav", path("own.wav")));
        answer("openAudio", path("own.wav"));
        QVERIFY(find<QAbstractButton>("useUploadedAudio")->isChecked());
        press("c");
        QCOMPARE(played.last(), path("own.wav"));
        answer("openAudio", QString()); // the file is forgotten, and silence chosen
        press("d");
        QCOMPARE(played.last(), QString(":/new/prefix1/silence.wav"));
    }

    void bursts()
    {
        check("fadeOut");
        check("explosion");
        QVERIFY(find<QAbstractButton>("effectNone")->isChecked());
        QCOMPARE(game().clearUserDelay, 300);
        click("options");
        click("closeX");
        click("pbForwardVarious"); // a to z, in Forward
        QTest::qWait(1500);
        click("start");
        enterTarget();
        QVERIFY(!shown("bg1") && !shown("r1_2") && !shown("shield1") && shown("pulsate1"));
        QVERIFY(find("img1")->x() < 0);
        QVERIFY(picture("pulsate1").startsWith("explodeAll2"));
        QVERIFY(played.contains(":/new/prefix1/explosion1.wav"));
        for (int i = 0; i < 6; ++i)
            enterTarget();
        QVERIFY(!shown("underScoreLeft")); // goes with g
        QTRY_VERIFY(!shown("pulsate1"));
        QVERIFY(!shown("bg1")); // gone for good
        click("stop");
        QVERIFY(shown("bg1") && shown("bg7") && shown("underScoreLeft") && find("img1")->x() > 0);

        click("pbRandomVarious");
        click("start");
        const int cap = Keys::cap(Keys::fromIndex(game().randomIndex));
        enterTarget();
        QVERIFY(!shown(QString("bg%1").arg(cap)));
        QTRY_VERIFY(shown(QString("bg%1").arg(cap)));
        click("stop");
        check("fadeOutIn");
        QVERIFY(find<QAbstractButton>("finishedNone")->isChecked() && !game().kestrixKeyboardOn);
    }

    void waveAfterTheSet()
    {
        check("butterfly");
        click("closeX");
        click("pbReverseNumberLine");
        QTest::qWait(1500);
        game().endGameStep = 1;
        click("start");
        while (game().gameRunning)
            enterTarget();
        QVERIFY(!shown("bg27"));
        QTRY_VERIFY_WITH_TIMEOUT(shown("pulsate42"), 4000);
        QTRY_VERIFY(shown("bg27") && !shown("pulsate27"));
    }
};

QTEST_MAIN(TestDecoration)
#include "tst_decoration.moc"
