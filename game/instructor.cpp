#include "instructor.h"

#include "announcer.h"
#include "furniture.h"
#include "game.h"
#include "picture.h"
#include "sequence.h"
#include "timers.h"
#include "ui_tambrel.h"
#include "wardrobe.h"
#include "wear.h"
#include "words.h"

namespace {

constexpr int hintMs = 7000;
constexpr int patienceSeconds = 2;
constexpr int blinkSeconds = 20;
constexpr int rotateMs = 50;
constexpr int rotations = 5;

// Hints for the character that stands at an index, and 26 further on for its capital
// or, at 26 and 52, for the first character of a set.
struct Hint
{
    int forwardIndex;
    QLabel *Ui_tambrel::*text;
};

constexpr Hint hints[] = {
    {1, &Ui_tambrel::mes1},  {27, &Ui_tambrel::mes1}, // b B
    {3, &Ui_tambrel::mes2},  {29, &Ui_tambrel::mes2}, // d D
    {6, &Ui_tambrel::mes3},  {32, &Ui_tambrel::mes3}, // g G
    {8, &Ui_tambrel::mes4},  {34, &Ui_tambrel::mes4}, // i I
    {15, &Ui_tambrel::mes5}, {41, &Ui_tambrel::mes5}, // p P
    {26, &Ui_tambrel::mes6}, {52, &Ui_tambrel::mes6}, // A `
    {68, &Ui_tambrel::mes7},                          // #
};

// What keeps words legible on any wallpaper. A plate is as large as the words on it, and gone
// without them.
struct Plate
{
    QLabel *Ui_tambrel::*back;
    QLabel *Ui_tambrel::*labels[3];
};

constexpr Plate plates[] = {
    {&Ui_tambrel::backInstructor,
     {&Ui_tambrel::display2, &Ui_tambrel::display3, &Ui_tambrel::letterOfAlphabet2}},
    {&Ui_tambrel::backNoteLeft, {&Ui_tambrel::labelInstructionsLeft}},
    {&Ui_tambrel::backNoteRight, {&Ui_tambrel::labelInstructionsRight}},
};
constexpr QMargins platePadding(5, 4, 5, 4); // px around the words

} // namespace

Instructor::Instructor(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
                       Timers &windowTimers)
    : furniture(usedFurniture),
      wardrobe(usedWardrobe),
      game(usedGame),
      timers(windowTimers),
      announcer(new Announcer(furniture.ui.display2->parentWidget())),
      chebPixmapList{picture(":/new/prefix1/chdown.png"), picture(":/new/prefix1/chmiddle.png"),
                     picture(":/new/prefix1/chup.png")}
{
    show(Down);
    furniture.ui.centralWidget->installEventFilter(this);
    fitPlates();
}

// Any room may change or hide what a plate carries, and each time Qt asks the labels' parent to
// lay out anew.
bool Instructor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        fitPlates();
    return QObject::eventFilter(watched, event);
}

void Instructor::fitPlates()
{
    for (const Plate &plate : plates) {
        QRect words;
        for (auto member : plate.labels) {
            const QLabel *label = member ? furniture.ui.*member : nullptr;
            if (label && !label->isHidden() && !label->text().isEmpty())
                words |= wordsOf(*label).translated(label->pos());
        }
        (furniture.ui.*plate.back)->setVisible(!words.isNull());
        (furniture.ui.*plate.back)->setGeometry(words.marginsAdded(platePadding));
    }
}

void Instructor::say(const QString &message)
{
    furniture.ui.display2->setText(message);
    announcer->say(message.simplified());
}

void Instructor::clearGoodJob()
{
    furniture.ui.display2->clear();
}

void Instructor::clearGoodJobAfter(int ms)
{
    Sequence::after(ms, this, [this] { clearGoodJob(); });
}

void Instructor::clearDis3()
{
    furniture.ui.display3->hide();
}

void Instructor::wouldYouLikeToPlayAgain()
{
    if (game.gameRunning)
        return;
    say("Would you like\nto play again?");
}

void Instructor::whatAMess()
{
    say("\n\"What a Mess.\n\nWait for it.\"");
}

void Instructor::insMessages()
{
    clearGoodJob();
    furniture.ui.display3->show();
    furniture.ui.display3->setText(furniture.ui.table->item(0, 1)->text());
    Sequence::after(2000, this, [this] { clearDis3(); });
}

