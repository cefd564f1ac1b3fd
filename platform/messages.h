#pragma once

#include <cstdint>

namespace tarvelon {

/// The window messages of the one thread.
class MessageQueue {
public:
    virtual ~MessageQueue() = default;

    /// Handles all messages that wait, then returns. Clicks, timers and repaints run inside.
    virtual void pump() = 0;

    /// The same for long work that comes by again at once: when nothing has just waited, it may come back
    /// without a look for a few milliseconds.
    virtual void pumpInLoop() { pump(); }

    /// Sleeps until a message may have come, for spins that would otherwise burn the processor.
    virtual void wait() = 0;

    /// `GetQueueStatus`: not 0 when input of a kind in `flags` (QS_ bits) waits. Input of the last few
    /// milliseconds may not be told of yet, so that long work can ask at every step.
    virtual std::uint32_t queueStatus(std::uint32_t flags) = 0;
};

} // namespace tarvelon
