// A text of a look out of a theme: what is said of it, built from it, and what Qt makes of it.

#include "fuzz.h"
#include "gradienttext.h"
#include "styletext.h"

#include <QImage>
#include <QRegularExpression>
#include <QWidget>

namespace {

using StyleText::Kind;
constexpr Kind values[] = {Kind::Color, Kind::Stop, Kind::Width};
constexpr Kind pieces[] = {Kind::Text, Kind::Background, Kind::Border, Kind::WideBorder,
                           Kind::Font};
const QString sentinel = "color: #010203;";

// A key as it wears its pieces.
class Key
{
public:
    Key()
    {
        widget.setAttribute(Qt::WA_StyledBackground);
        widget.resize(40, 40);
    }

    // Puts on the piece, and tells whether what stands behind it is read as it stands there.
    void wear(const QString &piece)
    {
        widget.setStyleSheet(piece + sentinel);
        widget.ensurePolished();
        Fuzz::must(widget.palette().windowText().color() == QColor(1, 2, 3), "keeps to itself",
                   piece);
    }
    QBrush background() const { return widget.palette().window(); }
    void paint()
    {
        QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
        widget.render(&image);
    }

private:
    QWidget widget;
};

Key &key()
{
    static auto *const one = new Key;
    return *one;
}

// Without names in quotes.
QString bareOf(QString piece)
{
    static const QRegularExpression quoted("'[^']*'");
    return piece.remove(quoted);
}

// Written down once more, and coarser: what an accepted piece may hold.
void checkWords(const QString &piece)
{
    static const QRegularExpression call("([\\w-]*)\\s*\\("), property("(?:^|;)\\s*([^:;]*?)\\s*:"),
        size("(\\d+)p[xt]");
    static const QStringList calls{"rgb", "rgba", "qlineargradient", "qradialgradient"};
    static const QStringList properties{"color",         "background-color", "border",
                                        "border-style",  "border-width",     "border-color",
                                        "border-radius", "font-family",      "font-size"};
    const QString bare = bareOf(piece);
    for (const char *word : {"{", "}", "\\", "/*", "'", "\"", "@", "!"})
        Fuzz::must(!bare.contains(word), word, piece);
    for (auto i = call.globalMatch(bare); i.hasNext();)
        Fuzz::must(calls.contains(i.next().captured(1)), "a known function", piece);
    for (auto i = property.globalMatch(bare); i.hasNext();)
        Fuzz::must(properties.contains(i.next().captured(1)), "a known property", piece);
    for (auto i = size.globalMatch(bare); i.hasNext();)
        Fuzz::must(i.next().captured(1).toInt() <= StyleText::widestFrame, "no larger", piece);
}

// A gradient that Qt reads has the two colors that it was built of.
void checkGradient(const QString &piece)
{
    const QString bare = bareOf(piece);
    if (!bare.contains("background-color") || bare.count("gradient(") != 1)
        return;
    const QGradient *gradient = key().background().gradient();
    Fuzz::must(gradient && gradient->stops().size() == 2, "a whole gradient", piece);
}

void checkPiece(const QString &piece)
{
    checkWords(piece);
    key().wear(piece);
    checkGradient(piece);
    key().paint();
}

void checkLine(const QString &line)
{
    bool isPiece = false;
    for (const Kind kind : pieces)
        isPiece |= StyleText::isHarmless(kind, line);
    if (isPiece)
        checkPiece(line);
    for (const Kind kind : values) {
        if (StyleText::isHarmless(kind, line))
            checkWords(line);
    }
    const QColor color = StyleText::color(line);
    Fuzz::must(color.isValid() == StyleText::isColor(line), "one mind of a color", line);
    if (color.isValid()) {
        // Qt takes it for the same color.
        const QString piece = "background-color: " + line + ";";
        checkPiece(piece);
        Fuzz::must(key().background().color() == color, "the same color", line);
        Fuzz::must(StyleText::textColor("color:" + line + ";") == color, "reads it back", line);
    }
    Fuzz::must(StyleText::borderWidth(line) >= 0, "a width", line);
    StyleText::textColor(line);
    checkPiece(StyleText::fontFamily(line));
}

// Qt reads back a path as it was; of a file that is not there.
void checkUrl(const QString &name)
{
    const QString path = "/none/" + QString(name).replace("..", "--");
    const QString url = StyleText::url(path);
    Fuzz::missing.clear();
    key().wear("background-image: " + url + ";");
    Fuzz::must(Fuzz::missing == (url == "none" ? QString() : path), "the same path", path);
}

void checkBuilt(const QStringList &lines)
{
    const GradientText::Stops stops{lines.value(0), lines.value(1), lines.value(2)};
    for (int shape = GradientText::Solid; shape < GradientText::shapeCount; ++shape) {
        const QString background = GradientText::background(shape, stops);
        const QString border = GradientText::border(shape, lines.value(3), stops);
        Fuzz::must(background.isEmpty() == border.isEmpty(), "both or none", background + border);
        if (background.isEmpty())
            continue;
        Fuzz::must(StyleText::isHarmless(Kind::Background, background), "harmless", background);
        Fuzz::must(StyleText::isHarmless(Kind::WideBorder, border), "harmless", border);
        Fuzz::must(GradientText::shapeOf(background) == shape, "its shape", background);
        Fuzz::must(GradientText::shapeOf(border) == shape, "its shape", border);
        checkPiece(background + border);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool began = (Fuzz::begin(), true);
    Q_UNUSED(began)
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    const QStringList lines = text.split('\n').mid(0, 6);
    for (const QString &line : lines)
        checkLine(line);
    checkUrl(lines.first());
    checkBuilt(lines);
    return 0;
}
