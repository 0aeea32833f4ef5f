#pragma once

#include <QObject>

struct Furniture;
struct Game;
struct Wardrobe;
class QLabel;

// Lights a key on the keyboard and in the Alphabet Bar, sounds it, and puts it
// back; owns the "Letter-number: " text. Key numbers outside 1 to 94 are ignored.
class KeyFeedback : public QObject
{
    Q_OBJECT

public:
    KeyFeedback(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
                class SoundPlayer &soundPlayer);

    void key(int number);
    void changeColorBack(int number);
    void allChangeColorBack();

    // The font goes by the index of a neighbor at the joints of the sets, so it is asked for.
    void paintFinished(int number, const QString &font);

    // The seven control keys, which no press ever lights, and the sample on A Key's Map.
    void dressOtherKeys();

    QString letterNumberText;
    void numToString();
    void letterOAlphabet();
    void letterOAlphabetNone();

signals:
    void lit(int number);     // before its sound
    void putBack(int number); // as the last step of changeColorBack

private:
    void showLetterNumber(int number);
    void putBackMark(int number);
    void putBackImage(int number);
    const QString &soundOf(int number) const;

    Furniture &furniture;
    Wardrobe &wardrobe;
    Game &game;
    SoundPlayer &player;
};
