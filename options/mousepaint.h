#pragma once

#include "keyhover.h"
#include "painttables.h"

#include <QObject>
#include <QPoint>
#include <array>

class ColorPickers;
class Dresser;
class GradientPanels;
class OptionForms;
class QRadioButton;
struct Furniture;
struct Wardrobe;

namespace Ui {
class colorMadnessPanel;
}

// While a painting picker is open, the keys and cells that the mouse moves over take the
// picker's look and keep it at rest.
class MousePaint : public QObject, public KeyHover::Painter
{
    Q_OBJECT

public:
    MousePaint(Furniture &usedFurniture, Wardrobe &usedWardrobe, GradientPanels &gradientPanels,
               Dresser &usedDresser, ColorPickers &colorPickers, const OptionForms &optionForms,
               KeyHover &keyHover, MouseTable &mouse);
    ~MousePaint() override;

    bool isPainting() const override;
    void paintCap(int cap) override;
    void paintBar(int key) override;
    void paintControl(int textOrderIndex) override;

private:
    struct Part // what can be chosen to be painted
    {
        QRadioButton *button;
        PaintTables::Part id;
        const char *title;
        const char *icon;
        QPoint place; // px on the screen; null: where it is
    };
    struct Painted // by the next stroke
    {
        bool both, border, background;
    };

    static bool hasGradient(const Part &part);
    Painted painted() const;
    void paintPlace(Keys::Place place, Keys::Place bordered);
    void paintBackgrounds(int cap, int key);
    void paintText(int key);
    void paintMark(int cap);
    // Opens the picker for a part, or that of the second color of its gradient.
    void choose(const Part &part);
    void chooseGradient(const Part &part);
    void showPart(const Part &part);

    Furniture &furniture;
    Wardrobe &wardrobe;
    GradientPanels &panels;
    Dresser &dresser;
    ColorPickers &pickers;
    const Ui::colorMadnessPanel &form;
    KeyHover &hover;
    std::array<Part, 4> parts;
};
