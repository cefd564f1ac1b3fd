#pragma once

#include <cstdint>
#include <string>

namespace tarvelon {

/// The machine's date and time.
class Clock {
public:
    virtual ~Clock() = default;

    /// Today in the user's regional short form, such as "3/5/2006".
    virtual std::string dateText() = 0;
    /// The same for the day of an open file's last write, as that tells it; empty when the system cannot
    /// tell.
    virtual std::string dayOf(std::uint64_t lastWrite) = 0;
    /// Now in the user's regional form with seconds, such as "3:04:07 PM".
    virtual std::string timeText() = 0;
    /// Seconds since midnight, as fine as the system tells.
    virtual double secondsSinceMidnight() = 0;
};

} // namespace tarvelon
