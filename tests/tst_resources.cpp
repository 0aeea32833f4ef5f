#include "resources.h"

#include <QDir>
#include <QFontDatabase>
#include <QMovie>
#include <QPainterPath>
#include <QRawFont>
#include <QTest>
#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace {
const QString prefix = ":/new/prefix1/";

// Each picture has a twin for a screen with a device pixel ratio of 2.
const QStringList pictures =
    QString("kestrixTypingOrlamu 640x360, english 320x200, youTube 96x72, chdown 144x115, "
            "chmiddle 144x115, chup 144x115, arrowDown 55x63, arrowLeft 69x59, optionsArrow 70x56, "
            "speaker 24x24, folder 28x24")
        .split(", ");
const QStringList animations =
    QString("explodeAll2 96x90, butterfly1 96x76, birdsdance2 96x60, angryEmotion2 96x60, "
            "swirl1 54x54, snowfall 54x54, snowSmall 54x54, bouncingSheepSmall 34x54, rain 54x54, "
            "pulsingLightSmall 54x54, marbleTransparentSmall 54x54, kittyWalk 54x54")
        .split(", ");
const QStringList sounds{"silence", "bark",    "meow",   "quack1",     "photon",      "photon2",
                         "whistle", "bubble2", "chime1", "explosion1", "machineGun2", "typewriter"};
} // namespace

class tst_resources : public QObject
{
    Q_OBJECT

    QRawFont font;

