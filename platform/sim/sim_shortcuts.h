#pragma once

#include "platform/shortcuts.h"

#include <string>
#include <vector>

namespace tarvelon {

class Faults;
class SimFiles;

template<class Told>
struct MadeShortcut {
    std::string path;
    Told told;

    bool operator==(const MadeShortcut&) const = default;
};

/// Makes a file for each link that is saved, and keeps what it was told.
class SimShortcuts : public Shortcuts {
public:
    SimShortcuts(Faults& faults, SimFiles& files);

    /// False on a machine without "WScript.Shell".
    bool hasScriptingHost = true;

    /// What was saved, oldest first.
    const std::vector<MadeShortcut<ShellLink>>& shellLinks() const { return shellLinks_; }
    const std::vector<MadeShortcut<ScriptedShortcut>>& scripted() const { return scripted_; }

    bool saveShellLink(const std::string& linkPath, const ShellLink& link) override;
    bool saveScripted(const std::string& linkPath, const ScriptedShortcut& shortcut) override;

private:
    bool write(const std::string& path, const std::string& target);

    Faults& faults_;
    SimFiles& files_;
    std::vector<MadeShortcut<ShellLink>> shellLinks_;
    std::vector<MadeShortcut<ScriptedShortcut>> scripted_;
};

} // namespace tarvelon
