#pragma once

#include <QIcon>
#include <QPixmap>

// A resource picture, in its @2x twin where the screen is dense enough for it: a
// QPixmap alone would not look for the twin.
inline QPixmap picture(const QString &path)
{
    const QIcon icon(path);
    return icon.pixmap(icon.availableSizes().value(0));
}
