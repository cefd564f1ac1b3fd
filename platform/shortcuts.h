#pragma once

#include <cstdint>
#include <string>

namespace tarvelon {

/// What the system's shell-link object is told before it saves a link file. One member for each call, in
/// their order.
struct ShellLink {
    std::string path{};             ///< `SetPath`
    std::string workingDirectory{}; ///< `SetWorkingDirectory`; not called when empty.
    std::string arguments{};        ///< `SetArguments`; not called when empty.
    std::string description{};      ///< `SetDescription`
    std::string iconFile{};         ///< `SetIconLocation`; not called when empty.
    std::int32_t iconIndex = 0;
    std::int32_t showCmd = 0;       ///< `SetShowCmd`
    std::uint32_t resolveFlags = 0; ///< `Resolve`, without a window.

    bool operator==(const ShellLink&) const = default;
};

/// What the scripting host's shortcut object is told before it saves. One member for each property, in their
/// order.
struct ScriptedShortcut {
    std::string arguments{}; ///< `Arguments`; not set when empty.
    std::string description{};
    std::string targetPath{};
    std::int32_t windowStyle = 0;

    bool operator==(const ScriptedShortcut&) const = default;
};

/// Making link files, in the two ways that systems have for it.
class Shortcuts {
public:
    virtual ~Shortcuts() = default;

    /// The shell-link object and its `Save` with the flag 0, over an existing file. The first call that fails
    /// ends it: false.
    virtual bool saveShellLink(const std::string& linkPath, const ShellLink& link) = 0;

    /// The object "WScript.Shell", its `CreateShortcut` for a path that ends in ".lnk" or ".url", and `Save`.
    /// False when a machine has no scripting host, or at the first call that fails.
    virtual bool saveScripted(const std::string& linkPath, const ScriptedShortcut& shortcut) = 0;
};

} // namespace tarvelon
