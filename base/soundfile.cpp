#include "soundfile.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <optional>

namespace {

constexpr qint64 largestFile = 32 * 1024 * 1024; // bytes; minutes, where keys need a second
constexpr int mostChunks = 1000;                 // a file of nothing else would take seconds
constexpr qint64 riffSize = 12;                  // bytes: "RIFF", size, "WAVE"
constexpr qint64 chunkSize = 8;                  // bytes: name, size
constexpr qint64 formatSize = 16;                // bytes
constexpr quint16 pcm = 1;
constexpr quint32 slowest = 4'000, fastest = 192'000; // frames per second

struct Format
{
    quint16 channels = 0;
    quint32 rate = 0;
    quint16 bits = 0;

    quint32 frame() const { return channels * bits / 8u; }
};

struct Place
{
    Format format;
    qint64 start, size; // of the samples in the file, in bytes
};

template <class Number>
Number numberAt(const QByteArray &bytes, int at)
{
    return qFromLittleEndian<Number>(bytes.constData() + at);
}

template <class Number>
QByteArray bytesOf(Number number)
{
    QByteArray bytes(sizeof number, 0);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

std::optional<Format> readFormat(QIODevice &file)
{
    const QByteArray bytes = file.read(formatSize);
    if (bytes.size() < formatSize)
        return {};
    const Format format{numberAt<quint16>(bytes, 2), numberAt<quint32>(bytes, 4),
                        numberAt<quint16>(bytes, 14)};
    const bool plays = numberAt<quint16>(bytes, 0) == pcm &&
                       (format.channels == 1 || format.channels == 2) && format.rate >= slowest &&
                       format.rate <= fastest && (format.bits == 8 || format.bits == 16);
    return plays ? std::optional(format) : std::nullopt;
}

std::optional<Place> findSamples(QIODevice &file)
{
    const qint64 end = file.size();
    const QByteArray riff = file.read(riffSize);
    if (riff.size() < riffSize || !riff.startsWith("RIFF") || !riff.endsWith("WAVE") ||
        numberAt<quint32>(riff, 4) + chunkSize > end)
        return {};
    std::optional<Format> format;
    qint64 at = riffSize;
    for (int i = 0; i < mostChunks && file.seek(at); ++i) {
        const QByteArray chunk = file.read(chunkSize);
        if (chunk.size() < chunkSize)
            return {};
        at += chunkSize;
        const qint64 size = numberAt<quint32>(chunk, 4);
        if (at + size > end)
            return {};
        if (chunk.startsWith("data")) {
            if (!format || size == 0 || size % format->frame() != 0)
                return {};
            return Place{*format, at, size};
        }
        if (chunk.startsWith("fmt ")) {
            format = readFormat(file);
            if (size < formatSize || !format)
                return {};
        }
        at += size + size % 2; // chunks begin at even places
    }
    return {};
}

// A pipe or a device would block whoever reads it.
bool open(QFile &file)
{
    return QFileInfo(file).isFile() && file.size() <= largestFile && file.open(QIODevice::ReadOnly);
}

} // namespace

bool isSound(const QString &path)
{
    QFile file(path);
    return open(file) && findSamples(file);
}

QByteArray plainSound(const QString &path)
{
    QFile file(path);
    if (!open(file))
        return {};
    const std::optional<Place> place = findSamples(file);
    if (!place || !file.seek(place->start))
        return {};
    const QByteArray samples = file.read(place->size);
    if (samples.size() != place->size) // cut short since it was looked at
        return {};
    const auto size = static_cast<quint32>(samples.size());
    const Format &format = place->format;
    constexpr auto headers = quint32(riffSize + chunkSize + formatSize); // after the first size
    return "RIFF" + bytesOf(headers + size) + "WAVEfmt " + bytesOf(quint32(formatSize)) +
           bytesOf(pcm) + bytesOf(format.channels) + bytesOf(format.rate) +
           bytesOf(format.rate * format.frame()) + bytesOf(quint16(format.frame())) +
           bytesOf(format.bits) + "data" + bytesOf(size) + samples;
}
