#pragma once

#include "platform/clock.h"

namespace tarvelon {

class Win32Clock : public Clock {
public:
    std::string dateText() override;
    std::string timeText() override;
    double secondsSinceMidnight() override;
};

} // namespace tarvelon
