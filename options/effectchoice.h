#pragma once

#include "refusal.h"
#include "seenmovies.h"

#include <QMovie>
#include <QObject>
#include <QSize>
#include <vector>

class FadeEngine;
class FileChoice;
class KeyLocatedEffects;
class MouseTable;
class OptionForms;
class QAbstractButton;
class QLabel;
class Thumbnails;
class Timers;
struct Game;
struct Wardrobe;

namespace Ui {
class kestrixKeyboardPanel;
}

// The panel Kestrix Keyboard: what happens to a key that was located. A game has one effect, a
// fade or a moving picture, and exactly one radio button is lit.
class EffectChoice : public QObject
{
    Q_OBJECT

public:
    EffectChoice(Wardrobe &usedWardrobe, Game &usedGame, KeyLocatedEffects &keyLocatedEffects,
                 FadeEngine &fadeEngine, const OptionForms &optionForms, FileChoice &fileChoice,
                 Thumbnails &thumbnails, MouseTable &mouse, Timers &windowTimers);

    void finishedUploaded(); // the player's own
    void clearMovies();      // none

    void openImageFinished_Function();
    void clearKestrexKeyboardImage_function();
    void setMovieSpeed();

    // The panel's sample fades every 5 s while it can be seen.
    void startFade();
    void stopFade();

private:
    struct Row
    {
        QAbstractButton *radio;
        QLabel *thumbnail;
        bool thumbnailChooses; // a click on it; the others ask for a sound
        const char *gif;
        QSize size;         // px
        int clearUserDelay; // ms; its number is also the speed of the bursts in percent
        int thumbnailSpeed; // percent
        const char *sound;
    };

    // A fade that is chosen goes.
    void choose(const Row &row);
    void choose(const QString &path, QSize size, const QString &sound);
    // The uploaded picture as it is or shrunk, by the radio buttons; also to the bursts.
    QSize uploadedSize() const;
    void showUploaded();
    void fadeSample();

    Wardrobe &wardrobe;
    Game &game;
    KeyLocatedEffects &bursts;
    FadeEngine &fades;
    const Ui::kestrixKeyboardPanel &form;
    FileChoice &fileChoice;
    Timers &timers;
    const std::vector<Row> effects; // that come with the program
    QMovie preview;
    Refusal refusal;
    SeenMovies seen;
    QString uploadedGif;
    QSize fitSize; // px, of the uploaded picture
    int fadeTimerId = 0;
};
