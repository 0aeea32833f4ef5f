#include "gradienttext.h"

#include "styletext.h"

#include <QRegularExpression>
#include <QVector>
#include <iterator>

namespace GradientText {

namespace {

constexpr const char *heads[] = {
    nullptr,
    "qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 ",
    "qlineargradient(x1: 0, y1: 0, x2: 1, y2: 0, stop: 0 ",
    "qlineargradient(x1: .8, y1: .8, x2: 0, y2: 0, stop: 0 ",
    "qradialgradient( cx: .5,  cy: .5, radius: .5, fx:0.5, fy:0.5, stop : 0 ",
    "qradialgradient(spread:repeat, cx:  .5, cy:  .5, radius: .1,fx:0.5, fy:0.5,   stop : 0 ",
};
static_assert(std::size(heads) == shapeCount);

bool isSolid(int shape)
{
    return shape <= Solid || shape >= shapeCount;
}

QString gradient(int shape, const Stops &s)
{
    return QLatin1String(heads[shape]) + s.start + ", stop: " + s.stop + "  " + s.end + ");";
}

Stops readable(Stops stops)
{
    if (!StyleText::isColor(stops.start))
        stops.start = stops.end;
    if (!StyleText::isColor(stops.end))
        stops.end = stops.start;
    if (stops.stop.trimmed().isEmpty() || !StyleText::isHarmless(StyleText::Kind::Stop, stops.stop))
        stops.stop = ".5";
    return stops;
}

QString readableWidth(const QString &width)
{
    bool isNumber = false;
    const int px = width.toInt(&isNumber);
    return isNumber && px >= 0 && px <= StyleText::widestFrame ? QString::number(px) : QString("0");
}

// Of each shape, with any number of blanks wherever its head has some.
QVector<QRegularExpression> forms()
{
    QVector<QRegularExpression> all;
    for (int shape = TopToBottom; shape < shapeCount; ++shape) {
        QString head = QRegularExpression::escape(QString(heads[shape]).trimmed());
        head.replace(QRegularExpression("(\\\\ )+"), "\\s*");
        all.append(QRegularExpression(QRegularExpression::anchoredPattern(
            head + "\\s+(.*),\\s*stop:\\s*([\\d.]+)\\s+(.*)\\)")));
    }
    return all;
}

} // namespace

QString background(int shape, const Stops &given)
{
    const Stops stops = readable(given);
    if (!StyleText::isColor(stops.end))
        return {};
    if (isSolid(shape))
        return "background-color: " + stops.end + "; ";
    return "background-color: " + gradient(shape, stops);
}

QString border(int shape, const QString &givenWidth, const Stops &given)
{
    const Stops stops = readable(given);
    const QString width = readableWidth(givenWidth);
    if (!StyleText::isColor(stops.end))
        return {};
    // Only the solid form has a blank before the width.
    if (isSolid(shape))
        return "border-style:solid; border-width: " + width + "px; border-color: " + stops.end +
               ";";
    return "border-style:solid; border-width:" + width +
           "px; border-color: " + gradient(shape, stops);
}

bool isGradient(const QString &value)
{
    static const QVector<QRegularExpression> all = forms();
    for (const QRegularExpression &form : all) {
        const auto match = form.match(value);
        if (match.hasMatch())
            return StyleText::isColor(match.captured(1)) &&
                   StyleText::isHarmless(StyleText::Kind::Stop, match.captured(2)) &&
                   StyleText::isColor(match.captured(3));
    }
    return false;
}

int shapeOf(const QString &style)
{
    for (int shape = TopToBottom; shape < shapeCount; ++shape) {
        if (style.contains(QLatin1String(heads[shape])))
            return shape;
    }
    return Solid;
}

} // namespace GradientText
