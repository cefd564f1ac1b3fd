#include "platform/win32/parts.h"

#include "platform/win32/shell_items.h"
#include "platform/win32/wide.h"

namespace tarvelon {

namespace {

class Win32SystemFolders : public SystemFolders {
public:
    std::uint32_t getSystemDirectory(char* buffer, std::uint32_t size) override {
        return hasWideCalls() ? giveText(reachablePath(textFrom(GetSystemDirectoryW)), buffer, size)
                              : GetSystemDirectoryA(buffer, size);
    }

    std::uint32_t getWindowsDirectory(char* buffer, std::uint32_t size) override {
        return hasWideCalls() ? giveText(reachablePath(textFrom(GetWindowsDirectoryW)), buffer, size)
                              : GetWindowsDirectoryA(buffer, size);
    }

    bool getSpecialFolderPath(int csidl, char* buffer) override {
        LPITEMIDLIST items = nullptr;
        if (FAILED(SHGetSpecialFolderLocation(nullptr, csidl, &items))) {
            return false;
        }
        return pathFromItems(items, buffer);
    }
};

} // namespace

std::unique_ptr<SystemFolders> makeSystemFolders() {
    return std::make_unique<Win32SystemFolders>();
}

} // namespace tarvelon
