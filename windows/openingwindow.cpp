#include "openingwindow.h"
#include "companion.h"
#include "links.h"
#include "ui_openingwindow.h"

#include <QIcon>

namespace {

// Through QIcon, since it takes the sharper "@2x" twin on a dense screen.
void setPicture(QLabel *label, const QString &file)
{
    label->setPixmap(QIcon(file).pixmap(label->minimumSize() * label->devicePixelRatioF()));
}

} // namespace

// Qt::Window and not the dialog type: window managers keep a dialog above its
// group, and the companions are to come up in front of this window.
openingWindow::openingWindow(QWidget *mainWindow)
    : QDialog(nullptr, Qt::Window), ui(std::make_unique<Ui::openingWindow>())
{
    ui->setupUi(this);
    setPicture(ui->titlePicture, QStringLiteral(":/new/prefix1/kestrixTypingOrlamu.png"));
    setPicture(ui->englishPicture, QStringLiteral(":/new/prefix1/english.png"));
    Companion::makeLink(*ui->videoLink, Links::video);
    Companion::settle(*this, mainWindow);

    QPalette prominent(palette().color(QPalette::Highlight));
    prominent.setColor(QPalette::ButtonText, Qt::white);
    ui->startButton->setPalette(prominent);
}

openingWindow::~openingWindow() = default;

QAbstractButton *openingWindow::startButton() const
{
    return ui->startButton;
}

QAbstractButton *openingWindow::instructionsButton() const
{
    return ui->instructionsButton;
}

QAbstractButton *openingWindow::selfExploreButton() const
{
    return ui->selfExploreButton;
}

QAbstractButton *openingWindow::exploreButton() const
{
    return ui->exploreButton;
}

QAbstractButton *openingWindow::aboutButton() const
{
    return ui->aboutButton;
}

QAbstractButton *openingWindow::exitButton() const
{
    return ui->exitButton;
}
