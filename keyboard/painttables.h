#pragma once

#include "keys.h"
#include "looks.h"

#include <array>

// What single keys wear when they were painted one by one, and what a key wears
// at rest: the paint where painting is on, the key look otherwise.
class PaintTables
{
public:
    explicit PaintTables(const Looks &looks);

    // Indexed like letterList.
    std::array<QString, Keys::count> paintTextStyle;
    // The seven control keys in Keys::textOrder, then the marks under f and j.
    std::array<QString, Keys::controlCount + 2> paintExtraTextStyle;
    // Caps 1 to 47 at 0 to 46, then the control keys in Keys::textOrder.
    std::array<QString, Keys::pileCount> paintKeyBgStyle;
    std::array<QString, Keys::pileCount> paintKeyBorderStyle;

    bool paintBackgroundOn = false;
    bool paintBorderOn = false;
    bool paintLowerOn = false;
    bool paintUpperOn = false;
    bool paintEnglishOn = false;

    // Twins of the flags, as a theme writes them. They do not follow every change: a flag that
    // goes without a picker's OK leaves its text.
    QString paintBackgroundOnText = "0";
    QString paintBorderOnText = "0";
    QString paintLowerOnText = "0";
    QString paintUpperOnText = "0";
    QString paintEnglishOnText = "0";

    bool textOn(bool shifted) const { return shifted ? paintUpperOn : paintLowerOn; }

    // Each fill forgets what was painted in its table.
    void fillRainbowE();
    void fillRainbowUp();
    void fillRainbowLow();
    void fillRainbowBg();
    void fillRainbowBorder();

    // A character at rest, without its font.
    const QString &restText(int key) const;
    // Likewise of a control key (0 to 6, in Keys::textOrder), then of the two marks.
    const QString &restControlText(int index) const;
    // The background of a pile (0 to 53, as in paintKeyBgStyle) and of the bar cells over it.
    QString restKeyBackground(int pile) const;
    QString restBarBackground(int pile) const;

private:
    void fillText(bool shifted);

    const Looks &looks;
};
