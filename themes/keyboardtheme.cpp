#include "keyboardtheme.h"

#include "dresser.h"
#include "filechoice.h"
#include "furniture.h"
#include "gradientpanels.h"
#include "optionforms.h"
#include "shadows.h"
#include "ui_colormadness.h"
#include "ui_lookpage.h"
#include "ui_tambrel.h"
#include "wardrobe.h"
#include "wear.h"

namespace {

constexpr int shapes = 5;
constexpr int stops = 10;

} // namespace

KeyboardTheme::KeyboardTheme(Furniture &usedFurniture, Wardrobe &usedWardrobe,
                             GradientPanels &gradientPanels, Dresser &usedDresser, Shadows &shadows,
                             ThemeFile::Shared &sharedState, const OptionForms &optionForms,
                             FileChoice &fileChoice)
    : furniture(usedFurniture),
      wardrobe(usedWardrobe),
      panels(gradientPanels),
      dresser(usedDresser),
      shadowGroups(shadows),
      shared(sharedState),
      form(*optionForms.colorMadness),
      keypress(*optionForms.keypress),
      choice(fileChoice)
{
    connect(form.saveKeyboard, &QAbstractButton::clicked, this,
            &KeyboardTheme::saveKeyboard_Function);
    connect(form.openKeyboard, &QAbstractButton::clicked, this,
            &KeyboardTheme::openKeyboard_Function);

    Looks &l = wardrobe.looks;
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

ThemeFile::Kind KeyboardTheme::kind() const
{
    return {{form.keyboardTheme, form.keyboardTheme_2, form.keyboardTheme_3},
            {form.paintTheme, form.paintTheme_2, form.paintTheme_3},
            keyboardThemeMarker,
            "0",
            "This is not a Keyboard theme"};
}

// In the order of the lines.
ThemeFile::Fields KeyboardTheme::fields()
{
    using StyleText::Kind;
    Looks &l = wardrobe.looks;
    LineLook &lines = l.lineHigh;
    ThemeFile::Fields list;
    const auto add = [&list](Kind kind, auto &...texts) { (list.append({&texts, kind}), ...); };
    const auto ofEach = [&](Kind kind, QString Look::*text, std::initializer_list<Look *> looks) {
        for (Look *look : looks)
            add(kind, look->*text);
    };
    const auto bgColors = [&](std::initializer_list<Look *> looks) {
        for (Look *look : looks)
            add(Kind::Color, look->bgStart, look->bgEnd);
    };
    const std::initializer_list<Look *> bordered{&l.key,       &l.keypress, &l.mouseover,
                                                 &l.highlight, &l.rainbow,  &l.gamePlay};

    add(Kind::Plain, keyboardThemeMarker, shared.themeLanguageMarker);
    bgColors({&l.key, &l.keypress, &l.mouseover, &l.highlight, &l.finished});
    add(Kind::Color, lines.horizontalStart, lines.horizontalEnd);
    bgColors({&l.wallpaper, &l.rainbow, &l.gamePlay});
    ofEach(Kind::Color, &Look::borderEnd, bordered);
    ofEach(Kind::Color, &Look::borderStart, bordered);
    ofEach(Kind::Stop, &Look::gradStop,
           {&l.key, &l.keypress, &l.mouseover, &l.highlight, &l.finished});
    add(Kind::Stop, lines.gradStop);
    ofEach(Kind::Stop, &Look::gradStop, {&l.wallpaper, &l.rainbow, &l.gamePlay});
    ofEach(Kind::Background, &Look::bgStyle,
           {&l.key, &l.keypress, &l.mouseover, &l.highlight, &l.finished});
    ofEach(Kind::Width, &Look::borderWidth, {&l.key, &l.keypress, &l.mouseover, &l.rainbow});
    // The first once more at the third line, which decides.
    add(Kind::Text, l.key.upperTextStyle, l.key.lowerTextStyle, l.key.upperTextStyle,
        l.keypress.upperTextStyle, l.keypress.lowerTextStyle, l.mouseover.upperTextStyle,
        l.mouseover.lowerTextStyle, l.finishedTextStyle, l.highlight.lowerTextStyle,
        l.highlight.upperTextStyle);
    ofEach(Kind::Border, &Look::borderStyle, {&l.key, &l.keypress, &l.mouseover, &l.highlight});
    add(Kind::WideBorder, l.wallpaper.borderStyle);
    add(Kind::Background, l.wallpaper.bgStyle);
    for (Twin &twin : twins)
        add(Kind::Plain, twin.text);
    const auto bgHex = [&](Look &look) { add(Kind::Color, look.bgEndHex, look.bgStartHex); };
    const auto borderHex = [&](Look &look) {
        add(Kind::Color, look.borderEndHex, look.borderStartHex);
    };
    for (Look *look : {&l.key, &l.keypress, &l.mouseover, &l.highlight}) {
        bgHex(*look);
        borderHex(*look);
    }
    bgHex(l.finished);
    borderHex(l.wallpaper);
    add(Kind::Color, lines.horizontalEndHex, lines.horizontalStartHex, lines.verticalEndHex,
        lines.verticalStartHex);
    bgHex(l.wallpaper);
    add(Kind::Color, spareHexA, spareHexB);
    for (Look *look : {&l.rainbow, &l.gamePlay}) {
        bgHex(*look);
        borderHex(*look);
    }
    add(Kind::Text, l.matchTextStyle);
    add(Kind::Border, l.gamePlay.borderStyle);
    add(Kind::Background, l.gamePlay.bgStyle);
    add(Kind::Font, l.lowerFontStyle, l.upperFontStyle);
    add(Kind::Plain, shared.lowerFontName, shared.upperFontName);
    add(Kind::Text, l.userTextStyle);
    return list;
}

void KeyboardTheme::saveKeyboard_Function()
{
    const QString path = choice.toSave("Save Keyboard", "./Keyboard Theme.txt");
    for (Twin &twin : twins)
        ThemeFile::put(*twin.number, twin.largest, twin.text);
    shared.readFonts();
    ThemeFile::save(path, fields(), kind());
}

void KeyboardTheme::openKeyboard_Function()
{
    const QString path = choice.toOpen("Open Keyboard Theme");
    if (ThemeFile::open(path, fields(), kind(), shared))
        loadKeyboard();
}

void KeyboardTheme::loadKeyboard()
{
    Looks &looks = wardrobe.looks;
    shadowGroups.shadowThClear();
    for (const Twin &twin : twins)
        ThemeFile::take(twin.text, twin.largest, *twin.number);
    // What the file does not tell is read from the pieces or built from the colors.
    looks.highlight.borderWidth =
        QString::number(StyleText::borderWidth(looks.highlight.borderStyle));
    for (Look *look : {&looks.finished, &looks.wallpaper, &looks.gamePlay})
        look->readStyles();
    looks.rainbow.buildBackground();
    looks.rainbow.buildBorder();
    looks.keypressLowerTextSaved = looks.keypress.lowerTextStyle;
    takeLines();
    for (BoxLook *box : {&looks.matchBox, &looks.userBox}) {
        box->bgStyle = looks.gamePlay.bgStyle;
        box->borderStyle = looks.gamePlay.borderStyle;
    }
    wardrobe.paint.forget(); // or it would come back under the mouse

    shared.chooseFonts();
    panels.showLooks();
    dresser.all();
    // Both letters in the lowercase's color, an old trait.
    dresser.character(keypress.upperSample, looks.keypress.lowerTextStyle, true);
    wear(furniture.ui.pbQuit,
         "font: 16pt 'MS Shell Dlg 2';  color: rgb(85, 0, 0); background-color: "
         "transparent; ");
    wear(furniture.ui.hideNonVitals, "font: 10pt 'MS Shell Dlg 2';   color: rgb(85, 0, 0); "
                                     "background-color: transparent;");
    // Raised, a button without a ground of its own would be drawn black.
    furniture.ui.pbQuit->setFlat(true);
    furniture.ui.hideNonVitals->setFlat(true);
}

// Of the vertical lines the file has the twins alone, which say as much: lines have no alpha.
void KeyboardTheme::takeLines()
{
    LineLook &lines = wardrobe.looks.lineHigh;
    const auto take = [](const QString &twin, QString &color) {
        if (twin != "transparent" && StyleText::isColor(twin))
            color = twin;
    };
    take(lines.verticalStartHex, lines.verticalStart);
    take(lines.verticalEndHex, lines.verticalEnd);
    const int shape = panels.shape(GradientPanels::Line);
    lines.buildVertical(shape);
    lines.buildHorizontal(shape);
}
