#pragma once

#include <QDialog>
#include <QString>

#include <memory>
#include <vector>

class QAbstractButton;
class QLabel;

namespace Ui {
class instructions;
}

// The help window: pages of text, and a picture of the main window with hot spots
// that explain its parts. The picture and the places of the hot spots are taken
// from the main window itself, so they stay true when that window changes.
class instructions : public QDialog
{
    Q_OBJECT

public:
    // The main window is the subject of the picture and tells the screen to stand
    // on; it does not become the parent, so that this window counts when Qt looks
    // for the last one to close.
    explicit instructions(QWidget *mainWindow);
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
    void drawMap();

    std::unique_ptr<Ui::instructions> ui;
    QWidget *const mainWindow; // may be null: the map stays empty then
    std::vector<HotSpot> hotSpots;
    bool filled = false;
};
