#pragma once

#include "platform/messages.h"

#include <functional>
#include <list>
#include <stdexcept>

namespace tarvelon {

struct SimClock;
class SimView;

/// The program waits for something that no script and no timer will ever bring.
class Hang : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

/// The message queue of the one thread. A test writes down what the user does and when; the pumps of the
/// program run it. Each scripted action runs once, inside a pump, and may pump again.
class SimMessages : public MessageQueue {
public:
    using Action = std::function<void()>;

    SimMessages(SimClock& clock, SimView& view);

    /// The user acts now: the input waits for the next pump, and `queueStatus` tells of it.
    void input(Action action) {
        when([] { return true; }, std::move(action));
    }
    /// The input comes in time for the n-th `queueStatus` from now, and waits for a pump from then on.
    void atQueueStatus(int n, Action action);
    /// The input comes as soon as the condition holds.
    void when(std::function<bool()> condition, Action action);
    /// The input comes once the program has nothing left to do and waits.
    void onWait(Action action);

    /// Time passes; timers that come due on the way tick, in their order, each at its time.
    void advance(int milliseconds);

    int pumps() const { return pumps_; }
    int queueStatusCalls() const { return statusCalls_; }
    /// Nothing of the script is left.
    bool scriptDone() const { return script_.empty(); }

    void pump() override;
    /// Moves on to what comes next, for a pump to run it: scripted input, else the next timer's time. Throws
    /// `Hang` when nothing can come.
    void wait() override;
    /// Scripted input counts as a mouse button, timers as timers.
    std::uint32_t queueStatus(std::uint32_t flags) override;

private:
    struct Step {
        std::function<bool()> ready;
        Action action;
        bool awaitsIdle = false;
    };

    std::list<Step>::iterator readyStep();

    SimClock& clock_;
    SimView& view_;
    std::list<Step> script_;
    int pumps_ = 0;
    int statusCalls_ = 0;
    int fruitlessWaits_ = 0; ///< Waits in a row without a step or a tick between them.
};

} // namespace tarvelon
