#pragma once

#include "keys.h"

#include <QHash>
#include <array>

class KeyboardWidgets;
class QWidget;

// Whether the labels of a key can be seen. Three things decide: which characters the player
// wants displayed, whether a burst has taken the key away, and whether a fade has. Nobody else
// shows or hides these labels, so that none of the three undoes another.
class KeyPresence
{
public:
    explicit KeyPresence(const KeyboardWidgets &keyboardWidgets);

    // The characters of the caps; the texts of the control keys stay.
    void showCharacters(bool lower, bool upper);

    // A burst hides a key as a whole.
    void take(Keys::Place place);
    void giveBack(Keys::Place place);
    bool isTaken(Keys::Place place) const { return taken[static_cast<size_t>(place.index())]; }

    // A faded key keeps its labels, which wear the fade's effect, and only loses its shield.
    void setFaded(Keys::Place place, bool away);
    bool isFaded(Keys::Place place) const { return faded[static_cast<size_t>(place.index())]; }
    // Of the key that a background or a character belongs to; false for other widgets.
    bool isFaded(const QWidget *label) const;

private:
    void follow(Keys::Place place);

    const KeyboardWidgets &widgets;
    QHash<const QWidget *, int> numberOf; // of its place
    std::array<bool, Keys::placeCount> taken{};
    std::array<bool, Keys::placeCount> faded{};
    bool lowerShown = true;
    bool upperShown = true;
};
