#include "window.h"

#include <QAccessible>
#include <QPushButton>

// What people who hear the window, or see it badly, need.
class TestAccess : public WindowTest
{
    Q_OBJECT

    // What readers read out unasked: the text of whatever is a notification to them.
    QStringList news() const
    {
        QStringList texts;
        for (QWidget *widget : window->findChildren<QWidget *>()) {
            QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
            if (interface->role() == QAccessible::Notification && interface->childCount() == 1 &&
                !interface->state().invisible)
                texts << interface->child(0)->text(QAccessible::Name);
        }
        texts.removeAll(QString());
        return texts;
    }

    static bool isInteractive(const QAccessibleInterface &interface)
    {
        static const QSet<QAccessible::Role> roles{
            QAccessible::Button,  QAccessible::RadioButton, QAccessible::CheckBox,
            QAccessible::Slider,  QAccessible::SpinBox,     QAccessible::ComboBox,
            QAccessible::PageTab, QAccessible::Link,        QAccessible::EditableText};
        // Labels that act as buttons show it by their cursor.
        const auto *widget = qobject_cast<QWidget *>(interface.object());
        return roles.contains(interface.role()) ||
               (widget && widget->cursor().shape() == Qt::PointingHandCursor);
    }
    // Qt's own parts of a control, such as the field of a spin box, are no controls of their own.
    static bool isPart(const QAccessibleInterface &interface)
    {
        const QObject *object = interface.object();
        return object && (object->objectName().startsWith("qt_") || object->objectName().isEmpty());
    }
    static int walk(QAccessibleInterface *interface, QStringList &nameless)
    {
        int found = 0;
        if (interface->object() && interface->object()->objectName() == "gbPushButtons")
            return 0; // hold the choice for the program; nobody can see them
        if (isInteractive(*interface) && !isPart(*interface)) {
            ++found;
            if (interface->text(QAccessible::Name).trimmed().isEmpty())
                nameless << interface->object()->objectName();
        }
        for (int i = 0; i < interface->childCount(); ++i)
            found += walk(interface->child(i), nameless);
        return found;
    }

    static double luminance(QRgb color)
    {
        const auto linear = [](int channel) {
            const double c = channel / 255.0;
            return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
               0.0722 * linear(qBlue(color));
    }
    // Of the ink that stands out most against the color that most of the place has; a gradient
    // counts as few colors.
    static double contrast(const QImage &picture, const QRect &place)
    {
        QHash<QRgb, int> exact, alike;
        const auto family = [](QRgb color) { return color & 0xfff0f0f0; };
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                ++exact[picture.pixel(x, y)];
                ++alike[family(picture.pixel(x, y))];
            }
        }
        const auto colors = exact.keys();
        const auto share = [&](QRgb c) { return std::make_pair(alike[family(c)], exact[c]); };
        const double ground =
            0.05 + luminance(*std::max_element(colors.begin(), colors.end(), [&](QRgb a, QRgb b) {
                return share(a) < share(b);
            }));
        double best = 1;
        for (const QRgb color : colors) {
            const double ink = luminance(color) + 0.05;
            best = std::max(best, std::max(ink, ground) / std::min(ink, ground));
        }
        return best;
    }
    // What is hard to read now: enabled, in the window, with a text, and covered by nothing but
    // what lets one see through.
    QStringList faint(bool optionsOpen) const
    {
        const QImage picture = window->grab().toImage();
        QStringList names;
        for (QWidget *widget : window->findChildren<QWidget *>()) {
            const QString text = widget->property("text").toString().trimmed();
            const QRect place = QRect(widget->mapTo(window.get(), QPoint()), widget->size())
                                    .intersected(window->rect());
            if (text.isEmpty() || !widget->isVisible() || !widget->isEnabled() ||
                widget->visibleRegion().isEmpty() || place.isEmpty() ||
                (optionsOpen && window->childAt(place.center()) != widget))
                continue;
            const double ratio = contrast(picture, place);
            if (ratio < 4.5)
                names << QString("%1 %2").arg(widget->objectName()).arg(ratio, 0, 'f', 1);
        }
        return names;
    }

private slots:
    void everyControlHasAName()
    {
        QStringList nameless;
        int controls = 0;
        window->options();
        QWidget &menu = window->firstWindow();
        for (const char *opener :
             {"instructionsButton", "selfExploreButton", "exploreButton", "aboutButton"})
            menu.findChild<QPushButton *>(opener)->click();
        for (QWidget *top : QApplication::topLevelWidgets()) {
            if (top->windowTitle().isEmpty())
                continue; // the lists of combo boxes
            controls += walk(QAccessible::queryAccessibleInterface(top), nameless);
        }
        QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(", ")));
        QVERIFY2(controls > 300, qPrintable(QString::number(controls)));
    }

    void targetsAndMessagesAreReadOut()
    {
        click("start");
        QCOMPARE(news(), QStringList{"a"});
        enterTarget();
        QCOMPARE(news(), (QStringList{"First letter is above the last letter", "b"}));
    }

    void textsCanBeRead()
    {
        QCOMPARE(faint(false).join(", "), QString());
        click("start");
        enterTarget();
        click("goldenHighlight");
        QCOMPARE(faint(false).join(", "), QString());
        click("stop");
        for (const char *menu : {"menuColorMadness", "menuKestrixKeyboard", "menuFonts",
                                 "menuPhotos", "menuShadows", "menuAudio", "menuGamePlay"}) {
            click(menu);
            QVERIFY2(faint(true).isEmpty(), qPrintable(menu + (": " + faint(true).join(", "))));
        }
    }
};

QTEST_MAIN(TestAccess)
#include "tst_access.moc"
