#include "platform/win32/system_library.h"

#include "platform/win32/wide.h"

#include <string>

namespace tarvelon {

namespace {

HMODULE loadFromSystemDirectory(const char* fileName) {
    if (hasWideCalls()) {
        const std::wstring wideFolder = textFrom(GetSystemDirectoryW);
        return wideFolder.empty() ? nullptr : LoadLibraryW((wideFolder + L"\\" + wideText(fileName)).c_str());
    }
    char folder[MAX_PATH];
    const UINT length = GetSystemDirectoryA(folder, MAX_PATH);
    if (length == 0 || length >= MAX_PATH) {
        return nullptr;
    }
    return LoadLibraryA((std::string(folder, length) + "\\" + fileName).c_str());
}

} // namespace

SystemLibrary::SystemLibrary(const char* fileName)
    : module_(loadFromSystemDirectory(fileName)) {}

FARPROC SystemLibrary::address(const char* name) const {
    return module_ ? GetProcAddress(module_.get(), name) : nullptr;
}

} // namespace tarvelon
