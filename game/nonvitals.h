#pragma once

#include <QSet>
#include <QWidgetList>

class DisplayModes;
class Tour;
struct Furniture;
struct Game;

// Hides the parts of the screen that a game does not need, and shows them again. A
// widget that was hidden for a reason of its own stays hidden.
class NonVitals
{
public:
    NonVitals(Furniture &usedFurniture, Game &usedGame, DisplayModes &displayModes,
              Tour &windowTour);

    // What is built later and goes with the rest.
    void add(const QWidgetList &widgets) { nonVitals += widgets; }

    // The button: "Hide" or "Show".
    void hideNonVitals_function();

    void xNonVitalsOn_function();
    // An X-ray takes some more away, to see the keys.
    void xNonVitalsOff_function(const QWidgetList &more = {});

private:
    void setHidden(bool hiddenNow);

    Furniture &furniture;
    Game &game;
    DisplayModes &modes;
    Tour &tour;
    QWidgetList nonVitals;
    QSet<QWidget *> hidden;
    bool nonVitalsHidden = false;
};
