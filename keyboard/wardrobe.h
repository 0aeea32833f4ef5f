#pragma once

#include "imagestates.h"
#include "looks.h"
#include "painttables.h"
#include "shadowfields.h"
#include "soundplayer.h"

// What keys, cells and boxes wear, and how they sound: what the Advanced Options change.
struct Wardrobe
{
    Looks looks;
    PaintTables paint{looks};
    ImageStates images;
    Sounds sounds;
    ShadowFields shadows;
};
