#include "themefile.h"
#include "window.h"

#include <QComboBox>
#include <QTemporaryDir>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

// Looks that are saved to files, read from them, and ready-made.
class TestThemes : public WindowTest
{
    Q_OBJECT

    QTemporaryDir folder;

    QString path(const QString &name) const { return folder.filePath(name); }
    static QStringList linesOf(const QString &file)
    {
        QFile f(file);
        return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()).split('\n')
                                           : QStringList();
    }
    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile f(path(name));
        QVERIFY(f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size());
    }
    static void swallow(QtMsgType, const QMessageLogContext &, const QString &) {}

    // The text fields of a look by the words that the lines below use.
    QString *field(const QString &name) const
    {
        Looks &l = window->board().looks;
        PaintTables &p = window->board().paint;
        const QHash<QString, QString *> single{{"finishedText", &l.finishedTextStyle},
                                               {"matchText", &l.matchTextStyle},
                                               {"userText", &l.userTextStyle},
                                               {"lowerFont", &l.lowerFontStyle},
                                               {"upperFont", &l.upperFontStyle},
                                               {"lines.start", &l.lineHigh.horizontalStart},
                                               {"lines.end", &l.lineHigh.horizontalEnd},
                                               {"lines.stop", &l.lineHigh.gradStop},
                                               {"lines.endHex", &l.lineHigh.horizontalEndHex},
                                               {"lines.startHex", &l.lineHigh.horizontalStartHex},
                                               {"linesV.endHex", &l.lineHigh.verticalEndHex},
                                               {"linesV.startHex", &l.lineHigh.verticalStartHex},
                                               {"english", &p.parts[PaintTables::English].text}};
        if (single.contains(name))
            return single[name];
        const QHash<QString, Look *> looks{{"key", &l.key},
                                           {"keypress", &l.keypress},
                                           {"mouseover", &l.mouseover},
                                           {"highlight", &l.highlight},
                                           {"finished", &l.finished},
                                           {"wallpaper", &l.wallpaper},
                                           {"rainbow", &l.rainbow},
                                           {"gamePlay", &l.gamePlay}};
        const QHash<QString, KeyLook *> keyLooks{{"key", &l.key},
                                                 {"keypress", &l.keypress},
                                                 {"mouseover", &l.mouseover},
                                                 {"highlight", &l.highlight}};
        const QString look = name.section('.', 0, 0), part = name.section('.', 1);
        if (part == "upper")
            return &keyLooks[look]->upperTextStyle;
        if (part == "lower")
            return &keyLooks[look]->lowerTextStyle;
        const QHash<QString, QString Look::*> parts{{"start", &Look::bgStart},
                                                    {"end", &Look::bgEnd},
                                                    {"startHex", &Look::bgStartHex},
                                                    {"endHex", &Look::bgEndHex},
                                                    {"bStart", &Look::borderStart},
                                                    {"bEnd", &Look::borderEnd},
                                                    {"bStartHex", &Look::borderStartHex},
                                                    {"bEndHex", &Look::borderEndHex},
                                                    {"stop", &Look::gradStop},
                                                    {"width", &Look::borderWidth},
                                                    {"bg", &Look::bgStyle},
                                                    {"border", &Look::borderStyle}};
        return &(looks[look]->*parts[part]);
    }

    void prepare() override { window->options(); }

