#include "keylocatedeffects.h"

#include "fadelists.h"
#include "furniture.h"
#include "game.h"
#include "instructor.h"
#include "picture.h"
#include "sequence.h"
#include "ui_tambrel.h"
#include "wardrobe.h"

#include <QMovie>

namespace {

constexpr int burstMs = 900;
constexpr int waveAfterMs = 2000;
constexpr int messMs = 7000;
constexpr int allInMs = 8000;

// How the control keys go at the end of a game with all keys: milliseconds and places.
struct At
{
    int ms;
    Keys::Control control;
};
constexpr At closingShow[] = {{3000, Keys::Control::Tab},        {3200, Keys::Control::CapsLock},
                              {3400, Keys::Control::ShiftLeft},  {3600, Keys::Control::Spacebar},
                              {3800, Keys::Control::ShiftRight}, {4000, Keys::Control::Enter},
                              {4200, Keys::Control::BackSpace}};

// The order in which the keys of the number line come back, from the left.
constexpr int numberLine[] = {27, 28, 29, 30, 31, 32, 33, 34, 35, 45, 36,
                              46, 37, 43, 47, 38, 40, 44, 39, 41, 42};

// A mark under f or j goes with a key: by the index of the character, which is not always that
// of the mark's own key; and comes back with a cap, the wrong one included.
enum class Mark { None, Left, Right };
constexpr Mark markGoneWith(int index, bool random)
{
    if (index == (random ? 5 : 6) || index == 33)
        return Mark::Left;
    return index == 9 || index == 48 ? Mark::Right : Mark::None;
}
constexpr Mark markBackWith(int cap)
{
    return cap == 6 ? Mark::Left : cap == 10 || cap == 16 ? Mark::Right : Mark::None;
}

} // namespace

KeyLocatedEffects::KeyLocatedEffects(Furniture &usedFurniture, Wardrobe &usedWardrobe,
                                     Game &usedGame, SoundPlayer &soundPlayer,
                                     Instructor &virtualInstructor)
    : furniture(usedFurniture),
      wardrobe(usedWardrobe),
      game(usedGame),
      player(soundPlayer),
      instructor(virtualInstructor)
{}

KeyLocatedEffects::~KeyLocatedEffects() = default;

void KeyLocatedEffects::loadKestraxKeyboardGame(const QString &path, QSize size, int speed)
{
    explosionOff();
    finishedGifPath = path;
    gifSize = size;
    movieSpeed = speed;
}

void KeyLocatedEffects::setMovieSpeed(int percent)
{
    movieSpeed = percent;
    stopAllMovies();
}

// The picture may have been changed since the last burst.
QMovie &KeyLocatedEffects::movie(int index)
{
    auto &each = movieList[static_cast<size_t>(index)];
    if (!each)
        each = std::make_unique<QMovie>();
    if (each->state() == QMovie::NotRunning)
        openMovie(*each, finishedGifPath, gifSize);
    each->setSpeed(movieSpeed);
    return *each;
}

void KeyLocatedEffects::stopAllMovies()
{
    for (const auto &each : movieList) {
        if (each)
            each->stop();
    }
}

// ---- bursts

void KeyLocatedEffects::burst(Keys::Place place, int index)
{
    QLabel *pulsate = furniture.widgets.burst(place);
    QMovie &burstMovie = movie(index);
    // Over all keys, and under an open panel.
    pulsate->stackUnder(furniture.ui.optionsShield);
    pulsate->show();
    pulsate->setMovie(&burstMovie);
    burstMovie.start();
}

void KeyLocatedEffects::endBurst(Keys::Place place, int index)
{
    furniture.widgets.burst(place)->hide();
    if (const auto &each = movieList[static_cast<size_t>(index)])
        each->stop();
}

void KeyLocatedEffects::showCaps(int first, int last)
{
    for (int cap = first; cap <= last; ++cap) {
        furniture.presence.giveBack(Keys::Place::ofCap(cap));
        moveBack(cap);
    }
    emit returned();
}

