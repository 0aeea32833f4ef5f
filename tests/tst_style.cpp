#include "styletest.h"

// Shapes, stops and widths, the mouse over the keys, painting: what the looks say shows.
class TestStyle : public StyleTest
{
    Q_OBJECT

private slots:
    void shapeBoxesMoveTheirSliders()
    {
        for (const QString panel : {"1", "2", "3", "4", "5", "6", "7", "8", "27"}) {
            for (int shape = 5; shape >= 0; --shape) {
                chooseShape(panel.toInt(), shape);
                QCOMPARE(value("hoSlider" + panel), shape);
            }
        }
    }

    void shapesStopsAndWidths_data()
    {
        QTest::addColumn<int>("number");
        for (int i = 0; i < 6; ++i) // Paint's buttons open a picker
            row(panels[i].name, i);
    }
    void shapesStopsAndWidths()
    {
        QFETCH(int, number);
        const Panel &panel = panels[number];
        const bool follows = panel.number != 4; // the highlight's sliders do not
        const QString shape = QString("hoSlider%1").arg(panel.number),
                      stop = QString("slider%1").arg(panel.number),
                      slider = QString("sliderBorderWidth%1").arg(panel.widthNumber),
                      spin = QString("spinBox%1").arg(panel.widthNumber);
        const auto worn = [&] { return sheet(panel.sample); };
        giveColors(lookOf(number));
        chooseShape(panel.number, 4);
        set(stop, 3);
        const QString ground = "background-color: " + radial + "#000004, stop: .3  #000003);";
        QVERIFY2(worn().contains(ground), qPrintable(worn()));
        QVERIFY(!worn().contains("border-color: q"));

        push(panel.border);
        QCOMPARE(value(shape), follows ? 1 : 4);
        QCOMPARE(value(stop), follows ? 5 : 3);
        set(shape, 0);
        set(slider, 7);
        QVERIFY2(worn().contains("border-style:solid; border-width: 7px; border-color: blue;"),
                 qPrintable(worn()));
        QCOMPARE(value(spin), 7);
        set(spin, 11); // the slider ends before
        QCOMPARE(value(slider), 10);
        QCOMPARE(value(spin), 11);
        set(spin, 9999);
        set(shape, 5);
        QCOMPARE(value(slider), 10);

        push(panel.background);
        QCOMPARE(value(shape), follows ? 4 : 5);
        QCOMPARE(value(stop), 3);
        const QString radius = panel.number == 7 ? "" : "border-radius: 10px;";
        QCOMPARE(
            worn(),
            radius + ground +
                QString("border-style:solid; border-width:%1px; border-color: ").arg(panel.widest) +
                repeating + "lime, stop: " + (follows ? ".5" : ".3") + "  blue);");
    }

    void allKeysAreRepainted()
    {
        const auto wear = [this](const QString &style, int keys, int cells) {
            const auto wears = [&](const QLabel *label) {
                return label->styleSheet().contains(style);
            };
            QCOMPARE(std::count_if(widgets().keyBgList.begin(), widgets().keyBgList.end(), wears),
                     keys);
            QCOMPARE(std::count_if(widgets().alphabetBgList.begin(), widgets().alphabetBgList.end(),
                                   wears),
                     cells);
            const QString samples = "demoLetter1Bg aKeysMap5 linePosition1BG linePosition2BG";
            QCOMPARE(wearing(style, samples), samples);
        };
        pickIn("Bg");
        wear("stop: 0 " + rgba(picked), 54, 94);
        ok();
        set("slider1", 2);
        wear("stop: .2 ", 54, 94);
        chooseShape(1, 0);
        wear("border-radius: 10px;background-color: " + rgba(picked), 54, 94);
        push("borderLeft"); // the bar has no borders
        set("spinBox1", 4);
        wear("width:4px", 54, 0);
        set("sliderBorderWidth1", 6);
        wear("width:6px", 54, 0);
        const auto before = sheets();
        pickIn("MoBg", dragged);
        set("slider3", 8);
        QCOMPARE(wearing(".8", "demoLetterRightBg"), QString("demoLetterRightBg"));
        QVERIFY2(!changed(before).contains(QRegularExpression("\\b(r\\d|bg)")),
                 qPrintable(changed(before)));
        hover("shield3");
        QCOMPARE(wearing(".8", "bg3"), QString("bg3"));
    }

