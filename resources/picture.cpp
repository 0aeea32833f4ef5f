#include "picture.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QMovie>

namespace {

constexpr int twinRatio = 2;

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
    constexpr qint64 maxPixels = 64'000'000;
    if (!QFileInfo(path).isFile())
        return false;
    const QSize size = QImageReader(path).size();
    return size.isValid() && qint64(size.width()) * size.height() <= maxPixels;
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
    movie.setScaledSize(size.isValid() && dense ? size * twinRatio : size);
}

QSize sizeAtWidth(const QString &path, int width)
{
    if (!isPicture(path))
        return {};
    const QSize size = QImageReader(path).size();
    return {width, qBound(1, qRound(qreal(width) * size.height() / size.width()), 2000)};
}
