#include "window.h"

// The Advanced Options, the non-vitals, and the shape of the keys.
class TestPanels : public WindowTest
{
    Q_OBJECT

    // menu, marker, then each piece with its working place
    static QStringList rows()
    {
        return {
            "menuColorMadness markerCm tabWidget 0 0 frameTabShield 980 -3",
            "menuKestrixKeyboard markerEk frameKestrixKeyboard 0 0 openImageFinished 192 132 "
            "clearKestrexKeyboardImage 250 132 openAudioPulse 372 106",
            "menuFonts markerFonts frameFonts 0 0 fontComboBoxLowercase 10 82 "
            "fontComboBoxUppercase 382 82",
            "menuPhotos markerPictures framePhotos 0 0 framePhotosMain 756 74 openImageKeys 394 97 "
            "clearMouseoverImage 482 224 clearMainImage 858 106 xRayVision 983 148",
            "menuShadows markerShadows frameShadows 0 0",
            "menuAudio markerAudio frameAudio 0 0 openAudio 334 122",
            "menuGamePlay markerExtra frameGamePlayS 0 0 frameGamePlayS_2 731 0 "
            "frameGamePlayCM 86 352 swapGradient27 572 456"};
    }
    // The button's text, the marker and every piece must tell the same.
    QStringList openPanels() const
    {
        QStringList open;
        for (const QString &row : rows()) {
            const QStringList words = row.split(' ');
            const bool isOpen = text(words[0]) == "Close";
            if (isOpen)
                open << words[0];
            if (shown(words[1]) != isOpen)
                return {words[1]};
            for (int i = 2; i < words.size(); i += 3) {
                const auto *piece = find<QWidget>(words[i]);
                const bool inPlace =
                    piece->pos() == QPoint(words[i + 1].toInt(), words[i + 2].toInt());
                if (piece->isHidden() == isOpen || inPlace != isOpen)
                    return {words[i]};
            }
        }
        return open;
    }
    // Those of the widgets that are on the screen.
    QStringList there(const QStringList &names) const
    {
        QStringList result;
        for (const QString &name : names) {
            if (shown(name))
                result << name;
        }
        return result;
    }
    QRect place(const QString &name) const { return find<QWidget>(name)->geometry(); }

    void prepare() override { window->options(); }

private slots:
    void onePanelAtATime()
    {
        QCOMPARE(openPanels(), QStringList{});
        for (const QString &row : rows()) {
            const QString menu = row.section(' ', 0, 0);
            click(menu);
            QCOMPARE(openPanels(), QStringList{menu});
        }
        QVERIFY(!shown("optionsShield"));
        click("menuGamePlay"); // once more closes it
        QCOMPARE(openPanels(), QStringList{});
        QVERIFY(shown("optionsShield"));
        click("menuAudio");
        click("closeX");
        QCOMPARE(openPanels(), QStringList{});
    }

    void slidesInAndOut()
    {
        QVERIFY(!window->rect().intersects(place("optionsShield").adjusted(4, 0, 0, 0)));
        click("options");
        QCOMPARE(sheet("letterOfAlphabet2"),
                 QString("color: white;   font: 10pt 'MS Shell Dlg 2';"));
        QTRY_COMPARE(place("tableOfContents"), QRect(1070, 0, 142, 695));
        QTRY_COMPARE(place("closeX"), QRect(890, 629, 90, 66));
        QTRY_COMPARE(place("optionsShield"), QRect(-4, -75, 1211, 337));
        QTRY_COMPARE(place("optionsArrow3"), QRect(890, 144, 70, 56));
        QTRY_COMPARE(place("optionsText2"), QRect(890, 228, 180, 23));
        click("closeX");
        click("options"); // within 60 ms it does nothing
        QTRY_COMPARE(place("optionsShield"), QRect(-4, -266, 1211, 258));
        QTRY_COMPARE(place("closeX"), QRect(1364, 629, 90, 99));
        QTRY_COMPARE(place("optionsText1").x(), 1215);
        QTRY_COMPARE(place("optionsText2").x(), 1215);
        QTRY_COMPARE(place("optionsArrow1"), QRect(890, -72, 70, 56));
    }

    // Closed before it has come in, nothing of it is left on the screen.
    void closedAtOnceLeavesNothing()
    {
        click("options");
        click("closeX");
        pass(2200); // longer than the slowest slide in would take
        for (const char *name : {"optionsShield", "tableOfContents", "closeX", "optionsArrow1",
                                 "optionsText1", "optionsText2"})
            QVERIFY2(!window->rect().intersects(place(name)), name);
    }

    void closingTableTakesNoClicks()
    {
        click("options");
        QTRY_COMPARE(place("tableOfContents"), QRect(1070, 0, 142, 695));
        click("closeX");
        click("menuAudio");
        QCOMPARE(openPanels(), QStringList{});
        for (const char *name : {"spinBox27", "fontComboBoxLowercase", "fontComboBoxUppercase"})
            QVERIFY2(!find<QWidget>(name)->isEnabled(), name);
        pass(100);
        click("options");
        click("menuGamePlay");
        QCOMPARE(openPanels(), QStringList{"menuGamePlay"});
        QVERIFY(find<QWidget>("spinBox27")->isEnabled());
    }

    void keysReachTheGameWithAPanelOpen()
    {
        click("menuColorMadness");
        click("start");
        click("spinBox1");
        QVERIFY(!window->focusWidget());
        enterTarget();
        QCOMPARE(text("labelCorrect"), QString("1"));
    }

