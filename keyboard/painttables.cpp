#include "painttables.h"

PaintTables::PaintTables(const Looks &usedLooks) : looks(usedLooks) {}

void PaintTables::fillText(bool shifted)
{
    for (int key = 1; key <= Keys::count; ++key) {
        if (Keys::isShifted(key) == shifted)
            paintTextStyle[Keys::index(key)].clear();
    }
}

void PaintTables::forget()
{
    fillRainbowE();
    fillRainbowUp();
    fillRainbowLow();
    fillRainbowBg();
    fillRainbowBorder();
    for (Switch &part : parts)
        part.keep(false);
}

template <class Action>
void PaintTables::eachEntry(const Action &action)
{
    for (int key = 1; key <= Keys::count; ++key)
        action(paintTextStyle[Keys::index(key)], looks.key.text(Keys::isShifted(key)));
    for (QString &text : paintExtraTextStyle)
        action(text, looks.key.lowerTextStyle);
    for (QString &background : paintKeyBgStyle)
        action(background, looks.key.bgStyle);
    for (QString &border : paintKeyBorderStyle)
        action(border, looks.key.borderStyle);
}

void PaintTables::fillFromLooks()
{
    eachEntry([](QString &entry, const QString &look) {
        if (entry.isEmpty())
            entry = look;
    });
}

void PaintTables::dropWhatLooksSay()
{
    eachEntry([](QString &entry, const QString &look) {
        if (entry == look)
            entry.clear();
    });
}

namespace {

const QString &painted(bool on, const QString &entry, const QString &look)
{
    return on && !entry.isEmpty() ? entry : look;
}

} // namespace

const QString &PaintTables::paintedText(int key) const
{
    return painted(true, paintTextStyle[Keys::index(key)], looks.key.text(Keys::isShifted(key)));
}

const QString &PaintTables::restText(int key) const
{
    const bool shifted = Keys::isShifted(key);
    return painted(textOn(shifted), paintTextStyle[Keys::index(key)], looks.key.text(shifted));
}

const QString &PaintTables::restControlText(int index) const
{
    return painted(isOn(Lower), paintExtraTextStyle[index], looks.key.lowerTextStyle);
}

QString PaintTables::restKeyBackground(Keys::Place place) const
{
    const bool on = isOn(Background) || isOn(Border);
    const QString &background =
        painted(on, paintKeyBgStyle[static_cast<size_t>(place.index())], looks.key.bgStyle);
    const QString &border =
        painted(on, paintKeyBorderStyle[static_cast<size_t>(place.index())], looks.key.borderStyle);
    return place.isCap() ? looks.keyBackground(background, border)
                         : looks.controlKeyBackground(background, border);
}

QString PaintTables::restBarBackground(Keys::Place place) const
{
    return looks.barBackground(painted(
        isOn(Background), paintKeyBgStyle[static_cast<size_t>(place.index())], looks.key.bgStyle));
}
