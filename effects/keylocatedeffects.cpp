#include "keylocatedeffects.h"

#include "board.h"
#include "fadelists.h"
#include "filechoice.h"
#include "instructor.h"
#include "keyaudio.h"
#include "mousetable.h"
#include "picture.h"
#include "sequence.h"
#include "ui_tambrel.h"

#include <QButtonGroup>
#include <QMovie>

namespace {

constexpr int burstMs = 900;
constexpr int loadMs = 1400; // from Close until the bursts have the new picture
constexpr int waveAfterMs = 2000;
constexpr int messMs = 7000;
constexpr int allInMs = 8000;
constexpr int previewWidth = 96; // px

// How the control keys go at the end of a game with all keys: milliseconds and places.
struct At
{
    int ms;
    int place;
};
constexpr At closingShow[] = {{3000, 49}, {3200, 50}, {3400, 52}, {3600, 54},
                              {3800, 53}, {4000, 51}, {4200, 48}};

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

struct KeyLocatedEffects::Effect
{
    const char *radio;
    const char *gif;
    QSize size;         // px
    int clearUserDelay; // ms
    const char *sound;
};

const KeyLocatedEffects::Effect KeyLocatedEffects::effects[] = {
    {"explosion", "explodeAll2", {96, 90}, 300, "explosion1"},
    {"butterfly", "butterfly1", {96, 76}, 100, "silence"},
    {"birdsdancing", "birdsdance2", {96, 60}, 100, "silence"},
    {"angryE", "angryEmotion2", {96, 60}, 100, "machineGun2"},
};

KeyLocatedEffects::KeyLocatedEffects(Board &usedBoard, SoundPlayer &soundPlayer, KeyAudio &keyAudio,
                                     Instructor &virtualInstructor, QWidget &mainWindow)
    : board(usedBoard),
      player(soundPlayer),
      audio(keyAudio),
      instructor(virtualInstructor),
      window(mainWindow),
      preview(std::make_unique<QMovie>())
{}

KeyLocatedEffects::~KeyLocatedEffects() = default;

void KeyLocatedEffects::attach(MouseTable &mouse)
{
    const PanelWidgets &widgets = board.panelWidgets;
    const auto onClick = [&](const char *name, void (KeyLocatedEffects::*slot)()) {
        connect(widgets.button(name), &QAbstractButton::clicked, this, slot);
    };
    onClick("explosion", &KeyLocatedEffects::finishedExplosion);
    onClick("butterfly", &KeyLocatedEffects::finishedButterfly);
    onClick("birdsdancing", &KeyLocatedEffects::finishedBirdsDancing);
    onClick("angryE", &KeyLocatedEffects::finishedAngryE);
    onClick("useUploaded", &KeyLocatedEffects::finishedUploaded);
    onClick("finishedNone", &KeyLocatedEffects::clearMovies);
    onClick("fadeOut", &KeyLocatedEffects::clearMovies);
    onClick("fadeOutIn", &KeyLocatedEffects::clearMovies);
    for (const char *speed : {"speed1", "speed2", "speed3"})
        onClick(speed, &KeyLocatedEffects::setMovieSpeed);
    onClick("openImageFinished", &KeyLocatedEffects::openImageFinished_Function);
    onClick("clearKestrexKeyboardImage", &KeyLocatedEffects::clearKestrexKeyboardImage_function);
    onClick("normalSizeEK", &KeyLocatedEffects::normalSizeEK_function);
    onClick("setToFitEK", &KeyLocatedEffects::setToFitEK_function);
    const auto press = [this](const char *radio, void (KeyLocatedEffects::*slot)()) {
        return MouseTable::Row{{}, {}, [this, radio, slot] {
                                   board.panelWidgets.button(radio)->setChecked(true);
                                   (this->*slot)();
                               }};
    };
    mouse.add(widgets.find("tnButterfly"),
              press("butterfly", &KeyLocatedEffects::finishedButterfly));
    mouse.add(widgets.find("tnExplode"), press("explosion", &KeyLocatedEffects::finishedExplosion));
    auto *sample = widgets.find<QLabel>("tnCurrentImage");
    sample->setMovie(preview.get());
    seen.watch(*preview, {sample});
}

// ---- choosing

void KeyLocatedEffects::choose(const Effect &effect)
{
    stopAllMovies();
    gifSize = effect.size;
    board.game.clearUserDelay = effect.clearUserDelay;
    finishChoice(QString(":/new/prefix1/%1.gif").arg(effect.gif),
                 QString(":/new/prefix1/%1.wav").arg(effect.sound));
}

void KeyLocatedEffects::finishChoice(const QString &path, const QString &defaultSound)
{
    finishedGifPath = path;
    const PanelWidgets &widgets = board.panelWidgets;
    board.sounds.locatedAudio =
        widgets.isChecked("applyAudioToPulse") ? audio.pulseAudio() : defaultSound;
    board.game.kestrixKeyboardOn = true;
    board.game.fade = GameState::Fade::None;
    widgets.button("effectNone")->setChecked(true);
}

void KeyLocatedEffects::finishedExplosion()
{
    choose(effects[0]);
}

void KeyLocatedEffects::finishedButterfly()
{
    choose(effects[1]);
}

void KeyLocatedEffects::finishedBirdsDancing()
{
    choose(effects[2]);
}

void KeyLocatedEffects::finishedAngryE()
{
    choose(effects[3]);
}

void KeyLocatedEffects::finishedUploaded()
{
    if (uploadedGifList.isEmpty())
        uploadedGifList.append(":/new/prefix1/blank.gif");
    stopAllMovies();
    gifSize = board.panelWidgets.isChecked("setToFitEK") ? fitSize : QSize();
    finishChoice(uploadedGifList.first(), Sounds::silenceAudio());
}

// Birds Dancing and Angry Emoticon stay checked, as they always have.
void KeyLocatedEffects::clearMovies()
{
    board.game.kestrixKeyboardOn = false;
    explosionOff();
    const PanelWidgets &widgets = board.panelWidgets;
    QButtonGroup *group = widgets.button("finishedNone")->group();
    if (group)
        group->setExclusive(false);
    for (const char *radio : {"explosion", "butterfly", "useUploaded"})
        widgets.button(radio)->setChecked(false);
    widgets.button("finishedNone")->setChecked(true);
    if (group)
        group->setExclusive(true);
}

void KeyLocatedEffects::openImageFinished_Function()
{
    const QStringList files = chooseFiles(window, "Images(*.gif)");
    if (files.isEmpty())
        return;
    uploadedGifList = files;
    openMovie(*preview, files.first());
    preview->jumpToFrame(0);
    fitSize = preview->currentImage().scaledToWidth(previewWidth).size();
    openMovie(*preview, files.first(), fitSize);
    board.panelWidgets.find<QLabel>("tnCurrentImage")->setMovie(preview.get());
    preview->start();
    if (board.panelWidgets.isChecked("useUploaded"))
        finishedUploaded();
}

void KeyLocatedEffects::clearKestrexKeyboardImage_function()
{
    preview->stop();
    board.panelWidgets.find<QLabel>("tnCurrentImage")->clear();
    uploadedGifList.clear();
}

void KeyLocatedEffects::normalSizeEK_function()
{
    if (uploadedGifList.isEmpty())
        return;
    openMovie(*preview, uploadedGifList.first());
    preview->start();
    if (board.panelWidgets.isChecked("useUploaded"))
        finishedUploaded();
}

void KeyLocatedEffects::setToFitEK_function()
{
    if (uploadedGifList.isEmpty())
        return;
    openMovie(*preview, uploadedGifList.first(), fitSize);
    preview->start();
    if (board.panelWidgets.isChecked("useUploaded"))
        finishedUploaded();
}

void KeyLocatedEffects::setMovieSpeed()
{
    const PanelWidgets &widgets = board.panelWidgets;
    for (int step = 1; step <= 3; ++step) {
        if (widgets.isChecked(QString("speed%1").arg(step)))
            movieSpeed = step * 100;
    }
    stopAllMovies();
    preview->setSpeed(movieSpeed);
}

void KeyLocatedEffects::optionsClosing()
{
    if (board.game.kestrixKeyboardOn)
        Sequence::after(loadMs, this, [this] { loadKestraxKeyboardGame(); });
}

void KeyLocatedEffects::loadKestraxKeyboardGame()
{
    stopAllMovies();
    loadedPath = finishedGifPath;
}

// The picture may have been changed since the last burst.
QMovie &KeyLocatedEffects::movie(int index)
{
    auto &each = movieList[static_cast<size_t>(index)];
    if (!each)
        each = std::make_unique<QMovie>();
    if (each->state() == QMovie::NotRunning)
        openMovie(*each, loadedPath, gifSize);
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

void KeyLocatedEffects::burst(int place, int index)
{
    QLabel *pulsate = board.widgets.pulsateList[place - 1];
    QMovie &burstMovie = movie(index);
    pulsate->raise();
    pulsate->show();
    pulsate->setMovie(&burstMovie);
    burstMovie.start();
}

void KeyLocatedEffects::endBurst(int place, int index)
{
    board.widgets.pulsateList[place - 1]->hide();
    if (const auto &each = movieList[static_cast<size_t>(index)])
        each->stop();
}

void KeyLocatedEffects::hideKey(int place)
{
    board.widgets.placeBackground(place)->hide();
    board.widgets.placeText(place)->hide();
    if (place > Keys::capCount)
        return;
    board.widgets.shield(place)->hide();
    board.widgets.upperKeyList[place - 1]->hide();
}

void KeyLocatedEffects::showKey(int place)
{
    board.widgets.placeBackground(place)->show();
    board.widgets.placeText(place)->show();
    if (place > Keys::capCount)
        return;
    board.widgets.shield(place)->show();
    board.widgets.upperKeyList[place - 1]->show();
}

void KeyLocatedEffects::showCaps(int first, int last)
{
    for (int cap = first; cap <= last; ++cap) {
        showKey(cap);
        moveBack(cap);
    }
}

// A picture on a key waits at the mirror of its place, left of the window.
void KeyLocatedEffects::moveAside(int cap)
{
    QLabel *image = board.widgets.image(cap);
    if (image->x() > 0)
        image->move(-image->x(), image->y());
}

void KeyLocatedEffects::moveBack(int cap)
{
    QLabel *image = board.widgets.image(cap);
    if (image->x() < 0)
        image->move(-image->x(), image->y());
}

void KeyLocatedEffects::locatedKey()
{
    const int index = board.widgets.indexOf(board.ui.leMatch->text());
    if (!board.game.kestrixKeyboardOn || index < 0)
        return;
    if (board.choice.direction() == Direction::Random)
        gameOnRandom(Keys::fromIndex(index));
    else
        gameOn(Keys::fromIndex(index));
}

void KeyLocatedEffects::gameOn(int key)
{
    const int cap = Keys::cap(key);
    // The last entry of a Reverse game is told twice.
    if (!board.widgets.pulsateList[cap - 1]->isHidden())
        return;
    hideKey(cap);
    const Mark mark = markGoneWith(Keys::index(key), false);
    if (mark != Mark::None)
        (mark == Mark::Left ? board.ui.underScoreLeft : board.ui.underScoreRight)->hide();
    burst(cap, Keys::index(key));
    Sequence::after(burstMs, this, [this, key] { explosionHidePulse(key); });
    player.play(board.sounds.locatedAudio);
    moveAside(cap);
}

void KeyLocatedEffects::explosionHidePulse(int key)
{
    endBurst(Keys::cap(key), Keys::index(key));
    const bool forward = board.choice.direction() == Direction::Forward;
    const bool reverse = board.choice.direction() == Direction::Reverse;
    const Keys::Set set = board.choice.keySet();
    const auto waveLater = [this](auto play) { Sequence::after(waveAfterMs, this, play); };
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

template <class Places>
void KeyLocatedEffects::wave(const Places &places)
{
    int ms = 0;
    for (const int place : places) {
        ms += board.game.endGameStep;
        Sequence::after(ms, this, [this, place] { playPulse(place); });
    }
}

void KeyLocatedEffects::playPulse(int place)
{
    burst(place, place - 1);
    Sequence::after(burstMs, this, [this, place] { hidePulseShowKey(place); });
}

void KeyLocatedEffects::hidePulseShowKey(int place)
{
    endBurst(place, place - 1);
    showKey(place);
    if (place > Keys::capCount) {
        board.widgets.placeImage(place)->show();
        return;
    }
    moveBack(place);
    const Mark mark = markBackWith(place);
    if (mark != Mark::None)
        (mark == Mark::Left ? board.ui.underScoreLeft : board.ui.underScoreRight)->show();
}

void KeyLocatedEffects::gameOnRandom(int key)
{
    const int cap = Keys::cap(key);
    board.game.randomFlagList[static_cast<size_t>(Keys::index(key))] = true;
    board.widgets.image(cap)->hide();
    hideKey(cap);
    const Mark mark = markGoneWith(Keys::index(key), true);
    if (mark != Mark::None)
        (mark == Mark::Left ? board.ui.underScoreLeft : board.ui.underScoreRight)->hide();
    burst(cap, cap - 1); // both characters of a cap share one movie
    Sequence::after(burstMs, this, [this, cap] { hidePulseShowKeyRan(cap); });
    player.play(board.sounds.locatedAudio);
}

void KeyLocatedEffects::hidePulseShowKeyRan(int cap)
{
    for (const int key : {Keys::unshifted(cap), Keys::shifted(cap)})
        board.game.randomFlagList[static_cast<size_t>(Keys::index(key))] = false;
    endBurst(cap, cap - 1);
    showKey(cap);
    board.widgets.image(cap)->show();
    const Mark mark = markBackWith(cap);
    if (mark != Mark::None)
        (mark == Mark::Left ? board.ui.underScoreLeft : board.ui.underScoreRight)->show();
}

// ---- the end

void KeyLocatedEffects::gameEnded()
{
    if (!board.game.kestrixKeyboardOn || board.choice.keySet() != Keys::Set::Everything)
        return;
    for (const At &row : closingShow)
        Sequence::after(row.ms, this, [this, row] { explosionOther(row.place); });
    Sequence::after(messMs, this, [this] { instructor.whatAMess(); });
    Sequence::after(allInMs, this, [this] { gameAllIn(); });
}

void KeyLocatedEffects::explosionOther(int place)
{
    hideKey(place);
    burst(place, place - 1);
    Sequence::after(burstMs, this, [this, place] { endBurst(place, place - 1); });
    player.play(board.sounds.locatedAudio);
    board.widgets.placeImage(place)->hide();
}

void KeyLocatedEffects::gameAllIn()
{
    for (const FadeLists::Step &row : FadeLists::columnWave())
        Sequence::after(row.step, this, [this, row] { playPulse(row.place); });
}

void KeyLocatedEffects::gameStopped()
{
    if (board.game.kestrixKeyboardOn)
        explosionOff();
}

void KeyLocatedEffects::explosionOff()
{
    for (int place = 1; place <= Keys::pileCount; ++place) {
        board.widgets.pulsateList[place - 1]->hide();
        board.widgets.placeImage(place)->show();
        showKey(place);
    }
    for (int cap = 1; cap <= Keys::capCount; ++cap)
        moveBack(cap);
    board.ui.underScoreLeft->show();
    board.ui.underScoreRight->show();
    stopAllMovies();
    if (!board.images.keys.isOn()) {
        for (QLabel *image : qAsConst(board.widgets.keyImgList))
            image->hide();
    }
}
