#include "keyfeedback.h"

#include "furniture.h"
#include "game.h"
#include "sequence.h"
#include "soundplayer.h"
#include "ui_tambrel.h"
#include "wardrobe.h"
#include "wear.h"

namespace {

// "Z" alone among the capitals lights in the color of the lowercase letters.
constexpr int litAsLowercase = 52;

// The caps of f and j carry the marks that the fingers rest on.
constexpr int capOfLeftMark = 6;
constexpr int capOfRightMark = 10;

// The random flag that decides whether a key put back hides its image: its own,
// but the key of a looks at b.
constexpr int randomFlagOf(int number)
{
    return Keys::cap(number) == 1 ? 2 : number;
}

// Putting back "A" leaves its image alone, unless that is a passing one or the mouse over "A" in
// the Alphabet Bar has hidden it, which nothing else would bring back.
constexpr int withoutImageStep = 27;

} // namespace

KeyFeedback::KeyFeedback(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
                         SoundPlayer &soundPlayer)
    : furniture(usedFurniture), wardrobe(usedWardrobe), game(usedGame), player(soundPlayer)
{}

void KeyFeedback::key(int number)
{
    if (!Keys::isKey(number))
        return;
    const Looks &looks = wardrobe.looks;
    const bool shifted = Keys::isShifted(number);
    const int cap = Keys::cap(number);
    const QString text =
        looks.keypress.text(shifted && number != litAsLowercase) + looks.font(shifted);

    showLetterNumber(number);
    const Look &cell = game.isKeyPressed(number) ? looks.finished : looks.keypress;
    wear(furniture.widgets.barBackground(number), looks.barBackground(cell.bgStyle));
    wear(furniture.widgets.barLetter(number), text);
    wear(furniture.widgets.keyText(number), text);
    wear(furniture.widgets.background(cap), looks.keyBackground(looks.keypress));
    if (wardrobe.images.keypress.isOn()) {
        furniture.widgets.image(cap)->show();
        wardrobe.images.keypress.layOn(furniture.widgets.image(cap));
    }
    emit lit(number);
    if (game.choice.isFlash())
        Sequence::after(game.keyFlashDelay, this, [this, number] { changeColorBack(number); });
    player.play(soundOf(number));
}

const QString &KeyFeedback::soundOf(int number) const
{
    static const QString silence = Sounds::silenceAudio();
    const bool found = game.isKeyPressed(number);
    // The effect that is about to run makes its own sound.
    if (game.kestrixKeyboardOn && game.choice.isStrict() &&
        furniture.ui.leMatch->text() == furniture.widgets.letter(number))
        return silence;
    if (found && (game.kestrixKeyboardOn || game.fade != GameState::Fade::None))
        return silence;
    return wardrobe.sounds.keyAudio;
}

void KeyFeedback::changeColorBack(int number)
{
    if (!Keys::isKey(number))
        return;
    const Looks &looks = wardrobe.looks;
    const PaintTables &paint = wardrobe.paint;
    const bool shifted = Keys::isShifted(number);
    const auto place = Keys::Place::ofCap(Keys::cap(number));
    const QString rest = paint.restText(number) + looks.font(shifted);

    if (game.isKeyPressed(number)) {
        paintFinished(number, looks.font(shifted));
    } else {
        wear(furniture.widgets.barBackground(number), paint.restBarBackground(place));
        wear(furniture.widgets.barLetter(number), rest);
    }
    wear(furniture.widgets.keyText(number), rest);
    putBackMark(number);
    wear(furniture.widgets.background(place), paint.restKeyBackground(place));
    putBackImage(number);
    emit putBack(number);
}

// Either case of f or j puts its mark back, always as a lowercase letter.
void KeyFeedback::putBackMark(int number)
{
    const int cap = Keys::cap(number);
    if (cap != capOfLeftMark && cap != capOfRightMark)
        return;
    QLabel *mark =
        cap == capOfLeftMark ? furniture.ui.underScoreLeft : furniture.ui.underScoreRight;
    wear(mark, wardrobe.paint.restText(Keys::unshifted(cap)) + wardrobe.looks.lowerFontStyle);
}

void KeyFeedback::putBackImage(int number)
{
    QLabel *image = furniture.widgets.image(Keys::cap(number));
    const bool passing = image->movie() == &wardrobe.images.keypress.movie ||
                         image->movie() == &wardrobe.images.mouseover.movie;
    const bool hiddenByMouse =
        image->isHidden() && !furniture.presence.isTaken(Keys::Place::ofCap(Keys::cap(number)));
    if (number == withoutImageStep && !passing && !hiddenByMouse)
        return;
    if (passing || wardrobe.images.keypress.isOn() || wardrobe.images.mouseover.isOn())
        image->hide();
    if (wardrobe.images.keys.isOn()) {
        wardrobe.images.keys.layOn(image);
        image->show();
    }
    if (game.randomFlagList[Keys::index(randomFlagOf(number))])
        image->hide();
}

void KeyFeedback::allChangeColorBack()
{
    for (int number = 1; number <= Keys::count; ++number)
        changeColorBack(number);
}

void KeyFeedback::paintFinished(int number, const QString &font)
{
    wear(furniture.widgets.barBackground(number),
         wardrobe.looks.barBackground(wardrobe.looks.finished.bgStyle));
    wear(furniture.widgets.barLetter(number), wardrobe.looks.finishedTextStyle + font);
}

void KeyFeedback::dressOtherKeys()
{
    const Looks &looks = wardrobe.looks;
    const PaintTables &paint = wardrobe.paint;
    for (int i = 0; i < Keys::controlCount; ++i) {
        const auto place = Keys::Place::ofControl(i);
        wear(furniture.widgets.background(place), paint.restKeyBackground(place));
        wear(furniture.widgets.text(place), paint.restControlText(i) + looks.lowerFontStyle);
    }
    const QString clear = "background-color: transparent;";
    wear(furniture.ui.aKeysMap5, paint.restKeyBackground(Keys::Place::ofCap(1)));
    wear(furniture.ui.aKeysMap3, clear + paint.restText(Keys::unshifted(1)) + looks.lowerFontStyle);
    wear(furniture.ui.aKeysMap4, clear + paint.restText(Keys::shifted(1)) + looks.upperFontStyle);
}

// The digits and signs leave the last letter's number standing.
void KeyFeedback::showLetterNumber(int number)
{
    if (number <= Keys::range(Keys::Set::Lowercase).last) {
        numToString();
    } else if (number <= Keys::range(Keys::Set::Uppercase).last) {
        letterNumberText = QString::number(Keys::cap(number));
        letterOAlphabet();
    }
}

void KeyFeedback::numToString()
{
    furniture.ui.letterOfAlphabet2->setText("Letter-number: " +
                                            QString::number(game.letterNumber + 1));
}

void KeyFeedback::letterOAlphabet()
{
    furniture.ui.letterOfAlphabet2->setText("Letter-number: " + letterNumberText);
}

void KeyFeedback::letterOAlphabetNone()
{
    furniture.ui.letterOfAlphabet2->clear();
}
