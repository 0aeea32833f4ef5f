#include "window.h"

class TestGuide : public WindowTest
{
    Q_OBJECT

    Looks &looks() { return window->wardrobe().looks; }

    void prepare() override
    {
        looks().upperFontStyle = "font-family: Upp;";
        click("animationOff");
    }
    QString said(int ms) // later
    {
        pass(ms);
        return text("display2");
    }
    void start(const QString &set)
    {
        click(set);
        click("start");
    }
    QString tour() const
    {
        const QString lit = "background-color: lightsteelblue; border: 1px solid black;";
        QStringList seen;
        for (const QString name :
             {"demo1", "demo2", "demo3", "demo4", "arrow1", "arrow2", "arrow3", "arrow6"}) {
            const bool onScreen = window->rect().intersects(find(name)->geometry());
            if (shown(name) && (name < "b" ? onScreen : sheet(name).simplified() == lit))
                seen << name;
        }
        return seen.join(' ');
    }
    QString face() const
    {
        for (const QString where : {"down", "middle", "up"}) {
            if (find("piclabel1")->pixmap(Qt::ReturnByValue).toImage() ==
                QPixmap(QString(":/new/prefix1/ch%1.png").arg(where)).toImage())
                return where;
        }
        return {};
    }
    // Until the instructor turns; returns how long it took and where he looks then.
    QString turn()
    {
        const QString before = face();
        int ms = 0;
        for (; ms < 30000 && face() == before; ++ms)
            pass(1);
        return QString("%1 %2").arg(ms).arg(face());
    }

