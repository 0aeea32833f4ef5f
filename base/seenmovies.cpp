#include "seenmovies.h"

#include <QEvent>
#include <QLabel>
#include <QMovie>

namespace {

void resume(QMovie &movie)
{
    if (movie.state() == QMovie::Paused)
        movie.setPaused(false);
}

} // namespace

void SeenMovies::watch(QMovie &movie, const QList<QLabel *> &labels)
{
    for (QLabel *label : labels)
        label->installEventFilter(this);
    connect(&movie, &QMovie::frameChanged, this, [&movie, labels] {
        for (const QLabel *label : labels) {
            if (label->isVisible() && label->movie() == &movie)
                return;
        }
        movie.setPaused(true);
    });
}

void SeenMovies::lay(QMovie &movie, QLabel *label)
{
    label->setMovie(&movie);
    resume(movie);
}

bool SeenMovies::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        if (QMovie *movie = static_cast<QLabel *>(watched)->movie())
            resume(*movie);
    }
    return false;
}
