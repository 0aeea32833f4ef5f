#include "fadeengine.h"

#include "furniture.h"
#include "game.h"
#include "sequence.h"
#include "ui_tambrel.h"
#include "wardrobe.h"

#include <QGraphicsDropShadowEffect>
#include <QGraphicsOpacityEffect>
#include <QPropertyAnimation>
#include <algorithm>
#include <iterator>

namespace {

constexpr int fadeOutMs = 1000;
constexpr int controlFadeMs = 1000;
constexpr int shadowMs = 1100; // from a fade in to the shadow
constexpr int controlShadowMs = 1000;
constexpr int sweepShadowMs = 2300;
constexpr int shadowGoesMs = 7500;
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

FadeEngine::FadeEngine(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame)
    : furniture(usedFurniture), wardrobe(usedWardrobe), game(usedGame)
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

// Everything of a key that fades, marks of the home row included.
void FadeEngine::fadeLabels(int place, const std::function<void(QLabel *)> &action) const
{
    action(furniture.widgets.placeText(place));
    if (place <= Keys::capCount)
        action(furniture.widgets.upperKeyList[place - 1]);
    action(furniture.widgets.placeImage(place));
    action(furniture.widgets.placeBackground(place));
    if (place == capOfLeftMark)
        action(furniture.ui.underScoreLeft);
    if (place == capOfRightMark)
        action(furniture.ui.underScoreRight);
}

void FadeEngine::fadePlace(int place, bool in)
{
    const bool isCap = place <= Keys::capCount;
    const int ms = !isCap ? controlFadeMs : in ? fadeInDelay : fadeOutMs;
    ++fadeCount[place];
    furniture.presence.setFaded(place, !in);
    fadeLabels(place, [&](QLabel *label) { fade(label, in, ms); });
}

void FadeEngine::fadeIn(int place)
{
    if (!isPlace(place))
        return;
    fadePlace(place, true);
    if (!wardrobe.shadows.shadow3dOn)
        return;
    Sequence::after(place <= Keys::capCount ? shadowMs : controlShadowMs, this,
                    [this, place, count = fadeCount[place]] {
                        if (fadeCount[place] == count)
                            fadeInShadow(place);
                    });
}

void FadeEngine::fadeOut(int place)
{
    if (isPlace(place))
        fadePlace(place, false);
}

// A shadow that is off is drawn in no color, which is the same as no effect.
void FadeEngine::showShadow(QLabel *label, const ShadowGroup &group)
{
    if (furniture.presence.isFaded(label))
        return;
    if (!group.on) {
        label->setGraphicsEffect(nullptr);
        return;
    }
    auto *shadow = new QGraphicsDropShadowEffect(this);
    shadow->setOffset(group.offset);
    shadow->setColor(QColor(group.color));
    label->setGraphicsEffect(shadow);
}

void FadeEngine::fadeInShadow(int place)
{
    if (!isPlace(place))
        return;
    const ShadowFields &shadows = wardrobe.shadows;
    QLabel *text = furniture.widgets.placeText(place);
    QLabel *background = furniture.widgets.placeBackground(place);
    if (place <= Keys::capCount) {
        ShadowGroup half = shadows[ShadowFields::halfOf(place)];
        half.on = half.on && (place != bothShadowsCap || shadows[ShadowFields::Keys].on);
        showShadow(text, shadows[ShadowFields::TambrelLow]);
        showShadow(furniture.widgets.upperKeyList[place - 1], shadows[ShadowFields::Tambrel]);
        showShadow(background, half);
        return;
    }
    const ShadowGroup &half =
        place == backSpacePlace ? shadows[ShadowFields::Keys] : shadows[ShadowFields::Keys_2];
    // Caps Lock dresses Tab first, and then itself.
    if (place == capsLockPlace) {
        showShadow(furniture.widgets.placeText(tabPlace), shadows[ShadowFields::TambrelLow]);
        showShadow(furniture.widgets.placeBackground(tabPlace), half);
    }
    showShadow(text, shadows[ShadowFields::TambrelLow]);
    showShadow(background, half);
}

void FadeEngine::locatedKey()
{
    if (game.fade != GameState::Fade::None)
        startGraphicsEffects();
}

// A game that has ended by itself has its sweep to bring the keys back, which ends here too.
void FadeEngine::gameStopped()
{
    generation.end();
    if (game.fadeRunning && !game.gameFinished)
        fadeOutReset();
    else
        bringBack();
}

void FadeEngine::bringBack()
{
    generation.end();
    for (int place = 1; place <= Keys::pileCount; ++place) {
        const auto *effect = furniture.widgets.placeBackground(place)->graphicsEffect();
        if (!furniture.presence.isFaded(place) &&
            !qobject_cast<const QGraphicsOpacityEffect *>(effect))
            continue;
        ++fadeCount[place];
        furniture.presence.setFaded(place, false);
        fadeLabels(place, [](QLabel *label) { label->setGraphicsEffect(nullptr); });
        if (wardrobe.shadows.shadow3dOn)
            fadeInShadow(place);
    }
}

void FadeEngine::startGraphicsEffects()
{
    const Direction direction = game.choice.direction();
    const int target = game.target();
    game.kestrixKeyboardOn = false;
    game.fadeRunning = true;
    if (target < 0 || (game.fade == GameState::Fade::Out && direction == Direction::Random))
        return;
    const int cap = Keys::cap(Keys::fromIndex(target));
    fadeOut(cap);
    const auto sweep = FadeLists::closingSweep(game.fade, target, direction, game.choice.keySet());
    if (game.fade == GameState::Fade::OutIn) {
        generation.after(comesBackMs, [this, cap] { fadeIn(cap); });
        if (!sweep.empty() && !wardrobe.shadows.shadow3dOn)
            generation.after(sweepShadowMs, [this] { shadow3dpart2(); });
    }
    play(sweep);
}

void FadeEngine::play(const FadeLists::Steps &steps)
{
    for (const FadeLists::Step &step : steps) {
        generation.after(step.step, [this, step] {
            if (step.what == FadeLists::Step::In)
                fadeIn(step.place);
            else
                fadeOut(step.place);
        });
    }
}

void FadeEngine::fadeOutReset()
{
    if (!wardrobe.shadows.shadow3dOn)
        shadow3dpart2();
    auto steps = FadeLists::reset(game.choice.direction(), game.choice.keySet(), game);
    // The choice may have changed since these keys went; none of them may stay away.
    for (int place = 1; place <= Keys::pileCount; ++place) {
        const auto isHere = [place](const FadeLists::Step &step) { return step.place == place; };
        if (furniture.presence.isFaded(place) && std::none_of(steps.begin(), steps.end(), isHere))
            steps.push_back({leftOverMs, FadeLists::Step::In, place});
    }
    play(steps);
}

void FadeEngine::putShadowsBack(bool on)
{
    wardrobe.shadows.shadow3dOn = on;
    emit shadowsBack(on);
}

void FadeEngine::shadow3dpart2()
{
    putShadowsBack(true);
    Sequence::after(shadowGoesMs, this, [this] { putShadowsBack(false); });
}

void FadeEngine::choose(GameState::Fade fade)
{
    game.fade = fade;
    bringBack();
}

void FadeEngine::fadeOut_function()
{
    choose(GameState::Fade::Out);
}

void FadeEngine::fadeInOut_function()
{
    choose(GameState::Fade::OutIn);
}

void FadeEngine::clearFade()
{
    choose(GameState::Fade::None);
}

void FadeEngine::fade(QWidget *widget, bool in)
{
    fade(widget, in, in ? fadeInDelay : fadeOutMs);
}
