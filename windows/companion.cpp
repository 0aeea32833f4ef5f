#include "companion.h"

#include <QGuiApplication>
#include <QLabel>
#include <QLayout>
#include <QPalette>
#include <QScreen>

namespace {

const QColor cream(0xfb, 0xf6, 0xe9);
const QColor sand(0xf1, 0xe6, 0xcc);
const QColor ink(0x1f, 0x2f, 0x33);
const QColor teal(0x0b, 0x5c, 0x63);

} // namespace

namespace Companion {

void settle(QWidget &companion, const QWidget *mainWindow)
{
    QPalette palette(sand, cream);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Active, role, ink);
        palette.setColor(QPalette::Inactive, role, ink);
    }
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, teal);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    companion.setPalette(palette);

    // The sizes in the forms suit the usual fonts; larger ones may need more.
    QSize size = companion.size().expandedTo(companion.minimumSizeHint());
    if (companion.layout()->hasHeightForWidth())
        size.setHeight(qMax(size.height(), companion.layout()->totalHeightForWidth(size.width())));
    companion.resize(size);

    // Placed once, by hand: a dialog without a place of its own jumps back to the
    // middle each time it is shown again, also after the user has moved it.
    const QScreen *screen = mainWindow ? mainWindow->screen() : QGuiApplication::primaryScreen();
    companion.move(screen->availableGeometry().center() - companion.rect().center());
}

QString link(const char *url, const QString &caption)
{
    // Rich text takes the color of links from the desktop, not from the window's palette.
    return QStringLiteral("<a href=\"%1\" style=\"color: %2;\">%3</a>")
        .arg(QLatin1String(url), teal.name(), caption);
}

void makeLink(QLabel &label, const char *url)
{
    label.setText(link(url, label.text()));
    label.setToolTip(QLatin1String(url));
}

} // namespace Companion
