#include "platform/win32/parts.h"

#include "platform/win32/windows_api.h"

#include <shellapi.h>

namespace tarvelon {

namespace {

class Win32Shell : public Shell {
public:
    std::intptr_t open(const std::string& file, const std::string& folder) override {
        const char* const inFolder = folder.empty() ? nullptr : folder.c_str();
        return reinterpret_cast<std::intptr_t>(
            ShellExecuteA(GetDesktopWindow(), "Open", file.c_str(), nullptr, inFolder, SW_SHOWNORMAL));
    }
};

} // namespace

std::unique_ptr<Shell> makeShell() {
    return std::make_unique<Win32Shell>();
}

} // namespace tarvelon