    void underTheMouse()
    {
        dress();
        const auto compare = [this](const QString &widget, const QString &said, int number,
                                    const QMap<QString, QStringList> &look) {
            const auto before = sheets();
            find("letterOfAlphabet2")->setText("before");
            game().letterNumber = 7;
            hover(widget);
            QCOMPARE(changed(before), told(look));
            QCOMPARE(widget + text("letterOfAlphabet2"), widget + said);
            QCOMPARE(game().letterNumber, number);
            leave(widget);
            QCOMPARE(changed(before), QString());
        };
        for (int n = 1; n <= 94; ++n) {
            const int key = n <= 26 ? n : n <= 65 ? n - 26 : n <= 86 ? n - 39 : n - 47;
            const bool shifted = (n > 26 && n <= 52) || (n > 65 && n <= 78) || n > 86;
            const QString said = key <= 26 ? QString("Letter-number: %1").arg(key) : "";
            const QString letter = QString("r%1").arg(n);
            QMap<QString, QStringList> lit{{"lit", {letter + "bg"}},
                                           {"lit lit frame", {QString("bg%1").arg(key)}}};
            lit[shifted ? "Lit Font" : "lit font"] = QStringList{letter, letter + "_2"};
            compare(letter, said, n > 26 && n <= 52 ? n - 27 : n - 1, lit);
            if (shifted)
                continue;
            const QString upper = QString("r%1").arg(n <= 26 ? n + 26 : n <= 65 ? n + 13 : n + 8);
            lit["lit"] << upper + "bg";
            lit["Lit Font"] = QStringList{upper, upper + "_2"};
            if (key == 1) // an irregular letter
                lit["Lit font"] << lit["lit font"].takeLast();
            if (key == 6 || key == 10)
                lit["Lit font"] << (key == 6 ? "underScoreLeft" : "underScoreRight");
            compare(QString("shield%1").arg(key), key == 27 ? "before" : said, 7, lit);
        }
    }

    void captionsUnderTheMouse_data()
    {
        for (const char *column : {"wearer", "inside", "outside"})
            QTest::addColumn<QString>(column);
        const QString small = "font: 9pt 'MS Shell Dlg 2' ; ", tab = "font: 10pt 'MS Shell Dlg 2';";
        row("rcNone", "none", " color:blue; " + small, " color:black;  " + small);
        row("rcRussian", "russian2", " color:blue; " + small, " color:black; " + small);
        row("rcEnglish", "english", " color:blue; " + small, " color:black; " + small);
        row("rcBoth", "both", " color:blue;  " + small, " color:black; " + small);
        row("start", "start", " font-weight: bold; color: rgb(0, 94, 0);  text-align: center;",
            "color: rgb(0, 94, 0); text-align: center;");
        row("stop", "stop", " font-weight: bold; maroon;  text-align: center;",
            "color: maroon; text-align: center;");
        row("labelTab3", "labelTab3",
            "border: 3px solid purple; background-color: rgb(170, 0, 0);  " + tab,
            "border: none; background-color: rgb(170, 0, 0);  " + tab);
        row("labelTab4", "labelTab4", "border: 3px solid purple; background-color: blue;  " + tab,
            "border: none; background-color: blue;           " + tab);
    }
    void captionsUnderTheMouse()
    {
        QFETCH(QString, wearer);
        hover(QTest::currentDataTag());
        QTEST(sheet(wearer), "inside");
        leave(QTest::currentDataTag());
        QTEST(sheet(wearer), "outside");
    }

    void selectedTabStaysAsItIsUnderTheMouse()
    {
        const QString before = sheet("labelTab1");
        hover("labelTab1");
        QCOMPARE(sheet("labelTab1"), before);
        leave("labelTab1");
        QCOMPARE(sheet("labelTab1"), before);
        click("rcNone"); // what lights under the mouse is a button still
        QVERIFY(shown("checkNone") && !shown("checkBoth"));
    }

    void numbersTakeTheKeysUnderTheMouse()
    {
        for (const QString name : {"1", "2", "3", "4", "5", "27", "8"}) {
            const auto *spin = find<QWidget>("spinBox" + name);
            reveal(spin);
            hover("spinBox" + name);
            QCOMPARE(window->focusWidget() == spin, name != "8"); // that one takes a click
            leave("spinBox" + name);
            QVERIFY(!window->focusWidget());
        }
        for (const bool accepted : {true, false}) {
            openPicker("E");
            hover("spinBox1");
            accepted ? ok() : cancel();
            QVERIFY(window->focusWidget());
            QTRY_VERIFY(!window->focusWidget()); // a closed picker gives it back, in a second
        }
    }

