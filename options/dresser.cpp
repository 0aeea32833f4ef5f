#include "dresser.h"

#include "furniture.h"
#include "game.h"
#include "instructor.h"
#include "keyfeedback.h"
#include "matchboxes.h"
#include "optionforms.h"
#include "pickertable.h"
#include "targethighlights.h"
#include "ui_colormadness.h"
#include "ui_linehighlightpanel.h"
#include "ui_lookpage.h"
#include "ui_tambrel.h"
#include "wardrobe.h"
#include "wear.h"

namespace {

constexpr const char *clear = "background-color: transparent;";

constexpr int upperKeyPicker = 1;
constexpr int lowerKeyPicker = 2;

} // namespace

Dresser::Dresser(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
                 KeyFeedback &keyFeedback, MatchBoxes &usedBoxes, Instructor &virtualInstructor,
                 TargetHighlights &targetHighlights, const OptionForms &optionForms)
    : furniture(usedFurniture),
      wardrobe(usedWardrobe),
      game(usedGame),
      feedback(keyFeedback),
      matchBoxes(usedBoxes),
      instructor(virtualInstructor),
      highlights(targetHighlights),
      forms(optionForms)
{}

void Dresser::all()
{
    keyboard();
    highlight();
    lines();
    wallpaper();
    boxes();
    boxTexts(true, true);
    previews();
}

// ---- keys and bar

void Dresser::keyboard()
{
    feedback.dressOtherKeys();
    feedback.allChangeColorBack();
}

void Dresser::keys()
{
    for (const Keys::Place place : Keys::places)
        wear(furniture.widgets.background(place), wardrobe.paint.restKeyBackground(place));
    bar([this](int key) { return wardrobe.paint.restBarBackground(Keys::Place::ofKey(key)); });
    highlights.restore();
}

// What is finished stays so.
void Dresser::bar(const std::function<QString(int)> &sheetOf)
{
    const Looks &looks = wardrobe.looks;
    for (int key = 1; key <= Keys::count; ++key)
        wear(furniture.widgets.barBackground(key),
             game.isKeyPressed(key) ? looks.barBackground(looks.finished.bgStyle) : sheetOf(key));
}

void Dresser::keyLookAlone()
{
    const Looks &looks = wardrobe.looks;
    for (const Keys::Place place : Keys::places)
        wear(furniture.widgets.background(place),
             place.isCap() ? looks.keyBackground(looks.key) : looks.controlKeyBackground());
    bar([&looks](int) { return looks.barBackground(looks.key.bgStyle); });
    highlights.restore();
}

void Dresser::characters(bool shifted, const QString &ground)
{
    const Looks &looks = wardrobe.looks;
    const PaintTables &paint = wardrobe.paint;
    for (int cap = 1; cap <= Keys::capCount; ++cap) {
        const int key = Keys::keyOfCap(cap, shifted);
        const QString text = paint.restText(key) + looks.font(shifted);
        wear(furniture.widgets.barLetter(key), text);
        wear(furniture.widgets.keyText(key), ground + text);
    }
    if (!shifted) {
        for (int i = 0; i < Keys::controlCount; ++i)
            wear(furniture.widgets.text(Keys::Place::ofControl(i)),
                 paint.restControlText(i) + looks.lowerFontStyle);
        for (QWidget *mark : {furniture.ui.underScoreRight, furniture.ui.underScoreLeft})
            wear(mark, looks.key.lowerTextStyle + looks.lowerFontStyle);
    }
    character(shifted ? upperKeyPicker : lowerKeyPicker);
    sampleKeys(looks.key.text(shifted), shifted);
}

void Dresser::finished()
{
    const Looks &looks = wardrobe.looks;
    instructor.set_dem_StyleSheet();
    sample(looks.finished);
    character(forms.colorMadness->demoLetterFinishedUppercase, looks.finishedTextStyle, true);
    character(forms.colorMadness->demoLetterFinishedLowercase, looks.finishedTextStyle, false);
}

void Dresser::finishedKeys()
{
    if (game.isAnyKeyPressed())
        feedback.allChangeColorBack();
    highlights.restore();
}

void Dresser::highlight()
{
    highlights.dressButton();
    highlights.restore();
}

// ---- the rest of the window

void Dresser::lines()
{
    highlights.dressLines();
    const LineLook &look = wardrobe.looks.lineHigh;
    for (QWidget *sample : {forms.lines->lhVertDisplay, forms.lines->lhVertDisplay_2})
        wear(sample, look.verticalStyle);
    for (QWidget *sample : {forms.lines->liHordisplay, forms.lines->liHordisplay_3})
        wear(sample, look.horizontalStyle);
}

void Dresser::wallpaper()
{
    wear(furniture.ui.wallpaper, wardrobe.looks.wallpaperSheet());
}

void Dresser::boxes()
{
    matchBoxes.dressBackgrounds();
}

