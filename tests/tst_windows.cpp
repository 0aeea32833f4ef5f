#include "aboutwindow.h"
#include "exploreworld.h"
#include "instructions.h"
#include "openingwindow.h"
#include "selfexplore.h"
#include "ui_tambrel.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextEdit>
#include <QtTest>

#include <map>

// The five companion windows, beside the main window's form, from which one widget is missing.
class tst_windows : public QObject
{
    Q_OBJECT

    std::unique_ptr<QMainWindow> mainWindow;
    std::map<QString, std::unique_ptr<QWidget>> windows; // by class name

private slots:
    void init()
    {
        mainWindow = std::make_unique<QMainWindow>();
        Ui::tambrel form;
        form.setupUi(mainWindow.get());
        delete form.gamesAll;
        windows["openingWindow"] = std::make_unique<openingWindow>(mainWindow.get());
        windows["aboutWindow"] = std::make_unique<aboutWindow>(mainWindow.get());
        windows["instructions"] = std::make_unique<instructions>(mainWindow.get());
        windows["exploreWorld"] = std::make_unique<exploreWorld>(mainWindow.get());
        windows["selfExplore"] = std::make_unique<selfExplore>(mainWindow.get());
    }

    void cleanup()
    {
        windows.clear();
        mainWindow.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void titlesKeysAndPages()
    {
        const std::pair<const char *, const char *> titles[] = {
            {"openingWindow", "Kestrix-Typing: English"},
            {"aboutWindow", "Kestrix-Typing English - About"},
            {"instructions", "Instructions"},
            {"exploreWorld", "Kestrix-Typing: English - Explore the World"},
            {"selfExplore", "Kestrix-Typing: English - Self-Explore"}};
        for (const auto &[name, title] : titles) {
            QWidget *window = windows[name].get();
            QCOMPARE(window->windowTitle(), QString(title));
            const auto *start = window->findChild<QPushButton *>("startButton");
            const auto buttons = window->findChildren<QPushButton *>();
            QCOMPARE(buttons.size(), start ? 6 : 1);
            QSignalSpy clicked(start ? start : buttons[0], &QAbstractButton::clicked);
            window->show();
            QVERIFY2(QTest::qWaitForWindowActive(window), name);
            QTest::keyClick(window, start ? Qt::Key_Return : Qt::Key_Escape);
            QTRY_COMPARE(clicked.size(), 1);
            QVERIFY2(window->isVisible(), name); // hiding is up to who listens to the button
            for (const auto *page : window->findChildren<QTextEdit *>())
                QVERIFY2(page->isReadOnly() && page->toPlainText().size() > 300, name);
            window->hide();
        }
        QVERIFY(windows["selfExplore"]->findChild<QTextEdit *>());
        QVERIFY(windows["instructions"]->findChild<QTextEdit *>());
    }

    void links()
    {
        for (const char *name : {"openingWindow", "aboutWindow", "exploreWorld"}) {
            int found = 0;
            for (const auto *label : windows[name]->findChildren<QLabel *>()) {
                const QString address = label->text().section("<a href=\"", 1).section('"', 0, 0);
                if (address.isEmpty())
                    continue;
                ++found;
                QVERIFY2(address.startsWith("https://"), qPrintable(address));
                QCOMPARE(label->toolTip(), address);
                QVERIFY2(label->openExternalLinks() &&
                             label->textInteractionFlags() & Qt::LinksAccessibleByKeyboard,
                         name);
            }
            QVERIFY2(found > 0, name);
        }
    }

    void hotSpots()
    {
        const QString timer = "<b>Keypress Color Timer </b><br>"
                              "How long the pressed key will hold the down color.";
        const QString match = "<b>Match This </b><br>The character to type.";
        // A topic in two spots, a spot for two widgets, the gap, and the missing widget.
        const std::pair<QPoint, QString> rows[] = {
            {{1050, 250}, timer},
            {{512, 150}, match},
            {{1099, 250}, ""},
            {{1139, 250}, timer},
            {{512, 200}, match},
            {{1155, 57}, "<b>Quit  </b><br>Terminates the game. Closes all windows. "},
            {{77, 448}, ""}};
        QWidget *help = windows["instructions"].get();
        help->show();
        QVERIFY(QTest::qWaitForWindowExposed(help));
        const auto *map = help->findChild<QLabel *>("map");
        const auto *shown = help->findChild<QLabel *>("help");
        for (const auto &[place, text] : rows) {
            const QString before = shown->text();
            const QPoint spot = map->mapTo(help, place * map->width() / 1211);
            // Moving the cursor itself brings the Enter events that a real mouse brings.
            QTest::mouseMove(help, spot);
            QTest::mouseClick(help->windowHandle(), Qt::RightButton, {}, spot);
            QCOMPARE(shown->text(), before);
            QTest::mouseClick(help->windowHandle(), Qt::LeftButton, {}, spot);
            QCOMPARE(shown->text(), text.isEmpty() ? before : text);
        }
    }

    void topicsDoNotOverlap()
    {
        windows["instructions"]->show();
        const auto *map = windows["instructions"]->findChild<QLabel *>("map");
        const auto spots = map->findChildren<QLabel *>();
        QSet<QString> topics;
        for (const auto *spot : spots) {
            topics += spot->accessibleName();
            for (const auto *other : spots)
                QVERIFY2(spot == other || !spot->geometry().intersects(other->geometry()),
                         qPrintable(spot->accessibleName() + " / " + other->accessibleName()));
        }
        QCOMPARE(topics.size(), 37);
    }
};

QTEST_MAIN(tst_windows)
#include "tst_windows.moc"
