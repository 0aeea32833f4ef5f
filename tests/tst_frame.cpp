#include "optionrooms.h"
#include "window.h"

#include <QScreen>

// Start-up, the windows' ways into one another, the furniture's places, and sound.
class TestFrame : public WindowTest
{
    Q_OBJECT

    const KeyboardWidgets &widgets() { return window->furniture().widgets; }

    static QWidget *companion(const QByteArray &className)
    {
        for (QWidget *top : QApplication::topLevelWidgets()) {
            if (top->inherits(className.constData()))
                return top;
        }
        qFatal("no %s", className.constData());
    }
    static void press(const QByteArray &className, const QString &button)
    {
        companion(className)->findChild<QAbstractButton *>(button)->click();
    }
    static QStringList visibleWindows()
    {
        QStringList names;
        for (QWidget *top : QApplication::topLevelWidgets()) {
            if (top->isVisible())
                names.append(top->metaObject()->className());
        }
        names.sort();
        return names;
    }

    // Qt asks for the last window only while the application runs.
    static bool endsTheProgram(const std::function<void()> &action)
    {
        QSignalSpy last(qApp, &QGuiApplication::lastWindowClosed);
        QTimer::singleShot(0, qApp, action);
        QTimer::singleShot(200, qApp, &QCoreApplication::quit);
        QApplication::exec();
        return last.count() == 1;
    }

private slots:
    void looksAlikeOnEveryHost()
    {
        const auto seen = [this] {
            Platform::makeFusion();
            open();
            QVector<QImage> images{window->grab().toImage()};
            window->options().pickers.enableColor(1);
            images << window->options().pickers.dialog(1).grab().toImage();
            for (const char *guide : {"openingWindow", "aboutWindow"}) {
                if (QString(guide) == "aboutWindow")
                    press("openingWindow", "aboutButton");
                images << companion(guide)->grab().toImage();
            }
            return images;
        };
        const QVector<QImage> usual = seen();
        QPalette dark(QColor(40, 40, 40));
        dark.setColor(QPalette::Base, Qt::black);
        QApplication::setPalette(dark);
        QApplication::setPalette(dark, "QRadioButton");
        QApplication::setStyle("Windows");
        QCOMPARE(seen(), usual);
    }

    void startsOnTheOpeningWindow()
    {
        window.reset();
        window = fresh();
        QCOMPARE(visibleWindows(), QStringList{"openingWindow"});
        press("openingWindow", "startButton");
        QCOMPARE(visibleWindows(), QStringList{"tambrel"});
        QCOMPARE(window->size(), QSize(1211, 695));
        QCOMPARE(window->minimumSize(), window->maximumSize());

        // It comes back to the middle, and puts the guides away.
        window->move(3, 3);
        click("helpButton");
        press("openingWindow", "aboutButton");
        press("openingWindow", "startButton");
        QCOMPARE(visibleWindows(), QStringList{"tambrel"});
        const QPoint off =
            window->frameGeometry().center() - window->screen()->availableGeometry().center();
        QVERIFY(qAbs(off.x()) <= 1 && qAbs(off.y()) <= 1);
    }

    void guidesGiveWayToTheOpeningWindow()
    {
        window->hide();
        const QByteArray guides[][3] = {{"aboutWindow", "aboutButton", "closeButton"},
                                        {"exploreWorld", "exploreButton", "closeButton"},
                                        {"selfExplore", "selfExploreButton", "seExitbutton"},
                                        {"instructions", "instructionsButton", "closeButton"}};
        for (const auto &[guide, opener, closer] : guides) {
            press("openingWindow", opener);
            QVERIFY(companion(guide)->isVisible());
            QVERIFY(!(companion(guide)->windowFlags() & Qt::WindowCloseButtonHint));
            press(guide, closer);
            QCOMPARE(visibleWindows(), QStringList{"openingWindow"});
        }
    }

    // The picture in the instructions.
    static QLabel *map()
    {
        press("openingWindow", "instructionsButton");
        return companion("instructions")->findChild<QLabel *>("map");
    }

