#pragma once

#include "keys.h"

#include <algorithm>
#include <array>

// The fields of a Match Game that several rooms read and write. Nothing here is
// saved; a new game sets what it needs anew (MatchSession::clears).
struct GameState
{
    bool gameRunning = false;
    bool gameFinished = false; // ended by its last character, not by Stop

    int correctCount = 0;
    int incorrectCount = 0;
    int correctStreak = 0; // correct entries in a row

    // letterList index of the target, one for each direction.
    int forwardIndex = 0;
    int reverseIndex = 93;
    int randomIndex = 0;

    int gameLength = 94;      // characters of the set: 26, 26, 42 or 94
    int randomEndCount = 200; // correct entries that end a Random game
    int letterNumber = 0;     // letterList index of the last key typed
    int entriesTyped = 0;     // characters written into leUser so far
    int elapsedSeconds = 0;   // what the clock shows

    int keyFlashDelay = 300;   // ms from press to reset in Flash mode
    int clearUserDelay = 100;  // ms from an entry to the clearing of leUser
    int delayStep = 50;        // ms, step of the bar's wave, Forward and Reverse
    int randomDelayStep = 100; // ms, step of the wave in Random
    int endGameStep = 100;     // ms, step of the closing waves

    bool animationEnabled = true;   // a selection may run the wave; false during a game
    bool goldHighFlag = false;      // the Highlight is on
    bool lineHighFlag = false;      // the Lines are on
    bool kestrixKeyboardOn = false; // an effect runs at each located key
    bool fadeRunning = false;       // a key has faded in this game
    enum class Fade { None, Out, OutIn };
    Fade fade = Fade::None; // what happens to a located key
    bool demoFlag = false;  // the tour is over

    // Not "is down": the key was matched in this game and shows the finished look.
    bool isKeyPressed(int key) const { return pressed[Keys::index(key)]; }
    void setKeyPressed(int key) { pressed[Keys::index(key)] = true; }
    bool isAnyKeyPressed() const
    {
        return std::find(pressed.begin(), pressed.end(), true) != pressed.end();
    }
    void isKeyPressedAll() { pressed.fill(false); } // clears all 94

    // The character is bursting in a Random game; its key shows no image meanwhile.
    std::array<bool, Keys::count> randomFlagList{};

private:
    std::array<bool, Keys::count> pressed{};
};
