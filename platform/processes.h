#pragma once

#include <array>
#include <cstdlib>
#include <string>

namespace tarvelon {

/// How a started program's window opens.
enum class WindowStyle { NormalFocus = 1, MinimizedFocus = 2 };

/// This process and those it starts.
class Processes {
public:
    virtual ~Processes() = default;

    /// Full path of the running program's file.
    virtual std::string programFile() = 0;

    /// What stands behind the program's name on the command line, as typed.
    virtual std::string commandLine() = 0;

    /// Major, minor and revision number of the program's version record; zeros when it has none.
    virtual std::array<int, 3> programVersion() = 0;

    /// Starts a command line and does not wait for it. False when it cannot be started.
    virtual bool start(const std::string& commandLine, WindowStyle style) = 0;

    /// Whether another process of this program was there when this one started.
    virtual bool anotherInstance() = 0;

    /// Ends this process at once: all windows go, nothing is saved, no question is asked.
    [[noreturn]] void end() {
        endNow();
        std::abort(); // Not reached; compilers do not take a virtual call's word for not returning.
    }

protected:
    /// Does not return.
    virtual void endNow() = 0;
};

} // namespace tarvelon
