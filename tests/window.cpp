#include "window.h"

namespace {

class RecordingPlayer : public SoundPlayer
{
public:
    explicit RecordingPlayer(QStringList &playedPaths) : played(playedPaths) {}
    void play(const QString &path) override { played.append(path); }

private:
    QStringList &played;
};

// Answers like a file dialog. An empty path is Cancel.
class NamedFile : public FileChoice
{
public:
    explicit NamedFile(const QString &named) : file(named) {}
    QStringList files(const QString &) override
    {
        return file.isEmpty() ? QStringList() : QStringList(file);
    }
    QString toOpen(const QString &) override { return file; }
    QString toSave(const QString &, const QString &) override { return file; }

private:
    const QString &file;
};

int warnings = 0;

void countWarning(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    // The offscreen platform lacks what a window manager would do.
    if (message.startsWith("This plugin does not support"))
        return;
    fprintf(stderr, "%s\n", qPrintable(message));
    if (type != QtDebugMsg && type != QtInfoMsg)
        ++warnings;
}

} // namespace

void WindowTest::open()
{
    window.reset();
    played.clear();
    window = fresh();
    window->openTambrel();
    prepare();
}

std::unique_ptr<tambrel> WindowTest::fresh()
{
    return std::make_unique<tambrel>(nullptr,
                                     tambrel::Outside{std::make_unique<RecordingPlayer>(played),
                                                      std::make_unique<NamedFile>(answered)});
}

void WindowTest::initTestCase()
{
    loadResources();
    Platform::installFonts();
}

void WindowTest::init()
{
    qInstallMessageHandler(countWarning);
    warnings = 0;
    open();
}

void WindowTest::cleanup()
{
    window.reset();
    qInstallMessageHandler(nullptr);
    QCOMPARE(warnings, 0);
}
