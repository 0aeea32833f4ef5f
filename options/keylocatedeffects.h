#pragma once

#include "gamechoice.h"
#include "seenmovies.h"
#include "sequence.h"

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
// game a key comes back at the end of its own burst. What follows a burst belongs to the game
// that it was part of, whatever is chosen meanwhile, until Start, Stop or another effect ends it.
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
    void normalSizeEK_function() { showUploaded(); }
    void setToFitEK_function() { showUploaded(); }
    void setMovieSpeed();
    // Hands the chosen picture to the bursts.
    void loadKestraxKeyboardGame();

    // A key was located; nothing happens without an effect.
    void locatedKey();
    // A game was played to its end.
    void gameEnded();
    // Start and Stop: all keys come back at once.
    void explosionOff();

signals:
    void chosen();   // an effect, so no fade
    void returned(); // keys: the target among them is highlighted again

private:
    struct Effect;
    static const Effect effects[];
    struct Game // as it was chosen when a burst began
    {
        Direction direction;
        Keys::Set set;
    };
    void choose(const Effect &effect);
    // The uploaded picture as it is or shrunk, by the radio buttons; also to the bursts.
    QSize uploadedSize() const;
    void showUploaded();
    void finishChoice(const QString &path, const QString &defaultSound);
    void gameOn(int key);
    void gameOnRandom(int key);
    void explosionHidePulse(int key, Game game);
    void explosionOther(int place);
    void playPulse(int place);
    void hidePulseShowKey(int place);
    void hidePulseShowKeyRan(int cap);
    template <class Places>
    void wave(const Places &places);
    void gameAllIn();

    void burst(int place, int movie);
    void endBurst(int place, int movie);
    void showCaps(int first, int last);
    void showMark(int cap);
    void showImage(int place);
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
    Generation generation{this};
    QString finishedGifPath; // what bursts
    QSize gifSize;           // px, invalid: as it is
    QSize fitSize;           // of the uploaded picture
    int movieSpeed = 100;    // percent
    QStringList uploadedGifList;
};