    static QString name(const QString &row) { return row.section(' ', 0, 0); }
    static QString size(const QImage &image)
    {
        return QString(" %1x%2").arg(image.width()).arg(image.height());
    }
    static QImage load(const QString &file)
    {
        return QImage(prefix + file).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
    static bool opaque(QRgb pixel) { return qAlpha(pixel) > 127; }
    static int count(const QImage &image, bool (*rule)(QRgb))
    {
        int result = 0;
        for (int i = 0; i < image.width() * image.height(); ++i)
            result += rule(image.pixel(i % image.width(), i / image.width())) ? 1 : 0;
        return result;
    }
    // The mean difference of a byte; with the opacity, so that what appears from nothing counts.
    static double change(const QImage &a, const QImage &b)
    {
        double sum = 0;
        for (int i = 0; i < a.sizeInBytes(); ++i)
            sum += std::abs(a.constBits()[i] - b.constBits()[i]);
        return sum / a.sizeInBytes();
    }
    QPainterPath glyph(const QString &text) const
    {
        return font.pathForGlyph(font.glyphIndexesForString(text).value(0));
    }

private slots:
    void initTestCase()
    {
        loadResources();
        QVERIFY(QFontDatabase::addApplicationFont(prefix + "kestrixSymbols.ttf") >= 0);
        QFont symbols("Kestrix Symbols");
        symbols.setPixelSize(1000);
        font = QRawFont::fromFont(symbols);
        QCOMPARE(font.familyName(), QString("Kestrix Symbols"));
    }

    void nothingIsMissingUnusedOrLarge()
    {
        QStringList expected =
            QString("english.gif blank.gif kestrix-typing.svg kestrixSymbols.ttf").split(' ');
        for (const QString &row : pictures)
            expected << name(row) + ".png" << name(row) + "@2x.png";
        for (const QString &row : animations)
            expected << name(row) + ".gif";
        for (const QString &sound : sounds)
            expected << sound + ".wav";
        qint64 bytes = 0;
        for (const QFileInfo &file : QDir(prefix).entryInfoList()) {
            QVERIFY2(expected.removeOne(file.fileName()), qPrintable("unused: " + file.fileName()));
            bytes += file.size();
        }
        QVERIFY2(expected.isEmpty(), qPrintable("missing: " + expected.join(' ')));
        QVERIFY2(bytes < 3 * 1024 * 1024, qPrintable(QString::number(bytes)));
    }

    void picturesHaveSharperTwins()
    {
        for (const QString &row : pictures) {
            const QImage once = load(name(row) + ".png");
            const QImage twice = load(name(row) + "@2x.png");
            QCOMPARE(name(row) + size(once), row);
            QVERIFY2(twice.size() == once.size() * 2, qPrintable(row));
            QVERIFY2(count(once, opaque) * 4 > once.width() * once.height(), qPrintable(row));
            // All but the first are shown on top of other things.
            QVERIFY2((qAlpha(once.pixel(0, 0)) > 0) == (row == pictures[0]), qPrintable(row));
            const QImage back = twice.scaled(once.size(), {}, Qt::SmoothTransformation);
            QVERIFY2(change(once, back) < 1, qPrintable(row));
        }
    }

    // The beak, the only amber part of the face, goes down and up with the head, to be seen.
    void theInstructorNods()
    {
        const auto beak = [](const QString &file) { // its first row
            const QImage image = load(file);
            const auto amber = [](QRgb pixel) {
                const QColor colour(pixel);
                return colour.saturation() > 180 && colour.value() > 200 && colour.hue() / 15 == 2;
            };
            int y = 0;
            while (y < 115 && count(image.copy(0, y, image.width(), 1), amber) < 4)
                ++y;
            return y;
        };
        QVERIFY(beak("chup.png") + 12 < beak("chmiddle.png"));
        QVERIFY(beak("chmiddle.png") + 12 < beak("chdown.png") && beak("chdown.png") < 115);
    }

    // Turned to point down, an arrow has its broad head just below the middle, and narrows.
    void arrowsPointTheirWay()
    {
        const std::pair<const char *, qreal> arrows[] = {
            {"arrowDown.png", 0}, {"arrowLeft.png", -90}, {"optionsArrow.png", 90}};
        for (const auto &[file, angle] : arrows) {
            const QImage image = load(file).transformed(QTransform().rotate(angle));
            const auto sixth = [&image](int i) {
                const int height = image.height() / 6;
                return count(image.copy(0, i * height, image.width(), height), opaque);
            };
            QVERIFY2(sixth(3) > 1.3 * sixth(2) && sixth(3) > 2 * sixth(5), file);
        }
    }

    void icons()
    {
        const QImage icon = load("english.gif");
        QVERIFY(qAlpha(icon.pixel(0, 0)) == 0 && opaque(icon.pixel(24, 24)));
        const QImage blank = load("blank.gif");
        QCOMPARE(size(icon) + size(blank), QString(" 48x48 54x54"));
        QCOMPARE(count(blank, [](QRgb pixel) { return qAlpha(pixel) > 0; }), 0);
        QFile file(prefix + "kestrix-typing.svg");
        QVERIFY(file.open(QIODevice::ReadOnly) && file.readAll().count("<path") > 2);
    }

    void animationsMove()
    {
        for (const QString &row : animations) {
            QMovie movie(prefix + name(row) + ".gif");
            QVERIFY2(movie.frameCount() >= 8 && movie.loopCount() == -1, qPrintable(row));
            int total = 0;
            double clear = 0;
            QImage before;
            for (int i = 0; i < movie.frameCount(); ++i) {
                QVERIFY2(movie.jumpToFrame(i), qPrintable(row));
                const int delay = movie.nextFrameDelay();
                QVERIFY2(delay >= 40 && delay <= 100, qPrintable(row));
                total += delay;
                const QImage frame =
                    movie.currentImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
                QCOMPARE(name(row) + size(frame), row);
                if (i)
                    QVERIFY2(i == 0 || change(before, frame) > 0.2, qPrintable(row));
                clear += 1 - count(frame, opaque) * 1.0 / (frame.width() * frame.height());
                before = frame;
            }
            QVERIFY2(clear > 0.15 * movie.frameCount(), "the key behind it must show");
            // The effects are shown for 900 ms: by then the whole story must have been seen.
            QVERIFY2(before.width() != 96 || (total >= 800 && total <= 1000), qPrintable(row));
        }
    }

    void soundsAreShortAndClean()
    {
        for (const QString &sound : sounds) {
            QFile file(prefix + sound + ".wav");
            QVERIFY2(file.open(QIODevice::ReadOnly) && file.size() > 44, qPrintable(sound));
            const QByteArray bytes = file.readAll();
            const char *data = bytes.constData();
            const auto number = [data](int at) { return qFromLittleEndian<qint32>(data + at); };
            QVERIFY2(bytes.startsWith("RIFF") && number(4) == bytes.size() - 8 &&
                         bytes.mid(8, 8) == "WAVEfmt " && number(16) == 16 &&
                         bytes.mid(36, 4) == "data" && number(40) == bytes.size() - 44,
                     qPrintable(sound));
            QVERIFY2(number(20) == 0x10001 && number(32) == 0x100002, "PCM, mono, 16 bits");
            const int rate = number(24);
            const int length = number(40) / 2;
            QVERIFY2((rate == 22050 || rate == 44100) && length < 1.5 * rate, qPrintable(sound));
            int peak = 0;
            int ends = 0; // the first and the last millisecond, where a sound would click
            for (int i = 0; i < length; ++i) {
                const int sample = std::abs(qFromLittleEndian<qint16>(data + 44 + 2 * i));
                peak = std::max(peak, sample);
                if (std::min(i, length - 1 - i) < rate / 1000)
                    ends = std::max(ends, sample);
            }
            QVERIFY2(sound == "silence" ? peak == 0 : peak > 3277, qPrintable(sound));
            QVERIFY2(peak <= 23198 && ends < 328, qPrintable(sound)); // -3 dB; inaudible
        }
    }

    // Where each points, if it does, and whether it has more ink there than at its tail, as a line
    // arrow has, or less, as a solid arrow or a hand with its one long finger.
    void glyphs()
    {
        QVERIFY(font.supportsCharacter(QLatin1Char(' ')) && glyph(" ").isEmpty());
        const std::tuple<QString, int, int, int> all[] = {
            {"s", 0, 0, 0},      {"q", 0, 0, 0},     {"\u221A", 0, 0, 0},  {"\u00FC", 0, 0, 0},
            {"Z", -1, 0, -1},    {"[", 1, 0, -1},    {"E", -1, 0, -1},     {"F", 1, 0, -1},
            {"G", 0, -1, -1},    {"H", 0, 1, -1},    {"\u2190", -1, 0, 1}, {"\u2191", 0, -1, 1},
            {"\u2192", 1, 0, 1}, {"\u2193", 0, 1, 1}};
        for (const auto &[text, x, y, more] : all) {
            QVERIFY2(font.supportsCharacter(text.at(0)), qPrintable(text));
            const QPainterPath path = glyph(text);
            const QRectF box = path.boundingRect();
            const bool whole = -box.top() <= font.ascent() && box.bottom() <= font.descent();
            QVERIFY2(whole && box.height() > 450, qPrintable(text)); // to be read at 9 pixels
            int lean = 0;                                            // how much more ink
            for (int i = 0; i < 60 * 60; ++i) {
                const QPointF place((i % 60 - 29.5) / 60, (i / 60 - 29.5) / 60);
                const double way = place.x() * x + place.y() * y;
                if (path.contains(box.center() +
                                  QPointF(place.x() * box.width(), place.y() * box.height())))
                    lean += way > 0.2 ? 1 : way < -0.2 ? -1 : 0;
            }
            QVERIFY2(more == 0 || lean * more > 0, qPrintable(text));
        }
        // The two halves of the shuffle sign meet.
        const double advance = font.advancesForGlyphIndexes(font.glyphIndexesForString("s"))[0].x();
        QVERIFY(glyph("s").boundingRect().right() >= advance);
        QVERIFY(glyph("q").boundingRect().left() <= 0);
    }
};

QTEST_MAIN(tst_resources)
#include "tst_resources.moc"
