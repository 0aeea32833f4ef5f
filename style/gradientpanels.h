#pragma once

#include <QObject>
#include <map>

class Instructor;
class KeyFeedback;
class MatchBoxes;
class MouseTable;
class QAbstractButton;
class QSlider;
class QSpinBox;
class QWidget;
class TargetHighlights;
struct Board;
struct Look;

// The colour panels of the Advanced Options: shape, stop, border width and swap. They rebuild
// the fragments of a look from its colours and repaint what shows it. A panel works on the
// background or on the border of its look, by its pair of radio buttons.
class GradientPanels : public QObject
{
    Q_OBJECT

public:
    // The numbers are those in the names of the controls.
    enum Panel {
        Key = 1,
        Keypress,
        Mouseover,
        Highlight,
        Finished,
        Line,
        Wallpaper,
        Paint,
        GamePlay = 27
    };

    GradientPanels(Board &usedBoard, KeyFeedback &keyFeedback, MatchBoxes &matchBoxes,
                   Instructor &virtualInstructor, TargetHighlights &targetHighlights);

    // Once the panels stand in the window; until then there is nothing to work on.
    void attach(MouseTable &mouse);

    // Rebuilds the fragment that the panel works on, and repaints its preview.
    void grad(Panel panel);

    // The panel's target and shape as its controls say.
    bool worksOnBorder(Panel panel) const;
    int shape(Panel panel) const; // 0 to 5
    // Puts the controls to what was last chosen for the background or the border.
    void showBackground(Panel panel);
    void showBorder(Panel panel);

    // The 54 keys and the 94 cells of the bar in the key look, without their texts.
    void dressKeys();
    void dressBar();
    // The samples of the key look in the panels and on A Key's Map.
    void dressKeySamples();
    void dressKeyCharacters(bool shifted);
    // A preview letter of the panels, in its size and font.
    void dressCharacter(const char *name, const QString &text, bool shifted);
    // The boxes of the game that the panel works on, with their headers if these are included.
    void dressGamePlay();
    // Their characters likewise.
    void dressGamePlayTexts();
    // The swatches of the characters' colors.
    void dressTextSwatches();
    void dressPreviews(); // with every swatch
    // The samples of cap 1 on A Key's Map and among the options of the lines: the sheet of the
    // background, or the color of a character.
    void dressSampleKeys(const QString &background);
    void dressSampleKeys(const QString &text, bool shifted);
    // Samples and previews take the new shape, and the former what cap 1 was painted with.
    void shapeOfKeysChanged();
    // Finished keys and the highlighted target keep their look after a repaint.
    void bgColorLoops();
    void finishedAgain();

    Look &look(Panel panel) const; // any but Line

    // Which of the lines the panel Line works on.
    bool worksOnVertical() const;
    bool worksOnHorizontal() const;

    int rainbowBorderWidthValue = 0; // px, as the panel Paint has it

private:
    struct Controls
    {
        QSlider *shape = nullptr;
        QSlider *stop = nullptr;
        QSlider *width = nullptr; // null: no border
        QSpinBox *spin = nullptr;
        QAbstractButton *background = nullptr; // null: no choice
        QAbstractButton *border = nullptr;
    };

    void connectPanel(const struct PanelRow &row, MouseTable &mouse);
    void shapeChosen(Panel panel);
    void stopMoved(Panel panel, int position);
    void widthChanged(Panel panel, int width);
    void swapColors(Panel panel);
    void buildLines();
    void dressSwatches(const struct PanelRow &row);
    void dressSample(const char *name, const QString &sheet);
    void goldHighAgain();
    const Controls &of(Panel panel) const { return controls.at(panel); }

    Board &board;
    KeyFeedback &feedback;
    MatchBoxes &boxes;
    Instructor &instructor;
    TargetHighlights &highlights;
    std::map<Panel, Controls> controls;
};