    // What a label draws, in the window.
    QRect ink(const QString &name) const
    {
        QWidget *label = find<QWidget>(name);
        QImage image(label->size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        label->render(&image, {}, {}, QWidget::DrawChildren);
        const QRegion dark(QBitmap::fromImage(
            image.convertToFormat(QImage::Format_Mono, Qt::MonoOnly | Qt::ThresholdDither)));
        return dark.boundingRect().translated(label->mapTo(window.get(), QPoint()));
    }
    QString plates() const // that are there now
    {
        QCoreApplication::sendPostedEvents();
        QStringList names;
        for (const QString name : {"backInstructor", "backNoteLeft", "backNoteRight"}) {
            if (shown(name))
                names << name.mid(4);
        }
        return names.join(' ');
    }

private slots:
    void platesComeAndGoWithTheirWords()
    {
        QCOMPARE(plates(), QString("Instructor NoteLeft NoteRight"));
        QVERIFY(find("backInstructor")->width() < 100); // three short lines
        for (const char *step : {"hideNonVitals -", "hideNonVitals Instructor NoteLeft NoteRight",
                                 "start NoteLeft NoteRight", "buttonInstructionsRight NoteLeft",
                                 "buttonInstructionsLeft -", "buttonInstructionsRight NoteRight",
                                 "pbForwardNumberLine NoteRight", "start Instructor NoteRight"}) {
            click(QString(step).section(' ', 0, 0));
            QVERIFY2(plates() == QString(step).section(' ', 1).remove('-'), step);
        }
        pass(7000);
        QCOMPARE(plates(), QString("NoteRight"));
        press("c"); // tells the place in the alphabet
        QCOMPARE(plates(), QString("Instructor NoteRight"));
        const QRect letter = find("backInstructor")->geometry();
        QVERIFY(letter.height() < 30);
        find("display2")->setText("Two\nlines");
        plates();
        QVERIFY(find("backInstructor")->geometry().contains(letter.adjusted(7, 0, -7, 0)));
        QVERIFY(find("backInstructor")->height() > 60);
    }

    void captionsAreLegibleOnADarkWallpaper()
    {
        find("wallpaper")->setStyleSheet("background-color: black;");
        press("c");
        QStringList names{"display3",   "letterOfAlphabet2", "labelInstructionsRight",
                          "matchThis",  "yourEntry",         "labelInstructionsLeft",
                          "gamesAll",   "Games_2",           "startGame_4",
                          "colorTimer", "animation"};
        for (const QString row : {"row1", "row2", "row3", "row4"})
            names << row << row + "Hand";
        plates();
        const QImage picture = window->grab().toImage();
        for (const QString &name : names) {
            const QRect words = ink(name).adjusted(-3, -2, 3, 2);
            QVERIFY2(words.width() > 6, qPrintable(name));
            const QPoint middle = words.center();
            for (const QPoint &beside :
                 {QPoint(words.left(), middle.y()), QPoint(words.right(), middle.y()),
                  QPoint(middle.x(), words.top()), QPoint(middle.x(), words.bottom())})
                QVERIFY2(qGray(picture.pixel(beside)) > 200, qPrintable(name));
        }
    }

    void tourWalksInACycle()
    {
        pass(3499);
        QCOMPARE(tour(), QString());
        pass(1);
        const QStringList cycle = {"demo1 arrow1 arrow2 arrow3", "demo2", "demo3", "demo4",
                                   "arrow6"};
        for (const QString &step : cycle + cycle) {
            QCOMPARE(tour(), step);
            pass(step == "arrow6" ? 3549 : 3499);
            QCOMPARE(tour(), step);
            pass(1);
        }
    }

    void startEndsTheTour_data()
    {
        QTest::addColumn<int>("ms"); // before, at and between its steps
        for (int ms : {10, 3600, 7100, 14100, 17520, 17600})
            row(qPrintable(QString("after %1 ms").arg(ms)), ms);
    }
    void startEndsTheTour()
    {
        QFETCH(int, ms);
        pass(ms);
        click("start");
        for (int i = 0; i < 100; ++i) {
            QCOMPARE(tour(), QString());
            if (i == 40)
                click("stop");
            if (i == 50)
                window->openTambrel(); // back from the opening window
            pass(400);
        }
        QVERIFY(!shown("display3")); // the greeting, gone for good too
    }

    void hintsAtTheirLetters_data()
    {
        QTest::addColumn<QString>("set");
        row("hints", "pbForwardAll");
        row("none backwards", "pbReverseAll");
        row("none at random", "pbRandomAll");
    }
    void hintsAtTheirLetters()
    {
        const QHash<QString, QString> hints{{"bB", "First "},
                                            {"dD", "Three "},
                                            {"gG", "One of "},
                                            {"iI", "Hidden word out"},
                                            {"pP", "Hidden word\nin "},
                                            {"A`", "Last "},
                                            {"#", "This "}};
        QFETCH(QString, set);
        start("pbForwardAll");
        enterTarget(); // leaves its index behind
        start(set);
        for (int i = 0; i < 93; ++i) {
            find("display2")->clear();
            enterTarget();
            QString hint;
            for (auto each = hints.begin(); set == "pbForwardAll" && each != hints.end(); ++each)
                hint += each.key().contains(text("leMatch")) ? *each : QString();
            QVERIFY2(hint.isEmpty() ? said(0).isEmpty() : said(0).startsWith(hint),
                     qPrintable(text("leMatch") + ": " + said(0)));
        }
    }

    void greetingAtStart()
    {
        QVERIFY(shown("display3") && text("display3") == "Hello. \nI am your \ninstructor.");
        QCOMPARE(window->childAt(770, 190), find("display3")); // on top of the messages
        start("pbForwardNumberLine");
        QVERIFY(!shown("display3") && text("display3").isEmpty());
        QCOMPARE(said(6999), QString("Last letter is below\nthe first letter"));
        QCOMPARE(said(1), QString());
    }

    void fadeOutDoesNotWorkWithRandom()
    {
        game().fade = GameState::Fade::Out;
        start("pbRandomVarious");
        QCOMPARE(said(6999), QString("Fade Out does not\nwork with Random."));
        enterTarget();
        QCOMPARE(said(0), QString("Fade Out does not work with Random"));
    }

    void remindsOfSpaceOnceAGame()
    {
        const QString reminder = "Press Space\nto enter it.";
        start("pbForwardNumberLine");
        pass(7100); // the first hint is over
        for (const bool first : {true, false, true}) {
            type(text("leMatch"));
            QVERIFY(said(1900) != reminder);
            QCOMPARE(said(1300) == reminder, first);
            space();
            QCOMPARE(said(7100), QString());
            if (!first) // once more in the next one
                start("pbForwardNumberLine"), pass(7100);
        }
        click("strict");
        start("pbForwardNumberLine");
        type("x");
        QVERIFY(said(3500) != reminder);
    }

    void stepTwoGoesByTheDifficulty()
    {
        QCOMPARE(text("startGame_4"), QString("Type it, then press Space."));
        click("strict");
        QCOMPARE(text("startGame_4"), QString("Then type what you see."));
        click("soft");
        QCOMPARE(text("startGame_4"), QString("Type it, then press Space."));
        const QLabel *step = find("startGame_4");
        QVERIFY(step->fontMetrics().horizontalAdvance(step->text()) <= step->width());
    }

    void messagesAreReadInFull()
    {
        const QLabel *display = find("display2");
        QStringList messages{"Fade Out does not work with Random",
                             "Fade Out does not\nwork with Random.",
                             "Would you like\nto play again?", "Press Space\nto enter it.",
                             "\n\"What a Mess.\n\nWait for it.\""};
        for (int i = 1; i <= 7; ++i)
            messages << text(QString("mes%1").arg(i));
        for (const QString &message : messages) {
            const int flags = display->alignment() | (display->wordWrap() ? Qt::TextWordWrap : 0);
            const QRect ink =
                display->fontMetrics().boundingRect(display->contentsRect(), flags, message);
            QVERIFY2(display->rect().contains(ink), qPrintable(message));
        }
    }

    void closingQuestion_data()
    {
        QTest::addColumn<QString>("set");
        for (const char *set : {"pbForwardVarious", "pbReverseConsonants", "pbRandomAll"})
            row(set, set);
    }
    void closingQuestion()
    {
        QFETCH(QString, set);
        const QString question = "Would you like\nto play again?";
        start(set);
        while (game().gameRunning)
            enterTarget();
        QVERIFY(said(1999) != question);
        QCOMPARE(said(1), question);
    }

    void noQuestionDuringTheNextGame()
    {
        start("pbForwardVarious");
        while (game().gameRunning)
            enterTarget();
        pass(1000);
        click("start");
        QCOMPARE(said(1000), QString());
        click("stop");
        QCOMPARE(said(1000), QString());
    }

    void clockCountsOnWithMoreDigits()
    {
        const auto *clock = find<QLCDNumber>("lcd");
        QCOMPARE(clock->digitCount(), 3);
        click("start");
        for (const int next : {1, 999, 1000, 12345, 99999}) {
            game().elapsedSeconds = next - 1;
            pass(1050); // a coarse timer
            QCOMPARE(clock->intValue(), next);
            QVERIFY(!clock->checkOverflow(next));
            QCOMPARE(clock->size(), QSize(71, 41));
        }
        click("start");
        QVERIFY(clock->intValue() == 0 && clock->digitCount() == 3);
    }

    void sampleLetters_data()
    {
        for (const char *column : {"target", "letters", "font"})
            QTest::addColumn<QString>(column);
        row("All", "", "abc", "Calibri");
        row("NumberLine", "", "`12", "Calibri");
        row("Various", "C", "abc", "Upp"); // the target wins over the set
        row("Consonants", "a", "ABC", "Calibri");
    }
    void sampleLetters()
    {
        QFETCH(QString, target);
        QFETCH(QString, font);
        find<QLineEdit>("leMatch")->setText(target);
        click(QString("pbForward") + QTest::currentDataTag());
        QTEST(QString(text("dem1") + text("dem6") + text("dem2")), "letters");
        QVERIFY(sheet("dem2").contains(font));
    }

    void instructorLooksUp()
    {
        click("start");
        pass(19900);
        QCOMPARE(face(), QString("down"));
        turn();
        const QStringList turns{"50 up", "1750 middle", "2000 up", "2000 down"};
        for (const QString &expected : turns)
            QCOMPARE(turn(), expected);
        // Twenty seconds after the first of them, and later by the seconds played since.
        QCOMPARE(turn(), QString("%1 middle").arg(20000 + 20 - 50 - 1750 - 2000 - 2000));
        click("stop"); // he looks down at the next step and stays so
        pass(6000);
        QCOMPARE(face(), QString("down"));
    }
};

QTEST_MAIN(TestGuide)
#include "tst_guide.moc"
