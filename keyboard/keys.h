#pragma once

// The arithmetic of the keyboard. A key number (1 to 94) is one character, its
// index (0 to 93) the place in letterList, a cap (1 to 47) the physical key that
// carries two characters, and a control key one of the seven that carry none.
// They are easily mixed up, so what turns one into another stands here.

#include <array>

namespace Keys {

constexpr int count = 94;
constexpr int capCount = 47;
constexpr int controlCount = 7;
constexpr int placeCount = capCount + controlCount;

// A run of keys with one offset to its caps; the six runs make up all 94 keys.
struct Group
{
    int first; // key numbers, both included
    int last;
    bool shifted;
    int toCap; // cap = key - toCap
};

constexpr std::array<Group, 6> groups{{
    {1, 26, false, 0},   // a to z
    {27, 52, true, 26},  // A to Z
    {53, 65, false, 26}, // ` 1 to 0 - =
    {66, 78, true, 39},  // ~ ! to ) _ +
    {79, 86, false, 39}, // [ ] \ ; ' , . /
    {87, 94, true, 47},  // { } | : " < > ?
}};

constexpr bool isKey(int key)
{
    return key >= 1 && key <= count;
}

constexpr int index(int key)
{
    return key - 1;
}

constexpr int fromIndex(int index)
{
    return index + 1;
}

// The key must be 1 to 94.
constexpr const Group &group(int key)
{
    int i = 0;
    while (key > groups[i].last)
        ++i;
    return groups[i];
}

constexpr bool isShifted(int key)
{
    return group(key).shifted;
}

constexpr int cap(int key)
{
    return key - group(key).toCap;
}

// The key of a cap (1 to 47) in one of its two cases.
constexpr int keyOfCap(int cap, bool shifted)
{
    for (const Group &g : groups) {
        const int key = cap + g.toCap;
        if (g.shifted == shifted && key >= g.first && key <= g.last)
            return key;
    }
    return 0;
}

constexpr int unshifted(int cap)
{
    return keyOfCap(cap, false);
}

constexpr int shifted(int cap)
{
    return keyOfCap(cap, true);
}

// The seven control keys stand in two different orders in the lists.
enum class Control { BackSpace, Tab, CapsLock, Enter, ShiftLeft, ShiftRight, Spacebar };

// Texts, bursts, covers and the paint tables.
constexpr std::array<Control, controlCount> textOrder{
    Control::BackSpace, Control::Tab,        Control::CapsLock, Control::Enter,
    Control::ShiftLeft, Control::ShiftRight, Control::Spacebar};

// Backgrounds and images.
constexpr std::array<Control, controlCount> backgroundOrder{
    Control::CapsLock,  Control::Spacebar,  Control::Enter, Control::ShiftRight,
    Control::ShiftLeft, Control::BackSpace, Control::Tab};

// Where a key stands on the on-screen keyboard: one of the 47 caps, or one of the control keys.
// A type of its own, so that neither a key number nor an index is taken for it.
class Place
{
public:
    static constexpr Place ofCap(int cap) { return Place(cap); }            // 1 to 47
    static constexpr Place ofKey(int key) { return Place(Keys::cap(key)); } // 1 to 94
    static constexpr Place ofControl(Control control)
    {
        int i = 0;
        while (textOrder[i] != control)
            ++i;
        return ofControl(i);
    }
    static constexpr Place ofControl(int textOrderIndex) // 0 to 6
    {
        return Place(capCount + 1 + textOrderIndex);
    }
    static constexpr Place numbered(int number) { return Place(number); } // 1 to 54

