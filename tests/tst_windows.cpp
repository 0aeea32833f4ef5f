#include "aboutwindow.h"
#include "exploreworld.h"
#include "instructions.h"
#include "openingwindow.h"
#include "resources.h"
#include "selfexplore.h"
#include "ui_tambrel.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextEdit>
#include <QtTest>

#include <map>

// The five companion windows. Their map shows the main window's form, from which one widget is
// missing.
class tst_windows : public QObject
{
    Q_OBJECT

    static std::unique_ptr<QWidget> freshWindow()
    {
        auto window = std::make_unique<QMainWindow>();
        Ui::tambrel form;
        form.setupUi(window.get());
        delete form.gamesAll;
        return window;
    }

    std::map<QString, std::unique_ptr<QWidget>> windows; // by class name

private slots:
    void initTestCase() { loadResources(); }
    void init()
    {
        windows["openingWindow"] = std::make_unique<openingWindow>(nullptr);
        windows["aboutWindow"] = std::make_unique<aboutWindow>(nullptr);
        windows["instructions"] = std::make_unique<instructions>(nullptr, freshWindow);
        windows["exploreWorld"] = std::make_unique<exploreWorld>(nullptr);
        windows["selfExplore"] = std::make_unique<selfExplore>(nullptr);
    }

    void cleanup()
    {
        windows.clear();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void keysAndPages()
    {
        for (const auto &[name, owned] : windows) {
            QWidget *window = owned.get();
            const auto *start = window->findChild<QPushButton *>("startButton");
            QSignalSpy clicked(start ? start : window->findChild<QPushButton *>(),
                               &QAbstractButton::clicked);
            QCOMPARE(window->palette().color(QPalette::Highlight), QColor("#0b5c63"));
            window->show();
            QVERIFY2(QTest::qWaitForWindowActive(window), qPrintable(name));
            QTest::keyClick(window, start ? Qt::Key_Return : Qt::Key_Escape);
            QTRY_COMPARE(clicked.size(), 1);
            QVERIFY(window->isVisible()); // hiding is up to who listens to the button
            for (const auto *page : window->findChildren<QTextEdit *>())
                QVERIFY2(page->isReadOnly() && page->toPlainText().size() > 300, qPrintable(name));
            for (const auto *label : window->findChildren<QLabel *>()) {
                if (label->text().contains("<a href"))
                    QVERIFY(label->text().contains("\"https://") && label->openExternalLinks());
                QVERIFY(!label->text().contains("base64,\"")); // no picture in the words
            }
            window->hide();
        }
    }

    void aboutTellsWhatThisIs()
    {
        QFile project(QFINDTESTDATA("../CMakeLists.txt"));
        QVERIFY(project.open(QIODevice::ReadOnly));
        const QRegularExpression declared("\\bVERSION (\\d+\\.\\d+\\.\\d+)");
        const QString version = declared.match(QString::fromUtf8(project.readAll())).captured(1);
        QVERIFY(!version.isEmpty());
        QStringList texts;
        int pictures = 0;
        for (const auto *label : windows["aboutWindow"]->findChildren<QLabel *>()) {
            texts << label->text();
            pictures += !label->pixmap(Qt::ReturnByValue).isNull();
        }
        QVERIFY(texts.contains("Version " + version));
        QVERIFY(!texts.filter("MIT License").isEmpty());
        QVERIFY(!texts.filter("Qt 5.15.").isEmpty());
        QCOMPARE(pictures, 1);
    }

    void everyGroupOfLinksHasAPicture()
    {
        QSet<qint64> pictures;
        const auto groups = windows["exploreWorld"]->findChildren<QGroupBox *>();
        QCOMPARE(groups.size(), 4);
        for (const auto *group : groups) {
            for (const auto *label : group->findChildren<QLabel *>()) {
                if (!label->pixmap(Qt::ReturnByValue).isNull())
                    pictures += label->pixmap(Qt::ReturnByValue).cacheKey();
            }
        }
        QCOMPARE(pictures.size(), 4);
    }

    // The words under the finger map have the colors of the keys on it.
    void fingersHaveTheirColors()
    {
        QWidget *help = windows["instructions"].get();
        help->show();
        const QImage map =
            help->findChild<QLabel *>("fingerMap")->pixmap(Qt::ReturnByValue).toImage();
        const QString page = help->findChild<QTextEdit *>("touchText")->toHtml();
        QRegularExpressionMatchIterator each =
            QRegularExpression("bgcolor=\"(#\\w+)\"").globalMatch(page);
        // The keys a s d f, the space bar, and j k l ; near their lower edges.
        for (const int x : {152, 214, 276, 338, 440, 524, 586, 648, 710}) {
            QVERIFY(each.hasNext());
            const QColor word(each.next().captured(1));
            const QColor key = map.pixelColor(x, x == 440 ? 286 : 166);
            QVERIFY2(qAbs(word.red() - key.red()) + qAbs(word.green() - key.green()) +
                             qAbs(word.blue() - key.blue()) <
                         16,
                     qPrintable(word.name() + ' ' + key.name()));
        }
        QVERIFY(!each.hasNext());
    }

    void hotSpots()
    {
        // A topic in two spots, a spot for two widgets, the gap, and the missing widget.
        const QString rows = "1050 250 <b>Keypress Color;512 150 <b>Match This;1105 228 ;1139 250 "
                             "<b>Keypress Color;512 200 <b>Match This;1155 57 <b>Quit;77 448 ";
        QWidget *help = windows["instructions"].get();
        help->show();
        QVERIFY(QTest::qWaitForWindowExposed(help));
        const auto *map = help->findChild<QLabel *>("map"),
                   *shown = help->findChild<QLabel *>("help");
        for (const QString &row : rows.split(';')) {
            const QPoint place(row.section(' ', 0, 0).toInt(), row.section(' ', 1, 1).toInt());
            const QString text = row.section(' ', 2), before = shown->text();
            const QPoint spot = map->mapTo(help, place * map->width() / 1211);
            // Moving the cursor itself brings the Enter events that a real mouse brings.
            QTest::mouseMove(help, spot);
            QTest::mouseClick(help->windowHandle(), Qt::RightButton, {}, spot);
            QCOMPARE(shown->text(), before);
            QTest::mouseClick(help->windowHandle(), Qt::LeftButton, {}, spot);
            QVERIFY2(shown->text().startsWith(text.isEmpty() ? before : text), qPrintable(text));
        }
        QSet<QString> topics;
        for (const auto *spot : map->findChildren<QLabel *>()) {
            topics += spot->accessibleName();
            for (const auto *other : map->findChildren<QLabel *>())
                QVERIFY(spot == other || !spot->geometry().intersects(other->geometry()));
        }
        QCOMPARE(topics.size(), 37);
    }
};

QTEST_MAIN(tst_windows)
#include "tst_windows.moc"
