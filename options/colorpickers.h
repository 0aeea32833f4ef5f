#pragma once

#include "gradientpanels.h"

#include <QColor>
#include <QObject>
#include <memory>
#include <vector>

class Dresser;
class MouseTable;
class QColorDialog;
class QWidget;
struct LineLook;
struct Furniture;
struct Wardrobe;

// The color dialogs that stay open beside the keyboard and repaint it while their color
// changes. A dialog opens with the color that its target has. OK keeps what was seen; Cancel
// brings back what was on the screen and in the fields when the dialog opened, but for the keys
// that were painted meanwhile. A dialog is built when it is first opened: all of them would take
// longer than the start of the rest of the program.
class ColorPickers : public QObject
{
    Q_OBJECT

public:
    // A click on a swatch opens its picker.
    ColorPickers(Furniture &usedFurniture, Wardrobe &usedWardrobe, GradientPanels &gradientPanels,
                 Dresser &usedDresser, const OptionForms &optionForms, MouseTable &mouse,
                 QWidget &window);
    ~ColorPickers() override;

    void enableColor(int number);     // numbers outside 1 to PickerRow::count are ignored
    QColorDialog &dialog(int number); // made when first asked for
    // Keeps the open pickers above the main window.
    void allRise();
    void closeOther();

    // While one of the two painting pickers is open, the mouse paints.
    bool isPainting() const { return paintPickerOpen || paintGradPickerOpen; }

signals:
    // A shadow's check box was checked while the color was chosen; or Cancel puts a color back.
    void shadowColored(int group, const QString &color);
    void closed(); // a second from now the focus goes back to the game

private:
    struct Picker
    {
        std::unique_ptr<QColorDialog> dialog;
        std::unique_ptr<const struct Before> before; // what Cancel returns to
        QColor dragged;                              // not taken yet; invalid: none
    };

    // The mouse tells of more colors than the window can be painted in: the last one counts,
    // once the dialog itself has been painted.
    void drag(int number, const QColor &color);
    void takeDragged(int number);
    // While it is dragged over, or once it is the last.
    void take(int number, const QColor &color, bool last);
    void final(int number, const QColor &color);
    void colorCharacter(int number, const QColor &color, bool last);
    void colorMain(int number, const QColor &color, bool last);
    void colorGradient(int number, const QColor &color);
    void colorLines(bool start, const QColor &color);
    void colorGamePlayText(const QColor &color);
    void colorShadows(int number, const QColor &color);
    void accepted(int number);
    void rejected(int number);
    void keepInFront(QColorDialog &dialog) const;
    QColor target(int number) const;
    void keepPaintFlags(bool border);
    void remember(int number);
    void restore(int number);
    void restoreLines(const LineLook &then, bool main, int shapeThen);
    Picker &picker(int number) { return pickers[static_cast<size_t>(number - 1)]; }

    Furniture &furniture;
    Wardrobe &wardrobe;
    GradientPanels &panels;
    Dresser &dresser;
    const OptionForms &forms;
    QWidget &mainWindow;
    std::vector<Picker> pickers; // by number, from 1
    bool paintPickerOpen = false;
    bool paintGradPickerOpen = false;
};