void Dresser::boxTexts(bool match, bool user)
{
    const Looks &looks = wardrobe.looks;
    const QString sheet = " font: 12pt 'MS Shell Dlg 2';" + looks.matchTextStyle;
    if (match) {
        matchBoxes.set_Match_StyleSheet();
        // Two blanks where Match This is dressed alone.
        if (looks.matchBox.header)
            wear(furniture.ui.matchThis, clear + QString(user ? "" : " ") + sheet);
    }
    if (user) {
        matchBoxes.set_User_StyleSheet();
        if (looks.userBox.header)
            wear(furniture.ui.yourEntry, clear + sheet);
    }
}

// ---- the panels

void Dresser::previews()
{
    const Looks &looks = wardrobe.looks;
    for (const Look *look :
         {static_cast<const Look *>(&looks.keypress), static_cast<const Look *>(&looks.mouseover),
          static_cast<const Look *>(&looks.highlight), &looks.rainbow})
        sample(*look);
    sample(looks.key);
    for (int picker = 1; picker <= PickerRow::count; ++picker)
        character(picker);
    brush(true);
    brush(false);
    finished();
    lines();
    // Cap 1 with its paint, if it has some.
    sampleKeys(wardrobe.paint.restKeyBackground(Keys::Place::ofCap(1)));
    for (const bool shifted : {false, true})
        sampleKeys(wardrobe.paint.restText(Keys::keyOfCap(1, shifted)), shifted);
    themeLetters();
}

void Dresser::sample(const Look &look)
{
    const Looks &looks = wardrobe.looks;
    const Ui::colorMadnessPanel &form = *forms.colorMadness;
    const std::pair<const Look *, QWidget *> samples[] = {
        {&looks.key, forms.keys->sample},
        {&looks.keypress, forms.keypress->sample},
        {&looks.mouseover, forms.mouseover->sample},
        {&looks.highlight, forms.highlight->sample},
        {&looks.highlight, form.demoLetter4Bg}, // and on the tab of the paint
        {&looks.rainbow, form.demoLetter4Bg},
        {&looks.finished, form.demoLetterFinishedBg},
    };
    for (const auto &[worn, label] : samples) {
        if (worn == &look)
            wear(label, looks.demoRadiusStyle + look.bgStyle + look.borderStyle);
    }
}

void Dresser::keySamples()
{
    sample(wardrobe.looks.key);
    sampleKeys(wardrobe.looks.keyBackground(wardrobe.looks.key));
}

void Dresser::character(QWidget *sample, const QString &text, bool shifted)
{
    const Looks &looks = wardrobe.looks;
    wear(sample, clear + text + (shifted ? looks.upperFontSizeStyle : looks.lowerFontSizeStyle) +
                     looks.font(shifted));
}

void Dresser::character(int picker)
{
    const std::pair<int, QWidget *> samples[] = {
        {upperKeyPicker, forms.keys->upperSample},
        {lowerKeyPicker, forms.keys->lowerSample},
        {4, forms.keypress->upperSample},
        {5, forms.keypress->lowerSample},
        {7, forms.mouseover->upperSample},
        {8, forms.mouseover->lowerSample},
        {10, forms.colorMadness->demoLetterFinishedUppercase},
        {15, forms.highlight->lowerSample},
        {25, forms.highlight->upperSample},
    };
    const PickerRow &row = PickerRow::of(picker);
    for (const auto &[number, label] : samples) {
        if (number == picker)
            character(label, row.fragment(wardrobe.looks), row.shifted);
    }
}

void Dresser::brush(bool shifted)
{
    character(shifted ? forms.colorMadness->demoLetter4English
                      : forms.colorMadness->demoLetter4LowerCase,
              wardrobe.looks.brush(shifted), shifted);
}

void Dresser::sampleKeys(const QString &background)
{
    for (QWidget *sample :
         {forms.lines->linePosition1BG, forms.lines->linePosition2BG, furniture.ui.aKeysMap5})
        wear(sample, background);
}

void Dresser::sampleKeys(const QString &text, bool shifted)
{
    const Ui::lineHighlightPanel &form = *forms.lines;
    const QString sheet = clear + text + wardrobe.looks.font(shifted);
    const std::array<QWidget *, 3> lower{form.linePosition1Lowercase, form.linePosition2Lowercase,
                                         furniture.ui.aKeysMap3};
    const std::array<QWidget *, 3> upper{form.linePosition1Uppercase, form.linePosition2Uppercase,
                                         furniture.ui.aKeysMap4};
    for (QWidget *sample : shifted ? upper : lower)
        wear(sample, sheet);
}

void Dresser::themeLetters()
{
    struct Letters
    {
        QWidget *lower, *upper;
        const char *lowerColor, *upperColor;
    };
    const Ui::colorMadnessPanel &form = *forms.colorMadness;
    // In the tile of the third theme the two labels have changed places.
    const Letters themes[] = {
        {form.theme1, form.theme1_2, "color: white;", "color: white;"},
        {form.theme2, form.theme2_2, "color: yellow;", "color: yellow;"},
        {form.theme3_2, form.theme3, "color: #00557f;", "color: #65307f;"},
    };
    for (const Letters &row : themes) {
        wear(row.lower, QString(clear) + " " + wardrobe.looks.lowerFontStyle + row.lowerColor);
        wear(row.upper, clear + wardrobe.looks.upperFontStyle + row.upperColor);
    }
}
