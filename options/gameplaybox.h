#pragma once

#include <QObject>

class Dresser;
class GradientPanels;
class Timers;
struct Board;

// What the panel of the boxes Match This and Your Entry has beyond a color panel: their
// headers, and a gradient that breathes.
class GamePlayBox : public QObject
{
    Q_OBJECT

public:
    GamePlayBox(Board &usedBoard, GradientPanels &gradientPanels, Dresser &usedDresser,
                Timers &windowTimers);

    // Once the panels stand in the window.
    void attach();

    // Headers wear the look of the boxes, or none.
    void gamePlayCb_function();
    void startPulsate();
    void stopPulsate();

private:
    void sweep();

    Board &board;
    GradientPanels &panels;
    Dresser &dresser;
    Timers &timers;
    int pulsateTimerId = 0;
    float pulsateValue = 0; // position of the end stop, 0 to 1
    bool pulsateFalling = false;
};
