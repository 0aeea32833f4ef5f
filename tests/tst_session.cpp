#include "window.h"

#include <QLCDNumber>

class TestSession : public WindowTest
{
    Q_OBJECT

    bool checked(const QString &name) const { return find<QAbstractButton>(name)->isChecked(); }
    int clock() const { return find<QLCDNumber>("lcd")->intValue(); }
    QString counts() const { return text("labelCorrect") + " " + text("labelIncorrect"); }

    // The clock and the instructor count seconds.
    int secondsCounted() const
    {
        const auto all = QAbstractEventDispatcher::instance()->registeredTimers(window.get());
        return int(std::count_if(all.begin(), all.end(),
                                 [](const auto &timer) { return timer.interval == 1000; }));
    }
    // Clicks on buttons, but for "tick" and "enter".
    void play(const QString &acts)
    {
        for (const QString &act : acts.split(' ')) {
            if (act == "tick")
                pass(1050); // one second of a coarse timer
            else
                act == "enter" ? enterTarget() : click(act);
        }
    }
    void clickAt(const QString &name)
    {
        const QPoint place = find<QWidget>(name)->mapTo(window.get(), QPoint(5, 5));
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, place);
    }

private slots:
    void startAndStop()
    {
        const auto state = [this]() -> QString {
            QString result = QString::number(secondsCounted());
            for (const char *name : {"leUser", "lineHighlight", "animationOff"})
                result += find<QWidget>(name)->isEnabled() ? "1" : "0";
            return result + QString::number(game().gameRunning * 10 + game().animationEnabled);
        };
        click("stop"); // with nothing running
        QCOMPARE(state(), QString("00011"));
        click("start");
        QCOMPARE(state() + text("leMatch") + counts(), QString("211010a "));
        play("tick enter");
        type("x");
        space();
        QLabel *const key = window->furniture().widgets.lowerKeyList[53];
        window->furniture().presence.take(Keys::Place::numbered(54)); // as a burst does
        for (int i = 0; i < 2; ++i) {
            click("stop");
            QCOMPARE(state(), QString("00011"));
            QVERIFY(!key->isHidden()); // hidden keys are back; the ended game stays on view
            QCOMPARE(text("leMatch") + text("leUser") + counts(), QString("bx1 1"));
            QVERIFY(clock() == 1 && game().isKeyPressed(1) && !game().gameFinished);
        }
    }

    void startAgainInMidGame()
    {
        play("strict start enter enter enter enter enter tick start");
        QCOMPARE(text("leMatch") + text("leUser") + counts(), QString("a "));
        QCOMPARE(game().correctCount + game().incorrectCount + game().correctStreak + clock(), 0);
        QVERIFY(!game().isKeyPressed(1));
        for (int i = 0; i < 100; ++i)
            click("start");
        QCOMPARE(secondsCounted(), 2);
    }

    void clockOffAndOn()
    {
        play("start tick off");
        QCOMPARE(secondsCounted(), 1); // the instructor's
        play("tick enter");
        QCOMPARE(QString("%1 ").arg(clock()) + counts(), QString("1 1 0"));
        play("on on tick");
        QCOMPARE(clock(), 2);
        play("off start");
        QVERIFY(checked("on") && clock() == 0);
        QTRY_COMPARE_WITH_TIMEOUT(clock(), 1, 2500);
    }

    void difficulty()
    {
        play("strict soft start"); // in mid-game the switch counts from the next press on
        QVERIFY(checked("soft") && shown("displaySoft") && !shown("displayStrict"));
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
        const QString rows = "goldenHighlight 001, rcRussian 011, rcEnglish 101, rcNone 100, "
                             "start 001, rcRussian 011, start 001";
        const KeyboardWidgets &keys = window->furniture().widgets;
        for (const QString &row : rows.split(", ")) {
            QString name = row.section(' ', 0, 0), hidden;
            clickAt(name);
            for (auto list :
                 {keys.lowerKeyList.mid(0, 47), keys.upperKeyList, keys.displayNoneList}) {
                const auto count =
                    std::count_if(list.begin(), list.end(), std::mem_fn(&QWidget::isHidden));
                hidden += count == 0 ? "0" : count == list.size() ? "1" : "?";
            }
            QCOMPARE(name + " " + hidden, row);
        }
    }

    void randomDrawsRepeat()
    {
        play("animationOff pbRandomConsonants");
        std::srand(1); // as in a fresh process
        QString drawn, asked;
        while (drawn.size() < 12)
            drawn += QString("ABCDEFGHIJKLMNOPQRSTUVWXYZ")
                         .mid(std::max(std::rand() % 100000 - 26, -1), 1);
        std::srand(1);
        for (click("start"); asked.size() < 12; enterTarget())
            asked += text("leMatch");
        QCOMPARE(asked, drawn);
    }

    void nothingTakesTheKeyboard()
    {
        for (const QWidget *widget : window->findChildren<QWidget *>())
            QVERIFY2(widget->focusPolicy() == Qt::NoFocus, qPrintable(widget->objectName()));
        click("animationOff");
        game().clearUserDelay = 100000;
        for (const char *name : {"start", "leMatch", "leUser", "on", "soft", "goldenHighlight"})
            clickAt(name);
        for (auto key : {Qt::Key_A, Qt::Key_Space})
            QTest::keyClick(window->windowHandle(), key);
        QVERIFY(game().gameRunning && text("leMatch") == "b");
        // In Strict any key that reaches the window judges what stands in leUser.
        clickAt("strict");
        for (auto key : {Qt::Key_Tab, Qt::Key_Left, Qt::Key_Down, Qt::Key_Return, Qt::Key_Space})
            QTest::keyClick(window->windowHandle(), key);
        QCOMPARE(game().incorrectCount, 5);
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
            for (auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent event(type, code, std::rand() % 2 ? Qt::ShiftModifier : Qt::NoModifier);
                QCoreApplication::sendEvent(window.get(), &event);
            }
            if (i % 40 == 0)
                click(buttons[i / 40 % 5]);
            QCoreApplication::processEvents();
        }
        QVERIFY(secondsCounted() <= 2);
        // Closed with timers pending.
        play("keyFlash pbForwardAll start enter");
        window.reset();
        pass(220);
    }
};

QTEST_MAIN(TestSession)
#include "tst_session.moc"
