#pragma once

#include <cstdint>
#include <string>

namespace tarvelon {

/// Opening documents and addresses with the programs that the user's system has for them.
class Shell {
public:
    /// The system's codes that a caller may want to tell apart.
    static constexpr std::intptr_t fileNotFound = 2;
    static constexpr std::intptr_t noProgram = 31;
    static constexpr std::intptr_t lastFailure = 32; ///< All codes above it mean success.

    virtual ~Shell() = default;

    /// `ShellExecuteA` with the desktop as owner, the verb "Open" and a normal window: more than 32 on
    /// success, else the system's code. The folder is where a file without a path lies; empty for none.
    virtual std::intptr_t open(const std::string& file, const std::string& folder) = 0;
};

} // namespace tarvelon
