#include "builtinthemes.h"

#include "board.h"
#include "gradientpanels.h"
#include "mousetable.h"
#include "ui_tambrel.h"
#include "wear.h"

#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>

namespace {

struct Theme
{
    const char *stop;
    int stopPos;
    const char *start;
    const char *end;
    int shape;
    const char *borderStop;
    int borderStopPos;
    const char *borderStart;
    const char *borderEnd;
    int borderWidth; // px
    int borderShape;
    const char *upperText;
    const char *lowerText;
};

constexpr Theme themes[] = {
    {"1", 10, "#ffd700", "black", GradientText::TopToBottom, ".8", 8, "#ffd700", "black", 10,
     GradientText::RepeatingRadial, " color: white;", "color: white;"},
    {".6", 6, "#ffd700", "black", GradientText::Radial, ".8", 8, "black", "#ffd700", 4,
     GradientText::Radial, " color: yellow;", "color: yellow;"},
    {".3", 3, "blue", "black", GradientText::Radial, ".3", 3, "black", "black", 0,
     GradientText::TopToBottom, " color: #65307f;", "color: #00557f;"},
};
constexpr int themeCount = int(std::size(themes));
constexpr int withWallpaper = 3;

void takeBorder(const Theme &row, Look &look)
{
    look.borderStart = look.borderStartHex = row.borderStart;
    look.borderEnd = look.borderEndHex = row.borderEnd;
    look.borderWidth = QString::number(row.borderWidth);
    look.borderShape = row.borderShape;
    look.borderStopPos = row.borderStopPos;
    look.gradStop = row.borderStop;
    look.buildBorder();
}

void takeBackground(const Theme &row, Look &look)
{
    look.bgStart = look.bgStartHex = row.start;
    look.bgEnd = look.bgEndHex = row.end;
    look.bgShape = row.shape;
    look.bgStopPos = row.stopPos;
    look.gradStop = row.stop;
    look.buildBackground();
}

// The setting of a control without what it would set off.
template <class Control>
void setQuietly(Control *control, int value)
{
    const QSignalBlocker quiet(control);
    control->setValue(value);
}

} // namespace

BuiltInThemes::BuiltInThemes(Board &usedBoard, GradientPanels &gradientPanels)
    : board(usedBoard), panels(gradientPanels)
{}

void BuiltInThemes::attach(MouseTable &mouse)
{
    for (int theme = 1; theme <= themeCount; ++theme) {
        Look sample;
        takeBorder(themes[theme - 1], sample);
        takeBackground(themes[theme - 1], sample);
        wear(board.panelWidgets.find(QString("theme%1Bg").arg(theme)),
             "border-radius: 10px;" + sample.bgStyle + sample.borderStyle);
        mouse.add(board.panelWidgets.find(QString("theme%1").arg(theme)),
                  {{}, {}, [this, theme] {
                       border_function(theme);
                       background_function(theme);
                       pendingTheme = theme;
                   }});
    }
    connect(board.panelWidgets.button("borderLeft"), &QAbstractButton::clicked, this,
            &BuiltInThemes::borderShown);
}

void BuiltInThemes::border_function(int theme)
{
    const Theme &row = themes[theme - 1];
    Look &key = board.looks.key;
    const PanelWidgets &widgets = board.panelWidgets;
    board.paint.paintBorderOn = false;
    takeBorder(row, key);
    setQuietly(widgets.find<QSlider>("sliderBorderWidth1"), row.borderWidth);
    setQuietly(widgets.find<QSpinBox>("spinBox1"), row.borderWidth);
    board.looks.rainbow.borderStyle = key.borderStyle;
    board.paint.fillRainbowBorder();
}

void BuiltInThemes::background_function(int theme)
{
    const Theme &row = themes[theme - 1];
    Looks &looks = board.looks;
    PaintTables &paint = board.paint;
    const PanelWidgets &widgets = board.panelWidgets;
    paint.paintBackgroundOn = paint.paintEnglishOn = paint.paintLowerOn = paint.paintUpperOn =
        false;
    takeBackground(row, looks.key);
    looks.key.upperTextStyle = row.upperText;
    looks.key.lowerTextStyle = row.lowerText;
    // The panel shows the background of what was chosen.
    widgets.button("backgroundLeft")->setChecked(true);
    setQuietly(widgets.find<QSlider>("hoSlider1"), row.shape);
    setQuietly(widgets.find<QSlider>("slider1"), row.stopPos);

    if (theme == withWallpaper) {
        Look &wallpaper = looks.wallpaper;
        wallpaper.bgStart = wallpaper.bgStartHex = "#00557f";
        wallpaper.bgEnd = wallpaper.bgEndHex = "#34004f";
        wallpaper.gradStop = ".3";
        wallpaper.buildBackground();
        wear(board.ui.wallpaper, wallpaper.bgStyle + wallpaper.borderStyle);
    }
    // The twins too: a box of the radial shape is built from them.
    Look &box = looks.gamePlay;
    box.bgStart = box.bgStartHex = box.bgEnd = box.bgEndHex = "transparent";
    box.buildBackground();
    box.borderStyle = "border: 1px solid #6e6e6e;";
    looks.matchTextStyle = looks.userTextStyle = "color: black;";
    panels.dressGamePlayTexts();
    panels.dressGamePlay();

    panels.dressPreviews();
    for (QWidget *mark : {board.ui.underScoreRight, board.ui.underScoreLeft})
        wear(mark, looks.key.lowerTextStyle + looks.lowerFontStyle);
    panels.dressKeys();
    panels.dressBar();
    for (int place = 1; place <= Keys::pileCount; ++place)
        wear(board.widgets.placeText(place), looks.key.lowerTextStyle + looks.lowerFontStyle);
    for (int cap = 1; cap <= Keys::capCount; ++cap) {
        const QString upper = looks.key.upperTextStyle + looks.upperFontStyle;
        const QString lower = looks.key.lowerTextStyle + looks.lowerFontStyle;
        wear(board.widgets.keyText(Keys::shifted(cap)), upper);
        wear(board.widgets.barLetter(Keys::shifted(cap)), upper);
        wear(board.widgets.barLetter(Keys::unshifted(cap)), lower);
    }
    panels.bgColorLoops();
}

void BuiltInThemes::borderShown()
{
    if (pendingTheme == 0)
        return;
    const Theme &row = themes[pendingTheme - 1];
    pendingTheme = 0;
    if (row.borderWidth == 0)
        return;
    board.looks.key.borderShape = row.borderShape;
    board.panelWidgets.find<QSlider>("slider1")->setValue(row.borderStopPos);
    board.looks.key.gradStop = row.borderStop;
    board.panelWidgets.find<QSlider>("hoSlider1")->setValue(row.borderShape);
}
