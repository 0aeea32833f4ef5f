#pragma once

#include <QString>
#include <functional>

class Instructor;
class KeyFeedback;
class MatchBoxes;
class OptionForms;
class QWidget;
class TargetHighlights;
struct Furniture;
struct Game;
struct Wardrobe;
struct Look;

// Puts on again what the looks say. Whoever changes a look calls one of these, and nobody else
// knows who wears what:
//
//   a theme, a Cancel, an OK     all()
//   the paint or its switches    keyboard()
//   key look                     keys(), then its samples; keyLookAlone() while it is picked
//   finished look                finished(); the bar by finishedKeys(), once it is settled
//   highlight                    highlight()
//   lines, wallpaper, boxes      lines(), wallpaper(), boxes()
//   any look                     sample(): its preview on the panels
class Dresser
{
public:
    Dresser(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
            KeyFeedback &keyFeedback, MatchBoxes &matchBoxes, Instructor &virtualInstructor,
            TargetHighlights &targetHighlights, const OptionForms &optionForms);

    void all();

    // Keys and cells as they rest, painted or not, with their texts; what is finished or
    // highlighted stays so.
    void keyboard();
    // Their backgrounds alone.
    void keys();
    // The key look on every key and cell as if nothing was painted, which OK will see to.
    void keyLookAlone();
    // The texts of one case in the key look, on keys with a clear ground or none; what is painted
    // stays.
    void characters(bool shifted, const QString &ground = {});

    // The samples that wear the finished look.
    void finished();
    // Finished keys in the bar once a game has some; the target's highlight over them.
    void finishedKeys();
    // The target and its button.
    void highlight();
    void lines();
    void wallpaper();
    // Match This and Your Entry, with their headers.
    void boxes();
    // Their characters, one box or both; headers wear the color of Match This.
    void boxTexts(bool match, bool user);

    // On the panels.
    void previews();
    void sample(const Look &look);
    void keySamples();
    void character(QWidget *sample, const QString &text, bool shifted);
    void character(int picker); // the sample of what the picker colors
    void brush(bool shifted);   // that of what the mouse paints
    // The samples of cap 1 on A Key's Map and among the options of the lines.
    void sampleKeys(const QString &background);
    void sampleKeys(const QString &text, bool shifted);
    // The letters of the ready-made themes, in the fonts of now.
    void themeLetters();

private:
    void bar(const std::function<QString(int)> &sheetOf);

    Furniture &furniture;
    Wardrobe &wardrobe;
    Game &game;
    KeyFeedback &feedback;
    MatchBoxes &matchBoxes;
    Instructor &instructor;
    TargetHighlights &highlights;
    const OptionForms &forms;
};
