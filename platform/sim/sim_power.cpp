#include "platform/sim/sim_power.h"

#include "platform/sim/faults.h"

namespace tarvelon {

namespace {

std::string call(std::string name, std::initializer_list<std::uint32_t> arguments) {
    for (const std::uint32_t argument : arguments) {
        name += " " + std::to_string(argument);
    }
    return name;
}

} // namespace

SimPower::SimPower(Faults& faults)
    : faults_(faults) {}

void SimPower::adjustPrivilege(const std::string& name, std::uint32_t attributes) {
    calls_.push_back(call("adjustPrivilege " + name, {attributes}));
}

bool SimPower::setSystemPowerState(bool suspend, bool force) {
    calls_.push_back(call("setSystemPowerState", {suspend, force}));
    return !faults_.strikes(Operation::SetPowerState);
}

bool SimPower::exitWindows(std::uint32_t flags, std::uint32_t reason) {
    calls_.push_back(call("exitWindows", {flags, reason}));
    return !faults_.strikes(Operation::ExitWindows);
}

void SimPower::terminateProcess(std::uint32_t process, std::uint32_t access, std::uint32_t exitCode) {
    calls_.push_back(call("terminateProcess", {process, access, exitCode}));
}

} // namespace tarvelon
