#include "companions.h"

#include "aboutwindow.h"
#include "exploreworld.h"
#include "instructions.h"
#include "openingwindow.h"
#include "selfexplore.h"

#include <QAbstractButton>
#include <QIcon>

Companions::Companions(QWidget &mainWindow)
    : openingDialog(std::make_unique<openingWindow>(&mainWindow)),
      instructionsDialog(std::make_unique<instructions>(&mainWindow)),
      selfExploreDialog(std::make_unique<selfExplore>(&mainWindow)),
      exploreWorldDialog(std::make_unique<exploreWorld>(&mainWindow)),
      aboutDialog(std::make_unique<aboutWindow>(&mainWindow))
{
    const QIcon icon(":/new/prefix1/english.gif");
    openingDialog->setWindowIcon(icon);
    instructionsDialog->setWindowIcon(icon);

    connect(openingDialog->startButton(), &QAbstractButton::clicked, this,
            &Companions::startClicked);
    connect(openingDialog->startButton(), &QAbstractButton::clicked, openingDialog.get(),
            &QWidget::close);
    connect(openingDialog->exitButton(), &QAbstractButton::clicked, openingDialog.get(),
            &QWidget::close);

    // The opening window stays where it is when the instructions close.
    connectGuide(openingDialog->instructionsButton(), *instructionsDialog, nullptr);
    connect(instructionsDialog->closeButton(), &QAbstractButton::clicked, instructionsDialog.get(),
            &QWidget::hide);
    connectGuide(openingDialog->selfExploreButton(), *selfExploreDialog,
                 selfExploreDialog->closeButton());
    connectGuide(openingDialog->exploreButton(), *exploreWorldDialog,
                 exploreWorldDialog->closeButton());
    connectGuide(openingDialog->aboutButton(), *aboutDialog, aboutDialog->closeButton());
}

Companions::~Companions() = default;

void Companions::connectGuide(QAbstractButton *opener, QWidget &guide, QAbstractButton *closer)
{
    // A title bar without buttons.
    guide.setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    connect(opener, &QAbstractButton::clicked, &guide, &QWidget::show);
    connect(opener, &QAbstractButton::clicked, openingDialog.get(), &QWidget::lower);
    connect(opener, &QAbstractButton::clicked, &guide, &QWidget::raise);
    if (!closer)
        return;
    // Hidden and shown, the opening window comes to the front again.
    connect(closer, &QAbstractButton::clicked, &guide, &QWidget::hide);
    connect(closer, &QAbstractButton::clicked, openingDialog.get(), &QWidget::hide);
    connect(closer, &QAbstractButton::clicked, openingDialog.get(), &QWidget::show);
}

void Companions::showOpening()
{
    // A window that is only now being shown cannot take the focus yet, and comes up in front
    // anyway.
    const bool covered = openingDialog->isVisible();
    openingDialog->show();
    if (covered) {
        openingDialog->raise();
        openingDialog->activateWindow();
    }
}

QWidget &Companions::opening()
{
    return *openingDialog;
}

void Companions::closeGuides()
{
    aboutDialog->close();
    instructionsDialog->close();
    selfExploreDialog->close();
    exploreWorldDialog->close();
}

void Companions::closeAll()
{
    closeGuides();
    openingDialog->close();
}
