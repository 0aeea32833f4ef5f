#include "picture.h"
#include "platformfonts.h"
#include "resources.h"
#include "tambrel.h"

#include <QApplication>
#include <QSplashScreen>

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    loadResources();

    QSplashScreen splash(picture(":/new/prefix1/kestrixTypingOrlamu.png"));
    splash.show();

    PlatformFonts::install();
    tambrel window;
    // The main window stays hidden; waiting for it would leave the splash over the opening
    // window for a second.
    splash.finish(&window.firstWindow());
    return QApplication::exec();
}
