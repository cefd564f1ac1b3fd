#include "platform/sim/sim_view.h"

#include "platform/sim/sim_clock.h"

#include <algorithm>

namespace tarvelon {

namespace {

constexpr auto earlier = [](const auto& a, const auto& b) { return a.due < b.due; };

} // namespace

SimView::SimView(const SimClock& clock)
    : clock_(clock) {}

void SimView::attach(Screen& screen) {
    screen.listener = this;
    for (Control* control : screen.controls()) {
        follow(*control);
    }
}

std::optional<std::int64_t> SimView::nextDue() const {
    const auto next = std::min_element(running_.begin(), running_.end(), earlier);
    return next == running_.end() ? std::nullopt : std::optional(next->due);
}

bool SimView::tickOne() {
    const auto next = std::min_element(running_.begin(), running_.end(), earlier);
    if (next == running_.end() || next->due > clock_.now) {
        return false;
    }
    next->due = clock_.now + next->timer->interval();
    next->timer->tick(); // Last: it may start and stop timers.
    return true;
}

void SimView::loaded(Screen&) {}

void SimView::changed(Screen&, Aspect) {
    ++changes_;
}

void SimView::changed(Control& control, Aspect aspect) {
    ++changes_;
    if (aspect == Aspect::Enabled) {
        follow(control);
    }
}

void SimView::follow(Control& control) {
    if (control.kind() != ControlKind::Timer) {
        return;
    }
    auto& timer = static_cast<Timer&>(control);
    std::erase_if(running_, [&](const RunningTimer& entry) { return entry.timer == &timer; });
    if (timer.Enabled() && timer.interval() > 0) {
        running_.push_back({&timer, clock_.now + timer.interval()});
    }
}

} // namespace tarvelon
