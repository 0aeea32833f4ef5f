#include "platform.h"

#include <QApplication>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPixmapCache>
#include <QStyleFactory>

namespace {

struct StandIn
{
    const char *family;
    QStringList substitutes; // the first that the host has
};

} // namespace

void Platform::prepare()
{
    // Everything is painted by the processor. Loading the drivers of the graphics card for
    // the first window would take 40 ms and 20 MiB, and nothing would use them.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");
    QGuiApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QGuiApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // The window has one size. Qt would make 2 of a desktop's 1.5, which is wider than most
    // such screens, and unrounded every server's odd 1.04 would blur the edges.
    if (!qEnvironmentVariableIsSet("QT_SCALE_FACTOR_ROUNDING_POLICY"))
        QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
            Qt::HighDpiScaleFactorRoundingPolicy::RoundPreferFloor);
}

void Platform::limitCache()
{
    // Each change of a button's style sheet leaves the drawings of the style before in Qt's
    // cache, which would grow to 10 MiB over a long evening of games.
    constexpr int kibibytes = 2048;
    QPixmapCache::setCacheLimit(kibibytes);
}

void Platform::makeFusion()
{
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    // A dark desktop's white letters would stand on the window's own light ground.
    QApplication::setPalette(QApplication::style()->standardPalette());
}

void Platform::installFonts()
{
    const int symbolFont = QFontDatabase::addApplicationFont(":/new/prefix1/kestrixSymbols.ttf");
    const QStringList symbols = QFontDatabase::applicationFontFamilies(symbolFont);
    const QStringList sans{"Liberation Sans", "Arimo", "DejaVu Sans"};
    const StandIn standIns[] = {
        {"Calibri", QStringList{"Carlito"} + sans},
        {"MS Shell Dlg 2", QStringList{"Tahoma", "Wine Tahoma"} + sans},
        {"arial unicode ms", QStringList{"Arial"} + sans},
        {"Wingdings", symbols},
        {"Wingdings 2", symbols},
        {"Wingdings 3", symbols},
        {"Webdings", symbols},
    };
    const QFontDatabase host;
    for (const StandIn &row : standIns) {
        if (!host.hasFamily(row.family))
            QFont::insertSubstitutions(row.family, row.substitutes);
    }
}
