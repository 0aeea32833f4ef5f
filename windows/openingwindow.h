#pragma once

#include <QDialog>

#include <memory>

class QAbstractButton;

namespace Ui {
class openingWindow;
}

// The small menu on which the program starts: six buttons, two pictures and a
// link to a video. It does nothing by itself; the main window connects the
// buttons to what they open.
class openingWindow : public QDialog
{
    Q_OBJECT

public:
    // The main window tells the screen to stand on; it does not become the parent,
    // so that this window counts when Qt looks for the last one to close.
    explicit openingWindow(QWidget *mainWindow);
    ~openingWindow() override;

    QAbstractButton *startButton() const;
    QAbstractButton *instructionsButton() const;
    QAbstractButton *selfExploreButton() const;
    QAbstractButton *exploreButton() const;
    QAbstractButton *aboutButton() const;
    QAbstractButton *exitButton() const;

private:
    std::unique_ptr<Ui::openingWindow> ui;
};
