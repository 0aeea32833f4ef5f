#pragma once

#include <QApplication>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <cstdlib>

// What the targets share. A target ends the process at what must not be, and the fuzzer keeps the
// bytes that led there.
namespace Fuzz {

inline void must(bool holds, const QString &what, const QString &text = {})
{
    if (holds)
        return;
    fprintf(stderr, "MUST: %s: %s\n", qPrintable(what), qPrintable(text));
    abort();
}

// The last picture that Qt did not find.
inline QString missing;

// What Qt complains of should never have reached it.
inline void complain(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    const QString noPicture = "Could not create pixmap from ";
    if (message.startsWith(noPicture))
        missing = message.mid(noPicture.size());
    // The offscreen platform lacks what a window manager would do.
    else if (!message.startsWith("This plugin does not support"))
        must(type == QtDebugMsg || type == QtInfoMsg, "no warning", message);
}

// The one application object of the process, without a display.
inline void begin()
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_HASH_SEED", "0");
    static const auto *const application = new QApplication(argc, argv);
    Q_UNUSED(application)
    qInstallMessageHandler(complain);
}

// In the folder for temporary files, which tests/fuzz/run puts into memory.
inline QString scratchFile(const char *name)
{
    return QDir::temp().filePath(name);
}

inline void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    must(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "can write", path);
}

inline QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    must(file.open(QIODevice::ReadOnly), "can read", path);
    return file.readAll();
}

inline QByteArray bytesOf(const uint8_t *data, size_t size)
{
    return {reinterpret_cast<const char *>(data), int(size)};
}

} // namespace Fuzz
