#pragma once

#include "fadelists.h"

#include <QObject>
#include <array>

class QLabel;
class QWidget;
class Timers;
struct Board;
struct ShadowGroup;

// Lets located keys fade away and come back. Places are caps (1 to 47), or 48 and up
// for a control key in Keys::textOrder; others are ignored. A fade in flight cannot be
// stopped: a newer one on the same key takes its place.
class FadeEngine : public QObject
{
    Q_OBJECT

public:
    FadeEngine(Board &usedBoard, Timers &windowTimers);

    void fadeIn(int place);
    void fadeOut(int place);
    void fadeInShadow(int place);

    // The target was located, and has not moved yet; nothing without a fade chosen.
    void locatedKey();
    void startGraphicsEffects();
    // A game was stopped: what faded away in it comes back.
    void gameStopped();
    void fadeOutReset();
    void play(const FadeLists::Steps &steps);

    // The choice among Fade Out, Fade Out/In and None.
    void fadeOut_function();
    void fadeInOut_function();
    void clearFade();

    // The panel's sample fades every 5 s while it can be seen.
    void setSample(QWidget *upper, QWidget *lower);
    void startFade();
    void stopFade();
    void fadeOutExample();
    void fadeInExample();

    // Shadows come with a sweep and go again after 7.5 s.
    void shadow3dpart2();
    void putShadowsBack(bool on);

    // Takes every effect off the 47 caps and the two marks; without a caller of its own.
    void clearGraphicsEffects();

signals:
    void fadeChosen(); // the effect of located keys is off now

private:
    void fade(QWidget *widget, bool in, int ms);
    void fadePlace(int place, bool in);
    void showShadow(QLabel *label, const ShadowGroup &group, bool on);

    Board &board;
    Timers &timers;
    QWidget *sampleUpper = nullptr;
    QWidget *sampleLower = nullptr;
    std::array<bool, Keys::pileCount + 1> gone{}; // by place: faded out and not back yet
    int fadeInDelay = 1000;                       // ms
    int fadeTimerId = 0;
};
