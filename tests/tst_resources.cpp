#include "resources.h"

#include <QDir>
#include <QFontDatabase>
#include <QImage>
#include <QMovie>
#include <QPainterPath>
#include <QRawFont>
#include <QTest>
#include <QXmlStreamReader>
#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace {
const QString prefix = ":/new/prefix1/";

struct Picture
{
    const char *name;
    QSize size;
};

// Each has a twin for a screen with a device pixel ratio of 2.
const Picture pictures[] = {{"kestrixTypingOrlamu", {640, 360}},
                            {"english", {320, 200}},
                            {"youTube", {96, 72}},
                            {"chdown", {144, 115}},
                            {"chmiddle", {144, 115}},
                            {"chup", {144, 115}},
                            {"arrowDown", {55, 63}},
                            {"arrowLeft", {69, 59}},
                            {"optionsArrow", {70, 56}},
                            {"speaker", {24, 24}},
                            {"folder", {28, 24}}};

const Picture animations[] = {{"explodeAll2", {96, 90}},
                              {"butterfly1", {96, 76}},
                              {"birdsdance2", {96, 60}},
                              {"angryEmotion2", {96, 60}},
                              {"swirl1", {54, 54}},
                              {"snowfall", {54, 54}},
                              {"snowSmall", {54, 54}},
                              {"bouncingSheepSmall", {34, 54}},
                              {"rain", {54, 54}},
                              {"pulsingLightSmall", {54, 54}},
                              {"marbleTransparentSmall", {54, 54}},
                              {"kittyWalk", {54, 54}}};

const char *const sounds[] = {"silence", "bark",       "meow",        "quack1",
                              "photon",  "photon2",    "whistle",     "bubble2",
                              "chime1",  "explosion1", "machineGun2", "typewriter"};

QImage load(const QString &name)
{
    return QImage(prefix + name).convertToFormat(QImage::Format_ARGB32);
}

bool opaque(QRgb pixel)
{
    return qAlpha(pixel) > 127;
}

template <class Rule>
int count(const QImage &image, Rule rule)
{
    int result = 0;
    for (int i = 0; i < image.width() * image.height(); ++i)
        result += rule(image.pixel(i % image.width(), i / image.width())) ? 1 : 0;
    return result;
}

// The mean difference of a channel, with what is transparent counted as grey, so that something
// that appears from nothing counts as well.
double change(const QImage &a, const QImage &b)
{
    const auto shown = [](QRgb pixel) { return opaque(pixel) ? pixel : qRgb(128, 128, 128); };
    const int size = a.width() * a.height();
    double sum = 0;
    for (int i = 0; i < size; ++i) {
        const QRgb p = shown(a.pixel(i % a.width(), i / a.width()));
        const QRgb q = shown(b.pixel(i % a.width(), i / a.width()));
        sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) +
               std::abs(qBlue(p) - qBlue(q));
    }
    return sum / (3.0 * size);
}
} // namespace

class tst_resources : public QObject
{
    Q_OBJECT

