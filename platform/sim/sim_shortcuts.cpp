#include "platform/sim/sim_shortcuts.h"

#include "platform/sim/faults.h"
#include "platform/sim/sim_files.h"

namespace tarvelon {

SimShortcuts::SimShortcuts(Faults& faults, SimFiles& files)
    : faults_(faults)
    , files_(files) {}

bool SimShortcuts::saveShellLink(const std::string& linkPath, const ShellLink& link) {
    if (faults_.strikes(Operation::SaveShellLink) || !write(linkPath, link.path)) {
        return false;
    }
    shellLinks_.push_back({linkPath, link});
    return true;
}

bool SimShortcuts::saveScripted(const std::string& linkPath, const ScriptedShortcut& shortcut) {
    if (faults_.strikes(Operation::SaveScripted) || !hasScriptingHost ||
        !write(linkPath, shortcut.targetPath)) {
        return false;
    }
    scripted_.push_back({linkPath, shortcut});
    return true;
}

bool SimShortcuts::write(const std::string& path, const std::string& target) {
    const auto file = files_.open(path, OpenMode::Create);
    return file && file->writeAt(0, "Link to " + target);
}

} // namespace tarvelon
