#pragma once

#include "gamechoice.h"
#include "gamestate.h"

struct Furniture;

// The Match Game as its rooms share it: its fields, what the player has chosen, and the target.
struct Game : GameState
{
    explicit Game(const Furniture &usedFurniture);

    const GameChoice choice;
    // letterList index of the character in Match This; -1 while there is none.
    int target() const;

private:
    const Furniture &furniture;
};
