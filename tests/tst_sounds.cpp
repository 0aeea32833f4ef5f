#include "soundfile.h"
#include "window.h"

// Files that someone chose as a sound, and what becomes of them.
class TestSounds : public WindowTest
{
    Q_OBJECT

    const Sounds &sounds() { return window->wardrobe().sounds; }

    static QByteArray hex(const char *digits) { return QByteArray::fromHex(digits); }
    static QByteArray riff(const QByteArray &chunks)
    {
        QByteArray size(4, 0);
        qToLittleEndian(quint32(4 + chunks.size()), size.data());
        return "RIFF" + size + "WAVE" + chunks;
    }
    // A fmt chunk is written as: kind, channels, rate, bytes a second, bytes a frame, bits.
    static QByteArray mono()
    {
        return "fmt " + hex("10000000 0100 0100 22560000 44ac0000 0200 1000");
    }
    // A tenth of a second, in a data chunk of 4410 bytes.
    static QByteArray tenth() { return "data" + hex("3a110000") + QByteArray(4410, 1); }
    static QByteArray good() { return riff(mono() + tenth()); }
    static QByteArray with(QByteArray bytes, int at, const QByteArray &other)
    {
        return bytes.replace(at, other.size(), other);
    }

    struct BadFile
    {
        QByteArray name;
        QByteArray bytes;
    };
    static QVector<BadFile> badFiles()
    {
        QVector<BadFile> rows{
            {"empty", ""},
            {"text", "RIFF is a word, and WAVE is another, but this is a poem about the fmt "},
            {"other sizes", with(good(), 0, "RIFX")},
            {"another kind of RIFF", with(good(), 8, "AVI ")},
            {"RIFF promises more", with(good(), 4, hex("5f110000"))},
            {"RIFF promises all there can be", with(good(), 4, hex("ffffffff"))},
            {"fmt promises more", with(good(), 16, hex("00200000"))},
            {"fmt promises all there can be", with(good(), 16, hex("ffffffff"))},
            {"fmt too short",
             riff("fmt " + hex("0e000000 0100 0100 22560000 44ac0000 0200") + tenth())},
            {"data promises one more frame", with(good(), 40, hex("3c110000"))},
            {"data promises much more", with(good(), 40, hex("00000010"))},
            {"data promises all there can be", with(good(), 40, hex("fffffffe"))},
            {"data is empty", riff(mono() + "data" + hex("00000000"))},
            {"data holds half a frame", riff(mono() + "data" + hex("03000000") + "123")},
            {"no data", riff(mono())},
            {"no fmt", riff(tenth())},
            {"data before fmt", riff(tenth() + mono())},
            {"compressed", with(good(), 20, hex("1100"))},
            {"numbers with a point", with(good(), 20, hex("0300"))},
            {"kind told elsewhere", with(good(), 20, hex("feff"))},
            {"no channel", with(good(), 22, hex("0000"))},
            {"six channels", with(good(), 22, hex("0600"))},
            {"no frame a second", with(good(), 24, hex("00000000"))},
            {"too many frames a second", with(good(), 24, hex("ffffffff"))},
            {"no bits", with(good(), 34, hex("0000"))},
            {"twelve bits", with(good(), 34, hex("0c00"))},
        };
        for (const int length : {3, 11, 12, 17, 20, 30, 36, 42, 44, 1000, 4453})
            rows.append({"cut after " + QByteArray::number(length), good().left(length)});
        for (const int length : {20, 30, 36, 44, 1000}) // and says so, as far as RIFF goes
            rows.append({"only " + QByteArray::number(length), riff(good().mid(12, length))});
        return rows;
    }