    QRawFont font;

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
        QStringList expected{"english.gif", "blank.gif", "kestrix-typing.svg",
                             "kestrixSymbols.ttf"};
        for (const Picture &picture : pictures)
            expected << QString(picture.name) + ".png" << QString(picture.name) + "@2x.png";
        for (const Picture &animation : animations)
            expected << QString(animation.name) + ".gif";
        for (const char *name : sounds)
            expected << QString(name) + ".wav";
        qint64 bytes = 0;
        for (const QFileInfo &file : QDir(prefix).entryInfoList()) {
            QVERIFY2(expected.removeOne(file.fileName()), qPrintable("unused: " + file.fileName()));
            QVERIFY2(file.size() > 0, qPrintable("empty: " + file.fileName()));
            bytes += file.size();
        }
        QVERIFY2(expected.isEmpty(), qPrintable("missing: " + expected.join(' ')));
        QVERIFY2(bytes < 3 * 1024 * 1024, qPrintable(QString::number(bytes)));
    }

    void picturesHaveSharperTwins()
    {
        for (const auto &[name, size] : pictures) {
            const QImage once = load(QString(name) + ".png");
            const QImage twice = load(QString(name) + "@2x.png");
            QVERIFY2(once.size() == size && twice.size() == size * 2, name);
            // All but the photograph-like one are shown on top of other things.
            const bool seeThrough = &size != &pictures[0].size;
            for (const QImage &image : {once, twice}) {
                const int covered = count(image, opaque);
                const int all = image.width() * image.height();
                QVERIFY2(covered > all / 4 && (covered < all) == seeThrough, name);
                QVERIFY2((qAlpha(image.pixel(0, 0)) == 0) == seeThrough, name);
            }
            const QImage back = twice.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            QVERIFY2(change(once, back) < 6, name);
            QVERIFY2(change(once, once.mirrored(true, true)) > 1, name);
        }
    }

    // The beak is the only amber part of the face; it goes down with the head and up with it, far
    // enough to be seen at a glance.
    void theInstructorNods()
    {
        const auto beak = [](const char *name) {
            const QImage image = load(name);
            double sum = 0;
            int found = 0;
            for (int y = 0; y < image.height(); ++y) {
                const int row = count(image.copy(0, y, image.width(), 1), [](QRgb pixel) {
                    const QColor colour = QColor::fromRgba(pixel);
                    return colour.alpha() == 255 && colour.saturation() > 180 &&
                           colour.value() > 200 && colour.hue() > 30 && colour.hue() < 45;
                });
                sum += y * row;
                found += row;
            }
            return found > 20 ? sum / found : qQNaN();
        };
        QVERIFY(beak("chdown.png") > beak("chmiddle.png") + 12);
        QVERIFY(beak("chmiddle.png") > beak("chup.png") + 12);
    }

    // An arrow, turned to point down, is broad behind its point and narrow at it.
    void arrowsPointTheirWay()
    {
        const std::pair<const char *, qreal> arrows[] = {
            {"arrowDown.png", 0}, {"arrowLeft.png", -90}, {"optionsArrow.png", 90}};
        for (const auto &[name, angle] : arrows) {
            const QImage image = load(name).transformed(QTransform().rotate(angle));
            QVector<int> rows;
            for (int y = 0; y < image.height(); ++y) {
                const int row = count(image.copy(0, y, image.width(), 1), opaque);
                if (row > 0)
                    rows << row;
            }
            const int broadest = *std::max_element(rows.begin(), rows.end());
            QVERIFY2(rows.indexOf(broadest) > rows.size() * 2 / 5, name);
            QVERIFY2(rows.last() * 3 < broadest, name);
        }
    }

    void icons()
    {
        const QImage icon = load("english.gif");
        QCOMPARE(icon.size(), QSize(48, 48));
        QVERIFY(qAlpha(icon.pixel(0, 0)) == 0 && opaque(icon.pixel(24, 24)));
        const QImage tiny = icon.scaled(16, 16, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QVERIFY(count(tiny, [](QRgb p) { return opaque(p) && qGray(p) > 150; }) > 30);
        QVERIFY(count(tiny, [](QRgb p) { return opaque(p) && qGray(p) < 100; }) > 30);

        const QImage blank = load("blank.gif");
        QCOMPARE(blank.size(), QSize(54, 54));
        QCOMPARE(count(blank, [](QRgb p) { return qAlpha(p) > 0; }), 0);

        QFile file(prefix + "kestrix-typing.svg");
        QVERIFY(file.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&file);
        QStringList elements;
        while (!xml.atEnd()) {
            if (xml.readNext() == QXmlStreamReader::StartElement)
                elements << xml.name().toString();
        }
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        QVERIFY(elements.count("path") > 2);
        // Neither pixels nor a font that another desktop lacks.
        QVERIFY(!elements.contains("image") && !elements.contains("text"));
    }

    void animationsMove()
    {
        for (const auto &[name, size] : animations) {
            QMovie movie(prefix + name + ".gif");
            QVERIFY2(movie.isValid() && movie.loopCount() == -1, name);
            QVERIFY2(movie.frameCount() >= 8, name);
            int total = 0;
            int clear = 0;
            QImage before;
            for (int i = 0; i < movie.frameCount(); ++i) {
                QVERIFY2(movie.jumpToFrame(i), name);
                QVERIFY2(movie.nextFrameDelay() >= 40 && movie.nextFrameDelay() <= 100, name);
                total += movie.nextFrameDelay();
                const QImage frame = movie.currentImage().convertToFormat(QImage::Format_ARGB32);
                QVERIFY2(frame.size() == size, name);
                QVERIFY2(i == 0 || change(before, frame) > 0.2, name);
                clear += count(frame, [](QRgb pixel) { return !opaque(pixel); });
                before = frame;
            }
            // The key behind it must show.
            QVERIFY2(clear > 0.15 * size.width() * size.height() * movie.frameCount(), name);
            // The effects are shown for 900 ms: by then the whole story must have been seen.
            QVERIFY2(size.width() != 96 || (total >= 800 && total <= 1000), name);
        }
    }

    void soundsAreShortAndClean()
    {
        for (const char *name : sounds) {
            QFile file(prefix + name + ".wav");
            QVERIFY2(file.open(QIODevice::ReadOnly) && file.size() > 44, name);
            const QByteArray bytes = file.readAll();
            const auto number = [&bytes](int at) {
                return qFromLittleEndian<quint32>(bytes.constData() + at);
            };
            const quint32 size = static_cast<quint32>(bytes.size());
            const int rate = static_cast<int>(number(24));
            QVERIFY2(bytes.startsWith("RIFF") && number(4) == size - 8, name);
            QVERIFY2(bytes.mid(8, 8) == "WAVEfmt " && number(16) == 16, name);
            QVERIFY2(number(20) == 0x10001 && number(32) == 0x100002, "PCM, mono, 16 bits");
            QVERIFY2(rate == 22050 || rate == 44100, name);
            QVERIFY2(bytes.mid(36, 4) == "data" && number(40) == size - 44, name);

            const int length = (bytes.size() - 44) / 2;
            QVERIFY2(length < 1.5 * rate, name);
            double peak = 0;
            double energy = 0;
            double sum = 0;
            double ends = 0; // the first and the last millisecond, where a sound would click
            for (int i = 0; i < length; ++i) {
                const double sample =
                    qFromLittleEndian<qint16>(bytes.constData() + 44 + 2 * i) / 32768.0;
                peak = std::max(peak, std::abs(sample));
                energy += sample * sample;
                sum += sample;
                if (std::min(i, length - 1 - i) < rate / 1000)
                    ends = std::max(ends, std::abs(sample));
            }
            const bool silent = name == sounds[0];
            QVERIFY2(peak <= (silent ? 0 : std::pow(10, -3 / 20.0)), name);
            QVERIFY2(ends < 0.01 && std::abs(sum / length) < 0.01, name);
            QVERIFY2(silent || std::sqrt(energy / length) > 0.03, name);
        }
    }

    // How the ink lies tells where a hand or an arrow points: a line arrow has its head there, and
    // so more ink than in the opposite third; a hand has but one long finger there.
    void glyphs()
    {
        QVERIFY(font.supportsCharacter(QLatin1Char(' ')) && glyph(" ").isEmpty());
        const struct
        {
            QString text;
            int x, y; // where it points
            bool thin;
        } all[] = {{"s", 0, 0, true},       {"q", 0, 0, true},        {"\u221A", 0, 0, true},
                   {"\u00FC", 0, 0, true},  {"Z", -1, 0, true},       {"[", 1, 0, true},
                   {"E", -1, 0, true},      {"F", 1, 0, true},        {"G", 0, -1, true},
                   {"H", 0, 1, true},       {"\u2190", -1, 0, false}, {"\u2191", 0, -1, false},
                   {"\u2192", 1, 0, false}, {"\u2193", 0, 1, false}};
        for (const auto &[text, x, y, thin] : all) {
            QVERIFY2(font.supportsCharacter(text.at(0)), qPrintable(text));
            const QPainterPath path = glyph(text);
            const QRectF box = path.boundingRect();
            QVERIFY2(box.height() > 450, qPrintable(text)); // large enough to be read at 9 pixels
            QVERIFY2(-box.top() <= font.ascent() && box.bottom() <= font.descent(),
                     qPrintable(text)); // not cut off
            int lean = 0;               // more ink in the third that it points to
            for (int i = 0; i < 60 * 60; ++i) {
                const QPointF place((i % 60 + 0.5) / 60, (i / 60 + 0.5) / 60);
                const double way = (place.x() - 0.5) * x + (place.y() - 0.5) * y;
                if (std::abs(way) > 0.2 &&
                    path.contains(box.topLeft() +
                                  QPointF(place.x() * box.width(), place.y() * box.height())))
                    lean += way > 0 ? 1 : -1;
            }
            QVERIFY2((x == 0 && y == 0) || (thin ? lean < 0 : lean > 0), qPrintable(text));
        }
        // The two halves of the shuffle sign meet.
        const QVector<quint32> halves = font.glyphIndexesForString("sq");
        const double advance = font.advancesForGlyphIndexes(halves)[0].x();
        QVERIFY(glyph("s").boundingRect().right() >= advance);
        QVERIFY(glyph("q").boundingRect().left() <= 0);
    }
};

QTEST_MAIN(tst_resources)
#include "tst_resources.moc"
