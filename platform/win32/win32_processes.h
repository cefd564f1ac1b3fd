#pragma once

#include "platform/processes.h"

namespace tarvelon {

class Win32Processes : public Processes {
public:
    Win32Processes();
    Win32Processes(const Win32Processes&) = delete;
    ~Win32Processes() override;

    std::string programFile() override;
    std::string commandLine() override;
    std::array<int, 3> programVersion() override;
    bool start(const std::string& program, const std::string& arguments, WindowStyle style) override;
    bool anotherInstance() override { return anotherInstance_; }

protected:
    [[noreturn]] void endNow() override;

private:
    void* instanceMark_; ///< A mutex that nobody waits for, there while the process is. Null if refused.
    bool anotherInstance_ = false;
};

} // namespace tarvelon
