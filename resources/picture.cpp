#include "picture.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QMovie>
#include <QtEndian>

namespace {

constexpr int twinRatio = 2;
constexpr qint64 maxPixels = 40'000'000;     // of a still one: 160 MB while it is read
constexpr qint64 maxFramePixels = 4'000'000; // of a moving one, read in time for the next frame
constexpr int maxSide = 100'000;             // px, in a file
constexpr int maxShownSide = 2000;           // logical px

// Qt gives whatever it reads from a file with this suffix a device pixel ratio of 2.
QString twin(const QString &path)
{
    const int dot = path.lastIndexOf('.');
    return path.left(dot) + "@2x" + path.mid(dot);
}

bool hasTwinForScreen(const QString &path)
{
    return qGuiApp->devicePixelRatio() > 1 && QFile::exists(twin(path));
}

// The readers of these two kinds complain aloud about a file that was cut short or that claims
// an impossible size, one of them past every handler of messages.

bool isWholePng(QFile &file)
{
    constexpr qint64 ihdrAt = 8, frame = 12; // bytes: the first chunk; what is around each
    if (!file.seek(ihdrAt + 8))
        return false;
    const QByteArray sides = file.read(8);
    for (const int at : {0, 4}) {
        if (sides.size() < 8 || qFromBigEndian<quint32>(sides.constData() + at) > maxSide)
            return false;
    }
    qint64 at = ihdrAt;
    while (file.seek(at)) {
        const QByteArray chunk = file.read(8); // its length and name
        if (chunk.size() < 8)
            return false;
        at += frame + qFromBigEndian<quint32>(chunk.constData());
        if (at > file.size())
            return false;
        if (chunk.endsWith("IEND"))
            return true;
    }
    return false;
}

// The mark at the end may be missing, or stand further up, where a thumbnail has one of its own.
bool isWholeJpeg(QFile &file)
{
    constexpr quint8 startOfScan = 0xda;
    quint8 kind = 0;
    for (qint64 at = 2; kind != startOfScan;) {
        if (!file.seek(at))
            return false;
        const QByteArray segment = file.read(4); // a mark and its length
        if (segment.size() < 4 || segment[0] != '\xff')
            return false;
        kind = static_cast<quint8>(segment[1]);
        at += kind == 0xff ? 1 : 2 + qFromBigEndian<quint16>(segment.constData() + 2);
    }
    QByteArray end; // of the block before
    while (!file.atEnd()) {
        const QByteArray block = end + file.read(1 << 16);
        if (block.contains("\xff\xd9"))
            return true;
        end = block.right(1);
    }
    return false;
}

bool isWhole(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray start = file.peek(8);
    if (start.startsWith("\x89PNG"))
        return isWholePng(file);
    return !start.startsWith("\xff\xd8") || isWholeJpeg(file);
}

// Each frame of a GIF is unpacked onto a screen of this size, while Qt tells that of the frame.
QSize gifScreen(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QByteArray head = file.read(10);
    if (head.size() < 10 || !head.startsWith("GIF8"))
        return {};
    return {qFromLittleEndian<quint16>(head.constData() + 6),
            qFromLittleEndian<quint16>(head.constData() + 8)};
}

// As the head of the file tells it; invalid for what is no picture, or none to be shown. Some kinds
// do not tell: they are never in the list of a file dialog here, and unpacking one to know could
// take any time and memory.
QSize sizeInFile(const QString &path)
{
    if (!QFileInfo(path).isFile() || !isWhole(path))
        return {};
    const QImageReader reader(path);
    const QSize size = reader.size();
    const QSize unpacked = size.expandedTo(gifScreen(path));
    const bool shows = !size.isEmpty() &&
                       std::max(unpacked.width(), unpacked.height()) <= maxSide &&
                       qint64(unpacked.width()) * unpacked.height() <=
                           (reader.supportsAnimation() ? maxFramePixels : maxPixels);
    return shows ? size : QSize();
}

QSize shownSize(const QSize &size)
{
    if (std::max(size.width(), size.height()) <= maxShownSide)
        return size;
    return size.scaled(maxShownSide, maxShownSide, Qt::KeepAspectRatio).expandedTo({1, 1});
}

} // namespace

QPixmap picture(const QString &path)
{
    if (!hasTwinForScreen(path))
        return QPixmap(path);
    QPixmap result(twin(path));
    // Between 1 and 2 it is shrunk here, since a label would leave out pixels.
    const qreal ratio = qGuiApp->devicePixelRatio();
    if (ratio < twinRatio) {
        result = result.scaled(result.size() * (ratio / twinRatio), Qt::IgnoreAspectRatio,
                               Qt::SmoothTransformation);
        result.setDevicePixelRatio(ratio);
    }
    return result;
}

bool isPicture(const QString &path)
{
    return sizeInFile(path).isValid();
}

QSize sizeAtWidth(const QString &path, int width)
{
    const QSize size = sizeInFile(path);
    if (!size.isValid())
        return {};
    const double most = maxShownSide;
    const double factor =
        std::min({double(width) / size.width(), most / size.width(), most / size.height()});
    const QSizeF shown = QSizeF(size) * factor;
    return QSize(qRound(shown.width()), qRound(shown.height())).expandedTo({1, 1});
}

void openMovie(QMovie &movie, const QString &path, const QSize &size)
{
    movie.stop();
    if (!isPicture(path)) {
        openMovie(movie, ":/new/prefix1/blank.gif");
        return;
    }
    const bool dense = hasTwinForScreen(path);
    movie.setFileName(dense ? twin(path) : path);
    const QSize shown = shownSize(size);
    movie.setScaledSize(shown.isValid() && dense ? shown * twinRatio : shown);
}
