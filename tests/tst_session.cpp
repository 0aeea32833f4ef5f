#include "window.h"

#include <QLCDNumber>

class TestSession : public WindowTest
{
    Q_OBJECT

    bool checked(const QString &name) const { return find<QAbstractButton>(name)->isChecked(); }
    int clock() const { return find<QLCDNumber>("lcd")->intValue(); }
    QString counts() const { return text("labelCorrect") + " " + text("labelIncorrect"); }

    // The clock's and the instructor's timers; and their next tick.
    QVector<int> timers() const
    {
        QVector<int> ids;
        const auto all = QAbstractEventDispatcher::instance()->registeredTimers(window.get());
        for (const auto &timer : all)
            ids += QVector<int>(timer.interval == 1000 ? 1 : 0, timer.timerId);
        return ids;
    }
    void tick()
    {
        for (int id : timers()) {
            QTimerEvent event(id);
            QCoreApplication::sendEvent(window.get(), &event);
        }
    }
    // Clicks on buttons, but for "tick" and "enter".
    void play(const QString &acts)
    {
        for (const QString &act : acts.split(' '))
            act == "tick" ? tick() : act == "enter" ? enterTarget() : click(act);
    }
    void clickAt(const QString &name)
    {
        const QPoint place = find<QWidget>(name)->mapTo(window.get(), QPoint(5, 5));
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, place);
    }
    // All unshifted, shifted, covers to be seen (? for some); then the four check marks.
    QString display() const
    {
        const KeyboardWidgets &keys = window->board().widgets;
        QString result;
        for (auto list : {keys.lowerKeyList.mid(0, 47), keys.upperKeyList, keys.displayNoneList}) {
            const auto count =
                std::count_if(list.begin(), list.end(), std::mem_fn(&QWidget::isHidden));
            result += count == 0 ? "1" : count == list.size() ? "0" : "?";
        }
        for (const char *mark : {"checkNone", "checkRussian", "checkEnglish", "checkBoth"})
            result += shown(mark) ? " 1" : " 0";
        return result;
    }

