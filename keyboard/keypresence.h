#pragma once

#include "keys.h"

#include <QHash>
#include <array>

class KeyboardWidgets;
class QWidget;

// Whether the labels of a key can be seen. Three things decide: which characters the player
// wants displayed, whether a burst has taken the key away, and whether a fade has. Nobody else
// shows or hides these labels, so that none of the three undoes another.
//
// Places are 1 to 54: the caps, then the control keys in Keys::textOrder.
class KeyPresence
{
public:
    explicit KeyPresence(const KeyboardWidgets &keyboardWidgets);

    // The characters of the caps; the texts of the control keys stay.
    void showCharacters(bool lower, bool upper);

    // A burst hides a key as a whole.
    void take(int place);
    void giveBack(int place);
    bool isTaken(int place) const { return taken[Keys::index(place)]; }

    // A faded key keeps its labels, which wear the fade's effect, and only loses its shield.
    void setFaded(int place, bool away);
    bool isFaded(int place) const { return faded[Keys::index(place)]; }
    // Of the key that a background or a character belongs to; false for other widgets.
    bool isFaded(const QWidget *label) const;

private:
    void follow(int place);

    const KeyboardWidgets &widgets;
    QHash<const QWidget *, int> placeOf;
    std::array<bool, Keys::pileCount> taken{};
    std::array<bool, Keys::pileCount> faded{};
    bool lowerShown = true;
    bool upperShown = true;
};
