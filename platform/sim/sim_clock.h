#pragma once

#include "platform/clock.h"

#include <cstdint>

namespace tarvelon {

/// The workstation's time, which only tests and waiting move.
struct SimClock : public Clock {
    /// Milliseconds since the workstation was made.
    std::int64_t now = 0;
    /// What the regional settings make of the date and time; they stay until a test changes them.
    std::string date = "3/5/2006";
    std::string time = "3:04:07 PM";
    /// When the workstation was made.
    double startAfterMidnight = 54'247;

    std::string dateText() override { return date; }
    /// All files are of today.
    std::string dayOf(std::uint64_t) override { return date; }
    std::string timeText() override { return time; }
    double secondsSinceMidnight() override;
};

} // namespace tarvelon
