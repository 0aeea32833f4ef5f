#include "targethighlights.h"

#include "furniture.h"
#include "game.h"
#include "instructor.h"
#include "ui_tambrel.h"
#include "wardrobe.h"
#include "wear.h"

#include <QFontMetricsF>
#include <algorithm>
#include <iterator>

namespace {

constexpr int messageMs = 5000;

using Line = QLabel *Ui_tambrel::*;

// The two lines that cross on a character, by letterList index. The characters of one
// cap have different lines: the shifted one stands at its upper left, the unshifted
// one at its lower right.
struct Crossing
{
    Line horizontal;
    Line vertical;
};

constexpr Crossing crossings[] = {
    // a to z
    {&Ui_tambrel::h3, &Ui_tambrel::v1},
    {&Ui_tambrel::h4, &Ui_tambrel::v2},
    {&Ui_tambrel::h4, &Ui_tambrel::v3},
    {&Ui_tambrel::h3, &Ui_tambrel::v4},
    {&Ui_tambrel::h2, &Ui_tambrel::v5},
    {&Ui_tambrel::h3, &Ui_tambrel::v6},
    {&Ui_tambrel::h3, &Ui_tambrel::v7},
    {&Ui_tambrel::h3, &Ui_tambrel::v8},
    {&Ui_tambrel::h2, &Ui_tambrel::v9},
    {&Ui_tambrel::h3, &Ui_tambrel::v10},
    {&Ui_tambrel::h3, &Ui_tambrel::v11},
    {&Ui_tambrel::h3, &Ui_tambrel::v12},
    {&Ui_tambrel::h4, &Ui_tambrel::v9},
    {&Ui_tambrel::h4, &Ui_tambrel::v13},
    {&Ui_tambrel::h2, &Ui_tambrel::v14},
    {&Ui_tambrel::h2, &Ui_tambrel::v15},
    {&Ui_tambrel::h2, &Ui_tambrel::v16},
    {&Ui_tambrel::h2, &Ui_tambrel::v3},
    {&Ui_tambrel::h3, &Ui_tambrel::v17},
    {&Ui_tambrel::h2, &Ui_tambrel::v18},
    {&Ui_tambrel::h2, &Ui_tambrel::v13},
    {&Ui_tambrel::h4, &Ui_tambrel::v18},
    {&Ui_tambrel::h2, &Ui_tambrel::v19},
    {&Ui_tambrel::h4, &Ui_tambrel::v5},
    {&Ui_tambrel::h2, &Ui_tambrel::v2},
    {&Ui_tambrel::h4, &Ui_tambrel::v19},
    // A to Z
    {&Ui_tambrel::h3_2, &Ui_tambrel::v16},
    {&Ui_tambrel::h4_2, &Ui_tambrel::v7},
    {&Ui_tambrel::h4_2, &Ui_tambrel::v4},
    {&Ui_tambrel::h3_2, &Ui_tambrel::v5},
    {&Ui_tambrel::h2_2, &Ui_tambrel::v17},
    {&Ui_tambrel::h3_2, &Ui_tambrel::v3},
    {&Ui_tambrel::h3_2, &Ui_tambrel::v18},
    {&Ui_tambrel::h3_2, &Ui_tambrel::v2},
    {&Ui_tambrel::h2_2, &Ui_tambrel::v10},
    {&Ui_tambrel::h3_2, &Ui_tambrel::v13},
    {&Ui_tambrel::h3_2, &Ui_tambrel::v9},
    {&Ui_tambrel::h3_2, &Ui_tambrel::v14},
    {&Ui_tambrel::h4_2, &Ui_tambrel::v10},
    {&Ui_tambrel::h4_2, &Ui_tambrel::v8},
    {&Ui_tambrel::h2_2, &Ui_tambrel::v11},
    {&Ui_tambrel::h2_2, &Ui_tambrel::v12},
    {&Ui_tambrel::h2_2, &Ui_tambrel::v20},
    {&Ui_tambrel::h2_2, &Ui_tambrel::v4},
    {&Ui_tambrel::h3_2, &Ui_tambrel::v19},
    {&Ui_tambrel::h2_2, &Ui_tambrel::v6},
    {&Ui_tambrel::h2_2, &Ui_tambrel::v8},
    {&Ui_tambrel::h4_2, &Ui_tambrel::v6},
    {&Ui_tambrel::h2_2, &Ui_tambrel::v1},
    {&Ui_tambrel::h4_2, &Ui_tambrel::v17},
    {&Ui_tambrel::h2_2, &Ui_tambrel::v7},
    {&Ui_tambrel::h4_2, &Ui_tambrel::v1},
    // ` 1 to 0 - =
    {&Ui_tambrel::h1, &Ui_tambrel::v22},
    {&Ui_tambrel::h1, &Ui_tambrel::v20},
    {&Ui_tambrel::h1, &Ui_tambrel::v1},
    {&Ui_tambrel::h1, &Ui_tambrel::v17},
    {&Ui_tambrel::h1, &Ui_tambrel::v4},
    {&Ui_tambrel::h1, &Ui_tambrel::v6},
    {&Ui_tambrel::h1, &Ui_tambrel::v7},
    {&Ui_tambrel::h1, &Ui_tambrel::v8},
    {&Ui_tambrel::h1, &Ui_tambrel::v10},
    {&Ui_tambrel::h1, &Ui_tambrel::v11},
    {&Ui_tambrel::h1, &Ui_tambrel::v12},
    {&Ui_tambrel::h1, &Ui_tambrel::v24},
    {&Ui_tambrel::h1, &Ui_tambrel::v26},
    // ~ ! to ) _ +
    {&Ui_tambrel::h1_2, &Ui_tambrel::v21},
    {&Ui_tambrel::h1_2, &Ui_tambrel::v23},
    {&Ui_tambrel::h1_2, &Ui_tambrel::v16},
    {&Ui_tambrel::h1_2, &Ui_tambrel::v19},
    {&Ui_tambrel::h1_2, &Ui_tambrel::v5},
    {&Ui_tambrel::h1_2, &Ui_tambrel::v3},
    {&Ui_tambrel::h1_2, &Ui_tambrel::v18},
    {&Ui_tambrel::h1_2, &Ui_tambrel::v2},
    {&Ui_tambrel::h1_2, &Ui_tambrel::v13},
    {&Ui_tambrel::h1_2, &Ui_tambrel::v9},
    {&Ui_tambrel::h1_2, &Ui_tambrel::v14},
    {&Ui_tambrel::h1_2, &Ui_tambrel::v15},
    {&Ui_tambrel::h1_2, &Ui_tambrel::v25},
    // [ ] \ ; ' , . /
    {&Ui_tambrel::h2, &Ui_tambrel::v25},
    {&Ui_tambrel::h2, &Ui_tambrel::v27},
    {&Ui_tambrel::h2, &Ui_tambrel::v29},
    {&Ui_tambrel::h3, &Ui_tambrel::v24},
    {&Ui_tambrel::h3, &Ui_tambrel::v26},
    {&Ui_tambrel::h4, &Ui_tambrel::v14},
    {&Ui_tambrel::h4, &Ui_tambrel::v15},
    {&Ui_tambrel::h4, &Ui_tambrel::v25},
    // { } | : " < > ?
    {&Ui_tambrel::h2_2, &Ui_tambrel::v24},
    {&Ui_tambrel::h2_2, &Ui_tambrel::v26},
    {&Ui_tambrel::h2_2, &Ui_tambrel::v28},
    {&Ui_tambrel::h3_2, &Ui_tambrel::v15},
    {&Ui_tambrel::h3_2, &Ui_tambrel::v25},
    {&Ui_tambrel::h4_2, &Ui_tambrel::v11},
    {&Ui_tambrel::h4_2, &Ui_tambrel::v12},
    {&Ui_tambrel::h4_2, &Ui_tambrel::v24},
};
static_assert(std::size(crossings) == Keys::count);

constexpr Line horizontals[] = {&Ui_tambrel::h1,   &Ui_tambrel::h2,   &Ui_tambrel::h3,
                                &Ui_tambrel::h4,   &Ui_tambrel::h1_2, &Ui_tambrel::h2_2,
                                &Ui_tambrel::h3_2, &Ui_tambrel::h4_2};

constexpr Line verticals[] = {
    &Ui_tambrel::v1,  &Ui_tambrel::v2,  &Ui_tambrel::v3,  &Ui_tambrel::v4,  &Ui_tambrel::v5,
    &Ui_tambrel::v6,  &Ui_tambrel::v7,  &Ui_tambrel::v8,  &Ui_tambrel::v9,  &Ui_tambrel::v10,
    &Ui_tambrel::v11, &Ui_tambrel::v12, &Ui_tambrel::v13, &Ui_tambrel::v14, &Ui_tambrel::v15,
    &Ui_tambrel::v16, &Ui_tambrel::v17, &Ui_tambrel::v18, &Ui_tambrel::v19, &Ui_tambrel::v20,
    &Ui_tambrel::v21, &Ui_tambrel::v22, &Ui_tambrel::v23, &Ui_tambrel::v24, &Ui_tambrel::v25,
    &Ui_tambrel::v26, &Ui_tambrel::v27, &Ui_tambrel::v28, &Ui_tambrel::v29};

// A highlighted character takes the text color of its case, but for the second half of
// the shifted number row, which is highlighted in the lowercase color.
constexpr bool upperHighlight(int index)
{
    return Keys::isShifted(Keys::fromIndex(index)) && !(index >= 71 && index <= 77);
}

// Departures from the rules of goldHighOn and goldHighOff, by letterList index. They belong to
// the program: a rule without them would be another program.
constexpr int indexOfA = 0; // a: also dresses the button anew; put back, it wears the paint of f
constexpr auto placeOfF = Keys::Place::ofCap(6); //
constexpr int barWithoutFont = 20;               // u: its bar letter is highlighted without a font,
                                                 // and put back in the shifted text color
constexpr int upperKeyTexts[] = {52, 77};        // ` and +: on the key in the shifted color
constexpr int capitalOfA = 26;                   // A: its key asks for the lowercase paint
constexpr int firstWithoutColor = 86;            // { to ?: back on the key without a text color

// Characters that also put a mark of the home row back; those of H's capital are the odd ones.
struct Mark
{
    int index;
    QLabel *Ui_tambrel::*mark;
    int paintSlot; // in paintExtraTextStyle
    bool shifted;  // the class whose paint switch, text and font it takes
};

constexpr Mark marks[] = {
    {5, &Ui_tambrel::underScoreLeft, 7, false},   // f
    {31, &Ui_tambrel::underScoreLeft, 7, false},  // F
    {33, &Ui_tambrel::underScoreLeft, 7, true},   // H
    {9, &Ui_tambrel::underScoreRight, 8, false},  // j
    {35, &Ui_tambrel::underScoreRight, 8, false}, // J
};

// A pressed key is also repainted for the target that stands at this distance from its
// number in letterList: pairs of characters that have nothing else in common.
struct Partners
{
    int first, last; // key numbers
    int toIndex;
};

constexpr Partners partners[] = {{1, 33, 32},   {34, 66, -34}, {67, 78, 11},
                                 {79, 90, -13}, {91, 92, 1},   {93, 94, -3}};

int partnerIndex(int number)
{
    for (const Partners &row : partners) {
        if (number >= row.first && number <= row.last)
            return number + row.toIndex;
    }
    return -1;
}

constexpr int upperFontInBar = 26; // z, pressed: its bar letter takes the shifted font
constexpr int comparesItsOwnText =
    86; // /, pressed: asks whether it is the target, not the key typed last

} // namespace

