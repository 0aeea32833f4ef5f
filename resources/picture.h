#pragma once

#include <QPixmap>
#include <QSize>

class QMovie;

// Pictures and animations of the collection in the size they were drawn for. Where a screen is
// dense their "@2x" twins are taken: a QPixmap or QMovie alone would not look for them.

// Null where there is no such file.
QPixmap picture(const QString &path);

// Whether the file can be shown without harm: a resource or a regular file, and an image that is
// all there and tells beforehand that it does not unpack to more than 64 million pixels. A pipe
// would block the program.
bool isPicture(const QString &path);

// The size that the picture has at this width (logical px), for openMovie(); it is told by the head
// of the file, without unpacking it. Invalid for what is no picture.
// Lets the movie play the file in this size (logical px; invalid: the file's own). What is no
// picture is shown as the blank one. A picture that is very long for its width takes the size only
// as far as a window could show it: to fill gigabytes, a line of pixels is enough.
void openMovie(QMovie &movie, const QString &path, const QSize &size = {});

QSize sizeAtWidth(const QString &path, int width);