void KeyLocatedEffects::showMark(int cap)
{
    const Mark mark = markBackWith(cap);
    if (mark != Mark::None)
        (mark == Mark::Left ? furniture.ui.underScoreLeft : furniture.ui.underScoreRight)->show();
}

// Of a key that is back: the picture of keys at rest, if there is one.
void KeyLocatedEffects::showImage(Keys::Place place)
{
    QLabel *image = furniture.widgets.image(place);
    if (wardrobe.images.keys.isOn())
        wardrobe.images.keys.layOn(image);
    image->setVisible(wardrobe.images.keys.isOn());
}

// The key of a hides its picture while b bursts, and nobody else would bring it back.
void KeyLocatedEffects::showImageAfterBurst(Keys::Place place)
{
    constexpr auto ofA = Keys::Place::ofCap(1), ofB = Keys::Place::ofCap(2);
    showImage(place);
    if (place == ofB && !furniture.presence.isTaken(ofA))
        showImage(ofA);
}

// A picture on a key waits at the mirror of its place, left of the window.
void KeyLocatedEffects::moveAside(int cap)
{
    const QPoint home = furniture.widgets.background(cap)->pos();
    furniture.widgets.image(cap)->move(-home.x(), home.y());
}

void KeyLocatedEffects::moveBack(int cap)
{
    furniture.widgets.image(cap)->move(furniture.widgets.background(cap)->pos());
}

void KeyLocatedEffects::locatedKey()
{
    const int index = game.target();
    if (!game.kestrixKeyboardOn || index < 0)
        return;
    if (game.choice.direction() == Direction::Random)
        gameOnRandom(Keys::fromIndex(index));
    else
        gameOn(Keys::fromIndex(index));
}

void KeyLocatedEffects::gameOn(int key)
{
    const int cap = Keys::cap(key);
    // The judge signals the last entry of a Reverse game twice.
    if (!furniture.widgets.burst(Keys::Place::ofCap(cap))->isHidden())
        return;
    furniture.presence.take(Keys::Place::ofCap(cap));
    const Mark mark = markGoneWith(Keys::index(key), false);
    if (mark != Mark::None)
        (mark == Mark::Left ? furniture.ui.underScoreLeft : furniture.ui.underScoreRight)->hide();
    burst(Keys::Place::ofCap(cap), Keys::index(key));
    const Choice now{game.choice.direction(), game.choice.keySet()};
    generation.after(burstMs, [this, key, now] { explosionHidePulse(key, now); });
    player.play(wardrobe.sounds.locatedAudio());
    moveAside(cap);
}

void KeyLocatedEffects::explosionHidePulse(int key, Choice then)
{
    endBurst(Keys::Place::ofKey(key), Keys::index(key));
    const bool forward = then.direction == Direction::Forward;
    const bool reverse = then.direction == Direction::Reverse;
    const Keys::Set set = then.set;
    const auto waveLater = [this](auto play) { generation.after(waveAfterMs, play); };
    const auto letters = [this] {
        std::array<int, 26> caps;
        for (int i = 0; i < 26; ++i)
            caps[static_cast<size_t>(i)] = i + 1;
        wave(caps);
    };
    const Keys::Range range = Keys::range(set);
    const bool last = (forward && key == range.last) || (reverse && key == range.first);
    if (last && (set == Keys::Set::Lowercase || set == Keys::Set::Uppercase)) {
        waveLater(letters);
    } else if (last && set == Keys::Set::NumberLine) {
        waveLater([this, forward] {
            std::vector<int> caps(std::begin(numberLine), std::end(numberLine));
            if (!forward)
                std::reverse(caps.begin(), caps.end());
            wave(caps);
        });
    } else if ((forward && key == 26) || (reverse && key == 27 && set == Keys::Set::Everything)) {
        // A row that is done comes back as the next begins.
        showCaps(1, 26);
    } else if ((forward && key == 65) || (reverse && key == 66)) {
        showCaps(27, 39);
    } else if ((forward && key == 86) || (reverse && key == 87)) {
        showCaps(40, 47);
    }
}

