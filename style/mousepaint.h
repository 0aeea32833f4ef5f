#pragma once

#include <QObject>

class ColorPickers;
class GradientPanels;
class KeyFeedback;
class MouseTable;
struct Board;

// What the mouse does when it moves over keys and cells of the Alphabet Bar: it lights the
// character in both places, or, while a painting picker is open, paints the key with the
// picker's look. Painted keys keep their paint at rest.
class MousePaint : public QObject
{
    Q_OBJECT

public:
    MousePaint(Board &usedBoard, KeyFeedback &keyFeedback, GradientPanels &gradientPanels,
               ColorPickers &colorPickers, MouseTable &mouse);

    // Once the panels stand in the window.
    void attach(MouseTable &mouse);

    // Choose what is painted, and open the picker for it.
    void rainbowBackground();
    void rainbowBorder_function();
    void rainbowLowercase();
    void rainbowUppercase();
    // The second colour of the gradient.
    void rainbowBackgroundGradient();
    void rainbowBorderGradient_function();

private:
    enum class Target { Background, Border, Lowercase, Uppercase };

    struct Parts // of a key that are painted
    {
        bool both, border, background;
    };

    Parts parts() const;
    void addKeyRows(MouseTable &mouse);
    void enterCap(int cap);
    void leaveCap(int cap);
    void enterBar(int key);
    void paintCap(int cap);
    void paintBar(int key);
    void paintControl(int textOrderIndex);
    void paintBackgrounds(int cap, int key);
    void paintText(int key);
    void paintMark(int cap);
    void lightBackground(int cap);
    void lightText(int key, bool asUpper);
    void choose(Target target);
    bool isChecked(const char *button) const;

    Board &board;
    KeyFeedback &feedback;
    GradientPanels &panels;
    ColorPickers &pickers;
};
