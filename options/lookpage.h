#pragma once

namespace Ui {
class lookPage;
}

// The tabs Keys, Keypress, Mouseover and Highlight are one form, built four times. The form reads
// as the first of them; this gives a copy the names and texts of the tab that it is for, 1 to 4.
// No two widgets of the window share a name. The colors come with the looks.
void setUpLookPage(const Ui::lookPage &form, int number);
