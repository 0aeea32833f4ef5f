#pragma once

#include "themefile.h"

#include <QObject>
#include <array>

class Dresser;
class FileChoice;
class GradientPanels;
class OptionForms;
class Shadows;
struct Furniture;
struct Wardrobe;
struct Look;

namespace Ui {
class colorMadnessPanel;
class lookPage;
} // namespace Ui

// A file of what the states of a key wear, one look for each, with the fonts, the wallpaper and
// the boxes of the game, in 126 lines. A file of another kind or language is read and applied
// all the same; a label says so.
class KeyboardTheme : public QObject
{
    Q_OBJECT

public:
    KeyboardTheme(Furniture &usedFurniture, Wardrobe &usedWardrobe, GradientPanels &gradientPanels,
                  Dresser &usedDresser, Shadows &shadows, ThemeFile::Shared &sharedState,
                  const OptionForms &optionForms, FileChoice &fileChoice);

    void saveKeyboard_Function();
    void openKeyboard_Function();
    void loadKeyboard(); // applies what the fields hold

private:
    // A number of a look and its text, which only the file needs.
    struct Twin
    {
        int *number;
        int largest;
        QString text;
    };

    ThemeFile::Kind kind() const;
    ThemeFile::Fields fields();
    void takeLines();

    Furniture &furniture;
    Wardrobe &wardrobe;
    GradientPanels &panels;
    Dresser &dresser;
    Shadows &shadowGroups;
    ThemeFile::Shared &shared;
    const Ui::colorMadnessPanel &form;
    const Ui::lookPage &keypress;
    FileChoice &choice;
    QString keyboardThemeMarker = "0";
    std::array<Twin, 16> twins; // in the order of the lines
    // Written and read for the sake of older files, and used by nothing.
    QString spareHexA = "white", spareHexB = "white";
};
