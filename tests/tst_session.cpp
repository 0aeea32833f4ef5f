#include "window.h"

#include <QLCDNumber>

namespace {

const QString font16 = "font-size: 16pt; font-family: 'MS Shell Dlg 2'; ";
const QString gold = "border-radius: 10px;background-color: qlineargradient(x1: 0, y1: 0, x2: 0, "
                     "y2: 1, stop: 0 gold, stop: .5  gold);";
const QString upright = "background-color: transparent; font-style:normal;";

} // namespace

class TestSession : public WindowTest
{
    Q_OBJECT

    bool enabled(const QString &name) const { return find<QWidget>(name)->isEnabled(); }
    bool checked(const QString &name) const { return find<QAbstractButton>(name)->isChecked(); }
    int clock() const { return find<QLCDNumber>("lcd")->intValue(); }
    QString counts() const { return text("labelCorrect") + " " + text("labelIncorrect"); }

    // The clock's and the instructor's timers; and their next tick.
    QVector<int> timers() const
    {
        QVector<int> ids;
        for (const auto &timer :
             QAbstractEventDispatcher::instance()->registeredTimers(window.get())) {
            if (timer.interval == 1000)
                ids << timer.timerId;
        }
        return ids;
    }
    void tick()
    {
        for (int id : timers()) {
            QTimerEvent event(id);
            QCoreApplication::sendEvent(window.get(), &event);
        }
    }
    void clickAt(const QString &name)
    {
        auto *widget = find<QWidget>(name);
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          widget->mapTo(window.get(), widget->rect().center()));
    }
    // All unshifted, shifted, covers to be seen (? for some); then the four check marks.
    QString display() const
    {
        const KeyboardWidgets &keys = window->board().widgets;
        QString result;
        for (const auto &list :
             {keys.lowerKeyList.mid(0, 47), keys.upperKeyList, keys.displayNoneList}) {
            const auto hidden = std::count_if(
                list.begin(), list.end(), [](const QLabel *label) { return label->isHidden(); });
            result += hidden == 0 ? "1" : hidden == list.size() ? "0" : "?";
        }
        for (const char *mark : {"checkNone", "checkRussian", "checkEnglish", "checkBoth"})
            result += shown(mark) ? " 1" : " 0";
        return result;
    }

