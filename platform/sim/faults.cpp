#include "platform/sim/faults.h"

#include "platform/sim/sim_processes.h"

#include <algorithm>

namespace tarvelon {

void Faults::failNth(Operation operation, int n) {
    plan(operation).failingCall = plan(operation).calls + n;
}

void Faults::endNth(Operation operation, int n) {
    failNth(operation, n);
    plan(operation).ends = true;
}

void Faults::failAlways(Operation operation) {
    plan(operation).always = true;
}

void Faults::clear(Operation operation) {
    plan(operation).failingCall = 0;
    plan(operation).always = false;
    plan(operation).ends = false;
    if (operation == Operation::FillDisk) {
        room_.reset();
    }
}

int Faults::calls(Operation operation) const {
    return plans_[static_cast<std::size_t>(operation)].calls;
}

bool Faults::strikes(Operation operation) {
    Plan& chosen = plan(operation);
    const bool isFailing = ++chosen.calls == chosen.failingCall;
    if (isFailing && chosen.ends) {
        throw ProcessEnded();
    }
    return chosen.always || isFailing;
}

std::uint64_t Faults::roomFor(std::uint64_t bytes) {
    if (bytes == 0) {
        return 0;
    }
    if (strikes(Operation::FillDisk) && !room_) {
        room_ = bytes / 2;
    }
    const std::uint64_t granted = std::min(bytes, room_.value_or(bytes));
    if (room_) {
        *room_ -= granted;
    }
    return granted;
}

void Faults::giveBack(std::uint64_t bytes) {
    if (room_) {
        *room_ += bytes;
    }
}

} // namespace tarvelon