template <class Caps>
void KeyLocatedEffects::wave(const Caps &caps)
{
    int ms = 0;
    for (const int cap : caps) {
        ms += game.endGameStep;
        generation.after(ms, [this, cap] { playPulse(Keys::Place::ofCap(cap)); });
    }
}

void KeyLocatedEffects::playPulse(Keys::Place place)
{
    burst(place, place.index());
    generation.after(burstMs, [this, place] { hidePulseShowKey(place); });
}

void KeyLocatedEffects::hidePulseShowKey(Keys::Place place)
{
    endBurst(place, place.index());
    furniture.presence.giveBack(place);
    if (!place.isCap()) {
        showImage(place);
        return;
    }
    moveBack(place.cap());
    // One pixel beside its home, as this picture has always come back from a wave.
    if (place == Keys::Place::ofCap(1))
        furniture.widgets.image(place)->move(furniture.widgets.image(place)->pos() - QPoint(1, 0));
    showMark(place.cap());
    emit returned();
}

void KeyLocatedEffects::gameOnRandom(int key)
{
    const int cap = Keys::cap(key);
    game.randomFlagList[static_cast<size_t>(Keys::index(key))] = true;
    furniture.widgets.image(cap)->hide();
    furniture.presence.take(Keys::Place::ofCap(cap));
    const Mark mark = markGoneWith(Keys::index(key), true);
    if (mark != Mark::None)
        (mark == Mark::Left ? furniture.ui.underScoreLeft : furniture.ui.underScoreRight)->hide();
    burst(Keys::Place::ofCap(cap), cap - 1); // both characters of a cap share one movie
    generation.after(burstMs, [this, cap] { hidePulseShowKeyRan(cap); });
    player.play(wardrobe.sounds.locatedAudio());
}

void KeyLocatedEffects::hidePulseShowKeyRan(int cap)
{
    for (const int key : {Keys::unshifted(cap), Keys::shifted(cap)})
        game.randomFlagList[static_cast<size_t>(Keys::index(key))] = false;
    endBurst(Keys::Place::ofCap(cap), cap - 1);
    furniture.presence.giveBack(Keys::Place::ofCap(cap));
    showImageAfterBurst(Keys::Place::ofCap(cap));
    showMark(cap);
    emit returned();
}

// ---- the end

void KeyLocatedEffects::gameEnded()
{
    if (!game.kestrixKeyboardOn || game.choice.keySet() != Keys::Set::Everything)
        return;
    for (const At &row : closingShow)
        generation.after(row.ms,
                         [this, row] { explosionOther(Keys::Place::ofControl(row.control)); });
    generation.after(messMs, [this] { instructor.whatAMess(); });
    generation.after(allInMs, [this] { gameAllIn(); });
}

void KeyLocatedEffects::explosionOther(Keys::Place place)
{
    furniture.presence.take(place);
    burst(place, place.index());
    generation.after(burstMs, [this, place] { endBurst(place, place.index()); });
    player.play(wardrobe.sounds.locatedAudio());
    furniture.widgets.image(place)->hide();
}

void KeyLocatedEffects::gameAllIn()
{
    for (const FadeLists::Step &row : FadeLists::columnWave())
        generation.after(row.step, [this, row] { playPulse(row.place); });
}

// Most calls find nothing away, and a picture of another state may lie on a key that is lit.
void KeyLocatedEffects::explosionOff()
{
    generation.end();
    stopAllMovies();
    bool wasAway = false;
    for (const Keys::Place place : Keys::places) {
        furniture.widgets.burst(place)->hide();
        if (!furniture.presence.isTaken(place))
            continue;
        wasAway = true;
        furniture.presence.giveBack(place);
        showImageAfterBurst(place);
    }
    for (int cap = 1; cap <= Keys::capCount; ++cap)
        moveBack(cap);
    game.randomFlagList.fill(false);
    furniture.ui.underScoreLeft->show();
    furniture.ui.underScoreRight->show();
    if (wasAway)
        emit returned();
}
