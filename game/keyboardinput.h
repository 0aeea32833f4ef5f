#pragma once

#include "keys.h"

#include <QHash>
#include <array>

class Judge;
class KeyFeedback;
class MatchBoxes;
class QKeyEvent;
struct Furniture;
struct Game;

// Takes the key events of the main window to key numbers: lights the key, writes
// the character into leUser during a game, and hands the entry to the judge, at
// Space in Soft difficulty and after any key in Strict.
class KeyboardInput
{
public:
    KeyboardInput(Furniture &usedFurniture, Game &usedGame, KeyFeedback &keyFeedback,
                  MatchBoxes &matchBoxes, Judge &gameJudge);

    void pressed(const QKeyEvent &event);
    void released(const QKeyEvent &event);

private:
    void type(int key);
    void putBack(int cap);

    Furniture &furniture;
    Game &game;
    KeyFeedback &feedback;
    MatchBoxes &boxes;
    Judge &judge;
    // By cap, as the player may choose Flash while a key is held down.
    std::array<bool, Keys::capCount> litUntilRelease{};
    // By the scan code of the key that lit it, from 1. Released after Shift or AltGr, the same key
    // gives another character on many layouts: Shift and 7 give a slash in German.
    QHash<quint32, int> capLitBy;
};
