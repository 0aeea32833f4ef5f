#pragma once

#include "gradientpanels.h"
#include "looks.h"

#include <QPoint>

class OptionForms;
class QWidget;

// What is known of each color picker before one is opened: one row a picker.
struct PickerRow
{
    enum Role {
        Character, // of a look, in one case
        Main,      // of a panel: the end of its gradient
        Gradient,  // of a panel: the start
        BoxText,   // Match This and Your Entry
        Shadow,    // of the keyboard, or of the boxes
    };
    // The spelling of a text's color differs from look to look, and themes keep it.
    enum class Spelling { A, B, C };
    // What OK does with the color that Qt tells of: some pickers have no last step.
    enum class Last { Nothing, Write, Repaint };

    // Closing it gives the keys back to the game after a second.
    enum class Focus { Stays, AfterOk, AfterCancel, AfterBoth };

    int number;
    const char *title;
    QPoint place; // px on the screen
    Role role;
    Focus focus;
    Last last;
    QWidget *(*swatch)(const OptionForms &); // shows the color and opens the picker

    GradientPanels::Panel panel = GradientPanels::Key; // of Main and Gradient
    QString &(*fragment)(Looks &) = nullptr;           // of Character
    bool shifted = false;                              //
    Spelling live = Spelling::A, final = Spelling::A;  //

    bool hasAlpha() const { return role != Shadow && panel != GradientPanels::Line; }
    bool hasIcon() const { return role == Character || role == BoxText; }
    bool givesFocusAfterOk() const { return focus == Focus::AfterOk || focus == Focus::AfterBoth; }
    bool givesFocusAfterCancel() const
    {
        return focus == Focus::AfterCancel || focus == Focus::AfterBoth;
    }

    static const int count;
    static const PickerRow &of(int number); // from 1
    // Of the pickers of shadows, one has those of the boxes.
    static constexpr bool colorsBoxes(int number) { return number == 30; }
};