TargetHighlights::TargetHighlights(Furniture &usedFurniture, Wardrobe &usedWardrobe, Game &usedGame,
                                   Instructor &virtualInstructor)
    : furniture(usedFurniture),
      wardrobe(usedWardrobe),
      game(usedGame),
      instructor(virtualInstructor)
{
    setUpLines();
    dressLines();
    placeCharacters();
    lineHighlightLower();
    connect(furniture.ui.goldenHighlight, &QPushButton::clicked, this,
            &TargetHighlights::setGoldHigh);
    connect(furniture.ui.lineHighlight, &QPushButton::clicked, this,
            &TargetHighlights::setLineHigh);
}

// They lie over keys and buttons to be looked at; the mouse belongs to what is below.
void TargetHighlights::setUpLines()
{
    const auto setUp = [](QLabel *line) {
        line->setAttribute(Qt::WA_TransparentForMouseEvents);
        line->hide();
    };
    for (Line line : horizontals)
        setUp(furniture.ui.*line);
    for (Line line : verticals)
        setUp(furniture.ui.*line);
}

void TargetHighlights::dressLines()
{
    for (Line line : horizontals)
        wear(furniture.ui.*line, wardrobe.looks.lineHigh.horizontalStyle);
    for (Line line : verticals)
        wear(furniture.ui.*line, wardrobe.looks.lineHigh.verticalStyle);
}

