#include "keyboardtheme.h"

#include "board.h"
#include "gradientpanels.h"
#include "instructor.h"
#include "shadows.h"
#include "ui_tambrel.h"
#include "wear.h"

#include <QSlider>

namespace {

constexpr const char *clear = "background-color: transparent;";
constexpr int shapes = 5;
constexpr int stops = 10;

} // namespace

KeyboardTheme::KeyboardTheme(Board &usedBoard, GradientPanels &gradientPanels, Shadows &shadows,
                             Instructor &virtualInstructor, ThemeFile::Shared &sharedState)
    : board(usedBoard),
      panels(gradientPanels),
      shadowGroups(shadows),
      instructor(virtualInstructor),
      shared(sharedState)
{
    Looks &l = board.looks;
    Look *const looks[] = {&l.key, &l.keypress, &l.mouseover, &l.highlight};
    size_t at = 0;
    const auto add = [&](int Look::*number, int largest) {
        for (Look *look : looks)
            twins[at++] = {&(look->*number), largest, QString()};
    };
    add(&Look::borderShape, shapes);
    add(&Look::bgShape, shapes);
    add(&Look::bgStopPos, stops);
    add(&Look::borderStopPos, stops);
}

void KeyboardTheme::attach(QWidget &window)
{
    mainWindow = &window;
    const PanelWidgets &widgets = board.panelWidgets;
    connect(widgets.button("saveKeyboard"), &QAbstractButton::clicked, this,
            &KeyboardTheme::saveKeyboard_Function);
    connect(widgets.button("openKeyboard"), &QAbstractButton::clicked, this,
            &KeyboardTheme::openKeyboard_Function);
}

// In the order of the lines.
ThemeFile::Fields KeyboardTheme::fields()
{
    Looks &l = board.looks;
    LineLook &lines = l.lineHigh;
    ThemeFile::Fields list{&keyboardThemeMarker, &shared.themeLanguageMarker};
    for (Look *look :
         {static_cast<Look *>(&l.key), static_cast<Look *>(&l.keypress),
          static_cast<Look *>(&l.mouseover), static_cast<Look *>(&l.highlight), &l.finished})
        list += {&look->bgStart, &look->bgEnd};
    list += {&lines.horizontalStart, &lines.horizontalEnd};
    for (Look *look : {&l.wallpaper, &l.rainbow, &l.gamePlay})
        list += {&look->bgStart, &look->bgEnd};
    Look *const bordered[] = {&l.key,       &l.keypress, &l.mouseover,
                              &l.highlight, &l.rainbow,  &l.gamePlay};
    for (Look *look : bordered)
        list += &look->borderEnd;
    for (Look *look : bordered)
        list += &look->borderStart;
    list += {&l.key.gradStop,
             &l.keypress.gradStop,
             &l.mouseover.gradStop,
             &l.highlight.gradStop,
             &l.finished.gradStop,
             &lines.gradStop,
             &l.wallpaper.gradStop,
             &l.rainbow.gradStop,
             &l.gamePlay.gradStop,
             &l.key.bgStyle,
             &l.keypress.bgStyle,
             &l.mouseover.bgStyle,
             &l.highlight.bgStyle,
             &l.finished.bgStyle,
             &l.key.borderWidth,
             &l.keypress.borderWidth,
             &l.mouseover.borderWidth,
             &l.rainbow.borderWidth,
             &l.key.upperTextStyle,
             &l.key.lowerTextStyle,
             &l.key.upperTextStyle, // once more: this line decides
             &l.keypress.upperTextStyle,
             &l.keypress.lowerTextStyle,
             &l.mouseover.upperTextStyle,
             &l.mouseover.lowerTextStyle,
             &l.finishedTextStyle,
             &l.highlight.lowerTextStyle,
             &l.highlight.upperTextStyle,
             &l.key.borderStyle,
             &l.keypress.borderStyle,
             &l.mouseover.borderStyle,
             &l.highlight.borderStyle,
             &l.wallpaper.borderStyle,
             &l.wallpaper.bgStyle};
    for (Twin &twin : twins)
        list += &twin.text;
    const auto bgHex = [&](Look &look) { list += {&look.bgEndHex, &look.bgStartHex}; };
    const auto borderHex = [&](Look &look) { list += {&look.borderEndHex, &look.borderStartHex}; };
    for (Look *look : {&l.key, &l.keypress, &l.mouseover, &l.highlight}) {
        bgHex(*look);
        borderHex(*look);
    }
    bgHex(l.finished);
    borderHex(l.wallpaper);
    list += {&lines.horizontalEndHex, &lines.horizontalStartHex, &lines.verticalEndHex,
             &lines.verticalStartHex};
    bgHex(l.wallpaper);
    list += {&spareHexA, &spareHexB};
    for (Look *look : {&l.rainbow, &l.gamePlay}) {
        bgHex(*look);
        borderHex(*look);
    }
    list += {&l.matchTextStyle, &l.gamePlay.borderStyle, &l.gamePlay.bgStyle,   &l.lowerFontStyle,
             &l.upperFontStyle, &shared.lowerFontName,   &shared.upperFontName, &l.userTextStyle};
    return list;
}

