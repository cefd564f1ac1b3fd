#pragma once

#include <cstdint>

namespace tarvelon {

class MessageQueue;

/// Key, mouse-button, paint and hot-key input; timers and posted messages are not among them.
inline constexpr std::uint32_t userInput = 165;

/// Keeps the windows alive during long work.
class clsDoEvents {
public:
    explicit clsDoEvents(MessageQueue& messages)
        : messages_(messages) {}

    /// The kinds of input (QS_ bits) that are worth an interruption.
    std::uint32_t QueueUsed() const { return queueUsed_; }
    void QueueUsed(std::uint32_t flags) { queueUsed_ = flags; }

    /// Lets the waiting messages run once, when there is input of these kinds among them.
    void GetInputState();

private:
    MessageQueue& messages_;
    std::uint32_t queueUsed_ = 0;
};

} // namespace tarvelon
