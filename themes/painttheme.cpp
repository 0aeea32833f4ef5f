#include "painttheme.h"

#include "board.h"
#include "gradientpanels.h"
#include "keyfeedback.h"
#include "shadows.h"
#include "ui_tambrel.h"
#include "wear.h"

#include <QSlider>
#include <QSpinBox>

namespace {

constexpr const char *clear = "background-color: transparent;";
constexpr int shapes = 5;
constexpr int stops = 10;
constexpr int indexOfCapitalA = 26;

} // namespace

PaintTheme::PaintTheme(Board &usedBoard, GradientPanels &gradientPanels, Shadows &shadows,
                       KeyFeedback &keyFeedback, ThemeFile::Shared &sharedState,
                       QWidget &mainWindow)
    : board(usedBoard),
      panels(gradientPanels),
      shadowGroups(shadows),
      feedback(keyFeedback),
      shared(sharedState),
      window(mainWindow)
{}

void PaintTheme::attach()
{
    const PanelWidgets &widgets = board.panelWidgets;
    connect(widgets.button("savePaint"), &QAbstractButton::clicked, this,
            &PaintTheme::savePaint_Function);
    connect(widgets.button("openPaint"), &QAbstractButton::clicked, this,
            &PaintTheme::openPaint_Function);
}

// In the order of the lines.
ThemeFile::Fields PaintTheme::fields()
{
    PaintTables &paint = board.paint;
    Looks &looks = board.looks;
    ThemeFile::Fields list{&paintThemeMarker, &shared.themeLanguageMarker};
    for (QString &text : paint.paintTextStyle)
        list.append(&text);
    for (size_t i = 0; i < Keys::controlCount; ++i)
        list.append(&paint.paintExtraTextStyle[i]);
    for (QString &background : paint.paintKeyBgStyle)
        list.append(&background);
    for (QString &border : paint.paintKeyBorderStyle)
        list.append(&border);
    list += {&paint.paintEnglishOnText, &paint.paintUpperOnText, &paint.paintLowerOnText,
             &paint.paintBackgroundOnText, &paint.paintBorderOnText, &rainbowBorderShapeText,
             &rainbowBgShapeText, &looks.key.borderWidth, &rainbowGradPickedText,
             &rainbowBgStopPosText, &rainbowBorderStopPosText,
             // Twice: the second line decides.
             &looks.key.upperTextStyle, &looks.key.upperTextStyle, &looks.key.lowerTextStyle,
             &looks.rainbow.borderWidth, &paint.paintExtraTextStyle[Keys::controlCount],
             &paint.paintExtraTextStyle[Keys::controlCount + 1], &looks.lowerFontStyle,
             &looks.upperFontStyle, &shared.lowerFontName, &shared.upperFontName};
    return list;
}

void PaintTheme::savePaint_Function()
{
    const QString path = ThemeFile::askToSave(window, "Save Paint", "./Paint Theme.txt");
    PaintTables &paint = board.paint;
    const Look &rainbow = board.looks.rainbow;
    // Only ever raised here; that of all characters not at all.
    const struct
    {
        bool on;
        QString &text;
    } flags[] = {{paint.paintLowerOn, paint.paintLowerOnText},
                 {paint.paintUpperOn, paint.paintUpperOnText},
                 {paint.paintBackgroundOn, paint.paintBackgroundOnText},
                 {paint.paintBorderOn, paint.paintBorderOnText}};
    for (const auto &flag : flags) {
        if (flag.on)
            flag.text = "1";
    }
    ThemeFile::put(rainbow.borderShape, shapes, rainbowBorderShapeText);
    ThemeFile::put(rainbow.bgShape, shapes, rainbowBgShapeText);
    ThemeFile::put(rainbow.bgStopPos, stops, rainbowBgStopPosText);
    ThemeFile::put(rainbow.borderStopPos, stops, rainbowBorderStopPosText);
    rainbowGradPickedText = rainbow.gradPicked ? "1" : "0";
    shared.readFonts(board.panelWidgets);
    ThemeFile::write(path, fields());
}

