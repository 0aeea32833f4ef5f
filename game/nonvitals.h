#pragma once

#include <QSet>
#include <QWidgetList>

class DisplayModes;
class Tour;
struct Board;

// Hides the parts of the screen that a game does not need, and shows them again. A
// widget that was hidden for a reason of its own stays hidden.
class NonVitals
{
public:
    NonVitals(Board &usedBoard, DisplayModes &displayModes, Tour &windowTour);

    // What is built later and goes with the rest.
    void add(const QWidgetList &widgets) { nonVitals += widgets; }

    // The button: "Hide" or "Show".
    void hideNonVitals_function();

    void xNonVitalsOn_function();
    // An X-ray takes some more away, to see the keys.
    void xNonVitalsOff_function(const QWidgetList &more = {});

private:
    void setHidden(bool hiddenNow);

    Board &board;
    DisplayModes &modes;
    Tour &tour;
    QWidgetList nonVitals;
    QSet<QWidget *> hidden;
    bool nonVitalsHidden = false;
};
