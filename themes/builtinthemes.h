#pragma once

#include <QObject>

class GradientPanels;
class MouseTable;
struct Board;

// The three ready-made looks of the keys, which a click on a sample key chooses.
class BuiltInThemes : public QObject
{
    Q_OBJECT

public:
    BuiltInThemes(Board &usedBoard, GradientPanels &gradientPanels);

    // Once the panels stand in the window.
    void attach(MouseTable &mouse);

    void border_function(int theme);     // 1 to 3
    void background_function(int theme); //

private:
    // The first look at the border after a choice takes the theme's border gradient.
    void borderShown();

    Board &board;
    GradientPanels &panels;
    int pendingTheme = 0; // 0: none
};
