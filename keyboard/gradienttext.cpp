#include "gradienttext.h"

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

} // namespace

QString background(int shape, const Stops &stops)
{
    if (isSolid(shape))
        return "background-color: " + stops.end + "; ";
    return "background-color: " + gradient(shape, stops);
}

QString border(int shape, const QString &width, const Stops &stops)
{
    // Only the solid form has a blank before the width.
    if (isSolid(shape))
        return "border-style:solid; border-width: " + width + "px; border-color: " + stops.end +
               ";";
    return "border-style:solid; border-width:" + width +
           "px; border-color: " + gradient(shape, stops);
}

} // namespace GradientText
