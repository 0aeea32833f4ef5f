#include "keyboardview.h"

#include "keys.h"

#include <QLabel>

namespace {

constexpr int keyHeight = 54; // px, as all of these
constexpr int keyWidth = 54;
constexpr int keyGap = 8;
constexpr int cellSize = 28;
constexpr int burstSize = 96;

// Keys or cells that stand side by side, from left to right.
struct Run
{
    int x, y, width;
    const char *characters;
};

// Unshifted characters.
constexpr Run caps[] = {
    {148, 394, keyWidth, "`1234567890-="},
    {242, 454, keyWidth, "qwertyuiop[]"},
    {986, 454, 72, "\\"},
    {274, 514, keyWidth, "asdfghjkl;'"},
    {304, 574, keyWidth, "zxcvbnm,./"},
};

constexpr Run cells[] = {
    {214, 266, cellSize, "ABCDEFGHIJKLMNOPQRSTUVWXYZ"},
    {214, 294, cellSize, "abcdefghijklmnopqrstuvwxyz"},
    {186, 330, cellSize, "~!@#$%^&*()_+"},
    {186, 358, cellSize, "`1234567890-="},
    {634, 330, cellSize, "{}|"},
    {634, 358, cellSize, "[]\\"},
    {776, 330, cellSize, ":\""},
    {776, 358, cellSize, ";'"},
    {886, 330, cellSize, "<>?"},
    {886, 358, cellSize, ",./"},
};

struct ControlKey
{
    Keys::Control control;
    int x, y, width;
    const char *name, *text;
};

constexpr ControlKey controlKeys[] = {
    {Keys::Control::BackSpace, 954, 394, 104, "BackSpace", "Backspace"},
    {Keys::Control::Tab, 148, 454, 86, "Tab", "Tab"},
    {Keys::Control::CapsLock, 148, 514, 118, "CapsLock", "Caps Lock"},
    {Keys::Control::Enter, 956, 514, 102, "Enter", "Enter"},
    {Keys::Control::ShiftLeft, 148, 574, 148, "ShiftLeft", "Shift"},
    {Keys::Control::ShiftRight, 924, 574, 134, "ShiftRight", "Shift"},
    {Keys::Control::Spacebar, 474, 634, 228, "Spacebar", "Spacebar"},
};

constexpr bool controlsInTextOrder()
{
    for (int i = 0; i < Keys::controlCount; ++i) {
        if (controlKeys[i].control != Keys::textOrder[i])
            return false;
    }
    return true;
}
static_assert(controlsInTextOrder());

template <size_t count>
QRect placeIn(const Run (&runs)[count], int key, int height, int gap)
{
    const char character = Keys::characters[Keys::index(key)];
    for (const Run &run : runs) {
        for (int i = 0; run.characters[i]; ++i) {
            if (run.characters[i] == character)
                return {run.x + i * (run.width + gap), run.y, run.width, height};
        }
    }
    Q_UNREACHABLE();
}

QRect capPlace(int cap)
{
    return placeIn(caps, Keys::unshifted(cap), keyHeight, keyGap);
}

// Places 1 to 54.
QRect keyPlace(Keys::Place place)
{
    if (place.isCap())
        return capPlace(place.cap());
    const ControlKey &key = controlKeys[place.controlIndex()];
    return {key.x, key.y, key.width, keyHeight};
}

// The shield and the shifted character of the cap in the corner stand a little above it.
QRect raisedPlace(int cap)
{
    constexpr int corner = 27; // ` and ~
    return cap == corner ? capPlace(cap).translated(0, -2) : capPlace(cap);
}

// A burst lies around the middle of its key, but for a little that differs by the key's kind.
QRect burstPlace(Keys::Place place)
{
    constexpr auto spacebar = Keys::Place::ofControl(Keys::Control::Spacebar);
    const QPoint shift = place == spacebar ? QPoint(2, -5)
                         : !place.isCap()  ? QPoint(0, -2)
                                           : QPoint(-5, -2);
    const QRect key = keyPlace(place);
    return {key.x() + (key.width() - burstSize) / 2 + shift.x(),
            key.y() + (key.height() - burstSize) / 2 + shift.y(), burstSize, burstSize};
}

// "bg%1" becomes bg1 to bg47, then bgBackSpace and so on.
QString namedByControl(const char *pattern, Keys::Place place)
{
    if (place.isCap())
        return QString(pattern).arg(place.cap());
    return QString(pattern).arg(controlKeys[place.controlIndex()].name);
}

QString numbered(const char *pattern, int number)
{
    return QString(pattern).arg(number);
}

QLabel *addLabel(const QWidget &layer, const QString &name, const QRect &place)
{
    auto *label = new QLabel(layer.parentWidget());
    label->setObjectName(name);
    label->setGeometry(place);
    return label;
}

// A label that says something, in Calibri.
QLabel *addText(const QWidget &layer, const QString &name, const QRect &place, int pointSize,
                const QString &text, Qt::Alignment alignment)
{
    QLabel *label = addLabel(layer, name, place);
    QFont font;
    font.setFamily("Calibri");
    font.setPointSize(pointSize);
    label->setFont(font);
    label->setAlignment(alignment);
    label->setText(text);
    return label;
}

// A character is never markup, and no ampersand is swallowed.
QLabel *addCharacter(const QWidget &layer, const QString &name, const QRect &place, int pointSize,
                     int key, Qt::Alignment alignment)
{
    QLabel *label = addText(layer, name, place, pointSize,
                            QChar(Keys::characters[Keys::index(key)]), alignment);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

KeyFaces::KeyFaces(QWidget *window) : QWidget(window)
{
    hide();
    for (const Keys::Place place : Keys::places) {
        backgrounds.append(addLabel(*this, namedByControl("bg%1", place), keyPlace(place)));
    }
    for (const Keys::Place place : Keys::places) {
        QLabel *image = addLabel(*this, namedByControl("img%1", place), keyPlace(place));
        image->setAlignment(Qt::AlignCenter);
        image->hide();
        images.append(image);
    }
    for (int key = 1; key <= Keys::count; ++key) {
        constexpr int pointSize = 14;
        const bool shifted = Keys::isShifted(key);
        const QRect place = shifted ? raisedPlace(Keys::cap(key)) : capPlace(Keys::cap(key));
        const Qt::Alignment corner = shifted ? Qt::AlignLeft : Qt::AlignRight | Qt::AlignBottom;
        characters.append(
            addCharacter(*this, numbered("r%1_2", key), place, pointSize, key, corner));
    }
    for (const ControlKey &key : controlKeys) {
        constexpr int pointSize = 12;
        controlTexts.append(addText(*this, QString("label") + key.name,
                                    QRect(key.x, key.y, key.width, keyHeight), pointSize, key.text,
                                    Qt::AlignCenter));
    }
}

KeyShields::KeyShields(QWidget *window) : QWidget(window)
{
    hide();
    for (int cap = 1; cap <= Keys::capCount; ++cap) {
        QLabel *shield = addLabel(*this, numbered("shield%1", cap), raisedPlace(cap));
        shield->setStyleSheet("background-color: transparent;");
        shields.append(shield);
    }
}

AlphabetBar::AlphabetBar(QWidget *window) : QWidget(window)
{
    hide();
    for (int key = 1; key <= Keys::count; ++key)
        backgrounds.append(
            addLabel(*this, numbered("r%1bg", key), placeIn(cells, key, cellSize, 0)));
    for (int key = 1; key <= Keys::count; ++key) {
        constexpr int pointSize = 11;
        QLabel *letter = addCharacter(*this, numbered("r%1", key), placeIn(cells, key, cellSize, 0),
                                      pointSize, key, Qt::AlignHCenter | Qt::AlignBottom);
        letter->setMargin(4);
        letters.append(letter);
    }
}

KeyBursts::KeyBursts(QWidget *window) : QWidget(window)
{
    hide();
    for (const Keys::Place place : Keys::places) {
        QLabel *cover = addLabel(*this, numbered("displayNone%1", place.number()), keyPlace(place));
        cover->setStyleSheet("background-color: rgb(0, 0, 0);");
        cover->hide();
        covers.append(cover);
    }
    for (const Keys::Place place : Keys::places) {
        QLabel *burst = addLabel(*this, numbered("pulsate%1", place.number()), burstPlace(place));
        burst->setStyleSheet("background-color: transparent;");
        burst->setAlignment(Qt::AlignCenter);
        // To be looked at: the mouse belongs to the key below.
        burst->setAttribute(Qt::WA_TransparentForMouseEvents);
        burst->hide();
        bursts.append(burst);
    }
}
