#pragma once

#include <QDialog>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

class QAbstractButton;
class QLabel;

namespace Ui {
class instructions;
}

// The help window: pages of text, and a picture of the main window with hot spots
// that explain its parts. The picture and the places of the hot spots are taken
// from a main window, so they stay true when its form changes; but from a fresh one
// of their own, since that on the screen may wear anything.
class instructions : public QDialog
{
    Q_OBJECT

public:
    // The main window tells the screen to stand on; it does not become the parent,
    // so that this window counts when Qt looks for the last one to close. What
    // freshWindow makes is the subject of the picture, and gone once that is taken.
    instructions(QWidget *mainWindow, std::function<std::unique_ptr<QWidget>()> freshWindow);
    ~instructions() override;

    QAbstractButton *closeButton() const;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    struct HotSpot
    {
        QLabel *label;
        QString text;
    };

    void fillPages();
    void drawMap(QWidget &subject);

    std::unique_ptr<Ui::instructions> ui;
    const std::function<std::unique_ptr<QWidget>()> freshMainWindow;
    std::vector<HotSpot> hotSpots;
    bool filled = false;
};
