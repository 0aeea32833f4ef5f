#pragma once

#include "fadelists.h"
#include "sequence.h"

#include <QObject>
#include <array>

class QLabel;
class QWidget;
struct Furniture;
struct Game;
struct Wardrobe;
struct ShadowGroup;

// Lets located keys fade away and come back. A newer fade on the same key takes the
// place of one in flight. Steps to come belong to the game and the effect that armed them:
// Start, Stop and a new choice end them and see to it that no key stays away.
class FadeEngine : public QObject
{
    Q_OBJECT

public:
    FadeEngine(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame);

    void fadeIn(Keys::Place place);
    void fadeOut(Keys::Place place);
    void fadeInShadow(Keys::Place place);

    // The target was located, and has not moved yet; nothing without a fade chosen.
    void locatedKey();
    void startGraphicsEffects();
    // A game was stopped: what faded away in it comes back, key by key.
    void gameStopped();
    void fadeOutReset();
    // A new game, another effect: what is away comes back at once.
    void bringBack();
    void play(const FadeLists::Steps &steps);

    // The choice among Fade Out, Fade Out/In and None.
    void fadeOut_function();
    void fadeInOut_function();
    void clearFade();

    // A widget of the size of a key, alone.
    void fade(QWidget *widget, bool in);
    static constexpr int comesBackMs = 1100; // from a fade out to the fade in of the same key

    // Shadows come with a sweep and go again after 7.5 s.
    void shadow3dpart2();

signals:
    void shadowsBack(bool on); // after fades, from now on

private:
    void fadePlace(Keys::Place place, bool in);
    void fadeLabels(Keys::Place place, const std::function<void(QLabel *)> &action) const;
    void choose(GameState::Fade fade);
    void putShadowsBack(bool on);
    void showShadow(QLabel *label, const ShadowGroup &group);

    Furniture &furniture;
    Wardrobe &wardrobe;
    Game &game;
    Generation generation{this};
    // By place: how often it has faded, so that a late shadow meets the fade it belongs to.
    std::array<int, Keys::placeCount> fadeCount{};
};
