#include "exploreworld.h"
#include "companion.h"
#include "links.h"
#include "ui_exploreworld.h"

#include <utility>

exploreWorld::exploreWorld(QWidget *mainWindow)
    : QDialog(nullptr, Qt::Window), ui(std::make_unique<Ui::exploreWorld>())
{
    ui->setupUi(this);
    const std::pair<QLabel *, const char *> links[] = {
        {ui->courses, Links::courses},
        {ui->grammar, Links::grammar},
        {ui->dictionary, Links::dictionary},
        {ui->easyReading, Links::easyReading},
        {ui->translatorSentences, Links::translatorSentences},
        {ui->translatorDocuments, Links::translatorDocuments},
        {ui->phrasebooks, Links::phrasebooks},
        {ui->colorSchemes, Links::colorSchemes},
        {ui->colorNames, Links::colorNames},
        {ui->colorHarmony, Links::colorHarmony},
        {ui->layouts, Links::layouts},
        {ui->touchTyping, Links::touchTyping},
    };
    for (const auto &[label, url] : links)
        Companion::makeLink(*label, url);
    Companion::settle(*this, mainWindow);
}

exploreWorld::~exploreWorld() = default;

QAbstractButton *exploreWorld::closeButton() const
{
    return ui->closeButton;
}
