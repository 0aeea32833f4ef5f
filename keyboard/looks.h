#pragma once

#include "gradienttext.h"

#include <QString>

// What a state of a key looks like, as pieces of style-sheet text, and the joins
// of those pieces that widgets wear. A widget never remembers why it looks as it
// does: whoever changes a fragment puts the join on again. Fragments are neither
// parsed nor checked; text that Qt refuses leaves the widget as Qt treats it.

// A background and a border, and the colors they are built from. Colors are
// text: a name, "rgba(" text, or "#rrggbb" in the ...Hex twins, which only the
// shape without alpha (GradientText::Radial) uses.
struct Look
{
    QString bgStyle;
    QString borderStyle;

    QString bgEnd, bgStart, bgEndHex, bgStartHex;
    QString borderEnd, borderStart, borderEndHex, borderStartHex;
    QString gradStop = ".5";   // end stop of both background and border
    QString borderWidth = "0"; // px, decimal
    int bgShape = GradientText::TopToBottom;
    int borderShape = GradientText::TopToBottom;
    int bgStopPos = 5; // 0 to 10, the stop slider as last used for the background
    int borderStopPos = 5;
    bool gradPicked = false; // the gradient's own picker has been open

    // bgStyle from the fields above, in the shape last chosen.
    void buildBackground();
    void buildBorder(); // likewise borderStyle
    // Shapes and border width from the pieces themselves, where a file tells no more.
    void readStyles();
};

// A look whose characters have colors of their own, one for each case.
struct KeyLook : Look
{
    QString upperTextStyle; // shifted characters
    QString lowerTextStyle; // unshifted characters
    const QString &text(bool shifted) const { return shifted ? upperTextStyle : lowerTextStyle; }
};

// The crossing lines have two backgrounds and no border.
struct LineLook
{
    QString horizontalStyle, verticalStyle;
    QString horizontalEnd, horizontalStart, horizontalEndHex, horizontalStartHex;
    QString verticalEnd, verticalStart, verticalEndHex, verticalStartHex;
    QString gradStop = ".5";
    bool gradPicked = false;

    void buildVertical(int shape);
    void buildHorizontal(int shape);
};

// Match This or Your Entry, which the player can dress one by one; and whether the header over
// the box wears the same.
struct BoxLook
{
    QString bgStyle, borderStyle;
    bool header = false;
};

// All looks at their defaults, and the fragments that several looks share.
class Looks
{
public:
    Looks();

    KeyLook key;       // at rest
    KeyLook keypress;  //
    KeyLook mouseover; //
    KeyLook highlight; // the target of a game
    Look finished;     // matched in this game; its text is finishedTextStyle, it has no border
    Look wallpaper;
    Look rainbow;  // the colors being painted with
    Look gamePlay; // what the panel of the boxes makes
    BoxLook matchBox, userBox;
    LineLook lineHigh;

    QString finishedTextStyle = " color: white; ";
    QString matchTextStyle = "color: black;";
    QString userTextStyle = "color: black;";

    // What the mouse paints characters with; empty until a color was picked for it.
    QString upperBrush, lowerBrush;

    // What stands behind the look of the wallpaper: a picture that repeats, or none.
    QString wallpaperImageStyle;

    QString lowerFontStyle = "font-family: Calibri;";
    QString upperFontStyle = "font-family: Calibri;";
    QString lowerFontSizeStyle = "font-size: 20pt;";
    QString middleFontSizeStyle = "font-size: 20pt;";
    QString upperFontSizeStyle = "font-size: 20pt;";

    QString keyRadiusStyle = "border-radius: 10px;";      // keys and the shadows behind them
    QString barRadiusStyle = "border-radius: 10px;";      // cells of the Alphabet Bar
    QString demoRadiusStyle = "border-radius: 10px;";     // preview letters of the panels
    QString demRadiusStyle = "border-radius: 10px;";      // the instructor's three sample letters
    QString gamePlayRadiusStyle = "border-radius: 10px;"; // Match This and Your Entry

    // The lowercase color of a key press as it stood last, for a highlighted key.
    QString keypressLowerTextSaved;

    const QString &font(bool shifted) const { return shifted ? upperFontStyle : lowerFontStyle; }

    // Alphabet Bar cells show no border, whatever the look's border is.
    QString barBackground(const QString &background) const { return barRadiusStyle + background; }
    QString keyBackground(const QString &background, const QString &border) const
    {
        return keyRadiusStyle + background + border;
    }
    QString keyBackground(const Look &look) const
    {
        return keyBackground(look.bgStyle, look.borderStyle);
    }
    // Qt draws no corner whose radius is more than half of the height, so what is lower than a
    // round key has a radius of its own: the control keys with 54 px, the headers of the boxes
    // with 28 and the Highlight button with 26.
    bool isRound() const { return keyRadiusStyle != QLatin1String("border-radius: 10px;"); }
    QString controlKeyBackground(const QString &background, const QString &border) const
    {
        return keyBackground(background, border) + (isRound() ? "border-radius: 27px;" : "");
    }
    QString controlKeyBackground() const
    {
        return controlKeyBackground(key.bgStyle, key.borderStyle);
    }
    QString boxBackground(const BoxLook &box) const
    {
        return gamePlayRadiusStyle + box.bgStyle + box.borderStyle;
    }
    QString headerBackground(const BoxLook &box) const
    {
        const QString sheet = box.header
                                  ? boxBackground(box)
                                  : QString(gamePlayRadiusStyle +
                                            "background-color: rgb(255, 255, 255); border: none;");
        return sheet + (isRound() ? "border-radius: 14px;" : "");
    }
    QString wallpaperSheet() const
    {
        return wallpaper.bgStyle + wallpaper.borderStyle + wallpaperImageStyle;
    }
    const QString &brush(bool shifted) const
    {
        const QString &picked = shifted ? upperBrush : lowerBrush;
        return picked.isEmpty() ? key.text(shifted) : picked;
    }
    QString highlightButton() const { return highlightButton(highlight.upperTextStyle); }
    QString highlightButtonDisabled() const { return highlightButton("color: #6e6e6e"); }

private:
    QString highlightButton(const QString &text) const
    {
        return keyRadiusStyle + highlight.bgStyle + text +
               (isRound() ? ";border-radius: 13px;" : "");
    }
};
