#pragma once

#include <QObject>
#include <QPixmap>
#include <array>

struct Furniture;
struct Game;
struct Wardrobe;
class Announcer;
class QLabel;
class Timers;

// The virtual instructor: the messages beside the picture, the picture's blink, the
// two notes that fold, and the three sample letters of the chosen set. It decides
// no rule of the game.
class Instructor : public QObject
{
    Q_OBJECT

public:
    Instructor(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
               Timers &windowTimers);

    // Messages. A pending clearGoodJob may clear a later text early.
    void say(const QString &message);
    void clearGoodJob();
    void clearGoodJobAfter(int ms);
    void clearDis3();
    void wouldYouLikeToPlayAgain(); // unless the next game runs already
    void whatAMess();
    void insMessages();
    void showLetterHint();
    void warnOfFadeInRandom(const QString &warning);
    // In Soft, once a game, when an entry waits for Space: asked each second of a game.
    void remindOfSpace();

    // Notes.
    void hideInsLeft();
    void hideInsRight();

    // Sample.
    void set_dem_Text();
    void set_dem_StyleSheet();

    // Picture. The timer ticks each second of a game; each 20 s he looks up for 6 s.
    void startChebTimer();
    void killChebTimer();
    // Turns the picture five times by 45 degrees; nothing in the window asks for it.
    void startRotate();
    void stopRotate();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum Picture { Down, Middle, Up };
    void show(Picture picture);
    void chebTick();
    void rotateTick();
    void fitPlates();
    std::array<QLabel *, 3> sampleLetters() const;

    Furniture &furniture;
    Wardrobe &wardrobe;
    Game &game;
    Timers &timers;
    Announcer *announcer;
    std::array<QPixmap, 3> chebPixmapList;
    int chebTimerId = 0;
    int chebCounter = 0; // seconds of the game
    int entriesSeen = 0; // of the game's, a second ago
    int secondsWaited = 0;
    bool remindedOfSpace = false;
    int rotateTimerId = 0;
    int rotateCount = 0;
    bool insLeftFlag = true;
    bool insRightFlag = true;
};