// The lines have fixed places; each character is put where its two cross, however wide
// and high the host's font draws it.
void TargetHighlights::placeCharacters()
{
    for (int key = 1; key <= Keys::count; ++key) {
        QLabel *text = furniture.widgets.keyText(key);
        QFont font = text->font();
        font.setFamily("Calibri");
        const QFontMetricsF metrics(font);
        const Crossing &crossing = crossings[Keys::index(key)];
        const QPointF center(QRectF((furniture.ui.*crossing.vertical)->geometry()).center().x(),
                             QRectF((furniture.ui.*crossing.horizontal)->geometry()).center().y());
        const QPointF inLabel = center - text->pos();
        const qreal half = metrics.horizontalAdvance(text->text()) / 2;
        const auto margin = [](qreal px) { return qMax(0, qRound(px)); };
        if (Keys::isShifted(key))
            text->setContentsMargins(
                margin(inLabel.x() - half),
                margin(inLabel.y() - (metrics.ascent() - metrics.capHeight() / 2)), 0, 0);
        else
            text->setContentsMargins(
                0, 0, margin(text->width() - inLabel.x() - half),
                margin(text->height() - inLabel.y() - (metrics.descent() + metrics.xHeight() / 2)));
    }
}

void TargetHighlights::setGoldHigh()
{
    wear(furniture.ui.goldenHighlight, wardrobe.looks.highlightButton());
    if (game.goldHighFlag) {
        game.goldHighFlag = false;
        goldHighOff();
        return;
    }
    goldHighOn();
    game.goldHighFlag = true;
    furniture.ui.letterOfAlphabet2->clear();
    instructor.clearGoodJobAfter(messageMs);
}

