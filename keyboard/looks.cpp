#include "looks.h"

#include "styletext.h"

void Look::buildBackground()
{
    const bool hex = bgShape == GradientText::Radial;
    bgStyle = GradientText::background(
        bgShape, {hex ? bgStartHex : bgStart, gradStop, hex ? bgEndHex : bgEnd});
}

void Look::buildBorder()
{
    const bool hex = borderShape == GradientText::Radial;
    borderStyle = GradientText::border(
        borderShape, borderWidth,
        {hex ? borderStartHex : borderStart, gradStop, hex ? borderEndHex : borderEnd});
}

void Look::readStyles()
{
    if (!bgStyle.isEmpty())
        bgShape = GradientText::shapeOf(bgStyle);
    if (borderStyle.isEmpty())
        return;
    borderShape = GradientText::shapeOf(borderStyle);
    borderWidth = QString::number(StyleText::borderWidth(borderStyle));
}

namespace {

// The twins for the radial shape are transparent until a color was picked; the lines would
// vanish.
QString lineStyle(int shape, const QString &start, const QString &end, const QString &startHex,
                  const QString &endHex, const QString &stop)
{
    const bool radial = shape == GradientText::Radial;
    const auto twin = [radial](const QString &hex, const QString &color) {
        return radial && hex != "transparent" ? hex : color;
    };
    return GradientText::background(shape, {twin(startHex, start), stop, twin(endHex, end)});
}

} // namespace

void LineLook::buildVertical(int shape)
{
    verticalStyle =
        lineStyle(shape, verticalStart, verticalEnd, verticalStartHex, verticalEndHex, gradStop);
}

void LineLook::buildHorizontal(int shape)
{
    horizontalStyle = lineStyle(shape, horizontalStart, horizontalEnd, horizontalStartHex,
                                horizontalEndHex, gradStop);
}

Looks::Looks()
{
    struct Colors
    {
        Look &look;
        const char *background;
        const char *border; // empty: the look has none
        const char *borderHex;
    };
    const Colors table[] = {
        {key, "black", "black", "black"},
        {keypress, "black", "black", "black"},
        {mouseover, "gold", "gold", "gold"},
        {highlight, "gold", "gold", "gold"},
        {finished, "rgb(115, 115, 115)", "", ""},
        // An odd gray, which shows once the border takes the radial shape.
        {wallpaper, "white", "transparent", "rgb(115, 115, 115)"},
        {rainbow, "black", "black", "black"},
        {gamePlay, "white", "black", "white"},
    };
    for (const Colors &row : table) {
        Look &look = row.look;
        look.bgEnd = look.bgStart = look.bgEndHex = look.bgStartHex = row.background;
        look.borderEnd = look.borderStart = row.border;
        look.borderEndHex = look.borderStartHex = row.borderHex;
        look.buildBackground();
    }

    key.upperTextStyle = key.lowerTextStyle = "color: white;";
    keypress.upperTextStyle = keypress.lowerTextStyle = "color: blue;";
    mouseover.upperTextStyle = mouseover.lowerTextStyle = " color: blue; ";
    highlight.upperTextStyle = highlight.lowerTextStyle = "color: black;";

    keypress.borderStyle = "border-style:none; border-width:0px;  border-color: transparent;";
    gamePlay.borderStyle = "border: 1px solid #6e6e6e;";

    for (QString *color : {&lineHigh.horizontalEnd, &lineHigh.horizontalStart,
                           &lineHigh.verticalEnd, &lineHigh.verticalStart})
        *color = "blue";
    for (QString *color : {&lineHigh.horizontalEndHex, &lineHigh.horizontalStartHex,
                           &lineHigh.verticalEndHex, &lineHigh.verticalStartHex})
        *color = "transparent";
    lineHigh.buildHorizontal(GradientText::TopToBottom);
    lineHigh.buildVertical(GradientText::TopToBottom);
    matchBox = userBox = {gamePlay.bgStyle, gamePlay.borderStyle};

    keypressLowerTextSaved = keypress.lowerTextStyle;
}
