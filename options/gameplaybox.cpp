#include "gameplaybox.h"

#include "dresser.h"
#include "furniture.h"
#include "gradientpanels.h"
#include "optionforms.h"
#include "timers.h"
#include "ui_gameplaypanel.h"
#include "ui_tambrel.h"
#include "wardrobe.h"
#include "wear.h"

namespace {

constexpr int pulsateMs = 100;
constexpr float pulsateStep = 0.01f;
constexpr float lowest = 0.1f;
constexpr float highest = 0.9f;

} // namespace

GamePlayBox::GamePlayBox(Furniture &usedFurniture, Wardrobe &usedWardrobe,
                         GradientPanels &gradientPanels, Dresser &usedDresser,
                         const OptionForms &optionForms, Timers &windowTimers)
    : furniture(usedFurniture),
      wardrobe(usedWardrobe),
      panels(gradientPanels),
      dresser(usedDresser),
      form(*optionForms.gamePlay),
      timers(windowTimers)
{
    connect(form.gamePlayCb, &QAbstractButton::clicked, this, &GamePlayBox::gamePlayCb_function);
    connect(form.pulsateOnGamePlay, &QAbstractButton::clicked, this, &GamePlayBox::startPulsate);
    connect(form.pulsateOffGamePlay, &QAbstractButton::clicked, this, &GamePlayBox::stopPulsate);
}

void GamePlayBox::gamePlayCb_function()
{
    if (form.gamePlayCb->isChecked()) {
        panels.grad(GradientPanels::GamePlay);
        return;
    }
    for (QWidget *header : {furniture.ui.matchThis, furniture.ui.yourEntry})
        wear(header, "background-color: transparent;  color: black;  font: 12pt 'MS Shell Dlg 2';");
    wardrobe.looks.matchBox.header = wardrobe.looks.userBox.header = false;
    dresser.boxes();
}

void GamePlayBox::startPulsate()
{
    timers.stop(pulsateTimerId);
    pulsateTimerId = timers.start(pulsateMs, [this] { sweep(); });
    form.pulsateOnGamePlay->setChecked(true);
}

void GamePlayBox::stopPulsate()
{
    timers.stop(pulsateTimerId);
    form.pulsateOffGamePlay->setChecked(true);
}

void GamePlayBox::sweep()
{
    Look &look = wardrobe.looks.gamePlay;
    look.gradStop = QString::number(pulsateValue, 'g', 6);
    if (pulsateFalling) {
        pulsateValue -= pulsateStep;
        pulsateFalling = pulsateValue >= lowest;
    } else {
        pulsateValue += pulsateStep;
        pulsateFalling = pulsateValue >= highest;
    }
    if (form.animateGradientBothGamePlay->isChecked()) {
        look.buildBorder();
        look.buildBackground();
        panels.putOnBoxes();
    } else {
        panels.grad(GradientPanels::GamePlay);
    }
}
