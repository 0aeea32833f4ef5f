#pragma once

#include "keys.h"
#include "looks.h"

#include <array>

// What single keys wear when they were painted one by one, and what a key wears
// at rest: its paint where painting is on, the key look otherwise. An entry is empty until the
// mouse or a file has painted it, and a key without paint follows the key look.
class PaintTables
{
public:
    explicit PaintTables(const Looks &looks);

    // Indexed like letterList.
    std::array<QString, Keys::count> paintTextStyle;
    // The seven control keys in Keys::textOrder, then the marks under f and j.
    std::array<QString, Keys::controlCount + 2> paintExtraTextStyle;
    // By the index of the place.
    std::array<QString, Keys::placeCount> paintKeyBgStyle;
    std::array<QString, Keys::placeCount> paintKeyBorderStyle;

    // What can be painted, each with a switch. The text is the switch as a theme writes it; it does
    // not follow every change: a switch that goes without a picker's OK leaves its text.
    enum Part { Background, Border, Lower, Upper, English };
    struct Switch
    {
        bool on = false;
        QString text = "0";

        void keep(bool now)
        {
            on = now;
            text = now ? "1" : "0";
        }
    };
    std::array<Switch, 5> parts;

    bool isOn(Part part) const { return parts[part].on; }
    bool textOn(bool shifted) const { return isOn(shifted ? Upper : Lower); }

    // Each forgets what was painted in its table.
    void fillRainbowE() { paintExtraTextStyle.fill(QString()); }
    void fillRainbowUp() { fillText(true); }
    void fillRainbowLow() { fillText(false); }
    void fillRainbowBg() { paintKeyBgStyle.fill(QString()); }
    void fillRainbowBorder() { paintKeyBorderStyle.fill(QString()); }
    // All of it, switches too, as a look does that is one for all keys.
    void forget();

    // Every entry as the key would show it were painting on, for a file; and the other way
    // round: what says the same as the key look is no paint.
    void fillFromLooks();
    void dropWhatLooksSay();

    // A character as it was painted, or of the key look, without its font.
    const QString &paintedText(int key) const;
    // At rest: painted, where the switch of its case is on.
    const QString &restText(int key) const;
    // Likewise of a control key (0 to 6, in Keys::textOrder), then of the two marks.
    const QString &restControlText(int index) const;
    // The background of a key and of the bar cells over it.
    QString restKeyBackground(Keys::Place place) const;
    QString restBarBackground(Keys::Place place) const;

private:
    void fillText(bool shifted);
    // Each entry with the piece of the key look that it stands for.
    template <class Action>
    void eachEntry(const Action &action);

    const Looks &looks;
};
