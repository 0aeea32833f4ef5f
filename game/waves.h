#pragma once

#include "gamechoice.h"

#include <vector>

// The waves that run along the Alphabet Bar when a game is chosen.
namespace Waves {

struct Step
{
    int step; // in multiples of delayStep, or of randomDelayStep for a Random wave
    enum What { Animate, PutBack, HideShields } what;
    int key; // 1 to 94; 0 for HideShields
};

// In the order in which the steps are armed.
std::vector<Step> wave(Direction direction, Keys::Set set);

} // namespace Waves
