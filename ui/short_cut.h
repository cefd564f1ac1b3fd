#pragma once

#include <cstdint>
#include <string>

namespace tarvelon {

class TextRules;
struct Platform;

/// Link files, and where the system starts them from.
namespace shortCut {

/// The folder whose shortcuts start at log-on, without a trailing backslash; empty when the system names
/// none.
std::string getStartupFolder(Platform& platform);

/// Where the shortcut lies that is the Auto-Load setting.
std::string autoLoadShortcut(Platform& platform, const TextRules& texts);

/// Makes a link file through the system's shell-link object. `workDir`, `args` and `iconFile` may be empty.
/// False when the link's path or its target is empty, or when the system refuses.
bool makeShortcut(Platform& platform, const std::string& linkPath, const std::string& target,
                  const std::string& workDir, const std::string& args, const std::string& iconFile,
                  std::int32_t iconIndex, std::int32_t showCmd);

/// Makes a link file through the scripting host, with ".lnk" added to a path that ends in neither ".lnk" nor
/// ".url". `args` may be empty. False when there is no scripting host, or when it refuses.
bool makeShortcutWsh(Platform& platform, const std::string& linkPath, const std::string& description,
                     const std::string& target, const std::string& args, std::int32_t windowStyle = 0);

} // namespace shortCut

} // namespace tarvelon
