#pragma once

#include "window.h"

#include <QColorDialog>
#include <QTabWidget>
#include <QWindow>

inline const QColor picked(10, 20, 30, 40), dragged(50, 60, 70, 80);     // what the tests choose
inline const QColor opaquePicked(10, 20, 30), opaqueDragged(50, 60, 70); // without alpha
inline const QString radial =
    "qradialgradient( cx: .5,  cy: .5, radius: .5, fx:0.5, fy:0.5, stop : 0 ";
inline const QString repeating =
    "qradialgradient(spread:repeat, cx:  .5, cy:  .5, radius: .1,fx:0.5, fy:0.5,   stop : 0 ";

// A look with a background and perhaps a border, and the controls that belong to it.
struct Panel
{
    const char *name;
    int number; // of its shapes, its stop and its second picker
    const char *picker, *background, *border;
    int widthNumber, widest;
    const char *sample;
};
inline const Panel panels[] = {
    {"keys", 1, "Bg", "backgroundLeft", "borderLeft", 1, 99, "demoLetter1Bg"},
    {"keypress", 2, "KpBg", "backgroundCenter", "borderCenter", 2, 99, "demoLetterCenterBG"},
    {"mouseover", 3, "MoBg", "backgroundRight", "borderRight", 3, 99, "demoLetterRightBg"},
    {"highlight", 4, "HiBg", "backgroundHi", "borderHi", 4, 99, "demoLetter4Bg"},
    {"wallpaper", 7, "Wallpaper", "backgroundWallpaper", "borderWallpaper", 5, 1500, "wallpaper"},
    {"boxes", 27, "27", "backgroundGamePlay", "borderGamePlay", 27, 199, "leUserBg"},
    {"paint", 8, "RainbowBg", "rainbowBackground", "rainbowBorder", 8, 99, "demoLetter4Bg"},
    {"finished", 5, "FBg", "", "", 0, 0, "dem1"},
};

// What the tests of the color panels share: opening pickers, choosing colors, and asking who wears
// what.
class StyleTest : public WindowTest
{
    Q_OBJECT

protected:
    QColorDialog *dialog = nullptr; // opened last

