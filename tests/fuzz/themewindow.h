#pragma once

#include "filechoice.h"
#include "fuzz.h"
#include "platform.h"
#include "resources.h"
#include "soundplayer.h"
#include "tambrel.h"

#include <QAbstractButton>

// The window with all its panels, which opens and saves themes as a player does. It stays hidden:
// everything is worn, and nothing painted.
class ThemeWindow
{
public:
    ThemeWindow(const char *openButton, const char *saveButton)
    {
        Fuzz::begin();
        Platform::limitCache();
        loadResources();
        Platform::installFonts();
        window = std::make_unique<tambrel>(
            nullptr,
            tambrel::Outside{std::make_unique<NoPlayer>(), std::make_unique<NamedFile>(named)},
            tambrel::Start::Unseen);
        window->options();
        QCoreApplication::sendPostedEvents();
        opens = find(openButton);
        saves = find(saveButton);
        for (QWidget *widget : window->findChildren<QWidget *>())
            worn.append({widget, widget->styleSheet()});
    }

    void run(const QByteArray &bytes)
    {
        // As at the start, so that a finding happens again.
        Wardrobe &wardrobe = window->wardrobe();
        wardrobe.looks = Looks();
        wardrobe.paint.forget();

        Fuzz::put(given, bytes);
        answer(opens, given);
        look();
        answer(saves, first);
        const QByteArray saved = Fuzz::bytesOf(first);
        if (saved != bytes) {
            answer(opens, first);
            look();
            answer(saves, second);
            compare(saved.split('\n'), Fuzz::bytesOf(second).split('\n'));
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::sendPostedEvents();
    }

private:
    struct NoPlayer : SoundPlayer
    {
        void play(const QString &) override {}
    };
    struct NamedFile : FileChoice
    {
        explicit NamedFile(const QString &path) : file(path) {}
        QStringList files(const QString &) override { return {file}; }
        QString toOpen(const QString &) override { return file; }
        QString toSave(const QString &, const QString &) override { return file; }
        const QString &file;
    };
    struct Worn
    {
        QWidget *widget;
        QString sheet;
    };

    QAbstractButton *find(const char *name) const
    {
        auto *button = window->findChild<QAbstractButton *>(name);
        Fuzz::must(button, "there is", name);
        return button;
    }
    void answer(QAbstractButton *button, const QString &path)
    {
        named = path;
        button->click();
    }
    // At the sheets that have changed.
    void look()
    {
        for (Worn &each : worn) {
            const QString sheet = each.widget->styleSheet();
            if (sheet.constData() == each.sheet.constData())
                continue;
            each.sheet = sheet;
            for (const char *word : {"{", "}", "\\", "/*", "qproperty"})
                Fuzz::must(!sheet.contains(word), each.widget->objectName(), sheet);
            // Pictures are the program's own.
            Fuzz::must(sheet.count("url", Qt::CaseInsensitive) == sheet.count("url(:/"),
                       each.widget->objectName(), sheet);
        }
    }
    // What was read and saved is read as it was saved.
    static void compare(const QList<QByteArray> &was, const QList<QByteArray> &is)
    {
        Fuzz::must(was.size() == is.size(), "as many lines");
        for (int i = 0; i < was.size(); ++i)
            Fuzz::must(was[i] == is[i], "a line stays",
                       QString("%1: ").arg(i + 1) + was[i] + " | " + is[i]);
    }

    const QString given = Fuzz::scratchFile("given.txt");
    const QString first = Fuzz::scratchFile("first.txt");
    const QString second = Fuzz::scratchFile("second.txt");
    QString named;
    std::unique_ptr<tambrel> window;
    QAbstractButton *opens = nullptr, *saves = nullptr;
    QVector<Worn> worn;
};
