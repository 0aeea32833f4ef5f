#include "window.h"

namespace {

const QString lit =
    "border-radius: 10px;background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
    "stop: 0 black, stop: .5  black);";
const QString pressedKey = lit + "border-style:none; border-width:0px;  border-color: transparent;";
const QString font = "font-family: Calibri;";

} // namespace

class TestInput : public WindowTest
{
    Q_OBJECT

    void prepare() override
    {
        // Told apart, so that a mix-up of the two cases cannot pass.
        window->board().looks.keypress.upperTextStyle = "color: #010101;";
        window->board().looks.keypress.lowerTextStyle = "color: #020202;";
    }

private slots:
    void everyCharacterLightsItsKeyAndCell_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("cap");
        QTest::addColumn<bool>("upperColour");
        const struct
        {
            const char *characters;
            int firstKey;
            int firstCap;
            bool shifted;
        } rows[] = {{"abcdefghijklmnopqrstuvwxyz", 1, 1, false},
                    {"ABCDEFGHIJKLMNOPQRSTUVWXYZ", 27, 1, true},
                    {"`1234567890-=", 53, 27, false},
                    {"~!@#$%^&*()_+", 66, 27, true},
                    {"[]\\;',./", 79, 40, false},
                    {"{}|:\"<>?", 87, 40, true}};
        for (const auto &row : rows) {
            for (int i = 0; row.characters[i]; ++i)
                QTest::newRow(QByteArray(1, row.characters[i]).constData())
                    << row.firstKey + i << row.firstCap + i
                    << (row.shifted && row.characters[i] != 'Z');
        }
    }
    void everyCharacterLightsItsKeyAndCell()
    {
        QFETCH(int, key);
        QFETCH(int, cap);
        QFETCH(bool, upperColour);
        const QString character = QTest::currentDataTag();
        const QString litText = (upperColour ? "color: #010101;" : "color: #020202;") + font;
        const QString letter = QString("r%1").arg(key);

        press(character);
        QCOMPARE(sheet(letter), litText);
        QCOMPARE(sheet(letter + "_2"), litText);
        QCOMPARE(sheet(QString("bg%1").arg(cap)), pressedKey);
        QCOMPARE(text(letter), character);
        QCOMPARE(played, QStringList{":/new/prefix1/silence.wav"});

        release(character);
        QCOMPARE(sheet(letter), "color: white;" + font);
        QCOMPARE(sheet(letter + "_2"), "color: white;" + font);
        QCOMPARE(sheet(QString("bg%1").arg(cap)), lit);
        // Nothing else was touched for good: both halves of every cap are at rest.
        for (const QLabel *text : qAsConst(window->board().widgets.lowerKeyList))
            QCOMPARE(text->styleSheet(), "color: white;" + font);
    }

    void modifiers_data()
    {
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<QString>("typed");
        QTest::newRow("none") << Qt::KeyboardModifiers(Qt::NoModifier) << "a";
        QTest::newRow("Shift") << Qt::KeyboardModifiers(Qt::ShiftModifier) << "A";
        QTest::newRow("Ctrl and Shift")
            << Qt::KeyboardModifiers(Qt::ControlModifier | Qt::ShiftModifier) << "a";
        QTest::newRow("Shift on the keypad")
            << Qt::KeyboardModifiers(Qt::ShiftModifier | Qt::KeypadModifier) << "a";
    }
    void modifiers()
    {
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(QString, typed);
        click("start");
        QTest::keyPress(window.get(), Qt::Key_A, modifiers);
        QCOMPARE(text("leUser"), typed);
    }

    void capsLockChangesNothing()
    {
        click("start");
        QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "A");
        QCoreApplication::sendEvent(window.get(), &event);
        QCOMPARE(text("leUser"), QString("a"));
    }

    void letterNumber()
    {
        const struct
        {
            const char *typed;
            const char *shown;
        } steps[] = {{"7", ""},   {"a", "1"},  {"A", "1"},  {"z", "26"},
                     {"Z", "26"}, {"M", "13"}, {"?", "13"}, {"[", "13"}};
        for (const auto &step : steps) {
            type(step.typed);
            const QString number = QLatin1String(step.shown);
            QCOMPARE(text("letterOfAlphabet2"),
                     number.isEmpty() ? QString() : "Letter-number: " + number);
        }
    }

    void outsideAGameNothingIsWrittenOrJudged()
    {
        type("a");
        space();
        QCOMPARE(text("leUser"), QString());
        QCOMPARE(game().correctCount + game().incorrectCount, 0);
        click("start");
        click("stop");
        type("a");
        QCOMPARE(text("leUser"), QString());
    }

    void releaseResetsBothHalvesOfACap()
    {
        press("B");
        press("b");
        QTest::keyRelease(window.get(), Qt::Key_B, Qt::NoModifier); // Shift was let go first
        QCOMPARE(sheet("r2_2"), "color: white;" + font);
        QCOMPARE(sheet("r28_2"), "color: white;" + font);
        press("!");
        QTest::keyRelease(window.get(), Qt::Key_1, Qt::NoModifier);
        QCOMPARE(sheet("r67_2"), "color: white;" + font);
    }

    void flashGoesBackByItself()
    {
        game().keyFlashDelay = 30;
        click("keyFlash");
        press("d");
        release("d");
        QCOMPARE(sheet("r4_2"), "color: #020202;" + font);
        press("e"); // held down
        QTRY_COMPARE(sheet("r4_2"), "color: white;" + font);
        QTRY_COMPARE(sheet("r5_2"), "color: white;" + font);
    }

    void finishedKeyKeepsItsCellWhilePressed()
    {
        game().setKeyPressed(3);
        const QString finished = "border-radius: 10px;" + window->board().looks.finished.bgStyle;
        press("c");
        QCOMPARE(sheet("r3bg"), finished);
        QCOMPARE(sheet("bg3"), pressedKey);
        release("c");
        QCOMPARE(sheet("r3bg"), finished);
        QCOMPARE(sheet("r3"), " color: white; " + font);
        QCOMPARE(sheet("r3_2"), "color: white;" + font);
    }

    // The marks of the home row go with f, F, j and J, always as lowercase letters.
    void homeRowMarks()
    {
        window->board().looks.key.lowerTextStyle = "color: red;";
        window->board().looks.key.upperTextStyle = "color: green;";
        for (int number : {6, 32}) {
            find("underScoreLeft")->setStyleSheet({});
            window->keyFeedback().changeColorBack(number);
            QCOMPARE(sheet("underScoreLeft"), "color: red;" + font);
        }
        for (int number : {10, 36}) {
            find("underScoreRight")->setStyleSheet({});
            window->keyFeedback().changeColorBack(number);
            QCOMPARE(sheet("underScoreRight"), "color: red;" + font);
        }
    }

    void keysWithPictures()
    {
        ImageStates &images = window->board().images;
        images.keypress.on = "1";
        press("e");
        QVERIFY(shown("img5"));
        QCOMPARE(find("img5")->movie(), &images.keypress.movie);
        release("e");
        QVERIFY(!shown("img5"));
        images.keys.on = "1";
        type("e");
        QVERIFY(shown("img5"));
        QCOMPARE(find("img5")->movie(), &images.keys.movie);
    }

    // While a character bursts in a Random game its picture stays away; "a" looks at the
    // flag of "b", and putting back "A" leaves the picture alone.
    void picturesOfBurstingKeys()
    {
        window->board().images.keys.on = "1";
        game().randomFlagList[0] = true;
        window->keyFeedback().changeColorBack(1);
        QVERIFY(shown("img1"));
        game().randomFlagList[1] = true;
        window->keyFeedback().changeColorBack(1);
        QVERIFY(!shown("img1"));
        window->keyFeedback().changeColorBack(27);
        QVERIFY(!shown("img1"));
        window->keyFeedback().changeColorBack(28);
        QVERIFY(shown("img2"));
    }

    void sounds_data()
    {
        QTest::addColumn<bool>("effect");
        QTest::addColumn<bool>("fade");
        QTest::addColumn<bool>("strict");
        QTest::addColumn<bool>("found");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("silent");
        QTest::newRow("plain") << false << false << false << false << "a" << false;
        QTest::newRow("effect, target, strict") << true << false << true << false << "a" << true;
        QTest::newRow("effect, target, soft") << true << false << false << false << "a" << false;
        QTest::newRow("effect, other key, strict")
            << true << false << true << false << "b" << false;
        QTest::newRow("effect, found") << true << false << false << true << "b" << true;
        QTest::newRow("fade, found") << false << true << false << true << "b" << true;
        QTest::newRow("fade, not found") << false << true << false << false << "b" << false;
        QTest::newRow("no effect, found") << false << false << false << true << "b" << false;
    }
    void sounds()
    {
        QFETCH(bool, effect);
        QFETCH(bool, fade);
        QFETCH(bool, strict);
        QFETCH(bool, found);
        QFETCH(QString, typed);
        QFETCH(bool, silent);
        click(strict ? "strict" : "soft");
        find<QLineEdit>("leMatch")->setText("a");
        window->board().sounds.keyAudio = "my.wav";
        game().kestrixKeyboardOn = effect;
        game().fade = fade ? GameState::Fade::Out : GameState::Fade::None;
        if (found)
            game().setKeyPressed(2);
        press(typed);
        QCOMPARE(played, QStringList{silent ? ":/new/prefix1/silence.wav" : "my.wav"});
    }

    void strayKeysAreHarmless()
    {
        click("strict");
        click("start");
        for (int code : {0, 31, 94 + 32, 127, 200, 0x1000000, int(Qt::Key_Tab), int(Qt::Key_Escape),
                         int(Qt::Key_Return), int(Qt::Key_F1), int(Qt::Key_unknown), -1}) {
            QKeyEvent down(QEvent::KeyPress, code, Qt::NoModifier);
            QKeyEvent up(QEvent::KeyRelease, code, Qt::NoModifier);
            QCoreApplication::sendEvent(window.get(), &down);
            QCoreApplication::sendEvent(window.get(), &up);
        }
        QVERIFY(text("leUser") == "~" || text("leUser").isEmpty());
        for (int number : {0, -1, 95, 1000}) {
            window->keyFeedback().key(number);
            window->keyFeedback().changeColorBack(number);
        }
    }
};

QTEST_MAIN(TestInput)
#include "tst_input.moc"
