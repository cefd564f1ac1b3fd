#pragma once

#include "platform/win32/owned.h"

#include <objbase.h>
#include <shlobj.h>

#include <cstring>

namespace tarvelon {

/// Fills `buffer` (at least 260 bytes) with the path of what the shell's item list names, and frees the list.
/// False when it is null or names no path; the buffer is then as it was.
inline bool pathFromItems(LPITEMIDLIST items, char* buffer) {
    const Owned<LPITEMIDLIST, CoTaskMemFree> freed(items);
    char path[MAX_PATH];
    if (!items || !SHGetPathFromIDListA(items, path)) {
        return false;
    }
    std::memcpy(buffer, path, std::strlen(path) + 1);
    return true;
}

} // namespace tarvelon
