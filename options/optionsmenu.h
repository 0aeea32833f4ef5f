#pragma once

#include "optionpanels.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <functional>

class QPropertyAnimation;
class QWidget;
struct Furniture;

// The Advanced Options: a shield with a table of contents that slides in from the right, and out
// again. Its buttons open the panels.
class OptionsMenu : public QObject
{
    Q_OBJECT

public:
    // The panels are half of all widgets and are built when first asked for.
    OptionsMenu(Furniture &usedFurniture, std::function<OptionPanels &()> builtPanels);

    void showFrame();
    void hideFrame();

    // The Kestrix Keyboard's button is for the time between games.
    void lockForGame();
    void unlockAfterGame();

private:
    void raiseFurniture();
    void slide(const struct Slide &row);
    void slideIn();
    void slideOut();

    Furniture &furniture;
    std::function<OptionPanels &()> panels;
    QHash<QWidget *, QPointer<QPropertyAnimation>> slides;
    bool advancedOptionsOpen = false;
    bool wantedOpen = false;  // what the last click asked for; late slides go by it
    bool tableLeaves = false; // a closing table takes no clicks
};