    void painting_data()
    {
        for (const char *column : {"buttons", "entered", "change"})
            QTest::addColumn<QString>(column);
        const QString background = "rainbowBackground", border = "rainbowBorder",
                      both = " rainbowBoth", lower = "rainbowLowercase", upper = "rainbowUppercase";
        row("key", background, "shield5", "brush: r31bg r5bg; brush edge: bg5");
        row("border", border, "shield5", "old frame: bg5");
        row("both", background + both, "shield5", "brush: r31bg r5bg; brush frame: bg5");
        row("lowercase", lower, "shield5", "brush font: r5 r5_2");
        row("uppercase", upper, "shield5", "Brush Font: r31 r31_2");
        row("lowercase before both", lower + both, "shield47",
            "brush: r86bg r94bg; brush font: r86 r86_2; brush frame: bg47");
        row("key of two signs", background, "shield27", "brush: r53bg r66bg; brush edge: bg27");
        row("key of a, which has samples", background, "shield1",
            "brush: r1bg r27bg; "
            "brush edge: aKeysMap5 bg1 linePosition1BG linePosition2BG");
        row("border of a", border, "shield1",
            "old frame: aKeysMap5 bg1 linePosition1BG linePosition2BG");
        row("a", lower, "shield1",
            "brush font: r1 r1_2; "
            "clear brush font: aKeysMap3 linePosition1Lowercase linePosition2Lowercase");
        row("A", upper, "shield1",
            "Brush Font: r27 r27_2; "
            "clear Brush Font: aKeysMap4 linePosition1Uppercase linePosition2Uppercase");
        row("A on the bar", upper, "r27",
            "Brush Font: aKeysMap4 r27 r27_2; "
            "clear Brush Font: linePosition1Uppercase linePosition2Uppercase");
        row("a on the bar, never", lower, "r1", "");
        row("f has a mark", lower, "shield6", "brush font: r6 r6_2 underScoreLeft");
        row("j on the bar has one", lower, "r10", "brush font: r10 r10_2 underScoreRight");
        row("digit on the bar", background, "r60", "brush: r60bg r73bg; brush edge: bg34");
        row("a digit is no capital", upper, "r60", "");
        row("the sign over it is one", upper, "r73", "Brush Font: r73 r73_2");
        row("and not lowercase", lower, "r73", "");
        row("u on the bar strays to +", background + both, "r21",
            "brush: r21bg; brush frame: bg21; key 20: r47bg");
        row("control key", background, "labelShiftRight", "brush edge: bgShiftRight");
        row("both of a control key", background + both, "labelBackSpace",
            "brush frame: bgBackSpace");
        row("its words", lower, "labelSpacebar", "brush font: labelSpacebar");
        row("which are no capitals", upper, "labelTab", "");
    }
    void painting()
    {
        QFETCH(QString, buttons);
        push(buttons);
        dress();
        const auto before = sheets();
        QFETCH(QString, entered);
        passOver(entered); // what is painted stays
        QTEST(changed(before), "change");
    }

    void borderOfAOnTheBarGoesToF()
    {
        push("rainbowBorder");
        dress();
        hover("r1");
        QCOMPARE(paint().paintKeyBorderStyle[5], looks().rainbow.borderStyle);
        QCOMPARE(paint().paintKeyBorderStyle[0], QString("/* edge*/"));
    }

