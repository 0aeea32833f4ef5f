#include "wallpaper.h"

#include "board.h"
#include "dresser.h"
#include "filechoice.h"
#include "mousetable.h"
#include "picture.h"
#include "styletext.h"
#include "ui_tambrel.h"
#include "wear.h"

namespace {

struct Place
{
    const char *radio;
    const char *label; // a click on it does the same
    Qt::Alignment alignment;
};

// The first has no vertical part and the sixth no AlignVCenter, which is wanted.
const Place places[] = {
    {"leftTop", "leftTop_2", Qt::AlignLeft},
    {"middleTop", "middleTop_2", Qt::AlignHCenter | Qt::AlignTop},
    {"rightTop", "rightTop_2", Qt::AlignRight | Qt::AlignTop},
    {"alignLeft", "alignLeft_2", Qt::AlignLeft | Qt::AlignVCenter},
    {"alignCenter", "alignCenter_2", Qt::AlignCenter},
    {"alignRight", "alignRight_2", Qt::AlignRight | Qt::AlignCenter},
    {"leftBottom", "leftBottom_2", Qt::AlignLeft | Qt::AlignBottom},
    {"middleBottom", "middleBottom_2", Qt::AlignHCenter | Qt::AlignBottom},
    {"rightBottom", "rightBottom_2", Qt::AlignRight | Qt::AlignBottom},
};

} // namespace

Wallpaper::Wallpaper(Board &usedBoard, Dresser &usedDresser, QWidget &mainWindow)
    : board(usedBoard), dresser(usedDresser), window(mainWindow)
{}

void Wallpaper::attach(MouseTable &mouse)
{
    const PanelWidgets &widgets = board.panelWidgets;
    const auto onClick = [&](const char *name, void (Wallpaper::*slot)()) {
        connect(widgets.button(name), &QAbstractButton::clicked, this, slot);
    };
    onClick("openImageMain", &Wallpaper::openImageMain_Function);
    onClick("clearMainImage", &Wallpaper::clearMainImage_function);
    onClick("repeatYes", &Wallpaper::mainRepeat);
    onClick("repeatNo", &Wallpaper::mainRepeat);
    onClick("stretchYes", &Wallpaper::mainStretchToFit);
    onClick("stretchNo", &Wallpaper::mainStretchToFit);
    for (const Place &place : places) {
        QAbstractButton *radio = widgets.button(place.radio);
        connect(radio, &QAbstractButton::clicked, this, &Wallpaper::mainAlign);
        mouse.add(widgets.find(place.label), {{}, {}, [this, radio] {
                                                  radio->setChecked(true);
                                                  mainAlign();
                                              }});
    }
    mouse.add(widgets.find("openFolderMain"), {{}, {}, [this] { openImageMain_Function(); }});
}

void Wallpaper::openImageMain_Function()
{
    QStringList files = chooseFiles(window, "Images(*bmp *.gif *.jpg *.png)");
    mainImageOn = files.isEmpty() ? "0" : "1";
    if (files.isEmpty())
        files.append(":/new/prefix1/blank.gif");
    mainImagePath = files.first();
    // A style sheet would open anything, and wait for a pipe.
    mainImageStyle = isPicture(mainImagePath)
                         ? "background-image: " + StyleText::url(mainImagePath) + ";"
                         : QString();
    openMovie(mainMovie, mainImagePath);
    board.ui.wallpaper->setMovie(&mainMovie);
    mainMovie.start();
    if (board.panelWidgets.isChecked("repeatYes"))
        mainRepeat();
    wear(board.panelWidgets.find("radioLineMain"), "border: 1px solid blue;");
}

void Wallpaper::clearMainImage_function()
{
    mainImagePath.clear();
    mainImageStyle.clear();
    mainMovie.stop();
    board.ui.wallpaper->clear();
    mainImageOn = "0";
    mainRepeat();
    wear(board.panelWidgets.find("radioLineMain"), "border: 1px solid black;");
}

void Wallpaper::mainRepeat()
{
    board.looks.wallpaperImageStyle = board.panelWidgets.isChecked("repeatYes")
                                          ? mainImageStyle
                                          : QString("background-repeat: no-repeat;");
    dresser.wallpaper();
    mainAlign();
}

void Wallpaper::mainStretchToFit()
{
    board.ui.wallpaper->setScaledContents(board.panelWidgets.isChecked("stretchYes"));
}

void Wallpaper::mainAlign()
{
    if (!board.panelWidgets.isChecked("repeatNo"))
        return;
    for (const Place &place : places) {
        if (board.panelWidgets.isChecked(place.radio))
            board.ui.wallpaper->setAlignment(place.alignment);
    }
}
