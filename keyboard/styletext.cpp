#include "styletext.h"

#include "gradienttext.h"

#include <QRegularExpression>
#include <QStringList>
#include <algorithm>

namespace StyleText {

namespace {

constexpr int longest = 2000;    // characters of a line; the longest style has 250
constexpr int largestText = 99;  // pt
constexpr int widestRadius = 99; // px

QRegularExpression whole(const QString &pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

int number(const QRegularExpression &pattern, const QString &text)
{
    const auto match = pattern.match(text);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

bool isWithin(int value, int largest)
{
    return value >= 0 && value <= largest;
}

bool isBrush(const QString &value)
{
    return isColor(value) || GradientText::isGradient(value);
}

bool isControl(QChar c)
{
    return (c < ' ' && c != '\t') || c == 0x7f;
}

// QString::trimmed() takes more for blanks than the parser of style sheets does.
bool isOdd(QChar c)
{
    return isControl(c) || (c.isSpace() && c != ' ' && c != '\t');
}

bool isPixels(const QString &value, int largest)
{
    static const QRegularExpression pixels = whole("(\\d{1,4})px");
    return isWithin(number(pixels, value), largest);
}

// "1px solid red"
bool isSolid(const QString &value, int largest)
{
    static const QRegularExpression solid = whole("(\\d{1,4})px\\s+solid\\s+(.*)");
    const auto match = solid.match(value);
    return match.hasMatch() && isWithin(match.captured(1).toInt(), largest) &&
           isColor(match.captured(2));
}

bool isFamily(const QString &value)
{
    static const QRegularExpression family =
        whole("'[^'\"\\\\/*;{}]*'|[^\\W\\d][\\w-]*( [^\\W\\d][\\w-]*)*");
    return family.match(value).hasMatch();
}

bool isPointSize(const QString &value)
{
    static const QRegularExpression points = whole("(\\d{1,2})pt");
    return isWithin(number(points, value), largestText);
}

bool isDeclaration(Kind kind, const QString &property, const QString &value)
{
    const int widest = kind == Kind::WideBorder ? widestFrame : widestBorder;
    switch (kind) {
    case Kind::Text:
        return property == "color" && isColor(value);
    case Kind::Background:
        return property == "background-color" && isBrush(value);
    case Kind::Border:
    case Kind::WideBorder:
        return (property == "border" && (value == "none" || isSolid(value, widest))) ||
               (property == "border-style" && (value == "none" || value == "solid")) ||
               (property == "border-width" && isPixels(value, widest)) ||
               (property == "border-color" && isBrush(value)) ||
               (property == "border-radius" && isPixels(value, widestRadius));
    case Kind::Font:
        return (property == "font-family" && isFamily(value)) ||
               (property == "font-size" && isPointSize(value));
    default:
        return false;
    }
}

bool isPiece(Kind kind, const QString &text)
{
    QStringList declarations = text.split(';');
    // What stands behind the last semicolon would run on into the next piece.
    if (!declarations.takeLast().trimmed().isEmpty())
        return false;
    for (const QString &each : qAsConst(declarations)) {
        const QString property = each.section(':', 0, 0).trimmed();
        const QString value = each.section(':', 1).trimmed();
        if (!each.trimmed().isEmpty() && !isDeclaration(kind, property, value))
            return false;
    }
    return true;
}

} // namespace

QColor color(const QString &text)
{
    // QColor would take names with blanks in them, which a sheet cannot have.
    static const QString blanks = "[ \\t]*", number = blanks + "(\\d{1,3})" + blanks,
                         three = number + ',' + number + ',' + number;
    static const QRegularExpression named = whole(blanks + "([A-Za-z]+|#[0-9A-Fa-f]+)" + blanks);
    static const QRegularExpression rgb = whole(blanks + "rgb\\(" + three + "\\)" + blanks);
    static const QRegularExpression rgba =
        whole(blanks + "rgba\\(" + three + ',' + number + "\\)" + blanks);
    const QString name = named.match(text).captured(1);
    if (QColor::isValidColor(name))
        return QColor(name);
    const auto opaque = rgb.match(text);
    const auto mixed = opaque.hasMatch() ? opaque : rgba.match(text);
    if (!mixed.hasMatch())
        return {};
    int components[] = {0, 0, 0, 255};
    for (int i = 0; i < mixed.lastCapturedIndex(); ++i) {
        components[i] = mixed.captured(i + 1).toInt();
        if (components[i] > 255)
            return {};
    }
    return {components[0], components[1], components[2], components[3]};
}

QColor textColor(const QString &piece)
{
    static const QRegularExpression declaration("(?:^|;)\\s*color:([^;]*);");
    return color(declaration.match(piece).captured(1));
}

int borderWidth(const QString &piece)
{
    static const QRegularExpression width("border(?:-width)?:\\s*(\\d{1,4})px");
    if (piece.contains("border-style:none"))
        return 0;
    return qMax(0, number(width, piece));
}

QString fontFamily(const QString &family)
{
    static const QRegularExpression plain = whole("[A-Za-z][\\w-]*( [A-Za-z][\\w-]*)*");
    // The first two would parse as they are, and are quoted all the same.
    const bool quoted = family == "Old English Text MT" || family == "Modern No. 20" ||
                        !plain.match(family).hasMatch();
    const QString piece = "font-family: " + (quoted ? "'" + family + "'" : family) + ";";
    return isHarmless(Kind::Font, piece) ? piece : QString();
}

QString url(const QString &path)
{
    static const QRegularExpression plain = whole("[A-Za-z0-9_./: -]*");
    if (plain.match(path).hasMatch())
        return "url(" + path + ")";
    // There is no way to write a backslash or a line break, nor both kinds of quotes in one
    // string.
    const QChar quote = path.contains('"') ? '\'' : '"';
    if (path.contains('\\') || path.contains(quote) ||
        std::any_of(path.begin(), path.end(), isControl))
        return "none";
    return "url(" + (quote + path + quote) + ")";
}

bool isHarmless(Kind kind, const QString &text)
{
    static const QRegularExpression stop = whole("\\d?(\\.\\d{1,9})?");
    static const QRegularExpression width = whole("(\\d{1,4})?");
    if (text.size() > longest || text.contains(QChar::Null) ||
        (kind != Kind::Plain && std::any_of(text.begin(), text.end(), isOdd)))
        return false;
    const QString trimmed = text.trimmed();
    switch (kind) {
    case Kind::Plain:
        return true;
    case Kind::Color:
        return trimmed.isEmpty() || isColor(trimmed);
    case Kind::Stop:
        return stop.match(trimmed).hasMatch() && trimmed.toDouble() <= 1;
    case Kind::Width:
        return width.match(trimmed).hasMatch() && trimmed.toInt() <= widestBorder;
    default:
        return isPiece(kind, text);
    }
}

} // namespace StyleText
