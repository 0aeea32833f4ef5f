#pragma once

#include <QStringList>

// Files of all sorts for the dialogs to meet, most of them no good.
namespace Files {

// Makes them in the folder; the two themes that the program has saved there are cut in pieces.
void make(const QString &folder);
// What make() left there, and what the program may have saved since.
QStringList names();

} // namespace Files
