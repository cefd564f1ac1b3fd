#include "platform/win32/win32_folders.h"

#include "platform/win32/shell_items.h"
#include "platform/win32/windows_api.h"

namespace tarvelon {

std::uint32_t Win32SystemFolders::getSystemDirectory(char* buffer, std::uint32_t size) {
    return GetSystemDirectoryA(buffer, size);
}

std::uint32_t Win32SystemFolders::getWindowsDirectory(char* buffer, std::uint32_t size) {
    return GetWindowsDirectoryA(buffer, size);
}

bool Win32SystemFolders::getSpecialFolderPath(int csidl, char* buffer) {
    LPITEMIDLIST items = nullptr;
    if (FAILED(SHGetSpecialFolderLocation(nullptr, csidl, &items))) {
        return false;
    }
    return pathFromItems(items, buffer);
}

} // namespace tarvelon
