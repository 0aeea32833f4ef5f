#include "picture.h"
#include "resources.h"

#include <QDir>
#include <QFontDatabase>
#include <QImageReader>
#include <QMovie>
#include <QPainterPath>
#include <QRawFont>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>
#include <QtEndian>
#include <cmath>
#include <numeric>
#include <sys/stat.h>
#include <unistd.h>

namespace {
const QString prefix = ":/new/prefix1/";

// Each picture has a twin for a screen with a device pixel ratio of 2.
const QStringList pictures =
    QString("kestrixTypingOrlamu 640x360, english 320x200, youTube 96x72, chdown 144x115, "
            "chmiddle 144x115, chup 144x115, arrowDown 55x63, arrowLeft 69x59, optionsArrow 70x56, "
            "exploreLearn 72x72, exploreTranslator 72x72, exploreColor 72x72, exploreOther 72x72, "
            "fingerMap 912x297")
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
    static void rowOfEach(const QStringList &list)
    {
        QTest::addColumn<QString>("row");
        for (const QString &each : list)
            QTest::newRow(qPrintable(name(each))) << each;
    }
    static QString size(const QImage &image)
    {
        return QString(" %1x%2").arg(image.width()).arg(image.height());
    }
    static double share(const QImage &image) // of what is opaque
    {
        const QImage all = image.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        return qAlpha(all.pixel(0, 0)) / 255.0;
    }
    QPainterPath glyph(const QString &text) const
    {
        return font.pathForGlyph(font.glyphIndexesForString(text).value(0));
    }

    QTemporaryDir folder;

