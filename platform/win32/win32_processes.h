#pragma once

#include "platform/processes.h"

namespace tarvelon {

class Win32Processes : public Processes {
public:
    std::string programFile() override;
    std::string commandLine() override;
    std::array<int, 3> programVersion() override;
    bool start(const std::string& commandLine, WindowStyle style) override;

protected:
    [[noreturn]] void endNow() override;
};

} // namespace tarvelon
