#include "window.h"

static const QString lit =
    "border-radius: 10px;background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
    "stop: 0 black, stop: .5  black);";
static const QString pressedKey =
    lit + "border-style:none; border-width:0px;  border-color: transparent;";
static const QString font = "font-family: Calibri;";
static const QString atRest = "color: white;" + font;

class TestInput : public WindowTest
{
    Q_OBJECT

    void prepare() override
    {
        // Told apart, so that a mix-up of the two cases cannot pass.
        window->wardrobe().looks.keypress.upperTextStyle = "color: #010101;";
        window->wardrobe().looks.keypress.lowerTextStyle = "color: #020202;";
    }

private slots:
    void everyCharacterLightsItsKeyAndCell()
    {
        const QString characters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                   "`1234567890-=~!@#$%^&*()_+[]\\;',./{}|:\"<>?";
        for (int k = 0; k < 94; ++k) {
            const QString c = characters.mid(k, 1);
            const bool upper = stroke(c).modifiers == Qt::ShiftModifier && c != "Z";
            const QString litText = (upper ? "color: #010101;" : "color: #020202;") + font;
            const QString letter = QString("r%1").arg(k + 1);
            const int number = k <= 25 ? k + 1 : k <= 64 ? k - 25 : k <= 85 ? k - 38 : k - 46;
            const QString cap = QString("bg%1").arg(number);
            played.clear();
            press(c);
            QCOMPARE(c + sheet(letter), c + litText);
            QCOMPARE(c + sheet(letter + "_2"), c + litText);
            QCOMPARE(c + sheet(cap), c + pressedKey);
            QCOMPARE(text(letter), c);
            QCOMPARE(played, QStringList{":/new/prefix1/silence.wav"});

            release(c);
            QCOMPARE(c + sheet(letter), c + atRest);
            QCOMPARE(c + sheet(cap), c + lit);
            // Nothing else was touched for good: both halves of every cap are at rest.
            for (const QLabel *half : qAsConst(window->furniture().widgets.lowerKeyList))
                QCOMPARE(c + half->styleSheet(), c + atRest);
        }
    }

    // Where Shift and AltGr give other characters than here, and go up before the key.
    void releasedAfterItsModifier_data()
    {
        for (const char *column : {"down", "up", "modifier"})
            QTest::addColumn<int>(column);
        row("German, Shift and 7", int(Qt::Key_Slash), int(Qt::Key_7), int(Qt::ShiftModifier));
        row("German, AltGr and Q", int(Qt::Key_At), int(Qt::Key_Q), int(Qt::GroupSwitchModifier));
        row("French, Shift and &", int(Qt::Key_1), int(Qt::Key_Ampersand), int(Qt::ShiftModifier));
        row("no character below", int(Qt::Key_BracketLeft), int(Qt::Key_Adiaeresis),
            int(Qt::GroupSwitchModifier));
    }
    void releasedAfterItsModifier()
    {
        QFETCH(int, down);
        QFETCH(int, up);
        QFETCH(int, modifier);
        const int cap = Keys::cap(Keys::fromCode(down, false));
        const auto look = [this, cap] { return sheet(QString("bg%1").arg(cap)); };
        constexpr quint32 scanCode = 16;
        QKeyEvent press(QEvent::KeyPress, down, Qt::KeyboardModifiers(modifier), scanCode, 0, 0);
        QKeyEvent other(QEvent::KeyRelease, up, Qt::NoModifier, scanCode + 1, 0, 0);
        QKeyEvent release(QEvent::KeyRelease, up, Qt::NoModifier, scanCode, 0, 0);
        QCOMPARE(look(), lit);
        QCoreApplication::sendEvent(window.get(), &press);
        QCOMPARE(look(), pressedKey);
        QCoreApplication::sendEvent(window.get(), &other);
        QVERIFY(look() == pressedKey || Keys::cap(Keys::fromCode(up, false)) == cap);
        QCoreApplication::sendEvent(window.get(), &release);
        QCOMPARE(look(), lit);
    }

    void modifiers()
    {
        click("start");
        QKeyEvent capsLock(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "A");
        QCoreApplication::sendEvent(window.get(), &capsLock);
        QCOMPARE(text("leUser"), QString("a"));
        const Qt::KeyboardModifiers states[] = {Qt::ShiftModifier, Qt::NoModifier,
                                                Qt::ControlModifier | Qt::ShiftModifier,
                                                Qt::ShiftModifier | Qt::KeypadModifier};
        for (const auto held : states) {
            find<QLineEdit>("leUser")->clear();
            QTest::keyPress(window.get(), Qt::Key_A, held);
            QVERIFY2(text("leUser") == (held == Qt::ShiftModifier ? "A" : "a"),
                     qPrintable(QString::number(held, 16)));
        }
    }

    void letterNumber()
    {
        // Typed and shown; what is no letter leaves the number as it was.
        for (const QString &step : QString("7 a1 A1 z26 Z26 M13 ?13 [13").split(' ')) {
            type(step.left(1));
            const QString label = step == "7" ? "" : "Letter-number: ";
            QCOMPARE(text("letterOfAlphabet2"), label + step.mid(1));
        }
    }

    void outsideAGameNothingIsWrittenOrJudged()
    {
        type("a");
        space();
        QVERIFY(text("leUser").isEmpty() && game().correctCount + game().incorrectCount == 0);
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
        QCOMPARE(sheet("r2_2"), atRest);
        QCOMPARE(sheet("r28_2"), atRest);
    }

    void flashGoesBackByItself()
    {
        game().keyFlashDelay = 30;
        click("keyFlash");
        press("d");
        release("d");
        QCOMPARE(sheet("r4_2"), "color: #020202;" + font);
        press("e"); // held down
        QTRY_COMPARE(sheet("r4_2"), atRest);
        QTRY_COMPARE(sheet("r5_2"), atRest);
    }

    void flashChosenWhileAKeyIsHeldLeavesItNotLit()
    {
        press("d");
        click("keyFlash");
        release("d");
        QCOMPARE(sheet("r4_2"), atRest);
        click("keyConstant");
        press("D"); // and its release goes astray
        click("keyFlash");
        type("d");
        QCOMPARE(sheet("r30_2"), atRest);
    }

    void finishedKeyKeepsItsCellWhilePressed()
    {
        game().setKeyPressed(3);
        const QString finished = "border-radius: 10px;" + window->wardrobe().looks.finished.bgStyle;
        press("c");
        QCOMPARE(sheet("r3bg"), finished);
        QCOMPARE(sheet("bg3"), pressedKey);
        release("c");
        QCOMPARE(sheet("r3bg"), finished);
    }

    void sounds()
    {
        // The target is "a"; Effect, faDe, Strict, "b" Found, expected Quiet, key typed.
        for (const QString &row : QString("ESQa EFQb DFQb a Ea ESb Db Fb").split(' ')) {
            open();
            click(row.contains('S') ? "strict" : "soft");
            find<QLineEdit>("leMatch")->setText("a");
            window->wardrobe().sounds.keyAudio = "my.wav";
            game().kestrixKeyboardOn = row.contains('E');
            game().fade = row.contains('D') ? GameState::Fade::Out : GameState::Fade::None;
            if (row.contains('F'))
                game().setKeyPressed(2);
            press(row.right(1));
            const QString sound = row.contains('Q') ? ":/new/prefix1/silence.wav" : "my.wav";
            QCOMPARE(row + played.join(' '), row + sound);
        }
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
