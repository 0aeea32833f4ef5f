#include "keyfonts.h"

#include "dresser.h"
#include "furniture.h"
#include "matchboxes.h"
#include "optionforms.h"
#include "styletext.h"
#include "ui_colormadness.h"
#include "ui_fontspanel.h"
#include "ui_lookpage.h"
#include "ui_tambrel.h"
#include "wardrobe.h"
#include "wear.h"

#include <QFontComboBox>
#include <QFontDatabase>
#include <QSignalBlocker>
#include <QStringListModel>

namespace {

constexpr const char *clear = "background-color: transparent;";
constexpr const char *clearBlank = "background-color: transparent; ";

// The sample of the lowercase key goes by the letter z, a fixed choice.
constexpr int keyOfZ = 26;
constexpr int keyOfA = 1;
constexpr int keyOfCapitalA = 27;

// Each family once: not once for every foundry that made it ("Z003 [urw]"), and without the
// symbols of this program, which would take the characters off the keys.
QStringList families()
{
    const QString own = QFontInfo(QFont("Wingdings")).family();
    QStringList list;
    for (const QString &name : QFontDatabase().families()) {
        const QString family = name.section(" [", 0, 0);
        if (!QFontDatabase().isPrivateFamily(name) && family != own && !list.contains(family))
            list.append(family);
    }
    return list;
}

// The box fills its list itself, also when a font is installed while the program runs.
void keepFamilies(QFontComboBox *box)
{
    auto *list = qobject_cast<QStringListModel *>(box->model());
    if (!list)
        return;
    const auto fill = [box, list] {
        const QSignalBlocker quiet(box);
        const QString chosen = box->currentText();
        list->setStringList(families());
        box->setCurrentIndex(box->findText(chosen));
        box->setEditText(chosen);
    };
    QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, box, fill,
                     Qt::QueuedConnection);
    fill();
}

} // namespace

KeyFonts::KeyFonts(Furniture &usedFurniture, Wardrobe &usedWardrobe, Dresser &usedDresser,
                   MatchBoxes &matchBoxes, const OptionForms &optionForms)
    : furniture(usedFurniture),
      wardrobe(usedWardrobe),
      dresser(usedDresser),
      boxes(matchBoxes),
      form(*optionForms.fonts),
      forms(optionForms)
{
    prepare(form.fontComboBoxLowercase, &KeyFonts::newFontLowercase);
    prepare(form.fontComboBoxUppercase, &KeyFonts::newFontUppercase);
}

void KeyFonts::prepare(QFontComboBox *box, void (KeyFonts::*slot)())
{
    box->setCurrentFont(QFont("Calibri"));
    keepFamilies(box);
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, slot);
    // What is typed next is meant for the keys.
    connect(box, QOverload<int>::of(&QComboBox::activated), box, &QWidget::clearFocus);
}

void KeyFonts::newFontLowercase()
{
    Looks &looks = wardrobe.looks;
    const PaintTables &paint = wardrobe.paint;
    const bool painted = paint.isOn(PaintTables::Lower);
    looks.lowerFontStyle = StyleText::fontFamily(form.fontComboBoxLowercase->currentText());
    const QString &font = looks.lowerFontStyle;
    boxes.set_Match_StyleSheet();

    dresser.characters(false);
    const auto sample = [&](int key) -> const QString & {
        return painted ? paint.paintedText(key) : looks.key.lowerTextStyle;
    };
    wear(forms.keys->lowerSample, clearBlank + sample(keyOfA) + looks.upperFontSizeStyle + font);
    // While painting is on, the shifted sample takes this font.
    wear(painted ? forms.colorMadness->demoLetter4English
                 : forms.colorMadness->demoLetter4LowerCase,
         clear + sample(keyOfCapitalA) + looks.upperFontSizeStyle + font);
    wear(furniture.ui.aKeysMap3, clear + sample(keyOfZ) + font);

    dresser.finishedKeys();
    wear(forms.keypress->lowerSample,
         clearBlank + looks.keypress.lowerTextStyle + looks.upperFontSizeStyle + font);
    wear(forms.mouseover->lowerSample,
         clear + looks.mouseover.lowerTextStyle + looks.upperFontSizeStyle + font);
    wear(forms.highlight->lowerSample,
         clear + looks.highlight.lowerTextStyle + looks.middleFontSizeStyle + font);
    dresser.finished();
    dresser.themeLetters();
}

void KeyFonts::newFontUppercase()
{
    Looks &looks = wardrobe.looks;
    const PaintTables &paint = wardrobe.paint;
    const bool painted = paint.isOn(PaintTables::Upper);
    looks.upperFontStyle = StyleText::fontFamily(form.fontComboBoxUppercase->currentText());
    const QString &font = looks.upperFontStyle;

    dresser.characters(true);
    const QString &paintedA = paint.paintedText(keyOfCapitalA);
    wear(forms.colorMadness->demoLetter4English,
         clear + paintedA + looks.upperFontSizeStyle + font);
    wear(forms.keys->upperSample,
         clear + (painted ? paintedA : looks.key.upperTextStyle) + looks.upperFontSizeStyle + font);

    dresser.finishedKeys();
    // In the lowercase's color, an old trait.
    wear(forms.keypress->upperSample,
         clear + looks.keypress.lowerTextStyle + looks.upperFontSizeStyle + font);
    wear(forms.mouseover->upperSample,
         clear + looks.mouseover.upperTextStyle + looks.upperFontSizeStyle + font);
    wear(forms.highlight->upperSample,
         clear + looks.highlight.upperTextStyle + looks.middleFontSizeStyle + font);
    boxes.set_Match_StyleSheet();
    dresser.highlight();
    dresser.finished();
    dresser.themeLetters();
}
