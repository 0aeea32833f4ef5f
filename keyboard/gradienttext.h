#pragma once

#include <QString>

// The style-sheet text of a background or border in one of six gradient shapes.
// The texts are saved in themes and compared to the letter, blanks included.
namespace GradientText {

enum Shape {
    Solid,           // takes the end color alone
    TopToBottom,     //
    LeftToRight,     //
    CornerToCorner,  //
    Radial,          // expects colors without alpha: a radial gradient of this form cannot carry it
    RepeatingRadial, //
};
constexpr int shapeCount = 6;

struct Stops
{
    QString start; // color text at stop 0
    QString stop;  // position of the end stop as text, "0", ".1" to ".9" or "1"
    QString end;   // color text at the end stop
};

// A shape outside 0 to 5 is taken as Solid. Qt 5.15 reads past the end of a gradient one of
// whose colors it cannot read, so none is ever built of such: the other color stands in, and
// without any readable color the text is empty.
QString background(int shape, const Stops &stops);
// The width is decimal text in px, 0 if it is none.
QString border(int shape, const QString &width, const Stops &stops);

// Whether a value is a gradient that was built here.
bool isGradient(const QString &value);
// The shape of a background or border; Solid for what is no gradient.
int shapeOf(const QString &style);

} // namespace GradientText
