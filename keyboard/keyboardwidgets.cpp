#include "keyboardwidgets.h"

#include "widgetsbyname.h"

#include <QLabel>

namespace {

QString controlName(Keys::Control control)
{
    switch (control) {
    case Keys::Control::BackSpace:
        return "BackSpace";
    case Keys::Control::Tab:
        return "Tab";
    case Keys::Control::CapsLock:
        return "CapsLock";
    case Keys::Control::Enter:
        return "Enter";
    case Keys::Control::ShiftLeft:
        return "ShiftLeft";
    case Keys::Control::ShiftRight:
        return "ShiftRight";
    case Keys::Control::Spacebar:
        return "Spacebar";
    }
    return {};
}

// Arrows, crossing lines and bursts lie over keys and buttons to be looked at. The mouse
// belongs to what is below them.
struct Pointers
{
    const char *name;
    int first, last; // numbers
};

constexpr Pointers pointers[] = {{"arrow%1", 1, 3}, {"arrow%1", 6, 6}, {"h%1", 1, 4},
                                 {"h%1_2", 1, 4},   {"v%1", 1, 29},    {"pulsate%1", 1, 54}};

} // namespace

KeyboardWidgets::KeyboardWidgets(QWidget &window)
{
    const auto labels = widgetsByName<QLabel>(window);
    const auto find = [&labels](const QString &name) {
        Q_ASSERT_X(labels.contains(name), "KeyboardWidgets", qPrintable(name));
        return labels.value(name);
    };
    const auto fill = [&find](QVector<QLabel *> &list, const QString &name, int count) {
        for (int n = 1; n <= count; ++n)
            list.append(find(name.arg(n)));
    };
    const auto fillControls = [&find](QVector<QLabel *> &list, const char *kind,
                                      const auto &order) {
        for (Keys::Control control : order)
            list.append(find(kind + controlName(control)));
    };

    fill(alphabetLabelList, "r%1", Keys::count);
    fill(alphabetBgList, "r%1bg", Keys::count);
    fill(keyTexts, "r%1_2", Keys::count);
    for (QLabel *label : qAsConst(alphabetLabelList))
        letterList.append(label->text());
    for (int cap = 1; cap <= Keys::capCount; ++cap) {
        lowerLabelList.append(barLetter(Keys::unshifted(cap)));
        upperLabelList.append(barLetter(Keys::shifted(cap)));
        lowerKeyList.append(keyText(Keys::unshifted(cap)));
        upperKeyList.append(keyText(Keys::shifted(cap)));
    }
    fillControls(lowerKeyList, "label", Keys::textOrder);
    fill(keyBgList, "bg%1", Keys::capCount);
    fillControls(keyBgList, "bg", Keys::backgroundOrder);
    fill(keyImgList, "img%1", Keys::capCount);
    fillControls(keyImgList, "img", Keys::backgroundOrder);
    fill(shieldList, "shield%1", Keys::capCount);
    fill(pulsateList, "pulsate%1", Keys::pileCount);
    fill(displayNoneList, "displayNone%1", Keys::pileCount);
    for (const Pointers &row : pointers) {
        for (int n = row.first; n <= row.last; ++n)
            find(QString(row.name).arg(n))->setAttribute(Qt::WA_TransparentForMouseEvents);
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
