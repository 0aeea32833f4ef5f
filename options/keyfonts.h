#pragma once

#include <QObject>

class Dresser;
class MatchBoxes;
class OptionForms;
class QFontComboBox;
struct Furniture;
struct Wardrobe;

namespace Ui {
class fontsPanel;
}

// The font families of the unshifted and of the shifted characters. The control keys and the
// marks under f and j follow the unshifted ones. A family that the system lacks is named all
// the same, and Qt takes another. The boxes list each family once, without its foundry.
class KeyFonts : public QObject
{
    Q_OBJECT

public:
    KeyFonts(Furniture &usedFurniture, Wardrobe &usedWardrobe, Dresser &usedDresser,
             MatchBoxes &matchBoxes, const OptionForms &optionForms);

    // The family that the combo box shows now.
    void newFontLowercase();
    void newFontUppercase();

private:
    void prepare(QFontComboBox *box, void (KeyFonts::*slot)());

    Furniture &furniture;
    Wardrobe &wardrobe;
    Dresser &dresser;
    MatchBoxes &boxes;
    const Ui::fontsPanel &form;
    const OptionForms &forms;
};
