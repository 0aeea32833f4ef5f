#include "thumbnails.h"

#include "picture.h"

#include <QLabel>
#include <QMovie>

namespace {

struct Row
{
    const char *label;
    const char *gif;
    QSize size; // logical px; invalid: as it is
    int speed;  // percent
};

const Row rows[] = {
    {"tnExplode", "explodeAll2", {96, 90}, 300},
    {"tnButterfly", "butterfly1", {96, 76}, 200},
    {"tnBirdsDancing", "birdsdance2", {96, 60}, 100},
    {"tnAngryE", "angryEmotion2", {96, 60}, 100},
    {"tnSwirl1", "swirl1", {54, 54}, 100},
    {"tnKittyWalk", "kittyWalk", {}, 100},
    {"tnPulsingLight", "pulsingLightSmall", {}, 100},
    {"tnSnow", "snowSmall", {}, 100},
    {"tnRain", "rain", {}, 100},
    {"tnSheep", "bouncingSheepSmall", {34, 54}, 100},
    {"tnMarbleTransparent", "marbleTransparentSmall", {}, 100},
    {"tnSnowFall", "snowfall", {54, 54}, 100},
};

} // namespace

Thumbnails::Thumbnails() = default;
Thumbnails::~Thumbnails() = default;

void Thumbnails::loadGifs(const QWidget &window)
{
    for (const Row &row : rows) {
        auto *label = window.findChild<QLabel *>(row.label);
        auto movie = std::make_unique<QMovie>();
        openMovie(*movie, QString(":/new/prefix1/%1.gif").arg(row.gif), row.size);
        movie->setSpeed(row.speed);
        label->setMovie(movie.get());
        thumbnails.push_back({label, std::move(movie)});
    }
}

void Thumbnails::follow()
{
    for (const Thumbnail &each : thumbnails) {
        if (!each.label->isVisible())
            each.movie->stop();
        else if (each.movie->state() != QMovie::Running)
            each.movie->start();
    }
}
