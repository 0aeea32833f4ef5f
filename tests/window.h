#pragma once

#include "platform.h"
#include "resources.h"
#include "soundplayer.h"
#include "tambrel.h"

#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QtTest>
#include <sys/stat.h>

// What the tests of the window share: a fresh window for each test function, driven
// and looked at as a player would, and no warning that passes unseen.

class RecordingPlayer : public SoundPlayer
{
public:
    explicit RecordingPlayer(QStringList &playedPaths) : played(playedPaths) {}
    void play(const QString &path) override { played.append(path); }

private:
    QStringList &played;
};

class WindowTest : public QObject
{
    Q_OBJECT

protected:
    std::unique_ptr<tambrel> window;
    QStringList played; // sound files, in order

    // As after a start of the program and a press on Start.
    void open()
    {
        window.reset();
        played.clear();
        window = std::make_unique<tambrel>(nullptr, std::make_unique<RecordingPlayer>(played));
        window->openTambrel();
        prepare();
    }

    template <class T = QLabel>
    T *find(const QString &name) const
    {
        T *widget = window->findChild<T *>(name);
        if (!widget)
            qFatal("no widget %s", qPrintable(name));
        return widget;
    }
    QString text(const QString &name) const
    {
        return find<QWidget>(name)->property("text").toString();
    }
    QString sheet(const QString &name) const { return find<QWidget>(name)->styleSheet(); }
    bool shown(const QString &name) const { return !find<QWidget>(name)->isHidden(); }
    GameState &game() const { return window->game(); }

    void click(const QString &button) { QTest::mouseClick(find<QWidget>(button), Qt::LeftButton); }
    // Also where a panel is closed or something lies on it.
    void choose(const QString &buttons)
    {
        for (const QString &button : buttons.split(' ', Qt::SkipEmptyParts))
            find<QAbstractButton>(button)->click();
    }
    void set(const QString &control, int value)
    {
        find<QWidget>(control)->setProperty("value", value);
    }
    int value(const QString &control) const
    {
        return find<QWidget>(control)->property("value").toInt();
    }
    void hover(const QString &name, QEvent::Type type = QEvent::Enter)
    {
        QEvent event(type);
        QApplication::sendEvent(find<QWidget>(name), &event);
    }
    void leave(const QString &name) { hover(name, QEvent::Leave); }

    // Files of a test.
    QTemporaryDir folder;
    QString path(const QString &name) const { return folder.filePath(name); }
    QString saved(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
        return file.fileName();
    }
    // One that would be waited for without end.
    QString pipe(const QString &name) const
    {
        if (::mkfifo(qPrintable(path(name)), 0600) != 0)
            qFatal("no pipe %s", qPrintable(name));
        return path(name);
    }

    // A row of a table: its name and its cells.
    template <class... Cells>
    static void row(const char *name, const Cells &...cells)
    {
        (QTest::newRow(name) << ... << cells);
    }

    // Clicks the button and answers its file dialog, also where it asks whether a file may be
    // replaced. An empty path cancels, and so does one that the dialog does not take.
    void answer(const QString &button, const QString &file)
    {
        QTimer timer;
        int asked = 0;
        connect(&timer, &QTimer::timeout, [&asked, file] {
            QWidget *modal = QApplication::activeModalWidget();
            if (auto *box = qobject_cast<QMessageBox *>(modal)) {
                QAbstractButton *yes = box->button(QMessageBox::Yes);
                yes ? yes->click() : box->reject();
                return;
            }
            auto *dialog = qobject_cast<QFileDialog *>(modal);
            if (!dialog)
                return;
            if (file.isEmpty() || ++asked == 20) {
                dialog->reject();
            } else if (asked == 1) {
                dialog->findChild<QLineEdit *>("fileNameEdit")->setText(file);
                // Not from here: a timer is not told again before it has returned.
                QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
            }
        });
        timer.start(20);
        find<QAbstractButton>(button)->click();
    }

    // As a US keyboard sends it: letters as capitals, Shift for the upper character of a key.
    struct Stroke
    {
        int code;
        Qt::KeyboardModifiers modifiers;
    };
    static Stroke stroke(const QString &character)
    {
        const QChar c = character.at(0);
        const bool shifted = c.isUpper() || QString("~!@#$%^&*()_+{}|:\"<>?").contains(c);
        return {c.toUpper().unicode(), shifted ? Qt::ShiftModifier : Qt::NoModifier};
    }
    void press(const QString &character)
    {
        const Stroke s = stroke(character);
        QTest::keyPress(window.get(), static_cast<Qt::Key>(s.code), s.modifiers);
    }
    void release(const QString &character)
    {
        const Stroke s = stroke(character);
        QTest::keyRelease(window.get(), static_cast<Qt::Key>(s.code), s.modifiers);
    }
    void type(const QString &character)
    {
        press(character);
        release(character);
    }
    void space() { QTest::keyClick(window.get(), Qt::Key_Space); }
    // A correct entry in the difficulty that is set.
    void enterTarget()
    {
        type(text("leMatch"));
        if (find<QAbstractButton>("soft")->isChecked())
            space();
    }

private:
    static int &warnings()
    {
        static int count = 0;
        return count;
    }
    static void countWarning(QtMsgType type, const QMessageLogContext &, const QString &message)
    {
        // The offscreen platform lacks what a window manager would do.
        if (message.startsWith("This plugin does not support"))
            return;
        fprintf(stderr, "%s\n", qPrintable(message));
        if (type != QtDebugMsg && type != QtInfoMsg)
            ++warnings();
    }

private slots:
    void initTestCase()
    {
        loadResources();
        Platform::installFonts();
    }
    void init()
    {
        qInstallMessageHandler(countWarning);
        warnings() = 0;
        open();
    }
    void cleanup()
    {
        window.reset();
        qInstallMessageHandler(nullptr);
        QCOMPARE(warnings(), 0);
    }

protected:
    virtual void prepare() {}
};
