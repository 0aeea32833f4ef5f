#include "styletest.h"

// The thirty color pickers: live, OK and Cancel.
class TestPickers : public StyleTest
{
    Q_OBJECT

private slots:
    void pickers_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QPoint>("place");
        QTest::addColumn<QString>("color"); // of the target
        QTest::addColumn<bool>("alpha");
        row("E", "Uppercase Key", QPoint(725, 30), "white", true);
        row("D", "Lowercase Key", QPoint(725, 60), "white", true);
        row("Bg", "Key Background", QPoint(2, 90), "black", true);
        row("GradBottom1", "Key Background-Gradient", QPoint(725, 90), "black", true);
        row("KpE", "Keypress Uppercase", QPoint(725, 30), "blue", true);
        row("KpD", "Keypress Lowercase", QPoint(725, 60), "blue", true);
        row("KpBg", "Keypress Background", QPoint(2, 90), "black", true);
        row("GradBottom2", "Keypress Background-Gradient", QPoint(725, 90), "black", true);
        row("MoE", "Mouseover Uppercase", QPoint(725, 30), "blue", true);
        row("MoD", "Mouseover Lowercase", QPoint(725, 60), "blue", true);
        row("MoBg", "Mouseover Background", QPoint(2, 90), "gold", true);
        row("GradBottom3", "Mouseover Background-Gradient", QPoint(725, 90), "gold", true);
        row("HiE", "Uppercase Highlight", QPoint(725, 30), "black", true);
        row("HiD", "Lowercase Highlight", QPoint(725, 60), "black", true);
        row("HiBg", "Highlight Background", QPoint(2, 90), "gold", true);
        row("GradBottom4", "Highlight Background-Gradient", QPoint(725, 90), "gold", true);
        row("F", "Finished Keys", QPoint(725, 30), "white", true);
        row("FBg", "Finished Keys Background", QPoint(2, 90), "#737373", true);
        row("GradBottom5", "Finished Keys Background-Gradient", QPoint(725, 90), "#737373", true);
        row("Keyboard", "Line Highlight Color", QPoint(2, 290), "blue", false);
        row("GradBottom6", "Line Highlight Color-Gradient", QPoint(725, 290), "blue", false);
        row("Wallpaper", "Wallpaper Background", QPoint(2, 90), "white", true);
        row("GradBottom7", "Wallpaper Background-Gradient", QPoint(725, 90), "white", true);
        row("RainbowBg", "Paint Background / Gradient 1", QPoint(2, 90), "black", true);
        row("GradBottom8", "Paint Background Gradient 2", QPoint(725, 90), "black", true);
        row("27", "Game Play Background", QPoint(2, 90), "white", true);
        row("GradBottom27", "Game Play Background-Gradient", QPoint(725, 90), "white", true);
        row("29", "Game Play Key", QPoint(725, 30), "black", true);
    }
    void pickers()
    {
        clickOpener(QTest::currentDataTag(), Qt::RightButton);
        QVERIFY(openPickers().isEmpty());
        openPicker(QTest::currentDataTag());
        QTEST(dialog->windowTitle(), "title");
        QTEST(dialog->pos(), "place");
        QVERIFY(dialog->windowIcon().isNull() == (dialog->y() > 60)); // those of characters
        QFETCH(QString, color);
        QCOMPARE(dialog->currentColor().name(), QColor(color).name());
        QTEST(dialog->testOption(QColorDialog::ShowAlphaChannel), "alpha");
    }

    void pickersStayInFrontAndBlockNothing()
    {
        for (const char *opener : {"E", "KpD", "GradBottom3", "RainbowBg", "Keyboard"})
            openPicker(opener);
        QCOMPARE(openPickers().size(), 5);
        QCOMPARE(dialog->windowHandle()->transientParent(), window->windowHandle());
        QVERIFY(!dialog->isModal());
        QVERIFY(!dialog->parent()); // so that it does not count as part of the main window
        click("start");
        enterTarget();
        QCOMPARE(text("labelCorrect"), QString("1"));
        window->close();
        QVERIFY(openPickers().isEmpty());
    }

    void colorsOfTheLooks_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<bool>("border");
        for (int i = 0; i < int(std::size(panels)); ++i) {
            row(panels[i].name, i, false);
            if (*panels[i].border)
                row(qPrintable(QString("border of ") + panels[i].name), i, true);
        }
    }
    void colorsOfTheLooks()
    {
        QFETCH(int, number);
        QFETCH(bool, border);
        const Panel &panel = panels[number];
        Look &look = lookOf(number);
        const auto now = [&] { return colorsOf(look, border); };
        giveColors(look);
        push(border ? panel.border : panel.background);
        const QStringList other = colorsOf(look, !border);

        pickIn(panel.picker);               // both ends, until the gradient has a color of its own
        const bool key = panel.number == 1; // takes what its shape needs, and the rest with OK
        QCOMPARE(now().mid(0, 2), colors(picked, picked).mid(0, 2));
        QCOMPARE(now().mid(2) == colors(picked, picked).mid(2), !key);
        ok();
        QCOMPARE(now()[2], picked.name());
        const QStringList kept = now();
        pickIn(panel.picker, dragged);
        cancel();
        QCOMPARE(now(), kept);
        openGradient(panel.number);
        pick(dragged);
        QCOMPARE(now(), colors(picked, dragged));
        cancel();
        QCOMPARE(now(), kept);
        openGradient(panel.number);
        pick(dragged);
        ok();
        QCOMPARE(now(), colors(picked, dragged));
        openPicker(panel.picker);
        pick(Qt::red);
        QCOMPARE(now()[0] + now()[1], rgba(Qt::red) + rgba(dragged));
        cancel();
        QCOMPARE(now(), colors(picked, dragged));

        const QString swap = QString("swapGradient%1").arg(panel.number);
        choose(swap);
        QStringList swapped = colors(dragged, picked);
        if (border && panel.number == 2)
            swapped[3] = look.bgEnd; // borrowed
        QCOMPARE(now(), swapped);
        QCOMPARE(colorsOf(look, !border), other);
        choose(swap);
        QCOMPARE(now()[1], rgba(dragged));
    }

    void colorsOfTheLines()
    {
        const LineLook &lines = looks().lineHigh;
        pickIn("Keyboard");
        QCOMPARE(colorsOf(lines, false) + colorsOf(lines, true),
                 colors(opaquePicked, opaquePicked) + colors(opaquePicked, opaquePicked));
        QCOMPARE(colored(opaquePicked, "h1 v1"), QString("h1 v1"));
        push("lhHorizontalRadio");
        pick(dragged);
        QCOMPARE(colored(opaqueDragged, "h1 v1"), QString("h1"));
        QCOMPARE(colorsOf(lines, true), colors(opaquePicked, opaquePicked));
        ok();
        openGradient(6);
        pick();
        QCOMPARE(colorsOf(lines, false), colors(opaqueDragged, opaquePicked));
        QColorDialog *gradient = dialog;
        openPicker("Keyboard");
        QCOMPARE(dialog->currentColor(), opaqueDragged);
        pick();
        cancel();
        QCOMPARE(colorsOf(lines, false), colors(opaqueDragged, opaquePicked));
        gradient->reject();
        push("lhVerticalRadio");
        pickIn("Keyboard", dragged);
        QCOMPARE(colorsOf(lines, true), colors(opaqueDragged, opaqueDragged));
        cancel();
        QCOMPARE(colorsOf(lines, false) + colorsOf(lines, true),
                 colors(opaqueDragged, opaqueDragged) + colors(opaquePicked, opaquePicked));
        QCOMPARE(colored(opaquePicked, "h1 v1"), QString("v1"));
        openGradient(6);
        pick(dragged);
        ok();
        choose("swapGradient6");
        QCOMPARE(colorsOf(lines, false) + colorsOf(lines, true),
                 colors(opaqueDragged, opaqueDragged) + colors(opaqueDragged, opaquePicked));
    }

    // On the screen or in a file.
    void cancelLeavesNoTrace_data()
    {
        QTest::addColumn<QString>("targets");
        row("backgrounds", "");
        row("borders and the other letters",
            "borderLeft borderCenter borderRight borderHi borderWallpaper rainbowBorder "
            "borderGamePlay yourEntryCm");
    }
    void cancelLeavesNoTrace()
    {
        QFETCH(QString, targets);
        openPicker("E"); // makes the panels dress what they had not dressed before
        cancel();
        click("start");
        enterTarget();
        click("goldenHighlight");
        push(targets);
        if (dialog->isVisible())
            cancel();
        const auto before = sheets();
        const QString openers = "E D Bg KpE KpD KpBg MoE MoD MoBg F FBg Keyboard Wallpaper "
                                "GradBottom1 HiD HiBg GradBottom2 GradBottom3 GradBottom4 "
                                "GradBottom5 GradBottom6 GradBottom7 RainbowBg GradBottom8 HiE 27 "
                                "GradBottom27 29";
        for (const QString &opener : openers.split(' ')) {
            pickIn(opener);
            pick(dragged);
            pick();
            cancel();
            QCOMPARE(QString(opener + ": " + changed(before)), QString(opener + ": "));
        }
    }

    void colorsOfCharacters_data()
    {
        // The spelling of the color, which themes keep, and with OK; who wears it at once.
        for (const char *column : {"style", "kept", "live", "late"})
            QTest::addColumn<QString>(column);
        const char *a = "color: rgba(10, 20, 30, 40 );;", *b = "color: rgba(10, 20, 30, 40 ) ;";
        const char *c = " color: rgba(10, 20, 30, 40 ) ; ";
        row("E", a, a,
            "demoLetter1_Uppercase aKeysMap4 linePosition1Uppercase linePosition2Uppercase r27 "
            "r94_2",
            "");
        row("D", a, a,
            "demoLetter1_Lowercase demoLetter4LowerCase aKeysMap3 linePosition1Lowercase "
            "linePosition2Lowercase r3 r53_2 underScoreLeft underScoreRight labelTab labelSpacebar",
            "");
        row("KpE", a, a, "demoLetter1", "");
        row("KpD", a, a, "demoLetter3", "");
        row("MoE", b, b, "demoLetter1_3", "");
        row("MoD", b, b, "demoLetter3_3", "");
        row("F", c, c, "dem1 dem2 dem6 demoLetterFinishedUppercase", "r1");
        row("HiE", b, b, "demoLetterHiE", "goldenHighlight");
        row("HiD", b, c, "demoLetterHiLowD", "r2_2");
    }
    void colorsOfCharacters()
    {
        QFETCH(QString, style);
        QFETCH(QString, kept);
        QFETCH(QString, live);
        QFETCH(QString, late);
        click("start");
        enterTarget();
        click("goldenHighlight");
        pickIn(QTest::currentDataTag());
        QCOMPARE(wearing(style, live), live);
        QCOMPARE(wearing(style, late), QString());
        ok();
        QCOMPARE(wearing(kept, late), late);
        pickIn(QTest::currentDataTag(), dragged);
        QCOMPARE(wearing(style, live), QString());
        cancel();
        QCOMPARE(wearing(style, live) + wearing(kept, late), live + late);
    }

    void paintingPickers()
    {
        const auto opened = [this](const QString &title, const QString &checked) {
            QCOMPARE(dialog->windowTitle(), title);
            for (const QString part : {"Background", "Border", "Lowercase", "Uppercase"})
                QCOMPARE(find<QAbstractButton>("rainbow" + part)->isChecked(), part == checked);
            pick();
            pick(dragged);
            cancel();
        };
        push("rainbowBorder");
        opened("Paint Border / Gradient 1", "Border");
        openPicker("RainbowBg");
        opened("Paint Border / Gradient 1", "Border");
        openGradient(8);
        opened("Paint Border Gradient 2", "Border");
        push("rainbowLowercase");
        QCOMPARE(dialog->pos(), QPoint(978, 24));
        opened("Paint Lowercase", "Lowercase");
        push("rainbowUppercase");
        QCOMPARE(dialog->pos(), QPoint(20, 24));
        opened("Paint Uppercase", "Uppercase");
        push("rainbowBackground");
        opened("Paint Background / Gradient 1", "Background");
        openGradient(8);
        opened("Paint Background Gradient 2", "Background");
    }

    // After these acts, all that shows a look agrees: widgets, and what their style sheets say or,
    // of a number, their value. An act is a button, a picker's swatch, a box of a shape, a control
    // with its value, or what is done by hand; "over" enters and leaves.
    // Which the picker had already for another one.
    void pickersShowTheColorOfThePart()
    {
        push("rainbowLowercase");
        pick();
        push("rainbowUppercase");
        QCOMPARE(dialog->currentColor(), QColor(Qt::white));
        pick(dragged);
        push("rainbowLowercase");
        QCOMPARE(dialog->currentColor(), picked);
    }

    void colorsOfShadows()
    {
        click("menuShadows");
        choose("shadowKeys");
        click("textShadowColorBox");
        noteOpened({});
        const QString shown = "textShadowColorBox shadowKeysDisplay";
        QCOMPARE(dialog->currentColor(), QColor("#484848"));
        pick(dragged);
        QCOMPARE(wearing("#323c46", shown), shown);
        cancel();
        QCOMPARE(wearing("#484848", shown), shown);
    }

    void coloringTheKeysSwitchesPaintOff()
    {
        PaintTables &p = paint();
        p.parts[PaintTables::Background].on = p.parts[PaintTables::Border].on =
            p.parts[PaintTables::Lower].on = p.parts[PaintTables::Upper].on =
                p.parts[PaintTables::English].on = true;
        for (const char *picker : {"E", "D", "Bg"}) {
            openPicker(picker);
            cancel();
        }
        QVERIFY(p.parts[PaintTables::English].on && p.parts[PaintTables::Lower].on &&
                p.parts[PaintTables::Background].on);
        openPicker("E");
        ok();
        QVERIFY(!p.parts[PaintTables::English].on && p.parts[PaintTables::Upper].on);
        openPicker("D");
        ok();
        QVERIFY(!p.parts[PaintTables::Lower].on && !p.parts[PaintTables::Upper].on &&
                p.parts[PaintTables::Border].on);
        set("slider1", 2);
        give("Bg", dragged);
        QVERIFY(!p.parts[PaintTables::Background].on && !p.parts[PaintTables::Border].on);
        QCOMPARE(looks().rainbow.bgEnd + looks().rainbow.gradStop, rgba(dragged) + ".2");
        QCOMPARE(looks().rainbow.bgStart, rgba(dragged));
        QCOMPARE(looks().rainbow.bgStyle, looks().key.bgStyle);
        passOver("shield5");
        QCOMPARE(wearing(", stop: .2  " + rgba(dragged), "bg5"), QString("bg5"));
    }
};

QTEST_MAIN(TestPickers)
#include "tst_pickers.moc"
