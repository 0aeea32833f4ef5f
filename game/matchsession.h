#pragma once

#include <QObject>

class AlphabetBarAnimation;
class DisplayModes;
class Instructor;
class MatchBoxes;
class MouseTable;
class ScoreBoard;
struct Furniture;
struct Game;
struct Wardrobe;

// Starts and ends a Match Game and switches its difficulty. The signals mark the
// steps at which rooms that the session does not know have their turn.
class MatchSession : public QObject
{
    Q_OBJECT

public:
    MatchSession(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
                 ScoreBoard &counts, MatchBoxes &matchBoxes, DisplayModes &displayModes,
                 AlphabetBarAnimation &barAnimation, Instructor &virtualInstructor);

    void addMouseRows(MouseTable &mouse);

    // Start runs both, then the clock.
    void matchGameEnable();
    void matchGameChooser();
    // Stop. The score stays on view.
    void matchGameDisable();

    void changeDifficultySoft();
    void changeDifficultyStrict();

    void clears();

    // Draws the next target of a Random game. Nothing seeds rand(), so every run of the
    // program draws the same sequence. If 100,001 tries find no target, the old one stays.
    void drawRandomTarget();

    // The last character of a game was matched.
    void endGame();

signals:
    void clearing(); // Start: what effects still do to the keys ends, and all keys come back
    void stopping(); // Stop: keys that effects took away come back
    void stopped();  // the highlights go, with their flags still set
    void started();

private:
    void setTarget(int index);
    void disable();
    void restoreImages();
    void changeDifficulty(bool strict);
    void setStartColors(const char *start, const char *stop);

    Furniture &furniture;
    Wardrobe &wardrobe;
    Game &game;
    ScoreBoard &scoreBoard;
    MatchBoxes &boxes;
    DisplayModes &modes;
    AlphabetBarAnimation &animation;
    Instructor &instructor;
};
