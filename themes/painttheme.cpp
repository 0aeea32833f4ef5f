#include "painttheme.h"

#include "dresser.h"
#include "filechoice.h"
#include "gradientpanels.h"
#include "optionforms.h"
#include "shadows.h"
#include "ui_colormadness.h"
#include "wardrobe.h"

namespace {

constexpr int shapes = 5;
constexpr int stops = 10;
// The switch of all characters has a line too, and yet a file neither raises nor lowers it.
constexpr PaintTables::Part savedParts[] = {PaintTables::Lower, PaintTables::Upper,
                                            PaintTables::Background, PaintTables::Border};

} // namespace

PaintTheme::PaintTheme(Wardrobe &usedWardrobe, GradientPanels &gradientPanels, Dresser &usedDresser,
                       Shadows &shadows, ThemeFile::Shared &sharedState,
                       const OptionForms &optionForms, FileChoice &fileChoice)
    : wardrobe(usedWardrobe),
      panels(gradientPanels),
      dresser(usedDresser),
      shadowGroups(shadows),
      shared(sharedState),
      form(*optionForms.colorMadness),
      choice(fileChoice)
{
    connect(form.savePaint, &QAbstractButton::clicked, this, &PaintTheme::savePaint_Function);
    connect(form.openPaint, &QAbstractButton::clicked, this, &PaintTheme::openPaint_Function);
}

ThemeFile::Kind PaintTheme::kind() const
{
    return {{form.paintTheme, form.paintTheme_2, form.paintTheme_3},
            {form.keyboardTheme, form.keyboardTheme_2, form.keyboardTheme_3},
            paintThemeMarker,
            "1",
            "This is not a Paint theme"};
}

// In the order of the lines.
ThemeFile::Fields PaintTheme::fields(PaintTables &paint)
{
    using StyleText::Kind;
    Looks &looks = wardrobe.looks;
    ThemeFile::Fields list;
    const auto add = [&list](Kind kind, auto &...texts) { (list.append({&texts, kind}), ...); };
    add(Kind::Plain, paintThemeMarker, shared.themeLanguageMarker);
    for (QString &text : paint.paintTextStyle)
        add(Kind::Text, text);
    for (size_t i = 0; i < Keys::controlCount; ++i)
        add(Kind::Text, paint.paintExtraTextStyle[i]);
    for (QString &background : paint.paintKeyBgStyle)
        add(Kind::Background, background);
    for (QString &border : paint.paintKeyBorderStyle)
        add(Kind::Border, border);
    for (const auto part : {PaintTables::English, PaintTables::Upper, PaintTables::Lower,
                            PaintTables::Background, PaintTables::Border})
        add(Kind::Plain, paint.parts[part].text);
    add(Kind::Plain, rainbowBorderShapeText, rainbowBgShapeText);
    add(Kind::Width, looks.key.borderWidth);
    add(Kind::Plain, rainbowGradPickedText, rainbowBgStopPosText, rainbowBorderStopPosText);
    // Twice: the second line decides.
    add(Kind::Text, looks.key.upperTextStyle, looks.key.upperTextStyle, looks.key.lowerTextStyle);
    add(Kind::Width, looks.rainbow.borderWidth);
    add(Kind::Text, paint.paintExtraTextStyle[Keys::controlCount],
        paint.paintExtraTextStyle[Keys::controlCount + 1]);
    add(Kind::Font, looks.lowerFontStyle, looks.upperFontStyle);
    add(Kind::Plain, shared.lowerFontName, shared.upperFontName);
    return list;
}

void PaintTheme::savePaint_Function()
{
    const QString path = choice.toSave("Save Paint", "./Paint Theme.txt");
    PaintTables &paint = wardrobe.paint;
    const Look &rainbow = wardrobe.looks.rainbow;
    // Only ever raised here.
    for (const PaintTables::Part part : savedParts) {
        if (paint.isOn(part))
            paint.parts[part].text = "1";
    }
    ThemeFile::put(rainbow.borderShape, shapes, rainbowBorderShapeText);
    ThemeFile::put(rainbow.bgShape, shapes, rainbowBgShapeText);
    ThemeFile::put(rainbow.bgStopPos, stops, rainbowBgStopPosText);
    ThemeFile::put(rainbow.borderStopPos, stops, rainbowBorderStopPosText);
    rainbowGradPickedText = rainbow.gradPicked ? "1" : "0";
    shared.readFonts();
    // What is not painted is written as it looks, or another keyboard would show through.
    PaintTables shown = paint;
    shown.fillFromLooks();
    ThemeFile::save(path, fields(shown), kind());
}

// Put on in every case, also what the fields hold after Cancel.
void PaintTheme::openPaint_Function()
{
    const QString path = choice.toOpen("Open Paint Theme");
    if (ThemeFile::open(path, fields(wardrobe.paint), kind(), shared))
        takeFields();
    loadPaint1();
}

void PaintTheme::takeFields()
{
    PaintTables &paint = wardrobe.paint;
    Looks &looks = wardrobe.looks;
    Look &rainbow = looks.rainbow;
    // The look of the first key becomes that of all keys without paint.
    looks.key.bgStyle = paint.paintKeyBgStyle[0];
    looks.key.borderStyle = paint.paintKeyBorderStyle[0];
    looks.key.readStyles();
    for (const PaintTables::Part part : savedParts)
        paint.parts[part].on = paint.parts[part].text == "1";
    paint.dropWhatLooksSay();

    ThemeFile::take(rainbowBorderShapeText, shapes, rainbow.borderShape);
    ThemeFile::take(rainbowBgShapeText, shapes, rainbow.bgShape);
    ThemeFile::take(rainbowBgStopPosText, stops, rainbow.bgStopPos);
    ThemeFile::take(rainbowBorderStopPosText, stops, rainbow.borderStopPos);
    rainbow.gradPicked = rainbowGradPickedText != "0";
    rainbow.buildBackground();
    rainbow.buildBorder();
    shadowGroups.shadowThClear();
}

void PaintTheme::loadPaint1()
{
    shared.chooseFonts();
    panels.showLooks();
    dresser.all();
}
