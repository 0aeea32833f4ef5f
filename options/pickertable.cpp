#include "pickertable.h"

namespace {

using R = PickerRow;
using Focus = PickerRow::Focus;
using Last = PickerRow::Last;
using Spelling = PickerRow::Spelling;
using Panels = GradientPanels;

// What the pickers of characters change.
QString &keyUpper(Looks &l)
{
    return l.key.upperTextStyle;
}
QString &keyLower(Looks &l)
{
    return l.key.lowerTextStyle;
}
QString &keypressUpper(Looks &l)
{
    return l.keypress.upperTextStyle;
}
QString &keypressLower(Looks &l)
{
    return l.keypress.lowerTextStyle;
}
QString &mouseoverUpper(Looks &l)
{
    return l.mouseover.upperTextStyle;
}
QString &mouseoverLower(Looks &l)
{
    return l.mouseover.lowerTextStyle;
}
QString &highlightUpper(Looks &l)
{
    return l.highlight.upperTextStyle;
}
QString &highlightLower(Looks &l)
{
    return l.highlight.lowerTextStyle;
}
QString &finishedText(Looks &l)
{
    return l.finishedTextStyle;
}

constexpr PickerRow character(int number, const char *title, QPoint place, Focus focus, Last last,
                              QString &(*fragment)(Looks &), bool shifted, Spelling live,
                              Spelling final)
{
    return {number,      title,    place,   R::Character, focus, last,
            Panels::Key, fragment, shifted, live,         final};
}

constexpr PickerRow rows[] = {
    character(1, "Uppercase Key", {725, 30}, Focus::AfterBoth, Last::Write, keyUpper, true,
              Spelling::A, Spelling::A),
    character(2, "Lowercase Key", {725, 60}, Focus::AfterBoth, Last::Write, keyLower, false,
              Spelling::A, Spelling::A),
    {3, "Key Background", {2, 90}, R::Main, Focus::AfterBoth, Last::Write, Panels::Key},
    character(4, "Keypress Uppercase", {725, 30}, Focus::AfterBoth, Last::Nothing, keypressUpper,
              true, Spelling::A, Spelling::A),
    character(5, "Keypress Lowercase", {725, 60}, Focus::AfterBoth, Last::Nothing, keypressLower,
              false, Spelling::A, Spelling::A),
    {6, "Keypress Background", {2, 90}, R::Main, Focus::AfterBoth, Last::Nothing, Panels::Keypress},
    character(7, "Mouseover Uppercase", {725, 30}, Focus::AfterBoth, Last::Nothing, mouseoverUpper,
              true, Spelling::B, Spelling::B),
    character(8, "Mouseover Lowercase", {725, 60}, Focus::AfterBoth, Last::Nothing, mouseoverLower,
              false, Spelling::B, Spelling::B),
    {9,
     "Mouseover Background",
     {2, 90},
     R::Main,
     Focus::AfterBoth,
     Last::Nothing,
     Panels::Mouseover},
    character(10, "Finished Keys", {725, 30}, Focus::AfterBoth, Last::Write, finishedText, true,
              Spelling::C, Spelling::C),
    {11,
     "Finished Keys Background",
     {2, 90},
     R::Main,
     Focus::AfterBoth,
     Last::Write,
     Panels::Finished},
    {12, "Line Highlight Color", {2, 290}, R::Main, Focus::AfterBoth, Last::Nothing, Panels::Line},
    {13,
     "Wallpaper Background",
     {2, 90},
     R::Main,
     Focus::AfterBoth,
     Last::Nothing,
     Panels::Wallpaper},
    {14, "Key Background-Gradient", {725, 90}, R::Gradient, Focus::Stays, Last::Write, Panels::Key},
    character(15, "Lowercase Highlight", {725, 60}, Focus::Stays, Last::Write, highlightLower,
              false, Spelling::B, Spelling::C),
    {16, "Highlight Background", {2, 90}, R::Main, Focus::Stays, Last::Write, Panels::Highlight},
    {17,
     "Keypress Background-Gradient",
     {725, 90},
     R::Gradient,
     Focus::Stays,
     Last::Write,
     Panels::Keypress},
    {18,
     "Mouseover Background-Gradient",
     {725, 90},
     R::Gradient,
     Focus::AfterOk,
     Last::Write,
     Panels::Mouseover},
    {19,
     "Highlight Background-Gradient",
     {725, 90},
     R::Gradient,
     Focus::Stays,
     Last::Nothing,
     Panels::Highlight},
    {20,
     "Finished Keys Background-Gradient",
     {725, 90},
     R::Gradient,
     Focus::AfterOk,
     Last::Write,
     Panels::Finished},
    {21,
     "Line Highlight Color-Gradient",
     {725, 290},
     R::Gradient,
     Focus::Stays,
     Last::Repaint,
     Panels::Line},
    {22,
     "Wallpaper Background-Gradient",
     {725, 90},
     R::Gradient,
     Focus::Stays,
     Last::Repaint,
     Panels::Wallpaper},
    {23, "", {2, 90}, R::Main, Focus::AfterCancel, Last::Write, Panels::Paint},
    {24, "", {725, 90}, R::Gradient, Focus::Stays, Last::Repaint, Panels::Paint},
    character(25, "Uppercase Highlight", {725, 30}, Focus::AfterOk, Last::Write, highlightUpper,
              true, Spelling::B, Spelling::B),
    {26, "All Shadow Colors", {2, 30}, R::Shadow, Focus::Stays, Last::Write},
    {27, "Game Play Background", {2, 90}, R::Main, Focus::Stays, Last::Write, Panels::GamePlay},
    {28,
     "Game Play Background-Gradient",
     {725, 90},
     R::Gradient,
     Focus::Stays,
     Last::Write,
     Panels::GamePlay},
    {29, "Game Play Key", {725, 30}, R::BoxText, Focus::Stays, Last::Write},
    {30, "Game Play Shadow", {2, 30}, R::Shadow, Focus::Stays, Last::Write},
};

constexpr bool areInOrder()
{
    for (int i = 0; i < PickerRow::count; ++i) {
        if (rows[i].number != i + 1)
            return false;
    }
    return std::size(rows) == PickerRow::count;
}
static_assert(areInOrder());

} // namespace

const PickerRow &PickerRow::of(int number)
{
    return rows[number - 1];
}
