#include "matchboxes.h"

#include "announcer.h"
#include "furniture.h"
#include "game.h"
#include "ui_tambrel.h"
#include "wardrobe.h"
#include "wear.h"

namespace {

constexpr const char *plain = "background-color: transparent;";
constexpr const char *plainBlank = "background-color: transparent; ";
constexpr const char *italic = "background-color: transparent; font-style: italic; ";

enum class BoxFont {
    Keep, // the box keeps the style it has
    Lower,
    Upper,
    ByTarget, // both boxes turn italic, in the font of the target
};

// Columns in the order of Keys::Set. The capitals of a Reverse game take the upper
// font, its other sets the lower one; a Reverse Lowercase game keeps what it has.
constexpr BoxFont fonts[3][4] = {
    // Uppercase, Lowercase, NumberLine, Everything
    {BoxFont::Upper, BoxFont::Lower, BoxFont::Upper, BoxFont::Upper},       // Forward
    {BoxFont::Upper, BoxFont::Keep, BoxFont::Lower, BoxFont::Lower},        // Reverse
    {BoxFont::Upper, BoxFont::Lower, BoxFont::ByTarget, BoxFont::ByTarget}, // Random
};

BoxFont fontOf(const GameChoice &choice)
{
    return fonts[static_cast<int>(choice.direction())][static_cast<int>(choice.keySet())];
}

} // namespace

MatchBoxes::MatchBoxes(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame)
    : furniture(usedFurniture), wardrobe(usedWardrobe), game(usedGame)
{
    for (QLineEdit *box : {furniture.ui.leMatch, furniture.ui.leUser})
        box->setAttribute(Qt::WA_TransparentForMouseEvents);
    dressBackgrounds();
    QLineEdit *target = furniture.ui.leMatch;
    auto *announcer = new Announcer(target->parentWidget());
    QObject::connect(target, &QLineEdit::textChanged, announcer, &Announcer::say);
}

void MatchBoxes::dressBackgrounds()
{
    const Looks &looks = wardrobe.looks;
    wear(furniture.ui.leMatchBg, looks.boxBackground(looks.matchBox));
    wear(furniture.ui.leUserBg, looks.boxBackground(looks.userBox));
    wear(furniture.ui.matchThisBg, looks.headerBackground(looks.matchBox));
    wear(furniture.ui.yourEntryBg, looks.headerBackground(looks.userBox));
}

QString MatchBoxes::sheet(const char *head, bool shifted, const QString &color) const
{
    return QLatin1String(head) + wardrobe.looks.font(shifted) + color +
           " font-size: 24pt; border: none;";
}

void MatchBoxes::set_Match_StyleSheet()
{
    const int index = game.target();
    if (index >= 0)
        wear(furniture.ui.leMatch,
             sheet(plain, Keys::isShifted(Keys::fromIndex(index)), wardrobe.looks.matchTextStyle));
}

void MatchBoxes::set_Match_StyleSheet_italic()
{
    const int index = game.target();
    if (index < 0)
        return;
    const bool shifted = Keys::isShifted(Keys::fromIndex(index));
    wear(furniture.ui.leMatch, sheet(italic, shifted, wardrobe.looks.matchTextStyle));
    wear(furniture.ui.leUser, sheet(italic, shifted, wardrobe.looks.userTextStyle));
}

void MatchBoxes::set_User_StyleSheet()
{
    const BoxFont font = fontOf(game.choice);
    if (font == BoxFont::ByTarget) {
        set_Match_StyleSheet_italic();
    } else if (font != BoxFont::Keep) {
        const bool forward = game.choice.direction() == Direction::Forward;
        wear(furniture.ui.leUser, sheet(forward ? plain : plainBlank, font == BoxFont::Upper,
                                        wardrobe.looks.userTextStyle));
    }
}

void MatchBoxes::set_final_match_stylesheet()
{
    const BoxFont font = fontOf(game.choice);
    if (font == BoxFont::ByTarget) {
        set_Match_StyleSheet_italic();
    } else if (font != BoxFont::Keep) {
        wear(furniture.ui.leMatch,
             sheet(italic, font == BoxFont::Upper, wardrobe.looks.matchTextStyle));
        wear(furniture.ui.leUser,
             sheet(italic, font == BoxFont::Upper, wardrobe.looks.userTextStyle));
    }
}

void MatchBoxes::set_User_StyleSheet_Uppercase()
{
    if (game.gameRunning)
        wear(furniture.ui.leUser, sheet(plain, true, wardrobe.looks.userTextStyle));
}

void MatchBoxes::set_User_StyleSheet_Lowercase()
{
    if (game.gameRunning)
        wear(furniture.ui.leUser, sheet(plain, false, wardrobe.looks.userTextStyle));
}
