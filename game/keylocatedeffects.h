#pragma once

#include "gamechoice.h"
#include "sequence.h"

#include <QObject>
#include <QSize>
#include <QString>
#include <array>
#include <memory>

class Instructor;
class QMovie;
class SoundPlayer;
struct Furniture;
struct Game;
struct Wardrobe;

// The Kestrix Keyboard: a moving picture bursts on a key that was located and takes the key
// with it; once the set is done, all keys come back in a wave of the same picture. In a Random
// game a key comes back at the end of its own burst. What follows a burst belongs to the game
// that it was part of, whatever is chosen meanwhile, until Start, Stop or another effect ends it.
class KeyLocatedEffects : public QObject
{
    Q_OBJECT

public:
    KeyLocatedEffects(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
                      SoundPlayer &soundPlayer, Instructor &virtualInstructor);
    ~KeyLocatedEffects() override;

    // Hands the bursts their picture: a GIF in px (invalid: as it is), at a speed in percent. Those
    // in flight end.
    void loadKestraxKeyboardGame(const QString &path, QSize size, int speed);
    void setMovieSpeed(int percent);

    // A key was located; nothing happens without an effect.
    void locatedKey();
    // A game was played to its end.
    void gameEnded();
    // Start, Stop and another effect: all keys come back at once.
    void explosionOff();

signals:
    void returned(); // keys: the target among them is highlighted again

private:
    struct Choice // as it was when a burst began
    {
        Direction direction;
        Keys::Set set;
    };
    void gameOn(int key);
    void gameOnRandom(int key);
    void explosionHidePulse(int key, Choice then);
    void explosionOther(Keys::Place place);
    void playPulse(Keys::Place place);
    void hidePulseShowKey(Keys::Place place);
    void hidePulseShowKeyRan(int cap);
    template <class Caps>
    void wave(const Caps &caps);
    void gameAllIn();

    void burst(Keys::Place place, int movie);
    void endBurst(Keys::Place place, int movie);
    void showCaps(int first, int last);
    void showMark(int cap);
    void showImage(Keys::Place place);
    void showImageAfterBurst(Keys::Place place);
    void moveAside(int cap); // 1 to 47
    void moveBack(int cap);
    QMovie &movie(int index); // 0 to 93
    void stopAllMovies();

    Furniture &furniture;
    Wardrobe &wardrobe;
    Game &game;
    SoundPlayer &player;
    Instructor &instructor;
    std::array<std::unique_ptr<QMovie>, Keys::count> movieList; // built when they first burst
    Generation generation{this};
    QString finishedGifPath; // what bursts
    QSize gifSize;           // px, invalid: as it is
    int movieSpeed = 100;    // percent
};
