#pragma once

#include <QList>
#include <QObject>

class QLabel;
class QMovie;

// Pauses a movie while no label that can be seen shows it, and lets it go on when one does.
// A label that gets the movie while it is visible must take it by lay().
class SeenMovies : public QObject
{
public:
    // The labels that may show the movie. All must outlive this object.
    void watch(QMovie &movie, const QList<QLabel *> &labels);

    static void lay(QMovie &movie, QLabel *label);

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
