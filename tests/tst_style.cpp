#include "window.h"

#include <QColorDialog>
#include <QSlider>
#include <QTabWidget>
#include <QWindow>

// The texts that style sheets and colours are told by, each as the letter before it.
static const QStringList letters =
    QString(R"(Sbackground-color: rgba(10, 20, 30, 40 ) ; |Dcolor: rgba(10, 20, 30, 40 );;|
F color: rgba(10, 20, 30, 40 ) ; |Ecolor: rgba(10, 20, 30, 40 ) ;|nrgba(10, 20, 30, 40 ) |
nrgba(10, 20, 30, 255 ) |x#0a141e|Nrgba(50, 60, 70, 80 ) |Nrgba(50, 60, 70, 255 ) |X#323c46|
srgba(0, 0, 0, 255 ) |srgba(255, 255, 255, 255 ) |srgba(255, 215, 0, 255 ) |t#000000|t#ffffff|
t#ffd700|1red|2green|3#000003|4#000004|5blue|6lime|7#000007|8#000008|frgb(115, 115, 115)|
Cbackground-color: transparent;|T transparent|Rborder-radius: 10px;|
@qradialgradient( cx: .5,  cy: .5, radius: .5, fx:0.5, fy:0.5, stop : 0 |
*qradialgradient(spread:repeat, cx:  .5, cy:  .5, radius: .1,fx:0.5, fy:0.5,   stop : 0 |
Lfont-family: Low;|Ufont-family: Upp;|acolor: #a00001;|Acolor: #a00002;|lcolor: #a00003;|
ucolor: #a00004;|Mbackground-color: #a00005;|mborder: 1px solid #a00006;|
pbackground-color: #a00007;|qborder: 1px solid #a00008;|obackground-color: #a00009;|
wborder: 1px solid #a0000a;|9background-color: #a0000b;)")
        .remove('\n')
        .split('|');

// Tests are told in words. A button or label is clicked ("+" stands for "colorPicker"), "pick" and
// "drag" choose two colours in the picker that opened last, and "slider1=3" moves a control.
// "bg1~$p" asks whether a style sheet has a text, "bg1!$p" whether it has not, "slider1?3" for a
// value and "=12345678" for the eight colours of a look, the background's, then the border's: end,
// start, and the two without alpha.
class TestStyle : public WindowTest
{
    Q_OBJECT

    QColorDialog *dialog = nullptr; // opened last
    QVector<QString *> colours;

    void prepare() override { window->options(); }

    static QList<QColorDialog *> openPickers()
    {
        QList<QColorDialog *> pickers;
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            auto *picker = qobject_cast<QColorDialog *>(widget);
            if (picker && picker->isVisible())
                pickers << picker;
        }
        return pickers;
    }
    Looks &looks() { return window->board().looks; }
    PaintTables &paint() { return window->board().paint; }
    static QString told(QString text)
    {
        for (const QString &letter : letters)
            text.replace(letter.mid(1), "$" + letter.left(1));
        return text.remove(' ');
    }
    static QString untold(char letter)
    {
        return letters[letters.indexOf(QRegularExpression(QString("^%1.*").arg(letter)))].mid(1);
    }
    void look(const QString &name)
    {
        Looks &l = looks();
        LineLook &h = l.lineHigh;
        const QString names =
            "key keypress mouseover highlight finished wallpaper rainbow gamePlay";
        Look *const all[] = {&l.key,      &l.keypress,  &l.mouseover, &l.highlight,
                             &l.finished, &l.wallpaper, &l.rainbow,   &l.gamePlay};
        if (const int i = names.split(' ').indexOf(name); i >= 0)
            colours = {&all[i]->bgEnd,        &all[i]->bgStart,       &all[i]->bgEndHex,
                       &all[i]->bgStartHex,   &all[i]->borderEnd,     &all[i]->borderStart,
                       &all[i]->borderEndHex, &all[i]->borderStartHex};
        else // the horizontal lines, then the vertical ones
            colours = {&h.horizontalEnd,      &h.horizontalStart, &h.horizontalEndHex,
                       &h.horizontalStartHex, &h.verticalEnd,     &h.verticalStart,
                       &h.verticalEndHex,     &h.verticalStartHex};
        for (int i = 0; i < 8; ++i)
            *colours[i] = untold("12345678"[i]);
    }

    // Labels can be clicked only where nothing covers them.
    void reveal(const QWidget *widget)
    {
        const auto *tabs = find<QTabWidget>("tabWidget");
        int tab = find<QWidget>("frameWallpaper")->isAncestorOf(widget) ? 6 : 0;
        for (int i = 0; i < 10; ++i)
            tab = tabs->widget(i)->isAncestorOf(widget) ? i + 1 : tab;
        const bool ofLines = find<QWidget>("frameLinehighlight")->isAncestorOf(widget);
        const QString menu = tab ? "menuColorMadness" : "menuGamePlay";
        if (ofLines != shown("frameLinehighlight"))
            click("lineHighOptions");
        if (!ofLines && text(menu) == "Open")
            click(menu);
        if (tab)
            QTest::mouseClick(find(QString("labelTab%1").arg(tab)), Qt::LeftButton);
    }
    void clickLabel(const QString &name, Qt::MouseButton button)
    {
        reveal(find(name));
        QTest::mouseClick(find(name), button);
    }
    void act(const QString &word, Qt::MouseButton mouseButton = Qt::LeftButton)
    {
        const QString verb = word.section(':', 0, 0), object = word.section(':', 1);
        const QList<QColorDialog *> before = openPickers();
        QEvent hover(verb == "enter" ? QEvent::Enter : QEvent::Leave);
        if (verb == "pick" || verb == "drag")
            dialog->setCurrentColor(verb == "pick" ? QColor(10, 20, 30, 40)
                                                   : QColor(50, 60, 70, 80));
        else if (verb == "ok" || verb == "cancel")
            verb == "ok" ? dialog->accept() : dialog->reject();
        else if (verb == "entry")
            enterTarget();
        else if (verb == "look")
            look(object);
        else if (verb == "press")
            press(object);
        else if (verb == "enter" || verb == "leave")
            QApplication::sendEvent(find<QWidget>(object), &hover);
        else if (verb == "letGo")
            QMetaObject::invokeMethod(find<QSlider>(object), "sliderReleased");
        else if (auto *button = window->findChild<QAbstractButton *>(word))
            button->click();
        else
            clickLabel(QString(word).replace("Grad+", "+GradBottom").replace("+", "colorPicker"),
                       mouseButton);
        for (QColorDialog *picker : openPickers()) {
            if (!before.contains(picker))
                dialog = picker;
        }
    }
    void play(const QString &row)
    {
        QString done;
        for (const QString &word : row.simplified().split(' ')) {
            static const QRegularExpression check("^(\\w*)([=~!?])(.*)");
            const QStringList parts = check.match(word).capturedTexts();
            done += word + " ";
            if (parts.isEmpty()) {
                act(word);
            } else if (parts[1].isEmpty()) {
                QString now;
                for (const QString *colour : colours)
                    now += told(*colour).remove('$');
                QCOMPARE(QString(done + now), QString(done + parts[3]));
            } else if (parts[2] == "=") {
                find<QWidget>(parts[1])->setProperty("value", parts[3]);
            } else if (parts[2] == "?") {
                QCOMPARE(done + find<QWidget>(parts[1])->property("value").toString(),
                         done + parts[3]);
            } else {
                const QString worn = told(sheet(parts[1]));
                QVERIFY2(worn.contains(parts[3]) == (parts[2] == "~"), qPrintable(done + worn));
            }
        }
    }
    void playEach(const QString &rows)
    {
        for (const QString &row : rows.split('|')) {
            open();
            play(row);
        }
    }

    // All fragments are told apart.
    void dress()
    {
        Looks &l = looks();
        QString *const pieces[] = {
            &l.lowerFontStyle,      &l.upperFontStyle,           &l.lowerBrush,
            &l.upperBrush,          &l.mouseover.lowerTextStyle, &l.mouseover.upperTextStyle,
            &l.mouseover.bgStyle,   &l.mouseover.borderStyle,    &l.rainbow.bgStyle,
            &l.rainbow.borderStyle,
        };
        for (int i = 0; i < 10; ++i)
            *pieces[i] = untold("LUaAluMmpq"[i]);
        paint().paintKeyBgStyle.fill(untold('o'));
        paint().paintKeyBgStyle[19] = untold('9');
        paint().paintKeyBorderStyle.fill(untold('w'));
        window->keyFeedback().allChangeColorBack();
    }
    QHash<QString, QString> sheets() const
    {
        QHash<QString, QString> all;
        for (const QWidget *widget : window->findChildren<QWidget *>())
            all[widget->objectName()] = widget->styleSheet();
        return all;
    }
    QString changed(const QHash<QString, QString> &before) const
    {
        const QHash<QString, QString> now = sheets();
        QString result;
        for (auto widget = now.begin(); widget != now.end(); ++widget) {
            if (before[widget.key()] != *widget && !widget.key().startsWith("labelTab"))
                result += widget.key() + "=" + told(*widget).remove('$') + " ";
        }
        return sorted(result);
    }
    static QString sorted(const QString &words)
    {
        QStringList list = words.split(' ', Qt::SkipEmptyParts);
        list.sort();
        return list.join(' ');
    }

private slots:
    void pickers()
    {
        // Place, the color of the target, alpha; then the openers with the titles.
        const QString table =
            R"(725 30 white alpha| +E Uppercase Key| +F Finished Keys;
725 30 black alpha| +29 Game Play Key| +HiE Uppercase Highlight;
725 60 white alpha| +D Lowercase Key;
725 30 blue alpha| +KpE Keypress Uppercase| +MoE Mouseover Uppercase;
725 60 blue alpha| +KpD Keypress Lowercase| +MoD Mouseover Lowercase;
725 60 black alpha| +HiD Lowercase Highlight;
2 90 black alpha| +Bg Key Background| +KpBg Keypress Background|
    +RainbowBg Paint Background / Gradient 1;
2 90 gold alpha| +MoBg Mouseover Background| +HiBg Highlight Background;
2 90 #737373 alpha| +FBg Finished Keys Background;
2 90 white alpha| +Wallpaper Wallpaper Background| +27 Game Play Background;
725 90 black alpha| Grad+1 Key Background-Gradient| Grad+2 Keypress Background-Gradient|
    Grad+8 Paint Background Gradient 2;
725 90 gold alpha| Grad+3 Mouseover Background-Gradient| Grad+4 Highlight Background-Gradient;
725 90 #737373 alpha| Grad+5 Finished Keys Background-Gradient;
725 90 white alpha| Grad+7 Wallpaper Background-Gradient| Grad+27 Game Play Background-Gradient;
2 290 blue opaque| +Keyboard Line Highlight Color;
725 290 blue opaque| Grad+6 Line Highlight Color-Gradient)";
        int open = 0;
        for (const QString &group : table.split(';')) {
            const QStringList rows = group.simplified().replace("| ", "|").split('|'),
                              head = rows[0].split(' ');
            for (const QString &row : rows.mid(1)) {
                act(row.section(' ', 0, 0), Qt::RightButton);
                QCOMPARE(openPickers().size(), open);
                act(row.section(' ', 0, 0));
                QCOMPARE(openPickers().size(), ++open); // they stay open side by side
                QCOMPARE(dialog->windowTitle(), row.section(' ', 1));
                QCOMPARE(dialog->pos(), QPoint(head[0].toInt(), head[1].toInt()));
                QCOMPARE(dialog->currentColor().name(), QColor(head[2]).name());
                QCOMPARE(dialog->testOption(QColorDialog::ShowAlphaChannel), head[3] == "alpha");
            }
        }
        play("start entry");
        QCOMPARE(text("labelCorrect"), QString("1"));
        window->close();
        QVERIFY(openPickers().isEmpty());
    }

    // What a picker writes at once and what when it is closed, and what the swap buttons do.
    // Cancel brings back what was there.
    void pickersStayInFrontAndBlockNothing()
    {
        act("+Bg");
        QCOMPARE(dialog->windowHandle()->transientParent(), window->windowHandle());
        QVERIFY(!dialog->isModal());
        QVERIFY(!dialog->parent()); // so that it does not count as part of the main window
    }
    void coloursOfTheLooks()
    {
        playEach(R"(
look:key =12345678 +Bg pick =nn345678 ok =nnx45678 borderLeft +Bg drag =nnx4NN78 ok =nnx4NNX8
    backgroundLeft Grad+1 drag =nNxXNNX8 cancel =nnx4NNX8 borderLeft Grad+1 pick =nnx4NnXx cancel
    =nnx4NNX8 Grad+1 pick ok =nnx4NnXx backgroundLeft Grad+1 drag cancel =nnx4NnXx +Bg drag cancel
    =nnx4NnXx|
look:key +Bg drag =NN345678 cancel =12345678 Grad+1 drag cancel +Bg pick =nn345678 cancel =12345678|
look:key Grad+1 pick ok hoSlider1=4 +Bg pick =1nxx5678 ok =nnxx5678 hoSlider1=2 +Bg drag
    =Nnxx5678 cancel =nnxx5678|
look:key swapGradient1 =21435678 borderLeft swapGradient1 =21436587 swapGradient1 =21435678|
look:keypress +KpBg pick =nnxx5678 ok borderCenter +KpBg drag =nnxxNNXX ok backgroundCenter Grad+2
    drag =nNxXNNXX cancel =nnxxNNXX borderCenter Grad+2 pick =nnxxNnXx cancel =nnxxNNXX +KpBg pick
    =nnxxnnxx|
look:keypress swapGradient2 =21435678 borderCenter swapGradient2 =21436582|
look:mouseover +MoBg pick =nnxx5678 ok borderRight +MoBg drag =nnxxNNXX ok backgroundRight Grad+3
    drag =nNxXNNXX cancel =nnxxNNXX borderRight Grad+3 pick ok =nnxxNnXx swapGradient3 =nnxxnNxX|
look:highlight +HiBg pick cancel =12345678 Grad+4 drag =1N3X5678 cancel =12345678 borderHi Grad+4
    drag ok =12345N7X +HiBg pick =1234nNxX ok =1234nNxX backgroundHi +HiBg drag =N2X4nNxX cancel
    =1234nNxX swapGradient4 =2143nNxX|
look:finished +FBg pick =nnxx5678 ok Grad+5 drag =nNxX5678 cancel =nnxx5678 +FBg drag =NNXX5678
    ok Grad+5 pick ok swapGradient5 =nNxX5678|
look:wallpaper +Wallpaper pick =nnxx5678 ok borderWallpaper +Wallpaper drag =nnxxNNXX ok
    backgroundWallpaper Grad+7 drag =nNxXNNXX cancel =nnxxNNXX borderWallpaper Grad+7 pick =nnxxNnXx
    cancel =nnxxNNXX|
look:rainbow swapGradient8 =21435678 swapGradient8 +RainbowBg pick =nnxx5678 ok rainbowBorder drag
    =nnxxNNXX ok Grad+8 pick =nnxxNnXx cancel =nnxxNNXX rainbowLowercase pick rainbowUppercase drag
    =NNXXNNXX cancel =nnxxNNXX|
look:gamePlay +27 pick =nnxx5678 ok borderGamePlay +27 drag =nnxxNNXX ok Grad+27 pick =nnxxNnXx
    cancel =nnxxNNXX|
look:lines +Keyboard pick =nnxxnnxx h1~$n v1~$n lhHorizontalRadio drag =NNXXnnxx h1~$N v1!$N ok
    Grad+6 pick =NnXxnnxx cancel =NNXXnnxx lhVerticalRadio +Keyboard drag =NNXXNNXX cancel v1~$n
    =NNXXnnxx|
+Keyboard pick cancel h1~0$5 v1~0$5 grad64 h1~$5 v1~$5|
+Wallpaper pick cancel wallpaper!#E0E0E0; +Wallpaper pick ok +Wallpaper drag cancel wallpaper~$n
    Grad+7 drag wallpaper~$N cancel wallpaper!$N)");
    }

    // Cancel of any picker leaves no trace, on the screen or in a file.
    void cancelLeavesNoTrace()
    {
        const QString openers =
            "+E +D +Bg +KpE +KpD +KpBg +MoE +MoD +MoBg +F +FBg +Keyboard +Wallpaper Grad+1 +HiD "
            "+HiBg Grad+2 Grad+3 Grad+4 Grad+5 Grad+6 Grad+7 +RainbowBg Grad+8 +HiE +27 Grad+27 "
            "+29";
        for (const QString &target : {QString(), QString("borderLeft borderCenter borderRight "
                                                         "borderHi borderWallpaper rainbowBorder "
                                                         "cancel borderGamePlay yourEntryCm")}) {
            open();
            play("+E cancel start entry goldenHighlight " + target);
            const auto before = sheets();
            for (const QString &opener : openers.split(' ')) {
                play(opener + " pick drag pick cancel");
                QCOMPARE(QString(opener + ": " + changed(before)), QString(opener + ": "));
            }
        }
    }

    void coloursOfCharacters()
    {
        playEach(R"(
+E pick demoLetter1_Uppercase~$C$Dfont-size:20pt; aKeysMap4~$C$D linePosition1Uppercase~$C$D
    linePosition2Uppercase~$C$D r27~$D r94_2~$C$D ok +E drag r27!$D cancel r27~$D r27_2~$D|
+D pick demoLetter1_Lowercase~$D demoLetter4LowerCase~$D aKeysMap3~$D linePosition1Lowercase~$D
    linePosition2Lowercase~$D r1~$D r53_2~$D underScoreLeft~$D underScoreRight~$D labelTab~$D
    labelSpacebar~$D ok +D drag r1!$D cancel r1~$D|
start +KpE pick demoLetter1~$D ok +KpE drag demoLetter1!$D press:A r27_2!$D cancel demoLetter1~$D
    press:A r27_2~$D goldenHighlight +KpD pick demoLetter3~$D press:a r1_2~$D|
+MoE pick demoLetter1_3~$E +MoD pick demoLetter3_3~$E cancel enter:shield2 r28_2~$E r2_2!$E
    leave:shield2 r28_2!$E|
start entry +F pick dem1~$F dem2~$F dem6~$F r1!$F ok r1~$F +F drag r1~$F cancel r1~$F|
start goldenHighlight +HiE pick demoLetterHiE~$E ok +HiD pick demoLetterHiLowD~$E ok r1_2~$F
    hoSlider4=0 bg1~gold; +HiBg pick ok bg1~$R$S +Bg drag grad12 bg1~$R$S)");
        QCOMPARE(sheet("goldenHighlight"), untold('R') + looks().highlight.bgStyle + untold('E'));
    }

    void gamePlayText()
    {
        const QString head = "background-color: transparent; font: 12pt 'MS Shell Dlg 2';";
        const QString dragged = "color: rgba(50, 60, 70, 80 ) ;";
        play("start matchThisCm +29 pick leMatch~$E matchThis!$E gamePlayCb drag pick");
        QCOMPARE(sheet("matchThis"), QString(head).replace("; f", ";  f") + untold('E'));
        play("yourEntryCm drag press:a leUser~color:$N; leMatch~$E");
        QCOMPARE(sheet("yourEntry"), head + untold('E')); // not its own colour
        play("pick yourEntryCm_2 drag leMatch~color:$N;");
        QCOMPARE(sheet("matchThis") + sheet("yourEntry"), head + dragged + head + dragged);
    }

    void shapesStopsAndWidths()
    {
        for (const QString number : {"1", "2", "3", "4", "5", "6", "7", "8", "27"}) {
            for (const char *shape : {"5", "4", "3", "2", "1", "0"})
                play(QString("grad%1%2 hoSlider%1?%2").arg(number, shape));
        }
        // The look, the ends of its controls' names, its preview and its widest border; the shape
        // and the stop once the border is chosen: the highlight's sliders do not follow its
        // buttons.
        const QString table = R"(
key 1 Left 1 demoLetter1Bg 99 1 5 4 3 $R; keypress 2 Center 2 demoLetterCenterBG 99 1 5 4 3 $R;
mouseover 3 Right 3 demoLetterRightBg 99 1 5 4 3 $R; highlight 4 Hi 4 demoLetter4Bg 99 4 3 5 3 $R;
wallpaper 7 Wallpaper 5 wallpaper 1500 1 5 4 3; gamePlay 27 GamePlay 27 leUserBg 199 1 5 4 3 $R)";
        for (const QString &panel : table.split(';')) {
            QString row = R"(
look:%a grad%b4 slider%b=3 %e~%kbackground-color:$@$4,stop:.3$3); %e!border-color:$@ border%c
    hoSlider%b?%g slider%b?%h hoSlider%b=0 sliderBorderWidth%d=7
    %e~;border-style:solid;border-width:7px;border-color:$5; spinBox%d?7 spinBox%d=11
    sliderBorderWidth%d?10 spinBox%d?11 spinBox%d=9999 hoSlider%b=5 sliderBorderWidth%d?10
    background%c hoSlider%b?%i slider%b?%j
    %e~%kbackground-color:$@$4,stop:.3$3);border-style:solid;border-width:%fpx;
    %e~px;border-color:$*$6,stop:.%h$5);)";
            for (int i = 0; i < 11; ++i)
                row.replace(QString("%%1").arg(QChar('a' + i)), panel.trimmed().section(' ', i, i));
            playEach(row);
        }
        playEach(R"(
look:finished grad54 slider5=0 dem1~$@$4,stop:0$3);|
look:lines lhHorizontalRadio grad64 slider6=1 h4_2~$@$4,stop:.1$3); lhVerticalRadio slider6=9
    v29~$@$8,stop:.9$7); h4_2~.1)");
    }

    void repaints()
    {
        playEach(R"(
start entry r1bg~0$f,stop:.5 slider5=3 dem1~.3 r1bg~.5 letGo:slider5 r1bg~.3 slider1=1 letGo:slider1
    r1bg~0$f,stop:.3 slider5=7 r1bg~.7 slider1=3 +Bg pick ok r1bg~0$f r2bg~$n grad15 r1bg~0$f +FBg
    pick ok r1bg~$n hoSlider5=0 r1bg~$R$S enter:r1 r1bg~gold leave:r1 r1bg~$R$S|
+Bg pick ok grad10 bg1~$R$S bgTab~$R$S r94bg~$R$S swapGradient1 r94bg~$R$S)");
        open();
        const auto compare = [this](const QString &steps, const QString &style, int keys,
                                    int cells) {
            play(steps);
            const KeyboardWidgets &w = window->board().widgets;
            const auto wears = [&](const QLabel *label) {
                return label->styleSheet().contains(style);
            };
            QCOMPARE(std::count_if(w.keyBgList.begin(), w.keyBgList.end(), wears), keys);
            QCOMPARE(std::count_if(w.alphabetBgList.begin(), w.alphabetBgList.end(), wears), cells);
            for (const char *sample :
                 {"demoLetter1Bg", "aKeysMap5", "linePosition1BG", "linePosition2BG"})
                QVERIFY2(sheet(sample).contains(style), qPrintable(steps + sample));
        };
        compare("+Bg pick", "stop: 0 rgba(10, 20, 30, 40 ) ", 54, 94);
        compare("ok slider1=2", "stop: .2 ", 54, 94);
        compare("borderLeft spinBox1=4", "width:4px", 54, 0); // the bar has no borders
        compare("sliderBorderWidth1=6", "width:6px", 54, 0);
        const auto before = sheets();
        play("+MoBg drag slider3=8 demoLetterRightBg~.8");
        QVERIFY2(!changed(before).contains(QRegularExpression("\\b(r\\d|bg)")),
                 qPrintable(changed(before)));
        play("enter:shield3 bg3~.8");
    }

    void underTheMouse()
    {
        dress();
        const auto compare = [this](const QString &widget, const QString &said, int number,
                                    const QString &look) {
            const auto before = sheets();
            find("letterOfAlphabet2")->setText("before");
            game().letterNumber = 7;
            act("enter:" + widget);
            QCOMPARE(changed(before), sorted(look));
            QCOMPARE(widget + text("letterOfAlphabet2"), widget + said);
            QCOMPARE(game().letterNumber, number);
            act("leave:" + widget);
            QCOMPARE(changed(before), QString());
        };
        for (int n = 1; n <= 94; ++n) {
            const int key = n <= 26 ? n : n <= 65 ? n - 26 : n <= 86 ? n - 39 : n - 47;
            const bool shifted = (n > 26 && n <= 52) || (n > 65 && n <= 78) || n > 86;
            const QString said = key <= 26 ? QString("Letter-number: %1").arg(key) : "";
            const QString look =
                QString(" r%1bg=RM r%1=%2 r%1_2=%2").arg(n).arg(shifted ? "uU" : "lL");
            const QString cap = QString("bg%1=RMm").arg(key);
            compare(QString("r%1").arg(n), said, n > 26 && n <= 52 ? n - 27 : n - 1, cap + look);
            if (shifted)
                continue;
            const int upper = n <= 26 ? n + 26 : n <= 65 ? n + 13 : n + 8;
            QString both = look + QString(" r%1bg=RM r%1=uU r%1_2=uU").arg(upper);
            both.replace("r1_2=lL", "r1_2=uL");
            both += key == 6 ? " underScoreLeft=uL" : key == 10 ? " underScoreRight=uL" : "";
            compare(QString("shield%1").arg(key), key == 27 ? "before" : said, 7, cap + both);
        }
    }

    void captionsUnderTheMouse()
    {
        // What the mouse enters and what changes; how it looks then, and once the mouse has left.
        QString table = R"(rcNone|none| color:blue; FONT| color:black;  FONT#
rcRussian|russian2| color:blue; FONT| color:black; FONT#
rcEnglish|english| color:blue; FONT| color:black; FONT#
rcBoth|both| color:blue;  FONT| color:black; FONT#
start|start| font-weight: bold; color: rgb(0, 94, 0);  text-align: center;|
color: rgb(0, 94, 0); text-align: center;#
stop|stop| font-weight: bold; maroon;  text-align: center;|color: maroon; text-align: center;#
labelTab3|labelTab3|border: 3px solid purple; background-color: rgb(170, 0, 0);TAB|
border: none; background-color: rgb(170, 0, 0);TAB#
labelTab4|labelTab4|border: 3px solid purple; background-color: blue;TAB|
border: none; background-color: blue;         TAB#
labelTab1|labelTab1|SELECTED|SELECTED)";
        table.replace("FONT", "font: 9pt 'MS Shell Dlg 2' ; ")
            .replace("TAB", "  font: 10pt 'MS Shell Dlg 2';");
        table.replace("SELECTED", sheet("labelTab1"));
        for (const QString &row : table.remove('\n').split('#')) {
            const QStringList parts = row.split('|');
            act("enter:" + parts[0]);
            QCOMPARE(parts[0] + sheet(parts[1]), parts[0] + parts[2]);
            act("leave:" + parts[0]);
            QCOMPARE(parts[0] + sheet(parts[1]), parts[0] + parts[3]);
        }
        QTest::mouseClick(find("rcNone"), Qt::LeftButton);
        QVERIFY(shown("checkNone") && !shown("checkBoth")); // it is a button still
        for (const QString name : {"1", "2", "3", "4", "5", "27", "8"}) {
            const auto *spin = find<QWidget>("spinBox" + name);
            reveal(spin);
            act("enter:spinBox" + name);
            QCOMPARE(window->focusWidget() == spin, name != "8");
            act("leave:spinBox" + name);
            QVERIFY(!window->focusWidget());
        }
        play("+E enter:spinBox1 ok");
        QVERIFY(window->focusWidget());
        QTRY_VERIFY(!window->focusWidget()); // a closed picker gives it back, in a second
    }

    void painting()
    {
        const QString table = R"(
rainbowBackground|shield5|bg5=Rpw r5bg=Rp r31bg=Rp; rainbowBorder|shield5|bg5=Roq;
rainbowBackground rainbowBoth|shield5|bg5=Rpq r5bg=Rp r31bg=Rp;
rainbowLowercase|shield5|r5=aL r5_2=aL; rainbowUppercase|shield5|r31=AU r31_2=AU;
Grad+8|shield5|bg5=Rpw r5bg=Rp r31bg=Rp;
rainbowLowercase rainbowBoth|shield47|bg47=Rpq r86=aL r86_2=aL r86bg=Rp r94bg=Rp;
rainbowBackground|shield27|bg27=Rpw r53bg=Rp r66bg=Rp;
rainbowBackground|shield1|bg1=Rpw r1bg=Rp r27bg=Rp aKeysMap5=Rpw linePosition1BG=Rpw
    linePosition2BG=Rpw;
rainbowBorder|shield1|bg1=Roq aKeysMap5=Roq linePosition1BG=Roq linePosition2BG=Roq;
rainbowLowercase|shield1|r1=aL r1_2=aL aKeysMap3=CaL linePosition1Lowercase=CaL
    linePosition2Lowercase=CaL;
rainbowUppercase|shield1|r27=AU r27_2=AU aKeysMap4=CAU linePosition1Uppercase=CAU
    linePosition2Uppercase=CAU;
rainbowUppercase|r27|r27=AU r27_2=AU aKeysMap4=AU linePosition1Uppercase=CAU
    linePosition2Uppercase=CAU;
rainbowLowercase|r1|; rainbowLowercase|shield6|r6=aL r6_2=aL underScoreLeft=aL;
rainbowLowercase|shield10|r10=aL r10_2=aL underScoreRight=aL;
rainbowBackground|r60|bg34=Rpw r60bg=Rp r73bg=Rp; rainbowLowercase|r60|r60=aL r60_2=aL;
rainbowUppercase|r60|; rainbowUppercase|r73|r73=AU r73_2=AU; rainbowLowercase|r73|;
rainbowBackground rainbowBoth|r21|bg21=Rpq r21bg=Rp r47bg=R9;
rainbowBackground|labelShiftRight|bgShiftRight=Rpw;
rainbowBackground rainbowBoth|labelBackSpace|bgBackSpace=Rpq;
rainbowLowercase|labelSpacebar|labelSpacebar=aL; rainbowUppercase|labelTab|)";
        for (const QString &line : table.split(';')) {
            const QString row = line.simplified();
            open();
            play(row.section('|', 0, 0));
            dress();
            const auto before = sheets();
            act("enter:" + row.section('|', 1, 1));
            act("leave:" + row.section('|', 1, 1)); // what is painted stays
            QCOMPARE(QString(row + changed(before)), QString(row + sorted(row.section("|", 2))));
        }
        open();
        play("rainbowBorder");
        dress();
        act("enter:r1");
        QCOMPARE(paint().paintKeyBorderStyle[5] + paint().paintKeyBorderStyle[0],
                 untold('q') + untold('w'));
    }

    void paintingPickers()
    {
        const QString table = R"(
rainbowBorder|Paint Border / Gradient 1|Border; +RainbowBg|Paint Border / Gradient 1|Border;
Grad+8|Paint Border Gradient 2|Border; rainbowLowercase|Paint Lowercase|Lowercase;
rainbowUppercase|Paint Uppercase|Uppercase;
rainbowBackground|Paint Background / Gradient 1|Background;
Grad+8|Paint Background Gradient 2|Background)";
        for (const QString &line : table.split(';')) {
            const QString row = line.simplified();
            play(row.section('|', 0, 0));
            QCOMPARE(dialog->windowTitle(), row.section('|', 1, 1));
            for (const QString button : {"Background", "Border", "Lowercase", "Uppercase"})
                QCOMPARE(find<QAbstractButton>("rainbow" + button)->isChecked(),
                         button == row.section('|', 2));
            if (row.endsWith("case"))
                QCOMPARE(dialog->pos(), QPoint(row.endsWith("Lowercase") ? 978 : 20, 24));
            play("pick drag cancel");
        }
        play("rainbowLowercase drag pick");
        QCOMPARE(looks().lowerBrush, untold('E'));
        play("enter:shield5 r5_2~$E r6_2!$E rainbowUppercase");
        QVERIFY(dialog->currentColor() == Qt::white); // of the part that is chosen now
        play("enter:shield6 leave:shield6 drag +RainbowBg rainbowLowercase");
        QCOMPARE(dialog->currentColor(), QColor(10, 20, 30, 40));
        play("enter:shield7 r7_2~$E cancel enter:shield8 leave:shield8 r8_2!$E r7_2~$E");
    }

    void paintStays()
    {
        play(R"(
rainbowBackground pick enter:shield1 enter:labelTab rainbowLowercase drag enter:labelTab ok
    sliderKeyShape=1 bg1~$n bgTab~$n labelTab~$N aKeysMap5~$n linePosition1BG~$n aKeysMap3!$N
    sliderKeyShape=0 bgTab~$n)");
        open();
        play("rainbowLowercase pick ok colorPickerD~white rainbowBackground enter:shield5 bg5~$n");
    }

    // One act, and all that shows the look says the same.
    void screenAndLooksAgree_data()
    {
        QTest::addColumn<QString>("acts");
        QTest::newRow("one key painted, the others follow the keys")
            << "+Bg pick ok rainbowBackground drag enter:shield5 ok enter:shield9 leave:shield9 "
               "bg9~$n r9bg~$n bg5~$N";
        QTest::newRow("color of the keys over painted ones")
            << "rainbowBackground pick enter:shield5 ok +Bg drag bg5~$N bg9~$N ok bg5~$N bg9~$N "
               "enter:shield5 leave:shield5 bg5~$N";
        QTest::newRow("letters of the keys beside painted ones")
            << "rainbowUppercase pick enter:shield5 ok +E drag r31~$E r30!$E ok r31~$E r30!$E "
               "enter:shield4 leave:shield4 r30!$E";
        QTest::newRow("a part that is chosen brings its paint back at once")
            << "rainbowBackground pick enter:shield5 ok +Bg drag ok bg5~$N rainbowBackground "
               "bg5~$n";
        QTest::newRow("both parts stay at rest")
            << "rainbowBackground pick rainbowBorder drag rainbowBoth enter:shield5 ok "
               "enter:shield5 leave:shield5 r5bg~$n bg5~$n bg5~$N";
        QTest::newRow("a border brush without a width")
            << "rainbowBorder pick enter:shield5 bg5~width:3px spinBox8?3 sliderBorderWidth8?3";
        QTest::newRow("width set with the background in hand")
            << "spinBox1=7 bg1!width:7px borderLeft bg1~width:7px demoLetter1Bg~width:7px";
        QTest::newRow("Gradient 1 for letters")
            << "rainbowUppercase ok +RainbowBg pick enter:shield5 r31~$E +RainbowBg";
        QTest::newRow("swatch of the letters that are painted")
            << "rainbowUppercase pick colorPickerRainbowBg~#280a141e rainbowBackground "
               "colorPickerRainbowBg!#280a141e";
        QTest::newRow("swatch of Your Entry")
            << "yourEntryCm +29 pick colorPicker29~$E matchThisCm colorPicker29!$E yourEntryCm "
               "colorPicker29~$E";
        QTest::newRow("finished samples")
            << "+FBg pick demoLetterFinishedBg~$n dem1~$n dem6~$n grad54 dem2~$@ "
               "demoLetterFinishedBg~$@ +F pick demoLetterFinishedLowercase~$F dem1~$F "
               "sliderKeyShape=1 dem1~17px demoLetterFinishedBg~39px";
        QTest::newRow("each box keeps its look in any shape of keys")
            << "matchThisCm +27 pick ok yourEntryCm +27 drag ok leMatchBg~$n leUserBg~$N "
               "sliderKeyShape=1 leMatchBg~30px leMatchBg~$n leUserBg~$N matchThisBg~14px";
        QTest::newRow("lines of the radial shape")
            << "grad64 h1~$5 v1~$5 lhBothRadio +Keyboard pick h1~$x v1~$x lhHorizontalRadio drag "
               "h1~$X v1~$x";
    }
    void screenAndLooksAgree()
    {
        QFETCH(QString, acts);
        play(acts);
    }

    void colorsOfShadows()
    {
        click("menuShadows");
        find<QAbstractButton>("shadowKeys")->click();
        QTest::mouseClick(find("textShadowColorBox"), Qt::LeftButton);
        dialog = openPickers().last();
        QCOMPARE(dialog->currentColor(), QColor("#484848"));
        play("drag");
        QVERIFY(sheet("textShadowColorBox").contains("#323c46"));
        QVERIFY(sheet("shadowKeysDisplay").contains("#323c46"));
        play("cancel");
        QVERIFY(sheet("textShadowColorBox").contains("#484848"));
        QVERIFY(sheet("shadowKeysDisplay").contains("#484848"));
    }

    // Keys rest in their paint until the key look is coloured anew.
    void paintIsForgotten()
    {
        play(R"(
rainbowBackground pick enter:shield5 ok enter:shield9 bg9~gold leave:shield9 enter:shield5
    leave:shield5 bg5~$n rainbowBackground cancel enter:shield9 bg9~gold leave:shield9 bg9!$n
    enter:shield5 leave:shield5 bg5~$n hoSlider1=4 enter:shield5 leave:shield5 bg5~$n hoSlider1=5
    enter:shield5 leave:shield5 bg5!$n bg5~$* Grad+8 ok enter:shield9 bg9~gold leave:shield9 Grad+8
    cancel enter:shield9 bg9~gold leave:shield9)");
        PaintTables &p = paint();
        p.parts[PaintTables::Background].on = p.parts[PaintTables::Border].on = p.parts[PaintTables::Lower].on = p.parts[PaintTables::Upper].on = p.parts[PaintTables::English].on =
            true;
        play("+E cancel +D cancel +Bg cancel");
        QVERIFY(p.parts[PaintTables::English].on && p.parts[PaintTables::Lower].on && p.parts[PaintTables::Background].on);
        play("+E ok");
        QVERIFY(!p.parts[PaintTables::English].on && p.parts[PaintTables::Upper].on);
        play("+D ok");
        QVERIFY(!p.parts[PaintTables::Lower].on && !p.parts[PaintTables::Upper].on && p.parts[PaintTables::Border].on);
        play("slider1=2 hoSlider1=1 +Bg drag ok");
        QVERIFY(!p.parts[PaintTables::Background].on && !p.parts[PaintTables::Border].on);
        QCOMPARE(told(looks().rainbow.bgEnd) + looks().rainbow.gradStop, QString("$N.2"));
        QCOMPARE(looks().rainbow.bgStyle, looks().key.bgStyle);
        play("enter:shield5 leave:shield5 bg5~.2$N");
    }
};

QTEST_MAIN(TestStyle)
#include "tst_style.moc"
