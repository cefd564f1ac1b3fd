#pragma once

#include "ui/controls/controls.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tarvelon {

struct SimClock;

/// Stands where the windows would be: hears of every change to the attached screens and runs their timers.
class SimView : public ScreenListener {
public:
    explicit SimView(const SimClock& clock);

    void attach(Screen& screen);
    /// The program has gone, and its timers with it.
    void forgetTimers() { running_.clear(); }

    /// When the earliest running timer is due, in the clock's milliseconds; empty without one.
    std::optional<std::int64_t> nextDue() const;
    /// Lets the earliest timer tick that is due by now; false when none is.
    bool tickOne();

    /// How many changes the attached screens and their controls have told of.
    int changes() const { return changes_; }

    void loaded(Screen& screen) override;
    void changed(Screen& screen, Aspect aspect) override;
    void changed(Control& control, Aspect aspect) override;

private:
    struct RunningTimer {
        Timer* timer;
        std::int64_t due;
    };

    void follow(Control& control);

    const SimClock& clock_;
    std::vector<RunningTimer> running_; ///< In the order in which they were enabled.
    int changes_ = 0;
};

} // namespace tarvelon
