#pragma once

#include "platform.h"
#include "resources.h"
#include "soundplayer.h"
#include "tambrel.h"
#include "virtualtime.h"

#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>
#include <sys/stat.h>

// What the tests of the window share: a fresh window for each test function, driven
// and looked at as a player would, and no warning that passes unseen.

// No test waits: a second of the window's time takes none.
inline const bool timeIsVirtual = (VirtualTime::begin(), true);

class WindowTest : public QObject
{
    Q_OBJECT

protected:
    std::unique_ptr<tambrel> window;
    QStringList played; // sound files, in order

    // As after a start of the program and a press on Start.
    void open();
    // One that stands at its opening window.
    std::unique_ptr<tambrel> fresh();

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

    static void pass(int ms) { VirtualTime::pass(ms); }
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
    QString answered; // by the file dialog
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

    // Clicks the button and names the file that it asks for. An empty path cancels.
    void answer(const QString &button, const QString &file)
    {
        answered = file;
        click(button);
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

private slots:
    void initTestCase();
    void init();
    void cleanup();

protected:
    virtual void prepare() {}
};
