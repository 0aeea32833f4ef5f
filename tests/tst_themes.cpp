#include "themefile.h"
#include "window.h"

#include <QComboBox>
#include <csignal>
#include <sys/resource.h>

// Looks that are saved to files, read from them, and ready-made.
class TestThemes : public WindowTest
{
    Q_OBJECT

    Looks &looks() { return window->wardrobe().looks; }
    PaintTables &paint() { return window->wardrobe().paint; }

    static QStringList linesOf(const QString &file)
    {
        QFile f(file);
        return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()).split('\n')
                                           : QStringList();
    }
    static void swallow(QtMsgType, const QMessageLogContext &, const QString &) {}

    // The fields of a Keyboard theme by their lines, from the third on; null for a line that only
    // the file has. Three parts of a look may come again.
    static QVector<QString *> fieldsByLine(Looks &l)
    {
        QVector<QString *> fields;
        using Part = QString Look::*;
        const auto add = [&fields](const QVector<Part> &parts, const QVector<Look *> &all) {
            for (Look *look : all) {
                for (const Part part : parts)
                    fields << &(look->*part);
            }
        };
        const QVector<Look *> ofKeys{&l.key, &l.keypress, &l.mouseover, &l.highlight};
        const QVector<Look *> bordered = ofKeys + QVector<Look *>{&l.rainbow, &l.gamePlay};
        const QVector<Part> both{&Look::bgStart, &Look::bgEnd};
        const QVector<Part> hex{&Look::bgEndHex, &Look::bgStartHex};
        const QVector<Part> borderHex{&Look::borderEndHex, &Look::borderStartHex};
        add(both, ofKeys + QVector<Look *>{&l.finished});
        fields << &l.lineHigh.horizontalStart << &l.lineHigh.horizontalEnd;
        add(both, {&l.wallpaper, &l.rainbow, &l.gamePlay});
        add({&Look::borderEnd}, bordered);
        add({&Look::borderStart}, bordered);
        add({&Look::gradStop}, ofKeys + QVector<Look *>{&l.finished});
        fields << &l.lineHigh.gradStop;
        add({&Look::gradStop}, {&l.wallpaper, &l.rainbow, &l.gamePlay});
        add({&Look::bgStyle}, ofKeys + QVector<Look *>{&l.finished});
        add({&Look::borderWidth}, {&l.key, &l.keypress, &l.mouseover, &l.rainbow});
        fields << &l.key.upperTextStyle << &l.key.lowerTextStyle << &l.key.upperTextStyle
               << &l.keypress.upperTextStyle << &l.keypress.lowerTextStyle
               << &l.mouseover.upperTextStyle << &l.mouseover.lowerTextStyle << &l.finishedTextStyle
               << &l.highlight.lowerTextStyle << &l.highlight.upperTextStyle;
        add({&Look::borderStyle}, ofKeys + QVector<Look *>{&l.wallpaper});
        fields << &l.wallpaper.bgStyle << QVector<QString *>(16, nullptr);
        add(hex + borderHex, ofKeys);
        add(hex, {&l.finished});
        add(borderHex, {&l.wallpaper});
        fields << &l.lineHigh.horizontalEndHex << &l.lineHigh.horizontalStartHex
               << &l.lineHigh.verticalEndHex << &l.lineHigh.verticalStartHex;
        add(hex, {&l.wallpaper});
        fields << nullptr << nullptr;
        add(hex + borderHex, {&l.rainbow, &l.gamePlay});
        return fields << &l.matchTextStyle << &l.gamePlay.borderStyle << &l.gamePlay.bgStyle
                      << &l.lowerFontStyle << &l.upperFontStyle << nullptr << nullptr
                      << &l.userTextStyle;
    }

    void prepare() override { window->options(); }