    void screenAndLooksAgree_data()
    {
        QTest::addColumn<QString>("acts");
        QTest::addColumn<QString>("looks");
        const QString paint5 = "rainbowBackground, pick, over shield5, ok";
        row("keys in one color", "colorPickerBg, pick, ok, grad10",
            "bg1 bgTab r94bg: border-radius: 10px;background-color: rgba(10, 20, 30, 40 ) | "
            "colorPickerBg colorPickerGradBottom1: picked");
        row("swapped", "colorPickerBg, pick, ok, grad10, swapGradient1",
            "r94bg: border-radius: 10px;background-color: rgba(10, 20, 30, 40 )");
        row("radial keys have no alpha", "hoSlider1=4, colorPickerBg, pick, ok",
            "bg1 r94bg: 0 #0a141e, stop: .5  #0a141e");
        row("color of the keys over painted ones", paint5 + ", colorPickerBg, drag",
            "bg5 bg9: dragged");
        row("and with OK", paint5 + ", colorPickerBg, drag, ok, over shield5", "bg5 bg9: dragged");
        row("a part that is chosen brings its paint back",
            paint5 + ", colorPickerBg, drag, ok, rainbowBackground", "bg5: picked | bg9: dragged");
        row("letters of the keys beside painted ones",
            "rainbowUppercase, pick, over shield5, ok, colorPickerE, drag, ok, over shield4",
            "r31: picked | r30: dragged | colorPickerRainbowBg: #280a141e | colorPickerE: dragged");
        row("background and border",
            "rainbowBackground, pick, rainbowBorder, drag, rainbowBoth, over shield5, ok, "
            "over shield5",
            "r5bg bg5: picked | bg5: dragged | bg5: width:3px | spinBox8 sliderBorderWidth8: 3");
        row("painting ends with OK", paint5 + ", enter shield9", "bg9: gold");
        row("and what is painted stays", paint5 + ", over shield9, over shield5, hoSlider1=4",
            "bg5: picked | bg9: not gold | bg9: not picked");
        row("painting ends with Cancel", paint5 + ", rainbowBackground, cancel, enter shield9",
            "bg9: gold | bg5: picked");
        row("the repeating shape takes the place of paint", paint5 + ", hoSlider1=5, over shield5",
            "bg5: not picked | bg5: spread:repeat");
        row("the second picker paints", "colorPickerGradBottom8, enter shield5", "bg5: not gold");
        row("until OK", "colorPickerGradBottom8, ok, enter shield5", "bg5: gold");
        row("or Cancel", "colorPickerGradBottom8, cancel, enter shield5", "bg5: gold");
        row("painted letters", "rainbowLowercase, drag, pick, over shield5",
            "r5_2: picked | r6_2: white");
        row("Cancel brings back the brush, and not the keys",
            "rainbowLowercase, pick, over shield7, cancel, over shield8",
            "r7_2: picked | r8_2: white");
        row("paint in another shape of keys",
            "rainbowBackground, pick, over shield1, over labelTab, rainbowLowercase, drag, "
            "over labelTab, ok, sliderKeyShape=1",
            "bg1 bgTab aKeysMap5 linePosition1BG: picked | labelTab: dragged | "
            "aKeysMap3: not dragged");
        row("width set with the background in hand", "spinBox1=7", "bg1: not width:7px");
        row("shows with the border", "spinBox1=7, borderLeft", "bg1 demoLetter1Bg: width:7px");
        row("swatch of painted letters", "rainbowUppercase, pick",
            "colorPickerRainbowBg: #280a141e | colorPickerD: white");
        row("swatch of paint", "rainbowUppercase, pick, rainbowBackground",
            "colorPickerRainbowBg: background-color: picked");
        row("swatch of Your Entry", "yourEntryCm, colorPicker29, pick", "colorPicker29: picked");
        row("swatch of Match This", "yourEntryCm, colorPicker29, pick, matchThisCm",
            "colorPicker29: black");
        row("samples of finished keys", "colorPickerFBg, pick",
            "demoLetterFinishedBg dem1 dem6: picked");
        row("of their characters", "colorPickerF, pick, sliderKeyShape=1",
            "demoLetterFinishedLowercase dem1: picked | dem1: 17px | demoLetterFinishedBg: 39px");
        row("of their gradient", "grad54, slider5=0",
            "demoLetterFinishedBg dem2: fy:0.5, stop : 0 rgb(115, 115, 115), stop: 0  rgb(115");
        row("finished keys wait until the slider is let go", "start, type, hold slider5, slider5=3",
            "dem1: stop: .3 | r1bg: stop: .5");
        row("and are repainted then", "start, type, hold slider5, slider5=3, let go slider5",
            "r1bg: stop: .3");
        row("or at once, by the wheel", "start, type, slider5=3", "r1bg: stop: .3");
        row("or after Random was chosen", "start, type, pbRandomAll, slider5=3", "r1bg: stop: .3");
        row("or at once, after the stop of the keys",
            "start, type, slider1=1, hold slider5, slider5=7", "r1bg: stop: .7");
        row("they do not follow the keys", "start, type, colorPickerBg, pick, ok, grad15",
            "r1bg: rgb(115, 115, 115) | r2bg: picked");
        row("finished keys in one color", "start, type, colorPickerFBg, pick, ok, hoSlider5=0",
            "r1bg: border-radius: 10px;background-color: rgba(10, 20, 30, 40 )");
        row("each part has its stop", "borderLeft, slider1=8, backgroundLeft, borderLeft",
            "slider1: 8");
        row("finished key under the mouse", "start, type, enter r1", "r1bg: gold");
        row("which has left", "start, type, colorPickerFBg, pick, ok, hoSlider5=0, over r1",
            "r1bg: border-radius: 10px;background-color: rgba(10, 20, 30, 40 )");
        row("pressed key after Cancel",
            "start, colorPickerKpE, pick, ok, colorPickerKpE, drag, cancel, press A",
            "r27_2: picked");
        row("pressed target",
            "start, goldenHighlight, colorPickerKpD, pick, ok, colorPickerKpD, drag, cancel, "
            "press a",
            "r1_2: picked");
        row("target in one color", "start, goldenHighlight, hoSlider4=0",
            "bg1: background-color: gold;");
        row("target among colored keys",
            "start, goldenHighlight, hoSlider4=0, colorPickerHiBg, pick, ok, colorPickerBg, drag, "
            "grad12",
            "bg1 goldenHighlight: border-radius: 10px;background-color: rgba(10, 20, 30, 40 )");
        row("key under the mouse",
            "colorPickerMoE, pick, colorPickerMoD, pick, cancel, enter shield2",
            "r28_2: picked | r2_2: blue");
        row("each box has its look",
            "matchThisCm, colorPicker27, pick, ok, yourEntryCm, colorPicker27, drag, ok, "
            "sliderKeyShape=1",
            "leMatchBg: picked | leUserBg: dragged | leMatchBg: 30px | matchThisBg: 14px");
        row("text of one box", "start, matchThisCm, colorPicker29, pick",
            "leMatch: picked | leUser matchThis: not picked");
        row("and of its header", "start, matchThisCm, gamePlayCb, colorPicker29, pick",
            "leMatch: picked | matchThis: transparent;  font: 12pt 'MS Shell Dlg 2';color: rgba");
        row("which goes back to black",
            "start, matchThisCm, gamePlayCb, colorPicker29, pick, gamePlayCb",
            "leMatch: picked | matchThis: transparent;  color: black;  font: 12pt");
        row("header of Your Entry has the color of the other",
            "start, matchThisCm, gamePlayCb, colorPicker29, pick, yourEntryCm, drag, press a",
            "leUser: dragged | leMatch yourEntry: picked");
        row("both boxes and headers", "start, gamePlayCb, yourEntryCm_2, colorPicker29, pick",
            "leMatch matchThis yourEntry: picked | "
            "matchThis yourEntry: transparent; font: 12pt 'MS Shell Dlg 2';color: rgba");
        row("radial lines", "grad64", "h1 v1: 0 blue");
        row("have no alpha", "grad64, colorPickerKeyboard, pick, lhHorizontalRadio, drag",
            "h1: 0 #323c46 | v1: 0 #0a141e");
        row("stops of the lines",
            "lhHorizontalRadio, grad64, slider6=1, lhVerticalRadio, slider6=9",
            "h4_2: stop: .1 | v29: stop: .9");
        row("wallpaper", "colorPickerWallpaper, pick, ok, colorPickerGradBottom7, drag",
            "wallpaper: 0 rgba(50, 60, 70, 80 ) , stop: .5  rgba(10, 20, 30, 40 )");
    }
    void screenAndLooksAgree()
    {
        QFETCH(QString, acts);
        for (const QString &each : acts.split(", "))
            act(each);
        QFETCH(QString, looks);
        for (const QString &each : looks.split(" | ")) {
            const QString widgets = each.section(": ", 0, 0);
            QString style = each.section(": ", 1);
            const bool absent = style.startsWith("not ");
            style.replace("picked", rgba(picked).trimmed()).remove("not ");
            style.replace("dragged", rgba(dragged).trimmed());
            if (widgets.startsWith('s')) { // sliders and numbers
                for (const QString &name : widgets.split(' '))
                    QCOMPARE(value(name), style.toInt());
            } else {
                QCOMPARE(wearing(style, widgets), absent ? QString() : widgets);
            }
        }
    }
};

QTEST_MAIN(TestStyle)
#include "tst_style.moc"
