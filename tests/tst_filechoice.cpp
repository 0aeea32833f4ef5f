#include "filechoice.h"
#include "virtualtime.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QtTest>

namespace {
const bool timeIsVirtual = (VirtualTime::begin(), true);
}

// The dialogs themselves, driven as a player would.
class TestFileChoice : public QObject
{
    Q_OBJECT

    QTemporaryDir folder;
    QWidget window;
    FileDialogs dialogs{window};
    int questions = 0;
    QStringList places; // in the side bar

    QString path(const QString &name) const { return folder.filePath(name); }
    void make(const QString &name) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    // Types the name and presses Enter, or Esc for none. A question of whether a file may be
    // replaced is answered with the button.
    template <class Ask>
    auto answered(const QString &name, QMessageBox::StandardButton button, Ask ask)
    {
        QTimer timer;
        bool typed = false;
        questions = 0;
        connect(&timer, &QTimer::timeout, this, [&] {
            QWidget *modal = QApplication::activeModalWidget();
            if (auto *box = qobject_cast<QMessageBox *>(modal)) {
                ++questions;
                box->button(button)->click();
            } else if (auto *dialog = qobject_cast<QFileDialog *>(modal)) {
                if (name.isEmpty() || typed) // what was typed is refused
                    return dialog->reject();
                typed = true;
                places.clear();
                for (const QUrl &url : dialog->sidebarUrls())
                    places << url.toLocalFile();
                dialog->findChild<QLineEdit *>("fileNameEdit")->setText(name);
                // Not from here: a timer is not told again before it has returned.
                QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
            }
        });
        timer.start(20);
        return ask();
    }

private slots:
    // Where the dialogs keep what they show, for those of all programs.
    void initTestCase()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    }
    void opening()
    {
        make("look.txt");
        const auto open = [this](const QString &name) {
            return answered(name, QMessageBox::Ok, [this] { return dialogs.toOpen("Open"); });
        };
        QCOMPARE(open(path("look.txt")), path("look.txt"));
        QCOMPARE(open({}), QString());
        QCOMPARE(open(path("missing.txt")), QString());
        make("b.wav");
        const auto files = [this](const QString &name) {
            return answered(name, QMessageBox::Ok, [this] { return dialogs.files("Audio(*wav)"); });
        };
        QCOMPARE(files(path("b.wav")), QStringList(path("b.wav")));
        QCOMPARE(files({}), QStringList());
        QCOMPARE(files(path("missing.wav")), QStringList());
    }

    // The shipped looks of the kind, then the player's own places.
    void looksAreOffered()
    {
        make("look.txt");
        for (const QString kind : {"Keyboard", "Paint"}) {
            const QString title = QString("Open %1 Theme").arg(kind);
            QCOMPARE(
                answered(path("look.txt"), QMessageBox::Ok, [&] { return dialogs.toOpen(title); }),
                path("look.txt"));
            QVERIFY(places[0].endsWith("/share/kestrix-typing/looks/" + kind + " Looks"));
            QVERIFY(QFile::exists(places[0] + "/Plain.txt"));
            QCOMPARE(places.mid(1, 2), QStringList({QDir::homePath(), QDir::currentPath()}));
            QVERIFY(places.filter("Looks").size() == 1); // none is left of the dialog before
        }
    }

    void saving()
    {
        const auto save = [this](const QString &name, QMessageBox::StandardButton button) {
            return answered(name, button, [this] { return dialogs.toSave("Save", path("mine")); });
        };
        QCOMPARE(save(path("new"), QMessageBox::Yes), path("new.txt"));
        QCOMPARE(questions, 0);
        QCOMPARE(save(path("new.look"), QMessageBox::Yes), path("new.look"));
        make("old.txt");
        QCOMPARE(save(path("old"), QMessageBox::No), QString());
        QCOMPARE(questions, 1); // it is the file with the ending that would be replaced
        QCOMPARE(save(path("old"), QMessageBox::Yes), path("old.txt"));
        QCOMPARE(save({}, QMessageBox::Yes), QString());
    }
};

QTEST_MAIN(TestFileChoice)
#include "tst_filechoice.moc"
