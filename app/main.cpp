#include "picture.h"
#include "platform.h"
#include "resources.h"
#include "tambrel.h"

#include <QApplication>
#include <QSplashScreen>

int main(int argc, char *argv[])
{
    Platform::prepare();
    QApplication application(argc, argv);
    Platform::limitCache();
    Platform::makeFusion();
    loadResources();

    QSplashScreen splash(picture(":/new/prefix1/kestrixTypingOrlamu.png"));
    splash.show();

    Platform::installFonts();
    tambrel window;
    // The main window stays hidden; waiting for it would leave the splash over the opening
    // window for a second.
    splash.finish(&window.firstWindow());
    return QApplication::exec();
}
