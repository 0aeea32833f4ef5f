#include "dresser.h"

#include "board.h"
#include "instructor.h"
#include "keyfeedback.h"
#include "matchboxes.h"
#include "targethighlights.h"
#include "ui_tambrel.h"
#include "wear.h"

namespace {

constexpr const char *clear = "background-color: transparent;";

} // namespace

Dresser::Dresser(Board &usedBoard, KeyFeedback &keyFeedback, MatchBoxes &usedBoxes,
                 Instructor &virtualInstructor, TargetHighlights &targetHighlights)
    : board(usedBoard),
      feedback(keyFeedback),
      matchBoxes(usedBoxes),
      instructor(virtualInstructor),
      highlights(targetHighlights)
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
    for (int place = 1; place <= Keys::pileCount; ++place)
        wear(board.widgets.placeBackground(place), board.paint.restKeyBackground(place - 1));
    bar([this](int key) { return board.paint.restBarBackground(Keys::cap(key) - 1); });
    highlights.restore();
}

// What is finished stays so.
void Dresser::bar(const std::function<QString(int)> &sheetOf)
{
    const Looks &looks = board.looks;
    for (int key = 1; key <= Keys::count; ++key)
        wear(board.widgets.barBackground(key), board.game.isKeyPressed(key)
                                                   ? looks.barBackground(looks.finished.bgStyle)
                                                   : sheetOf(key));
}

void Dresser::keyLookAlone()
{
    const Looks &looks = board.looks;
    for (int place = 1; place <= Keys::pileCount; ++place)
        wear(board.widgets.placeBackground(place), place <= Keys::capCount
                                                       ? looks.keyBackground(looks.key)
                                                       : looks.controlKeyBackground());
    bar([&looks](int) { return looks.barBackground(looks.key.bgStyle); });
    highlights.restore();
}

void Dresser::characters(bool shifted, const QString &ground)
{
    const Looks &looks = board.looks;
    const PaintTables &paint = board.paint;
    for (int cap = 1; cap <= Keys::capCount; ++cap) {
        const int key = Keys::keyOfCap(cap, shifted);
        const QString text = paint.restText(key) + looks.font(shifted);
        wear(board.widgets.barLetter(key), text);
        wear(board.widgets.keyText(key), ground + text);
    }
    if (!shifted) {
        for (int i = 0; i < Keys::controlCount; ++i)
            wear(board.widgets.placeText(Keys::capCount + 1 + i),
                 paint.restControlText(i) + looks.lowerFontStyle);
        for (QWidget *mark : {board.ui.underScoreRight, board.ui.underScoreLeft})
            wear(mark, looks.key.lowerTextStyle + looks.lowerFontStyle);
    }
    character(shifted ? "demoLetter1_Uppercase" : "demoLetter1_Lowercase", looks.key.text(shifted),
              shifted);
    sampleKeys(looks.key.text(shifted), shifted);
}

void Dresser::finished()
{
    const Looks &looks = board.looks;
    instructor.set_dem_StyleSheet();
    sample(looks.finished);
    character("demoLetterFinishedUppercase", looks.finishedTextStyle, true);
    character("demoLetterFinishedLowercase", looks.finishedTextStyle, false);
}

void Dresser::finishedKeys()
{
    if (board.game.correctCount > 0 && board.choice.direction() != Direction::Random)
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
    const LineLook &look = board.looks.lineHigh;
    for (const char *name : {"lhVertDisplay", "lhVertDisplay_2"})
        wearOn(name, look.verticalStyle);
    for (const char *name : {"liHordisplay", "liHordisplay_3"})
        wearOn(name, look.horizontalStyle);
}

void Dresser::wallpaper()
{
    wear(board.ui.wallpaper, board.looks.wallpaperSheet());
}

void Dresser::boxes()
{
    matchBoxes.dressBackgrounds();
}

void Dresser::boxTexts(bool match, bool user)
{
    const Looks &looks = board.looks;
    const QString sheet = " font: 12pt 'MS Shell Dlg 2';" + looks.matchTextStyle;
    if (match) {
        matchBoxes.set_Match_StyleSheet();
        // Two blanks where Match This is dressed alone.
        if (looks.matchBox.header)
            wear(board.ui.matchThis, clear + QString(user ? "" : " ") + sheet);
    }
    if (user) {
        matchBoxes.set_User_StyleSheet();
        if (looks.userBox.header)
            wear(board.ui.yourEntry, clear + sheet);
    }
}

