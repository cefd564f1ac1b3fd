#include "platform/sim/sim_clock.h"

#include <cmath>

namespace tarvelon {

double SimClock::secondsSinceMidnight() {
    constexpr double secondsInDay = 86'400;
    return std::fmod(startAfterMidnight + static_cast<double>(now) / 1000, secondsInDay);
}

} // namespace tarvelon
