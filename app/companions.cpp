#include "companions.h"

#include "aboutwindow.h"
#include "exploreworld.h"
#include "instructions.h"
#include "openingwindow.h"
#include "selfexplore.h"

#include <QAbstractButton>
#include <QIcon>

namespace {

QIcon icon()
{
    return QIcon(":/new/prefix1/english.gif");
}

} // namespace

Companions::Companions(QWidget &usedWindow)
    : mainWindow(usedWindow), openingDialog(std::make_unique<openingWindow>(&usedWindow))
{
    openingDialog->setWindowIcon(icon());

    connect(openingDialog->startButton(), &QAbstractButton::clicked, this,
            &Companions::startClicked);
    connect(openingDialog->startButton(), &QAbstractButton::clicked, openingDialog.get(),
            &QWidget::close);
    connect(openingDialog->exitButton(), &QAbstractButton::clicked, openingDialog.get(),
            &QWidget::close);

    leadTo<instructions>(openingDialog->instructionsButton(), OnClose::StaysBehind);
    leadTo<selfExplore>(openingDialog->selfExploreButton(), OnClose::ComesBack);
    leadTo<exploreWorld>(openingDialog->exploreButton(), OnClose::ComesBack);
    leadTo<aboutWindow>(openingDialog->aboutButton(), OnClose::ComesBack);
}

Companions::~Companions() = default;

template <class Guide>
void Companions::leadTo(QAbstractButton *opener, OnClose onClose)
{
    QWidget *guide = nullptr;
    connect(opener, &QAbstractButton::clicked, this, [this, onClose, guide]() mutable {
        if (!guide)
            guide = build<Guide>(onClose);
        guide->show();
        openingDialog->lower();
        guide->raise();
    });
}

template <class Guide>
QWidget *Companions::build(OnClose onClose)
{
    auto guide = std::make_unique<Guide>(&mainWindow);
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
    for (const auto &guide : guides)
        guide->close();
}

void Companions::closeAll()
{
    closeGuides();
    openingDialog->close();
}
