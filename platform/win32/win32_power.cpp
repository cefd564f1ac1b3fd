#include "platform/win32/win32_power.h"

#include "platform/win32/windows_api.h"

namespace tarvelon {

SystemVersion Win32Power::version() {
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = sizeof version;
    GetVersionExA(&version);
    return {.platformId = version.dwPlatformId, .major = version.dwMajorVersion};
}

void Win32Power::adjustPrivilege(const std::string& name, std::uint32_t attributes) {
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES, &token)) {
        return;
    }
    TOKEN_PRIVILEGES privileges{};
    privileges.PrivilegeCount = 1;
    privileges.Privileges[0].Attributes = attributes;
    if (LookupPrivilegeValueA(nullptr, name.c_str(), &privileges.Privileges[0].Luid)) {
        AdjustTokenPrivileges(token, FALSE, &privileges, 0, nullptr, nullptr);
    }
    CloseHandle(token);
}

bool Win32Power::setSystemPowerState(bool suspend, bool force) {
    return SetSystemPowerState(suspend, force) != 0;
}

bool Win32Power::exitWindows(std::uint32_t flags, std::uint32_t reason) {
    return ExitWindowsEx(flags, reason) != 0;
}

std::uint32_t Win32Power::desktopProcess() {
    DWORD process = 0;
    GetWindowThreadProcessId(GetDesktopWindow(), &process);
    return process;
}

void Win32Power::terminateProcess(std::uint32_t process, std::uint32_t access, std::uint32_t exitCode) {
    if (const HANDLE opened = OpenProcess(access, FALSE, process)) {
        TerminateProcess(opened, exitCode);
        CloseHandle(opened);
    }
}

} // namespace tarvelon