    // 1 to 54, the caps first, then the control keys in textOrder: as labels are named.
    constexpr int number() const { return value; }
    // 0 to 53 likewise: lists of texts, bursts and covers, and the paint.
    constexpr int index() const { return value - 1; }
    // 0 to 53, the control keys in backgroundOrder: lists of backgrounds and images.
    constexpr int backgroundIndex() const
    {
        if (isCap())
            return index();
        int i = 0;
        while (backgroundOrder[i] != textOrder[controlIndex()])
            ++i;
        return capCount + i;
    }
    constexpr bool isCap() const { return value <= capCount; }
    constexpr int cap() const { return value; }                         // of a cap alone
    constexpr int controlIndex() const { return value - capCount - 1; } // of a control key alone

    constexpr bool operator==(Place other) const { return value == other.value; }
    constexpr bool operator!=(Place other) const { return value != other.value; }

private:
    explicit constexpr Place(int number) : value(number) {}

    int value;
};
static_assert(Place::ofControl(Control::BackSpace).number() == 48 &&
              Place::ofControl(Control::Spacebar).number() == 54);
static_assert(Place::ofCap(1).backgroundIndex() == 0 &&
              Place::ofControl(Control::BackSpace).backgroundIndex() == 52 &&
              Place::ofControl(Control::Spacebar).backgroundIndex() == 48);

// for (const Place place : places): each once, in the order of their numbers.
struct Places
{
    class Iterator
    {
    public:
        explicit constexpr Iterator(int first) : number(first) {}
        constexpr Place operator*() const { return Place::numbered(number); }
        constexpr Iterator &operator++()
        {
            ++number;
            return *this;
        }
        constexpr bool operator!=(const Iterator &other) const { return number != other.number; }

    private:
        int number;
    };
    constexpr Iterator begin() const { return Iterator(1); }
    constexpr Iterator end() const { return Iterator(placeCount + 1); }
};
constexpr Places places;

// The key sets that a game can be played with.
enum class Set { Uppercase, Lowercase, NumberLine, Everything };

struct Range
{
    int first; // key numbers, both included
    int last;
    constexpr int length() const { return last - first + 1; }
    constexpr bool containsIndex(int index) const
    {
        return fromIndex(index) >= first && fromIndex(index) <= last;
    }
};

constexpr Range range(Set set)
{
    switch (set) {
    case Set::Uppercase:
        return {27, 52};
    case Set::Lowercase:
        return {1, 26};
    case Set::NumberLine:
        return {53, 94};
    case Set::Everything:
        break;
    }
    return {1, 94};
}

// The code that Qt reports for a press (the capital for either case of a letter)
// names one key, or two where only Shift tells them apart.
constexpr const char characters[] = "abcdefghijklmnopqrstuvwxyz"
                                    "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                    "`1234567890-=~!@#$%^&*()_+"
                                    "[]\\;',./{}|:\"<>?";
static_assert(sizeof(characters) == count + 1);

// 0 for a code that is no character of the keyboard.
constexpr int fromCode(int code, bool shiftAlone)
{
    if (code >= 'A' && code <= 'Z')
        return code - 'A' + (shiftAlone ? 27 : 1);
    if (code >= 'a' && code <= 'z')
        return 0; // Qt reports letters as capitals; these are no key codes
    for (int key = 53; key <= count; ++key) {
        if (characters[index(key)] == code)
            return key;
    }
    return 0;
}

// Every cap has one key of each case, and they lead back to it.
constexpr bool capsAndKeysAgree()
{
    for (int c = 1; c <= capCount; ++c) {
        if (cap(unshifted(c)) != c || cap(shifted(c)) != c)
            return false;
        if (isShifted(unshifted(c)) || !isShifted(shifted(c)))
            return false;
    }
    int next = 1;
    for (const Group &g : groups) {
        if (g.first != next)
            return false;
        next = g.last + 1;
    }
    return next == count + 1;
}
static_assert(capsAndKeysAgree());
static_assert(shifted(1) == 27 && shifted(27) == 66 && shifted(40) == 87 && cap(94) == 47);
static_assert(fromCode('A', false) == 1 && fromCode('A', true) == 27 && fromCode('?', true) == 94 &&
              fromCode(' ', false) == 0 && fromCode(0, false) == 0);

} // namespace Keys
