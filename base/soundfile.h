#pragma once

#include <QByteArray>
#include <QString>

// The library that plays WAV files believes what their headers promise: one that promises more than
// the file holds has it write past its memory, and one that is cut short has it wait for the rest
// for ever, the end of the program included. So it is handed nothing that was not checked here.

// Whether it can be played: a resource or a regular file of at most 32 MiB that holds all that it
// promises, with one or two channels of 8 or 16 bits, not compressed.
bool isSound(const QString &path);

// The sound as a WAV file of the plainest kind; empty where it cannot be played.
QByteArray plainSound(const QString &path);
