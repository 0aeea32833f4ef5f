#include "keyfonts.h"

#include "board.h"
#include "gradientpanels.h"
#include "instructor.h"
#include "matchboxes.h"
#include "ui_tambrel.h"
#include "wear.h"

#include <QFontComboBox>

namespace {

constexpr const char *clear = "background-color: transparent;";
constexpr const char *clearBlank = "background-color: transparent; ";

// The sample of the lowercase key goes by the letter z, a fixed choice.
constexpr size_t indexOfZ = 25;
constexpr size_t indexOfA = 0;
constexpr size_t indexOfCapitalA = 26;

} // namespace

KeyFonts::KeyFonts(Board &usedBoard, GradientPanels &gradientPanels, MatchBoxes &matchBoxes,
                   Instructor &virtualInstructor)
    : board(usedBoard), panels(gradientPanels), boxes(matchBoxes), instructor(virtualInstructor)
{}

void KeyFonts::attach()
{
    const auto onChange = [this](const char *name, void (KeyFonts::*slot)()) {
        auto *box = board.panelWidgets.find<QFontComboBox>(name);
        box->setCurrentFont(QFont("Calibri"));
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, slot);
        // What is typed next is meant for the keys.
        connect(box, QOverload<int>::of(&QComboBox::activated), box, &QWidget::clearFocus);
    };
    onChange("fontComboBoxLowercase", &KeyFonts::newFontLowercase);
    onChange("fontComboBoxUppercase", &KeyFonts::newFontUppercase);
}

// Two names would be taken apart by the parser of style sheets, so they alone are quoted.
QString KeyFonts::fontStyle(const char *comboBox) const
{
    const QString family = board.panelWidgets.find<QComboBox>(comboBox)->currentText();
    const bool quoted = family == "Old English Text MT" || family == "Modern No. 20";
    return "font-family: " + QString(quoted ? "'" + family + "'" : family) + ";";
}

void KeyFonts::dress(const char *name, const QString &sheet)
{
    wear(board.panelWidgets.find(name), sheet);
}

void KeyFonts::dressKeys(bool shifted)
{
    for (int cap = 1; cap <= Keys::capCount; ++cap) {
        const int key = Keys::keyOfCap(cap, shifted);
        const QString sheet = board.paint.restText(key) + board.looks.font(shifted);
        wear(board.widgets.keyText(key), sheet);
        wear(board.widgets.barLetter(key), sheet);
    }
}

void KeyFonts::newFontLowercase()
{
    Looks &looks = board.looks;
    const PaintTables &paint = board.paint;
    const bool painted = paint.paintLowerOn;
    looks.lowerFontStyle = fontStyle("fontComboBoxLowercase");
    const QString &font = looks.lowerFontStyle;
    boxes.set_Match_StyleSheet();

    dressKeys(false);
    for (int i = 0; i < Keys::controlCount; ++i)
        wear(board.widgets.lowerKeyList[Keys::capCount + i], paint.restControlText(i) + font);
    wear(board.ui.underScoreLeft, paint.restControlText(Keys::controlCount) + font);
    wear(board.ui.underScoreRight, paint.restControlText(Keys::controlCount + 1) + font);
    const auto sample = [&](size_t index) -> const QString & {
        return painted ? paint.paintTextStyle[index] : looks.key.lowerTextStyle;
    };
    dress("demoLetter1_Lowercase", clearBlank + sample(indexOfA) + looks.upperFontSizeStyle + font);
    // While painting is on, the shifted sample takes this font.
    dress(painted ? "demoLetter4English" : "demoLetter4LowerCase",
          clear + sample(indexOfCapitalA) + looks.upperFontSizeStyle + font);
    dress("aKeysMap3", clear + sample(indexOfZ) + font);
    dress("linePosition1Lowercase", clear + sample(indexOfA) + font);
    dress("linePosition2Lowercase", clear + sample(indexOfA) + font);

    panels.bgColorLoops();
    dress("demoLetter3",
          clearBlank + looks.keypress.lowerTextStyle + looks.upperFontSizeStyle + font);
    dress("demoLetter3_3",
          clear + looks.mouseover.lowerTextStyle + looks.upperFontSizeStyle + font);
    dress("demoLetterHiLowD",
          clear + looks.highlight.lowerTextStyle + looks.middleFontSizeStyle + font);
    dress("theme1", clearBlank + font + "color: white;");
    dress("theme2", clearBlank + font + "color: yellow;");
    dress("theme3", clearBlank + font + "color: #65307f;");
}

void KeyFonts::newFontUppercase()
{
    Looks &looks = board.looks;
    const PaintTables &paint = board.paint;
    const bool painted = paint.paintUpperOn;
    looks.upperFontStyle = fontStyle("fontComboBoxUppercase");
    const QString &font = looks.upperFontStyle;
    boxes.set_Match_StyleSheet();

    dressKeys(true);
    const QString &paintedA = paint.paintTextStyle[indexOfCapitalA];
    dress("demoLetter4English", clear + paintedA + looks.upperFontSizeStyle + font);
    dress("demoLetter1_Uppercase", clear + (painted ? paintedA : looks.key.upperTextStyle) +
                                       looks.upperFontSizeStyle + font);
    // The lower sample, in the upper font's slot.
    if (!painted)
        dress("aKeysMap3", clear + looks.key.lowerTextStyle + looks.lowerFontStyle);

    panels.bgColorLoops();
    // In the lowercase's color, as it has always been.
    dress("demoLetter1", clear + looks.keypress.lowerTextStyle + looks.upperFontSizeStyle + font);
    dress("demoLetter1_3",
          clear + looks.mouseover.upperTextStyle + looks.upperFontSizeStyle + font);
    dress("linePosition1Uppercase", clear + looks.key.upperTextStyle + font);
    dress("linePosition2Uppercase", clear + looks.key.upperTextStyle + font);
    instructor.set_dem_StyleSheet();
    dress("demoLetterHiE",
          clear + looks.highlight.upperTextStyle + looks.middleFontSizeStyle + font);
    boxes.set_Match_StyleSheet();
    dress("theme1_2", clear + font + "color: white;");
    dress("theme2_2", clear + font + "color: yellow;");
    dress("theme3_2", clear + font + "color: #00557f;");
}
