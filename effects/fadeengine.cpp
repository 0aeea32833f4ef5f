#include "fadeengine.h"

#include "board.h"
#include "sequence.h"
#include "timers.h"
#include "ui_tambrel.h"

#include <QGraphicsDropShadowEffect>
#include <QGraphicsOpacityEffect>
#include <QPropertyAnimation>
#include <algorithm>
#include <iterator>

namespace {

constexpr int fadeOutMs = 1000;
constexpr int controlFadeMs = 1000;
constexpr int comesBackMs = 1100; // from a fade out to the fade in of the same key
constexpr int shadowMs = 1100;    // from a fade in to the shadow
constexpr int controlShadowMs = 1000;
constexpr int sweepShadowMs = 2300;
constexpr int shadowGoesMs = 7500;
constexpr int sampleMs = 5000;
constexpr int leftOverMs = 500;

constexpr int capOfLeftMark = 6;
constexpr int capOfRightMark = 10;

constexpr int firstControlPlace = Keys::capCount + 1;
constexpr int capsLockPlace = firstControlPlace + 2;
constexpr int backSpacePlace = firstControlPlace;
constexpr int tabPlace = firstControlPlace + 1;
static_assert(Keys::textOrder[2] == Keys::Control::CapsLock);

bool isPlace(int place)
{
    return place >= 1 && place <= Keys::pileCount;
}

// Cap 24 shows its shadow only when both are chosen.
constexpr int bothShadowsCap = 24;

} // namespace

FadeEngine::FadeEngine(Board &usedBoard, Timers &windowTimers)
    : board(usedBoard), timers(windowTimers)
{}

void FadeEngine::fade(QWidget *widget, bool in, int ms)
{
    auto *effect = new QGraphicsOpacityEffect(this);
    auto *animation = new QPropertyAnimation(effect, "opacity", this);
    animation->setDuration(ms);
    animation->setStartValue(in ? 0.0 : 1.0);
    animation->setEndValue(in ? 1.0 : 0.0);
    animation->setEasingCurve(QEasingCurve::InCirc);
    widget->setGraphicsEffect(effect);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
    // An effect at full opacity would cost at every repaint and show nothing.
    if (in) {
        connect(animation, &QAbstractAnimation::finished, effect, [widget, effect] {
            if (widget->graphicsEffect() == effect)
                widget->setGraphicsEffect(nullptr);
        });
    }
}

void FadeEngine::fadePlace(int place, bool in)
{
    const bool isCap = place <= Keys::capCount;
    const int ms = !isCap ? controlFadeMs : in ? fadeInDelay : fadeOutMs;
    fade(board.widgets.lowerKeyList[place - 1], in, ms);
    if (isCap)
        fade(board.widgets.upperKeyList[place - 1], in, ms);
    fade(board.widgets.placeImage(place), in, ms);
    fade(board.widgets.placeBackground(place), in, ms);
    if (place == capOfLeftMark)
        fade(board.ui.underScoreLeft, in, ms);
    if (place == capOfRightMark)
        fade(board.ui.underScoreRight, in, ms);
}

void FadeEngine::fadeIn(int place)
{
    if (!isPlace(place))
        return;
    gone[place] = false;
    fadePlace(place, true);
    const bool isCap = place <= Keys::capCount;
    if (isCap)
        board.widgets.shield(place)->show();
    if (board.shadows.shadow3dOn)
        Sequence::after(isCap ? shadowMs : controlShadowMs, this,
                        [this, place] { fadeInShadow(place); });
}

void FadeEngine::fadeOut(int place)
{
    if (!isPlace(place))
        return;
    if (place <= Keys::capCount)
        board.widgets.shield(place)->hide();
    gone[place] = true;
    fadePlace(place, false);
}

// A shadow that is off is drawn in no colour, which is the same as no effect.
void FadeEngine::showShadow(QLabel *label, const ShadowGroup &group, bool on)
{
    if (!on) {
        label->setGraphicsEffect(nullptr);
        return;
    }
    auto *shadow = new QGraphicsDropShadowEffect(this);
    shadow->setOffset(group.offset);
    shadow->setColor(QColor(group.colour));
    label->setGraphicsEffect(shadow);
}

void FadeEngine::fadeInShadow(int place)
{
    if (!isPlace(place))
        return;
    const ShadowFields &shadows = board.shadows;
    QLabel *text = board.widgets.lowerKeyList[place - 1];
    if (place <= Keys::capCount) {
        const ShadowGroup &keys = shadows[ShadowFields::halfOf(place)];
        const bool on = keys.on && (place != bothShadowsCap || shadows[ShadowFields::Keys].on);
        // Each case asks for the other's switch.
        showShadow(text, shadows[ShadowFields::TambrelLow], shadows[ShadowFields::Tambrel].on);
        showShadow(board.widgets.upperKeyList[place - 1], shadows[ShadowFields::Tambrel],
                   shadows[ShadowFields::TambrelLow].on);
        showShadow(board.widgets.placeBackground(place), keys, on);
        return;
    }
    const ShadowGroup &keys =
        place == backSpacePlace ? shadows[ShadowFields::Keys] : shadows[ShadowFields::Keys_2];
    // Caps Lock dresses Tab first, and then itself.
    if (place == capsLockPlace) {
        showShadow(board.widgets.lowerKeyList[tabPlace - 1], shadows[ShadowFields::TambrelLow],
                   shadows[ShadowFields::TambrelLow].on);
        showShadow(board.widgets.placeBackground(tabPlace), keys, keys.on);
    }
    showShadow(text, shadows[ShadowFields::TambrelLow], shadows[ShadowFields::TambrelLow].on);
    showShadow(board.widgets.placeBackground(place), keys, keys.on);
}

