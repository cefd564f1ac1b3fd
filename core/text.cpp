#include "core/text.h"

#include "platform/codepage.h"

#include <charconv>
#include <cstring>

namespace tarvelon {

CaseRules::CaseRules() {
    for (int code = 0; code < 256; ++code) {
        const auto index = static_cast<std::size_t>(code);
        upper_[index] = static_cast<char>(code >= 'a' && code <= 'z' ? code - 32 : code);
        lower_[index] = static_cast<char>(code >= 'A' && code <= 'Z' ? code + 32 : code);
    }
    noteCaseless();
}

CaseRules::CaseRules(CodePage& codePage) {
    for (int code = 0; code < 256; ++code) {
        const auto index = static_cast<std::size_t>(code);
        upper_[index] = static_cast<char>(codePage.upper(static_cast<unsigned char>(code)));
        lower_[index] = static_cast<char>(codePage.lower(static_cast<unsigned char>(code)));
    }
    noteCaseless();
}

void CaseRules::noteCaseless() {
    std::array<int, 256> foldSize{};
    for (const char folded : upper_) {
        ++foldSize[static_cast<unsigned char>(folded)];
    }
    for (std::size_t code = 0; code < 256; ++code) {
        const auto folded = static_cast<unsigned char>(upper_[code]);
        caseless_[code] = folded == code && foldSize[folded] == 1;
    }
}

std::string CaseRules::upper(std::string_view text) const {
    std::string result(text);
    for (char& character : result) {
        character = upper_[static_cast<unsigned char>(character)];
    }
    return result;
}

std::string CaseRules::lower(std::string_view text) const {
    std::string result(text);
    for (char& character : result) {
        character = lower_[static_cast<unsigned char>(character)];
    }
    return result;
}

bool CaseRules::equal(std::string_view a, std::string_view b) const {
    if (a.size() != b.size()) {
        return false;
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (upper(a[i]) != upper(b[i])) {
            return false;
        }
    }
    return true;
}

std::size_t CaseRules::find(std::string_view text, std::string_view needle, std::size_t from) const {
    if (from > text.size() || needle.size() > text.size() - from) {
        return std::string_view::npos;
    }
    if (needle.empty()) {
        return from;
    }
    constexpr std::size_t shortText = 256;
    constexpr std::size_t shortNeedle = 4;
    return text.size() - from < shortText || needle.size() < shortNeedle ? findShort(text, needle, from)
                                                                         : findLong(text, needle, from);
}

std::size_t CaseRules::findShort(std::string_view text, std::string_view needle, std::size_t from) const {
    const char first = upper(needle[0]);
    const bool plainFirst = caseless_[static_cast<unsigned char>(needle[0])];
    const std::size_t last = text.size() - needle.size();
    for (std::size_t i = from; i <= last; ++i) {
        if (plainFirst) {
            const void* hit = std::memchr(text.data() + i, needle[0], last - i + 1);
            if (!hit) {
                return std::string_view::npos;
            }
            i = static_cast<std::size_t>(static_cast<const char*>(hit) - text.data());
        } else if (upper(text[i]) != first) {
            continue;
        }
        if (equal(text.substr(i, needle.size()), needle)) {
            return i;
        }
    }
    return std::string_view::npos;
}

/// By Horspool: compares from the needle's end, and goes on by as many characters as the one found there
/// stands away from the end of the needle.
std::size_t CaseRules::findLong(std::string_view text, std::string_view needle, std::size_t from) const {
    const std::size_t last = needle.size() - 1;
    std::array<std::uint32_t, 256> steps;
    steps.fill(static_cast<std::uint32_t>(needle.size()));
    for (std::size_t i = 0; i < last; ++i) {
        steps[static_cast<unsigned char>(upper(needle[i]))] = static_cast<std::uint32_t>(last - i);
    }
    const char lastFolded = upper(needle[last]);
    for (std::size_t place = from; place + last < text.size();) {
        const char end = upper(text[place + last]);
        if (end == lastFolded && equal(text.substr(place, last), needle.substr(0, last))) {
            return place;
        }
        place += steps[static_cast<unsigned char>(end)];
    }
    return std::string_view::npos;
}

std::string CaseRules::replaceAll(std::string_view text, std::string_view what, std::string_view with) const {
    std::string result;
    std::size_t from = 0;
    while (!what.empty()) {
        const std::size_t hit = find(text, what, from);
        if (hit == std::string_view::npos) {
            break;
        }
        result.append(text.substr(from, hit - from)).append(with);
        from = hit + what.size();
    }
    return result.append(text.substr(from));
}

std::string replaceExact(std::string text, std::string_view what, std::string_view with) {
    for (std::size_t hit = text.find(what); hit != std::string::npos;
         hit = text.find(what, hit + with.size())) {
        text.replace(hit, what.size(), with);
    }
    return text;
}

std::string trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    const std::size_t last = text.find_last_not_of(' ');
    return std::string(text.substr(first, last - first + 1));
}

std::string getBetween(const CaseRules& cases, std::string_view text, std::size_t start,
                       std::string_view left, std::string_view right) {
    if (start == 0) {
        return {};
    }
    const std::size_t hit = cases.find(text, left, start - 1);
    if (hit == std::string_view::npos) {
        return {};
    }
    const std::size_t begin = hit + left.size();
    const std::size_t end = cases.find(text, right, begin);
    if (end == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(begin, end - begin));
}

std::vector<std::string> split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    if (text.empty()) {
        return parts;
    }
    std::size_t from = 0;
    for (;;) {
        const std::size_t hit = text.find(separator, from);
        if (hit == std::string_view::npos) {
            parts.emplace_back(text.substr(from));
            return parts;
        }
        parts.emplace_back(text.substr(from, hit - from));
        from = hit + 1;
    }
}

std::string_view lastCharacters(std::string_view text, std::size_t count) {
    return text.size() > count ? text.substr(text.size() - count) : text;
}

std::optional<std::int32_t> toNumber(std::string_view text) {
    const std::string digits = trim(text);
    std::int32_t number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [rest, error] = std::from_chars(digits.data(), end, number);
    if (digits.empty() || error != std::errc() || rest != end) {
        return std::nullopt;
    }
    return number;
}

std::string withBackslash(std::string path) {
    if (path.empty() || path.back() != '\\') {
        path += '\\';
    }
    return path;
}

std::string backupOf(const std::string& path) {
    return path.substr(0, path.size() - lastCharacters(path, 3).size()) + "bak";
}

std::string bareName(const std::string& path) {
    const std::size_t slash = path.rfind('\\');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

std::string shiftText(std::string_view mode, std::string text, std::optional<bool> apply) {
    if (!apply) {
        return text;
    }
    const int step = mode == "ABC" ? 21 : mode == "CBA" ? -21 : 0;
    for (char& character : text) {
        character = static_cast<char>(character + step);
    }
    return text;
}

} // namespace tarvelon
