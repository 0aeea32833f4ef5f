#include "gameselection.h"

#include "alphabetbaranimation.h"
#include "keyfeedback.h"
#include "sequence.h"
#include "ui_tambrel.h"
#include "waves.h"
#include "wear.h"

namespace {

constexpr const char *veil = "rgba(243, 246, 246, 200)"; // what is below stays legible
constexpr double edge = 0.01;                            // a gradient's stops must not meet

struct SetRow
{
    Keys::Set set;
    QRadioButton *Ui_tambrel::*radio;
    const char *type;
};

// The radios' names come from an earlier alphabet.
constexpr SetRow sets[] = {
    {Keys::Set::Uppercase, &Ui_tambrel::rbConsonants, "Uppercase"},
    {Keys::Set::Lowercase, &Ui_tambrel::rbVarious, "Lowercase"},
    {Keys::Set::NumberLine, &Ui_tambrel::rbNumberLine, "Number Line"},
    {Keys::Set::Everything, &Ui_tambrel::rbAll, "Everything !!"},
};

struct DirectionRow
{
    Direction direction;
    QRadioButton *Ui_tambrel::*radio;
    const char *text;
};

constexpr DirectionRow directions[] = {
    {Direction::Forward, &Ui_tambrel::rbForward_2, "Forward"},
    {Direction::Reverse, &Ui_tambrel::rbReverse_2, "Reverse"},
    {Direction::Random, &Ui_tambrel::rbRandom_2, "Random"},
};

struct Row
{
    Direction direction;
    Keys::Set set;
    QPushButton *Ui_tambrel::*button;
    QRadioButton *Ui_tambrel::*radio;
    const char *typeOfGame;
};

constexpr auto Forward = Direction::Forward, Reverse = Direction::Reverse,
               Random = Direction::Random;
constexpr auto Uppercase = Keys::Set::Uppercase, Lowercase = Keys::Set::Lowercase,
               NumberLine = Keys::Set::NumberLine, Everything = Keys::Set::Everything;

constexpr Row rows[] = {
    {Forward, Everything, &Ui_tambrel::pbForwardAll, &Ui_tambrel::forAll, "a - ?"},
    {Forward, Uppercase, &Ui_tambrel::pbForwardConsonants, &Ui_tambrel::forCon, "A - Z"},
    {Forward, Lowercase, &Ui_tambrel::pbForwardVarious, &Ui_tambrel::forVar, "a - z"},
    {Forward, NumberLine, &Ui_tambrel::pbForwardNumberLine, &Ui_tambrel::forNum, "` - ?"},
    {Reverse, Everything, &Ui_tambrel::pbReverseAll, &Ui_tambrel::revAll, "? - a"},
    {Reverse, Uppercase, &Ui_tambrel::pbReverseConsonants, &Ui_tambrel::revCon, "Z - A"},
    {Reverse, Lowercase, &Ui_tambrel::pbReverseVarious, &Ui_tambrel::revVar, "z - a"},
    {Reverse, NumberLine, &Ui_tambrel::pbReverseNumberLine, &Ui_tambrel::revNum, "? - `"},
    {Random, Everything, &Ui_tambrel::pbRandomAll, &Ui_tambrel::ranAll, "x $ W"},
    {Random, Uppercase, &Ui_tambrel::pbRandomConsonants, &Ui_tambrel::ranCon, "F Q I"},
    {Random, Lowercase, &Ui_tambrel::pbRandomVarious, &Ui_tambrel::ranVar, "j r w"},
    {Random, NumberLine, &Ui_tambrel::pbRandomNumberLine, &Ui_tambrel::ranNum, "% 7 ["},
};

} // namespace

