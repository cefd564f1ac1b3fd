#include "platform/sim/faults.h"

namespace tarvelon {

void Faults::failNth(Operation operation, int n) {
    plan(operation).failingCall = plan(operation).calls + n;
}

void Faults::failAlways(Operation operation) {
    plan(operation).always = true;
}

void Faults::clear(Operation operation) {
    plan(operation).failingCall = 0;
    plan(operation).always = false;
}

int Faults::calls(Operation operation) const {
    return plans_[static_cast<std::size_t>(operation)].calls;
}

bool Faults::strikes(Operation operation) {
    Plan& chosen = plan(operation);
    ++chosen.calls;
    return chosen.always || chosen.calls == chosen.failingCall;
}

} // namespace tarvelon
