#include "platform/sim/sim_processes.h"

#include "platform/sim/faults.h"

namespace tarvelon {

SimProcesses::SimProcesses(Faults& faults)
    : faults_(faults) {}

bool SimProcesses::start(const std::string& program, const std::string& behind, WindowStyle style) {
    const std::string commandLine = behind.empty() ? program : program + " " + behind;
    if (faults_.strikes(Operation::StartProcess) || commandLine.size() > longestCommandLine ||
        (canStart && !canStart(commandLine))) {
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
