#include "platform/sim/sim_messages.h"

#include "platform/sim/sim_clock.h"
#include "platform/sim/sim_view.h"

#include <algorithm>

namespace tarvelon {

namespace {

constexpr std::uint32_t mouseButtonInput = 0x04; // QS_MOUSEBUTTON
constexpr std::uint32_t timerInput = 0x10;       // QS_TIMER
constexpr int mostFruitlessWaits = 10000;

} // namespace

SimMessages::SimMessages(SimClock& clock, SimView& view)
    : clock_(clock)
    , view_(view) {}

void SimMessages::atQueueStatus(int n, Action action) {
    when([this, due = statusCalls_ + n] { return statusCalls_ >= due; }, std::move(action));
}

void SimMessages::when(std::function<bool()> condition, Action action) {
    script_.push_back({std::move(condition), std::move(action)});
}

void SimMessages::onWait(Action action) {
    script_.push_back({[] { return false; }, std::move(action), true});
}

void SimMessages::advance(int milliseconds) {
    const std::int64_t target = clock_.now + milliseconds;
    for (auto due = view_.nextDue(); due && *due <= target; due = view_.nextDue()) {
        clock_.now = std::max(clock_.now, *due);
        view_.tickOne();
    }
    clock_.now = std::max(clock_.now, target);
}

void SimMessages::pump() {
    ++pumps_;
    for (auto step = readyStep(); step != script_.end(); step = readyStep()) {
        const Action action = std::move(step->action);
        script_.erase(step);
        fruitlessWaits_ = 0;
        action();
    }
    while (view_.tickOne()) {
        fruitlessWaits_ = 0;
    }
}

void SimMessages::wait() {
    const auto due = view_.nextDue();
    if (readyStep() != script_.end() || (due && *due <= clock_.now)) {
        return;
    }
    const auto idleStep = std::ranges::find(script_, true, &Step::awaitsIdle);
    if (idleStep != script_.end()) {
        idleStep->ready = [] { return true; };
        idleStep->awaitsIdle = false;
        return;
    }
    if ((!due && script_.empty()) || ++fruitlessWaits_ > mostFruitlessWaits) {
        throw Hang("the program waits, and nothing that the script or a timer brings will wake it");
    }
    if (due) {
        clock_.now = *due;
    }
}

std::uint32_t SimMessages::queueStatus(std::uint32_t flags) {
    ++statusCalls_;
    const auto due = view_.nextDue();
    std::uint32_t waiting = 0;
    waiting |= readyStep() != script_.end() ? mouseButtonInput : 0;
    waiting |= due && *due <= clock_.now ? timerInput : 0;
    waiting &= flags;
    return waiting << 16 | waiting;
}

std::list<SimMessages::Step>::iterator SimMessages::readyStep() {
    return std::find_if(script_.begin(), script_.end(), [](const Step& step) { return step.ready(); });
}

} // namespace tarvelon
