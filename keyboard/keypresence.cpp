#include "keypresence.h"

#include "keyboardwidgets.h"

#include <QLabel>

KeyPresence::KeyPresence(const KeyboardWidgets &keyboardWidgets) : widgets(keyboardWidgets)
{
    for (int place = 1; place <= Keys::pileCount; ++place) {
        placeOf[widgets.placeBackground(place)] = place;
        placeOf[widgets.placeText(place)] = place;
        if (place <= Keys::capCount)
            placeOf[widgets.upperKeyList[place - 1]] = place;
    }
}

void KeyPresence::follow(int place)
{
    const bool here = !isTaken(place);
    const bool isCap = place <= Keys::capCount;
    widgets.placeBackground(place)->setVisible(here);
    widgets.placeText(place)->setVisible(here && (lowerShown || !isCap));
    if (!isCap)
        return;
    widgets.upperKeyList[place - 1]->setVisible(here && upperShown);
    widgets.shield(place)->setVisible(here && !isFaded(place));
}

void KeyPresence::showCharacters(bool lower, bool upper)
{
    lowerShown = lower;
    upperShown = upper;
    for (int place = 1; place <= Keys::pileCount; ++place)
        follow(place);
}

void KeyPresence::take(int place)
{
    taken[Keys::index(place)] = true;
    follow(place);
}

void KeyPresence::giveBack(int place)
{
    taken[Keys::index(place)] = false;
    follow(place);
}

void KeyPresence::setFaded(int place, bool away)
{
    faded[Keys::index(place)] = away;
    follow(place);
}

bool KeyPresence::isFaded(const QWidget *label) const
{
    const int place = placeOf.value(label);
    return place > 0 && isFaded(place);
}
