#include "files.h"

#include <QDir>
#include <QImage>

#include <sys/stat.h>

namespace {

void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

QByteArray noise(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    quint32 state = 1;
    for (char &each : bytes)
        each = char((state = state * 1664525 + 1013904223) >> 24);
    return bytes;
}

// One pixel; the picture's own size differs from its first and only frame's if told so.
QByteArray gif(const char *screen)
{
    return "GIF89a" + QByteArray::fromHex(screen) +
           QByteArray::fromHex("800000ff000000ff002c00000000010001000002024401003b");
}

} // namespace

void Files::make(const QString &folder)
{
    const QDir dir(folder);
    for (const QSize &size : {QSize(1, 1), QSize(1, 5000), QSize(3000, 1), QSize(64, 48)}) {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(QColor(200, 40, 40, 128));
        const QString name = QString("%1x%2").arg(size.width()).arg(size.height());
        for (const char *suffix : {".png", ".jpg", ".bmp"})
            image.save(dir.filePath(name + suffix));
    }
    put(dir.filePath("1x1.gif"), gif("01000100"));
    put(dir.filePath("1x5000.gif"), gif("01008813"));
    put(dir.filePath("0x0.gif"), gif("00000000"));
    put(dir.filePath("sheep.gif"), bytesOf(":/new/prefix1/bouncingSheepSmall.gif"));
    put(dir.filePath("good.wav"), bytesOf(":/new/prefix1/bark.wav"));
    for (const char *name :
         {"64x48.png", "64x48.jpg", "sheep.gif", "good.wav", "paint.txt", "keyboard.txt"}) {
        const QByteArray whole = bytesOf(dir.filePath(name));
        put(dir.filePath(QString("cut-") + name), whole.left(whole.size() / 2));
    }
    put(dir.filePath("noise.txt"), noise(30000));
    put(dir.filePath("noise.gif"), noise(3000));
    put(dir.filePath("noise.wav"), noise(3000));
    put(dir.filePath("nul.txt"), bytesOf(dir.filePath("paint.txt")).replace('a', '\0'));
    put(dir.filePath("mixed.txt"),
        bytesOf(dir.filePath("keyboard.txt")).replace("rgba", "rgb").replace("px", "furlongs"));
    for (const char *name : {"empty.txt", "empty.png", "empty.gif", "empty.wav"})
        put(dir.filePath(name), {});
    mkfifo(QFile::encodeName(dir.filePath("pipe.gif")).constData(), 0600);
    dir.mkdir("folder.txt");
}

QStringList Files::names()
{
    return QString("paint.txt keyboard.txt cut-paint.txt cut-keyboard.txt mixed.txt nul.txt "
                   "noise.txt empty.txt folder.txt 1x1.png 1x1.jpg 1x1.bmp 1x1.gif 1x5000.png "
                   "1x5000.gif 3000x1.jpg 0x0.gif sheep.gif 64x48.png 64x48.jpg cut-64x48.png "
                   "cut-64x48.jpg cut-sheep.gif noise.gif empty.png empty.gif pipe.gif good.wav "
                   "cut-good.wav noise.wav empty.wav missing.txt")
        .split(' ');
}
