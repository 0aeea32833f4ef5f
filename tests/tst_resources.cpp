#include "resources.h"

#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QImage>
#include <QImageReader>
#include <QMovie>
#include <QPainterPath>
#include <QRawFont>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace {
const QString prefix = QStringLiteral(":/new/prefix1/");

struct Picture
{
    const char *name;
    QSize size;
    bool seeThrough; // shown on top of other things
};

// Every picture that the window shows has a twin for a screen with a device pixel ratio of 2.
const Picture shownPictures[] = {
    {"kestrixTypingOrlamu", {640, 360}, false},
    {"english", {320, 200}, true},
    {"youTube", {96, 72}, true},
    {"chdown", {144, 115}, true},
    {"chmiddle", {144, 115}, true},
    {"chup", {144, 115}, true},
    {"arrowDown", {55, 63}, true},
    {"arrowLeft", {69, 59}, true},
    {"optionsArrow", {70, 56}, true},
    {"speaker", {24, 24}, true},
    {"folder", {28, 24}, true},
};

struct Animation
{
    const char *name;
    QSize size;
};

const Animation animations[] = {
    {"explodeAll2", {96, 90}},
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
    {"kittyWalk", {54, 54}},
};

const char *const sounds[] = {"silence", "bark",       "meow",        "quack1",
                              "photon",  "photon2",    "whistle",     "bubble2",
                              "chime1",  "explosion1", "machineGun2", "typewriter"};

const QString others[] = {QStringLiteral("english.gif"), QStringLiteral("blank.gif"),
                          QStringLiteral("kestrix-typing.svg"),
                          QStringLiteral("kestrixSymbols.ttf")};

QImage load(const QString &name)
{
    return QImage(prefix + name).convertToFormat(QImage::Format_ARGB32);
}

std::vector<QImage> framesOf(const QString &name)
{
    QImageReader reader(prefix + name);
    std::vector<QImage> frames;
    while (reader.canRead())
        frames.push_back(reader.read().convertToFormat(QImage::Format_ARGB32));
    return frames;
}

// How much of the picture changes from one frame to another: the mean difference of a channel, with
// what is transparent counted as grey, so that something that appears from nothing counts as well.
double change(const QImage &a, const QImage &b)
{
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const auto shown = [x, y](const QImage &image) {
                const QRgb pixel = image.pixel(x, y);
                return qAlpha(pixel) < 128 ? qRgb(128, 128, 128) : pixel;
            };
            const QRgb p = shown(a);
            const QRgb q = shown(b);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) +
                   std::abs(qBlue(p) - qBlue(q));
        }
    }
    return sum / (3.0 * a.width() * a.height());
}

bool opaque(const QImage &image, int x, int y)
{
    return qAlpha(image.pixel(x, y)) > 127;
}

struct Wave
{
    int channels = 0;
    int rate = 0;
    int bits = 0;
    int format = 0;
    std::vector<double> samples;
};

Wave readWave(const QByteArray &bytes)
{
    Wave wave;
    if (bytes.size() < 12 || !bytes.startsWith("RIFF") || bytes.mid(8, 4) != "WAVE")
        return wave;
    const auto number = [&bytes](int at, int length) -> quint32 {
        const char *place = bytes.constData() + at;
        return length == 2 ? qFromLittleEndian<quint16>(place) : qFromLittleEndian<quint32>(place);
    };
    if (number(4, 4) + 8 != static_cast<quint32>(bytes.size()))
        return wave;
    for (int at = 12; at + 8 <= bytes.size();) {
        const QByteArray kind = bytes.mid(at, 4);
        const int length = static_cast<int>(number(at + 4, 4));
        const int body = at + 8;
        if (length < 0 || length > bytes.size() - body)
            break;
        if (kind == "fmt " && length >= 16) {
            wave.format = static_cast<int>(number(body, 2));
            wave.channels = static_cast<int>(number(body + 2, 2));
            wave.rate = static_cast<int>(number(body + 4, 4));
            wave.bits = static_cast<int>(number(body + 14, 2));
        } else if (kind == "data") {
            for (int i = body; i + 2 <= body + length; i += 2)
                wave.samples.push_back(qFromLittleEndian<qint16>(bytes.constData() + i) / 32768.0);
        }
        at = body + length + length % 2;
    }
    return wave;
}
} // namespace

