#pragma once

#include <QObject>

class GradientPanels;
class Instructor;
class MatchBoxes;
struct Board;

// The font families of the unshifted and of the shifted characters. The control keys and the
// marks under f and j follow the unshifted ones. A family that the system lacks is named all
// the same, and Qt takes another.
class KeyFonts : public QObject
{
    Q_OBJECT

public:
    KeyFonts(Board &usedBoard, GradientPanels &gradientPanels, MatchBoxes &matchBoxes,
             Instructor &virtualInstructor);

    // Once the panels stand in the window.
    void attach();

    // The family that the combo box shows now.
    void newFontLowercase();
    void newFontUppercase();

private:
    QString fontStyle(const char *comboBox) const;
    void dressKeys(bool shifted);
    void dress(const char *name, const QString &sheet);

    Board &board;
    GradientPanels &panels;
    MatchBoxes &boxes;
    Instructor &instructor;
};
