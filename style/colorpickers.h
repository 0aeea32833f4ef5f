#pragma once

#include "gradientpanels.h"

#include <QColor>
#include <QObject>
#include <array>
#include <memory>

class MouseTable;
class QColorDialog;
class QWidget;

// The thirty colour dialogs that stay open beside the keyboard and repaint it while their
// colour changes. OK keeps the colour; Cancel puts back the one that the dialog was opened
// with. A dialog is built when it is first opened: all thirty would take longer than the start
// of the rest of the program.
class ColorPickers : public QObject
{
    Q_OBJECT

public:
    ColorPickers(Board &usedBoard, GradientPanels &gradientPanels, KeyFeedback &keyFeedback,
                 Instructor &virtualInstructor, TargetHighlights &targetHighlights);
    ~ColorPickers() override;

    // Once the panels stand in the window: a click on a swatch opens its picker.
    void attach(MouseTable &mouse);

    static constexpr int count = 30;
    void enableColor(int number);     // numbers outside 1 to 30 are ignored
    QColorDialog &dialog(int number); // 1 to 30; made when first asked for
    // Keeps the open pickers above the main window.
    void allRise();
    void closeOther();

    // While one of the two painting pickers is open, the mouse paints.
    bool isPainting() const { return paintPickerOpen || paintGradPickerOpen; }

signals:
    // A shadow's check box was checked while the colour was chosen.
    void shadowColored(const QString &checkBox, const QString &color);
    void closed(); // a second from now the focus goes back to the game

private:
    struct Picker
    {
        std::unique_ptr<QColorDialog> dialog;
        QColor saved; // what Cancel returns to
        bool accepted = false;
    };

    void live(int number, const QColor &color);
    void final(int number, const QColor &color);
    void colorCharacter(int number, const QColor &color, bool last);
    void refreshCharacters(int number, bool last);
    void colorMain(int number, const QColor &color, bool last);
    void colorGradient(int number, const QColor &color, bool last);
    void colorLines(bool start, const QColor &color);
    void colorGamePlayText(const QColor &color);
    void colorShadows(int number, const QColor &color);
    void accepted(int number);
    void rejected(int number);
    void undoGradient(int number);
    void dressHighlight();
    void keepPaintFlags(bool border);
    void refreshKeySamples();
    Picker &picker(int number) { return pickers[static_cast<size_t>(number - 1)]; }

    Board &board;
    GradientPanels &panels;
    KeyFeedback &feedback;
    Instructor &instructor;
    TargetHighlights &highlights;
    std::array<Picker, count> pickers;
    bool paintPickerOpen = false;
    bool paintGradPickerOpen = false;
};
