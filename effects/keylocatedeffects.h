#pragma once

#include "keys.h"
#include "seenmovies.h"

#include <QObject>
#include <QSize>
#include <QStringList>
#include <array>
#include <memory>

class Instructor;
class KeyAudio;
class QMovie;
class QWidget;
class SoundPlayer;
struct Board;

// The Kestrix Keyboard: a moving picture bursts on a key that was located and takes the key
// with it; once the set is done, all keys come back in a wave of the same picture. In a Random
// game a key comes back at the end of its own burst.
class KeyLocatedEffects : public QObject
{
    Q_OBJECT

public:
    KeyLocatedEffects(Board &usedBoard, SoundPlayer &soundPlayer, KeyAudio &keyAudio,
                      Instructor &virtualInstructor, QWidget &mainWindow);
    ~KeyLocatedEffects() override;

    // Once the panels stand in the window.
    void attach(class MouseTable &mouse);

    // Choose an effect, or none. A fade that is chosen goes, since a game has one effect.
    void finishedExplosion();
    void finishedButterfly();
    void finishedBirdsDancing();
    void finishedAngryE();
    void finishedUploaded();
    void clearMovies();

    void openImageFinished_Function();
    void clearKestrexKeyboardImage_function();
    void normalSizeEK_function();
    void setToFitEK_function();
    void setMovieSpeed();
    // Hands the chosen picture to the bursts, a while after the options have closed.
    void optionsClosing();
    void loadKestraxKeyboardGame();

    // A key was located; nothing happens without an effect.
    void locatedKey();
    // A game was played to its end, or is being stopped.
    void gameEnded();
    void gameStopped();

private:
    struct Effect;
    static const Effect effects[];
    void choose(const Effect &effect);
    void finishChoice(const QString &path, const QString &defaultSound);
    void gameOn(int key);
    void gameOnRandom(int key);
    void explosionHidePulse(int key);
    void explosionOther(int place);
    void playPulse(int place);
    void hidePulseShowKey(int place);
    void hidePulseShowKeyRan(int cap);
    template <class Places>
    void wave(const Places &places);
    void gameAllIn();
    void explosionOff();

    void burst(int place, int movie);
    void endBurst(int place, int movie);
    void hideKey(int place);
    void showKey(int place);
    void showCaps(int first, int last);
    void moveAside(int cap);
    void moveBack(int cap);
    QMovie &movie(int index); // 0 to 93
    void stopAllMovies();

    Board &board;
    SoundPlayer &player;
    KeyAudio &audio;
    Instructor &instructor;
    QWidget &window;
    std::array<std::unique_ptr<QMovie>, Keys::count> movieList; // built when they first burst
    std::unique_ptr<QMovie> preview;
    SeenMovies seen;
    QString finishedGifPath; // chosen
    QString loadedPath;      // what bursts
    QSize gifSize;           // px, invalid: as it is
    QSize fitSize;           // of the uploaded picture
    int movieSpeed = 100;    // percent
    QStringList uploadedGifList;
};
