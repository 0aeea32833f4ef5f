#include "wallpaper.h"

#include "dresser.h"
#include "filechoice.h"
#include "furniture.h"
#include "mousetable.h"
#include "optionforms.h"
#include "picture.h"
#include "styletext.h"
#include "ui_picturespanel.h"
#include "ui_tambrel.h"
#include "wardrobe.h"
#include "wear.h"

Wallpaper::Wallpaper(Furniture &usedFurniture, Wardrobe &usedWardrobe, Dresser &usedDresser,
                     const OptionForms &optionForms, FileChoice &fileChoice, MouseTable &mouse)
    : furniture(usedFurniture),
      wardrobe(usedWardrobe),
      dresser(usedDresser),
      form(*optionForms.pictures),
      choice(fileChoice),
      // The first has no vertical part and the sixth no AlignVCenter: both stand as they always
      // did.
      places{{
          {form.leftTop, form.leftTop_2, Qt::AlignLeft},
          {form.middleTop, form.middleTop_2, Qt::AlignHCenter | Qt::AlignTop},
          {form.rightTop, form.rightTop_2, Qt::AlignRight | Qt::AlignTop},
          {form.alignLeft, form.alignLeft_2, Qt::AlignLeft | Qt::AlignVCenter},
          {form.alignCenter, form.alignCenter_2, Qt::AlignCenter},
          {form.alignRight, form.alignRight_2, Qt::AlignRight | Qt::AlignCenter},
          {form.leftBottom, form.leftBottom_2, Qt::AlignLeft | Qt::AlignBottom},
          {form.middleBottom, form.middleBottom_2, Qt::AlignHCenter | Qt::AlignBottom},
          {form.rightBottom, form.rightBottom_2, Qt::AlignRight | Qt::AlignBottom},
      }},
      refusal(*form.keyPicturesRefusal)
{
    const auto onClick = [this](QAbstractButton *button, void (Wallpaper::*slot)()) {
        connect(button, &QAbstractButton::clicked, this, slot);
    };
    onClick(form.openImageMain, &Wallpaper::openImageMain_Function);
    onClick(form.clearMainImage, &Wallpaper::clearMainImage_function);
    onClick(form.repeatYes, &Wallpaper::mainRepeat);
    onClick(form.repeatNo, &Wallpaper::mainRepeat);
    onClick(form.stretchYes, &Wallpaper::mainStretchToFit);
    onClick(form.stretchNo, &Wallpaper::mainStretchToFit);
    for (const Place &place : places) {
        onClick(place.radio, &Wallpaper::mainAlign);
        mouse.add(place.label, {{}, {}, [this, radio = place.radio] {
                                    radio->setChecked(true);
                                    mainAlign();
                                }});
    }
    mouse.add(form.openFolderMain, {{}, {}, [this] { openImageMain_Function(); }});
}

void Wallpaper::openImageMain_Function()
{
    QStringList files = choice.files("Images(*bmp *.gif *.jpg *.png)");
    refusal.show(!files.isEmpty() && !isPicture(files.first()));
    mainImageOn = files.isEmpty() ? "0" : "1";
    if (files.isEmpty())
        files.append(":/new/prefix1/blank.gif");
    mainImagePath = files.first();
    // A style sheet would open anything, and wait for a pipe.
    mainImageStyle = isPicture(mainImagePath)
                         ? "background-image: " + StyleText::url(mainImagePath) + ";"
                         : QString();
    showPicture();
    if (form.repeatYes->isChecked())
        mainRepeat();
    wear(form.radioLineMain, "border: 1px solid blue;");
}

// A label that stretches a movie would scale it at every repaint, so the movie brings its frames
// in the size of the label.
void Wallpaper::showPicture()
{
    QLabel *label = furniture.ui.wallpaper;
    openMovie(mainMovie, mainImagePath, label->hasScaledContents() ? label->size() : QSize());
    label->setMovie(&mainMovie);
    mainMovie.start();
}

void Wallpaper::clearMainImage_function()
{
    mainImagePath.clear();
    mainImageStyle.clear();
    mainMovie.stop();
    furniture.ui.wallpaper->clear();
    mainImageOn = "0";
    mainRepeat();
    wear(form.radioLineMain, "border: 1px solid black;");
}

void Wallpaper::mainRepeat()
{
    wardrobe.looks.wallpaperImageStyle =
        form.repeatYes->isChecked() ? mainImageStyle : QString("background-repeat: no-repeat;");
    dresser.wallpaper();
    mainAlign();
}

void Wallpaper::mainStretchToFit()
{
    furniture.ui.wallpaper->setScaledContents(form.stretchYes->isChecked());
    if (!mainImagePath.isEmpty())
        showPicture();
}

void Wallpaper::mainAlign()
{
    if (!form.repeatNo->isChecked())
        return;
    for (const Place &place : places) {
        if (place.radio->isChecked())
            furniture.ui.wallpaper->setAlignment(place.alignment);
    }
}
