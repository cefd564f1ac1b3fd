#pragma once

#include <array>
#include <cstddef>
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

    /// The most characters that a command line may have: the system's 32,767, less the final zero and quotes
    /// around the program's name.
    static constexpr std::size_t longestCommandLine = 32'764;

    /// Starts a program with the command line `<program> <arguments>`, or `<program>` for empty arguments,
    /// and does not wait for it. Only this program is started, whatever stands where a part of its name would
    /// lead. A name without a folder is looked for where the system looks for programs, and one without an
    /// extension may be that of an ".exe". A program that asks for more rights than this process has gets
    /// them if the user agrees. False when it cannot be started, as with a command line that is too long.
    virtual bool start(const std::string& program, const std::string& arguments, WindowStyle style) = 0;

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
