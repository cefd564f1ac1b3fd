#include "platform/win32/win32_processes.h"

#include "platform/win32/windows_api.h"

#include <cstring>

namespace tarvelon {

std::string Win32Processes::programFile() {
    std::string path(MAX_PATH, '\0');
    for (;;) {
        const DWORD size = static_cast<DWORD>(path.size());
        const DWORD length = GetModuleFileNameA(nullptr, path.data(), size);
        if (length < size) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

std::string Win32Processes::commandLine() {
    const char* line = GetCommandLineA();
    const bool quoted = *line == '"';
    const char* nameEnd = quoted ? std::strchr(line + 1, '"') : std::strpbrk(line, " \t");
    if (!nameEnd) {
        return {};
    }
    const char* rest = quoted ? nameEnd + 1 : nameEnd;
    return rest + std::strspn(rest, " \t");
}

bool Win32Processes::start(const std::string& commandLine, WindowStyle style) {
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = style == WindowStyle::MinimizedFocus ? SW_SHOWMINIMIZED : SW_SHOWNORMAL;
    PROCESS_INFORMATION started;
    std::string writable = commandLine;
    if (!CreateProcessA(nullptr, writable.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &started)) {
        return false;
    }
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
    return true;
}

void Win32Processes::endNow() {
    ExitProcess(0);
}

} // namespace tarvelon
