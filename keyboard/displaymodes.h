#pragma once

struct Furniture;
class KeyFeedback;
class MouseTable;

// What the caps show: nothing, the unshifted characters, the shifted ones, or
// both. None lays covers over all caps and hides nothing beneath them, so keys
// go on reacting under it.
class DisplayModes
{
public:
    DisplayModes(Furniture &usedFurniture, KeyFeedback &keyFeedback);

    // The four samples and their captions choose a mode by a press.
    void addMouseRows(MouseTable &mouse);

    // Tambrel stands for the unshifted characters, English for the shifted.
    void displayNone();
    void displayTambrel();
    void displayEnglish();
    void displayBoth();

    // Shows the check mark of the active mode; hides none.
    void displayFlags();

    void phantomLablesShow();
    void phantomLablesHide();

private:
    enum class Mode { None, Tambrel, English, Both };
    void mark(Mode newMode);

    Furniture &furniture;
    KeyFeedback &feedback;
    Mode mode = Mode::Both;
};
