#pragma once

#include "refusal.h"

#include <QMovie>
#include <QObject>
#include <array>

class Dresser;
class FileChoice;
class MouseTable;
class OptionForms;
class QAbstractButton;
class QWidget;
struct Furniture;
struct Wardrobe;

namespace Ui {
class picturesPanel;
}

// The picture behind the whole window: a file of the player's, alone at one of nine places, or
// repeated, or stretched.
class Wallpaper : public QObject
{
    Q_OBJECT

public:
    Wallpaper(Furniture &usedFurniture, Wardrobe &usedWardrobe, Dresser &usedDresser,
              const OptionForms &optionForms, FileChoice &fileChoice, MouseTable &mouse);

    void openImageMain_Function();
    void clearMainImage_function();
    void mainRepeat();
    void mainStretchToFit();
    void mainAlign(); // has no effect on a repeated picture

    QString mainImageOn = "0"; // "1" or "0", as themes write it
    QString mainImagePath;

private:
    struct Place
    {
        QAbstractButton *radio;
        QWidget *label; // a click on it does the same
        Qt::Alignment alignment;
    };

    void showPicture();

    Furniture &furniture;
    Wardrobe &wardrobe;
    Dresser &dresser;
    const Ui::picturesPanel &form;
    FileChoice &choice;
    const std::array<Place, 9> places;
    QString mainImageStyle;
    QMovie mainMovie;
    Refusal refusal;
};
