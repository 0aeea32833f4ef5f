#include "waves.h"

namespace Waves {

namespace {

// Small hitches that the Forward waves have always had: these keys stand one step
// before their turn. Key 9 so shares a step with key 8, and the step that the last
// of a run leaves free stays empty.
struct Hitch
{
    Keys::Set set;
    Step::What what;
    int first, last; // key numbers
};

constexpr Hitch hitches[] = {
    {Keys::Set::Everything, Step::Animate, 9, 88},
    {Keys::Set::Lowercase, Step::Animate, 9, 26},
    {Keys::Set::Lowercase, Step::PutBack, 1, 9},
};

int hitch(Keys::Set set, Step::What what, int key)
{
    for (const Hitch &h : hitches) {
        if (h.set == set && h.what == what && key >= h.first && key <= h.last)
            return -1;
    }
    return 0;
}

// Two sweeps over the set: every cell is lit, then every cell is put back.
std::vector<Step> sweeps(bool forward, Keys::Set set)
{
    const Keys::Range range = Keys::range(set);
    std::vector<Step> steps;
    int step = 0;
    for (const Step::What what : {Step::Animate, Step::PutBack}) {
        for (int i = 0; i < range.length(); ++i) {
            const int key = forward ? range.first + i : range.last - i;
            ++step;
            steps.push_back({step + (forward ? hitch(set, what, key) : 0), what, key});
        }
    }
    steps.push_back({step + 1, Step::HideShields, 0});
    return steps;
}

struct Note
{
    int step;
    int key;
};

std::vector<Step> scrambled(const std::vector<Note> &notes, int hideShieldsAt)
{
    std::vector<Step> steps;
    for (const Note &note : notes) {
        steps.push_back({note.step, Step::Animate, note.key});
        steps.push_back({note.step + 1, Step::PutBack, note.key});
    }
    steps.push_back({hideShieldsAt, Step::HideShields, 0});
    return steps;
}

std::vector<Note> onePerStep(int firstStep, std::initializer_list<int> keys)
{
    std::vector<Note> notes;
    for (int key : keys)
        notes.push_back({firstStep++, key});
    return notes;
}

// Fixed orders, the same at every run; some keys are never visited, and in the
// lowercase wave "z" comes twice.
std::vector<Step> random(Keys::Set set)
{
    switch (set) {
    case Keys::Set::Everything:
        return scrambled(
            onePerStep(1, {70, 23, 51, 29, 38, 55, 53, 25, 6,  14, 54, 71, 42, 1,  3,  5,  17,
                           30, 74, 22, 86, 58, 67, 85, 47, 59, 77, 80, 48, 72, 65, 44, 31, 46,
                           2,  34, 10, 60, 7,  4,  94, 35, 28, 9,  37, 12, 11, 26, 78, 73, 81,
                           57, 13, 27, 76, 18, 45, 63, 69, 66, 24, 50, 68, 43, 49, 64, 84, 33,
                           56, 15, 82, 79, 83, 32, 36, 52, 40, 39, 19, 20, 61, 16, 62, 41}),
            85);
    case Keys::Set::NumberLine:
        return scrambled(onePerStep(1, {87, 92, 83, 80, 94, 79, 58, 85, 91, 63, 90, 69, 84, 59, 82,
                                        77, 89, 72, 81, 60, 70, 88, 74, 62, 55, 61, 66, 56, 65, 73,
                                        67, 90, 71, 53, 75, 68, 93, 54, 74, 57, 64, 76, 86}),
                         44);
    case Keys::Set::Lowercase:
        return scrambled(onePerStep(2, {20, 11, 12, 13, 1, 16, 23, 5,  10, 18, 26, 19,
                                        22, 2,  14, 17, 3, 9,  25, 24, 15, 8,  26}),
                         26);
    case Keys::Set::Uppercase:
        break;
    }
    return scrambled({{1, 38},  {2, 34},  {3, 39},  {5, 35},  {7, 42},  {9, 37},  {10, 47},
                      {12, 50}, {14, 44}, {17, 45}, {20, 41}, {21, 46}, {23, 51}, {24, 52},
                      {26, 48}, {27, 49}, {31, 43}, {33, 36}, {34, 40}, {35, 29}, {36, 32},
                      {37, 27}, {38, 31}, {39, 30}, {40, 33}, {41, 28}},
                     43);
}

} // namespace

std::vector<Step> wave(Direction direction, Keys::Set set)
{
    if (direction == Direction::Random)
        return random(set);
    return sweeps(direction == Direction::Forward, set);
}

} // namespace Waves