class tst_resources : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void nothingIsMissingAndNothingUnused();
    void theCollectionIsSmall();
    void picture_data();
    void picture();
    void theInstructorNods();
    void arrowsPointTheirWay();
    void theWindowIconHasASilhouette();
    void theIconScales();
    void blankIsBlank();
    void animation_data();
    void animation();
    void effectsLastAboutASecond();
    void sound_data();
    void sound();
    void silenceIsSilent();
    void theFontHasItsGlyphs();
    void forwardMirrorsBack();
    void handsAndArrowsPointTheirWay();
    void shuffleIsOnePicture();

private:
    QRawFont m_font;

    QPainterPath glyph(const QString &text) const
    {
        return m_font.pathForGlyph(m_font.glyphIndexesForString(text).value(0));
    }
};

void tst_resources::initTestCase()
{
    loadResources();
    const int id = QFontDatabase::addApplicationFont(prefix + QStringLiteral("kestrixSymbols.ttf"));
    QVERIFY(id >= 0);
    QCOMPARE(QFontDatabase::applicationFontFamilies(id),
             QStringList(QStringLiteral("Kestrix Symbols")));
    QFont font(QStringLiteral("Kestrix Symbols"));
    font.setPixelSize(1000);
    m_font = QRawFont::fromFont(font);
    QCOMPARE(m_font.familyName(), QStringLiteral("Kestrix Symbols"));
}

void tst_resources::nothingIsMissingAndNothingUnused()
{
    QSet<QString> expected;
    for (const Picture &p : shownPictures) {
        expected << QLatin1String(p.name) + QStringLiteral(".png");
        expected << QLatin1String(p.name) + QStringLiteral("@2x.png");
    }
    for (const Animation &a : animations)
        expected << QLatin1String(a.name) + QStringLiteral(".gif");
    for (const char *name : sounds)
        expected << QLatin1String(name) + QStringLiteral(".wav");
    for (const QString &name : others)
        expected << name;

    const QStringList found = QDir(prefix).entryList();
    const QSet<QString> present(found.begin(), found.end());
    const auto names = [](const QSet<QString> &set) {
        return QStringList(set.begin(), set.end()).join(QLatin1Char(' '));
    };
    const QString missing = names(QSet<QString>(expected).subtract(present));
    QVERIFY2(missing.isEmpty(), qPrintable(QStringLiteral("missing: ") + missing));
    const QString unused = names(QSet<QString>(present).subtract(expected));
    QVERIFY2(unused.isEmpty(), qPrintable(QStringLiteral("unused: ") + unused));
}

void tst_resources::theCollectionIsSmall()
{
    qint64 bytes = 0;
    const QFileInfoList files = QDir(prefix).entryInfoList();
    for (const QFileInfo &file : files) {
        QVERIFY2(file.size() > 0, qPrintable(file.fileName()));
        bytes += file.size();
    }
    QVERIFY2(bytes < 3 * 1024 * 1024, qPrintable(QString::number(bytes)));
}

void tst_resources::picture_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("seeThrough");
    for (const Picture &p : shownPictures)
        QTest::newRow(p.name) << QString::fromLatin1(p.name) << p.size << p.seeThrough;
}

void tst_resources::picture()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    QFETCH(bool, seeThrough);

    const QImage once = load(name + QStringLiteral(".png"));
    const QImage twice = load(name + QStringLiteral("@2x.png"));
    QCOMPARE(once.size(), size);
    QCOMPARE(twice.size(), size * 2);

    for (const QImage &image : {once, twice}) {
        QSet<QRgb> colours;
        int covered = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                colours << image.pixel(x, y);
                covered += opaque(image, x, y) ? 1 : 0;
            }
        }
        QVERIFY(colours.size() > 16);
        QVERIFY(covered > image.width() * image.height() / 4);
        QCOMPARE(qAlpha(image.pixel(0, 0)) == 0, seeThrough);
        QCOMPARE(covered < image.width() * image.height(), seeThrough);
    }

    // The twin is the same picture, only sharper.
    const QImage back = twice.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QVERIFY2(change(once, back) < 6, qPrintable(QString::number(change(once, back))));
}

