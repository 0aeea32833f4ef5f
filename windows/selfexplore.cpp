#include "selfexplore.h"
#include "companion.h"
#include "pages.h"
#include "ui_selfexplore.h"

selfExplore::selfExplore(QWidget *mainWindow)
    : QDialog(nullptr, Qt::Window), ui(std::make_unique<Ui::selfExplore>())
{
    ui->setupUi(this);
    ui->guide->setHtml(QLatin1String(Pages::exploring));
    ui->guide->document()->setDocumentMargin(16);
    Companion::settle(*this, mainWindow);
}

selfExplore::~selfExplore() = default;

QAbstractButton *selfExplore::closeButton() const
{
    return ui->seExitbutton;
}
