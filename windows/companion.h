#pragma once

#include <QString>

class QLabel;
class QWidget;

// What the five companion windows have in common: their colors, their place on
// the screen and the way a label becomes a link. They wear one light palette on
// every desktop, since they stand beside a main window that is always light.
namespace Companion {

// Call after setupUi. mainWindow may be null: the primary screen is used then.
void settle(QWidget &companion, const QWidget *mainWindow);

QString link(const char *url, const QString &caption);

// Wraps the label's own text in a link and shows the address as its tool tip.
void makeLink(QLabel &label, const char *url);

} // namespace Companion
