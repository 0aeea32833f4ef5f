#pragma once

#include <QStringList>

class QWidget;

// Asks the player for files of a kind, such as "Audio(*wav)". Empty when cancelled.
QStringList chooseFiles(QWidget &window, const QString &filter);
