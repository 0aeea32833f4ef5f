#include "builtinthemes.h"

#include "dresser.h"
#include "gradientpanels.h"
#include "mousetable.h"
#include "optionforms.h"
#include "ui_colormadness.h"
#include "ui_lookpage.h"
#include "wardrobe.h"
#include "wear.h"

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

} // namespace

BuiltInThemes::BuiltInThemes(Wardrobe &usedWardrobe, GradientPanels &gradientPanels,
                             Dresser &usedDresser, const OptionForms &optionForms,
                             MouseTable &mouse)
    : wardrobe(usedWardrobe), panels(gradientPanels), dresser(usedDresser), keys(*optionForms.keys)
{
    struct Tile
    {
        QWidget *key, *background;
    };
    const Ui::colorMadnessPanel &form = *optionForms.colorMadness;
    const std::array<Tile, themeCount> tiles{
        {{form.theme1, form.theme1Bg}, {form.theme2, form.theme2Bg}, {form.theme3, form.theme3Bg}}};
    for (int theme = 1; theme <= themeCount; ++theme) {
        const Tile &tile = tiles[static_cast<size_t>(theme - 1)];
        Look sample;
        takeBorder(themes[theme - 1], sample);
        takeBackground(themes[theme - 1], sample);
        wear(tile.background, "border-radius: 10px;" + sample.bgStyle + sample.borderStyle);
        mouse.add(tile.key, {{}, {}, [this, theme] {
                                 border_function(theme);
                                 background_function(theme);
                             }});
    }
}

void BuiltInThemes::border_function(int theme)
{
    if (theme < 1 || theme > themeCount)
        return;
    Looks &looks = wardrobe.looks;
    takeBorder(themes[theme - 1], looks.key);
    looks.rainbow.borderStyle = looks.key.borderStyle;
}

void BuiltInThemes::background_function(int theme)
{
    if (theme < 1 || theme > themeCount)
        return;
    const Theme &row = themes[theme - 1];
    Looks &looks = wardrobe.looks;
    takeBackground(row, looks.key);
    looks.key.upperTextStyle = row.upperText;
    looks.key.lowerTextStyle = row.lowerText;
    wardrobe.paint.forget();

    if (theme == withWallpaper) {
        Look &wallpaper = looks.wallpaper;
        wallpaper.bgStart = wallpaper.bgStartHex = "#00557f";
        wallpaper.bgEnd = wallpaper.bgEndHex = "#34004f";
        wallpaper.gradStop = ".3";
        wallpaper.bgStopPos = 3;
        wallpaper.buildBackground();
    }
    // The twins too: a box of the radial shape is built from them.
    Look &box = looks.gamePlay;
    box.bgStart = box.bgStartHex = box.bgEnd = box.bgEndHex = "transparent";
    box.buildBackground();
    box.borderStyle = "border: 1px solid #6e6e6e;";
    for (BoxLook *each : {&looks.matchBox, &looks.userBox}) {
        each->bgStyle = box.bgStyle;
        each->borderStyle = box.borderStyle;
    }
    looks.matchTextStyle = looks.userTextStyle = "color: black;";

    // The panel shows the background of what was chosen.
    keys.background->setChecked(true);
    panels.showLooks();
    dresser.all();
}
