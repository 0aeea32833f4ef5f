#pragma once

#include "gradienttext.h"

#include <vector>

// The looks that are shipped, as a table to be read and changed by hand. makelooks.cpp has the
// program wear each and save it.
namespace ReadyLooks {

struct Ground
{
    GradientText::Shape shape;
    const char *start, *end; // Solid takes the end alone
    int stop = 10;           // tenths of the way
};

struct Edge
{
    int width = 0; // px; from 4 on it would touch the characters
    GradientText::Shape shape = GradientText::Solid;
    const char *start = "black", *end = "black";
};

struct State
{
    Ground ground;
    Edge edge;
    const char *upper, *lower; // colors of the characters
};

// Which of the paints a key takes in the Paint file: by the finger that types it, by its row, by
// its column, from corner to corner, by what is on it, or scattered.
enum class Pattern { Fingers, Rows, Columns, Diagonal, Kinds, Scattered };

struct ReadyLook
{
    const char *name; // of the files
    const char *about;
    const char *font; // of both cases
    int points; // 0: the size that a label has of its own; more than 15 is cut in the bar or on
                // Backspace
    State key, keypress, mouseover, highlight, finished;
    Ground wallpaper;
    Edge frame;
    State boxes; // the upper color is that of Match This
    const char *lines;
    Pattern pattern;
    std::vector<State> paints;
};

// The keyboard of a fresh start, which is in no table.
constexpr const char *plain = "Plain";
constexpr const char *aboutPlain =
    "The black keyboard that every start begins with: the way back from any other look.";

const std::vector<ReadyLook> &table();

// The number of the paint that a place takes, 0 to count - 1.
int paintOf(Pattern pattern, int placeIndex, int count);
// Whether a finger rests there; in the finger map such keys have thicker borders.
bool isHome(int placeIndex);

} // namespace ReadyLooks
