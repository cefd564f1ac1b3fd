#pragma once

#include "platform/shortcuts.h"

namespace tarvelon {

/// Needs the component library on its thread, which `Win32Platform` starts once.
class Win32Shortcuts : public Shortcuts {
public:
    bool saveShellLink(const std::string& linkPath, const ShellLink& link) override;
    bool saveScripted(const std::string& linkPath, const ScriptedShortcut& shortcut) override;
};

} // namespace tarvelon
