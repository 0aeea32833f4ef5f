#pragma once

#include <QObject>

class Dresser;
class GradientPanels;
class MouseTable;
class OptionForms;
struct Wardrobe;

namespace Ui {
class lookPage;
}

// The three ready-made looks of the keys, which a click on a sample key chooses.
class BuiltInThemes : public QObject
{
    Q_OBJECT

public:
    BuiltInThemes(Wardrobe &usedWardrobe, GradientPanels &gradientPanels, Dresser &usedDresser,
                  const OptionForms &optionForms, MouseTable &mouse);

    void border_function(int theme);     // 1 to 3
    void background_function(int theme); //

private:
    Wardrobe &wardrobe;
    GradientPanels &panels;
    Dresser &dresser;
    const Ui::lookPage &keys;
};
