#pragma once

#include "platform/processes.h"

#include <functional>
#include <string>
#include <vector>

namespace tarvelon {

class Faults;

/// Thrown where the process would be gone. Deliberately no std::exception, so that code which passes over
/// errors cannot pass over this.
struct ProcessEnded {};

struct StartedProcess {
    std::string commandLine;
    WindowStyle style;

    bool operator==(const StartedProcess&) const = default;
};

class SimProcesses : public Processes {
public:
    explicit SimProcesses(Faults& faults);

    std::string file = R"(C:\Program Files\Tarvelon\TarvelonLow.exe)";
    std::string arguments;
    std::array<int, 3> version{2, 0, 0};
    bool otherInstance = false;
    /// Asked for each command line; unset, every one can be started.
    std::function<bool(const std::string& commandLine)> canStart;

    /// The command lines that were started, oldest first.
    const std::vector<StartedProcess>& started() const { return started_; }
    bool ended() const { return ended_; }

    std::string programFile() override { return file; }
    std::string commandLine() override { return arguments; }
    std::array<int, 3> programVersion() override { return version; }
    bool start(const std::string& program, const std::string& behind, WindowStyle style) override;
    bool anotherInstance() override { return otherInstance; }

protected:
    [[noreturn]] void endNow() override;

private:
    Faults& faults_;
    std::vector<StartedProcess> started_;
    bool ended_ = false;
};

} // namespace tarvelon
