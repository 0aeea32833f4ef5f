#pragma once

#include <QObject>
#include <map>

class Dresser;
class MouseTable;
class QAbstractButton;
class QSlider;
class QSpinBox;
class Looks;
class QWidget;
struct Board;
struct Look;

// The color panels of the Advanced Options: shape, stop, border width and swap. They rebuild
// the fragments of a look from its colors and repaint what shows it. A panel works on the
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

    GradientPanels(Board &usedBoard, Dresser &usedDresser);

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

    // After a look came from elsewhere: puts every control to what it says, without setting off
    // anything, and the swatches with them.
    void showLooks();
    // A swatch shows the color that its picker would change now.
    void dressSwatches();
    void dressTextSwatches(); // those of characters and shadows

    // Puts the look of the boxes on those that the panel works on.
    void putOnBoxes();
    // A border that is painted with must have some width to be seen.
    void giveBrushWidth();

    Look &look(Panel panel) const; // any but Line
    static Look *lookIn(Looks &looks, Panel panel);

    // Which of the lines the panel Line works on.
    bool worksOnVertical() const;
    bool worksOnHorizontal() const;

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
    void showWidth(Panel panel);
    void swapColors(Panel panel);
    void buildLines();
    void dressSwatches(const struct PanelRow &row);
    const Controls &of(Panel panel) const { return controls.at(panel); }

    Board &board;
    Dresser &dresser;
    std::map<Panel, Controls> controls;
};
