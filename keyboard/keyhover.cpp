#include "keyhover.h"

#include "furniture.h"
#include "game.h"
#include "keyfeedback.h"
#include "mousetable.h"
#include "ui_tambrel.h"
#include "wardrobe.h"
#include "wear.h"

namespace {

constexpr int capOfLeftMark = 6; // f and j
constexpr int capOfRightMark = 10;

// Moving over a letter's key tells its number, save at the grave's key, which lies between.
constexpr int lastLetterCap = 26;
constexpr int silentCap = 27;

constexpr int barNumberShift = 33; // of the first digits and signs in the bar
constexpr int lastShifted = 66;    // of them

} // namespace

KeyHover::KeyHover(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
                   KeyFeedback &keyFeedback, MouseTable &mouse)
    : furniture(usedFurniture), wardrobe(usedWardrobe), game(usedGame), feedback(keyFeedback)
{
    for (int i = 0; i < Keys::controlCount; ++i) {
        const auto enter = [this, i] {
            if (isPainting())
                painter->paintControl(i);
        };
        mouse.add(furniture.widgets.lowerKeyList[Keys::capCount + i], {enter, {}, {}});
    }
    for (int cap = 1; cap <= Keys::capCount; ++cap) {
        const auto enter = [this, cap] { isPainting() ? painter->paintCap(cap) : enterCap(cap); };
        const auto leave = [this, cap] {
            if (!isPainting())
                leaveCap(cap);
        };
        mouse.add(furniture.widgets.shield(cap), {enter, leave, {}});
    }
    for (int key = 1; key <= Keys::count; ++key) {
        const auto enter = [this, key] { isPainting() ? painter->paintBar(key) : enterBar(key); };
        const auto leave = [this, key] {
            if (!isPainting())
                feedback.changeColorBack(key);
        };
        mouse.add(furniture.widgets.barLetter(key), {enter, leave, {}});
    }
}

void KeyHover::lightBackground(int cap)
{
    const Looks &looks = wardrobe.looks;
    QLabel *image = furniture.widgets.image(cap);
    wear(furniture.widgets.background(cap), looks.keyBackground(looks.mouseover));
    image->setVisible(wardrobe.images.mouseover.isOn());
    if (wardrobe.images.mouseover.isOn())
        wardrobe.images.mouseover.layOn(image);
}

void KeyHover::lightText(int key, bool asUpper)
{
    const Looks &looks = wardrobe.looks;
    const QString text =
        looks.mouseover.text(Keys::isShifted(key)) + looks.font(Keys::isShifted(key));
    wear(furniture.widgets.barLetter(key), text);
    wear(furniture.widgets.keyText(key),
         asUpper ? looks.mouseover.upperTextStyle + looks.lowerFontStyle : text);
}

void KeyHover::enterCap(int cap)
{
    const Looks &looks = wardrobe.looks;
    if (cap <= lastLetterCap) {
        feedback.letterNumberText = QString::number(cap);
        feedback.letterOAlphabet();
    } else if (cap != silentCap) {
        feedback.letterOAlphabetNone();
    }
    for (const int key : {Keys::unshifted(cap), Keys::shifted(cap)}) {
        wear(furniture.widgets.barBackground(key), looks.barBackground(looks.mouseover.bgStyle));
        lightText(key, key == 1); // a alone takes the color of the capitals on its key
    }
    lightBackground(cap);
    if (cap == capOfLeftMark || cap == capOfRightMark)
        wear(cap == capOfLeftMark ? furniture.ui.underScoreLeft : furniture.ui.underScoreRight,
             looks.mouseover.upperTextStyle + looks.lowerFontStyle);
}

void KeyHover::leaveCap(int cap)
{
    feedback.changeColorBack(Keys::unshifted(cap));
    feedback.changeColorBack(Keys::shifted(cap));
}

// The number of the key typed last is the game's too, and moving over the bar changes it.
void KeyHover::enterBar(int key)
{
    const Looks &looks = wardrobe.looks;
    const bool letter = key <= Keys::range(Keys::Set::Uppercase).last;
    int number = key;
    if (letter)
        number = Keys::cap(key);
    else if (key <= lastShifted)
        number = key - barNumberShift;
    feedback.letterNumberText = QString::number(number);
    game.letterNumber = letter ? Keys::cap(key) - 1 : Keys::index(key);
    if (letter)
        feedback.letterOAlphabet();
    else
        feedback.letterOAlphabetNone();
    wear(furniture.widgets.barBackground(key), looks.barBackground(looks.mouseover.bgStyle));
    lightText(key, false);
    lightBackground(Keys::cap(key));
}