// The beak is the only part of the face that is amber and opaque in all three pictures; it goes
// down with the head and up with it, far enough to be seen at a glance.
void tst_resources::theInstructorNods()
{
    const auto beak = [](const QString &name) {
        const QImage image = load(name);
        double sum = 0;
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor colour(image.pixelColor(x, y));
                if (colour.alpha() == 255 && colour.saturation() > 180 && colour.value() > 200 &&
                    colour.hue() > 30 && colour.hue() < 45) {
                    sum += y;
                    ++count;
                }
            }
        }
        return count > 20 ? sum / count : qQNaN();
    };
    const double down = beak(QStringLiteral("chdown.png"));
    const double middle = beak(QStringLiteral("chmiddle.png"));
    const double up = beak(QStringLiteral("chup.png"));
    QVERIFY2(down > middle + 12, qPrintable(QStringLiteral("%1 %2").arg(down).arg(middle)));
    QVERIFY2(middle > up + 12, qPrintable(QStringLiteral("%1 %2").arg(middle).arg(up)));
}

// An arrow is broad behind its point and narrow at it.
void tst_resources::arrowsPointTheirWay()
{
    const auto breadth = [](const QImage &image) {
        std::vector<int> rows;
        for (int y = 0; y < image.height(); ++y) {
            int count = 0;
            for (int x = 0; x < image.width(); ++x)
                count += opaque(image, x, y) ? 1 : 0;
            if (count > 0)
                rows.push_back(count);
        }
        return rows;
    };
    struct Turned
    {
        const char *name;
        qreal angle; // that lets the arrow point down
    };
    for (const Turned &arrow : {Turned{"arrowDown.png", 0}, Turned{"arrowLeft.png", -90},
                                Turned{"optionsArrow.png", 90}}) {
        const QImage image =
            load(QLatin1String(arrow.name)).transformed(QTransform().rotate(arrow.angle));
        const std::vector<int> rows = breadth(image);
        const auto broadest = std::max_element(rows.begin(), rows.end());
        QVERIFY2(broadest - rows.begin() > static_cast<std::ptrdiff_t>(rows.size() * 2 / 5),
                 arrow.name);
        QVERIFY2(rows.back() * 3 < *broadest, arrow.name);
        QVERIFY2(std::is_sorted(broadest, rows.end(), [](int a, int b) { return a > b + 1; }),
                 arrow.name);
    }
}

void tst_resources::theWindowIconHasASilhouette()
{
    const QImage icon = load(QStringLiteral("english.gif"));
    QCOMPARE(icon.size(), QSize(48, 48));
    QCOMPARE(qAlpha(icon.pixel(0, 0)), 0);
    QVERIFY(opaque(icon, 24, 24));
    // At 16 pixels there are still parts that are clearly light and clearly dark.
    const QImage tiny = icon.scaled(16, 16, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    int light = 0;
    int dark = 0;
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            if (opaque(tiny, x, y)) {
                const int grey = qGray(tiny.pixel(x, y));
                light += grey > 150 ? 1 : 0;
                dark += grey < 100 ? 1 : 0;
            }
        }
    }
    QVERIFY2(light > 30 && dark > 30, qPrintable(QStringLiteral("%1 %2").arg(light).arg(dark)));
}

void tst_resources::theIconScales()
{
    QFile file(prefix + QStringLiteral("kestrix-typing.svg"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    int shapes = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("svg")) {
            const QStringList box =
                xml.attributes().value(QLatin1String("viewBox")).toString().split(QLatin1Char(' '));
            QCOMPARE(box.size(), 4);
            QCOMPARE(box.at(2), box.at(3));
        }
        QVERIFY2(xml.name() != QLatin1String("image") && xml.name() != QLatin1String("text"),
                 "neither pixels nor a font that another desktop lacks");
        shapes += xml.name() == QLatin1String("path") ? 1 : 0;
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QVERIFY(shapes > 2);
}

void tst_resources::blankIsBlank()
{
    const std::vector<QImage> frames = framesOf(QStringLiteral("blank.gif"));
    QCOMPARE(frames.size(), std::size_t(1));
    QCOMPARE(frames.front().size(), QSize(54, 54));
    for (int y = 0; y < 54; ++y)
        for (int x = 0; x < 54; ++x)
            QCOMPARE(qAlpha(frames.front().pixel(x, y)), 0);
}

void tst_resources::animation_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    for (const Animation &a : animations)
        QTest::newRow(a.name) << QString::fromLatin1(a.name) + QStringLiteral(".gif") << a.size;
}

