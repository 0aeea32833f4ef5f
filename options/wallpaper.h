#pragma once

#include <QMovie>
#include <QObject>

class Dresser;
class MouseTable;
class QWidget;
struct Board;

// The picture behind the whole window: a file of the player's, alone at one of nine places, or
// repeated, or stretched.
class Wallpaper : public QObject
{
    Q_OBJECT

public:
    Wallpaper(Board &usedBoard, Dresser &usedDresser, QWidget &mainWindow);

    // Once the panels stand in the window.
    void attach(MouseTable &mouse);

    void openImageMain_Function();
    void clearMainImage_function();
    void mainRepeat();
    void mainStretchToFit();
    void mainAlign(); // has no effect on a repeated picture

    QString mainImageOn = "0"; // "1" or "0", as themes write it
    QString mainImagePath;

private:
    Board &board;
    Dresser &dresser;
    QWidget &window;
    QString mainImageStyle;
    QMovie mainMovie;
};
