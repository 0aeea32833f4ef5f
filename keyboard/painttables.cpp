#include "painttables.h"

PaintTables::PaintTables(const Looks &usedLooks) : looks(usedLooks)
{
    fillRainbowBg();
    fillRainbowE();
    fillRainbowLow();
    fillRainbowUp();
    fillRainbowBorder();
}

void PaintTables::fillRainbowE()
{
    paintExtraTextStyle.fill(looks.key.upperTextStyle);
}

void PaintTables::fillText(bool shifted)
{
    for (int key = 1; key <= Keys::count; ++key) {
        if (Keys::isShifted(key) == shifted)
            paintTextStyle[Keys::index(key)] = looks.key.text(shifted);
    }
}

void PaintTables::fillRainbowUp()
{
    fillText(true);
}

void PaintTables::fillRainbowLow()
{
    fillText(false);
}

void PaintTables::fillRainbowBg()
{
    paintKeyBgStyle.fill(looks.rainbow.bgStyle);
}

void PaintTables::fillRainbowBorder()
{
    paintKeyBorderStyle.fill(looks.rainbow.borderStyle);
}

const QString &PaintTables::restText(int key) const
{
    const bool shifted = Keys::isShifted(key);
    return textOn(shifted) ? paintTextStyle[Keys::index(key)] : looks.key.text(shifted);
}

const QString &PaintTables::restControlText(int index) const
{
    return paintLowerOn ? paintExtraTextStyle[index] : looks.key.lowerTextStyle;
}

QString PaintTables::restKeyBackground(int pile) const
{
    const bool painted = paintBackgroundOn || paintBorderOn;
    const QString &background = painted ? paintKeyBgStyle[pile] : looks.key.bgStyle;
    const QString &border = painted ? paintKeyBorderStyle[pile] : looks.key.borderStyle;
    return pile < Keys::capCount ? looks.keyBackground(background, border)
                                 : looks.controlKeyBackground(background, border);
}

QString PaintTables::restBarBackground(int pile) const
{
    return looks.barBackground(paintBackgroundOn ? paintKeyBgStyle[pile] : looks.key.bgStyle);
}
