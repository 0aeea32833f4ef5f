#pragma once

#include "themefile.h"

#include <QObject>

class Dresser;
class FileChoice;
class GradientPanels;
class OptionForms;
class PaintTables;
class Shadows;
struct Wardrobe;

namespace Ui {
class colorMadnessPanel;
}

// A file of what single keys wear: the paint of the mouse, its switches and the fonts, in 232
// lines. A file of another kind or language is read and applied all the same; a label says so.
// Cancel changes nothing.
class PaintTheme : public QObject
{
    Q_OBJECT

public:
    PaintTheme(Wardrobe &usedWardrobe, GradientPanels &gradientPanels, Dresser &usedDresser,
               Shadows &shadows, ThemeFile::Shared &sharedState, const OptionForms &optionForms,
               FileChoice &fileChoice);

    void savePaint_Function();
    void openPaint_Function();
    void loadPaint1(); // puts on what the fields hold

private:
    ThemeFile::Kind kind() const;
    ThemeFile::Fields fields(PaintTables &paint);
    void takeFields(); // once a file has been read

    Wardrobe &wardrobe;
    GradientPanels &panels;
    Dresser &dresser;
    Shadows &shadowGroups;
    ThemeFile::Shared &shared;
    const Ui::colorMadnessPanel &form;
    FileChoice &choice;
    QString paintThemeMarker = "1";
    // Twins of numbers and of a flag, which only the file needs.
    QString rainbowBorderShapeText, rainbowBgShapeText;
    QString rainbowBgStopPosText, rainbowBorderStopPosText;
    QString rainbowGradPickedText;
};
