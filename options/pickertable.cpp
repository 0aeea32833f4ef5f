#include "pickertable.h"

#include "optionforms.h"
#include "ui_colormadness.h"
#include "ui_gameplaypanel.h"
#include "ui_linehighlightpanel.h"
#include "ui_lookpage.h"
#include "ui_shadowspanel.h"

namespace {

using R = PickerRow;
using Forms = OptionForms;
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

using Swatch = QWidget *(*)(const OptionForms &);

constexpr PickerRow character(int number, const char *title, QPoint place, Focus focus, Last last,
                              Swatch swatch, QString &(*fragment)(Looks &), bool shifted,
                              Spelling live, Spelling final)
{
    return {number, title,       place,    R::Character, focus, last,
            swatch, Panels::Key, fragment, shifted,      live,  final};
}

constexpr PickerRow rows[] = {
    character(
        1, "Uppercase Key", {725, 30}, Focus::AfterBoth, Last::Write,
        [](const Forms &f) -> QWidget * { return f.keys->upperPicker; }, keyUpper, true,
        Spelling::A, Spelling::A),
    character(
        2, "Lowercase Key", {725, 60}, Focus::AfterBoth, Last::Write,
        [](const Forms &f) -> QWidget * { return f.keys->lowerPicker; }, keyLower, false,
        Spelling::A, Spelling::A),
    {3,
     "Key Background",
     {2, 90},
     R::Main,
     Focus::AfterBoth,
     Last::Write,
     [](const Forms &f) -> QWidget * { return f.keys->mainPicker; },
     Panels::Key},
    character(
        4, "Keypress Uppercase", {725, 30}, Focus::AfterBoth, Last::Nothing,
        [](const Forms &f) -> QWidget * { return f.keypress->upperPicker; }, keypressUpper, true,
        Spelling::A, Spelling::A),
    character(
        5, "Keypress Lowercase", {725, 60}, Focus::AfterBoth, Last::Nothing,
        [](const Forms &f) -> QWidget * { return f.keypress->lowerPicker; }, keypressLower, false,
        Spelling::A, Spelling::A),
    {6,
     "Keypress Background",
     {2, 90},
     R::Main,
     Focus::AfterBoth,
     Last::Nothing,
     [](const Forms &f) -> QWidget * { return f.keypress->mainPicker; },
     Panels::Keypress},
    character(
        7, "Mouseover Uppercase", {725, 30}, Focus::AfterBoth, Last::Nothing,
        [](const Forms &f) -> QWidget * { return f.mouseover->upperPicker; }, mouseoverUpper, true,
        Spelling::B, Spelling::B),
    character(
        8, "Mouseover Lowercase", {725, 60}, Focus::AfterBoth, Last::Nothing,
        [](const Forms &f) -> QWidget * { return f.mouseover->lowerPicker; }, mouseoverLower, false,
        Spelling::B, Spelling::B),
    {9,
     "Mouseover Background",
     {2, 90},
     R::Main,
     Focus::AfterBoth,
     Last::Nothing,
     [](const Forms &f) -> QWidget * { return f.mouseover->mainPicker; },
     Panels::Mouseover},
    character(
        10, "Finished Keys", {725, 30}, Focus::AfterBoth, Last::Write,
        [](const Forms &f) -> QWidget * { return f.colorMadness->colorPickerF; }, finishedText,
        true, Spelling::C, Spelling::C),
    {11,
     "Finished Keys Background",
     {2, 90},
     R::Main,
     Focus::AfterBoth,
     Last::Write,
     [](const Forms &f) -> QWidget * { return f.colorMadness->colorPickerFBg; },
     Panels::Finished},
    {12,
     "Line Highlight Color",
     {2, 290},
     R::Main,
     Focus::AfterBoth,
     Last::Nothing,
     [](const Forms &f) -> QWidget * { return f.lines->colorPickerKeyboard; },
     Panels::Line},
    {13,
     "Wallpaper Background",
     {2, 90},
     R::Main,
     Focus::AfterBoth,
     Last::Nothing,
     [](const Forms &f) -> QWidget * { return f.colorMadness->colorPickerWallpaper; },
     Panels::Wallpaper},
    {14,
     "Key Background-Gradient",
     {725, 90},
     R::Gradient,
     Focus::Stays,
     Last::Write,
     [](const Forms &f) -> QWidget * { return f.keys->gradientPicker; },
     Panels::Key},
    character(
        15, "Lowercase Highlight", {725, 60}, Focus::Stays, Last::Write,
        [](const Forms &f) -> QWidget * { return f.highlight->lowerPicker; }, highlightLower, false,
        Spelling::B, Spelling::C),
    {16,
     "Highlight Background",
     {2, 90},
     R::Main,
     Focus::Stays,
     Last::Write,
     [](const Forms &f) -> QWidget * { return f.highlight->mainPicker; },
     Panels::Highlight},
    {17,
     "Keypress Background-Gradient",
     {725, 90},
     R::Gradient,
     Focus::Stays,
     Last::Write,
     [](const Forms &f) -> QWidget * { return f.keypress->gradientPicker; },
     Panels::Keypress},
    {18,
     "Mouseover Background-Gradient",
     {725, 90},
     R::Gradient,
     Focus::AfterOk,
     Last::Write,
     [](const Forms &f) -> QWidget * { return f.mouseover->gradientPicker; },
     Panels::Mouseover},
    {19,
     "Highlight Background-Gradient",
     {725, 90},
     R::Gradient,
     Focus::Stays,
     Last::Nothing,
     [](const Forms &f) -> QWidget * { return f.highlight->gradientPicker; },
     Panels::Highlight},
    {20,
     "Finished Keys Background-Gradient",
     {725, 90},
     R::Gradient,
     Focus::AfterOk,
     Last::Write,
     [](const Forms &f) -> QWidget * { return f.colorMadness->colorPickerGradBottom5; },
     Panels::Finished},
    {21,
     "Line Highlight Color-Gradient",
     {725, 290},
     R::Gradient,
     Focus::Stays,
     Last::Repaint,
     [](const Forms &f) -> QWidget * { return f.lines->colorPickerGradBottom6; },
     Panels::Line},
    {22,
     "Wallpaper Background-Gradient",
     {725, 90},
     R::Gradient,
     Focus::Stays,
     Last::Repaint,
     [](const Forms &f) -> QWidget * { return f.colorMadness->colorPickerGradBottom7; },
     Panels::Wallpaper},
    {23,
     "",
     {2, 90},
     R::Main,
     Focus::AfterCancel,
     Last::Write,
     [](const Forms &f) -> QWidget * { return f.colorMadness->colorPickerRainbowBg; },
     Panels::Paint},
    {24,
     "",
     {725, 90},
     R::Gradient,
     Focus::Stays,
     Last::Repaint,
     [](const Forms &f) -> QWidget * { return f.colorMadness->colorPickerGradBottom8; },
     Panels::Paint},
    character(
        25, "Uppercase Highlight", {725, 30}, Focus::AfterOk, Last::Write,
        [](const Forms &f) -> QWidget * { return f.highlight->upperPicker; }, highlightUpper, true,
        Spelling::B, Spelling::B),
    {26,
     "All Shadow Colors",
     {2, 30},
     R::Shadow,
     Focus::Stays,
     Last::Write,
     [](const Forms &f) -> QWidget * { return f.shadows->textShadowColorBox; }},
    {27,
     "Game Play Background",
     {2, 90},
     R::Main,
     Focus::Stays,
     Last::Write,
     [](const Forms &f) -> QWidget * { return f.gamePlay->colorPicker27; },
     Panels::GamePlay},
    {28,
     "Game Play Background-Gradient",
     {725, 90},
     R::Gradient,
     Focus::Stays,
     Last::Write,
     [](const Forms &f) -> QWidget * { return f.gamePlay->colorPickerGradBottom27; },
     Panels::GamePlay},
    {29,
     "Game Play Key",
     {725, 30},
     R::BoxText,
     Focus::Stays,
     Last::Write,
     [](const Forms &f) -> QWidget * { return f.gamePlay->colorPicker29; }},
    {30,
     "Game Play Shadow",
     {2, 30},
     R::Shadow,
     Focus::Stays,
     Last::Write,
     [](const Forms &f) -> QWidget * { return f.gamePlay->colorPicker30; }},
};

constexpr bool areInOrder()
{
    for (size_t i = 0; i < std::size(rows); ++i) {
        if (rows[i].number != int(i) + 1)
            return false;
    }
    return true;
}
static_assert(areInOrder());

} // namespace

const int PickerRow::count = int(std::size(rows));

const PickerRow &PickerRow::of(int number)
{
    return rows[number - 1];
}