void TargetHighlights::setLineHigh()
{
    if (game.lineHighFlag) {
        game.lineHighFlag = false;
        lineHighOff();
        return;
    }
    lineHighOn();
    game.lineHighFlag = true;
    instructor.clearGoodJobAfter(messageMs);
}

void TargetHighlights::dressButton()
{
    wear(furniture.ui.goldenHighlight, furniture.ui.goldenHighlight->isEnabled()
                                           ? wardrobe.looks.highlightButton()
                                           : wardrobe.looks.highlightButtonDisabled());
}

void TargetHighlights::goldHighOn()
{
    const int k = game.target();
    if (k < 0)
        return;
    const Looks &looks = wardrobe.looks;
    const int key = Keys::fromIndex(k);
    const int cap = Keys::cap(key);
    const QString &text = looks.highlight.text(upperHighlight(k));
    const QString &font = looks.font(Keys::isShifted(key));
    const bool upperOnKey =
        std::find(std::begin(upperKeyTexts), std::end(upperKeyTexts), k) != std::end(upperKeyTexts);

    wear(furniture.widgets.keyText(key),
         (upperOnKey ? looks.highlight.upperTextStyle : text) + font);
    if (wardrobe.images.highlight.isOn()) {
        furniture.widgets.image(cap)->show();
        wardrobe.images.highlight.layOn(furniture.widgets.image(cap));
    }
    wear(furniture.widgets.background(cap), looks.keyBackground(looks.highlight));
    wear(furniture.widgets.barBackground(key), looks.barBackground(looks.highlight.bgStyle));
    wear(furniture.widgets.barLetter(key), k == barWithoutFont ? text : text + font);
    if (k == indexOfA)
        wear(furniture.ui.goldenHighlight, looks.highlightButton());
}

