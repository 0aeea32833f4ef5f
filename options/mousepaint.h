#pragma once

#include <QObject>

class ColorPickers;
class Dresser;
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
               Dresser &usedDresser, ColorPickers &colorPickers, MouseTable &mouse);

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
    struct Part; // what can be chosen to be painted
    static const Part parts[4];

    struct Painted // by the next stroke
    {
        bool both, border, background;
    };

    Painted painted() const;
    void addKeyRows(MouseTable &mouse);
    void enterCap(int cap);
    void leaveCap(int cap);
    void enterBar(int key);
    void paintCap(int cap);
    void paintBar(int key);
    void paintControl(int textOrderIndex);
    void paintPile(size_t pile, size_t borderedPile);
    void paintBackgrounds(int cap, int key);
    void paintText(int key);
    void paintMark(int cap);
    void lightBackground(int cap);
    void lightText(int key, bool asUpper);
    void choose(const Part &part);
    void chooseGradient(const Part &part);
    void showPart(const Part &part);
    bool isChecked(const char *button) const;

    Board &board;
    KeyFeedback &feedback;
    GradientPanels &panels;
    Dresser &dresser;
    ColorPickers &pickers;
};
