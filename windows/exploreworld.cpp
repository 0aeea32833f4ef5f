#include "exploreworld.h"
#include "companion.h"
#include "links.h"
#include "picture.h"
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
    const std::pair<QLabel *, const char *> pictures[] = {
        {ui->learnPicture, ":/new/prefix1/exploreLearn.png"},
        {ui->translatorPicture, ":/new/prefix1/exploreTranslator.png"},
        {ui->colorPicture, ":/new/prefix1/exploreColor.png"},
        {ui->otherPicture, ":/new/prefix1/exploreOther.png"},
    };
    for (const auto &[label, path] : pictures)
        label->setPixmap(picture(QLatin1String(path)));
    Companion::settle(*this, mainWindow);
}

exploreWorld::~exploreWorld() = default;

QAbstractButton *exploreWorld::closeButton() const
{
    return ui->closeButton;
}
