#pragma once

#include "refusal.h"
#include "seenmovies.h"

#include <QObject>
#include <QSize>
#include <array>
#include <vector>

class FileChoice;
class KeyFeedback;
class MouseTable;
class OptionForms;
class QAbstractButton;
class QLabel;
class QWidget;
class TargetHighlights;
class Thumbnails;
struct Furniture;
struct Game;
struct Wardrobe;
struct ImageState;

namespace Ui {
class picturesPanel;
}

// The pictures that lie on keys in four states: at rest, pressed, highlighted, under the mouse.
// Each is one of the supplied GIFs or a file of the player's. A picture that cannot be read
// shows nothing, and nobody says so.
class KeyImages : public QObject
{
    Q_OBJECT

public:
    enum State { Keys, Keypress, Highlight, Mouseover };
    static constexpr int stateCount = 4;

    KeyImages(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
              KeyFeedback &keyFeedback, TargetHighlights &targetHighlights,
              const OptionForms &optionForms, FileChoice &fileChoice, Thumbnails &thumbnails,
              MouseTable &mouse);

    // Gives the state the supplied GIF that is chosen.
    void radio_function(State state);
    // Asks for a file. Cancel leaves Keys and Keypress their picture, but takes their flag.
    void openImage_Function(State state);
    void clearImage_function(State state);
    void normalSize_function();
    void setToFit_function();

private:
    struct Controls
    {
        QAbstractButton *radio, *open, *clear;
        QWidget *folder;
        QLabel *sample;
        QWidget *line, *uploadLine; // beside the state chosen last: by a gif, by a file
    };
    struct Supplied
    {
        QAbstractButton *radio;
        QLabel *thumbnail;
        const char *gif;
        QSize size; // px; invalid: as it is
    };

    ImageState &of(State state) const;
    // All marks and samples black but those of the state; which of its two lines is shown.
    void mark(State state, bool uploaded);
    bool takeSupplied(State state);
    void takeFile(State state, const QString &path);
    void show(State state);
    void setSizes(bool fit);
    void giveGif();
    void restoreHighlighted();

    Furniture &furniture;
    Wardrobe &wardrobe;
    Game &game;
    KeyFeedback &feedback;
    TargetHighlights &highlights;
    const Ui::picturesPanel &form;
    FileChoice &choice;
    const std::array<Controls, stateCount> controls; // by state
    const std::vector<Supplied> supplied;
    Refusal refusal;
    SeenMovies seen;
};
