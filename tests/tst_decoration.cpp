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
    void enter(const QString &label, bool in = true)
    {
        QEvent event(in ? QEvent::Enter : QEvent::Leave);
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

    void prepare() override { window->options(); }

private slots:
    void fontsAreNoMirrorImages()
    {
        const QString lower = "font-family: DejaVu Serif;", upper = "font-family: DejaVu Sans;";
        choose("fontComboBoxLowercase", "DejaVu Serif");
        for (const char *name : {"r1_2", "r1", "r86", "labelSpacebar", "underScoreLeft"})
            QCOMPARE(sheet(name), QString("color: white;") + lower);
        QCOMPARE(sheet("r27_2"), QString("color: white;font-family: Calibri;"));
        QCOMPARE(sheet("theme3_2"), "background-color: transparent; " + lower + "color: #00557f;");
        window->board().paint.parts[PaintTables::Upper].on = true;
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

    // The lit radio button is the effect in force, also after a fade.
    void oneEffectIsLit_data()
    {
        QTest::addColumn<QString>("clicks");
        QTest::addColumn<QString>("lit"); // of the effects, then of the fades
        QTest::newRow("birds, then a fade") << "birdsdancing fadeOut"
                                            << "finishedNone fadeOut";
        QTest::newRow("birds, a fade and birds") << "birdsdancing fadeOut birdsdancing"
                                                 << "birdsdancing effectNone";
        QTest::newRow("angry, a fade, butterfly") << "angryE fadeOutIn butterfly"
                                                  << "butterfly effectNone";
        QTest::newRow("one's own, then none") << "useUploaded finishedNone"
                                              << "finishedNone effectNone";
    }
    void oneEffectIsLit()
    {
        QFETCH(QString, clicks);
        QFETCH(QString, lit);
        for (const QString &button : clicks.split(' '))
            check(button);
        for (const QString &button :
             QString("explosion butterfly birdsdancing angryE useUploaded finishedNone fadeOut "
                     "fadeOutIn effectNone")
                 .split(' '))
            QCOMPARE(button + QString::number(find<QAbstractButton>(button)->isChecked()),
                     button + QString::number(lit.split(' ').contains(button)));
        QCOMPARE(game().kestrixKeyboardOn, !lit.startsWith("finishedNone"));
    }

    // First the state, then the gif; Clear empties all that shows it.
    void gifsAndStates()
    {
        check("radioSwirl"); // no state was chosen
        QCOMPARE(picture("img9"), QString("swirl1.gif"));
        check("radioHighlight");
        QCOMPARE(picture("displayHighlight"), QString("swirl1.gif"));
        check("radioSheep");
        QCOMPARE(picture("displayHighlight") + picture("img9"),
                 QString("bouncingSheepSmall.gifswirl1.gif"));
        click("animationOff");
        click("start");
        click("goldenHighlight");
        QCOMPARE(picture("img1"), QString("bouncingSheepSmall.gif"));
        check("radioRain"); // on the target at once
        QCOMPARE(picture("img1"), QString("rain.gif"));
        check("radioNone");
        QCOMPARE(picture("displayHighlight") + picture("img1"), QString("noneswirl1.gif"));
        check("clearKeysImage");
        QCOMPARE(picture("displayKeys") + picture("img1") + picture("img9"),
                 QString("nonenonenone"));
        QVERIFY(!shown("img9"));
    }

    void picturesGoWithTheirState_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("acts");
        QTest::newRow("pressed and let go") << "Keypress"
                                            << "press release";
        QTest::newRow("cleared while pressed") << "Keypress"
                                               << "press clear release";
        QTest::newRow("under the mouse, on the bar") << "Mouseover"
                                                     << "enter leave";
        QTest::newRow("cleared under the mouse") << "Mouseover"
                                                 << "enter clear leave";
        QTest::newRow("flashed") << "Keypress"
                                 << "flash press wait";
    }
    void picturesGoWithTheirState()
    {
        QFETCH(QString, state);
        QFETCH(QString, acts);
        game().keyFlashDelay = 1;
        check("radio" + state);
        check("radioRain");
        for (const QString &act : acts.split(' ')) {
            if (act == "press")
                press("A");
            else if (act == "release")
                release("A");
            else if (act == "clear")
                check("clear" + state + "Image");
            else if (act == "flash")
                check("keyFlash");
            else if (act == "wait")
                QTRY_VERIFY(!shown("img1"));
            else
                enter("r27", act == "enter");
            if (act == "press" || act == "enter")
                QVERIFY(shown("img1"));
        }
        QVERIFY(!shown("img1"));
    }

    void wallpapersAnywhere_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"plain", "with blank", "apo'strophe", "par)en(thesis",
                                 "\xc3\xa9tude", "\xe6\xbc\xa2", "100%", "a&b"})
            QTest::newRow(name) << QString::fromUtf8(name) + ".png";
    }
    void wallpapersAnywhere()
    {
        QFETCH(QString, name);
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(path(name)));
        check("repeatYes");
        answer("openImageMain", path(name));
        const auto color = [this](int x) {
            return QColor(find("wallpaper")->grab().toImage().pixel(x, 600));
        };
        QCOMPARE(color(1100), QColor(Qt::red));
        find<QSlider>("hoSlider7")->setValue(3); // the tile stays
        QCOMPARE(color(1100), QColor(Qt::red));
        check("clearMainImage");
        QCOMPARE(color(1100), QColor(Qt::white));
    }

    void fontsAlwaysParse_data()
    {
        QTest::addColumn<QString>("family");
        QTest::addColumn<QString>("style");
        QTest::newRow("plain") << "DejaVu Sans"
                               << "font-family: DejaVu Sans;";
        QTest::newRow("foundry") << "Z003 [urw]"
                                 << "font-family: 'Z003 [urw]';";
        QTest::newRow("number") << "Modern No. 20"
                                << "font-family: 'Modern No. 20';";
        QTest::newRow("letters") << "Old English Text MT"
                                 << "font-family: 'Old English Text MT';";
        QTest::newRow("words in digits") << "3270 Condensed"
                                         << "font-family: '3270 Condensed';";
    }
    void fontsAlwaysParse()
    {
        QFETCH(QString, family);
        auto *box = find<QComboBox>("fontComboBoxLowercase");
        box->addItem(family);
        box->setCurrentIndex(box->count() - 1);
        QTEST(window->board().looks.lowerFontStyle, "style");
        QCOMPARE(find("r1_2")->palette().color(QPalette::WindowText), QColor(Qt::white));
        QSet<QString> seen;
        for (int i = 0; i < box->count() - 1; ++i) {
            const QString each = box->itemText(i);
            QVERIFY2(!each.contains('[') && !each.contains("Symbols") && !seen.contains(each),
                     qPrintable(each));
            seen.insert(each);
        }
        QVERIFY(seen.size() > 2);
    }

    void bursts()
    {
        check("fadeOut");
        check("explosion");
        QVERIFY(find<QAbstractButton>("effectNone")->isChecked());
        QCOMPARE(game().clearUserDelay, 300);
        click("animationOff");
        click("pbForwardVarious"); // a to z, in Forward
        click("start");
        enterTarget();
        QCOMPARE(find("pulsate1")->movie()->speed(), 300); // what it was drawn for
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
        click("animationOff");
        click("pbReverseNumberLine");
        game().endGameStep = 1;
        click("start");
        while (game().gameRunning)
            enterTarget();
        QVERIFY(!shown("bg27"));
        click("pbForwardVarious"); // the ending belongs to the game that has ended
        QTRY_VERIFY_WITH_TIMEOUT(shown("pulsate42"), 4000);
        QTRY_VERIFY(shown("bg27") && !shown("pulsate27"));
        for (int cap = 27; cap <= 47; ++cap)
            QTRY_VERIFY2(shown(QString("bg%1").arg(cap)), qPrintable(QString::number(cap)));
    }

    // The check mark of Letters Displayed tells the truth, whatever an effect does to the keys.
    void displayedLettersStay_data()
    {
        QTest::addColumn<QString>("acts");
        QTest::newRow("an effect is chosen") << "explosion";
        QTest::newRow("and none again") << "butterfly finishedNone";
        QTest::newRow("a fade") << "fadeOut";
        QTest::newRow("in a game that is stopped") << "start rcEnglish entry stop";
        QTest::newRow("with a burst") << "explosion start rcEnglish entry entry stop";
    }
    void displayedLettersStay()
    {
        QFETCH(QString, acts);
        click("animationOff");
        QTest::mouseClick(find("rcEnglish"), Qt::LeftButton);
        for (const QString &act : acts.split(' ')) {
            if (act == "entry")
                enterTarget();
            else if (act == "rcEnglish")
                QTest::mouseClick(find(act), Qt::LeftButton);
            else
                check(act);
        }
        QVERIFY(shown("checkEnglish"));
        for (const char *cap : {"1", "2", "26", "53"})
            QVERIFY2(!shown(QString("r%1_2").arg(cap)), cap);
        QVERIFY(shown("r27_2") && shown("r66_2") && shown("labelTab"));
    }

    // A picture whose key a burst has taken waits beside the window, in any shape of keys.
    void parkedPictures()
    {
        check("radioSwirl");
        check("explosion");
        click("animationOff");
        click("start");
        enterTarget();
        QCOMPARE(find("img1")->x(), -274);
        find<QSlider>("sliderKeyShape")->setValue(1);
        QVERIFY(find("img1")->x() < 0 && find("img2")->x() > 0);
        check("clearKestrexKeyboardImage");
        click("stop");
        QCOMPARE(find("img1")->pos(), find("bg1")->pos());
    }

    // Start ends what the game before still had to show.
    void startEndsTheClosingShow()
    {
        check("explosion");
        click("animationOff");
        game().clearUserDelay = 0;
        click("start");
        while (game().gameRunning) {
            enterTarget();
            QCoreApplication::processEvents();
        }
        QVERIFY(!shown("bg47"));
        click("start");
        for (int cap = 1; cap <= 47; ++cap)
            QVERIFY2(shown(QString("bg%1").arg(cap)), qPrintable(QString::number(cap)));
        QTest::qWait(4300); // the control keys would burst by now
        for (const char *name : {"bgTab", "bgCapsLock", "bgShiftLeft", "bgSpacebar", "bgEnter"})
            QVERIFY2(shown(name), name);
        for (int place = 1; place <= 54; ++place)
            QVERIFY(!shown(QString("pulsate%1").arg(place)));
        QVERIFY(!text("display2").contains("again"));
    }
};

QTEST_MAIN(TestDecoration)
#include "tst_decoration.moc"
