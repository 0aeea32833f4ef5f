#pragma once

#include "keyboardwidgets.h"
#include "keypresence.h"

namespace Ui {
class tambrel;
}

// What the window is made of: its form, the labels of the keyboard by number, and which of them
// can be seen.
struct Furniture
{
    explicit Furniture(Ui::tambrel &form) : ui(form), widgets(form) {}

    Ui::tambrel &ui;
    KeyboardWidgets widgets;
    KeyPresence presence{widgets};
};