private slots:
    void keyboardLines()
    {
        set("hoSlider1", 1); // of the background, which is chosen
        looks().key.borderShape = 3;
        looks().mouseover.borderShape = 2;
        looks().key.bgShape = 5;
        looks().keypress.bgShape = 4;
        looks().key.bgStopPos = 7;
        looks().keypress.bgStopPos = 8;
        looks().highlight.borderStopPos = 9;
        const QVector<QString *> fields = fieldsByLine(looks());
        for (int i = 0; i < fields.size(); ++i) {
            if (fields[i])
                *fields[i] = QString("field %1").arg(i);
        }
        answer("saveKeyboard", path("k.txt"));
        const QStringList lines = linesOf(path("k.txt"));
        QCOMPARE(fields.size(), 124);
        QCOMPARE(lines.size(), 127); // the last one ends in a line break
        QCOMPARE(lines.mid(0, 2).join(""), QString("00"));
        QStringList others;
        for (int i = 0; i < fields.size(); ++i) {
            if (fields[i])
                QCOMPARE(QString::number(i + 3) + lines[i + 2],
                         QString::number(i + 3) + *fields[i]);
            else
                others << lines[i + 2];
        }
        const QString fonts = find<QComboBox>("fontComboBoxLowercase")->currentText() + ' ' +
                              find<QComboBox>("fontComboBoxUppercase")->currentText();
        QCOMPARE(others.join(' '), "3 1 2 1 5 4 1 1 7 8 5 5 5 5 5 9 white white " + fonts);
    }

    void paintLines()
    {
        for (int i = 0; i < 94; ++i)
            paint().paintTextStyle[i] = QString("t%1").arg(i);
        for (int i = 0; i < 9; ++i)
            paint().paintExtraTextStyle[i] = QString("e%1").arg(i);
        for (int i = 0; i < 54; ++i) {
            paint().paintKeyBgStyle[i] = QString("b%1").arg(i);
            paint().paintKeyBorderStyle[i] = QString("f%1").arg(i);
        }
        looks().key.borderWidth = "key width";
        looks().key.lowerTextStyle = "lower";
        looks().key.upperTextStyle = "upper";
        looks().rainbow.borderWidth = "width";
        looks().lowerFontStyle = "lower font";
        looks().upperFontStyle = "upper font";
        paint().parts[PaintTables::Upper].on = true;
        paint().parts[PaintTables::Border].on = false;
        paint().parts[PaintTables::Border].text = "1"; // only ever raised
        looks().rainbow.borderShape = 3;
        looks().rainbow.bgShape = 0; // leaves its line empty
        looks().rainbow.bgStopPos = 10;
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
                 QString("0|1|0|0|1|3||key width|0|10|5|upper|upper|lower|width|e7|e8|lower font|"
                         "upper font"));
    }

    void roundTrip()
    {
        paint().paintTextStyle[26] = "color: red;";
        paint().paintKeyBgStyle[0] = "background-color: lime; ";
        paint().parts[PaintTables::Background].on = paint().parts[PaintTables::Upper].on =
            paint().parts[PaintTables::English].on = true;
        answer("savePaint", path("mine.txt"));
        paint().paintKeyBgStyle[0] = "background-color: black; ";
        paint().parts[PaintTables::Background].on = paint().parts[PaintTables::Upper].on = false;
        choose("shadowKeys");
        answer("openPaint", path("mine.txt"));
        QVERIFY(!find("bg1")->graphicsEffect());
        QCOMPARE(text("paintTheme"), QString("mine"));
        QVERIFY(shown("paintTheme") && shown("paintTheme_2") && !shown("paintTheme_3"));
        QVERIFY(paint().parts[PaintTables::Background].on && paint().parts[PaintTables::Upper].on &&
                paint().parts[PaintTables::English].on);
        QVERIFY(sheet("bg1").contains("lime") && sheet("r1bg").contains("lime"));
        QVERIFY(sheet("r27_2").startsWith("color: red;"));
        QCOMPARE(looks().key.bgStyle, QString("background-color: lime; "));

        answer("saveKeyboard", path("whole.txt"));
        looks().key.upperTextStyle = "color: pink;";
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
        saved("paint.txt", "1\n0\n" + QByteArray("\n").repeated(228) + "Curlz\nCurlz\n");
        saved("keyboard.txt", "0\n0\n" + QByteArray("\n").repeated(121) + "Elsewhere\n\n");
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
        saved("foreign.txt", "0\n7\n");
        answer("openKeyboard", path("foreign.txt"));
        QCOMPARE(text("keyboardTheme_3"), QString("This is not an English Theme."));
        QVERIFY(looks().key.bgStyle.isEmpty()); // past the end
        // Byte order marks, as two editors left them, are no part of the marker.
        saved("marked.txt", QByteArray("\xef\xbb\xbf").repeated(2) + "0\n0\n");
        answer("openKeyboard", path("marked.txt"));
        QVERIFY(!shown("keyboardTheme_3"));
    }

    void badFiles()
    {
        const QByteArray endless = pipe("pipe.txt").toUtf8();
        QDir(folder.path()).mkdir("folder.txt");
        saved("empty.txt", {});
        saved("long.txt", QByteArray(3000000, 'x'));
        const char binary[] = "1\n0\n\0\xff\xfe;{}}{\"'/*\n";
        saved("binary.txt", QByteArray(binary, sizeof binary - 1).repeated(2000));
        const QByteArray reaching = "border-image: url(" + endless + ");\n" +
                                    "background-image: URL(/dev/zero);\n" +
                                    "qproperty-windowTitle: 'x';\nfont-size: 999999999px;\n";
        saved("reaching.txt", "1\n0\n" + reaching.repeated(60));
        qInstallMessageHandler(swallow); // Qt complains of what it cannot parse
        for (const char *name : {"pipe.txt", "folder.txt", "missing.txt", "empty.txt", "long.txt",
                                 "binary.txt", "reaching.txt"}) {
            const bool readable =
                QStringList{"empty.txt", "binary.txt", "reaching.txt"}.contains(name);
            for (const QString kind : {"paint", "keyboard"}) {
                answer(kind == "paint" ? "openPaint" : "openKeyboard", path(name));
                const QString warning = kind + "Theme_3";
                QCOMPARE(shown(warning) && text(warning) == "This file cannot be read", !readable);
                QCOMPARE(text(kind + "Theme") == QString(name).remove(".txt"), readable);
            }
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
        saved("old.txt", "precious");
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
        row("at rest", "");
        row("borders", "borderLeft borderCenter borderRight borderHi borderWallpaper "
                       "borderGamePlay yourEntryCm lhHorizontalRadio");
        row("paint of letters", "rainbowUppercase rainbowLowercase");
        row("paint of borders", "rainbowBorder rainbowBoth");
    }
    void sameFromAnyStateOfTheControls()
    {
        QFETCH(QString, clicks);
        // A look with different shapes, stops and widths for background and border.
        looks().key.bgStart = "red";
        looks().mouseover.bgEnd = "lime";
        set("hoSlider1", 3);
        set("slider1", 0);
        set("spinBox1", 12);
        choose("borderLeft");
        set("hoSlider1", 0);
        set("hoSlider6", 2);
        set("hoSlider8", 0);
        set("hoSlider3", 4);
        find<QComboBox>("fontComboBoxUppercase")->setCurrentText("Liberation Serif");
        looks().key.upperTextStyle = "color: rgba(1, 2, 3, 255 ) ;";
        paint().paintKeyBgStyle[4] = "background-color: rgba(9, 9, 9, 255 ) ; ";
        paint().parts[PaintTables::Background].on = true;
        answer("saveKeyboard", path("first.txt"));
        answer("savePaint", path("firstPaint.txt"));
        const QStringList written = linesOf(path("firstPaint.txt")); // painted or not
        QVERIFY(written[104].contains("red") && written[28].contains("1, 2, 3"));

        open();
        choose(clicks);
        answer("openKeyboard", path("first.txt"));
        answer("saveKeyboard", path("second.txt"));
        QCOMPARE(linesOf(path("second.txt")), linesOf(path("first.txt")));
        const QString key = looks().key.bgStyle;
        QVERIFY(sheet("bg5").contains(key) && sheet("r5bg").contains(key));
        QVERIFY(sheet("r27_2").contains("1, 2, 3") && sheet("r30").contains("1, 2, 3"));
        QVERIFY(sheet("h1").contains(looks().lineHigh.horizontalStyle));
        const bool border = clicks.contains("borderLeft");
        QCOMPARE(value("hoSlider1"), border ? 0 : 3);
        QCOMPARE(value("spinBox1"), 12);

        answer("openPaint", path("firstPaint.txt"));
        answer("savePaint", path("secondPaint.txt"));
        QCOMPARE(linesOf(path("secondPaint.txt")), linesOf(path("firstPaint.txt")));
        QVERIFY(sheet("bg5").contains("9, 9, 9") && sheet("bg6").contains("red"));

        // Another Keyboard file wipes the paint, which does not come back under the mouse.
        answer("openKeyboard", path("first.txt"));
        hover("shield5");
        leave("shield5");
        QVERIFY(!sheet("bg5").contains("9, 9, 9"));
    }

    void cancelChangesNothing()
    {
        choose("shadowKeys");
        looks().key.bgEnd = "blue";
        set("hoSlider1", 0);
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
        saved("nul.txt", lines.join('\n').toUtf8());
        answer("openKeyboard", path("nul.txt"));
        QCOMPARE(looks().key.lowerTextStyle, QString());
        QCOMPARE(looks().key.upperTextStyle, QString("color: white;"));
        QCOMPARE(looks().keypress.lowerTextStyle, QString("color: #112233;"));
    }

    // A theme that is cut anywhere is put on without a word from Qt.
    void cutShort()
    {
        answer("saveKeyboard", path("whole.txt"));
        const QStringList lines = linesOf(path("whole.txt"));
        for (int kept = 0; kept < 126; kept += 3) {
            saved("cut.txt", lines.mid(0, kept).join('\n').toUtf8());
            answer("openKeyboard", path("cut.txt"));
            window->grab();
        }
    }

    void saving()
    {
        // A long name is told in the tool tip.
        const QString name = "a name of a look that is far too long for its place in the panel";
        answer("savePaint", path(name + ".txt"));
        answer("openPaint", path(name + ".txt"));
        QVERIFY(text("paintTheme").endsWith(QChar(0x2026)));
        QCOMPARE(find("paintTheme")->toolTip(), name);
        // What is no regular file stays what it is.
        QString line;
        const ThemeFile::Fields fields{{&line, StyleText::Kind::Plain}};
        QVERIFY(!ThemeFile::write(pipe("other pipe.txt"), fields));
        QVERIFY(!ThemeFile::write("/dev/null", fields));
        QVERIFY(!QFileInfo(path("other pipe.txt")).isFile() && !QFileInfo("/dev/null").isFile());
    }

    void failedSaveSaysSo()
    {
        QString line;
        ThemeFile::save(
            "/proc/none.txt", {{&line, StyleText::Kind::Plain}},
            {{find("paintTheme"), find("paintTheme_2"), find("paintTheme_3")}, {}, line, "", ""});
        QVERIFY(shown("paintTheme_3"));
        QCOMPARE(text("paintTheme_3"), QString("This file cannot be saved here"));
        answer("savePaint", path("good.txt"));
        QVERIFY(!shown("paintTheme_3"));
    }

    void readyMade()
    {
        paint().parts[PaintTables::Background].on = paint().parts[PaintTables::Border].on = true;
        click("menuColorMadness");
        click("labelTab10");
        click("theme1");
        QVERIFY(!paint().parts[PaintTables::Background].on &&
                !paint().parts[PaintTables::Border].on);
        QCOMPARE(looks().key.bgStyle, QString("background-color: qlineargradient(x1: 0, y1: 0, x2: "
                                              "0, y2: 1, stop: 0 #ffd700, stop: 1  black);"));
        QVERIFY(looks().key.borderStyle.startsWith(
            "border-style:solid; border-width:10px; border-color: qradialgradient(spread:repeat"));
        QVERIFY(looks().key.borderStyle.contains("stop: .8  black"));
        QVERIFY(sheet("bg47").contains("#ffd700") && sheet("bgSpacebar").contains("#ffd700"));
        QCOMPARE(sheet("r94bg"), looks().barRadiusStyle + looks().key.bgStyle);
        QVERIFY(sheet("leMatchBg").contains("stop: 0 transparent"));
        click("labelTab1");
        click("borderLeft");
        QCOMPARE(value("hoSlider1"), 5);
        click("labelTab10");
        click("theme2");
        QVERIFY(looks().key.borderStyle.contains("stop: .8  #ffd700"));
        click("theme3");
        QCOMPARE(sheet("colorPickerGradBottom1"), QString("background-color: blue;"));
        QVERIFY(sheet("wallpaper").contains("stop: 0 #00557f, stop: .3  #34004f"));
        QVERIFY(sheet("r1_2").startsWith("color: #00557f;"));
        QVERIFY(sheet("r27").startsWith(" color: #65307f;"));
    }
};

QTEST_MAIN(TestThemes)
#include "tst_themes.moc"
