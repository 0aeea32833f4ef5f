#pragma once

#include "styletext.h"

#include <QString>
#include <QVector>

class QLabel;

namespace Ui {
class fontsPanel;
}

// What the two kinds of theme files have in common: plain UTF-8 text, one value a line, by
// position. Writer and reader walk one table of fields.
namespace ThemeFile {

struct Field
{
    QString *text;
    StyleText::Kind kind;
};
using Fields = QVector<Field>;

// False if it cannot be written; the file that was there is then as it was. Only regular files
// are ever replaced.
bool write(const QString &path, const Fields &fields);

// False if it cannot be opened, or is no regular file; the fields are then as they were. Lines
// past the end are empty, and so is a line that is not what its field is made of.
bool read(const QString &path, const Fields &fields);

// Takes the number of a text from "1" to the largest. An empty one is what put() makes of 0;
// anything else leaves the number alone.
void take(const QString &text, int largest, int &number);
// The other way round: 0 leaves the older text standing.
void put(int number, int largest, QString &text);

// What both kinds write into and show of.
struct Shared
{
    explicit Shared(const Ui::fontsPanel &fontsForm) : form(fontsForm) {}

    QString themeLanguageMarker = "0"; // English
    QString currentThemeName;          // the file's name without folder and extension
    QString lastThemeName;
    QString lowerFontName, upperFontName; // families, as the boxes of the fonts show them

    void readFonts();         // from the boxes
    void chooseFonts() const; // in the boxes alone

    // Of the file that was asked for; the last one's after Cancel.
    void name(const QString &path);

private:
    const Ui::fontsPanel &form;
};

struct Labels
{
    QLabel *name, *heading, *warning;
};

// One of the two kinds.
struct Kind
{
    Labels own, other;
    const QString &marker; // as it was read
    const char *wanted;
    const char *refusal; // what the warning says of another marker
};
// Writes the file, and tells by the warning when it cannot be done.
void save(const QString &path, const Fields &fields, const Kind &kind);
// Reads the file into the fields and tells by the labels what it was. False if there was
// nothing to read.
bool open(const QString &path, const Fields &fields, const Kind &kind, Shared &shared);

} // namespace ThemeFile
