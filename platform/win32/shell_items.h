#pragma once

#include "platform/win32/windows_api.h"

#include <shlobj.h>

#include <cstring>

namespace tarvelon {

/// Fills `buffer` (at least 260 bytes) with the path of what the shell's item list names, and frees the list.
/// False when it is null or names no path; the buffer is then as it was.
inline bool pathFromItems(LPITEMIDLIST items, char* buffer) {
    if (!items) {
        return false;
    }
    char path[MAX_PATH];
    const bool named = SHGetPathFromIDListA(items, path) != FALSE;
    CoTaskMemFree(items);
    if (named) {
        std::memcpy(buffer, path, std::strlen(path) + 1);
    }
    return named;
}

} // namespace tarvelon