private slots:
    void startAndStop()
    {
        const auto verifyEnabled = [this](bool inGame) {
            for (const char *name : {"leMatch", "leUser", "goldenHighlight", "lineHighlight"})
                QCOMPARE(enabled(name), inGame);
            for (const char *name : {"animationOn", "animationOff"})
                QCOMPARE(enabled(name), !inGame);
            QCOMPARE(timers().size(), inGame ? 2 : 0);
            QCOMPARE(game().gameRunning, inGame);
            QCOMPARE(game().animationEnabled, !inGame);
        };
        verifyEnabled(false);
        QVERIFY(checked("soft") && checked("animationOn") && !checked("animationOff"));
        QCOMPARE(sheet("labelCorrect"), upright);
        click("start");
        verifyEnabled(true);
        QCOMPARE(text("leMatch"), QString("a"));
        QCOMPARE(sheet("start"), font16 + "color: rgb(0, 94, 0);");
        QCOMPARE(sheet("stop"), font16 + " color: black;");
        QCOMPARE(sheet("goldenHighlight"), gold + "color: black;");
        QCOMPARE(sheet("animationOn") + sheet("animationOff"),
                 QString("color: #6e6e6e;color: #6e6e6e;"));
        QVERIFY(checked("on") && !checked("off"));
        QCOMPARE(counts(), QString(" "));

        enterTarget();
        type("x");
        space();
        tick();
        const QString boxes = sheet("leMatch") + sheet("leUser");
        click("stop");
        verifyEnabled(false);
        QVERIFY(!game().gameFinished);
        QCOMPARE(sheet("start"), font16 + "color: black;");
        QCOMPARE(sheet("stop"), font16 + " color: maroon;");
        QCOMPARE(sheet("goldenHighlight"), gold + "color: #6e6e6e");
        QCOMPARE(sheet("animationOn") + sheet("animationOff"),
                 QString("color: blue;color: black;"));
        // The ended game stays on view.
        QCOMPARE(sheet("leMatch") + sheet("leUser"), boxes);
        QCOMPARE(text("leMatch") + text("leUser"), QString("bx"));
        QCOMPARE(counts(), QString("1 1"));
        QCOMPARE(sheet("labelCorrect"), upright);
        QCOMPARE(clock(), 1);
        QVERIFY(checked("on") && !checked("off") && game().isKeyPressed(1));
    }

    void startAgainInMidGame()
    {
        click("strict");
        click("start");
        for (int i = 0; i < 5; ++i)
            enterTarget();
        type("Q");
        tick();
        click("start");
        QVERIFY(game().gameRunning);
        QCOMPARE(text("leMatch") + text("leUser") + counts(), QString("a "));
        QCOMPARE(game().correctCount + game().incorrectCount + game().correctStreak, 0);
        QCOMPARE(clock(), 0);
        for (int key = 1; key <= 94; ++key)
            QVERIFY(!game().isKeyPressed(key));
        QCOMPARE(sheet("r3"), QString("color: white;font-family: Calibri;"));
        QCOMPARE(sheet("r3bg"), sheet("r90bg"));
        for (int i = 0; i < 100; ++i) {
            type("z");
            click("start");
        }
        QCOMPARE(timers().size(), 2);
        tick();
        QCOMPARE(clock(), 1);
        enterTarget();
        QCOMPARE(counts(), QString("1 0"));
    }

    void stopWithNothingRunning()
    {
        click("stop");
        QVERIFY(!enabled("goldenHighlight") && game().animationEnabled);
        QCOMPARE(text("leMatch") + counts(), QString(" "));
        click("start");
        enterTarget();
        click("stop");
        click("stop");
        QCOMPARE(timers().size(), 0);
        QCOMPARE(counts(), QString("1 0"));
    }

    void clockOffAndOn()
    {
        click("start");
        tick();
        tick();
        click("off");
        QCOMPARE(timers().size(), 1); // the instructor's
        tick();
        enterTarget();
        QCOMPARE(counts(), QString("1 0"));
        QCOMPARE(clock(), 2);
        click("on");
        click("on");
        QCOMPARE(timers().size(), 2);
        tick();
        QCOMPARE(clock(), 3);
        click("off");
        click("stop");
        QVERIFY(checked("off"));
        click("start");
        QVERIFY(checked("on"));
        QCOMPARE(clock(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(clock(), 1, 2500);
    }

    void difficulty()
    {
        const auto look = [this](const QString &chosen, const QString &other) {
            QVERIFY(checked(chosen) && !checked(other));
            QCOMPARE(sheet(chosen) + sheet(other), QString("color: blue;color: black;"));
            QVERIFY(shown(chosen == "soft" ? "displaySoft" : "displayStrict"));
            QVERIFY(!shown(chosen == "soft" ? "displayStrict" : "displaySoft"));
        };
        look("soft", "strict");
        click("strict");
        look("strict", "soft");
        click("soft"); // in mid-game the switch counts from the next press on
        look("soft", "strict");
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
        QCOMPARE(display(), QString("110 0 0 0 1"));
        clickAt("rcRussian");
        QCOMPARE(display(), QString("100 0 1 0 0"));
        click("rcEnglish");
        QCOMPARE(display(), QString("010 0 0 1 0"));
        click("rcNone"); // covers, and hides nothing beneath
        QCOMPARE(display(), QString("011 1 0 0 0"));
        type("a"); // keys still react under the covers
        QCOMPARE(text("letterOfAlphabet2"), QString("Letter-number: 1"));
        click("start");
        QCOMPARE(display(), QString("110 0 0 0 1"));
        QTest::mouseClick(find("rcNone"), Qt::RightButton);
        QCOMPARE(display(), QString("110 0 0 0 1"));
        click("rcRussian"); // can be chosen in a game, and lasts until the next Start
        click("stop");
        QCOMPARE(display().right(7), QString("0 1 0 0"));
        click("start");
        QCOMPARE(display(), QString("110 0 0 0 1"));
    }

    void stopBringsHiddenKeysBack()
    {
        const KeyboardWidgets &keys = window->board().widgets;
        QLabel *const labels[] = {keys.lowerKeyList[53], keys.upperKeyList[46], keys.keyBgList[46],
                                  keys.alphabetBgList[93], keys.shieldList[46]};
        for (bool running : {true, false}) { // without a game there is nothing to restore
            if (running)
                click("start");
            for (QLabel *label : labels)
                label->hide();
            keys.keyBgList[50]->hide(); // a control key's background is left alone
            keys.pulsateList[53]->show();
            click("stop");
            for (const QLabel *label : labels)
                QCOMPARE(label->isHidden(), !running);
            QVERIFY(keys.keyBgList[50]->isHidden());
            QCOMPARE(keys.pulsateList[53]->isHidden(), running);
            for (const QLabel *image : keys.keyImgList)
                QVERIFY(image->isHidden());
        }
    }

    void randomDrawsRepeat_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("last");
        QTest::newRow("pbRandomAll") << 0 << 93;
        QTest::newRow("pbRandomConsonants") << 26 << 51;
        QTest::newRow("pbRandomVarious") << 0 << 25;
        QTest::newRow("pbRandomNumberLine") << 52 << 93;
    }
    void randomDrawsRepeat()
    {
        QFETCH(int, first);
        QFETCH(int, last);
        const QString characters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                   "`1234567890-=~!@#$%^&*()_+[]\\;',./{}|:\"<>?";
        std::srand(1); // as in a fresh process
        QString drawn;
        while (drawn.size() < 12) {
            const int value = std::rand() % 100000;
            if (value >= first && value <= last)
                drawn += characters.at(value);
        }
        std::srand(1);
        click("animationOff");
        click(QTest::currentDataTag());
        click("start");
        QString asked;
        for (int i = 0; i < 12; ++i) {
            asked += text("leMatch");
            enterTarget();
        }
        QCOMPARE(asked, drawn);
    }

    void hoverLooks()
    {
        const auto looks = [this](const QString &under, const QString &styled) {
            QStringList result;
            for (QEvent::Type type : {QEvent::Enter, QEvent::Leave}) {
                QEvent event(type);
                QCoreApplication::sendEvent(find<QWidget>(under), &event);
                result << sheet(styled);
            }
            return result.join('|');
        };
        QCOMPARE(looks("start", "start"),
                 QString(" font-weight: bold; color: rgb(0, 94, 0);  text-align: center;|"
                         "color: rgb(0, 94, 0); text-align: center;"));
        QCOMPARE(looks("stop", "stop"), // without "color:", as it has always been
                 QString(" font-weight: bold; maroon;  text-align: center;|"
                         "color: maroon; text-align: center;"));
        QCOMPARE(looks("rcNone", "none"), QString(" color:blue; font: 9pt 'MS Shell Dlg 2' ; |"
                                                  " color:black;  font: 9pt 'MS Shell Dlg 2' ; "));
    }

    void nothingTakesTheKeyboard()
    {
        for (const QWidget *widget : window->findChildren<QWidget *>())
            QVERIFY2(widget->focusPolicy() == Qt::NoFocus, qPrintable(widget->objectName()));
        for (const QAbstractButton *button : window->findChildren<QAbstractButton *>())
            QVERIFY2(button->shortcut().isEmpty(), qPrintable(button->objectName()));
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QWindow *handle = window->windowHandle();
        click("animationOff");
        game().clearUserDelay = 100000;
        for (const char *name : {"start", "leMatch", "leUser", "on", "soft", "goldenHighlight"})
            clickAt(name);
        QTest::keyClick(handle, Qt::Key_A);
        QTest::mouseDClick(handle, Qt::LeftButton, {},
                           find<QWidget>("leUser")->pos() + QPoint(30, 30));
        QVERIFY(!find<QLineEdit>("leUser")->hasSelectedText());
        QTest::keyClick(handle, Qt::Key_Space);
        QVERIFY(game().gameRunning);
        QCOMPARE(text("leMatch"), QString("b"));
        // In Strict any key that reaches the window judges what stands in leUser.
        clickAt("strict");
        int judged = 0;
        for (Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                            Qt::Key_Down, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space}) {
            QTest::keyClick(handle, key);
            QCOMPARE(game().incorrectCount, ++judged);
        }
        QVERIFY(game().gameRunning);
    }

    void randomPresses()
    {
        std::srand(7);
        game().clearUserDelay = 0;
        game().delayStep = 0;
        click("strict");
        const char *const buttons[] = {"start",  "start",       "stop",    "soft",
                                       "strict", "pbRandomAll", "keyFlash"};
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
                click(buttons[i / 40 % 7]);
            if (i % 20 == 0)
                QCoreApplication::processEvents();
        }
        QVERIFY(timers().size() <= 2);
    }

    void closingWithTimersPending()
    {
        game().clearUserDelay = 1;
        game().keyFlashDelay = 1;
        game().delayStep = 1;
        click("keyFlash");
        click("pbForwardAll");
        window->matchSession().matchGameEnable();
        window->matchSession().matchGameChooser();
        enterTarget();
        window.reset();
        bool later = false;
        QTimer::singleShot(220, this, [&later] { later = true; });
        QTRY_VERIFY(later);
    }
};

QTEST_MAIN(TestSession)
#include "tst_session.moc"