    void prepare() override { window->options(); }
    Looks &looks() { return window->wardrobe().looks; }
    Look &lookOf(int panel)
    {
        Looks &l = looks();
        Look *const all[] = {&l.key,       &l.keypress, &l.mouseover, &l.highlight,
                             &l.wallpaper, &l.gamePlay, &l.rainbow,   &l.finished};
        return *all[panel];
    }
    PaintTables &paint() { return window->wardrobe().paint; }
    const KeyboardWidgets &widgets() { return window->furniture().widgets; }
    void dressKeys() { window->keyFeedback().allChangeColorBack(); }

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
            click(QString("labelTab%1").arg(tab));
    }
    void clickOpener(const QString &name, Qt::MouseButton button = Qt::LeftButton)
    {
        reveal(find("colorPicker" + name));
        QTest::mouseClick(find("colorPicker" + name), button);
    }
    void noteOpened(const QList<QColorDialog *> &before)
    {
        for (QColorDialog *picker : openPickers()) {
            if (!before.contains(picker))
                dialog = picker;
        }
    }
    void openPicker(const QString &name)
    {
        const auto before = openPickers();
        clickOpener(name);
        noteOpened(before);
    }
    void openGradient(int panel) { openPicker(QString("GradBottom%1").arg(panel)); }
    // Buttons, of which some open a picker.
    void push(const QString &buttons)
    {
        const auto before = openPickers();
        choose(buttons);
        noteOpened(before);
    }
    void pick(const QColor &color = picked)
    {
        dialog->setCurrentColor(color);
        pass(0);
    }
    void ok() { dialog->accept(); }
    void cancel() { dialog->reject(); }
    void pickIn(const QString &picker, const QColor &color = picked)
    {
        openPicker(picker);
        pick(color);
    }
    void give(const QString &picker, const QColor &color = picked)
    {
        pickIn(picker, color);
        ok();
    }
    void chooseShape(int panel, int shape)
    {
        reveal(find(QString("grad%1%2").arg(panel).arg(shape)));
        click(QString("grad%1%2").arg(panel).arg(shape));
    }
    void passOver(const QString &label)
    {
        hover(label);
        leave(label);
    }

    static QString rgba(const QColor &c)
    {
        return QString::asprintf("rgba(%d, %d, %d, %d ) ", c.red(), c.green(), c.blue(), c.alpha());
    }
    // Those of the widgets whose style sheets have the text.
    QString wearing(const QString &style, const QString &names) const
    {
        QStringList result;
        for (const QString &name : names.split(' ', Qt::SkipEmptyParts)) {
            if (sheet(name).contains(style))
                result << name;
        }
        return result.join(' ');
    }
    QString colored(const QColor &color, const QString &names) const
    {
        return wearing(rgba(color).trimmed(), names);
    }

    // The colors of a part of a look: end, start, and the two without alpha.
    static QStringList colorsOf(const Look &l, bool border)
    {
        return border ? QStringList{l.borderEnd, l.borderStart, l.borderEndHex, l.borderStartHex}
                      : QStringList{l.bgEnd, l.bgStart, l.bgEndHex, l.bgStartHex};
    }
    static QStringList colors(const QColor &end, const QColor &start)
    {
        return {rgba(end), rgba(start), end.name(), start.name()};
    }
    static QStringList colorsOf(const LineLook &l, bool vertical)
    {
        return vertical ? QStringList{l.verticalEnd, l.verticalStart, l.verticalEndHex,
                                      l.verticalStartHex}
                        : QStringList{l.horizontalEnd, l.horizontalStart, l.horizontalEndHex,
                                      l.horizontalStartHex};
    }
    // All eight are told apart.
    static void giveColors(Look &l)
    {
        l.bgEnd = "red", l.bgStart = "green", l.borderEnd = "blue", l.borderStart = "lime";
        l.bgEndHex = "#000003", l.bgStartHex = "#000004";
        l.borderEndHex = "#000007", l.borderStartHex = "#000008";
    }

    // Pieces of style sheets that are nothing but the word by which they are told.
    void dress()
    {
        Looks &l = looks();
        l.lowerFontStyle = "/* font*/";
        l.upperFontStyle = "/* Font*/";
        l.lowerBrush = "/*brush*/";
        l.upperBrush = "/*Brush*/";
        l.mouseover.lowerTextStyle = "/*lit*/";
        l.mouseover.upperTextStyle = "/*Lit*/";
        l.mouseover.bgStyle = "/*lit*/";
        l.mouseover.borderStyle = "/* lit frame*/";
        l.rainbow.bgStyle = "/*brush*/";
        l.rainbow.borderStyle = frame;
        paint().paintKeyBgStyle.fill("/*old*/");
        paint().paintKeyBgStyle[19] = "/*key 20*/";
        paint().paintKeyBorderStyle.fill("/* edge*/");
        dressKeys();
    }
    const QString frame = "border: 1px solid /* frame*/;"; // needs a width
    QHash<QString, QString> sheets() const
    {
        QHash<QString, QString> all;
        for (const QWidget *widget : window->findChildren<QWidget *>())
            all[widget->objectName()] = widget->styleSheet();
        return all;
    }
    // How the widgets look that have changed: "look: widget widget; look: widget"
    QString changed(const QHash<QString, QString> &before) const
    {
        static const QRegularExpression marks("/\\*|\\*/");
        QMap<QString, QStringList> result;
        const QHash<QString, QString> now = sheets();
        for (auto widget = now.begin(); widget != now.end(); ++widget) {
            if (before[widget.key()] != *widget && !widget.key().startsWith("labelTab"))
                result[QString(*widget)
                           .replace(frame, " frame")
                           .remove("border-radius: 10px;")
                           .replace("background-color: transparent;", "clear ")
                           .remove(marks)]
                    << widget.key();
        }
        return told(result);
    }
    static QString told(const QMap<QString, QStringList> &looks)
    {
        QStringList parts;
        for (auto look = looks.begin(); look != looks.end(); ++look) {
            QStringList widgets = *look;
            widgets.sort();
            parts << look.key() + ": " + widgets.join(' ');
        }
        return parts.join("; ");
    }

    // One act of a player, in a word or two. A name alone is clicked.
    void act(const QString &act)
    {
        const QString object = act.section(' ', -1);
        if (act == "pick" || act == "drag")
            pick(act == "pick" ? picked : dragged);
        else if (act == "ok" || act == "cancel")
            act == "ok" ? ok() : cancel();
        else if (act == "type")
            enterTarget();
        else if (act.startsWith("over "))
            passOver(object);
        else if (act.startsWith("enter "))
            hover(object);
        else if (act.startsWith("press "))
            press(object);
        else if (act.startsWith("let go "))
            find<QSlider>(object)->setSliderDown(false);
        else if (act.startsWith("hold "))
            find<QSlider>(object)->setSliderDown(true);
        else if (act.contains('='))
            set(act.section('=', 0, 0), act.section('=', 1).toInt());
        else if (act.startsWith("grad"))
            chooseShape(act.mid(4, 1).toInt(), act.mid(5).toInt());
        else
            act.startsWith("colorPicker") ? openPicker(act.mid(11)) : push(act);
    }
};
