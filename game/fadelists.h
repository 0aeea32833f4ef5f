#pragma once

#include "gamechoice.h"
#include "gamestate.h"
#include "keys.h"

#include <vector>

// The sweeps of the fade engine as rows of milliseconds and places.
namespace FadeLists {

struct Step
{
    int step; // ms
    enum What { In, Out } what;
    Keys::Place place;
};
using Steps = std::vector<Step>;

// The sweep that closes a set when its key at this letterList index was located, if any;
// Fade Out and Fade Out/In have different ones.
Steps closingSweep(GameState::Fade fade, int index, Direction direction, Keys::Set set);

// All places column by column from the left, from 2000 ms on.
Steps columnWave();

// All keys out and in again, as at the end of an Everything game; for the bench.
Steps fadeAll();

// Brings back what has faded when a game is stopped: the places whose keys were matched.
Steps reset(Direction direction, Keys::Set set, const GameState &game);

} // namespace FadeLists
