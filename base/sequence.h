#pragma once

#include <functional>

class QObject;

// Sequences are rows of steps, all armed at once and played by single-shot timers.
// They cannot be cancelled: a step must be harmless when its reason is gone, or belong to a
// Generation.
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

// Late steps that belong to one reason: an effect, a game, an ending. Once that is over, the
// steps that are still pending do nothing.
class Generation
{
public:
    explicit Generation(QObject *stepContext) : context(stepContext) {}

    void after(int ms, std::function<void()> action)
    {
        Sequence::after(ms, context, [this, own = number, action = std::move(action)] {
            if (own == number)
                action();
        });
    }
    void end() { ++number; }

private:
    QObject *context; // owns this object
    int number = 0;
};
