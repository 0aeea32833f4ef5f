#include "matchboxes.h"

#include "announcer.h"
#include "board.h"
#include "ui_tambrel.h"
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

MatchBoxes::MatchBoxes(Board &usedBoard) : board(usedBoard)
{
    for (QLineEdit *box : {board.ui.leMatch, board.ui.leUser})
        box->setAttribute(Qt::WA_TransparentForMouseEvents);
    dressBackgrounds();
    QLineEdit *target = board.ui.leMatch;
    auto *announcer = new Announcer(target->parentWidget());
    QObject::connect(target, &QLineEdit::textChanged, announcer, &Announcer::say);
}

void MatchBoxes::dressBackgrounds()
{
    const Looks &looks = board.looks;
    wear(board.ui.leMatchBg, looks.boxBackground(looks.matchBox));
    wear(board.ui.leUserBg, looks.boxBackground(looks.userBox));
    wear(board.ui.matchThisBg, looks.headerBackground(looks.matchBox));
    wear(board.ui.yourEntryBg, looks.headerBackground(looks.userBox));
}

QString MatchBoxes::sheet(const char *head, bool shifted, const QString &colour) const
{
    return QLatin1String(head) + board.looks.font(shifted) + colour +
           " font-size: 24pt; border: none;";
}

void MatchBoxes::set_Match_StyleSheet()
{
    const int index = board.widgets.indexOf(board.ui.leMatch->text());
    if (index >= 0)
        wear(board.ui.leMatch,
             sheet(plain, Keys::isShifted(Keys::fromIndex(index)), board.looks.matchTextStyle));
}

void MatchBoxes::set_Match_StyleSheet_italic()
{
    const int index = board.widgets.indexOf(board.ui.leMatch->text());
    if (index < 0)
        return;
    const bool shifted = Keys::isShifted(Keys::fromIndex(index));
    wear(board.ui.leMatch, sheet(italic, shifted, board.looks.matchTextStyle));
    wear(board.ui.leUser, sheet(italic, shifted, board.looks.userTextStyle));
}

void MatchBoxes::set_User_StyleSheet()
{
    const BoxFont font = fontOf(board.choice);
    if (font == BoxFont::ByTarget) {
        set_Match_StyleSheet_italic();
    } else if (font != BoxFont::Keep) {
        const bool forward = board.choice.direction() == Direction::Forward;
        wear(board.ui.leUser, sheet(forward ? plain : plainBlank, font == BoxFont::Upper,
                                    board.looks.userTextStyle));
    }
}

void MatchBoxes::set_final_match_stylesheet()
{
    const BoxFont font = fontOf(board.choice);
    if (font == BoxFont::ByTarget) {
        set_Match_StyleSheet_italic();
    } else if (font != BoxFont::Keep) {
        wear(board.ui.leMatch, sheet(italic, font == BoxFont::Upper, board.looks.matchTextStyle));
        wear(board.ui.leUser, sheet(italic, font == BoxFont::Upper, board.looks.userTextStyle));
    }
}

void MatchBoxes::set_User_StyleSheet_Uppercase()
{
    if (board.game.gameRunning)
        wear(board.ui.leUser, sheet(plain, true, board.looks.userTextStyle));
}

void MatchBoxes::set_User_StyleSheet_Lowercase()
{
    if (board.game.gameRunning)
        wear(board.ui.leUser, sheet(plain, false, board.looks.userTextStyle));
}
