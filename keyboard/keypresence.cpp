#include "keypresence.h"

#include "keyboardwidgets.h"

#include <QLabel>

KeyPresence::KeyPresence(const KeyboardWidgets &keyboardWidgets) : widgets(keyboardWidgets)
{
    for (const Keys::Place place : Keys::places) {
        numberOf[widgets.background(place)] = place.number();
        numberOf[widgets.text(place)] = place.number();
        if (place.isCap())
            numberOf[widgets.upperKeyList[place.index()]] = place.number();
    }
}

void KeyPresence::follow(Keys::Place place)
{
    const bool here = !isTaken(place);
    widgets.background(place)->setVisible(here);
    widgets.text(place)->setVisible(here && (lowerShown || !place.isCap()));
    if (!place.isCap())
        return;
    widgets.upperKeyList[place.index()]->setVisible(here && upperShown);
    widgets.shield(place.cap())->setVisible(here && !isFaded(place));
}

void KeyPresence::showCharacters(bool lower, bool upper)
{
    lowerShown = lower;
    upperShown = upper;
    for (const Keys::Place place : Keys::places)
        follow(place);
}

void KeyPresence::take(Keys::Place place)
{
    taken[static_cast<size_t>(place.index())] = true;
    follow(place);
}

void KeyPresence::giveBack(Keys::Place place)
{
    taken[static_cast<size_t>(place.index())] = false;
    follow(place);
}

void KeyPresence::setFaded(Keys::Place place, bool away)
{
    faded[static_cast<size_t>(place.index())] = away;
    follow(place);
}

bool KeyPresence::isFaded(const QWidget *label) const
{
    const int number = numberOf.value(label);
    return number > 0 && isFaded(Keys::Place::numbered(number));
}
