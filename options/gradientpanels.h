#pragma once

#include <QObject>
#include <array>

class Dresser;
class MouseTable;
class OptionForms;
class QAbstractButton;
class QCheckBox;
class QSlider;
class QSpinBox;
class QRadioButton;
class Looks;
class QWidget;
struct Wardrobe;
struct Look;

// The color panels of the Advanced Options: shape, stop, border width, swap and swatches. They
// rebuild the fragments of a look from its colors and repaint what shows it. A panel works on the
// background or on the border of its look, by its pair of radio buttons.
class GradientPanels : public QObject
{
    Q_OBJECT

public:
    enum Panel {
        Key,
        Keypress,
        Mouseover,
        Highlight,
        Finished,
        Line,
        Wallpaper,
        Paint,
        GamePlay,
    };
    static constexpr int panelCount = 9;

    GradientPanels(Wardrobe &usedWardrobe, Dresser &usedDresser, const OptionForms &optionForms,
                   MouseTable &mouse);

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
    QWidget *swatch(int picker) const;

    // Puts the look of the boxes on those that the panel works on.
    void putOnBoxes();
    // A border that is painted with must have some width to be seen.
    void giveBrushWidth();

    Look &look(Panel panel) const; // any but Line
    static Look *lookIn(Looks &looks, Panel panel);

    // What the panels with more than one target work on.
    bool worksOnVertical() const;
    bool worksOnHorizontal() const;
    bool worksOnMatch() const; // Match This
    bool worksOnUser() const;  // Your Entry
    bool paintsText() const;
    bool paintsUppercase() const;

private:
    struct Controls
    {
        QSlider *shape;
        QSlider *stop;
        std::array<QWidget *, 6> boxes; // of the shapes
        QAbstractButton *swap;
        int mainPicker, gradientPicker;
        QAbstractButton *background = nullptr; // null: no choice
        QAbstractButton *border = nullptr;
        QSlider *width = nullptr; // null: no border
        QSpinBox *spin = nullptr;
        int widest = 0; // px
    };

    static std::array<Controls, panelCount> controlsOf(const OptionForms &forms);
    void connectPanel(Panel panel, MouseTable &mouse);
    void shapeChosen(Panel panel);
    void stopMoved(Panel panel, int position);
    void widthChanged(Panel panel, int width);
    void showWidth(Panel panel);
    void swapColors(Panel panel);
    void buildLines();
    void dressSwatches(Panel panel);
    const Controls &of(Panel panel) const { return controls[panel]; }

    Wardrobe &wardrobe;
    Dresser &dresser;
    const OptionForms &forms;
    const std::array<Controls, panelCount> controls;
};
