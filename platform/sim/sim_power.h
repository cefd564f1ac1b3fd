#pragma once

#include "platform/power.h"

#include <vector>

namespace tarvelon {

class Faults;

/// Notes what it is told to do and leaves the machine on.
class SimPower : public Power {
public:
    explicit SimPower(Faults& faults);

    SystemVersion systemVersion{.platformId = 2, .major = 5};

    /// What was asked for, refused or not, oldest first: the call's name and its arguments in decimal, such
    /// as "exitWindows 19 4294967295". Questions leave no trace.
    const std::vector<std::string>& calls() const { return calls_; }

    SystemVersion version() override { return systemVersion; }
    void adjustPrivilege(const std::string& name, std::uint32_t attributes) override;
    bool setSystemPowerState(bool suspend, bool force) override;
    bool exitWindows(std::uint32_t flags, std::uint32_t reason) override;
    std::uint32_t desktopProcess() override { return 500; }
    void terminateProcess(std::uint32_t process, std::uint32_t access, std::uint32_t exitCode) override;

private:
    Faults& faults_;
    std::vector<std::string> calls_;
};

} // namespace tarvelon