void FadeEngine::locatedKey()
{
    if (board.game.fade != GameState::Fade::None)
        startGraphicsEffects();
}

void FadeEngine::gameStopped()
{
    if (board.game.fadeRunning)
        fadeOutReset();
}

void FadeEngine::startGraphicsEffects()
{
    GameState &game = board.game;
    const Direction direction = board.choice.direction();
    const int target = board.widgets.indexOf(board.ui.leMatch->text());
    game.kestrixKeyboardOn = false;
    game.fadeRunning = true;
    if (target < 0 || (game.fade == GameState::Fade::Out && direction == Direction::Random))
        return;
    const int cap = Keys::cap(Keys::fromIndex(target));
    fadeOut(cap);
    const auto sweep = FadeLists::closingSweep(game.fade, target, direction, board.choice.keySet());
    if (game.fade == GameState::Fade::OutIn) {
        Sequence::after(comesBackMs, this, [this, cap] { fadeIn(cap); });
        if (!sweep.empty() && !board.shadows.shadow3dOn)
            Sequence::after(sweepShadowMs, this, [this] { shadow3dpart2(); });
    }
    play(sweep);
}

void FadeEngine::play(const FadeLists::Steps &steps)
{
    Sequence::play(steps, 1, this, [this](const FadeLists::Step &step) {
        if (step.what == FadeLists::Step::In)
            fadeIn(step.place);
        else
            fadeOut(step.place);
    });
}

void FadeEngine::fadeOutReset()
{
    if (!board.shadows.shadow3dOn)
        shadow3dpart2();
    auto steps = FadeLists::reset(board.choice.direction(), board.choice.keySet(), board.game);
    // The choice may have changed since these keys went; none of them may stay away.
    for (int place = 1; place <= Keys::pileCount; ++place) {
        const auto isHere = [place](const FadeLists::Step &step) { return step.place == place; };
        if (gone[place] && std::none_of(steps.begin(), steps.end(), isHere))
            steps.push_back({leftOverMs, FadeLists::Step::In, place});
    }
    play(steps);
}

// The check box follows, and tells the field; it may not have been built yet.
void FadeEngine::putShadowsBack(bool on)
{
    board.shadows.shadow3dOn = on;
    if (board.panelWidgets.isFilled())
        board.panelWidgets.button("shadow3dOn")->setChecked(on);
}

void FadeEngine::shadow3dpart2()
{
    putShadowsBack(true);
    Sequence::after(shadowGoesMs, this, [this] { putShadowsBack(false); });
}

void FadeEngine::fadeOut_function()
{
    board.game.fade = GameState::Fade::Out;
    emit fadeChosen();
}

void FadeEngine::fadeInOut_function()
{
    board.game.fade = GameState::Fade::OutIn;
    emit fadeChosen();
}

void FadeEngine::clearFade()
{
    board.game.fade = GameState::Fade::None;
}

void FadeEngine::setSample(QWidget *upper, QWidget *lower)
{
    sampleUpper = upper;
    sampleLower = lower;
}

void FadeEngine::startFade()
{
    stopFade();
    fadeTimerId = timers.start(sampleMs, [this] { fadeOutExample(); });
}

void FadeEngine::stopFade()
{
    timers.stop(fadeTimerId);
}

void FadeEngine::fadeOutExample()
{
    if (!sampleUpper || !sampleLower)
        return;
    fade(sampleUpper, false, fadeOutMs);
    fade(sampleLower, false, fadeOutMs);
    Sequence::after(comesBackMs, this, [this] { fadeInExample(); });
}

void FadeEngine::fadeInExample()
{
    fade(sampleUpper, true, fadeInDelay);
    fade(sampleLower, true, fadeInDelay);
}

void FadeEngine::clearGraphicsEffects()
{
    for (const auto *list : {&board.widgets.lowerKeyList, &board.widgets.upperKeyList,
                             &board.widgets.keyBgList, &board.widgets.shieldList}) {
        for (int i = 0; i < Keys::capCount; ++i)
            (*list)[i]->setGraphicsEffect(nullptr);
    }
    board.ui.underScoreLeft->setGraphicsEffect(nullptr);
    board.ui.underScoreRight->setGraphicsEffect(nullptr);
}
