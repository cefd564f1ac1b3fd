#include "platform/sim/sim_shell.h"

#include "platform/sim/faults.h"
#include "platform/sim/sim_files.h"

namespace tarvelon {

namespace {

constexpr std::intptr_t started = 42;

} // namespace

SimShell::SimShell(Faults& faults, SimFiles& files)
    : faults_(faults)
    , files_(files) {}

std::intptr_t SimShell::open(const std::string& file, const std::string& folder) {
    const bool fails = faults_.strikes(Operation::OpenDocument);
    const std::intptr_t result = fails ? fileNotFound : resultFor(file, folder);
    if (result > lastFailure) {
        opened_.push_back({file, folder});
    }
    return result;
}

std::intptr_t SimShell::resultFor(const std::string& file, const std::string& folder) const {
    if (const auto set = results.find(file); set != results.end()) {
        return set->second;
    }
    const std::size_t colon = file.find(':');
    const bool isAddress = colon != std::string::npos && colon > 1;
    const bool isWholePath = colon == 1;
    return isAddress || files_.get(isWholePath ? file : folder + file) ? started : fileNotFound;
}

} // namespace tarvelon
