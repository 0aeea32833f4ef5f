#include "keyfeedback.h"

#include "board.h"
#include "sequence.h"
#include "soundplayer.h"
#include "ui_tambrel.h"
#include "wear.h"

namespace {

// "Z" alone among the capitals lights in the colour of the lowercase letters.
constexpr int litAsLowercase = 52;

// The caps of f and j carry the marks that the fingers rest on.
constexpr int capOfLeftMark = 6;
constexpr int capOfRightMark = 10;

// The random flag that decides whether a key put back hides its image: its own,
// but key 1 looks at key 2.
constexpr int randomFlagOf(int number)
{
    return number == 1 ? 2 : number;
}

// Putting back "A" leaves its image alone, unless that is a passing one.
constexpr int withoutImageStep = 27;

} // namespace

KeyFeedback::KeyFeedback(Board &usedBoard, SoundPlayer &soundPlayer)
    : board(usedBoard), player(soundPlayer)
{}

void KeyFeedback::key(int number)
{
    if (!Keys::isKey(number))
        return;
    const Looks &looks = board.looks;
    const bool shifted = Keys::isShifted(number);
    const int cap = Keys::cap(number);
    const QString text =
        looks.keypress.text(shifted && number != litAsLowercase) + looks.font(shifted);

    showLetterNumber(number);
    const Look &cell = board.game.isKeyPressed(number) ? looks.finished : looks.keypress;
    wear(board.widgets.barBackground(number), looks.barBackground(cell.bgStyle));
    wear(board.widgets.barLetter(number), text);
    wear(board.widgets.keyText(number), text);
    wear(board.widgets.background(cap), looks.keyBackground(looks.keypress));
    if (board.images.keypress.isOn()) {
        board.widgets.image(cap)->show();
        board.images.keypress.layOn(board.widgets.image(cap));
    }
    emit lit(number);
    if (board.choice.isFlash())
        Sequence::after(board.game.keyFlashDelay, this,
                        [this, number] { changeColorBack(number); });
    player.play(soundOf(number));
}

const QString &KeyFeedback::soundOf(int number) const
{
    static const QString silence = Sounds::silenceAudio();
    const GameState &game = board.game;
    const bool found = game.isKeyPressed(number);
    // The effect that is about to run makes its own sound.
    if (game.kestrixKeyboardOn && board.choice.isStrict() &&
        board.ui.leMatch->text() == board.widgets.letter(number))
        return silence;
    if (found && (game.kestrixKeyboardOn || game.fade != GameState::Fade::None))
        return silence;
    return board.sounds.keyAudio;
}

void KeyFeedback::changeColorBack(int number)
{
    if (!Keys::isKey(number))
        return;
    const Looks &looks = board.looks;
    const PaintTables &paint = board.paint;
    const bool shifted = Keys::isShifted(number);
    const int pile = Keys::cap(number) - 1;
    const QString rest = paint.restText(number) + looks.font(shifted);

    if (board.game.isKeyPressed(number)) {
        paintFinished(number, looks.font(shifted));
    } else {
        wear(board.widgets.barBackground(number), paint.restBarBackground(pile));
        wear(board.widgets.barLetter(number), rest);
    }
    wear(board.widgets.keyText(number), rest);
    putBackMark(number);
    wear(board.widgets.keyBgList[pile], paint.restKeyBackground(pile));
    putBackImage(number);
    emit putBack(number);
}

// Either case of f or j puts its mark back, always as a lowercase letter.
void KeyFeedback::putBackMark(int number)
{
    const int cap = Keys::cap(number);
    if (cap != capOfLeftMark && cap != capOfRightMark)
        return;
    QLabel *mark = cap == capOfLeftMark ? board.ui.underScoreLeft : board.ui.underScoreRight;
    wear(mark, board.paint.restText(Keys::unshifted(cap)) + board.looks.lowerFontStyle);
}

void KeyFeedback::putBackImage(int number)
{
    QLabel *image = board.widgets.image(Keys::cap(number));
    const bool passing = image->movie() == &board.images.keypress.movie ||
                         image->movie() == &board.images.mouseover.movie;
    if (number == withoutImageStep && !passing)
        return;
    if (passing || board.images.keypress.isOn() || board.images.mouseover.isOn())
        image->hide();
    if (board.images.keys.isOn()) {
        board.images.keys.layOn(image);
        image->show();
    }
    if (board.game.randomFlagList[Keys::index(randomFlagOf(number))])
        image->hide();
}

void KeyFeedback::allChangeColorBack()
{
    for (int number = 1; number <= Keys::count; ++number)
        changeColorBack(number);
}

void KeyFeedback::paintFinished(int number, const QString &font)
{
    wear(board.widgets.barBackground(number),
         board.looks.barBackground(board.looks.finished.bgStyle));
    wear(board.widgets.barLetter(number), board.looks.finishedTextStyle + font);
}

void KeyFeedback::dressOtherKeys()
{
    const Looks &looks = board.looks;
    const PaintTables &paint = board.paint;
    for (int i = 0; i < Keys::controlCount; ++i) {
        const int place = Keys::capCount + 1 + i;
        wear(board.widgets.placeBackground(place), paint.restKeyBackground(place - 1));
        wear(board.widgets.placeText(place), paint.restControlText(i) + looks.lowerFontStyle);
    }
    const QString clear = "background-color: transparent;";
    wear(board.ui.aKeysMap5, paint.restKeyBackground(0));
    wear(board.ui.aKeysMap3, clear + paint.restText(Keys::unshifted(1)) + looks.lowerFontStyle);
    wear(board.ui.aKeysMap4, clear + paint.restText(Keys::shifted(1)) + looks.upperFontStyle);
}

void KeyFeedback::otherKeys()
{
    for (int pile = Keys::capCount; pile < Keys::pileCount; ++pile)
        wear(board.widgets.lowerKeyList[pile], board.looks.key.upperTextStyle);
    wear(board.ui.underScoreLeft, board.looks.key.lowerTextStyle);
    wear(board.ui.underScoreRight, board.looks.key.lowerTextStyle);
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
    board.ui.letterOfAlphabet2->setText("Letter-number: " +
                                        QString::number(board.game.letterNumber + 1));
}

void KeyFeedback::letterOAlphabet()
{
    board.ui.letterOfAlphabet2->setText("Letter-number: " + letterNumberText);
}

void KeyFeedback::letterOAlphabetNone()
{
    board.ui.letterOfAlphabet2->clear();
}
