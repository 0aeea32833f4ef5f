#pragma once

#include "seenmovies.h"

#include <QMovie>
#include <QString>

// Four states of a key can each carry one picture, still or moving.
struct ImageState
{
    QString on = "0"; // "1" or "0", as themes write it
    QString path;
    QMovie movie;
    int width = 0; // px, shrunk to a key; 0: not measured
    int height = 0;

    void layOn(QLabel *label) { SeenMovies::lay(movie, label); }

    bool isOn() const { return on == QLatin1String("1"); }
};

struct ImageStates
{
    ImageState keys;
    ImageState keypress;
    ImageState highlight;
    ImageState mouseover;
    // A pressed key that is highlighted shows the keypress picture, not the highlight's.
    bool keypressOverridesHighlight = false;
};
