#include "platform/win32/win32_shell.h"

#include "platform/win32/windows_api.h"

#include <shellapi.h>

namespace tarvelon {

std::intptr_t Win32Shell::open(const std::string& file, const std::string& folder) {
    const char* const inFolder = folder.empty() ? nullptr : folder.c_str();
    return reinterpret_cast<std::intptr_t>(
        ShellExecuteA(GetDesktopWindow(), "Open", file.c_str(), nullptr, inFolder, SW_SHOWNORMAL));
}

} // namespace tarvelon