    void mapShowsAFreshWindow()
    {
        const auto look = [] { return map()->pixmap(Qt::ReturnByValue).toImage(); };
        const QImage fresh = look();
        open();
        click("pbReverseVarious");
        click("start");
        enterTarget();
        click("options");
        click("menuPhotos");
        find("wallpaper")->setStyleSheet("background-color: black;");
        played.clear();
        QVERIFY(look() == fresh);
        QVERIFY(game().gameRunning && played.isEmpty());
        QCOMPARE(visibleWindows(), QStringList({"instructions", "openingWindow", "tambrel"}));
        int mainWindows = 0;
        for (QWidget *top : QApplication::topLevelWidgets())
            mainWindows += top->inherits("tambrel");
        QCOMPARE(mainWindows, 1);
    }

    // No frame runs through what it is around.
    void framesOnTheMapLieAroundTheirWords()
    {
        const QStringList words =
            QString("Keypress Color Timer|Second step in starting the tutorials.|"
                    "Third step (optional)|Fourth step (optional)|Lowercase|Animation On/Off|"
                    "Match This|Messages|Keyboard Arrow (left)|Mouse Arrow (right)|"
                    "Soft Difficulty|Strict Difficulty|Timer|Your Entry")
                .split('|');
        const QLabel *picture = map();
        const QImage image = picture->pixmap(Qt::ReturnByValue).toImage();
        int seen = 0;
        for (const auto *spot : picture->findChildren<QLabel *>()) {
            const QRect place = spot->geometry();
            const bool button = place.height() < 12; // the two that fold the notes
            if (!words.contains(spot->accessibleName()) || button)
                continue;
            ++seen;
            const QRegion frame = QRegion(place) - place.adjusted(1, 1, -1, -1);
            for (const QRect &side : frame) {
                for (int i = 0; i < side.width() * side.height(); ++i) {
                    const QPoint at = side.topLeft() + QPoint(i % side.width(), i / side.width());
                    QVERIFY2(qGray(image.pixel(at)) > 190, qPrintable(spot->accessibleName()));
                }
            }
        }
        QCOMPARE(seen, 15);
    }

