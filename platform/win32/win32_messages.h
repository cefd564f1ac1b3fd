#pragma once

#include "platform/messages.h"

#include <functional>

namespace tarvelon {

class WindowHost;

class Win32MessageQueue : public MessageQueue {
public:
    /// `windows` gets each message first, for keys and navigation in the forms.
    explicit Win32MessageQueue(WindowHost& windows)
        : windows_(windows) {}

    void pump() override;
    void pumpInLoop() override;
    void wait() override;
    std::uint32_t queueStatus(std::uint32_t flags) override;

    /// Handles messages until the thread is told to quit, and gives the exit code. Calls `rest` when the
    /// program has nothing to do.
    int run(const std::function<void()>& rest);

private:
    bool knownIdle(std::uint32_t flags) const;
    void noteIdle(std::uint32_t flags);

    WindowHost& windows_;
    std::int64_t idleUntil_ = 0; ///< The performance counter until which nothing need be asked anew.
    std::uint32_t idleFlags_ = 0;
};

} // namespace tarvelon