    void prepare() override { window->options(); }

private slots:
    void soundsPlay_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        row("16 bits", good());
        row("stereo, 8 bits",
            riff("fmt " + hex("10000000 0100 0200 44ac0000 88580100 0200 0800") + tenth()));
        row("a longer fmt",
            riff("fmt " + hex("12000000 0100 0100 22560000 44ac0000 0200 1000 0000") + tenth()));
        row("notes between", riff(mono() + "LIST" + hex("03000000") + "me!" + QByteArray(1, 0) +
                                  tenth() + "more" + hex("02000000") + "me"));
        row("something behind", good() + "a tail of other bytes");
        row("a frame of the wrong size", with(good(), 32, hex("0000")));
    }
    void soundsPlay()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(isSound(saved("sound.wav", bytes)));
        QVERIFY(plainSound(path("sound.wav")).endsWith(tenth()));
    }

    void plainSoundsHoldNothingElse()
    {
        const QString notes = saved(
            "notes.wav", riff("note" + hex("02000000") + "me" + mono() + "fact" + hex("01000000") +
                              "1" + QByteArray(1, 0) + "data" + hex("04000000") + "abcdefgh"));
        QCOMPARE(plainSound(notes), "RIFF" + hex("28000000") + "WAVEfmt " +
                                        hex("10000000 0100 0100 22560000 44ac0000 0200 1000") +
                                        "data" + hex("04000000") + "abcd");
    }

    void othersDoNot()
    {
        for (const BadFile &file : badFiles()) {
            QVERIFY2(!isSound(saved("other.wav", file.bytes)), file.name.constData());
            QVERIFY2(plainSound(path("other.wav")).isEmpty(), file.name.constData());
        }
    }

    void norWhatIsNoFile()
    {
        QFile large(saved("large.wav", good()));
        QVERIFY(large.resize(32 * 1024 * 1024 + 1));
        for (const QString &each : {pipe("pipe.wav"), large.fileName(), folder.path(),
                                    path("missing.wav"), QString("/dev/zero"), QString()}) {
            QVERIFY2(!isSound(each), qPrintable(each));
            QVERIFY2(plainSound(each).isEmpty(), qPrintable(each));
        }
        QVERIFY(isSound(":/new/prefix1/bark.wav"));
        QVERIFY(large.resize(32 * 1024 * 1024) && isSound(large.fileName()));
    }

    // More files than a player keeps, so that it has to forget some as well.
    void badFilesHurtNothing()
    {
        const auto objects = [] { return qApp->findChildren<QObject *>().size(); };
        // A player loads a copy of each file that is a sound.
        qputenv("TMPDIR", folder.path().toUtf8());
        const auto copies = [this] {
            return QDir(folder.path()).entryList({"kestrix-typing-*"}).size();
        };
        QElapsedTimer time;
        {
            DeviceSoundPlayer player;
            time.start();
            for (int round = 0; round < 2; ++round) {
                int number = 0;
                for (const BadFile &file : badFiles()) {
                    player.play(saved(QString("bad%1.wav").arg(number++), file.bytes));
                    pass(1); // a decoder that complains does so from the event loop
                }
                for (const QString &none :
                     {pipe(QString("pipe%1.wav").arg(round)), folder.path(), QString(),
                      QString("/nowhere.wav"), QString("/dev/zero"), Sounds::silenceAudio()})
                    player.play(none);
            }
            const auto playMany = [&] {
                for (int i = 0; i < 150; ++i)
                    player.play(":/new/prefix1/typewriter.wav");
                return objects();
            };
            const int after = playMany();
            QCOMPARE(playMany(), after); // as many voices as ever
            // Files that are good at first, and then are not.
            for (const QByteArray &bytes : {good(), good().left(1000), good()}) {
                for (int i = 0; i < 8; ++i)
                    player.play(saved(QString("own%1.wav").arg(i), bytes));
                QCOMPARE(copies(), bytes == good() ? 8 : 0);
                pass(20);
            }
            for (int i = 0; i < 8; ++i) // cut short while they may still be read
                saved(QString("own%1.wav").arg(i), good().left(1000));
            pass(20);
        }
        QCOMPARE(copies(), 0);
        qunsetenv("TMPDIR");
        QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    }

    void thePanelsSayWhatIsNoSound_data()
    {
        for (const char *column : {"button", "choice", "refusal", "speaker", "icon"})
            QTest::addColumn<QString>(column);
        row("of keys", "openAudio", "useUploadedAudio", "keyAudioRefusal", "playUploadedAudio",
            "openFolderAudio");
        row("of effects", "openAudioPulse", "applyAudioToPulse", "locatedAudioRefusal",
            "playUploadedAudioPulse", "openFolderAudio_2");
    }
    void thePanelsSayWhatIsNoSound()
    {
        QFETCH(QString, button);
        QFETCH(QString, choice);
        QFETCH(QString, refusal);
        QFETCH(QString, speaker);
        QFETCH(QString, icon);
        const auto sound = [&] {
            return button == "openAudio" ? sounds().keyAudio : sounds().locatedAudio();
        };
        const QString silence = ":/new/prefix1/silence.wav";
        const QString own = saved("own.wav", good());
        const QString other = saved("other.wav", good().left(1000));
        QVERIFY(!shown(refusal));

        click(button == "openAudio" ? "menuAudio" : "menuKestrixKeyboard");
        for (const QString &opener : {button, icon}) {
            answer(opener, own);
            QCOMPARE(sound(), own);
            QVERIFY(!shown(refusal));
            answer(opener, other); // silence, as after Cancel; the good one before is forgotten
            QCOMPARE(sound(), silence);
            QVERIFY(find<QAbstractButton>(choice)->isChecked());
            QVERIFY(find<QAbstractButton>(choice)->isEnabled());
            QVERIFY(shown(refusal));
        }
        hover(speaker);
        QCOMPARE(played.last(), silence);
        answer(button, QString());
        QCOMPARE(sound(), silence);
        QVERIFY(!shown(refusal));
        answer(button, other);
        answer(button, own);
        QCOMPARE(sound(), own);
        QVERIFY(!shown(refusal));
        choose(choice); // a box, and a radio button
        QCOMPARE(sound(), button == "openAudio" ? own : silence);

        // All of it can be read, and it covers no control.
        auto *label = find(refusal);
        QVERIFY(label->heightForWidth(label->width()) <= label->height());
        for (const QWidget *control : label->parentWidget()->findChildren<QWidget *>()) {
            const bool isControl = qobject_cast<const QAbstractButton *>(control) ||
                                   !control->accessibleName().isEmpty();
            QVERIFY2(!isControl || !control->geometry().intersects(label->geometry()),
                     qPrintable(control->objectName()));
        }
    }
};

QTEST_MAIN(TestSounds)
#include "tst_sounds.moc"
