#include "window.h"

#include <QComboBox>
#include <QGraphicsDropShadowEffect>
#include <QMovie>

// Fonts, shadows, pictures, sounds, and the bursts on located keys.
class TestDecoration : public WindowTest
{
    Q_OBJECT

    Looks &looks() { return window->wardrobe().looks; }
    PaintTables &paint() { return window->wardrobe().paint; }
    ImageStates &images() { return window->wardrobe().images; }

    void chooseFont(const QString &comboBox, const QString &family)
    {
        auto *box = find<QComboBox>(comboBox);
        box->setCurrentIndex(box->findText(family));
    }
    QString redPicture(const QString &name, int width, int height) const
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::red);
        if (!image.save(path(name)))
            qFatal("cannot write %s", qPrintable(name));
        return path(name);
    }
    // A game without the opening animation.
    void start(const QString &set = {})
    {
        click("animationOff");
        choose(set);
        click("start");
    }
    // The first of the keys' backgrounds that is not there, or 0.
    int firstGone(int from = 1) const
    {
        for (int cap = from; cap <= 47; ++cap) {
            if (!shown(QString("bg%1").arg(cap)))
                return cap;
        }
        return 0;
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
        chooseFont("fontComboBoxLowercase", "DejaVu Serif");
        for (const char *name : {"r1_2", "r1", "r86", "labelSpacebar", "underScoreLeft"})
            QCOMPARE(sheet(name), QString("color: white;") + lower);
        QCOMPARE(sheet("r27_2"), QString("color: white;font-family: Calibri;"));
        QVERIFY(sheet("demoLetter4LowerCase").endsWith(lower));
        QCOMPARE(sheet("theme3_2"), "background-color: transparent; " + lower + "color: #00557f;");
        paint().parts[PaintTables::Upper].on = true;
        paint().paintTextStyle[93] = "color: red;";
        chooseFont("fontComboBoxUppercase", "DejaVu Sans");
        QCOMPARE(sheet("r94_2"), "color: red;" + upper);
        QCOMPARE(sheet("labelTab"), "color: white;" + lower);
        QCOMPARE(sheet("demoLetter1"), "background-color: transparent;color: blue;font-size: "
                                       "20pt;" +
                                           upper);
        QCOMPARE(sheet("theme3"), "background-color: transparent;" + upper + "color: #65307f;");
    }

    void shadows()
    {
        choose("textShadowTambrel");
        QCOMPARE(shadow("r27_2") + shadow("r94_2"), QString("4 4 #4848484 4 #484848"));
        QCOMPARE(shadow("r1_2") + shadow("r27"), QString("nonenone"));
        set("sliderTextShadowTamKey", 4);
        choose("topLeftTamKey");
        QCOMPARE(shadow("r78_2"), QString("-6 -6 #484848"));
        choose("shadowKeys");
        choose("topRight");
        QCOMPARE(shadow("bg1") + shadow("bgEnter"), QString("4 -4 #4848484 -4 #484848"));
        QCOMPARE(shadow("bg2") + shadow("bgTab"), QString("nonenone"));
        set("sliderTricks", 1);
        QCOMPARE(shadow("bg1") + shadow("bg4"), QString("-4 4 #4848484 -4 #484848"));
        set("sliderTricks", 2);
        QCOMPARE(shadow("bg1") + shadow("bg4"), QString("4 -4 #484848-4 4 #484848"));
        choose("tsGamePlayText");
        QCOMPARE(shadow("leMatch") + shadow("matchThis"), QString("4 4 #484848none"));
        choose("matchThisCb");
        QCOMPARE(shadow("matchThis"), QString("4 4 #484848"));
        click("menuShadows");
        click("shadowTheme1");
        QCOMPARE(shadow("r27_2") + shadow("r27bg"), QString("none4 4 #aa0000"));
        click("shadowTheme4");
        QCOMPARE(shadow("r27_2") + shadow("r27bg"), QString("2 2 #2f7fd15 5 #2f7fd1"));
        choose("textShadowTambrel");
        QCOMPARE(shadow("r27_2"), QString("none"));
    }

    void picturesOfTheStates()
    {
        choose("radioKittyWalk");
        choose("radioKeys");
        for (const char *label : {"img1", "img47", "imgSpacebar", "displayKeys"})
            QCOMPARE(picture(label), QString("kittyWalk.gif"));
        QVERIFY(shown("img9") && sheet("displayKeys") == "border: 1px solid blue;");
        choose("radioSheep"); // the selected state takes it at once
        QCOMPARE(picture("img1"), QString("bouncingSheepSmall.gif"));
        choose("normalSize");
        QVERIFY(!images().keys.movie.scaledSize().isValid());
        choose("setToFit");
        QCOMPARE(images().keys.movie.scaledSize(), QSize(34, 54));
        QCOMPARE(images().keys.movie.state(), QMovie::Running);
        choose("expandGif");
        QVERIFY(find("img42")->hasScaledContents() && find("imgTab")->hasScaledContents());
        choose("normalGif radioKeypress");
        QVERIFY(!find("img42")->hasScaledContents() && !find("imgTab")->hasScaledContents());
        QCOMPARE(picture("img1"), QString("bouncingSheepSmall.gif"));
        press("a");
        QCOMPARE(find("img1")->movie(), &images().keypress.movie);
        release("a");
        QCOMPARE(find("img1")->movie(), &images().keys.movie);
        choose("clearKeysImage");
        QVERIFY(!shown("img1"));

        answer("openImageMouseover", redPicture("tall.png", 108, 216));
        QCOMPARE(images().mouseover.movie.scaledSize(), QSize(54, 108));
        hover("shield3");
        QCOMPARE(picture("img3"), QString("tall.png"));
        answer("openImageKeypress", QString());
        QCOMPARE(images().keypress.on, QString("0"));
        answer("openImageMain", path("tall.png"));
        QCOMPARE(picture("wallpaper"), QString("tall.png"));
        choose("alignRight");
        QCOMPARE(find("wallpaper")->alignment(), Qt::AlignRight | Qt::AlignCenter);
        choose("repeatYes");
        QVERIFY(sheet("wallpaper").endsWith("background-image: url(" + path("tall.png") + ");"));
        choose("leftTop"); // has no effect on a repeated picture
        QCOMPARE(find("wallpaper")->alignment(), Qt::AlignRight | Qt::AlignCenter);
        choose("clearMainImage");
        QCOMPARE(picture("wallpaper"), QString("none"));
    }

    void stretchedWallpaperIsScaledOnce()
    {
        const auto frame = [this] { return find("wallpaper")->movie()->currentPixmap().size(); };
        answer("openImageMain", redPicture("small.png", 8, 4));
        QCOMPARE(frame(), QSize(8, 4));
        choose("stretchYes");
        QCOMPARE(frame(), find("wallpaper")->size());
        QCOMPARE(QColor(window->grab().toImage().pixel(1200, 690)), QColor(Qt::red));
        choose("stretchNo");
        QCOMPARE(frame(), QSize(8, 4));
    }

    void whatIsNoPicture()
    {
        choose("repeatYes");
        for (const QString &file : {pipe("pipe.png"), saved("text.gif", "GIF89a, it says")}) {
            for (const char *button : {"openImageKeys", "openImageHighlight", "openImageMain"})
                answer(button, file);
            QCOMPARE(picture("img1"), QString("blank.gif"));
            QVERIFY(!sheet("wallpaper").contains("pipe"));
            QVERIFY(shown("keyPicturesRefusal"));
            answer("openImageFinished", file);
            QVERIFY(shown("finishedGifRefusal"));
        }
        answer("openImageMain", redPicture("good.png", 8, 8));
        QVERIFY(!shown("keyPicturesRefusal"));
        press("a");
    }

    void sounds()
    {
        choose("audioQuack");
        press("a");
        QCOMPARE(played.last(), QString(":/new/prefix1/quack1.wav"));
        hover("playWhistle"); // heard, not chosen
        QCOMPARE(played.last(), QString(":/new/prefix1/whistle.wav"));
        choose("audioNone");
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
        row("angry, then a fade", "angryE fadeOut", "finishedNone fadeOut");
        row("birds, a fade and birds", "birdsdancing fadeOut birdsdancing",
            "birdsdancing effectNone");
        row("angry, a fade, butterfly", "angryE fadeOutIn butterfly", "butterfly effectNone");
        row("one's own, then none", "useUploaded finishedNone", "finishedNone effectNone");
    }
    void oneEffectIsLit()
    {
        QFETCH(QString, clicks);
        QFETCH(QString, lit);
        choose(clicks);
        QStringList checked;
        for (const QString button :
             {"explosion", "butterfly", "birdsdancing", "angryE", "useUploaded", "finishedNone",
              "fadeOut", "fadeOutIn", "effectNone"}) {
            if (find<QAbstractButton>(button)->isChecked())
                checked << button;
        }
        QCOMPARE(checked.join(' '), lit);
        const bool burst = !lit.startsWith("finishedNone");
        QCOMPARE(game().kestrixKeyboardOn, burst);
        QVERIFY(burst || window->wardrobe().sounds.effectAudio == ":/new/prefix1/silence.wav");
    }

    // First the state, then the gif; Clear empties all that shows it.
    void gifsAndStates()
    {
        choose("radioSwirl"); // no state was chosen
        QCOMPARE(picture("img9"), QString("swirl1.gif"));
        choose("radioHighlight");
        QCOMPARE(picture("displayHighlight"), QString("swirl1.gif"));
        choose("radioSheep");
        QCOMPARE(picture("displayHighlight") + picture("img9"),
                 QString("bouncingSheepSmall.gifswirl1.gif"));
        start();
        click("goldenHighlight");
        QCOMPARE(picture("img1"), QString("bouncingSheepSmall.gif"));
        choose("radioRain"); // on the target at once
        QCOMPARE(picture("img1"), QString("rain.gif"));
        choose("radioNone");
        QCOMPARE(picture("displayHighlight") + picture("img1"), QString("noneswirl1.gif"));
        choose("clearKeysImage");
        QCOMPARE(picture("displayKeys") + picture("img1") + picture("img9"),
                 QString("nonenonenone"));
        QVERIFY(!shown("img9"));
    }

    void picturesGoWithTheirState_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("acts");
        row("pressed and let go", "Keypress", "press release");
        row("cleared while pressed", "Keypress", "press clear release");
        row("under the mouse, on the bar", "Mouseover", "enter leave");
        row("cleared under the mouse", "Mouseover", "enter clear leave");
        row("flashed", "Keypress", "flash press wait");
    }
    void picturesGoWithTheirState()
    {
        QFETCH(QString, state);
        QFETCH(QString, acts);
        game().keyFlashDelay = 1;
        choose("radio" + state + " radioRain");
        const QHash<QString, std::function<void()>> doing{
            {"press", [this] { press("A"); }},
            {"release", [this] { release("A"); }},
            {"clear", [this, state] { choose("clear" + state + "Image"); }},
            {"flash", [this] { choose("keyFlash"); }},
            {"wait", [this] { QTRY_VERIFY(!shown("img1")); }},
            {"enter", [this] { hover("r27"); }},
            {"leave", [this] { leave("r27"); }}};
        for (const QString &act : acts.split(' ')) {
            doing[act]();
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
        choose("repeatYes");
        answer("openImageMain", redPicture(name, 8, 8));
        const auto color = [this](int x) {
            return QColor(find("wallpaper")->grab().toImage().pixel(x, 600));
        };
        QCOMPARE(color(1100), QColor(Qt::red));
        set("hoSlider7", 3); // the tile stays
        QCOMPARE(color(1100), QColor(Qt::red));
        choose("clearMainImage");
        QCOMPARE(color(1100), QColor(Qt::white));
    }

    void fontsAlwaysParse_data()
    {
        QTest::addColumn<QString>("family");
        QTest::addColumn<QString>("style");
        row("plain", "DejaVu Sans", "font-family: DejaVu Sans;");
        row("foundry", "Z003 [urw]", "font-family: 'Z003 [urw]';");
        row("number", "Modern No. 20", "font-family: 'Modern No. 20';");
        row("letters", "Old English Text MT", "font-family: 'Old English Text MT';");
        row("words in digits", "3270 Condensed", "font-family: '3270 Condensed';");
    }
    void fontsAlwaysParse()
    {
        QFETCH(QString, family);
        auto *box = find<QComboBox>("fontComboBoxLowercase");
        box->addItem(family);
        box->setCurrentIndex(box->count() - 1);
        QTEST(looks().lowerFontStyle, "style");
        QCOMPARE(find("r1_2")->palette().color(QPalette::WindowText), QColor(Qt::white));
    }

    void fontsAreOfferedOnce()
    {
        const auto *box = find<QComboBox>("fontComboBoxLowercase");
        QSet<QString> seen;
        for (int i = 0; i < box->count(); ++i) {
            const QString each = box->itemText(i);
            QVERIFY2(!each.contains('[') && each != "Kestrix Symbols" && !seen.contains(each),
                     qPrintable(each));
            seen.insert(each);
        }
        QVERIFY(seen.size() > 2);
    }

    void bursts()
    {
        choose("fadeOut explosion");
        QVERIFY(find<QAbstractButton>("effectNone")->isChecked());
        QCOMPARE(game().clearUserDelay, 300);
        start("pbForwardVarious"); // a to z, in Forward
        enterTarget();
        QCOMPARE(find("pulsate1")->movie()->speed(), 300); // what it was drawn for
        QCOMPARE(find("pulsate1")->movie()->scaledSize(), QSize(96, 90));
        QVERIFY(!shown("bg1") && !shown("r1_2") && !shown("shield1") && shown("pulsate1"));
        QVERIFY(find("img1")->x() < 0);
        QVERIFY(picture("pulsate1").startsWith("explodeAll2"));
        QVERIFY(played.contains(":/new/prefix1/explosion1.wav"));
        choose("speed2");
        for (int i = 0; i < 6; ++i)
            enterTarget();
        QCOMPARE(find("pulsate7")->movie()->speed(), 200);
        QVERIFY(!shown("underScoreLeft")); // goes with g
        QTRY_VERIFY(!shown("pulsate1"));
        QVERIFY(!shown("bg1")); // gone for good
        enterTarget();
        click("stop");
        QVERIFY(shown("bg8") && !shown("pulsate8"));
        QVERIFY(shown("bg1") && shown("bg7") && shown("underScoreLeft") && find("img1")->x() > 0);

        start("pbRandomVarious");
        game().randomIndex = 5;
        find<QLineEdit>("leMatch")->setText("f");
        enterTarget();
        QVERIFY(!shown("bg6") && !shown("underScoreLeft") && shown("underScoreRight"));
        QTRY_VERIFY(shown("bg6") && shown("underScoreLeft"));
        click("stop");
        choose("fadeOutIn");
        QVERIFY(find<QAbstractButton>("finishedNone")->isChecked() && !game().kestrixKeyboardOn);
    }

    void keysPictureStaysWhereTheMouseWasInTheBar()
    {
        choose("radioSnow");
        for (const Keys::Place cap : Keys::places) {
            if (!cap.isCap())
                continue;
            for (const int key : {Keys::unshifted(cap.cap()), Keys::shifted(cap.cap())}) {
                hover(qPrintable(QString("r%1").arg(key)));
                leave(qPrintable(QString("r%1").arg(key)));
                QVERIFY2(shown(qPrintable(QString("img%1").arg(cap.cap()))),
                         qPrintable(QString::number(key)));
            }
        }
    }

    // Put back while b bursts, a hides its picture too, and gets it back with b.
    void pictureOfABesideTheBurstOfB()
    {
        choose("radioSnow butterfly");
        start("pbRandomVarious");
        for (const bool stopped : {true, false}) {
            game().randomIndex = 1;
            find<QLineEdit>("leMatch")->setText("b");
            enterTarget();
            type("a");
            QVERIFY(!shown("img1"));
            if (stopped)
                choose("stop start");
            QTRY_VERIFY(shown("img1") && shown("img2"));
        }
    }

    void previewOfOnesOwnBurst()
    {
        QVERIFY(QFile::copy(":/new/prefix1/rain.gif", path("own.gif")));
        answer("openImageFinished", path("own.gif"));
        const QMovie *preview = find("tnCurrentImage")->movie();
        pass(1000);
        QCOMPARE(preview->state(), QMovie::Paused); // nobody sees it
        click("menuKestrixKeyboard");
        QCOMPARE(preview->state(), QMovie::Running);
        pass(5500); // and what a fade is, every five seconds
        QVERIFY(find("tnFadeExample")->graphicsEffect());
    }

    void waveAfterTheSet()
    {
        choose("butterfly");
        game().endGameStep = 1;
        start("pbReverseNumberLine");
        while (game().gameRunning)
            enterTarget();
        QVERIFY(!shown("bg27"));
        click("pbForwardVarious"); // the ending belongs to the game that has ended
        QTRY_VERIFY_WITH_TIMEOUT(shown("pulsate42"), 4000);
        QTRY_VERIFY(shown("bg27") && !shown("pulsate27"));
        QTRY_COMPARE(firstGone(27), 0);
    }

    // The check mark of Letters Displayed tells the truth, whatever an effect does to the keys.
    void displayedLettersStay_data()
    {
        QTest::addColumn<QString>("acts");
        row("an effect is chosen", "explosion");
        row("and none again", "butterfly finishedNone");
        row("a fade", "fadeOut");
        row("in a game that is stopped", "start rcEnglish entry stop");
        row("with a burst", "explosion start rcEnglish entry entry stop");
    }
    void displayedLettersStay()
    {
        QFETCH(QString, acts);
        click("animationOff");
        click("rcEnglish");
        for (const QString &act : acts.split(' ')) {
            if (act == "entry")
                enterTarget();
            else
                act == "rcEnglish" ? click(act) : choose(act);
        }
        QVERIFY(shown("checkEnglish"));
        for (const char *cap : {"1", "2", "26", "53"})
            QVERIFY2(!shown(QString("r%1_2").arg(cap)), cap);
        QVERIFY(shown("r27_2") && shown("r66_2") && shown("labelTab"));
    }

    // A picture whose key a burst has taken waits beside the window, in any shape of keys.
    void parkedPictures()
    {
        choose("radioSwirl explosion");
        start();
        enterTarget();
        QCOMPARE(find("img1")->x(), -274);
        set("sliderKeyShape", 1);
        QVERIFY(find("img1")->x() < 0 && find("img2")->x() > 0);
        choose("clearKestrexKeyboardImage");
        click("stop");
        QCOMPARE(find("img1")->pos(), find("bg1")->pos());
    }

    // Start ends what the game before still had to show.
    void startEndsTheClosingShow()
    {
        choose("explosion");
        game().clearUserDelay = 0;
        start();
        while (game().gameRunning) {
            enterTarget();
            QCoreApplication::processEvents();
        }
        QVERIFY(!shown("bg47"));
        pass(20000); // with all of it
        QVERIFY(firstGone() == 0 && shown("bgTab") && shown("bgSpacebar"));
        for (click("start"); game().gameRunning; QCoreApplication::processEvents())
            enterTarget();
        QVERIFY(!shown("bg47"));
        click("start");
        QCOMPARE(firstGone(), 0);
        pass(4300); // the control keys would burst by now
        for (const char *name : {"bgTab", "bgCapsLock", "bgShiftLeft", "bgSpacebar", "bgEnter"})
            QVERIFY2(shown(name), name);
        for (int place = 1; place <= 54; ++place)
            QVERIFY(!shown(QString("pulsate%1").arg(place)));
        QVERIFY(!text("display2").contains("again"));
    }
};

QTEST_MAIN(TestDecoration)
#include "tst_decoration.moc"
