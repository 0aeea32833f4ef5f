#pragma once

#include "gamechoice.h"
#include "gamestate.h"
#include "imagestates.h"
#include "keyboardwidgets.h"
#include "keypresence.h"
#include "looks.h"
#include "painttables.h"
#include "shadowfields.h"
#include "soundplayer.h"

// What every room stands on: the form's furniture, the keyboard's labels by
// number, what keys wear, and the state of the game. It has no behaviour; rooms
// get it by reference, and name beside it the rooms that they call.
struct Board
{
    Board(Ui::tambrel &form, QWidget &window) : ui(form), widgets(window), choice(form) {}

    Ui::tambrel &ui;
    KeyboardWidgets widgets;
    KeyPresence presence{widgets};
    Looks looks;
    PaintTables paint{looks};
    ImageStates images;
    GameState game;
    Sounds sounds;
    ShadowFields shadows;
    GameChoice choice;
};
