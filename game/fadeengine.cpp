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

constexpr int fadeMs = 1000;
constexpr int shadowMs = 1100; // from a fade in to the shadow
constexpr int controlShadowMs = 1000;
constexpr int sweepShadowMs = 2300;
constexpr int shadowGoesMs = 7500;
constexpr int leftOverMs = 500;

constexpr auto placeOfLeftMark = Keys::Place::ofCap(6);
constexpr auto placeOfRightMark = Keys::Place::ofCap(10);

constexpr auto capsLockPlace = Keys::Place::ofControl(Keys::Control::CapsLock);
constexpr auto backSpacePlace = Keys::Place::ofControl(Keys::Control::BackSpace);
constexpr auto tabPlace = Keys::Place::ofControl(Keys::Control::Tab);

// Cap 24 shows its shadow only when both are chosen.
constexpr auto bothShadowsPlace = Keys::Place::ofCap(24);

} // namespace

FadeEngine::FadeEngine(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame)
    : furniture(usedFurniture), wardrobe(usedWardrobe), game(usedGame)
{}

void FadeEngine::fade(QWidget *widget, bool in)
{
    auto *effect = new QGraphicsOpacityEffect(this);
    auto *animation = new QPropertyAnimation(effect, "opacity", this);
    animation->setDuration(fadeMs);
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
void FadeEngine::fadeLabels(Keys::Place place, const std::function<void(QLabel *)> &action) const
{
    action(furniture.widgets.text(place));
    if (place.isCap())
        action(furniture.widgets.upperKeyList[place.index()]);
    action(furniture.widgets.image(place));
    action(furniture.widgets.background(place));
    if (place == placeOfLeftMark)
        action(furniture.ui.underScoreLeft);
    if (place == placeOfRightMark)
        action(furniture.ui.underScoreRight);
}

void FadeEngine::fadePlace(Keys::Place place, bool in)
{
    ++fadeCount[static_cast<size_t>(place.index())];
    furniture.presence.setFaded(place, !in);
    fadeLabels(place, [&](QLabel *label) { fade(label, in); });
}

void FadeEngine::fadeIn(Keys::Place place)
{
    fadePlace(place, true);
    if (!wardrobe.shadows.shadow3dOn)
        return;
    Sequence::after(place.isCap() ? shadowMs : controlShadowMs, this,
                    [this, place, count = fadeCount[static_cast<size_t>(place.index())]] {
                        if (fadeCount[static_cast<size_t>(place.index())] == count)
                            fadeInShadow(place);
                    });
}

void FadeEngine::fadeOut(Keys::Place place)
{
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

void FadeEngine::fadeInShadow(Keys::Place place)
{
    const ShadowFields &shadows = wardrobe.shadows;
    QLabel *text = furniture.widgets.text(place);
    QLabel *background = furniture.widgets.background(place);
    if (place.isCap()) {
        ShadowGroup half = shadows[ShadowFields::halfOf(place.cap())];
        half.on = half.on && (place != bothShadowsPlace || shadows[ShadowFields::Keys].on);
        showShadow(text, shadows[ShadowFields::TambrelLow]);
        showShadow(furniture.widgets.upperKeyList[place.index()], shadows[ShadowFields::Tambrel]);
        showShadow(background, half);
        return;
    }
    const ShadowGroup &half =
        place == backSpacePlace ? shadows[ShadowFields::Keys] : shadows[ShadowFields::Keys_2];
    // Caps Lock dresses Tab first, and then itself.
    if (place == capsLockPlace) {
        showShadow(furniture.widgets.text(tabPlace), shadows[ShadowFields::TambrelLow]);
        showShadow(furniture.widgets.background(tabPlace), half);
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
    for (const Keys::Place place : Keys::places) {
        const auto *effect = furniture.widgets.background(place)->graphicsEffect();
        if (!furniture.presence.isFaded(place) &&
            !qobject_cast<const QGraphicsOpacityEffect *>(effect))
            continue;
        ++fadeCount[static_cast<size_t>(place.index())];
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
    const auto place = Keys::Place::ofKey(Keys::fromIndex(target));
    fadeOut(place);
    const auto sweep = FadeLists::closingSweep(game.fade, target, direction, game.choice.keySet());
    if (game.fade == GameState::Fade::OutIn) {
        generation.after(comesBackMs, [this, place] { fadeIn(place); });
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
    for (const Keys::Place place : Keys::places) {
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
