#pragma once

#include <cstdint>
#include <string>

namespace tarvelon {

/// Opening documents and addresses with the programs that the user's system has for them.
class Shell {
public:
    virtual ~Shell() = default;

    /// `ShellExecuteA` with the desktop as owner and a normal window: more than 32 on success, else the
    /// system's code (2: not found, 31: no program for it). An empty folder stands for none.
    virtual std::intptr_t open(const std::string& file, const std::string& folder) = 0;
};

} // namespace tarvelon