// Applied in every case, also what the fields hold after Cancel.
void PaintTheme::openPaint_Function()
{
    const QString path = ThemeFile::askToOpen(window, "Open Paint Theme");
    ThemeFile::open(
        path, fields(),
        {"paintTheme", "keyboardTheme", paintThemeMarker, "1", "This is not a Paint theme"}, shared,
        board.panelWidgets);
    loadPaint1();
}

void PaintTheme::loadPaint1()
{
    PaintTables &paint = board.paint;
    Looks &looks = board.looks;
    Look &rainbow = looks.rainbow;
    const PanelWidgets &widgets = board.panelWidgets;
    looks.key.bgStyle = paint.paintKeyBgStyle[0];
    looks.key.borderStyle = paint.paintKeyBorderStyle[0];
    shadowGroups.shadowThClear();
    const int width = rainbow.borderWidth.toInt();
    widgets.find<QSlider>("sliderBorderWidth8")->setSliderPosition(width);
    widgets.find<QSpinBox>("spinBox8")->setValue(width);

    // The flag of all characters stays as it was.
    paint.paintLowerOn = paint.paintLowerOnText == "1";
    paint.paintUpperOn = paint.paintUpperOnText == "1";
    paint.paintBackgroundOn = paint.paintBackgroundOnText == "1";
    paint.paintBorderOn = paint.paintBorderOnText == "1";
    ThemeFile::take(rainbowBorderShapeText, shapes, rainbow.borderShape);
    ThemeFile::take(rainbowBgShapeText, shapes, rainbow.bgShape);
    const int bgShape = rainbow.bgShape;
    auto *shape = widgets.find<QSlider>("hoSlider8");
    shape->setValue(rainbow.borderShape);
    shape->setValue(bgShape); // the background has the last word
    rainbow.gradPicked = rainbowGradPickedText != "0";
    ThemeFile::take(rainbowBgStopPosText, stops, rainbow.bgStopPos);
    ThemeFile::take(rainbowBorderStopPosText, stops, rainbow.borderStopPos);
    widgets.find<QSlider>("slider8")->setValue(rainbow.bgStopPos);

    const auto dress = [&](const char *name, const QString &sheet) {
        wear(widgets.find(name), sheet);
    };
    const QString first = paint.paintKeyBgStyle[0] + paint.paintKeyBorderStyle[0];
    const QString &upper = paint.paintTextStyle[indexOfCapitalA];
    const QString &lower = paint.paintTextStyle[0];
    panels.dressSampleKeys(looks.keyRadiusStyle + first);
    for (const char *name : {"demoLetter4Bg", "demoLetter1Bg"})
        dress(name, looks.demoRadiusStyle + first);
    panels.dressSampleKeys(upper, true);
    panels.dressSampleKeys(lower, false);
    for (const char *name : {"demoLetter1_Uppercase", "demoLetter4English"})
        dress(name, clear + upper + looks.upperFontSizeStyle + looks.upperFontStyle);
    for (const char *name : {"demoLetter1_Lowercase", "demoLetter4LowerCase"})
        dress(name, clear + lower + looks.lowerFontSizeStyle + looks.lowerFontStyle);
    shared.chooseFonts(widgets);

    for (int i = 0; i < Keys::controlCount; ++i) {
        const int place = Keys::capCount + 1 + i;
        const auto pile = static_cast<size_t>(place - 1);
        wear(board.widgets.placeBackground(place),
             looks.controlKeyBackground(paint.paintKeyBgStyle[pile],
                                        paint.paintKeyBorderStyle[pile]));
        wear(board.widgets.placeText(place),
             paint.paintExtraTextStyle[static_cast<size_t>(i)] + looks.lowerFontStyle);
    }
    feedback.allChangeColorBack();
    panels.bgColorLoops();
}
