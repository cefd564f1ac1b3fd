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

} // namespace tarvelon
