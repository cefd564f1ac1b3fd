#include "platform/win32/wide.h"

namespace tarvelon {

namespace {

bool isAscii(std::wstring_view text) {
    return std::ranges::all_of(text, [](wchar_t unit) { return unit < 0x80; });
}

bool isHighSurrogate(wchar_t unit) {
    return (unit & 0xfc00) == 0xd800;
}

bool isLowSurrogate(wchar_t unit) {
    return (unit & 0xfc00) == 0xdc00;
}

/// Code units of the character that the text begins with; halves of a pair that stand alone count as one.
std::size_t unitsOfFirst(std::wstring_view text) {
    return text.size() > 1 && isHighSurrogate(text[0]) && isLowSurrogate(text[1]) ? 2 : 1;
}

/// Without a look at what gets lost.
std::string converted(std::wstring_view text) {
    // No character takes more than three bytes for each of its units in any page that a process can have.
    std::string narrow(text.size() * 3, '\0');
    const DWORD flags = GetACP() == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;
    const int count = WideCharToMultiByte(CP_ACP, flags, text.data(), static_cast<int>(text.size()),
                                          narrow.data(), static_cast<int>(narrow.size()), nullptr, nullptr);
    narrow.resize(static_cast<std::size_t>(count));
    return narrow;
}

std::string asciiFrom(std::wstring_view text) {
    std::string narrow(text.size(), '\0');
    std::ranges::transform(text, narrow.begin(), [](wchar_t unit) { return static_cast<char>(unit); });
    return narrow;
}

/// A full path in which the system has nothing to work out: no "." or "..", no empty part, no slash of the
/// other kind, and no dot at the end of a part or blank at the end of all, which it would take away.
bool standsAsItIs(std::wstring_view path) {
    const bool onShare = path.starts_with(L"\\\\");
    const bool onDrive = path.size() > 2 && path[1] == L':' && path[2] == L'\\';
    if ((!onShare && !onDrive) || path.starts_with(L"\\\\?\\") || path.starts_with(L"\\\\.\\") ||
        path.find(L'/') != std::wstring_view::npos || path.ends_with(L' ')) {
        return false;
    }
    for (std::size_t from = onShare ? 2 : 3; from < path.size();) {
        const std::size_t end = std::min(path.find(L'\\', from), path.size());
        const std::wstring_view part = path.substr(from, end - from);
        if (part.empty() || part.ends_with(L'.')) {
            return false;
        }
        from = end + 1;
    }
    return true;
}

std::wstring withoutPrefix(std::wstring_view path) {
    if (path.starts_with(L"\\\\?\\UNC\\")) {
        return L"\\" + std::wstring(path.substr(7));
    }
    return std::wstring(path.starts_with(L"\\\\?\\") ? path.substr(4) : path);
}

std::wstring prefixed(std::wstring path) {
    if (!standsAsItIs(path)) {
        return path;
    }
    return path.starts_with(L"\\\\") ? L"\\\\?\\UNC" + path.substr(1) : L"\\\\?\\" + path;
}

/// Empty when it is not there.
std::wstring wideShortPath(const std::wstring& path) {
    const std::wstring longPath = prefixed(path);
    return withoutPrefix(textFrom(
        [&](wchar_t* buffer, DWORD size) { return GetShortPathNameW(longPath.c_str(), buffer, size); }));
}

} // namespace

bool hasWideCalls() {
    static const bool ntFamily = GetVersion() < 0x80000000;
    return ntFamily;
}

std::wstring wideText(std::string_view text) {
    const int length = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    const int count = MultiByteToWideChar(CP_ACP, 0, text.data(), length, wide.data(), length);
    wide.resize(static_cast<std::size_t>(count));
    return wide;
}

std::optional<std::string> exactNarrowText(std::wstring_view text) {
    if (isAscii(text)) {
        return asciiFrom(text);
    }
    std::string narrow = converted(text);
    return wideText(narrow) == text ? std::optional(std::move(narrow)) : std::nullopt;
}

std::string narrowText(std::wstring_view text) {
    if (auto exact = exactNarrowText(text)) {
        return *std::move(exact);
    }
    std::string narrow;
    while (!text.empty()) {
        const std::size_t units = unitsOfFirst(text);
        narrow += exactNarrowText(text.substr(0, units)).value_or("?");
        text.remove_prefix(units);
    }
    return narrow;
}

std::size_t fillBuffer(char* buffer, std::size_t size, std::string_view text) {
    if (size == 0) {
        return 0;
    }
    std::size_t length = std::min(text.size(), size - 1);
    if (length < text.size()) {
        std::wstring fitting = wideText(text);
        while (!fitting.empty() && narrowText(fitting).size() > size - 1) {
            fitting.resize(fitting.size() - (fitting.size() > 1 && isLowSurrogate(fitting.back()) ? 2 : 1));
        }
        length = std::min(narrowText(fitting).size(), length);
    }
    text.copy(buffer, length);
    buffer[length] = '\0';
    return length;
}

std::wstring widePath(std::string_view path) {
    return prefixed(wideText(path.substr(0, path.find('\0'))));
}

std::wstring briefPath(std::string_view path) {
    constexpr std::size_t most = MAX_PATH - 2; // Of a current folder.
    std::wstring wide = wideText(path);
    if (wide.size() <= most) {
        return wide;
    }
    std::wstring brief = wideShortPath(wide);
    return brief.empty() || brief.size() > most ? prefixed(std::move(wide)) : brief;
}

std::string reachablePath(std::wstring_view path, std::size_t most) {
    const std::wstring wide = withoutPrefix(path);
    const auto exact = exactNarrowText(wide);
    if (exact && exact->size() <= most) {
        return *exact;
    }
    const auto brief = exactNarrowText(wideShortPath(wide));
    if (brief && !brief->empty() && brief->size() <= most) {
        return *brief;
    }
    const std::string lossy = narrowText(wide);
    return lossy.size() <= most ? lossy : std::string();
}

std::string shortPath(std::string_view path) {
    return narrowText(wideShortPath(wideText(path.substr(0, path.find('\0')))));
}

std::uint32_t giveText(std::string_view text, char* buffer, std::uint32_t size) {
    const auto length = static_cast<std::uint32_t>(text.size());
    if (length == 0) {
        return 0;
    }
    if (length >= size) {
        return length + 1;
    }
    buffer[text.copy(buffer, length)] = '\0';
    return length;
}

} // namespace tarvelon
