#include "openingwindow.h"
#include "companion.h"
#include "links.h"
#include "picture.h"
#include "ui_openingwindow.h"

#include <QBuffer>

namespace {

// The address of a picture inside rich text. By its file name, rich text would find the twin
// for dense screens, but shrink it roughly between 1 and 2.
QString inlined(const QPixmap &pixmap)
{
    QByteArray png;
    QBuffer buffer(&png);
    pixmap.save(&buffer, "PNG");
    return QStringLiteral("data:image/png;base64,") + QString::fromLatin1(png.toBase64());
}

} // namespace

// Qt::Window and not the dialog type: window managers keep a dialog above its
// group, and the companions are to come up in front of this window.
openingWindow::openingWindow(QWidget *mainWindow)
    : QDialog(nullptr, Qt::Window), ui(std::make_unique<Ui::openingWindow>())
{
    ui->setupUi(this);
    ui->titlePicture->setPixmap(picture(QStringLiteral(":/new/prefix1/kestrixTypingOrlamu.png")));
    ui->englishPicture->setPixmap(picture(QStringLiteral(":/new/prefix1/english.png")));
    ui->videoLink->setText(
        ui->videoLink->text().arg(inlined(picture(QStringLiteral(":/new/prefix1/youTube.png")))));
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