// Reads forwardIndex alone, which stays 0 in Reverse and Random games: no hints there.
void Instructor::showLetterHint()
{
    for (const Hint &hint : hints) {
        if (hint.forwardIndex == game.forwardIndex) {
            say((furniture.ui.*hint.text)->text());
            clearGoodJobAfter(hintMs);
        }
    }
    warnOfFadeInRandom("Fade Out does not work with Random");
}

void Instructor::warnOfFadeInRandom(const QString &warning)
{
    if (game.fade != GameState::Fade::Out || game.choice.direction() != Direction::Random)
        return;
    say(warning);
    clearGoodJobAfter(hintMs);
}

void Instructor::remindOfSpace()
{
    const bool waits = !game.choice.isStrict() && !furniture.ui.leUser->text().isEmpty();
    if (!waits || game.entriesTyped != entriesSeen)
        secondsWaited = 0;
    else
        ++secondsWaited;
    entriesSeen = game.entriesTyped;
    if (secondsWaited < patienceSeconds || remindedOfSpace)
        return;
    remindedOfSpace = true;
    say("Press Space\nto enter it.");
    clearGoodJobAfter(hintMs);
}

namespace {

void fold(bool &open, QLabel *note, QPushButton *button)
{
    open = !open;
    note->setVisible(open);
    button->setText(open ? "<" : ">>>");
}

} // namespace

void Instructor::hideInsLeft()
{
    fold(insLeftFlag, furniture.ui.labelInstructionsLeft, furniture.ui.buttonInstructionsLeft);
}

void Instructor::hideInsRight()
{
    fold(insRightFlag, furniture.ui.labelInstructionsRight, furniture.ui.buttonInstructionsRight);
}

// In reading order, which is not the order of their numbers.
std::array<QLabel *, 3> Instructor::sampleLetters() const
{
    return {furniture.ui.dem1, furniture.ui.dem6, furniture.ui.dem2};
}

void Instructor::set_dem_Text()
{
    int first = Keys::range(game.choice.keySet()).first;
    for (QLabel *sample : sampleLetters())
        sample->setText(furniture.widgets.barLetter(first++)->text());
}

void Instructor::set_dem_StyleSheet()
{
    const Looks &looks = wardrobe.looks;
    bool shifted = game.choice.keySet() == Keys::Set::Uppercase;
    // A target among the first three letters of either case wins over the choice.
    const int target = game.target();
    if (target >= 0 && target <= 2)
        shifted = false;
    else if (target >= 26 && target <= 28)
        shifted = true;
    const QString sheet = looks.demRadiusStyle + looks.finished.bgStyle + looks.finishedTextStyle +
                          looks.middleFontSizeStyle + looks.font(shifted);
    for (QLabel *sample : sampleLetters())
        wear(sample, sheet);
}

void Instructor::startChebTimer()
{
    killChebTimer();
    remindedOfSpace = false;
    chebTimerId = timers.start(1000, [this] { chebTick(); });
}

void Instructor::killChebTimer()
{
    timers.stop(chebTimerId);
    chebCounter = 0;
}

void Instructor::chebTick()
{
    ++chebCounter;
    remindOfSpace();
    if (chebCounter % blinkSeconds != 0)
        return;
    struct Blink
    {
        int ms;
        Picture picture;
    };
    constexpr Blink blinks[] = {{0, Down},      {200, Middle}, {250, Up},
                                {2000, Middle}, {4000, Up},    {6000, Down}};
    // The tick count is part of each delay, so the blink starts a few ms later each time.
    for (const Blink &blink : blinks)
        Sequence::after(chebCounter + blink.ms, this, [this, blink] { show(blink.picture); });
}

void Instructor::startRotate()
{
    stopRotate();
    rotateTimerId = timers.start(rotateMs, [this] { rotateTick(); });
}

void Instructor::stopRotate()
{
    timers.stop(rotateTimerId);
    rotateCount = 0;
}

void Instructor::rotateTick()
{
    QLabel *label = furniture.ui.piclabel1;
    label->setPixmap(label->pixmap(Qt::ReturnByValue).transformed(QTransform().rotate(45)));
    if (++rotateCount == rotations)
        stopRotate();
}

// He looks up in a game alone.
void Instructor::show(Picture picture)
{
    furniture.ui.piclabel1->setPixmap(
        chebPixmapList[furniture.ui.leMatch->isEnabled() ? picture : Down]);
}
