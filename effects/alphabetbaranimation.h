#pragma once

struct Board;

// The light that runs along the Alphabet Bar when a game is chosen, and the radio
// buttons that switch it. Which cells it visits and when is GameSelection's.
class AlphabetBarAnimation
{
public:
    explicit AlphabetBarAnimation(Board &usedBoard);

    // Lights the cell of a key (1 to 94, others are ignored). changeColorBack puts it back.
    void labelAnimate(int number);

    void animationOn_function();
    void animationOff_function();

    // During a game the wave is off and its switch is grey.
    void lock();
    void unlock();

private:
    Board &board;
};
