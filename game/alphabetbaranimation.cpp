#include "alphabetbaranimation.h"

#include "furniture.h"
#include "game.h"
#include "keyfeedback.h"
#include "sequence.h"
#include "ui_tambrel.h"
#include "wardrobe.h"
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

} // namespace

AlphabetBarAnimation::AlphabetBarAnimation(Furniture &usedFurniture, Wardrobe &usedWardrobe,
                                           Game &usedGame, KeyFeedback &keyFeedback)
    : furniture(usedFurniture), wardrobe(usedWardrobe), game(usedGame), feedback(keyFeedback)
{
    connect(furniture.ui.animationOn, &QRadioButton::clicked, this,
            &AlphabetBarAnimation::animationOn_function);
    connect(furniture.ui.animationOff, &QRadioButton::clicked, this,
            &AlphabetBarAnimation::animationOff_function);
    connect(furniture.ui.sliderKeyShape, &QSlider::valueChanged, this,
            &AlphabetBarAnimation::makeCircle);

    const auto remember = [this](QWidget *widget) {
        keyWidgets.push_back({widget, widget->geometry(), widget->contentsMargins()});
    };
    const KeyboardWidgets &widgets = furniture.widgets;
    for (const auto *list :
         {&widgets.keyBgList, &widgets.shieldList, &widgets.keyImgList, &widgets.lowerKeyList,
          &widgets.upperKeyList, &widgets.displayNoneList}) {
        for (int i = 0; i < Keys::capCount; ++i)
            remember((*list)[i]);
    }
    for (QWidget *sample : {furniture.ui.aKeysMap5, furniture.ui.aKeysMap3, furniture.ui.aKeysMap4})
        remember(sample);
}

void AlphabetBarAnimation::labelAnimate(int number)
{
    if (!Keys::isKey(number))
        return;
    wear(furniture.widgets.barLetter(number),
         "background-color: black; color:blue;" + wardrobe.looks.font(Keys::isShifted(number)));
}

void AlphabetBarAnimation::animationOn_function()
{
    furniture.ui.animationOn->setChecked(true);
    game.animationEnabled = true;
    wear(furniture.ui.animationOn, "color:  blue;");
    wear(furniture.ui.animationOff, "color: black;");
}

void AlphabetBarAnimation::animationOff_function()
{
    furniture.ui.animationOff->setChecked(true);
    game.animationEnabled = false;
    wear(furniture.ui.animationOff, "color:  blue;");
    wear(furniture.ui.animationOn, "color: black;");
}

void AlphabetBarAnimation::lock()
{
    game.animationEnabled = false;
    for (QRadioButton *button : {furniture.ui.animationOn, furniture.ui.animationOff}) {
        button->setEnabled(false);
        wear(button, "color: #6e6e6e;");
    }
}

void AlphabetBarAnimation::unlock()
{
    game.animationEnabled = true;
    furniture.ui.animationOn->setEnabled(true);
    furniture.ui.animationOff->setEnabled(true);
    furniture.ui.animationOn->setChecked(true);
}

void AlphabetBarAnimation::makeCircle(int position)
{
    const bool circle = position == 1;
    const Radii &radii = circle ? roundKeys : squareKeys;
    Looks &looks = wardrobe.looks;
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
