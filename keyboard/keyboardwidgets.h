#pragma once

#include "keys.h"

#include <QStringList>
#include <QVector>

class QLabel;

namespace Ui {
class tambrel;
}

// The labels of the on-screen keyboard and the Alphabet Bar by number, as the rooms
// want them. They were built with the form (keyboardview.h), and belong to the window.
//
// Lists of 54 hold the 47 caps, then the seven control keys: keyBgList and
// keyImgList in Keys::backgroundOrder, all others in Keys::textOrder.
class KeyboardWidgets
{
public:
    explicit KeyboardWidgets(const Ui::tambrel &form);

    QStringList letterList; // the 94 characters, as the labels of the bar say

    QVector<QLabel *> alphabetLabelList; // 94, r#
    QVector<QLabel *> alphabetBgList;    // 94, r#bg
    QVector<QLabel *> lowerLabelList;    // 47, the unshifted of r#
    QVector<QLabel *> upperLabelList;    // 47, the shifted
    QVector<QLabel *> lowerKeyList;      // 54, the unshifted of r#_2 and the control keys' texts
    QVector<QLabel *> upperKeyList;      // 47, the shifted of r#_2
    QVector<QLabel *> shieldList;        // 47
    QVector<QLabel *> keyBgList;         // 54
    QVector<QLabel *> keyImgList;        // 54
    QVector<QLabel *> pulsateList;       // 54, the bursts
    QVector<QLabel *> displayNoneList;   // 54, the covers

    // Key numbers 1 to 94.
    QLabel *barLetter(int key) const { return alphabetLabelList[Keys::index(key)]; }
    QLabel *barBackground(int key) const { return alphabetBgList[Keys::index(key)]; }
    QLabel *keyText(int key) const { return keyTexts[Keys::index(key)]; }
    // Caps 1 to 47.
    QLabel *background(int cap) const { return keyBgList[cap - 1]; }
    QLabel *image(int cap) const { return keyImgList[cap - 1]; }
    QLabel *shield(int cap) const { return shieldList[cap - 1]; }
    // The text of a cap's place is its unshifted character.
    QLabel *background(Keys::Place place) const { return keyBgList[place.backgroundIndex()]; }
    QLabel *image(Keys::Place place) const { return keyImgList[place.backgroundIndex()]; }
    QLabel *text(Keys::Place place) const { return lowerKeyList[place.index()]; }
    QLabel *burst(Keys::Place place) const { return pulsateList[place.index()]; }

    // The character at an index, empty where there is none: a game may be at the end of the
    // keyboard while the set chosen last goes on.
    QString letterAt(int index) const { return letterList.value(index); }
    // -1 for a text that is no character of the keyboard.
    int indexOf(const QString &character) const { return letterList.indexOf(character); }
    const QString &letter(int key) const { return letterList[Keys::index(key)]; }

    // Stretches the images of the keys that are wider than a picture, or not.
    void stfOn() { setWideImagesScaled(true); }
    void stfOff() { setWideImagesScaled(false); }

private:
    void setWideImagesScaled(bool scaled);

    QVector<QLabel *> keyTexts; // 94, r#_2
};
