#pragma once

#include <QString>
#include <QVector>

class PanelWidgets;
class QWidget;

// What the two kinds of theme files have in common: plain UTF-8 text, one value a line, by
// position. Writer and reader walk one table of fields.
namespace ThemeFile {

using Fields = QVector<QString *>;

// False if it cannot be written; the file that was there is then as it was.
bool write(const QString &path, const Fields &fields);

// False if it cannot be opened, or is no regular file; the fields are then as they were. Lines
// past the end are empty. Of a style, what could reach for other files or does not fit on any
// screen is dropped.
bool read(const QString &path, const Fields &fields);

QString askToSave(QWidget &window, const QString &title, const QString &suggestion);
QString askToOpen(QWidget &window, const QString &title);

// Takes the number of a text from "1" to the largest; anything else leaves the number alone.
void take(const QString &text, int largest, int &number);
// The other way round: 0 leaves the older text standing.
void put(int number, int largest, QString &text);

// What both kinds write into and show of.
struct Shared
{
    QString themeLanguageMarker = "0"; // English
    QString currentThemeName;          // the file's name without folder and extension
    QString lastThemeName;
    QString lowerFontName, upperFontName; // families, as the boxes of the fonts show them

    void readFonts(const PanelWidgets &widgets); // from the boxes
    void chooseFonts(const PanelWidgets &widgets) const;

    // Of the file that was asked for; the last one's after Cancel.
    void name(const QString &path);
};

// One of the two kinds.
struct Kind
{
    const char *label; // the name's label; with "_2" its heading, with "_3" the warning
    const char *otherLabel;
    const QString &marker; // as it was read
    const char *wanted;
    const char *warning;
};
// Reads the file into the fields and tells by the labels what it was. False if there was
// nothing to read.
bool open(const QString &path, const Fields &fields, const Kind &kind, Shared &shared,
          const PanelWidgets &widgets);

} // namespace ThemeFile
