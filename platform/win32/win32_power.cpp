#include "platform/win32/parts.h"

#include "platform/win32/owned.h"

namespace tarvelon {

namespace {

class Win32Power : public Power {
public:
    SystemVersion version() override {
        OSVERSIONINFOA version{};
        version.dwOSVersionInfoSize = sizeof version;
        GetVersionExA(&version);
        return {.platformId = version.dwPlatformId, .major = version.dwMajorVersion};
    }

    void adjustPrivilege(const std::string& name, std::uint32_t attributes) override {
        HANDLE opened = nullptr;
        if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES, &opened)) {
            return;
        }
        const OwnedHandle token(opened);
        TOKEN_PRIVILEGES privileges{};
        privileges.PrivilegeCount = 1;
        privileges.Privileges[0].Attributes = attributes;
        if (LookupPrivilegeValueA(nullptr, name.c_str(), &privileges.Privileges[0].Luid)) {
            AdjustTokenPrivileges(token.get(), FALSE, &privileges, 0, nullptr, nullptr);
        }
    }

    bool setSystemPowerState(bool suspend, bool force) override {
        return SetSystemPowerState(suspend, force) != 0;
    }

    bool exitWindows(std::uint32_t flags, std::uint32_t reason) override {
        return ExitWindowsEx(flags, reason) != 0;
    }

    std::uint32_t desktopProcess() override {
        DWORD process = 0;
        GetWindowThreadProcessId(GetDesktopWindow(), &process);
        return process;
    }

    void terminateProcess(std::uint32_t process, std::uint32_t access, std::uint32_t exitCode) override {
        if (const OwnedHandle opened{OpenProcess(access, FALSE, process)}) {
            TerminateProcess(opened.get(), exitCode);
        }
    }
};

} // namespace

std::unique_ptr<Power> makePower() {
    return std::make_unique<Win32Power>();
}

} // namespace tarvelon
