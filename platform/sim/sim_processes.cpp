#include "platform/sim/sim_processes.h"

#include "platform/sim/faults.h"

namespace tarvelon {

SimProcesses::SimProcesses(Faults& faults)
    : faults_(faults) {}

bool SimProcesses::start(const std::string& commandLine, WindowStyle style) {
    if (faults_.strikes(Operation::StartProcess) || (canStart && !canStart(commandLine))) {
        return false;
    }
    started_.push_back({commandLine, style});
    return true;
}

void SimProcesses::endNow() {
    ended_ = true;
    throw ProcessEnded();
}

} // namespace tarvelon
