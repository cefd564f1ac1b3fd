#pragma once

#include "platform/power.h"

namespace tarvelon {

class Win32Power : public Power {
public:
    SystemVersion version() override;
    void adjustPrivilege(const std::string& name, std::uint32_t attributes) override;
    bool setSystemPowerState(bool suspend, bool force) override;
    bool exitWindows(std::uint32_t flags, std::uint32_t reason) override;
    std::uint32_t desktopProcess() override;
    void terminateProcess(std::uint32_t process, std::uint32_t access, std::uint32_t exitCode) override;
};

} // namespace tarvelon