    QString saved(const QString &name, const QByteArray &bytes) const
    {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(name));
        return file.fileName();
    }
    QString image(const QString &name, int width, int height) const
    {
        const QImage picture = QImage(prefix + "kestrixTypingOrlamu.png").scaled(width, height);
        if (!picture.save(folder.filePath(name)))
            qFatal("cannot write %s", qPrintable(name));
        return folder.filePath(name);
    }
    static QByteArray bytesOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static QByteArray part(const QByteArray &bytes, int percent)
    {
        return bytes.left(bytes.size() * percent / 100);
    }
    static QByteArray number(qint32 value)
    {
        const qint32 little = qToLittleEndian(value);
        return QByteArray(reinterpret_cast<const char *>(&little), sizeof little);
    }
    // Heads of files that claim a size.
    static QByteArray bmpHead(qint32 width, qint32 height)
    {
        QByteArray bytes = QByteArray::fromHex("424d 36000000 00000000 36000000 28000000") +
                           QByteArray(8, 0) + QByteArray::fromHex("0100 1800") + QByteArray(24, 0);
        return bytes.replace(18, 4, number(width)).replace(22, 4, number(height));
    }
    static QByteArray tallPng()
    {
        return QByteArray::fromHex("89504e470d0a1a0a 0000000d49484452 00000001 01c9c380 0802000000 "
                                   "cafc59ea 0000000049444154 35af061e 0000000049454e44 ae426082");
    }

    static constexpr int frameRate = 22050;
    static QVector<double> samples(const QString &sound)
    {
        const QByteArray bytes = bytesOf(prefix + sound + ".wav");
        QVector<double> result;
        for (int i = 44; i + 1 < bytes.size(); i += 2)
            result << qFromLittleEndian<qint16>(bytes.constData() + i) / 32768.0;
        return result;
    }
    // The milliseconds that are sharper by the factor than each of the five before: a hit, or a
    // tick. The order says how much the highest frequencies count.
    static QVector<int> onsets(const QString &sound, int order, double factor)
    {
        QVector<double> levels = samples(sound);
        for (int i = 0; i < order; ++i)
            std::adjacent_difference(levels.begin(), levels.end(), levels.begin());
        QVector<double> sharpness;
        constexpr int length = frameRate / 1000;
        for (auto at = levels.cbegin() + order; at + length <= levels.cend(); at += length)
            sharpness << std::sqrt(std::inner_product(at, at + length, at, 0.0) / length) + 0.001;
        QVector<int> result;
        for (int ms = 6; ms < sharpness.size(); ++ms) {
            const auto now = sharpness.begin() + ms;
            if (*now > factor * *std::max_element(now - 6, now - 1))
                result << ms;
        }
        return result;
    }

    // What came out on stderr meanwhile, also from below Qt.
    template <class Work>
    static QString said(Work work)
    {
        QTemporaryFile file;
        if (!file.open())
            return "no file";
        const int before = dup(STDERR_FILENO);
        dup2(file.handle(), STDERR_FILENO);
        const QtMessageHandler handler =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
                fprintf(stderr, "%s\n", qPrintable(text));
            });
        work();
        qInstallMessageHandler(handler);
        dup2(before, STDERR_FILENO);
        close(before);
        file.seek(0);
        return file.readAll();
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
            QString("english.gif blank.gif folder@2x.png speaker@2x.png kestrixSymbols.ttf")
                .split(' ');
        for (const QString &row : pictures)
            expected << name(row) + ".png" << name(row) + "@2x.png";
        for (const QString &row : animations)
            expected << name(row) + ".gif" << name(row) + "@2x.gif";
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

    void picturesHaveSharperTwins_data() { rowOfEach(pictures); }
    void picturesHaveSharperTwins()
    {
        QFETCH(QString, row);
        const QImage once(prefix + name(row) + ".png"), twice(prefix + name(row) + "@2x.png");
        QCOMPARE(name(row) + size(once), row);
        QCOMPARE(twice.size(), once.size() * 2);
        QVERIFY(share(once) > 0.25);
        // All but the first are shown on top of other things.
        QCOMPARE(qAlpha(once.pixel(0, 0)) > 0, row == pictures[0]);
    }

    void blankIsBlank()
    {
        const QImage blank(prefix + "blank.gif");
        QVERIFY(blank.width() == 54 && share(blank) == 0);
    }

    void animationsMove_data() { rowOfEach(animations); }
    void animationsMove()
    {
        QFETCH(QString, row);
        // The fire ball is always played faster, in percent.
        const int speed = name(row) == "explodeAll2" ? 300 : 100;
        // Not by QMovie, whose delays are less by the time it took.
        QImageReader once(prefix + name(row) + ".gif"), twin(prefix + name(row) + "@2x.gif");
        const int count = once.imageCount();
        QVERIFY(count >= 8 && once.loopCount() == -1);
        QCOMPARE(twin.imageCount(), count);
        int total = 0;
        double clear = 0;
        QImage before;
        for (int i = 0; i < count; ++i) {
            const QImage frame = once.read();
            QCOMPARE(twin.read().size(), frame.size() * 2);
            QCOMPARE(twin.nextImageDelay(), once.nextImageDelay());
            const int delay = once.nextImageDelay() * 100 / speed;
            total += delay;
            QVERIFY(delay >= 33 && delay <= 100); // 10 to 30 a second
            QCOMPARE(name(row) + size(frame), row);
            QVERIFY(frame != before);
            clear += 1 - share(frame);
            before = frame;
        }
        QVERIFY2(clear > 0.15 * count, "the key behind it must show");
        // The effects are shown for 900 ms: by then the whole story must have been seen.
        QVERIFY(before.width() != 96 || (total >= 800 && total <= 1000));
    }

    // Also run at a scale of 1.5.
    void fitTheScreen()
    {
        const QPixmap shown = picture(prefix + "chup.png");
        QCOMPARE(shown.devicePixelRatio(), qGuiApp->devicePixelRatio());
        QCOMPARE(shown.size(), (QSizeF(144, 115) * shown.devicePixelRatio()).toSize());
        QVERIFY(picture(prefix + "missing.png").isNull());
        QMovie movie;
        for (const QSize &size : {QSize(), QSize(34, 54)}) {
            openMovie(movie, prefix + "kittyWalk.gif", size);
            movie.jumpToFrame(0);
            const QPixmap frame = movie.currentPixmap();
            QCOMPARE(frame.devicePixelRatio(), qGuiApp->devicePixelRatio() > 1 ? 2. : 1.);
            QCOMPARE(frame.size() / frame.devicePixelRatio(),
                     size.isValid() ? size : QSize(54, 54));
        }
    }

    // What a player may choose as a picture, and how large it is at a width of 54.
    void sizesOfPictures_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QSize>("size");
        const auto row = [](const char *text, const QString &path, const QSize &size = {}) {
            QTest::newRow(text) << path << size;
        };
        row("lying", image("lying.png", 300, 200), {54, 36});
        row("standing", image("standing.bmp", 20, 100), {54, 270});
        row("rounded", image("rounded.jpg", 100, 30), {54, 16});
        row("animation", prefix + "butterfly1.gif", {54, 43});
        row("blank", prefix + "blank.gif", {54, 54});
        row("a column of pixels", image("column.png", 1, 60000), {1, 2000});
        row("a line of pixels", image("line.png", 60000, 1), {54, 1});
        row("too large", saved("large.bmp", bmpHead(9000, 9000)));
        row("a column of 30 million, BMP", saved("tall.bmp", bmpHead(1, 30'000'000)));
        row("a column of 30 million, PNG", saved("tall.png", tallPng()));
        QByteArray frames = bytesOf(prefix + "rain.gif");
        frames.replace(6, 4, QByteArray::fromHex("b80bb80b")); // 3000 and 3000, in its head
        row("too large to move", saved("large.gif", frames));
        row("no pixel", saved("none.bmp", bmpHead(0, 10)));
        row("text", saved("text.png", "no picture"));
        row("empty", saved("empty.gif", ""));
        row("missing", folder.filePath("missing.png"));
        row("no name", QString());
        row("folder", folder.path());
        const QString pipe = folder.filePath("pipe.png");
        mkfifo(qPrintable(pipe), 0600);
        row("pipe", pipe);
        const QByteArray png = bytesOf(image("whole.png", 90, 90));
        const QByteArray jpg = bytesOf(image("whole.jpg", 90, 90));
        for (const int percent : {1, 3, 10, 50, 99}) {
            row("PNG cut short", saved(QString("cut%1.png").arg(percent), part(png, percent)));
            row("JPEG cut short", saved(QString("cut%1.jpg").arg(percent), part(jpg, percent)));
        }
        row("PNG with a chunk of 4 GiB",
            saved("chunk.png", png.left(33) + QByteArray::fromHex("fffffff4") + png.mid(37)));
        row("PNG with something behind", saved("behind.png", png + "more"), {54, 54});
        row("JPEG with something behind", saved("behind.jpg", jpg + "more"), {54, 54});
        // As cameras write them: a small picture, which has an end of its own, inside.
        const QByteArray thumbnail = QByteArray::fromHex("ffe1 0006 ffd8 ffd9");
        row("JPEG in JPEG", saved("camera.jpg", jpg.left(2) + thumbnail + jpg.mid(2)), {54, 54});
        row("JPEG in JPEG, cut short",
            saved("cut.jpg", jpg.left(2) + thumbnail + part(jpg, 90).mid(2)));
        // Of these there are some frames, and they are shown.
        row("GIF cut short", saved("cut.gif", part(bytesOf(prefix + "rain.gif"), 50)), {54, 54});
    }
    void sizesOfPictures()
    {
        QFETCH(QString, path);
        QFETCH(QSize, size);
        QMovie movie;
        const QString complaints = said([&] {
            QCOMPARE(sizeAtWidth(path, 54), size);
            QCOMPARE(isPicture(path), size.isValid());
            openMovie(movie, path, size);
            movie.start();
            movie.jumpToFrame(0);
        });
        QCOMPARE(complaints, QString());
        if (!size.isValid())
            QVERIFY(movie.fileName().startsWith(prefix + "blank"));
        else
            QCOMPARE(movie.currentPixmap().size() / movie.currentPixmap().devicePixelRatio(), size);
    }

    // Also where it comes from elsewhere.
    void noSizeFillsTheMemory()
    {
        QMovie movie;
        openMovie(movie, image("column.png", 1, 60000), QSize(54, 3'240'000));
        QCOMPARE(movie.scaledSize(), QSize(1, 2000));
        openMovie(movie, image("small.png", 4, 3), QSize(2'000'000'000, 1'500'000'000));
        QCOMPARE(movie.scaledSize(), QSize(2000, 1500));
        // Nothing is unpacked to measure it: there is nothing but its head.
        QCOMPARE(sizeAtWidth(saved("head.bmp", bmpHead(6000, 3000)), 54), QSize(54, 27));
        QCOMPARE(sizeAtWidth(image("small.png", 4, 3), 8000), QSize(2000, 1500));
        QCOMPARE(sizeAtWidth(image("column.png", 1, 60000), 1'000'000), QSize(1, 2000));
    }

    void soundsAreShortAndClean_data() { rowOfEach(sounds); }
    void soundsAreShortAndClean()
    {
        QFETCH(QString, row);
        const QByteArray bytes = bytesOf(prefix + row + ".wav");
        // PCM, mono, 16 bits
        QCOMPARE(bytes.left(44), "RIFF" + number(bytes.size() - 8) + "WAVEfmt " + number(16) +
                                     number(0x10001) + number(frameRate) + number(2 * frameRate) +
                                     number(0x100002) + "data" + number(bytes.size() - 44));
        const QVector<double> levels = samples(row);
        QVERIFY(!levels.isEmpty() && levels.size() < 1.5 * frameRate);
        const auto [low, high] = std::minmax_element(levels.begin(), levels.end());
        const double peak = std::max(-*low, *high);
        QVERIFY2(std::abs(levels.first()) < 0.01 && std::abs(levels.last()) < 0.01,
                 "no click at the ends");
        QVERIFY(row == "silence" ? peak == 0 : peak > 0.1 && peak < 0.708); // -3 dB
    }

    // Keys are pressed faster than a strike could be waited for.
    void strikesAreHeardAtOnce_data()
    {
        rowOfEach({"typewriter", "explosion1", "machineGun2", "photon", "photon2"});
    }
    void strikesAreHeardAtOnce()
    {
        QFETCH(QString, row);
        const QVector<double> levels = samples(row);
        const double loud = 0.8 * *std::max_element(levels.begin(), levels.end());
        const auto start = levels.begin() + frameRate / 100;
        QVERIFY(std::any_of(levels.begin(), start, [loud](double level) { return level > loud; }));
    }

    void nothingTicks_data() { rowOfEach({"photon", "photon2"}); }
    void nothingTicks()
    {
        QFETCH(QString, row);
        for (const int ms : onsets(row, 10, 1.7))
            QVERIFY2(ms < 20, qPrintable(QString("at %1 ms").arg(ms)));
    }

    void theMinigunIsFast()
    {
        const QVector<int> shots = onsets("machineGun2", 3, 4);
        QVERIFY2(shots.size() >= 20 && shots[19] < 1000, qPrintable(QString::number(shots.size())));
    }

    void glyphs()
    {
        QVERIFY(font.supportsCharacter(QLatin1Char(' ')) && glyph(" ").isEmpty());
        for (const QChar &text : QString("sq\u221A\u00FCZ[EFGH\u2190\u2191\u2192\u2193")) {
            QVERIFY2(font.supportsCharacter(text), qPrintable(QString(text)));
            const QRectF box = glyph(text).boundingRect();
            const bool whole = -box.top() <= font.ascent() && box.bottom() <= font.descent();
            QVERIFY2(whole && box.height() > 450, qPrintable(QString(text))); // read at 9 pixels
        }
        // The two halves of the shuffle sign meet.
        const double advance = font.advancesForGlyphIndexes(font.glyphIndexesForString("s"))[0].x();
        QVERIFY(glyph("s").boundingRect().right() >= advance);
        QVERIFY(glyph("q").boundingRect().left() <= 0);
    }
};

QTEST_MAIN(tst_resources)
#include "tst_resources.moc"
