#include "gamechoice.h"

#include "ui_tambrel.h"

Direction GameChoice::direction() const
{
    if (ui.rbReverse_2->isChecked())
        return Direction::Reverse;
    return ui.rbRandom_2->isChecked() ? Direction::Random : Direction::Forward;
}

Keys::Set GameChoice::keySet() const
{
    if (ui.rbConsonants->isChecked())
        return Keys::Set::Uppercase;
    if (ui.rbVarious->isChecked())
        return Keys::Set::Lowercase;
    return ui.rbNumberLine->isChecked() ? Keys::Set::NumberLine : Keys::Set::Everything;
}

bool GameChoice::isStrict() const
{
    return ui.strict->isChecked();
}

bool GameChoice::isFlash() const
{
    return ui.keyFlash->isChecked();
}
