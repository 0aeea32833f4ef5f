#pragma once

#include <QDialog>

#include <memory>

class QAbstractButton;

namespace Ui {
class selfExplore;
}

// Tells how to practise freely, without a game. The free practice itself happens
// in the main window, which also connects the close button.
class selfExplore : public QDialog
{
    Q_OBJECT

public:
    // The main window tells the screen to stand on; it does not become the parent,
    // so that this window counts when Qt looks for the last one to close.
    explicit selfExplore(QWidget *mainWindow);
    ~selfExplore() override;

    QAbstractButton *closeButton() const;

private:
    std::unique_ptr<Ui::selfExplore> ui;
};