void TargetHighlights::goldHighOff()
{
    const int k = game.target();
    if (k < 0)
        return;
    const Looks &looks = wardrobe.looks;
    const PaintTables &paint = wardrobe.paint;
    const int key = Keys::fromIndex(k);
    const int cap = Keys::cap(key);
    const bool shifted = Keys::isShifted(key);
    const QString &font = looks.font(shifted);
    const auto dressedAs = k == indexOfA ? placeOfF : Keys::Place::ofCap(cap);
    const bool paintedOnKey =
        k == capitalOfA ? paint.isOn(PaintTables::Lower) : paint.textOn(shifted);

    QString unpainted = looks.key.text(shifted) + font;
    if (k >= firstWithoutColor)
        unpainted = font + font;
    wear(furniture.widgets.keyText(key), paintedOnKey ? paint.paintedText(key) + font : unpainted);
    for (const Mark &mark : marks) {
        if (mark.index == k)
            wear(furniture.ui.*mark.mark,
                 (paint.textOn(mark.shifted) && !paint.paintExtraTextStyle[mark.paintSlot].isEmpty()
                      ? paint.paintExtraTextStyle[mark.paintSlot]
                      : looks.key.text(mark.shifted)) +
                     looks.font(mark.shifted));
    }
    wear(furniture.widgets.background(cap), paint.restKeyBackground(dressedAs));
    QLabel *image = furniture.widgets.image(cap);
    image->setVisible(wardrobe.images.keys.isOn());
    if (wardrobe.images.keys.isOn())
        wardrobe.images.keys.layOn(image);
    wear(furniture.widgets.barBackground(key), paint.restBarBackground(dressedAs));
    const bool plainUpper = k == barWithoutFont && !paint.textOn(shifted);
    wear(furniture.widgets.barLetter(key),
         (plainUpper ? looks.key.upperTextStyle : paint.restText(key)) + font);
}

void TargetHighlights::keyGoldHigh(int number)
{
    const int k = game.target();
    if (!game.goldHighFlag || k < 0 || (k != Keys::index(number) && k != partnerIndex(number)))
        return;
    const Looks &looks = wardrobe.looks;
    const QString &font = looks.font(Keys::isShifted(number));
    QLabel *image = furniture.widgets.image(Keys::cap(number));

    wear(furniture.widgets.keyText(number), looks.keypressLowerTextSaved + font);
    if (wardrobe.images.keypress.isOn())
        wardrobe.images.keypress.layOn(image);
    else
        wear(furniture.widgets.background(Keys::cap(number)),
             looks.keyRadiusStyle + looks.highlight.bgStyle);
    if (!wardrobe.images.keypressOverridesHighlight)
        wardrobe.images.highlight.layOn(image);
    const int asked = number == comparesItsOwnText ? Keys::index(number) : game.letterNumber;
    if (k == asked) {
        wear(furniture.widgets.barBackground(number), looks.barBackground(looks.highlight.bgStyle));
        wear(furniture.widgets.barLetter(number),
             looks.keypressLowerTextSaved +
                 (number == upperFontInBar ? looks.upperFontStyle : font));
    }
}

void TargetHighlights::lineHighOn()
{
    setLinesVisible(true);
}

void TargetHighlights::lineHighOff()
{
    setLinesVisible(false);
}

void TargetHighlights::setLinesVisible(bool visible)
{
    const int k = game.target();
    if (k < 0)
        return;
    (furniture.ui.*crossings[k].horizontal)->setVisible(visible);
    (furniture.ui.*crossings[k].vertical)->setVisible(visible);
}

void TargetHighlights::leaveTarget()
{
    if (game.goldHighFlag)
        goldHighOff();
    if (game.lineHighFlag)
        lineHighOff();
}

void TargetHighlights::meetTarget()
{
    if (game.goldHighFlag)
        goldHighOn();
    if (game.lineHighFlag)
        lineHighOn();
}

void TargetHighlights::restore()
{
    if (game.goldHighFlag)
        goldHighOn();
}

void TargetHighlights::endOfGame()
{
    leaveTarget();
    game.goldHighFlag = false;
    game.lineHighFlag = false;
    lineHighOff();
}

void TargetHighlights::lineHighlightLower()
{
    for (Line line : horizontals)
        (furniture.ui.*line)->lower();
    for (Line line : verticals)
        (furniture.ui.*line)->lower();
    furniture.ui.wallpaper->lower();
    furniture.ui.imgBack->lower();
}

void TargetHighlights::lineHighlightRaise()
{
    for (Line line : horizontals)
        (furniture.ui.*line)->raise();
    for (Line line : verticals)
        (furniture.ui.*line)->raise();
}