// ---- the panels

void Dresser::wearOn(const char *name, const QString &sheet)
{
    if (board.panelWidgets.isFilled())
        wear(board.panelWidgets.find(name), sheet);
}

void Dresser::previews()
{
    const Looks &looks = board.looks;
    for (const Look *look :
         {static_cast<const Look *>(&looks.keypress), static_cast<const Look *>(&looks.mouseover),
          static_cast<const Look *>(&looks.highlight), &looks.rainbow})
        sample(*look);
    sample(looks.key);
    character("demoLetter1_Uppercase", looks.key.upperTextStyle, true);
    character("demoLetter1_Lowercase", looks.key.lowerTextStyle, false);
    character("demoLetter1", looks.keypress.upperTextStyle, true);
    character("demoLetter3", looks.keypress.lowerTextStyle, false);
    character("demoLetter1_3", looks.mouseover.upperTextStyle, true);
    character("demoLetter3_3", looks.mouseover.lowerTextStyle, false);
    character("demoLetterHiE", looks.highlight.upperTextStyle, true);
    character("demoLetterHiLowD", looks.highlight.lowerTextStyle, false);
    character("demoLetter4English", looks.brush(true), true);
    character("demoLetter4LowerCase", looks.brush(false), false);
    finished();
    lines();
    // Cap 1 with its paint, if it has some.
    sampleKeys(board.paint.restKeyBackground(0));
    for (const bool shifted : {false, true})
        sampleKeys(board.paint.restText(Keys::keyOfCap(1, shifted)), shifted);
    themeLetters();
}

void Dresser::sample(const Look &look)
{
    const Looks &looks = board.looks;
    const std::pair<const Look *, const char *> samples[] = {
        {&looks.key, "demoLetter1Bg"},           {&looks.keypress, "demoLetterCenterBG"},
        {&looks.mouseover, "demoLetterRightBg"}, {&looks.highlight, "demoLetterHiBg"},
        {&looks.highlight, "demoLetter4Bg"}, // and on the tab of the paint
        {&looks.rainbow, "demoLetter4Bg"},       {&looks.finished, "demoLetterFinishedBg"},
    };
    for (const auto &[worn, name] : samples) {
        if (worn == &look)
            wearOn(name, looks.demoRadiusStyle + look.bgStyle + look.borderStyle);
    }
}

void Dresser::keySamples()
{
    sample(board.looks.key);
    sampleKeys(board.looks.keyBackground(board.looks.key));
}

void Dresser::character(const char *name, const QString &text, bool shifted)
{
    const Looks &looks = board.looks;
    wearOn(name, clear + text + (shifted ? looks.upperFontSizeStyle : looks.lowerFontSizeStyle) +
                     looks.font(shifted));
}

void Dresser::sampleKeys(const QString &background)
{
    for (const char *name : {"linePosition1BG", "linePosition2BG"})
        wearOn(name, background);
    wear(board.ui.aKeysMap5, background);
}

void Dresser::sampleKeys(const QString &text, bool shifted)
{
    const char *const samples[2][2] = {{"linePosition1Lowercase", "linePosition2Lowercase"},
                                       {"linePosition1Uppercase", "linePosition2Uppercase"}};
    const QString sheet = clear + text + board.looks.font(shifted);
    for (const char *name : samples[shifted])
        wearOn(name, sheet);
    wear(shifted ? board.ui.aKeysMap4 : board.ui.aKeysMap3, sheet);
}

void Dresser::themeLetters()
{
    struct Letters
    {
        const char *lower, *upper;
        const char *lowerColor, *upperColor;
    };
    // In the tile of the third theme the two labels have changed places.
    constexpr Letters themes[] = {
        {"theme1", "theme1_2", "color: white;", "color: white;"},
        {"theme2", "theme2_2", "color: yellow;", "color: yellow;"},
        {"theme3_2", "theme3", "color: #00557f;", "color: #65307f;"},
    };
    for (const Letters &row : themes) {
        wearOn(row.lower, QString(clear) + " " + board.looks.lowerFontStyle + row.lowerColor);
        wearOn(row.upper, clear + board.looks.upperFontStyle + row.upperColor);
    }
}
