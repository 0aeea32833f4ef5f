#pragma once

struct Furniture;
struct Game;
struct Wardrobe;
class QLineEdit;
class QString;

// How the characters in Match This (leMatch) and Your Entry (leUser) look. Both
// boxes are mirrors: nobody can focus them, type into them or select in them.
class MatchBoxes
{
public:
    MatchBoxes(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame);

    // The boxes behind the characters, and those of their headers.
    void dressBackgrounds();

    // For the character that leMatch shows; any other text keeps its style.
    void set_Match_StyleSheet();
    void set_Match_StyleSheet_italic(); // both boxes

    // By direction and key set.
    void set_User_StyleSheet();
    void set_final_match_stylesheet(); // both boxes, at the end of a game

    // By the character typed; nothing outside a game.
    void set_User_StyleSheet_Uppercase();
    void set_User_StyleSheet_Lowercase();

private:
    QString sheet(const char *head, bool shifted, const QString &color) const;

    Furniture &furniture;
    Wardrobe &wardrobe;
    Game &game;
};
