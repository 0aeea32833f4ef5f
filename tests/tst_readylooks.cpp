#include "gradientpanels.h"
#include "optionrooms.h"
#include "styletext.h"
#include "ui_tambrel.h"
#include "window.h"

#include <cmath>

// The looks that come with the program.
class TestReadyLooks : public WindowTest
{
    Q_OBJECT

    const QString keyboardLooks = QFINDTESTDATA("../looks/Keyboard Looks");
    const QString paintLooks = QFINDTESTDATA("../looks/Paint Looks");
    QString shipped(const QString &kind, const QString &name) const
    {
        return QString("%1/%2.txt").arg(kind == "Paint" ? paintLooks : keyboardLooks, name);
    }
    void openLook(const QString &kind, const QString &name)
    {
        answer("open" + kind, shipped(kind, name));
        QVERIFY(shown(kind.toLower() + "Theme") && !shown(kind.toLower() + "Theme_3"));
        QCOMPARE(text(kind.toLower() + "Theme"), name);
    }
    static QByteArray bytesOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void rowOfEach(bool withPlain) const
    {
        QTest::addColumn<QString>("name");
        for (const QString &file : QDir(keyboardLooks).entryList({"*.txt"}))
            if (withPlain || file != "Plain.txt")
                QTest::newRow(qPrintable(file)) << file.chopped(4);
    }
    void prepare() override { window->options(); }

    // ---- contrast

    static double luminance(const QColor &color)
    {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    }
    static double contrast(const QColor &one, const QColor &other)
    {
        const double a = luminance(one), b = luminance(other);
        return (qMax(a, b) + 0.05) / (qMin(a, b) + 0.05);
    }
    // All that a background can show: its color, or eleven steps from one end of its gradient to
    // the other.
    static QVector<QColor> groundsOf(const QString &sheet)
    {
        static const QRegularExpression gradient(
            "background-color: q[^;]*stop ?: 0 ([^;]*), stop: [\\d.]+ +([^;]*)\\);"),
            solid("background-color: ([^q;][^;]*);");
        const auto ends = gradient.match(sheet);
        if (!ends.hasMatch())
            return {StyleText::color(solid.match(sheet).captured(1))};
        const QColor from = StyleText::color(ends.captured(1)),
                     to = StyleText::color(ends.captured(2));
        QVector<QColor> steps;
        for (int i = 0; i <= 10; ++i) {
            const auto mixed = [i](int a, int b) { return a + (b - a) * i / 10; };
            steps << QColor(mixed(from.red(), to.red()), mixed(from.green(), to.green()),
                            mixed(from.blue(), to.blue()));
        }
        return steps;
    }
    QStringList faint;
    int looked = 0;
    void look(const QWidget *text, const QWidget *ground, const char *state)
    {
        ++looked;
        const QColor ink = StyleText::textColor(text->styleSheet());
        for (const QColor &color : groundsOf(ground->styleSheet())) {
            if (ink.isValid() && color.isValid() && ink.alpha() == 255 && color.alpha() == 255 &&
                contrast(ink, color) >= 4.5)
                continue;
            faint << QString("%1 %2: %3 on %4, %5")
                         .arg(state, text->objectName(), ink.name(), color.name())
                         .arg(contrast(ink, color));
            return;
        }
    }
    // All that can be read of a cap, and of its cells in the bar.
    void lookAtCap(int cap, const char *state)
    {
        const KeyboardWidgets &widgets = window->furniture().widgets;
        for (const int key : {Keys::unshifted(cap), Keys::shifted(cap)}) {
            look(widgets.keyText(key), widgets.background(cap), state);
            look(widgets.barLetter(key), widgets.barBackground(key), state);
        }
        if (cap == 6 || cap == 10)
            look(find(cap == 6 ? "underScoreLeft" : "underScoreRight"), widgets.background(cap),
                 state);
    }
    void lookAtKeys(const char *state)
    {
        const KeyboardWidgets &widgets = window->furniture().widgets;
        for (int key = 1; key <= Keys::count; ++key) {
            window->keyFeedback().key(key);
            lookAtCap(Keys::cap(key), state);
            window->keyFeedback().changeColorBack(key);
            hover(widgets.barLetter(key)->objectName());
            lookAtCap(Keys::cap(key), "under the mouse in the bar");
            leave(widgets.barLetter(key)->objectName());
        }
        for (int cap = 1; cap <= Keys::capCount; ++cap) {
            lookAtCap(cap, "at rest");
            hover(QString("shield%1").arg(cap));
            lookAtCap(cap, "under the mouse");
            leave(QString("shield%1").arg(cap));
        }
    }
    void lookAtAll()
    {
        const KeyboardWidgets &widgets = window->furniture().widgets;
        looked = 0;
        faint.clear();
        lookAtKeys("pressed");
        for (int i = 0; i < Keys::controlCount; ++i)
            look(widgets.text(Keys::Place::ofControl(i)),
                 widgets.background(Keys::Place::ofControl(i)), "at rest");
        look(find("aKeysMap3"), find("aKeysMap5"), "on the map");
        look(find("aKeysMap4"), find("aKeysMap5"), "on the map");
        click("start");
        for (int key = 1; key <= Keys::count; ++key) {
            find<QLineEdit>("leMatch")->setText(widgets.letter(key));
            click("goldenHighlight");
            lookAtCap(Keys::cap(key), "highlighted");
            game().letterNumber = Keys::index(key);
            window->keyFeedback().key(key);
            lookAtCap(Keys::cap(key), "highlighted and pressed");
            window->keyFeedback().changeColorBack(key);
            look(find<QWidget>("goldenHighlight"), find<QWidget>("goldenHighlight"), "its button");
            click("goldenHighlight");
        }
        find<QLineEdit>("leMatch")->setText("a");
        window->options().dresser.all();
        for (const char *box : {"leMatch", "leUser"})
            look(find<QLineEdit>(box), find(QString(box) + "Bg"), "box");
        for (int key = 1; key <= Keys::count; ++key)
            game().setKeyPressed(key);
        window->keyFeedback().allChangeColorBack();
        lookAtKeys("finished and pressed");
        look(find<QWidget>("pbQuit"), find("wallpaper"), "on the wallpaper");
    }

private slots:
    void everyCharacterCanBeRead_data() { rowOfEach(false); } // Plain has a darker blue
    void everyCharacterCanBeRead()
    {
        QFETCH(QString, name);
        openLook("Keyboard", name);
        lookAtAll();
        QVERIFY2(faint.isEmpty(), qPrintable(faint.mid(0, 20).join('\n')));
        open();
        openLook("Keyboard", name);
        openLook("Paint", name);
        lookAtAll();
        QVERIFY2(faint.isEmpty(), qPrintable(faint.mid(0, 20).join('\n')));
        QVERIFY(looked > 2000);
    }