void KeyboardTheme::saveKeyboard_Function()
{
    const QString path = ThemeFile::askToSave(*mainWindow, "Save Keyboard", "./Keyboard Theme.txt");
    // The first goes by the slider, whichever target that shows.
    ThemeFile::put(panels.shape(GradientPanels::Key), shapes, twins[0].text);
    for (size_t i = 1; i < twins.size(); ++i)
        ThemeFile::put(*twins[i].number, twins[i].largest, twins[i].text);
    shared.readFonts(board.panelWidgets);
    ThemeFile::write(path, fields());
}

void KeyboardTheme::openKeyboard_Function()
{
    const QString path = ThemeFile::askToOpen(*mainWindow, "Open Keyboard Theme");
    if (ThemeFile::open(path, fields(),
                        {"keyboardTheme", "paintTheme", keyboardThemeMarker, "0",
                         "This is not a Keyboard theme"},
                        shared, board.panelWidgets))
        loadKeyboard();
}

void KeyboardTheme::loadKeyboard()
{
    Looks &looks = board.looks;
    const PanelWidgets &widgets = board.panelWidgets;
    shadowGroups.shadowThClear();
    for (const Twin &twin : twins)
        ThemeFile::take(twin.text, twin.largest, *twin.number);
    for (int place = Keys::capCount + 1; place <= Keys::pileCount; ++place) {
        wear(board.widgets.placeBackground(place), looks.controlKeyBackground());
        wear(board.widgets.placeText(place), clear + looks.lowerFontStyle);
    }
    wear(board.ui.wallpaper, looks.wallpaper.bgStyle + looks.wallpaper.borderStyle);

    const GradientPanels::Panel sliders[] = {GradientPanels::Key,       GradientPanels::Keypress,
                                             GradientPanels::Mouseover, GradientPanels::Highlight,
                                             GradientPanels::Wallpaper, GradientPanels::Paint,
                                             GradientPanels::GamePlay};
    for (const auto panel : sliders)
        widgets.find<QSlider>(QString("hoSlider%1").arg(panel))
            ->setSliderPosition(panels.look(panel).bgShape);
    for (const auto panel : sliders)
        widgets.find<QSlider>(QString("slider%1").arg(panel))
            ->setSliderPosition(panels.look(panel).bgStopPos);

    panels.dressKeys();
    for (int place = 1; place <= Keys::pileCount; ++place)
        wear(board.widgets.placeText(place), looks.key.lowerTextStyle + looks.lowerFontStyle);
    for (QWidget *letter : qAsConst(board.widgets.upperKeyList))
        wear(letter, looks.key.upperTextStyle + looks.upperFontStyle);
    panels.dressBar();
    for (QWidget *letter : qAsConst(board.widgets.alphabetLabelList))
        wear(letter, looks.key.upperTextStyle);
    dressSamples();
    panels.dressGamePlayTexts();
    panels.dressGamePlay();
    wear(board.ui.underScoreRight, looks.key.lowerTextStyle + looks.lowerFontStyle);
    wear(board.ui.underScoreLeft, looks.key.lowerTextStyle + looks.lowerFontStyle);
    shared.chooseFonts(widgets);
    panels.bgColorLoops();
    wear(board.ui.pbQuit, "font: 16pt 'MS Shell Dlg 2';  color: rgb(85, 0, 0); background-color: "
                          "transparent; ");
    wear(board.ui.hideNonVitals, "font: 10pt 'MS Shell Dlg 2';   color: rgb(85, 0, 0); "
                                 "background-color: transparent;");
}

void KeyboardTheme::dressSamples()
{
    const Looks &looks = board.looks;
    const PaintTables &paint = board.paint;
    const PanelWidgets &widgets = board.panelWidgets;
    panels.dressPreviews();
    // Both letters in the lowercase's color, and the sizes crossed, as it has always been.
    wear(widgets.find("demoLetter3"),
         clear + looks.keypress.lowerTextStyle + looks.upperFontSizeStyle + looks.lowerFontStyle);
    wear(widgets.find("demoLetter1"),
         clear + looks.keypress.lowerTextStyle + looks.lowerFontSizeStyle + looks.upperFontStyle);
    instructor.set_dem_StyleSheet();
    wear(widgets.find("demoLetter4Bg"),
         looks.demoRadiusStyle + paint.paintKeyBgStyle[0] + looks.rainbow.borderStyle);
    panels.dressCharacter("demoLetter4English", paint.paintTextStyle[26], true);
    panels.dressCharacter("demoLetter4LowerCase", paint.paintTextStyle[0], false);
    wear(board.ui.goldenHighlight, looks.keyBackground(looks.highlight));
}
