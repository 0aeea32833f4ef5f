#pragma once

#include "gamechoice.h"
#include "gamestate.h"
#include "imagestates.h"
#include "keyboardwidgets.h"
#include "keypresence.h"
#include "looks.h"
#include "painttables.h"
#include "panelwidgets.h"
#include "shadowfields.h"
#include "soundplayer.h"

// What every room stands on: the form's furniture, the keyboard's labels by
// number, what keys wear, and the state of the game. It has no behaviour; rooms
// get it by reference, and name beside it the rooms that they call.
struct Board
{
    explicit Board(Ui::tambrel &form) : ui(form), widgets(form), choice(form) {}

    Ui::tambrel &ui;
    KeyboardWidgets widgets;
    KeyPresence presence{widgets};
    PanelWidgets panelWidgets;
    Looks looks;
    PaintTables paint{looks};
    ImageStates images;
    GameState game;
    Sounds sounds;
    ShadowFields shadows;
    GameChoice choice;
};
