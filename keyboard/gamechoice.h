#pragma once

#include "keys.h"

namespace Ui {
class tambrel;
}

enum class Direction { Forward, Reverse, Random };

// What the player has chosen. The choice lives in radio buttons, most of them
// hidden; this is the one place that knows which button means what.
class GameChoice
{
public:
    explicit GameChoice(Ui::tambrel &form) : ui(form) {}

    Direction direction() const;
    Keys::Set keySet() const;
    bool isStrict() const; // an entry counts at once; otherwise (Soft) at Space
    bool isFlash() const;  // a lit key goes back by itself; otherwise (Constant) at its release

private:
    Ui::tambrel &ui;
};