void tst_resources::animation()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);

    QMovie movie(prefix + name);
    QVERIFY(movie.isValid());
    QVERIFY2(movie.loopCount() == -1, "loops for ever");
    for (int i = 0; i < movie.frameCount(); ++i) {
        QVERIFY(movie.jumpToFrame(i));
        QVERIFY2(movie.nextFrameDelay() >= 40 && movie.nextFrameDelay() <= 100,
                 qPrintable(QString::number(movie.nextFrameDelay())));
    }

    const std::vector<QImage> frames = framesOf(name);
    QVERIFY2(frames.size() >= 8, qPrintable(QString::number(frames.size())));
    QCOMPARE(static_cast<int>(frames.size()), movie.frameCount());

    std::vector<double> steps;
    int clear = 0;
    for (std::size_t i = 0; i < frames.size(); ++i) {
        QCOMPARE(frames[i].size(), size);
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                clear += opaque(frames[i], x, y) ? 0 : 1;
        steps.push_back(change(frames[i], frames[(i + 1) % frames.size()]));
        QVERIFY2(steps.back() > 0.2, qPrintable(QStringLiteral("frame %1 does not move").arg(i)));
    }
    QVERIFY2(clear > 0.15 * size.width() * size.height() * static_cast<double>(frames.size()),
             "the key behind it must show");

    // The step from the last frame to the first is a step like the others.
    const double seam = steps.back();
    steps.pop_back();
    const double largest = *std::max_element(steps.begin(), steps.end());
    QVERIFY2(seam <= 1.2 * largest,
             qPrintable(QStringLiteral("%1, others up to %2").arg(seam).arg(largest)));
}

// The effects are shown for 900 ms: whoever sees that long must have seen the whole story.
void tst_resources::effectsLastAboutASecond()
{
    for (const Animation &a : animations) {
        if (a.size.width() != 96)
            continue;
        QMovie movie(prefix + QLatin1String(a.name) + QStringLiteral(".gif"));
        int total = 0;
        for (int i = 0; i < movie.frameCount(); ++i) {
            QVERIFY(movie.jumpToFrame(i));
            total += movie.nextFrameDelay();
        }
        QVERIFY2(total >= 800 && total <= 1000,
                 qPrintable(QStringLiteral("%1: %2 ms").arg(QLatin1String(a.name)).arg(total)));
    }
}

void tst_resources::sound_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : sounds)
        QTest::newRow(name) << QString::fromLatin1(name) + QStringLiteral(".wav");
}

