#include "alphabetbaranimation.h"

#include "board.h"
#include "keyfeedback.h"
#include "sequence.h"
#include "ui_tambrel.h"
#include "wear.h"

namespace {

constexpr int roundSize = 62; // px; as wide as the keys stand apart

struct Radii
{
    const char *key, *bar, *demo, *dem, *gamePlay;
};
constexpr Radii roundKeys = {"border-radius: 31px;", "border-radius: 14px;", "border-radius: 39px;",
                             "border-radius: 17px;", "border-radius: 30px;"};
constexpr Radii squareKeys = {"border-radius: 10px;", "border-radius: 10px;",
                              "border-radius: 10px;", "border-radius: 10px;",
                              "border-radius: 10px;"};

constexpr int runLength = 33;

} // namespace

AlphabetBarAnimation::AlphabetBarAnimation(Board &usedBoard, KeyFeedback &keyFeedback)
    : board(usedBoard), feedback(keyFeedback)
{
    connect(board.ui.animationOn, &QRadioButton::clicked, this,
            &AlphabetBarAnimation::animationOn_function);
    connect(board.ui.animationOff, &QRadioButton::clicked, this,
            &AlphabetBarAnimation::animationOff_function);
    connect(board.ui.sliderKeyShape, &QSlider::valueChanged, this,
            &AlphabetBarAnimation::makeCircle);

    const auto remember = [this](QWidget *widget) {
        keyWidgets.push_back({widget, widget->geometry(), widget->contentsMargins()});
    };
    const KeyboardWidgets &widgets = board.widgets;
    for (const auto *list :
         {&widgets.keyBgList, &widgets.shieldList, &widgets.keyImgList, &widgets.lowerKeyList,
          &widgets.upperKeyList, &widgets.displayNoneList}) {
        for (int i = 0; i < Keys::capCount; ++i)
            remember((*list)[i]);
    }
    for (QWidget *sample : {board.ui.aKeysMap5, board.ui.aKeysMap3, board.ui.aKeysMap4})
        remember(sample);
}

void AlphabetBarAnimation::labelAnimate(int number)
{
    if (!Keys::isKey(number))
        return;
    wear(board.widgets.barLetter(number),
         "background-color: black; color:blue;" + board.looks.font(Keys::isShifted(number)));
}

void AlphabetBarAnimation::animationOn_function()
{
    board.ui.animationOn->setChecked(true);
    board.game.animationEnabled = true;
    wear(board.ui.animationOn, "color:  blue;");
    wear(board.ui.animationOff, "color: black;");
}

void AlphabetBarAnimation::animationOff_function()
{
    board.ui.animationOff->setChecked(true);
    board.game.animationEnabled = false;
    wear(board.ui.animationOff, "color:  blue;");
    wear(board.ui.animationOn, "color: black;");
}

void AlphabetBarAnimation::lock()
{
    board.game.animationEnabled = false;
    for (QRadioButton *button : {board.ui.animationOn, board.ui.animationOff}) {
        button->setEnabled(false);
        wear(button, "color: #6e6e6e;");
    }
}

void AlphabetBarAnimation::unlock()
{
    board.game.animationEnabled = true;
    board.ui.animationOn->setEnabled(true);
    board.ui.animationOff->setEnabled(true);
    board.ui.animationOn->setChecked(true);
}

void AlphabetBarAnimation::startAnimation(bool downwards)
{
    const int step = ++board.game.delayStep;
    if (!animationFlag)
        return;
    animationFlag = false;
    for (int i = 1; i <= runLength; ++i) {
        const int key = downwards ? runLength + 1 - i : i;
        Sequence::after(i * step, this, [this, key] { feedback.key(key); });
    }
    Sequence::after((runLength + 1) * step, this, [this] { boolFlag(); });
}

void AlphabetBarAnimation::makeCircle(int position)
{
    const bool circle = position == 1;
    const Radii &radii = circle ? roundKeys : squareKeys;
    Looks &looks = board.looks;
    looks.keyRadiusStyle = radii.key;
    looks.barRadiusStyle = radii.bar;
    looks.demoRadiusStyle = radii.demo;
    looks.demRadiusStyle = radii.dem;
    looks.gamePlayRadiusStyle = radii.gamePlay;
    for (const Resized &key : keyWidgets) {
        QRect place = key.home;
        QMargins margins = key.margins;
        if (circle) {
            place.setSize({roundSize, roundSize});
            place.moveCenter(key.home.center());
            // Characters stay where the lines cross, which also keeps them inside the circle.
            const int inset = key.home.top() - place.top();
            margins += QMargins(inset, inset, inset, inset);
        }
        // The picture of a key that a burst has taken waits at the mirror of its place.
        if (key.widget->x() < 0)
            place.moveLeft(-place.left());
        key.widget->setGeometry(place);
        key.widget->setContentsMargins(margins);
    }
    emit shapeChanged();
}
