#include "picture.h"
#include "resources.h"

#include <QDir>
#include <QFontDatabase>
#include <QMovie>
#include <QPainterPath>
#include <QRawFont>
#include <QTest>
#include <QtEndian>

namespace {
const QString prefix = ":/new/prefix1/";

// Each picture has a twin for a screen with a device pixel ratio of 2.
const QStringList pictures =
    QString("kestrixTypingOrlamu 640x360, english 320x200, youTube 96x72, chdown 144x115, "
            "chmiddle 144x115, chup 144x115, arrowDown 55x63, arrowLeft 69x59, optionsArrow 70x56")
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
    static double share(const QImage &image) // of what is opaque
    {
        int result = 0;
        for (int i = 0; i < image.width() * image.height(); ++i)
            result += qAlpha(image.pixel(i % image.width(), i / image.width())) / 128;
        return result * 1.0 / (image.width() * image.height());
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

    void picturesHaveSharperTwins()
    {
        for (const QString &row : pictures) {
            const QImage once = load(name(row) + ".png");
            const QImage twice = load(name(row) + "@2x.png");
            QCOMPARE(name(row) + size(once), row);
            QVERIFY2(twice.size() == once.size() * 2, qPrintable(row));
            QVERIFY2(share(once) > 0.25, qPrintable(row));
            // All but the first are shown on top of other things.
            QVERIFY2((qAlpha(once.pixel(0, 0)) > 0) == (row == pictures[0]), qPrintable(row));
        }
        QVERIFY(load("blank.gif").width() == 54 && share(load("blank.gif")) == 0);
    }

    void animationsMove()
    {
        for (const QString &row : animations) {
            QMovie movie(prefix + name(row) + ".gif");
            QMovie twin(prefix + name(row) + "@2x.gif");
            QVERIFY2(movie.frameCount() >= 8 && movie.loopCount() == -1, qPrintable(row));
            int total = 0;
            double clear = 0;
            QImage before;
            for (int i = 0; i < movie.frameCount(); ++i) {
                QVERIFY2(movie.jumpToFrame(i), qPrintable(row));
                total += movie.nextFrameDelay();
                QVERIFY2(movie.nextFrameDelay() >= 40 && movie.nextFrameDelay() <= 100,
                         qPrintable(row)); // 10 to 25 frames a second
                QVERIFY2(twin.jumpToFrame(i), qPrintable(row));
                const QImage frame = movie.currentImage();
                QCOMPARE(twin.currentImage().size(), frame.size() * 2);
                QCOMPARE(name(row) + size(frame), row);
                QVERIFY2(frame != before, qPrintable(row));
                clear += 1 - share(frame);
                before = frame;
            }
            QVERIFY2(clear > 0.15 * movie.frameCount(), "the key behind it must show");
            // The effects are shown for 900 ms: by then the whole story must have been seen.
            QVERIFY2(before.width() != 96 || (total >= 800 && total <= 1000), qPrintable(row));
        }
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
            const auto level = [data](int i) {
                return std::abs(qFromLittleEndian<qint16>(data + 44 + 2 * i) * 1);
            };
            int peak = 0;
            for (int i = 0; i < length; ++i)
                peak = std::max(peak, level(i));
            QVERIFY2(level(0) < 330 && level(length - 1) < 330, "no click at the ends");
            QVERIFY2(sound == "silence" ? peak == 0 : peak > 3277, qPrintable(sound));
            QVERIFY2(peak <= 23198, qPrintable(sound)); // -3 dB
        }
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
