#pragma once

#include "platform/win32/windows_api.h"

#include <algorithm>
#include <cstdint>
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

/// A path as calls take it that know at most 260 characters: a longer one by its short names, or if it has
/// none, as `widePath` gives it.
std::wstring briefPath(std::string_view path);

/// A path that the system gave, in the process's code page and without a prefix; by its short names if the
/// page cannot hold it or it takes more than `most` bytes. Without short names it is as `narrowText` gives
/// it, or empty when that is too long.
std::string reachablePath(std::wstring_view path, std::size_t most = 32'767);

/// The short names of a path; empty when it is not there.
std::string shortPath(std::string_view path);

/// Gives a text as the system's calls do that are asked for a path: its length, or what room it needs if it
/// does not fit with its zero. Nothing happens with an empty one.
std::uint32_t giveText(std::string_view text, char* buffer, std::uint32_t size);

/// What such a call gives, however long it is; empty on failure.
template<class Call>
std::wstring textFrom(Call call) {
    std::wstring text(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = call(text.data(), static_cast<DWORD>(text.size()));
        if (length < text.size()) {
            text.resize(length);
            return text;
        }
        text.resize(std::max<std::size_t>(length, text.size() * 2)); // Some calls do not tell what they need.
    }
}

} // namespace tarvelon
