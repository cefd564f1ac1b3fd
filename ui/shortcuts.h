#pragma once

#include <string>

namespace tarvelon {

struct Platform;

/// The folder whose shortcuts start at log-on, without a trailing backslash; empty when the system names
/// none.
std::string getStartupFolder(Platform& platform);

/// Where the shortcut lies that is the Auto-Load setting.
std::string autoLoadShortcut(Platform& platform);

} // namespace tarvelon