GameSelection::GameSelection(Furniture &usedFurniture, Game &usedGame, KeyFeedback &keyFeedback,
                             AlphabetBarAnimation &barAnimation)
    : furniture(usedFurniture), game(usedGame), feedback(keyFeedback), animation(barAnimation)
{
    for (const Row &row : rows) {
        connect(furniture.ui.*row.button, &QPushButton::clicked, this, [this, row] {
            select(row.direction, row.set);
            emit selected();
        });
    }
    connect(furniture.ui.rbForward_2, &QRadioButton::clicked, this, &GameSelection::makeForward);
    connect(furniture.ui.rbReverse_2, &QRadioButton::clicked, this, &GameSelection::makeReverse);

    gameisAll();
    makeForward();
    furniture.ui.typeOfGame->setText("a - ?");
    hideShields();
}

void GameSelection::makeForward()
{
    choose(Direction::Forward);
}

void GameSelection::makeReverse()
{
    choose(Direction::Reverse);
}

void GameSelection::makeRandom()
{
    choose(Direction::Random);
}

void GameSelection::gameisConsonants()
{
    choose(Keys::Set::Uppercase);
}

void GameSelection::gameisVarious()
{
    choose(Keys::Set::Lowercase);
}

void GameSelection::gameisNumberLine()
{
    choose(Keys::Set::NumberLine);
}

void GameSelection::gameisAll()
{
    choose(Keys::Set::Everything);
}

void GameSelection::choose(Direction direction)
{
    for (const DirectionRow &row : directions) {
        if (row.direction == direction) {
            (furniture.ui.*row.radio)->setChecked(true);
            furniture.ui.direction->setText(row.text);
        }
    }
}

void GameSelection::choose(Keys::Set set)
{
    for (const SetRow &row : sets) {
        if (row.set == set) {
            game.gameLength = Keys::range(set).length();
            (furniture.ui.*row.radio)->setChecked(true);
            furniture.ui.type->setText(row.type);
        }
    }
}

void GameSelection::select(Direction direction, Keys::Set set)
{
    for (const Row &row : rows) {
        if (row.direction == direction && row.set == set) {
            choose(direction);
            choose(set);
            (furniture.ui.*row.radio)->setChecked(true);
            furniture.ui.typeOfGame->setText(row.typeOfGame);
        }
    }
    if (game.animationEnabled)
        runWave(direction, set);
}

void GameSelection::runWave(Direction direction, Keys::Set set)
{
    showShields();
    veilShields(1);
    const int stepMs = direction == Direction::Random ? game.randomDelayStep : game.delayStep;
    const std::vector<Waves::Step> wave = Waves::wave(direction, set);
    const double steps = wave.back().step;
    Sequence::play(wave, stepMs, this, [this, steps](const Waves::Step &step) {
        veilShields(1 - step.step / steps);
        switch (step.what) {
        case Waves::Step::Animate:
            animation.labelAnimate(step.key);
            break;
        case Waves::Step::PutBack:
            feedback.changeColorBack(step.key);
            break;
        case Waves::Step::HideShields:
            hideShields();
            break;
        }
    });
}

void GameSelection::showShields()
{
    setShieldsVisible(true);
}

void GameSelection::hideShields()
{
    setShieldsVisible(false);
}

std::array<QLabel *, 5> GameSelection::shields() const
{
    return {furniture.ui.shieldConsonants, furniture.ui.shieldVarious,
            furniture.ui.shieldNumberLine, furniture.ui.shieldEverything, furniture.ui.shieldStart};
}

void GameSelection::setShieldsVisible(bool visible)
{
    for (QLabel *shield : shields())
        shield->setVisible(visible);
}

void GameSelection::veilShields(double share)
{
    const double left = qBound(0.0, share, 1 - edge);
    const QString sheet = QString("background-color: qlineargradient(x1: 0, y1: 0, x2: 1, y2: 0, "
                                  "stop: 0 %1, stop: %2 %1, stop: %3 transparent);")
                              .arg(veil)
                              .arg(left)
                              .arg(left + edge);
    for (QLabel *shield : shields())
        wear(shield, sheet);
}
