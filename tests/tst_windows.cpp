#include "aboutwindow.h"
#include "exploreworld.h"
#include "instructions.h"
#include "openingwindow.h"
#include "selfexplore.h"

#include "ui_tambrel.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextEdit>
#include <QtTest>

#include <map>

// The five companion windows, beside a small stand-in for the main window.
class tst_windows : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> mainWindow;
    std::map<QString, std::unique_ptr<QWidget>> windows; // by class name

private slots:
    void init()
    {
        mainWindow = std::make_unique<QWidget>();
        mainWindow->resize(1211, 695);
        const std::pair<const char *, QRect> parts[] = {
            {"keyConstant", {1004, 240, 92, 20}}, {"keyFlash", {1102, 240, 74, 20}},
            {"pbQuit", {1106, 42, 98, 30}},       {"matchThis", {462, 138, 101, 28}},
            {"leMatch", {482, 172, 61, 61}},      {"gamesAll", {8, 438, 138, 20}},
        };
        for (const auto &[name, place] : parts) {
            auto *part = new QWidget(mainWindow.get());
            part->setObjectName(QLatin1String(name));
            part->setGeometry(place);
        }
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

    void textsAndKeys_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("buttons"); // sorted
        QTest::newRow("openingWindow")
            << "Kestrix-Typing: English"
            << "About|Exit|Explore the World|Instructions|Self-Explore the Keyboard|Start";
        const char *close = "Close Window";
        QTest::newRow("aboutWindow") << "Kestrix-Typing English - About" << close;
        QTest::newRow("instructions") << "Instructions" << close;
        QTest::newRow("exploreWorld") << "Kestrix-Typing: English - Explore the World" << close;
        QTest::newRow("selfExplore") << "Kestrix-Typing: English - Self-Explore" << close;
    }

    void textsAndKeys()
    {
        QWidget *window = windows[QTest::currentDataTag()].get();
        QVERIFY(!window->parent());
        QTEST(window->windowTitle(), "title");
        QStringList found;
        for (const auto *button : window->findChildren<QPushButton *>())
            found += button->text();
        found.sort();
        QTEST(found.join('|'), "buttons");

        const auto *start = window->findChild<QPushButton *>("startButton");
        QSignalSpy clicked(start ? start : window->findChild<QPushButton *>(),
                           &QAbstractButton::clicked);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window));
        QTest::keyClick(window, start ? Qt::Key_Return : Qt::Key_Escape);
        QTRY_COMPARE(clicked.size(), 1);
        // Hiding is up to what the button is connected to, since that also brings the
        // opening window back.
        QVERIFY(window->isVisible());
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
                QVERIFY(address.startsWith("https://"));
                QCOMPARE(label->toolTip(), address);
                QVERIFY(label->openExternalLinks());
                QVERIFY(label->textInteractionFlags() & Qt::LinksAccessibleByKeyboard);
            }
            QVERIFY2(found > 0, name);
        }
        const auto *contact = windows["aboutWindow"]->findChild<QLabel *>("contact");
        QVERIFY(contact->text().startsWith("Contact information at <a "));
        QStringList groups;
        for (const auto *group : windows["exploreWorld"]->findChildren<QGroupBox *>())
            groups += group->title();
        QCOMPARE(groups, QStringList({"Learn English", "Translator", "Color", "Other"}));
    }

    void selfExploreIsAReadOnlyPage()
    {
        QCOMPARE(windows["selfExplore"]->size(), QSize(702, 457));
        const auto *page = windows["selfExplore"]->findChild<QTextEdit *>();
        QVERIFY(page->isReadOnly());
        const QString text = page->toPlainText();
        QVERIFY(text.contains(
            "If not in game play, every key pressed on the players keyboard will highlight the "
            "on-screen keyboard and the corresponding letter or character on the English Alphabet "
            "Bar "
            "with the color gold."));
        QVERIFY(
            text.contains("The player can move their mouse over either the English Alphabet Bar or "
                          "the on-screen keyboard, and the corresponding letters or characters "
                          "will highlight with the color blue."));
        QVERIFY(text.contains("Highlight and Lines are only when the game is in play."));
    }

    void helpPages()
    {
        QWidget *help = windows["instructions"].get();
        help->show();
        const auto *tabs = help->findChild<QTabWidget *>();
        QStringList titles;
        for (int i = 0; i < tabs->count(); ++i)
            titles += tabs->tabText(i);
        QCOMPARE(titles.mid(0, 3), QStringList({"Map", "Starting the Game", "Buttons"}));
        for (const auto *page : tabs->findChildren<QTextEdit *>())
            QVERIFY2(page->isReadOnly() && page->toPlainText().size() > 300,
                     qPrintable(page->objectName()));
        QStringList labels;
        for (const auto *label : help->findChildren<QLabel *>())
            labels += label->text();
        QVERIFY(labels.contains("Click\n\n  Black\n\n    Frame"));
        QVERIFY(labels.contains("   Details\n\n  Given  \n\nBelow"));
    }

    void hotSpots_data()
    {
        QTest::addColumn<QPoint>("place"); // in the main window
        QTest::addColumn<QString>("text"); // empty: no hot spot there
        const auto *timer = "<b>Keypress Color Timer </b><br>"
                            "How long the pressed key will hold the down color.";
        const auto *match = "<b>Match This </b><br>The character to type.";
        QTest::newRow("first of two spots") << QPoint(1050, 250) << timer;
        QTest::newRow("second of two spots") << QPoint(1139, 250) << timer;
        QTest::newRow("between two spots") << QPoint(1099, 250) << "";
        QTest::newRow("upper widget of one spot") << QPoint(512, 150) << match;
        QTest::newRow("lower widget of one spot") << QPoint(512, 200) << match;
        QTest::newRow("blanks kept")
            << QPoint(1155, 57) << "<b>Quit  </b><br>Terminates the game. Closes all windows. ";
        QTest::newRow("misspelling kept")
            << QPoint(77, 448)
            << "<b>Everything !!</b><br>Lowercase, Uppercase, then Numer Line.<br>";
        QTest::newRow("missing widget") << QPoint(1050, 57) << "";
    }

    void hotSpots()
    {
        QFETCH(QPoint, place);
        QFETCH(QString, text);
        QWidget *help = windows["instructions"].get();
        help->show();
        QVERIFY(QTest::qWaitForWindowExposed(help));
        const auto *map = help->findChild<QLabel *>("map");
        const auto *shown = help->findChild<QLabel *>("help");
        const QString before = shown->text();
        const QPoint spot = map->mapTo(help, place * map->width() / 1211);

        // Moving the cursor itself brings the Enter events that a real mouse brings.
        QTest::mouseMove(help, spot);
        QTest::mouseClick(help->windowHandle(), Qt::RightButton, {}, spot);
        QCOMPARE(shown->text(), before);
        QTest::mouseClick(help->windowHandle(), Qt::LeftButton, {}, spot);
        QCOMPARE(shown->text(), text.isEmpty() ? before : text);
    }

    void everyTopicHasItsPlaceInTheRealWindow()
    {
        QMainWindow real;
        Ui::tambrel form;
        form.setupUi(&real);
        instructions help(&real);
        help.show();
        const auto spots = help.findChild<QLabel *>("map")->findChildren<QLabel *>();
        QSet<QString> topics;
        for (const auto *spot : spots) {
            topics += spot->accessibleName();
            for (const auto *other : spots)
                QVERIFY2(spot == other || !spot->geometry().intersects(other->geometry()),
                         qPrintable(spot->accessibleName() + " / " + other->accessibleName()));
        }
        const bool keyShape = real.findChild<QWidget *>("frameKeyShape");
        QCOMPARE(topics.size(), keyShape ? 38 : 37);
    }
};

QTEST_MAIN(tst_windows)

#include "tst_windows.moc"