    void tabsAreLabels()
    {
        click("menuColorMadness");
        for (int tab : {6, 2, 10}) {
            const QString label = QString("labelTab%1").arg(tab);
            click(label);
            QCOMPARE(find<QTabWidget>("tabWidget")->currentIndex(), tab - 1);
            QVERIFY(sheet(label).contains("stop: 0 gold"));
            QCOMPARE(sheet("labelTab1"), QString("border: none; background-color: rgb(170, 0, 0);  "
                                                 "font: 10pt 'MS Shell Dlg 2';"));
            QCOMPARE(shown("frameWallpaper"), tab == 6);
            QCOMPARE(shown("swapGradient7"), tab == 6);
        }
        QCOMPARE(text("mouseoverCaption"), QString("How a key looks under the mouse"));
        QTest::mouseClick(find("labelTab6"), Qt::RightButton);
        QCOMPARE(find<QTabWidget>("tabWidget")->currentIndex(), 9);
    }

    void framesOfTheLines()
    {
        click("lineHighOptions");
        QCOMPARE(find<QWidget>("frameLinehighlight")->pos(), QPoint(0, 0));
        QCOMPARE(find<QWidget>("swapGradient6")->pos(), QPoint(466, 118));
        const auto above = [this](const char *line, const char *other) {
            const QObjectList order = find(line)->parent()->children();
            return order.indexOf(find(line)) > order.indexOf(find(other));
        };
        click("linePosition2Uppercase");
        QVERIFY(above("h1", "bg27") && above("v29", "r94_2"));
        click("linePosition1Uppercase");
        QVERIFY(!above("h1", "bg27") && !above("v29", "bg1") && above("v1", "wallpaper"));
        click("lineHighOptions");
        QVERIFY(!shown("frameLinehighlight") && !shown("swapGradient6"));
    }

    void hideAndShowBringBackExactlyWhatWasThere()
    {
        click("strict");
        click("buttonInstructionsLeft");
        click("start"); // the greeting and the tour are gone for good
        const auto visible = [this] {
            QStringList names;
            for (const QWidget *widget : window->findChildren<QWidget *>(QRegularExpression(".")))
                names << widget->objectName();
            names = there(names);
            names.sort();
            return names;
        };
        const QStringList before = visible();
        click("hideNonVitals");
        QCOMPARE(text("hideNonVitals"), QString("Show"));
        QCOMPARE(there({"lcd", "start", "pbForwardAll", "piclabel1", "display2", "checkBoth",
                        "row1", "labelOptions", "options", "displayStrict"}),
                 QStringList{});
        const QStringList stay{"leMatch", "leUser", "matchThis",     "bg1",
                               "r1",      "r94_2",  "hideNonVitals", "pbQuit"};
        QCOMPARE(there(stay), stay);
        click("rcNone"); // hidden; nothing to hit
        enterTarget();
        click("hideNonVitals");
        QCOMPARE(visible(), before);
        QCOMPARE(text("hideNonVitals"), QString("Hide"));
    }

    void xRayEndsWithItsPanel()
    {
        click("options");
        click("menuColorMadness");
        click("xRayColorMadnessOff");
        QVERIFY(!shown("tabWidget") && !shown("optionsArrow1") && !shown("lcd"));
        QVERIFY(shown("frameXRay")); // the way back
        click("menuColorMadness");
        const QStringList back{"optionsArrow1", "optionsText2", "optionsShield", "lcd", "start"};
        QCOMPARE(there(back), back);
        QVERIFY(!shown("tabWidget"));
        QVERIFY(find<QAbstractButton>("xRayColorMadnessOn")->isChecked());

        click("menuPhotos");
        choose("xRayVision");
        QVERIFY(!shown("start") && !shown("framePhotos"));
        click("closeX");
        QVERIFY(shown("start") && !find<QAbstractButton>("xRayVision")->isChecked());
    }

    void tourIsOverOnceHidden()
    {
        click("hideNonVitals");
        click("hideNonVitals");
        QCOMPARE(there({"demo1", "demo2", "demo3", "demo4", "arrow1", "arrow6"}), QStringList{});
        QVERIFY(shown("display3"));
        QVERIFY(!shown("displayStrict"));
    }

    void roundKeysStayInTheirPlaces()
    {
        QHash<QString, QRect> homes;
        for (const char *name : {"bg1", "img42", "r66_2", "shield27", "bgTab", "r1bg", "bg42"})
            homes[name] = place(name);
        set("sliderKeyShape", 1);
        for (const char *name : {"bg1", "img42", "r66_2", "shield27", "bg42"}) {
            QCOMPARE(place(name).size(), QSize(62, 62));
            QCOMPARE(place(name).center(), homes[name].center());
        }
        QCOMPARE(place("bgTab"), homes["bgTab"]);
        for (const auto &[name, radius] :
             {std::pair("bg1", 31), {"r1bg", 14}, {"leMatchBg", 30}, {"dem1", 17}})
            QVERIFY2(sheet(name).startsWith(QString("border-radius: %1px;").arg(radius)), name);
        type("a");
        QVERIFY(sheet("bg1").startsWith("border-radius: 31px;"));
        set("sliderKeyShape", 0);
        for (auto home = homes.constBegin(); home != homes.constEnd(); ++home)
            QCOMPARE(place(home.key()), home.value());
        QVERIFY(sheet("bg1").startsWith("border-radius: 10px;"));
    }
};

QTEST_MAIN(TestPanels)
#include "tst_panels.moc"
