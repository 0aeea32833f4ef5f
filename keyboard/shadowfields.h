#pragma once

#include <QPoint>
#include <QString>
#include <array>

// The drop shadows that keys, the Alphabet Bar and the boxes of the game can carry. A widget
// has one graphics effect at a time, so a fade takes the shadow away and puts it back when it
// is over.
struct ShadowGroup
{
    bool on = false;
    QPoint offset{4, 4}; // px, towards the lower right
    QString color = "#484848";
};

struct ShadowFields
{
    enum Group {
        Tambrel,         // the shifted characters on the keys
        TambrelLow,      // the unshifted ones
        TambrelAbc,      // the shifted characters of the bar
        TambrelLowAbc,   //
        TambrelAbcBg,    // the cells of the shifted characters
        TambrelLowAbcBg, //
        Keys,            // one half of the key backgrounds
        Keys_2,          // the other half
        GamePlayText,    // Match This
        GamePlayBg,      //
        GamePlayText_2,  // Your Entry
        GamePlayBg_2,    //
    };
    static constexpr int groupCount = 12;
    static constexpr Group firstOfBoxes = GamePlayText; // the groups before it are the keyboard's

    std::array<ShadowGroup, groupCount> groups;
    const ShadowGroup &operator[](Group group) const { return groups[group]; }
    ShadowGroup &operator[](Group group) { return groups[group]; }

    // The group whose color a picker shows: of the keyboard or of the boxes, the first that is on,
    // or else the first.
    const ShadowGroup &picked(bool ofBoxes) const
    {
        const int first = ofBoxes ? firstOfBoxes : 0;
        const int end = ofBoxes ? groupCount : firstOfBoxes;
        for (int group = first; group < end; ++group) {
            if (groups[group].on)
                return groups[group];
        }
        return groups[first];
    }

    bool shadow3dOn = true; // fades put shadows back

    // The half that the background of a cap (1 to 47) belongs to.
    static constexpr Group halfOf(int cap)
    {
        constexpr int first[] = {1,  4,  6,  7,  8,  10, 11, 12, 19, 27, 28, 29,
                                 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 43, 44};
        for (const int each : first) {
            if (each == cap)
                return Keys;
        }
        return Keys_2;
    }
};
