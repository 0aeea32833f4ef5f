#pragma once

#include <QColor>
#include <QString>

// What the pieces of style-sheet text that make a look may be made of, and what can be read
// back from them. A piece is only ever a run of whole declarations, each with its semicolon, so
// that pieces joined mean what each of them means and nothing more.
namespace StyleText {

// A color as looks write it: a name, "#rrggbb", or "rgba(10, 20, 30, 40 ) "; blanks around it
// do not matter. Invalid for anything else.
QColor color(const QString &text);
inline bool isColor(const QString &text)
{
    return color(text).isValid();
}

// The color of a text piece such as " color: white; "; invalid without one.
QColor textColor(const QString &piece);
// Of a border piece, px; 0 where it draws none.
int borderWidth(const QString &piece);

// "font-family: Calibri;", in quotes where Qt would take the name apart; empty for the few that
// cannot be written.
QString fontFamily(const QString &family);
// A url() that Qt reads back as this path; "none" for the few that it cannot read.
QString url(const QString &path);

// Kinds of text that come from outside, out of theme files.
enum class Kind {
    Plain,      // a marker, a number or a name: never part of a style sheet
    Color,      // one color
    Stop,       // position of a gradient's stop, 0 to 1
    Width,      // of a border, px
    Text,       // pieces of a style sheet, from here on
    Background, //
    Border,     //
    WideBorder, // may be as wide as that of the wallpaper
    Font,       //
};

// What the controls can make; a dashed border of 9,999 px takes half a minute to paint.
constexpr int widestBorder = 199; // px
constexpr int widestFrame = 1500; // px, around the wallpaper

// Whether a text is nothing but what a look of this kind is made of. Style sheets could name
// files, pipes and devices, set properties of widgets, or ask for sizes that never get painted.
// An empty text is harmless.
bool isHarmless(Kind kind, const QString &text);

} // namespace StyleText
