#pragma once

#include <QObject>

class Instructor;
class KeyFeedback;
class MatchBoxes;
class MatchSession;
class ScoreBoard;
struct Furniture;
struct Game;
struct Wardrobe;

// Compares the entry in leUser with the target in leMatch, moves the target on,
// counts, marks finished keys, and ends the game. Only the function of the chosen
// direction may run. A target that the direction does not expect is not judged. Another set
// may be chosen in mid-game: a game also ends where that set has no more characters to give.
class Judge : public QObject
{
    Q_OBJECT

public:
    Judge(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
          KeyFeedback &keyFeedback, MatchSession &matchSession, ScoreBoard &counts,
          MatchBoxes &matchBoxes, Instructor &virtualInstructor);

    void forwardMG();
    void reverseMG();
    void randomMG();
    // The functions above in the order Random, Forward, Reverse, each tested anew: what the
    // entry key does in Soft and any key in Strict.
    void judgeEntry();

    void forwardIsKeyPressed();
    void reverseIsKeyPressed();

    void clearUser();

signals:
    void bursting();     // the target was located and has not changed yet: its effect
    void fading();       // likewise, its fade
    void leaving();      // the target is about to change: its highlights go
    void moved();        // the new target stands: its highlights come
    void finished();     // the last character of a Forward or Reverse game was matched
    void randomEnding(); // leMatch holds the last entry again

private:
    bool expects(int index) const;
    // Whether the entry that is being judged is the last of its game.
    bool endsGame(int nextIndex) const;
    bool entryMatches() const;
    void countWrong();
    void countRight();
    void showProgress();
    void closeGame(int closingFigure);
    void finishLastKey();
    void paintFinished(int key, int targetIndex);

    Furniture &furniture;
    Wardrobe &wardrobe;
    Game &game;
    KeyFeedback &feedback;
    MatchSession &session;
    ScoreBoard &scoreBoard;
    MatchBoxes &boxes;
    Instructor &instructor;
};
