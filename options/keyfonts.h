#pragma once

#include <QObject>

class Dresser;
class MatchBoxes;
struct Board;

// The font families of the unshifted and of the shifted characters. The control keys and the
// marks under f and j follow the unshifted ones. A family that the system lacks is named all
// the same, and Qt takes another. The boxes list each family once, without its foundry.
class KeyFonts : public QObject
{
    Q_OBJECT

public:
    KeyFonts(Board &usedBoard, Dresser &usedDresser, MatchBoxes &matchBoxes);

    // Once the panels stand in the window.
    void attach();

    // The family that the combo box shows now.
    void newFontLowercase();
    void newFontUppercase();

private:
    QString fontStyle(const char *comboBox) const;
    void dress(const char *name, const QString &sheet);

    Board &board;
    Dresser &dresser;
    MatchBoxes &boxes;
};
