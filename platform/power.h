#pragma once

#include <cstdint>
#include <string>

namespace tarvelon {

/// The system's version, as `GetVersionExA` tells it.
struct SystemVersion {
    std::uint32_t platformId = 0; ///< 2: the NT family.
    std::uint32_t major = 0;
};

/// Shutting the machine down, call by call.
class Power {
public:
    virtual ~Power() = default;

    /// All zeros when the system does not tell.
    virtual SystemVersion version() = 0;

    /// Gives this process's token the named privilege: `OpenProcessToken` with access 32,
    /// `LookupPrivilegeValueA` on the local system, `AdjustTokenPrivileges` with these attributes. Systems
    /// without privileges do nothing, and nobody learns of a failure.
    virtual void adjustPrivilege(const std::string& name, std::uint32_t attributes) = 0;

    /// `SetSystemPowerState`: suspends, or hibernates when `suspend` is false. False when refused.
    virtual bool setSystemPowerState(bool suspend, bool force) = 0;

    /// `ExitWindowsEx` with EWX_ flags: true when the shut-down has begun, which goes on beside this program.
    virtual bool exitWindows(std::uint32_t flags, std::uint32_t reason) = 0;

    /// The process that owns the desktop window.
    virtual std::uint32_t desktopProcess() = 0;
    /// `OpenProcess` with this access, `TerminateProcess`, `CloseHandle`; the first that fails ends it.
    virtual void terminateProcess(std::uint32_t process, std::uint32_t access, std::uint32_t exitCode) = 0;
};

} // namespace tarvelon
