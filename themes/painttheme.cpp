#include "painttheme.h"

#include "board.h"
#include "dresser.h"
#include "gradientpanels.h"
#include "shadows.h"

namespace {

constexpr int shapes = 5;
constexpr int stops = 10;
constexpr ThemeFile::Kind kind(const QString &marker)
{
    return {"paintTheme", "keyboardTheme", marker, "1", "This is not a Paint theme"};
}

} // namespace

PaintTheme::PaintTheme(Board &usedBoard, GradientPanels &gradientPanels, Dresser &usedDresser,
                       Shadows &shadows, ThemeFile::Shared &sharedState, QWidget &mainWindow)
    : board(usedBoard),
      panels(gradientPanels),
      dresser(usedDresser),
      shadowGroups(shadows),
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
ThemeFile::Fields PaintTheme::fields(PaintTables &paint)
{
    using StyleText::Kind;
    Looks &looks = board.looks;
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
    add(Kind::Plain, paint.paintEnglishOnText, paint.paintUpperOnText, paint.paintLowerOnText,
        paint.paintBackgroundOnText, paint.paintBorderOnText, rainbowBorderShapeText,
        rainbowBgShapeText);
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
    // What is not painted is written as it looks, or another keyboard would show through.
    PaintTables shown = paint;
    shown.fillFromLooks();
    ThemeFile::save(path, fields(shown), kind(paintThemeMarker), board.panelWidgets);
}

// Put on in every case, also what the fields hold after Cancel.
void PaintTheme::openPaint_Function()
{
    const QString path = ThemeFile::askToOpen(window, "Open Paint Theme");
    if (ThemeFile::open(path, fields(board.paint), kind(paintThemeMarker), shared,
                        board.panelWidgets))
        takeFields();
    loadPaint1();
}

void PaintTheme::takeFields()
{
    PaintTables &paint = board.paint;
    Looks &looks = board.looks;
    Look &rainbow = looks.rainbow;
    // The look of the first key becomes that of all keys without paint.
    looks.key.bgStyle = paint.paintKeyBgStyle[0];
    looks.key.borderStyle = paint.paintKeyBorderStyle[0];
    looks.key.readStyles();
    // The flag of all characters stays as it was.
    paint.paintLowerOn = paint.paintLowerOnText == "1";
    paint.paintUpperOn = paint.paintUpperOnText == "1";
    paint.paintBackgroundOn = paint.paintBackgroundOnText == "1";
    paint.paintBorderOn = paint.paintBorderOnText == "1";
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
    shared.chooseFonts(board.panelWidgets);
    panels.showLooks();
    dresser.all();
}
