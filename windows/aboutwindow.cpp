#include "aboutwindow.h"
#include "companion.h"
#include "links.h"
#include "picture.h"
#include "ui_aboutwindow.h"

aboutWindow::aboutWindow(QWidget *mainWindow)
    : QDialog(nullptr, Qt::Window), ui(std::make_unique<Ui::aboutWindow>())
{
    ui->setupUi(this);
    ui->instructorPicture->setPixmap(picture(QStringLiteral(":/new/prefix1/chup.png")));
    ui->version->setText(ui->version->text().arg(QLatin1String(KESTRIX_VERSION)));
    ui->qt->setText(ui->qt->text().arg(QLatin1String(qVersion())));
    const QString address = QLatin1String(Links::contact);
    ui->contact->setText(ui->contact->text() +
                         Companion::link(Links::contact, address.section(QStringLiteral("//"), 1)));
    ui->contact->setToolTip(address);
    Companion::settle(*this, mainWindow);
}

aboutWindow::~aboutWindow() = default;

QAbstractButton *aboutWindow::closeButton() const
{
    return ui->closeButton;
}
