#pragma once

#include <cstdint>

namespace tarvelon {

/// The workstation's time, which only tests and waiting move.
struct SimClock {
    /// Milliseconds since the workstation was made.
    std::int64_t now = 0;
};

} // namespace tarvelon
