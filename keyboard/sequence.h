#pragma once

#include <functional>

class QObject;

// Sequences are rows of steps, all armed at once and played by single-shot timers.
// They cannot be cancelled: a step must be harmless when its reason is gone.
namespace Sequence {

// Precise, since a coarse timer may be 5 percent late and would change the order
// of the steps of a long sequence. Steps with one delay run in the order armed.
// Nothing runs once the context is gone.
void after(int ms, QObject *context, std::function<void()> action);

// Each row stands at row.step times stepMs and is handed to the action.
template <class Rows, class Action>
void play(const Rows &rows, int stepMs, QObject *context, const Action &action)
{
    for (const auto &row : rows)
        after(row.step * stepMs, context, [action, row] { action(row); });
}

} // namespace Sequence
