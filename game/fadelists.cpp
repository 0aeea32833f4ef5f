#include "fadelists.h"

#include <algorithm>
#include <initializer_list>

namespace FadeLists {

namespace {

enum { BackSpace = 48, Tab, CapsLock, Enter, ShiftLeft, ShiftRight, Spacebar };
static_assert(Keys::textOrder[Tab - BackSpace] == Keys::Control::Tab &&
              Keys::textOrder[Spacebar - BackSpace] == Keys::Control::Spacebar);

struct At
{
    int ms;
    int place; // its number: the lists are written down in runs of them
};
using List = std::vector<At>;

constexpr int stepMs = 50;

// One place every 50 ms.
List every50(int ms, std::initializer_list<int> places)
{
    List list;
    for (int place : places) {
        list.push_back({ms, place});
        ms += stepMs;
    }
    return list;
}

// As above, for a run of neighbors up or down.
List run(int ms, int first, int last)
{
    List list;
    const int direction = first <= last ? 1 : -1;
    for (int place = first; place != last + direction; place += direction) {
        list.push_back({ms, place});
        ms += stepMs;
    }
    return list;
}

List operator+(List left, const List &right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

Steps steps(Step::What what, const List &list, int laterBy = 0)
{
    Steps result;
    for (const At &at : list)
        result.push_back({at.ms + laterBy, what, Keys::Place::numbered(at.place)});
    return result;
}

Steps operator+(Steps left, const Steps &right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

// The steps are not quite regular: these are the rhythms that the program has.
List listA()
{
    return every50(650, {16, 12, 15, 11, 9, 13, 10, 21, 14, 8,  25, 2, 7,
                         20, 22, 6,  18, 3, 4,  5,  24, 19, 23, 26, 1, 17});
}

List listB()
{
    return every50(500, {17, 1, 26, 23, 19, 24, 5,  4,  3,  18, 6, 22,
                         20, 7, 2,  25, 8,  14, 21, 10, 13, 9,  11}) +
           List{{1700, 15}, {1750, 12}, {1850, 16}};
}

List listC()
{
    return List{{650, 16}, {750, 12}, {800, 15}} +
           every50(900, {11, 9,  13, 10, 21, 14, 8,  25, 2,  7, 20, 22,
                         6,  18, 3,  4,  5,  24, 19, 23, 26, 1, 17});
}

List listD()
{
    return List{{550, 47}, {600, 46}, {650, 45}, {700, 44},
                {750, 43}, {700, 42}, {850, 41}, {800, 40}} +
           run(900, 39, 27);
}

List listE()
{
    return run(500, 27, 39);
}

List listF()
{
    return run(600, 39, 28) + List{{1150, 27}};
}

List listG()
{
    return every50(500, {45, 46, 43, 47, 40, 43, 44, 41, 42});
}

List listH()
{
    return every50(500, {42, 41, 44, 40, 43, 47, 43, 46, 45});
}

List listI()
{
    return run(550, 27, 31) + List{{700, 32}, {850, 33}, {800, 34}} + run(900, 35, 47);
}

List allFadeIn()
{
    return every50(500, {27, 28, 17, 1, 26, 29, 23, 19, 24, 5,  4,  30, 3,  18, 6,
                         31, 22, 20, 7, 32, 2,  25, 8,  33, 14, 21, 10, 34, 13, 9}) +
           every50(2050, {11, 35, 45, 15, 12, 36, 46, 16, 43, 37, 47, 40, 44, 38, 41, 42, 39});
}

List reverseHead()
{
    return every50(450, {39, 42, 41, 38, 44, 40, 47, 37, 43, 16, 46, 36, 12, 15, 45, 35}) +
           every50(1300, {11, 9, 13, 34, 10, 21, 14, 33, 8,  25, 2,
                          32, 7, 20, 22, 31, 6,  18, 3,  30, 4,  5});
}

List allFadeInReverse()
{
    return reverseHead() + List{{2500, 24}, {2550, 19}, {2600, 23}, {2600, 29}, {2700, 26},
                                {2750, 1},  {2800, 17}, {2850, 28}, {2900, 27}};
}

constexpr int columnMs = 100;
constexpr int firstColumnMs = 2000;

// Column by column over the whole keyboard from the left, control keys included.
const std::vector<std::vector<int>> &columns()
{
    static const std::vector<std::vector<int>> all{
        {27, Tab, CapsLock, ShiftLeft},
        {28, 17, 1, 26},
        {29, 23, 19, 24},
        {30, 5, 4, 3, Spacebar},
        {31, 18, 6, 22},
        {32, 20, 7, 2},
        {33, 25, 8, 14},
        {34, 21, 10, 13},
        {35, 9, 11, 45},
        {36, 15, 12, 46},
        {37, 16, 43, 47},
        {38, 40, 44, ShiftRight},
        {39, 41, Enter},
        {BackSpace, 42},
    };
    return all;
}

template <class Iterator>
List columnList(Iterator column, Iterator end)
{
    List list;
    for (int ms = firstColumnMs; column != end; ++column, ms += columnMs) {
        for (int place : *column)
            list.push_back({ms, place});
    }
    return list;
}

Steps fadeAllReverse()
{
    List list = columnList(columns().rbegin(), columns().rend());
    list.erase(std::remove_if(list.begin(), list.end(),
                              [](const At &at) { return at.place == ShiftRight; }),
               list.end());
    // The right Shift goes with the first column and comes back with the third.
    return steps(Step::Out, list + List{{2000, ShiftRight}}) +
           steps(Step::In, list + List{{2200, ShiftRight}}, 1000);
}

// A set out and in again: the second half a second behind the first.
Steps outAndIn(const List &list)
{
    return steps(Step::Out, list, 2000) + steps(Step::In, list, 3000);
}

Steps sweepL()
{
    const List out{{2450, 42}, {2550, 39}, {2500, 41}, {2600, 38}, {2450, 40}, {2500, 44},
                   {2650, 37}, {2450, 43}, {2500, 47}, {2700, 36}, {2450, 46}, {2500, 47},
                   {2750, 35}, {2450, 45}, {2800, 34}, {2850, 33}, {2900, 32}, {2950, 31},
                   {3000, 30}, {3050, 29}, {3100, 28}, {3100, 27}};
    return steps(Step::Out, out) +
           steps(Step::In, every50(3500, {42, 39, 41, 38, 40, 44, 37, 43, 47, 36, 46, 47, 35, 45}) +
                               run(4200, 34, 27));
}

Steps sweepM()
{
    const List out{{2450, 27}, {2500, 28}, {2550, 29}, {2600, 30}, {2650, 31}, {2650, 32},
                   {2700, 33}, {2750, 34}, {2800, 35}, {2850, 45}, {2850, 36}, {2900, 46},
                   {2950, 37}, {3000, 43}, {3050, 47}, {3100, 38}, {3150, 40}, {3200, 44},
                   {3250, 39}, {3300, 40}, {3350, 41}};
    return steps(Step::Out, out) +
           steps(Step::In, every50(3500, {27, 28, 29, 30, 31, 32, 33, 34, 35, 45, 36,
                                          46, 37, 43, 47, 38, 40, 44, 39, 40, 41}));
}

Steps in(const List &list)
{
    return steps(Step::In, list);
}

Steps closingFadeOut(int index, bool forward, Keys::Set set)
{
    const bool all = set == Keys::Set::Everything;
    switch (index) {
    case 0:
        if (!forward && all)
            return in(allFadeInReverse());
        return !forward && set == Keys::Set::Lowercase ? in(listA()) : Steps{};
    case 25:
        return forward ? in(listB()) : Steps{};
    case 26:
        return forward ? Steps{} : in(listC());
    case 51:
        return forward && set == Keys::Set::Uppercase ? in(listB()) : Steps{};
    case 52:
        return !forward && set == Keys::Set::NumberLine ? in(listD()) : Steps{};
    case 64:
        return forward ? in(listE()) : Steps{};
    case 65:
        return forward ? Steps{} : in(listF());
    case 85:
        return forward ? in(listG()) : Steps{};
    case 86:
        return forward ? Steps{} : in(listH());
    case 93:
        if (forward && all)
            return in(allFadeIn());
        return forward && set == Keys::Set::NumberLine ? in(listI()) : Steps{};
    default:
        return {};
    }
}

Steps closingFadeOutIn(int index, bool forward, Keys::Set set)
{
    const auto ends = [&](int last, bool goesForward, Keys::Set of) {
        return index == last && forward == goesForward && set == of;
    };
    if (ends(0, false, Keys::Set::Everything))
        return fadeAllReverse();
    if (ends(0, false, Keys::Set::Lowercase) || ends(26, false, Keys::Set::Uppercase))
        return outAndIn(listC());
    if (ends(25, true, Keys::Set::Lowercase) || ends(51, true, Keys::Set::Uppercase))
        return outAndIn(listB());
    if (ends(52, false, Keys::Set::NumberLine))
        return sweepL();
    if (ends(93, true, Keys::Set::Everything))
        return fadeAll();
    return ends(93, true, Keys::Set::NumberLine) ? sweepM() : Steps{};
}

// The places of a list, each at its turn of 50 ms.
List retimed(int ms, const List &list)
{
    List result;
    for (const At &at : list) {
        result.push_back({ms, at.place});
        ms += stepMs;
    }
    return result;
}

bool capWasMatched(int cap, Keys::Set set, const GameState &game)
{
    int first = Keys::unshifted(cap), second = Keys::shifted(cap);
    // Two caps look at a wrong second key.
    if (set == Keys::Set::Everything && cap == 1)
        second = 26;
    if (set != Keys::Set::Everything && cap == 19)
        second = 62;
    return game.isKeyPressed(first) || game.isKeyPressed(second);
}

// A run of number line caps, each tested on the one character that the game is at.
struct KeyRun
{
    List caps;
    bool shifted;
};

Steps numberLineReset(bool reverse, const GameState &game)
{
    std::vector<KeyRun> runs;
    if (reverse) {
        const bool punctuationDone = game.isKeyPressed(87);
        runs.push_back(
            {punctuationDone ? List{{500, 47}, {500, 46}} + run(600, 45, 40) : run(500, 47, 40),
             !punctuationDone});
        runs.push_back({run(500, 39, 27), !game.isKeyPressed(66)});
    } else {
        runs.push_back({run(450, 27, 39), game.isKeyPressed(65)});
        List caps;
        for (int cap = 40; cap <= 47; ++cap)
            caps.push_back({cap % 2 == 0 ? 500 : 550, cap});
        runs.push_back({caps, game.isKeyPressed(86)});
    }
    Steps result;
    for (const KeyRun &each : runs) {
        for (const At &at : each.caps) {
            if (game.isKeyPressed(Keys::keyOfCap(at.place, each.shifted)))
                result.push_back({at.ms, Step::In, Keys::Place::numbered(at.place)});
        }
    }
    return result;
}

List resetOrder(bool reverse, Keys::Set set)
{
    if (set != Keys::Set::Everything)
        return reverse ? retimed(450, listA()) : listB();
    if (!reverse)
        return retimed(450, allFadeIn());
    return reverseHead() + List{{2400, 24}, {2450, 19}, {2500, 23}, {2500, 29}, {2600, 26},
                                {2650, 1},  {2700, 17}, {2750, 28}, {2800, 27}};
}

} // namespace

Steps columnWave()
{
    return steps(Step::In, columnList(columns().begin(), columns().end()));
}

Steps fadeAll()
{
    const List list = columnList(columns().begin(), columns().end());
    return steps(Step::Out, list) + steps(Step::In, list, 1000);
}

Steps closingSweep(GameState::Fade fade, int index, Direction direction, Keys::Set set)
{
    if (direction == Direction::Random || fade == GameState::Fade::None)
        return {};
    const bool forward = direction == Direction::Forward;
    return fade == GameState::Fade::Out ? closingFadeOut(index, forward, set)
                                        : closingFadeOutIn(index, forward, set);
}

Steps reset(Direction direction, Keys::Set set, const GameState &game)
{
    const bool reverse = direction == Direction::Reverse;
    if (set == Keys::Set::NumberLine)
        return numberLineReset(reverse, game);
    Steps result;
    for (const At &at : resetOrder(reverse, set)) {
        if (capWasMatched(at.place, set, game))
            result.push_back({at.ms, Step::In, Keys::Place::numbered(at.place)});
    }
    return result;
}

} // namespace FadeLists
