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

template<class Request, class Text>
Request propertiesRequest(HWND owner, const Text& file, const Text& verb) {
    Request request{};
    request.cbSize = sizeof request;
    request.fMask = SEE_MASK_INVOKEIDLIST | SEE_MASK_FLAG_NO_UI;
    request.hwnd = owner;
    request.lpVerb = verb.c_str();
    request.lpFile = file.c_str();
    request.nShow = SW_SHOWNORMAL;
    return request;
}

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

void showInFolder(HWND owner, const std::string& file) {
    char folder[MAX_PATH] = "";
    makeSystemFolders()->getWindowsDirectory(folder, sizeof folder);
    shellExecute(owner, "open", std::string(folder) + "\\explorer.exe", "/select,\"" + file + "\"", "",
                 SW_SHOWNORMAL);
}

void showProperties(HWND owner, const std::string& file) {
    const std::string verb = "properties";
    if (hasWideCalls()) {
        const std::wstring path = briefPath(file);
        const std::wstring wideVerb = wideText(verb);
        auto request = propertiesRequest<SHELLEXECUTEINFOW>(owner, path, wideVerb);
        ShellExecuteExW(&request);
    } else {
        auto request = propertiesRequest<SHELLEXECUTEINFOA>(owner, file, verb);
        ShellExecuteExA(&request);
    }
}

std::unique_ptr<Shell> makeShell() {
    return std::make_unique<Win32Shell>();
}

} // namespace tarvelon
