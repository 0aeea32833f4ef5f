#pragma once

#include <QDialog>

#include <memory>

class QAbstractButton;

namespace Ui {
class aboutWindow;
}

// The credits: who made the program, with what, under which licence, and where
// to reach the makers. The main window connects the close button.
class aboutWindow : public QDialog
{
    Q_OBJECT

public:
    // The main window tells the screen to stand on; it does not become the parent,
    // so that this window counts when Qt looks for the last one to close.
    explicit aboutWindow(QWidget *mainWindow);
    ~aboutWindow() override;

    QAbstractButton *closeButton() const;

private:
    std::unique_ptr<Ui::aboutWindow> ui;
};
