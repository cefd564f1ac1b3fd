#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarvelon {

// Texts are in the process's code page: UTF-8 where the system grants it (the manifest asks for it), else the
// system's ANSI page. The system's wide calls take and give UTF-16.

/// The system has the wide calls. Windows 98 and ME have only the narrow ones.
bool hasWideCalls();

/// Bytes that mean nothing in the code page become the page's mark for that.
std::wstring wideText(std::string_view text);

/// In the process's code page; each character that it cannot hold becomes one "?".
std::string narrowText(std::wstring_view text);

/// The same, but empty when the page cannot hold all of it.
std::optional<std::string> exactNarrowText(std::wstring_view text);

/// Puts `text` and a final zero into `buffer` of `size` bytes, as the narrow calls would: what has no room is
/// cut off, at the end of a character. Gives the bytes in front of the zero.
std::size_t fillBuffer(char* buffer, std::size_t size, std::string_view text);

/// A path as the wide file calls take it. A full path on a drive or a share gets the prefix that lifts the
/// limit of 260 characters and has every name taken as it stands, if it has no part that the system would
/// have to work out.
std::wstring widePath(std::string_view path);

} // namespace tarvelon
