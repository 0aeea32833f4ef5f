#pragma once

#include <QObject>

class Dresser;
class GradientPanels;
class OptionForms;
class Timers;
struct Furniture;
struct Wardrobe;

namespace Ui {
class gamePlayPanel;
}

// What the panel of the boxes Match This and Your Entry has beyond a color panel: their
// headers, and a gradient that breathes.
class GamePlayBox : public QObject
{
    Q_OBJECT

public:
    GamePlayBox(Furniture &usedFurniture, Wardrobe &usedWardrobe, GradientPanels &gradientPanels,
                Dresser &usedDresser, const OptionForms &optionForms, Timers &windowTimers);

    // Headers wear the look of the boxes, or none.
    void gamePlayCb_function();
    void startPulsate();
    void stopPulsate();

private:
    void sweep();

    Furniture &furniture;
    Wardrobe &wardrobe;
    GradientPanels &panels;
    Dresser &dresser;
    const Ui::gamePlayPanel &form;
    Timers &timers;
    int pulsateTimerId = 0;
    float pulsateValue = 0; // position of the end stop, 0 to 1
    bool pulsateFalling = false;
};
