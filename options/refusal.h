#pragma once

class Announcer;
class QLabel;

// Says in a panel, and to a screen reader, that the file which the player named cannot be used.
class Refusal
{
public:
    // A label of the panel with the words, which lies over a hint.
    explicit Refusal(QLabel &words);

    // False takes the words away.
    void show(bool refused);

private:
    QLabel &label;
    Announcer *announcer;
};