private slots:
    void keyboardLines()
    {
        // From line 3 on; a number stands for a line that only the file has.
        const QStringList names =
            QString("key.start key.end keypress.start keypress.end mouseover.start mouseover.end "
                    "highlight.start highlight.end finished.start finished.end lines.start "
                    "lines.end wallpaper.start wallpaper.end rainbow.start rainbow.end "
                    "gamePlay.start gamePlay.end key.bEnd keypress.bEnd mouseover.bEnd "
                    "highlight.bEnd rainbow.bEnd gamePlay.bEnd key.bStart keypress.bStart "
                    "mouseover.bStart highlight.bStart rainbow.bStart gamePlay.bStart key.stop "
                    "keypress.stop mouseover.stop highlight.stop finished.stop lines.stop "
                    "wallpaper.stop rainbow.stop gamePlay.stop key.bg keypress.bg mouseover.bg "
                    "highlight.bg finished.bg key.width keypress.width mouseover.width "
                    "rainbow.width key.upper key.lower key.upper keypress.upper keypress.lower "
                    "mouseover.upper mouseover.lower finishedText highlight.lower "
                    "highlight.upper key.border keypress.border mouseover.border "
                    "highlight.border wallpaper.border wallpaper.bg 3 1 2 1 5 4 1 1 7 8 5 5 5 "
                    "5 5 9 key.endHex key.startHex key.bEndHex key.bStartHex keypress.endHex "
                    "keypress.startHex keypress.bEndHex keypress.bStartHex mouseover.endHex "
                    "mouseover.startHex mouseover.bEndHex mouseover.bStartHex highlight.endHex "
                    "highlight.startHex highlight.bEndHex highlight.bStartHex finished.endHex "
                    "finished.startHex wallpaper.bEndHex wallpaper.bStartHex lines.endHex "
                    "lines.startHex linesV.endHex linesV.startHex wallpaper.endHex "
                    "wallpaper.startHex white white rainbow.endHex rainbow.startHex "
                    "rainbow.bEndHex rainbow.bStartHex gamePlay.endHex gamePlay.startHex "
                    "gamePlay.bEndHex gamePlay.bStartHex matchText gamePlay.border gamePlay.bg "
                    "lowerFont upperFont - - userText")
                .split(' ');
        QCOMPARE(names.size(), 124);
        Looks &looks = window->board().looks;
        find<QSlider>("hoSlider1")->setValue(1); // of the background, which is chosen
        looks.key.borderShape = 3;
        looks.mouseover.borderShape = 2;
        looks.key.bgShape = 5;
        looks.keypress.bgShape = 4;
        looks.key.bgStopPos = 7;
        looks.keypress.bgStopPos = 8;
        looks.highlight.borderStopPos = 9;
        for (const QString &name : names) {
            if (name.size() > 5)
                *field(name) = name;
        }
        answer("saveKeyboard", path("k.txt"));
        const QStringList lines = linesOf(path("k.txt"));
        QCOMPARE(lines.size(), 127); // the last one ends in a line break
        QCOMPARE(lines.mid(0, 2).join(""), QString("00"));
        for (int i = 0; i < names.size(); ++i) {
            if (names[i] != "-")
                QCOMPARE(QString::number(i + 3) + lines[i + 2], QString::number(i + 3) + names[i]);
        }
        QCOMPARE(lines[123], find<QComboBox>("fontComboBoxLowercase")->currentText());
    }

    void paintLines()
    {
        PaintTables &paint = window->board().paint;
        for (int i = 0; i < 94; ++i)
            paint.paintTextStyle[i] = QString("t%1").arg(i);
        for (int i = 0; i < 9; ++i)
            paint.paintExtraTextStyle[i] = QString("e%1").arg(i);
        for (int i = 0; i < 54; ++i) {
            paint.paintKeyBgStyle[i] = QString("b%1").arg(i);
            paint.paintKeyBorderStyle[i] = QString("f%1").arg(i);
        }
        for (const char *name :
             {"key.width", "key.lower", "key.upper", "rainbow.width", "lowerFont", "upperFont"})
            *field(name) = name;
        paint.parts[PaintTables::Upper].on = true;
        paint.parts[PaintTables::Border].on = false;
        paint.parts[PaintTables::Border].text = "1"; // only ever raised
        window->board().looks.rainbow.borderShape = 3;
        window->board().looks.rainbow.bgShape = 0; // leaves its line empty
        window->board().looks.rainbow.bgStopPos = 10;
        answer("savePaint", path("p.txt"));
        const QStringList lines = linesOf(path("p.txt"));
        QCOMPARE(lines.size(), 233);
        const auto line = [&lines](int number) { return lines[number - 1]; };
        QCOMPARE(line(1) + line(2), QString("10"));
        for (int i = 0; i < 94; ++i)
            QCOMPARE(line(3 + i), QString("t%1").arg(i));
        for (int i = 0; i < 7; ++i)
            QCOMPARE(line(97 + i), QString("e%1").arg(i));
        for (int i = 0; i < 54; ++i) {
            QCOMPARE(line(104 + i), QString("b%1").arg(i));
            QCOMPARE(line(158 + i), QString("f%1").arg(i));
        }
        QCOMPARE(lines.mid(211).join('|').section('|', 0, 18),
                 QString("0|1|0|0|1|3||key.width|0|10|5|key.upper|key.upper|key.lower|"
                         "rainbow.width|e7|e8|lowerFont|upperFont"));
    }

    void roundTrip()
    {
        PaintTables &paint = window->board().paint;
        paint.paintTextStyle[26] = "color: red;";
        paint.paintKeyBgStyle[0] = "background-color: lime; ";
        paint.parts[PaintTables::Background].on = paint.parts[PaintTables::Upper].on = paint.parts[PaintTables::English].on = true;
        answer("savePaint", path("mine.txt"));
        paint.paintKeyBgStyle[0] = "background-color: black; ";
        paint.parts[PaintTables::Background].on = paint.parts[PaintTables::Upper].on = false;
        answer("openPaint", path("mine.txt"));
        QCOMPARE(text("paintTheme"), QString("mine"));
        QVERIFY(shown("paintTheme") && shown("paintTheme_2") && !shown("paintTheme_3"));
        QVERIFY(paint.parts[PaintTables::Background].on && paint.parts[PaintTables::Upper].on && paint.parts[PaintTables::English].on);
        QVERIFY(sheet("bg1").contains("lime") && sheet("r1bg").contains("lime"));
        QVERIFY(sheet("r27_2").startsWith("color: red;"));
        QCOMPARE(window->board().looks.key.bgStyle, QString("background-color: lime; "));

        answer("saveKeyboard", path("whole.txt"));
        window->board().looks.key.upperTextStyle = "color: pink;";
        answer("openKeyboard", path("whole.txt"));
        QVERIFY(shown("keyboardTheme") && !shown("paintTheme") && text("paintTheme").isEmpty());
        QVERIFY(sheet("r27_2").startsWith("color: white;"));
        answer("openKeyboard", QString()); // Cancel shows the last name
        QCOMPARE(text("keyboardTheme"), QString("whole"));
    }

    // Both kinds of file name the fonts in the same two fields, which Cancel applies once more.
    void fontsAreShared()
    {
        const auto lower = [this] {
            return find<QComboBox>("fontComboBoxLowercase")->currentText();
        };
        write("paint.txt", "1\n0\n" + QByteArray("\n").repeated(228) + "Curlz\nCurlz\n");
        write("keyboard.txt", "0\n0\n" + QByteArray("\n").repeated(121) + "Elsewhere\n\n");
        answer("openPaint", path("paint.txt"));
        QCOMPARE(lower(), QString("Curlz"));
        answer("openKeyboard", path("keyboard.txt"));
        QCOMPARE(lower(), QString("Elsewhere"));
        answer("openPaint", QString());
        QCOMPARE(lower(), QString("Elsewhere"));
    }

    // Only a label says so, and the marker stays.
    void wrongKind()
    {
        qInstallMessageHandler(swallow); // Qt complains of colors that became key styles
        answer("saveKeyboard", path("other.txt"));
        answer("openPaint", path("other.txt"));
        QVERIFY(shown("paintTheme_3"));
        QCOMPARE(text("paintTheme_3"), QString("This is not a Paint theme"));
        answer("savePaint", path("refused.txt"));
        QCOMPARE(linesOf(path("refused.txt"))[0], QString("0"));
        write("foreign.txt", "0\n7\n");
        answer("openKeyboard", path("foreign.txt"));
        QCOMPARE(text("keyboardTheme_3"), QString("This is not an English Theme."));
        QCOMPARE(window->board().looks.key.bgStyle.isEmpty(), true); // past the end
    }

    void badFiles()
    {
        QVERIFY(::mkfifo(path("pipe.txt").toUtf8().constData(), 0600) == 0);
        QDir(folder.path()).mkdir("folder.txt");
        write("empty.txt", {});
        write("long.txt", QByteArray(3000000, 'x'));
        const char binary[] = "1\n0\n\0\xff\xfe;{}}{\"'/*\n";
        write("binary.txt", QByteArray(binary, sizeof binary - 1).repeated(2000));
        const QByteArray reaching = "border-image: url(" + path("pipe.txt").toUtf8() + ");\n" +
                                    "background-image: URL(/dev/zero);\n" +
                                    "qproperty-windowTitle: 'x';\nfont-size: 999999999px;\n";
        write("reaching.txt", "1\n0\n" + reaching.repeated(60));
        qInstallMessageHandler(swallow); // Qt complains of what it cannot parse
        for (const char *name : {"pipe.txt", "folder.txt", "missing.txt", "empty.txt", "long.txt",
                                 "binary.txt", "reaching.txt"}) {
            for (const char *button : {"openPaint", "openKeyboard"})
                answer(button, path(name));
        }
        for (const QLabel *label : window->findChildren<QLabel *>()) {
            for (const char *word : {"url(/dev", "URL", "pipe", "qproperty-w", "999999999"})
                QVERIFY2(!label->styleSheet().contains(word), word);
        }
        press("a");
    }

    // The disk is full in the middle of it.
    void failedSaveKeepsTheOldFile()
    {
        write("old.txt", "precious");
        QString line(1000, 'x');
        const ThemeFile::Fields fields(500, {&line, StyleText::Kind::Plain});
        rlimit before, small;
        getrlimit(RLIMIT_FSIZE, &before);
        small = before;
        small.rlim_cur = 4096;
        const auto handler = signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &small);
        const bool written = ThemeFile::write(path("old.txt"), fields);
        setrlimit(RLIMIT_FSIZE, &before);
        signal(SIGXFSZ, handler);
        QVERIFY(!written);
        QCOMPARE(linesOf(path("old.txt")).join(""), QString("precious"));
        QVERIFY(ThemeFile::write(path("old.txt"), fields));
        QCOMPARE(linesOf(path("old.txt")).size(), 501);
    }

    // Opening goes by the file alone, not by what stands in a panel.
    void sameFromAnyStateOfTheControls_data()
    {
        QTest::addColumn<QString>("clicks");
        QTest::newRow("at rest") << "";
        QTest::newRow("borders") << "borderLeft borderCenter borderRight borderHi borderWallpaper "
                                    "borderGamePlay yourEntryCm lhHorizontalRadio";
        QTest::newRow("paint of letters") << "rainbowUppercase rainbowLowercase";
        QTest::newRow("paint of borders") << "rainbowBorder rainbowBoth";
    }
    void sameFromAnyStateOfTheControls()
    {
        QFETCH(QString, clicks);
        Looks &looks = window->board().looks;
        const auto slide = [this](const char *name, int value) {
            find<QSlider>(name)->setValue(value);
        };
        // A look with different shapes, stops and widths for background and border.
        looks.key.bgStart = "red";
        looks.mouseover.bgEnd = "lime";
        slide("hoSlider1", 3);
        slide("slider1", 0);
        find<QSpinBox>("spinBox1")->setValue(12);
        find<QAbstractButton>("borderLeft")->click();
        slide("hoSlider1", 0);
        slide("hoSlider6", 2);
        slide("hoSlider8", 0);
        find<QSlider>("hoSlider3")->setValue(4);
        find<QComboBox>("fontComboBoxUppercase")->setCurrentText("Liberation Serif");
        looks.key.upperTextStyle = "color: rgba(1, 2, 3, 255 ) ;";
        PaintTables &paint = window->board().paint;
        paint.paintKeyBgStyle[4] = "background-color: rgba(9, 9, 9, 255 ) ; ";
        paint.parts[PaintTables::Background].on = true;
        answer("saveKeyboard", path("first.txt"));
        answer("savePaint", path("firstPaint.txt"));
        QVERIFY(linesOf(path("firstPaint.txt"))[104].contains("red")); // painted or not

        open();
        for (const QString &button : clicks.split(' ', Qt::SkipEmptyParts))
            find<QAbstractButton>(button)->click();
        answer("openKeyboard", path("first.txt"));
        answer("saveKeyboard", path("second.txt"));
        QCOMPARE(linesOf(path("second.txt")), linesOf(path("first.txt")));
        const QString key = window->board().looks.key.bgStyle;
        QVERIFY(sheet("bg5").contains(key) && sheet("r5bg").contains(key));
        QVERIFY(sheet("r27_2").contains("1, 2, 3") && sheet("r30").contains("1, 2, 3"));
        QVERIFY(sheet("h1").contains(window->board().looks.lineHigh.horizontalStyle));
        const bool border = clicks.contains("borderLeft");
        QCOMPARE(find<QSlider>("hoSlider1")->value(), border ? 0 : 3);
        QCOMPARE(find<QSpinBox>("spinBox1")->value(), 12);

        answer("openPaint", path("firstPaint.txt"));
        answer("savePaint", path("secondPaint.txt"));
        QCOMPARE(linesOf(path("secondPaint.txt")), linesOf(path("firstPaint.txt")));
        QVERIFY(sheet("bg5").contains("9, 9, 9") && sheet("bg6").contains("red"));

        // Another Keyboard file wipes the paint, which does not come back under the mouse.
        answer("openKeyboard", path("first.txt"));
        QEvent enter(QEvent::Enter), leave(QEvent::Leave);
        QApplication::sendEvent(find("shield5"), &enter);
        QApplication::sendEvent(find("shield5"), &leave);
        QVERIFY(!sheet("bg5").contains("9, 9, 9"));
    }

    void cancelChangesNothing()
    {
        find<QAbstractButton>("shadowKeys")->click();
        window->board().looks.key.bgEnd = "blue";
        find<QSlider>("hoSlider1")->setValue(0);
        answer("openPaint", QString());
        answer("openKeyboard", QString());
        answer("savePaint", QString());
        QVERIFY(sheet("bg9").contains("blue") && find("bg1")->graphicsEffect());
    }

    // A line with a NUL byte is empty, and only that one.
    void oneBadByte()
    {
        answer("saveKeyboard", path("good.txt"));
        QStringList lines = linesOf(path("good.txt"));
        lines[50] = QString("color: red;") + QChar::Null; // of the shifted, which comes again
        lines[51] = QString("color: lime;") + QChar::Null;
        lines[54] = "color: #112233;";
        write("nul.txt", lines.join('\n').toUtf8());
        answer("openKeyboard", path("nul.txt"));
        const Looks &looks = window->board().looks;
        QCOMPARE(looks.key.lowerTextStyle, QString());
        QCOMPARE(looks.key.upperTextStyle, QString("color: white;"));
        QCOMPARE(looks.keypress.lowerTextStyle, QString("color: #112233;"));
    }

    // A theme that is cut anywhere is put on without a word from Qt.
    void cutShort()
    {
        answer("saveKeyboard", path("whole.txt"));
        const QStringList lines = linesOf(path("whole.txt"));
        for (int kept = 0; kept < 126; kept += 3) {
            write("cut.txt", lines.mid(0, kept).join('\n').toUtf8());
            answer("openKeyboard", path("cut.txt"));
            window->grab();
        }
    }

    void saving()
    {
        // The ending is added, and a long name is told in the tool tip.
        const QString name = "a name of a look that is far too long for its place in the panel";
        answer("savePaint", path(name));
        QVERIFY(QFile::exists(path(name + ".txt")));
        answer("openPaint", path(name + ".txt"));
        QVERIFY(text("paintTheme").endsWith(QChar(0x2026)));
        QCOMPARE(find("paintTheme")->toolTip(), name);
        // What is no regular file stays what it is.
        QVERIFY(::mkfifo(path("other pipe.txt").toUtf8().constData(), 0600) == 0);
        QString line;
        const ThemeFile::Fields fields{{&line, StyleText::Kind::Plain}};
        QVERIFY(!ThemeFile::write(path("other pipe.txt"), fields));
        QVERIFY(!ThemeFile::write("/dev/null", fields));
        QVERIFY(!QFileInfo(path("other pipe.txt")).isFile() && !QFileInfo("/dev/null").isFile());
    }

    void failedSaveSaysSo()
    {
        QString line;
        ThemeFile::save("/proc/none.txt", {{&line, StyleText::Kind::Plain}},
                        {{find("paintTheme"), find("paintTheme_2"), find("paintTheme_3")},
                         {},
                         line,
                         "",
                         ""});
        QVERIFY(shown("paintTheme_3"));
        QCOMPARE(text("paintTheme_3"), QString("This file cannot be saved here"));
        answer("savePaint", path("good.txt"));
        QVERIFY(!shown("paintTheme_3"));
    }

    void readyMade()
    {
        Looks &looks = window->board().looks;
        PaintTables &paint = window->board().paint;
        paint.parts[PaintTables::Background].on = paint.parts[PaintTables::Border].on = true;
        click("menuColorMadness");
        QTest::mouseClick(find("labelTab10"), Qt::LeftButton);
        QTest::mouseClick(find("theme1"), Qt::LeftButton);
        QVERIFY(!paint.parts[PaintTables::Background].on && !paint.parts[PaintTables::Border].on);
        QCOMPARE(looks.key.bgStyle, QString("background-color: qlineargradient(x1: 0, y1: 0, x2: "
                                            "0, y2: 1, stop: 0 #ffd700, stop: 1  black);"));
        QVERIFY(looks.key.borderStyle.startsWith(
            "border-style:solid; border-width:10px; border-color: qradialgradient(spread:repeat"));
        QVERIFY(looks.key.borderStyle.contains("stop: .8  black"));
        QVERIFY(sheet("bg47").contains("#ffd700") && sheet("bgSpacebar").contains("#ffd700"));
        QCOMPARE(sheet("r94bg"), looks.barRadiusStyle + looks.key.bgStyle);
        QVERIFY(sheet("leMatchBg").contains("stop: 0 transparent"));
        QTest::mouseClick(find("labelTab1"), Qt::LeftButton);
        click("borderLeft");
        QCOMPARE(find<QSlider>("hoSlider1")->value(), 5);
        QTest::mouseClick(find("labelTab10"), Qt::LeftButton);
        QTest::mouseClick(find("theme3"), Qt::LeftButton);
        QVERIFY(sheet("wallpaper").contains("stop: 0 #00557f, stop: .3  #34004f"));
        QVERIFY(sheet("r1_2").startsWith("color: #00557f;"));
        QVERIFY(sheet("r27").startsWith(" color: #65307f;"));
    }
};

QTEST_MAIN(TestThemes)
#include "tst_themes.moc"