    void savedAgainTheyAreTheSame_data() { rowOfEach(true); }
    void savedAgainTheyAreTheSame()
    {
        QFETCH(QString, name);
        for (const QString kind : {"Keyboard", "Paint"}) {
            openLook(kind, name);
            answer("save" + kind, path("again.txt"));
            QCOMPARE(bytesOf(path("again.txt")), bytesOf(shipped(kind, name)));
            QVERIFY(bytesOf(path("again.txt")).size() > 1000);
        }
    }

    // The way back to what every start begins with.
    void plainIsTheStart()
    {
        const auto sheets = [this] {
            QMap<QString, QString> all;
            for (const QWidget *widget : window->findChildren<QWidget *>())
                all[widget->objectName()] =
                    widget->styleSheet() + (widget->graphicsEffect() ? " shadow" : "");
            // What any file puts on these stays; the brush gets a border without width.
            for (const char *name : {"pbQuit", "hideNonVitals", "demoLetter4Bg"})
                all.remove(name);
            return all;
        };
        // The buttons lose their grounds, whatever is opened.
        const auto picture = [this](QColor *corner = nullptr) {
            QImage image = window->grab().toImage();
            if (corner)
                *corner =
                    image.pixelColor(find<QWidget>("pbQuit")->geometry().topLeft() + QPoint(4, 4));
            QPainter painter(&image);
            for (const char *name : {"pbQuit", "hideNonVitals"})
                painter.fillRect(find<QWidget>(name)->geometry(), Qt::black);
            return image;
        };
        const QImage seen = picture();
        window->options().dresser.all(); // what was built in its colors takes on the look's text
        const QMap<QString, QString> start = sheets();
        open();
        openLook("Keyboard", "Neon");
        openLook("Paint", "Big Letters");
        click("theme3");
        choose("shadowKeys textShadowTambrel borderLeft borderHi");
        set("hoSlider1", 4);
        set("spinBox1", 9);
        set("hoSlider6", 3);
        find<QComboBox>("fontComboBoxUppercase")->setCurrentText("Liberation Serif");
        openLook("Paint", "Finger Colors");
        openLook("Keyboard", "Plain");
        openLook("Paint", "Plain");
        choose("backgroundLeft backgroundHi");
        set("hoSlider6", 1);
        const QMap<QString, QString> now = sheets();
        QCOMPARE(now.keys(), start.keys());
        for (auto each = start.begin(); each != start.end(); ++each)
            QCOMPARE(each.key() + ' ' + now[each.key()], each.key() + ' ' + each.value());
        QVERIFY(start.size() > 900);
        QColor quit;
        QCOMPARE(picture(&quit), seen);
        QCOMPARE(quit, QColor(Qt::white));
    }
};

QTEST_MAIN(TestReadyLooks)
#include "tst_readylooks.moc"
