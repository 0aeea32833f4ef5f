#pragma once

#include <QSet>

class DisplayModes;
class QWidget;
class Tour;
struct Board;

// Hides the parts of the screen that a game does not need, and shows them again. A
// widget that was hidden for a reason of its own stays hidden.
class NonVitals
{
public:
    NonVitals(Board &usedBoard, QWidget &mainWindow, DisplayModes &displayModes, Tour &windowTour);

    // The button: "Hide" or "Show".
    void hideNonVitals_function();

    void xNonVitalsOn_function();
    void xNonVitalsOff_function();
    // The X-ray of Color Madness, and the one of Pictures: more goes, to see the keys.
    void xNonVitalsOn2_function() { xNonVitalsOn_function(); }
    void xNonVitalsOff2_function();
    void xNonVitalsOnPhotos_function() { xNonVitalsOn_function(); }
    void xNonVitalsOffPhotos_function();

private:
    void hide(int groups);
    void setHidden(bool hiddenNow);

    Board &board;
    QWidget &window;
    DisplayModes &modes;
    Tour &tour;
    QSet<QWidget *> hidden;
    bool nonVitalsHidden = false;
};
