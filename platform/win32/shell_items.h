#pragma once

#include "platform/win32/windows_api.h"

#include <shellapi.h>
#include <shlobj.h>

#include <string>
#include <string_view>
#include <vector>

namespace tarvelon {

/// Fills `buffer` (at least 260 bytes) with the path of what the shell's item list names, and frees the list.
/// False when it is null or names no path, or one that takes more even by its short names; the buffer is then
/// as it was.
bool pathFromItems(LPITEMIDLIST items, char* buffer);

/// Fills a buffer of `size` bytes with a path that the user has chosen, likewise.
bool fillPath(char* buffer, std::size_t size, std::wstring_view path);

/// The paths of what was dropped on a window.
std::vector<std::string> droppedPaths(HDROP drop);

} // namespace tarvelon