void tst_resources::sound()
{
    QFETCH(QString, name);
    QFile file(prefix + name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const Wave wave = readWave(file.readAll());

    QCOMPARE(wave.format, 1); // plain PCM
    QCOMPARE(wave.channels, 1);
    QCOMPARE(wave.bits, 16);
    QVERIFY(wave.rate == 22050 || wave.rate == 44100);
    QVERIFY(!wave.samples.empty());
    QVERIFY(static_cast<double>(wave.samples.size()) < 1.5 * wave.rate);

    double peak = 0;
    double energy = 0;
    double sum = 0;
    double jump = 0;
    for (std::size_t i = 0; i < wave.samples.size(); ++i) {
        const double sample = wave.samples[i];
        peak = std::max(peak, std::abs(sample));
        energy += sample * sample;
        sum += sample;
        // The ends: in the first and last millisecond nothing may be heard.
        const std::size_t millisecond = static_cast<std::size_t>(wave.rate / 1000);
        if (i < millisecond || i + millisecond >= wave.samples.size())
            jump = std::max(jump, std::abs(sample));
    }
    const double count = static_cast<double>(wave.samples.size());
    QVERIFY2(peak <= std::pow(10, -3 / 20.0), qPrintable(QString::number(20 * std::log10(peak))));
    QVERIFY2(jump < 0.01, "it would click at its ends");
    QVERIFY2(std::abs(sum / count) < 0.01, "it is off centre");
    if (name != QLatin1String("silence.wav"))
        QVERIFY2(std::sqrt(energy / count) > 0.03, "nothing is heard");
}

void tst_resources::silenceIsSilent()
{
    QFile file(prefix + QStringLiteral("silence.wav"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const Wave wave = readWave(file.readAll());
    QVERIFY(std::all_of(wave.samples.begin(), wave.samples.end(),
                        [](double sample) { return sample == 0.0; }));
}

void tst_resources::theFontHasItsGlyphs()
{
    const QString drawn = QStringLiteral("Z[sq\u221A\u00FCEFGH\u2190\u2191\u2192\u2193");
    for (const QChar c : drawn) {
        QVERIFY2(m_font.supportsCharacter(c), qPrintable(QString(c)));
        const QRectF box = glyph(QString(c)).boundingRect();
        const QString place =
            QStringLiteral("%1: %2 to %3").arg(c).arg(box.top()).arg(box.bottom());
        QVERIFY2(box.height() > 450, qPrintable(place)); // large enough to be read at 9 pixels
        QVERIFY2(-box.top() <= m_font.ascent() && box.bottom() <= m_font.descent(),
                 qPrintable(place)); // not cut off
    }
    QVERIFY(m_font.supportsCharacter(QLatin1Char(' ')));
    QVERIFY(glyph(QStringLiteral(" ")).isEmpty());
}

void tst_resources::forwardMirrorsBack()
{
    const QPainterPath back = glyph(QStringLiteral("Z"));
    const QPainterPath forward = QTransform::fromScale(-1, 1).map(glyph(QStringLiteral("[")));
    const QPainterPath moved =
        forward.translated(back.boundingRect().topLeft() - forward.boundingRect().topLeft());
    const auto area = [](const QPainterPath &path) {
        double twice = 0;
        const QPolygonF polygon = path.toFillPolygon();
        for (int i = 0; i + 1 < polygon.size(); ++i)
            twice += polygon[i].x() * polygon[i + 1].y() - polygon[i + 1].x() * polygon[i].y();
        return std::abs(twice / 2);
    };
    QVERIFY(area(back) > 100000);
    QVERIFY(area(back.subtracted(moved)) < 0.02 * area(back));
    QVERIFY(area(moved.subtracted(back)) < 0.02 * area(back));
}

// The back arrow has its point, and a hand its one long finger, on the thin side: there is less ink
// in the outer third that it points to than in the opposite one.
void tst_resources::handsAndArrowsPointTheirWay()
{
    const auto ink = [](const QPainterPath &path, const QRectF &part) {
        int count = 0;
        for (int i = 0; i < 60; ++i)
            for (int j = 0; j < 60; ++j)
                count += path.contains(part.topLeft() + QPointF((i + 0.5) * part.width() / 60,
                                                                (j + 0.5) * part.height() / 60))
                             ? 1
                             : 0;
        return count;
    };
    struct Pointing
    {
        QString text;
        int x, y;
        bool thin; // a line arrow, unlike a hand, has its head where it points
    };
    const Pointing all[] = {
        {QStringLiteral("Z"), -1, 0, true},       {QStringLiteral("["), 1, 0, true},
        {QStringLiteral("E"), -1, 0, true},       {QStringLiteral("F"), 1, 0, true},
        {QStringLiteral("G"), 0, -1, true},       {QStringLiteral("H"), 0, 1, true},
        {QStringLiteral("\u2190"), -1, 0, false}, {QStringLiteral("\u2191"), 0, -1, false},
        {QStringLiteral("\u2192"), 1, 0, false},  {QStringLiteral("\u2193"), 0, 1, false},
    };
    for (const Pointing &p : all) {
        const QPainterPath path = glyph(p.text);
        const QRectF box = path.boundingRect();
        const double share = 0.3;
        QRectF near = box;
        QRectF far = box;
        if (p.x != 0) {
            near.setWidth(box.width() * share);
            far.setLeft(box.right() - box.width() * share);
        } else {
            near.setHeight(box.height() * share);
            far.setTop(box.bottom() - box.height() * share);
        }
        if (p.x + p.y > 0)
            std::swap(near, far);
        const bool less = ink(path, near) < ink(path, far);
        QVERIFY2(less == p.thin, qPrintable(p.text));
    }
}

// The two halves meet: no upright line between the first and the last ink of "sq" is empty.
void tst_resources::shuffleIsOnePicture()
{
    const QVector<quint32> indexes = m_font.glyphIndexesForString(QStringLiteral("sq"));
    QCOMPARE(indexes.size(), 2);
    const QPainterPath left = m_font.pathForGlyph(indexes[0]);
    const double advance = m_font.advancesForGlyphIndexes(indexes)[0].x();
    const QPainterPath right = m_font.pathForGlyph(indexes[1]).translated(advance, 0);
    QVERIFY(left.boundingRect().right() >= advance);
    QVERIFY(right.boundingRect().left() <= advance);
    // Together they are as high on the left as on the right, as lines that cross are.
    QVERIFY(std::abs(left.boundingRect().height() - right.boundingRect().height()) <
            0.35 * right.boundingRect().height());
}

QTEST_MAIN(tst_resources)
#include "tst_resources.moc"
