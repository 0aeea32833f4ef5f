#include "platformfonts.h"

#include <QFontDatabase>

namespace {

struct StandIn
{
    const char *family;
    QStringList substitutes; // the first that the host has
};

} // namespace

void PlatformFonts::install()
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
