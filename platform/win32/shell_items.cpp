#include "platform/win32/shell_items.h"

#include "platform/win32/owned.h"
#include "platform/win32/wide.h"

#include <objbase.h>

#include <cstring>

namespace tarvelon {

bool pathFromItems(LPITEMIDLIST items, char* buffer) {
    const Owned<LPITEMIDLIST, CoTaskMemFree> freed(items);
    wchar_t wide[MAX_PATH];
    char narrow[MAX_PATH];
    if (!items) {
        return false;
    }
    if (hasWideCalls()) {
        return SHGetPathFromIDListW(items, wide) && fillPath(buffer, MAX_PATH, wide);
    }
    if (!SHGetPathFromIDListA(items, narrow)) {
        return false;
    }
    std::memcpy(buffer, narrow, std::strlen(narrow) + 1);
    return true;
}

bool fillPath(char* buffer, std::size_t size, std::wstring_view path) {
    const std::string text = reachablePath(path, size - 1);
    if (text.empty()) {
        return false;
    }
    fillBuffer(buffer, size, text);
    return true;
}

std::vector<std::string> droppedPaths(HDROP drop) {
    constexpr UINT howMany = 0xffffffff;
    std::vector<std::string> paths(DragQueryFileA(drop, howMany, nullptr, 0));
    for (UINT index = 0; index < paths.size(); ++index) {
        if (hasWideCalls()) {
            std::wstring wide(DragQueryFileW(drop, index, nullptr, 0), L'\0');
            DragQueryFileW(drop, index, wide.data(), static_cast<UINT>(wide.size() + 1));
            paths[index] = reachablePath(wide);
        } else {
            paths[index].resize(DragQueryFileA(drop, index, nullptr, 0));
            DragQueryFileA(drop, index, paths[index].data(), static_cast<UINT>(paths[index].size() + 1));
        }
    }
    return paths;
}

} // namespace tarvelon
