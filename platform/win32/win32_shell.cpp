#include "platform/win32/parts.h"

#include "platform/win32/shell_execute.h"
#include "platform/win32/wide.h"

#include <shellapi.h>

namespace tarvelon {

namespace {

class Win32Shell : public Shell {
public:
    std::intptr_t open(const std::string& file, const std::string& folder) override {
        return shellExecute(GetDesktopWindow(), "Open", file, "", folder, SW_SHOWNORMAL);
    }
};

} // namespace

std::intptr_t shellExecute(HWND owner, const std::string& verb, const std::string& file,
                           const std::string& arguments, const std::string& folder, int show) {
    const auto orNull = [](const auto& text) { return text.empty() ? nullptr : text.c_str(); };
    return reinterpret_cast<std::intptr_t>(
        hasWideCalls()
            ? ShellExecuteW(owner, orNull(wideText(verb)), briefPath(file).c_str(),
                            orNull(wideText(arguments)), orNull(briefPath(folder)), show)
            : ShellExecuteA(owner, orNull(verb), file.c_str(), orNull(arguments), orNull(folder), show));
}

std::unique_ptr<Shell> makeShell() {
    return std::make_unique<Win32Shell>();
}

} // namespace tarvelon