private slots:
    void startAndStop()
    {
        const auto verifyState = [this](bool inGame) {
            QString state;
            for (const char *name : {"leMatch", "leUser", "goldenHighlight", "lineHighlight",
                                     "animationOn", "animationOff"})
                state += find<QWidget>(name)->isEnabled() ? "1" : "0";
            QCOMPARE(state, QString(inGame ? "111100" : "000011"));
            QCOMPARE(timers().size(), inGame ? 2 : 0);
            QVERIFY(game().gameRunning == inGame && game().animationEnabled == !inGame);
            QVERIFY(sheet("start").endsWith(inGame ? "color: rgb(0, 94, 0);" : "color: black;"));
        };
        QVERIFY(checked("soft") && checked("animationOn") && !checked("animationOff"));
        click("stop"); // with nothing running
        verifyState(false);
        QCOMPARE(text("leMatch") + counts(), QString(" "));
        click("start");
        verifyState(true);
        QCOMPARE(text("leMatch") + counts(), QString("a "));
        enterTarget();
        type("x");
        space();
        tick();
        const QString boxes = sheet("leMatch") + sheet("leUser");
        QLabel *const key = window->board().widgets.lowerKeyList[53];
        key->hide();
        for (int i = 0; i < 2; ++i) {
            click("stop");
            verifyState(false);
            QVERIFY(!key->isHidden()); // hidden keys are back; the ended game stays on view
            QCOMPARE(sheet("leMatch") + sheet("leUser"), boxes);
            QCOMPARE(text("leMatch") + text("leUser") + counts(), QString("bx1 1"));
            QVERIFY(clock() == 1 && game().isKeyPressed(1) && !game().gameFinished);
        }
    }

    void startAgainInMidGame()
    {
        play("strict start enter enter enter enter enter tick start");
        QCOMPARE(text("leMatch") + text("leUser") + counts(), QString("a "));
        QCOMPARE(game().correctCount + game().incorrectCount + game().correctStreak + clock(), 0);
        for (int key = 1; key <= 94; ++key)
            QVERIFY(!game().isKeyPressed(key));
        QCOMPARE(sheet("r3") + sheet("r3bg"), sheet("r90") + sheet("r90bg"));
        for (int i = 0; i < 100; ++i) {
            type("z");
            click("start");
        }
        QCOMPARE(timers().size(), 2);
        play("tick enter");
        QCOMPARE(QString("%1 ").arg(clock()) + counts(), QString("1 1 0"));
    }

    void clockOffAndOn()
    {
        play("start tick off");
        QCOMPARE(timers().size(), 1); // the instructor's
        play("tick enter");
        QCOMPARE(QString("%1 ").arg(clock()) + counts(), QString("1 1 0"));
        play("on on");
        QCOMPARE(timers().size(), 2);
        tick();
        QCOMPARE(clock(), 2);
        play("off start");
        QVERIFY(checked("on") && clock() == 0);
        QTRY_COMPARE_WITH_TIMEOUT(clock(), 1, 2500);
    }

    void difficulty()
    {
        for (bool soft : {true, false, true}) {
            QVERIFY(checked("soft") == soft && checked("strict") == !soft);
            QVERIFY(shown("displaySoft") == soft && shown("displayStrict") == !soft);
            click(soft ? "strict" : "soft");
        }
        click("soft"); // in mid-game the switch counts from the next press on
        click("start");
        type("b");
        QCOMPARE(game().incorrectCount, 0);
        click("strict");
        for (int i = 0; i < 5; ++i) { // held down
            QKeyEvent down(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a", i > 0);
            QCoreApplication::sendEvent(window.get(), &down);
        }
        QCOMPARE(counts(), QString("1 4"));
    }

    void displayModes()
    {
        // None covers, and hides nothing beneath; a choice lasts until the next Start.
        const QString rows =
            "goldenHighlight 110 0 0 0 1, rcRussian 100 0 1 0 0, rcEnglish 010 0 0 1 0, "
            "rcNone 011 1 0 0 0, start 110 0 0 0 1, rcRussian 100 0 1 0 0, start 110 0 0 0 1";
        for (const QString &row : rows.split(", ")) {
            const QString name = row.section(' ', 0, 0);
            clickAt(name);
            QCOMPARE(name + " " + display(), row);
        }
    }

    void randomDrawsRepeat()
    {
        const QString characters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                   "`1234567890-=~!@#$%^&*()_+[]\\;',./{}|:\"<>?";
        const std::tuple<QString, int, int> rows[] = {
            {"All", 0, 93}, {"Consonants", 26, 51}, {"Various", 0, 25}, {"NumberLine", 52, 93}};
        for (const auto &[set, first, last] : rows) {
            open();
            play("animationOff pbRandom" + set);
            std::srand(1); // as in a fresh process
            QString drawn, asked;
            while (drawn.size() < 12) {
                const int value = std::rand() % 100000;
                drawn += characters.mid(value, value >= first && value <= last ? 1 : 0);
            }
            std::srand(1);
            click("start");
            for (; asked.size() < 12; enterTarget())
                asked += text("leMatch");
            QCOMPARE(asked, drawn);
        }
    }

    void nothingTakesTheKeyboard()
    {
        for (const QWidget *widget : window->findChildren<QWidget *>())
            QVERIFY2(widget->focusPolicy() == Qt::NoFocus, qPrintable(widget->objectName()));
        for (const QAbstractButton *button : window->findChildren<QAbstractButton *>())
            QVERIFY2(button->shortcut().isEmpty(), qPrintable(button->objectName()));
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        click("animationOff");
        game().clearUserDelay = 100000;
        for (const char *name : {"start", "leMatch", "leUser", "on", "soft", "goldenHighlight"})
            clickAt(name);
        QTest::keyClick(window->windowHandle(), Qt::Key_A);
        QTest::keyClick(window->windowHandle(), Qt::Key_Space);
        QVERIFY(game().gameRunning && text("leMatch") == "b");
        // In Strict any key that reaches the window judges what stands in leUser.
        clickAt("strict");
        int judged = 0;
        for (auto key : {Qt::Key_Tab, Qt::Key_Left, Qt::Key_Down, Qt::Key_Return, Qt::Key_Space}) {
            QTest::keyClick(window->windowHandle(), key);
            QCOMPARE(game().incorrectCount, ++judged);
        }
    }

    void randomPresses()
    {
        std::srand(7);
        game().clearUserDelay = game().keyFlashDelay = game().delayStep = 1;
        click("strict");
        const char *const buttons[] = {"start", "stop", "start", "pbRandomAll", "keyFlash"};
        const int odd[] = {0, -1, 31, 127, 200, 0xffff, 0x1000020, 0x7fffffff};
        for (int i = 0; i < 2000; ++i) {
            const int code = i % 10 == 0 ? odd[std::rand() % 8] : 32 + std::rand() % 96;
            const auto modifiers = std::rand() % 2 ? Qt::ShiftModifier : Qt::NoModifier;
            QKeyEvent down(QEvent::KeyPress, code, modifiers, {}, std::rand() % 3 == 0);
            QKeyEvent up(QEvent::KeyRelease, code, modifiers);
            QCoreApplication::sendEvent(window.get(), &down);
            if (std::rand() % 2)
                QCoreApplication::sendEvent(window.get(), &up);
            if (i % 40 == 0)
                click(buttons[i / 40 % 5]);
            QCoreApplication::processEvents();
        }
        QVERIFY(timers().size() <= 2);
        // Closed with timers pending.
        play("keyFlash pbForwardAll start enter");
        window->matchSession().matchGameEnable();
        window->matchSession().matchGameChooser();
        window.reset();
        QTest::qWait(220);
    }
};

QTEST_MAIN(TestSession)
#include "tst_session.moc"
