#pragma once

#include <QPoint>
#include <QString>

// The drop shadows that keys can carry. A widget has one graphics effect at a time,
// so a fade takes the shadow away and puts it back when it is over.
struct ShadowGroup
{
    bool on = false;
    QPoint offset{4, 4}; // px, towards the lower right
    QString colour = "#484848";
};

struct ShadowFields
{
    bool shadow3dOn = true; // fades put shadows back

    ShadowGroup textShadowTambrel;    // the shifted characters on the keys
    ShadowGroup textShadowTambrelLow; // the unshifted ones
    ShadowGroup shadowKeys;           // one half of the key backgrounds
    ShadowGroup shadowKeys_2;         // the other half
};
