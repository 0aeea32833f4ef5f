#pragma once

#include "tambrel.h"

#include <QString>
#include <memory>
#include <vector>

// What the rows of the bench share.

double nowMs(); // since some moment before
double cpuMs(); // of this process
double median(std::vector<double> values);
long kilobytes(const char *file, const char *key); // a line of /proc/self/FILE

// A row of the table for people.
void row(const char *what, const QString &text);
// The same for a program: one number, better when it is smaller unless the unit is a frequency.
void figure(const char *what, double value, const char *unit);
// Where figures go: lines of name, value and unit with tabs between. Nowhere unless told.
bool writeFiguresTo(const QString &path);
QString ms(double value);

void settle(int milliseconds);
// The main window as after Start in the opening window, alone on the screen.
std::unique_ptr<tambrel> openWindow(bool realSound = false);
void sendKey(QWidget *window, QEvent::Type type, int code,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier);

// How long each act of a player keeps the window from answering.
void blocking();
