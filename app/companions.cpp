#include "companions.h"

#include "aboutwindow.h"
#include "exploreworld.h"
#include "instructions.h"
#include "openingwindow.h"
#include "selfexplore.h"

#include <QAbstractButton>
#include <QIcon>
#include <utility>

namespace {

QIcon icon()
{
    return QIcon(":/new/prefix1/english.gif");
}

} // namespace

Companions::Companions(QWidget &usedWindow, WindowMaker freshWindow)
    : mainWindow(usedWindow), freshMainWindow(std::move(freshWindow))
{}

Companions::~Companions() = default;

QWidget &Companions::opening()
{
    if (openingDialog)
        return *openingDialog;
    openingDialog = std::make_unique<openingWindow>(&mainWindow);
    openingDialog->setWindowIcon(icon());

    connect(openingDialog->startButton(), &QAbstractButton::clicked, this,
            &Companions::startClicked);
    connect(openingDialog->startButton(), &QAbstractButton::clicked, openingDialog.get(),
            &QWidget::close);
    connect(openingDialog->exitButton(), &QAbstractButton::clicked, openingDialog.get(),
            &QWidget::close);

    leadTo<instructions>(openingDialog->instructionsButton(), OnClose::StaysBehind,
                         freshMainWindow);
    leadTo<selfExplore>(openingDialog->selfExploreButton(), OnClose::ComesBack);
    leadTo<exploreWorld>(openingDialog->exploreButton(), OnClose::ComesBack);
    leadTo<aboutWindow>(openingDialog->aboutButton(), OnClose::ComesBack);
    return *openingDialog;
}

template <class Guide, class... Needs>
void Companions::leadTo(QAbstractButton *opener, OnClose onClose, Needs... needs)
{
    QWidget *guide = nullptr;
    connect(opener, &QAbstractButton::clicked, this, [=]() mutable {
        if (!guide)
            guide = build<Guide>(onClose, needs...);
        guide->show();
        openingDialog->lower();
        guide->raise();
    });
}

template <class Guide, class... Needs>
QWidget *Companions::build(OnClose onClose, Needs... needs)
{
    auto guide = std::make_unique<Guide>(&mainWindow, needs...);
    guide->setWindowIcon(icon());
    // A title bar without buttons.
    guide->setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    connect(guide->closeButton(), &QAbstractButton::clicked, guide.get(), &QWidget::hide);
    if (onClose == OnClose::ComesBack) {
        // Hidden and shown, it comes to the front again.
        connect(guide->closeButton(), &QAbstractButton::clicked, openingDialog.get(),
                &QWidget::hide);
        connect(guide->closeButton(), &QAbstractButton::clicked, openingDialog.get(),
                &QWidget::show);
    }
    guides.push_back(std::move(guide));
    return guides.back().get();
}

void Companions::showOpening()
{
    // A window that is only now being shown cannot take the focus yet, and comes up in front
    // anyway.
    QWidget &menu = opening();
    const bool covered = menu.isVisible();
    menu.show();
    if (covered) {
        menu.raise();
        menu.activateWindow();
    }
}

void Companions::closeGuides()
{
    for (const auto &guide : guides)
        guide->close();
}

void Companions::closeAll()
{
    closeGuides();
    if (openingDialog)
        openingDialog->close();
}