    // In italics, on the page that tells of the Advanced Options.
    void instructionsNameTabsThatExist()
    {
        click("options");
        QStringList tabs, named;
        for (int i = 1; i <= 10; ++i)
            tabs << text(QString("labelTab%1").arg(i));
        press("openingWindow", "instructionsButton");
        const auto *page = companion("instructions")->findChild<QTextEdit *>("optionsText");
        for (auto block = page->document()->begin(); block.isValid(); block = block.next()) {
            for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
                if (piece.fragment().charFormat().fontItalic())
                    named << piece.fragment().text();
            }
        }
        QCOMPARE(named.size(), 3);
        for (const QString &name : named)
            QVERIFY2(tabs.contains(name), qPrintable(name));
    }

    void exitEndsOnlyWhenNothingElseIsOpen()
    {
        QVERIFY(!endsTheProgram([] { press("openingWindow", "exitButton"); }));
        QCOMPARE(visibleWindows(), QStringList{"tambrel"});
        click("helpButton");
        window->hide();
        press("openingWindow", "aboutButton");
        QVERIFY(!endsTheProgram([] { press("openingWindow", "exitButton"); }));
        press("aboutWindow", "closeButton");
        QVERIFY(endsTheProgram([] { press("openingWindow", "exitButton"); }));
    }

    void closingTheMainWindowClosesEverything()
    {
        for (const char *opener :
             {"aboutButton", "exploreButton", "selfExploreButton", "instructionsButton"})
            press("openingWindow", opener);
        QVERIFY(endsTheProgram([this] { click("pbQuit"); }));
        QCOMPARE(visibleWindows(), QStringList{});
    }

    // Waves, a game, a fade and a panel in flight when the window goes.
    void closesWithTimersPending()
    {
        game().delayStep = 1;
        game().clearUserDelay = 1;
        click("pbForwardAll");
        game().fade = GameState::Fade::OutIn;
        window->optionsMenu().showFrame();
        click("start");
        enterTarget();
        enterTarget();
        click("pbQuit");
        QTRY_VERIFY_WITH_TIMEOUT(find("shieldStart")->isHidden(), 2000);
        window.reset();
        QCoreApplication::processEvents();
    }

    void placesOfTheFurniture()
    {
        // name x y width height; keys and cells at the ends of their rows
        const QString places =
            "bg27 148 394 54 54;bg39 892 394 54 54;bg17 242 454 54 54;bg42 986 454 72 54;"
            "bg1 274 514 54 54;bg44 894 514 54 54;bg26 304 574 54 54;bg47 862 574 54 54;"
            "bgBackSpace 954 394 104 54;bgTab 148 454 86 54;bgCapsLock 148 514 118 54;"
            "bgEnter 956 514 102 54;bgShiftLeft 148 574 148 54;bgShiftRight 924 574 134 54;"
            "bgSpacebar 474 634 228 54;r66_2 148 392 54 54;shield27 148 392 54 54;"
            "r53_2 148 394 54 54;r27 214 266 28 28;r26 914 294 28 28;r78 522 330 28 28;"
            "r81 690 358 28 28;r91 804 330 28 28;r86 942 358 28 28;start 444 72 71 35;"
            "leMatch 482 172 61 61;leUser 613 172 61 61;pulsate1 248 491 96 96;"
            "pulsate54 542 608 96 96;v29 1042 0 5 695;h4_2 0 584 1211 5";
        for (const QString &place : places.split(';')) {
            const QString name = place.section(' ', 0, 0);
            const QRect r = find<QWidget>(name)->geometry();
            QCOMPARE(name + QString::asprintf(" %d %d %d %d", r.x(), r.y(), r.width(), r.height()),
                     place);
        }
    }

    void buttonsInViewTellWhatTheyDo()
    {
        int count = 0;
        for (const auto *button : window->findChildren<QAbstractButton *>()) {
            if (!window->rect().contains(button->mapTo(window.get(), QPoint())))
                continue;
            QVERIFY2(!button->toolTip().isEmpty() || !button->isVisible(),
                     qPrintable(button->objectName()));
            count += button->isVisible();
        }
        QCOMPARE(count, 31);
    }

    void whatPointsTakesNoClicks()
    {
        const QRegularExpression pointing("^(arrow[1236]|[hv]\\d+(_2)?|pulsate\\d+)$");
        const QList<QLabel *> labels = window->findChildren<QLabel *>(pointing);
        QCOMPARE(labels.size(), 4 + 8 + 29 + 54);
        for (QLabel *label : labels) {
            label->hide();
            const QPoint place = label->geometry().center();
            const QWidget *below = window->childAt(place);
            label->show();
            label->raise();
            QVERIFY2(window->childAt(place) == below, qPrintable(label->objectName()));
            label->hide();
        }
        find("arrow6")->show();
        QCOMPARE(window->childAt(968, 93), find<QWidget>("lineHighOptions"));
    }

    // Everything that belongs to a key lies on it, in every list and in both orders.
    void pilesLieTogether()
    {
        const KeyboardWidgets &w = widgets();
        const QStringList controls{"BackSpace", "Tab",        "CapsLock", "Enter",
                                   "ShiftLeft", "ShiftRight", "Spacebar"};
        for (int i = 0; i < 54; ++i) {
            const QString name = i < 47 ? QString::number(i + 1) : controls[i - 47];
            const QRect place = find("bg" + name)->geometry();
            QCOMPARE(find("img" + name)->geometry(), place);
            QCOMPARE(w.displayNoneList[i]->geometry(), place);
            QCOMPARE(w.lowerKeyList[i]->geometry(), place);
            QVERIFY(w.pulsateList[i]->geometry().contains(place.center()));
            QVERIFY(qAbs(w.pulsateList[i]->geometry().center().x() - place.center().x()) <= 6);
        }
        QCOMPARE(find("r1_2")->alignment(), Qt::AlignRight | Qt::AlignBottom);
        QCOMPARE(find("r27_2")->alignment(), Qt::AlignLeft);
        const QStringList backgrounds{"CapsLock",  "Spacebar",  "Enter", "ShiftRight",
                                      "ShiftLeft", "BackSpace", "Tab"};
        for (int i = 0; i < 7; ++i) {
            QCOMPARE(w.keyBgList[47 + i]->objectName(), "bg" + backgrounds[i]);
            QCOMPARE(w.keyImgList[47 + i]->objectName(), "img" + backgrounds[i]);
            QCOMPARE(w.pulsateList[47 + i]->objectName(), QString("pulsate%1").arg(48 + i));
        }
    }
};

QTEST_MAIN(TestFrame)
#include "tst_frame.moc"
