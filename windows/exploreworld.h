#pragma once

#include <QDialog>

#include <memory>

class QAbstractButton;

namespace Ui {
class exploreWorld;
}

// Links to outside pages for learners, in four groups. A click opens the page in
// the system's browser; the main window connects the close button.
class exploreWorld : public QDialog
{
    Q_OBJECT

public:
    // The main window tells the screen to stand on; it does not become the parent,
    // so that this window counts when Qt looks for the last one to close.
    explicit exploreWorld(QWidget *mainWindow);
    ~exploreWorld() override;

    QAbstractButton *closeButton() const;

private:
    std::unique_ptr<Ui::exploreWorld> ui;
};
