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

    const QPixmap picture(":/new/prefix1/kestrixTypingOrlamu.png");
    QSplashScreen splash(picture);
    splash.show();

    PlatformFonts::install();
    tambrel window;
    splash.finish(&window);
    return QApplication::exec();
}
