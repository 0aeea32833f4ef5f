#pragma once

#include <QString>

// The style-sheet text of a background or border in one of six gradient shapes.
// The texts are saved in themes and compared to the letter, blanks included.
namespace GradientText {

enum Shape {
    Solid,          // takes the end colour alone
    TopToBottom,    //
    LeftToRight,    //
    CornerToCorner, //
    Radial,         // expects colours without alpha: a radial gradient of this form cannot carry it
    RepeatingRadial, //
};
constexpr int shapeCount = 6;

struct Stops
{
    QString start; // colour text at stop 0
    QString stop;  // position of the end stop as text, "0", ".1" to ".9" or "1"
    QString end;   // colour text at the end stop
};

// A shape outside 0 to 5 is taken as Solid.
QString background(int shape, const Stops &stops);
// The width is decimal text in px.
QString border(int shape, const QString &width, const Stops &stops);

} // namespace GradientText
