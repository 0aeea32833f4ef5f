#include "thumbnails.h"

#include "picture.h"

#include <QLabel>
#include <QMovie>

Thumbnails::Thumbnails() = default;
Thumbnails::~Thumbnails() = default;

void Thumbnails::add(QLabel *label, const char *gif, QSize size, int speed)
{
    auto movie = std::make_unique<QMovie>();
    openMovie(*movie, QString(":/new/prefix1/%1.gif").arg(gif), size);
    movie->setSpeed(speed);
    label->setMovie(movie.get());
    thumbnails.push_back({label, std::move(movie)});
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
