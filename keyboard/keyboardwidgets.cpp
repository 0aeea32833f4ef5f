#include "keyboardwidgets.h"

#include "keyboardview.h"
#include "ui_tambrel.h"

#include <QLabel>

KeyboardWidgets::KeyboardWidgets(const Ui::tambrel &form)
    : alphabetLabelList(form.alphabetBar->letters),
      alphabetBgList(form.alphabetBar->backgrounds),
      shieldList(form.keyShields->shields),
      keyBgList(Keys::placeCount),
      keyImgList(Keys::placeCount),
      pulsateList(form.keyBursts->bursts),
      displayNoneList(form.keyBursts->covers),
      keyTexts(form.keyFaces->characters)
{
    for (QLabel *label : qAsConst(alphabetLabelList))
        letterList.append(label->text());
    for (int cap = 1; cap <= Keys::capCount; ++cap) {
        lowerLabelList.append(barLetter(Keys::unshifted(cap)));
        upperLabelList.append(barLetter(Keys::shifted(cap)));
        lowerKeyList.append(keyText(Keys::unshifted(cap)));
        upperKeyList.append(keyText(Keys::shifted(cap)));
    }
    lowerKeyList += form.keyFaces->controlTexts;
    for (const Keys::Place place : Keys::places) {
        keyBgList[place.backgroundIndex()] = form.keyFaces->backgrounds[place.index()];
        keyImgList[place.backgroundIndex()] = form.keyFaces->images[place.index()];
    }
}

void KeyboardWidgets::setWideImagesScaled(bool scaled)
{
    // The spacebar is left out: a picture stretched that far shows nothing of itself.
    constexpr int widestCap = 42;
    image(widestCap)->setScaledContents(scaled);
    for (int i = 0; i < Keys::controlCount; ++i) {
        if (Keys::backgroundOrder[i] != Keys::Control::Spacebar)
            keyImgList[Keys::capCount + i]->setScaledContents(scaled);
    }
}
