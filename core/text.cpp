#include "core/text.h"

#include "core/utf8.h"
#include "platform/codepage.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <numeric>
#include <utility>

namespace tarvelon {

namespace {

/// Stands for a byte that is no character, so that it equals only itself.
constexpr std::uint32_t noCharacter = 0x110000;

constexpr std::uint32_t units = 0x10000;

bool isSmallAscii(int code) {
    return code >= 'a' && code <= 'z';
}

} // namespace

TextRules::TextRules() {
    for (int code = 0; code < 256; ++code) {
        upper_[static_cast<std::size_t>(code)] =
            static_cast<unsigned char>(isSmallAscii(code) ? code - 32 : code);
    }
    noteCaseless();
}

TextRules::TextRules(CodePage& codePage)
    : TextRules() {
    page_ = &codePage;
    manyBytes_ = codePage.kind() != CodePage::Kind::SingleByte;
    for (int code = 128; code < 256 && !manyBytes_; ++code) {
        const auto unit = codePage.toUtf16(std::string(1, static_cast<char>(code)));
        const auto capital = unit ? codePage.fromUtf16(codePage.capitals(*unit)) : std::nullopt;
        if (capital && capital->size() == 1 && !isAscii(*capital)) {
            upper_[static_cast<std::size_t>(code)] = static_cast<unsigned char>(capital->front());
        }
    }
    noteCaseless();
}

void TextRules::noteCaseless() {
    std::array<int, 256> foldSize{};
    for (const unsigned char folded : upper_) {
        ++foldSize[folded];
    }
    for (std::size_t code = 0; code < 256; ++code) {
        caseless_[code] = upper_[code] == code && foldSize[code] == 1;
    }
}

TextRules::Letter TextRules::longLetterAt(std::string_view text, std::size_t place) const {
    const auto byte = static_cast<unsigned char>(text[place]);
    if (page_->kind() == CodePage::Kind::Utf8) {
        const auto character = utf8::characterAt(text, place);
        if (!character) {
            return {noCharacter | byte, 1};
        }
        const bool isUnit = character->code < units;
        return {isUnit ? foldUnit(static_cast<char16_t>(character->code)) : character->code,
                character->length};
    }
    if (page_->isLead(byte) && place + 1 < text.size()) {
        return {foldDouble(text.substr(place, 2)), 2};
    }
    return {byte, 1};
}

std::uint32_t TextRules::foldUnit(char16_t unit) const {
    if (units_.empty()) {
        units_.resize(units);
        std::iota(units_.begin(), units_.end(), u'\0');
        units_ = page_->capitals(std::move(units_));
    }
    const char16_t capital = units_[unit];
    return capital < 0x80 ? unit : capital;
}

std::uint32_t TextRules::foldDouble(std::string_view character) const {
    const auto bytes = static_cast<std::uint16_t>(static_cast<unsigned char>(character[0]) << 8 |
                                                  static_cast<unsigned char>(character[1]));
    doubles_.resize(units);
    std::uint16_t& known = doubles_[bytes];
    if (known == 0) {
        known = bytes;
        const auto unit = page_->toUtf16(character);
        const auto capital = unit ? page_->fromUtf16(page_->capitals(*unit)) : std::nullopt;
        if (capital && capital->size() == 2) {
            known = static_cast<std::uint16_t>(static_cast<unsigned char>((*capital)[0]) << 8 |
                                               static_cast<unsigned char>((*capital)[1]));
        }
    }
    return known;
}

std::string TextRules::upper(std::string_view text) const {
    std::string result;
    result.reserve(text.size());
    for (std::size_t place = 0; place < text.size();) {
        const Letter letter = letterAt(text, place);
        if (letter.length == 1) {
            result += static_cast<char>(letter.folded);
        } else if (page_->kind() == CodePage::Kind::Utf8) {
            utf8::append(result, letter.folded);
        } else {
            result += static_cast<char>(letter.folded >> 8);
            result += static_cast<char>(letter.folded);
        }
        place += letter.length;
    }
    return result;
}

/// By the table of bytes alone.
bool TextRules::equalBytes(std::string_view a, std::string_view b) const {
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (upperByte(a[i]) != upperByte(b[i])) {
            return false;
        }
    }
    return a.size() == b.size();
}

bool TextRules::equal(std::string_view a, std::string_view b) const {
    const std::size_t shorter = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < shorter; ++i) {
        const auto x = static_cast<unsigned char>(a[i]);
        const auto y = static_cast<unsigned char>(b[i]);
        if (!isWhole(x | y)) {
            return equalFrom(a, b, i);
        }
        if (upper_[x] != upper_[y]) {
            return false;
        }
    }
    return a.size() == b.size();
}

/// From a place on where both have had the same letters.
bool TextRules::equalFrom(std::string_view a, std::string_view b, std::size_t place) const {
    return endOfMatch(a, b.substr(place), place) == a.size();
}

/// Where the text goes on behind `needle`, if that stands at `place`, else `npos`.
std::size_t TextRules::endOfMatch(std::string_view text, std::string_view needle, std::size_t place) const {
    for (std::size_t i = 0; i < needle.size();) {
        if (place >= text.size()) {
            return std::string_view::npos;
        }
        const Letter wanted = letterAt(needle, i);
        const Letter there = letterAt(text, place);
        if (wanted.folded != there.folded) {
            return std::string_view::npos;
        }
        i += wanted.length;
        place += there.length;
    }
    return place;
}

/// Not the second byte of a character.
bool TextRules::isBegin(std::string_view text, std::size_t place) const {
    if (!manyBytes_ || page_->kind() != CodePage::Kind::DoubleByte) {
        return true;
    }
    std::size_t leads = 0;
    while (leads < place && page_->isLead(static_cast<unsigned char>(text[place - leads - 1]))) {
        ++leads;
    }
    return leads % 2 == 0;
}

/// The table of bytes tells where it stands, but for second bytes of characters.
bool TextRules::isByteSearch(std::string_view needle) const {
    return !manyBytes_ || isAscii(needle);
}

std::optional<TextRules::Hit> TextRules::hit(std::string_view text, std::string_view needle,
                                             std::size_t from) const {
    if (isByteSearch(needle)) {
        std::size_t place = findBytes(text, needle, from);
        while (place != std::string_view::npos && !isBegin(text, place)) {
            place = findBytes(text, needle, place + 1);
        }
        return place == std::string_view::npos ? std::nullopt
                                               : std::optional(Hit{place, place + needle.size()});
    }
    for (std::size_t place = from; place < text.size(); place += letterAt(text, place).length) {
        const std::size_t end = endOfMatch(text, needle, place);
        if (end != std::string_view::npos) {
            return Hit{place, end};
        }
    }
    return std::nullopt;
}

std::size_t TextRules::find(std::string_view text, std::string_view needle, std::size_t from) const {
    const auto found = hit(text, needle, from);
    return found ? found->begin : std::string_view::npos;
}

std::size_t TextRules::findBytes(std::string_view text, std::string_view needle, std::size_t from) const {
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

std::size_t TextRules::findShort(std::string_view text, std::string_view needle, std::size_t from) const {
    const unsigned char first = upperByte(needle[0]);
    const bool plainFirst = caseless_[static_cast<unsigned char>(needle[0])];
    const std::size_t last = text.size() - needle.size();
    for (std::size_t i = from; i <= last; ++i) {
        if (plainFirst) {
            const void* hit = std::memchr(text.data() + i, needle[0], last - i + 1);
            if (!hit) {
                return std::string_view::npos;
            }
            i = static_cast<std::size_t>(static_cast<const char*>(hit) - text.data());
        } else if (upperByte(text[i]) != first) {
            continue;
        }
        if (equalBytes(text.substr(i, needle.size()), needle)) {
            return i;
        }
    }
    return std::string_view::npos;
}

/// By Horspool: compares from the needle's end, and goes on by as many characters as the one found there
/// stands away from the end of the needle.
std::size_t TextRules::findLong(std::string_view text, std::string_view needle, std::size_t from) const {
    const std::size_t last = needle.size() - 1;
    std::array<std::uint32_t, 256> steps;
    steps.fill(static_cast<std::uint32_t>(needle.size()));
    for (std::size_t i = 0; i < last; ++i) {
        steps[upperByte(needle[i])] = static_cast<std::uint32_t>(last - i);
    }
    const unsigned char lastFolded = upperByte(needle[last]);
    for (std::size_t place = from; place + last < text.size();) {
        const unsigned char end = upperByte(text[place + last]);
        if (end == lastFolded && equalBytes(text.substr(place, last), needle.substr(0, last))) {
            return place;
        }
        place += steps[end];
    }
    return std::string_view::npos;
}

std::string TextRules::replaceAll(std::string_view text, std::string_view what, std::string_view with) const {
    std::string result;
    std::size_t from = 0;
    while (!what.empty()) {
        const auto found = hit(text, what, from);
        if (!found) {
            break;
        }
        result.append(text.substr(from, found->begin - from)).append(with);
        from = found->end;
    }
    return result.append(text.substr(from));
}

std::size_t TextRules::first(std::string_view text, char character, std::size_t from) const {
    std::size_t place = text.find(character, from);
    while (place != std::string_view::npos && !isBegin(text, place)) {
        place = text.find(character, place + 1);
    }
    return place;
}

std::size_t TextRules::last(std::string_view text, char character) const {
    std::size_t place = text.rfind(character);
    while (place != std::string_view::npos && !isBegin(text, place)) {
        place = place == 0 ? std::string_view::npos : text.rfind(character, place - 1);
    }
    return place;
}

std::string TextRules::withBackslash(std::string path) const {
    if (path.empty() || path.back() != '\\' || !isBegin(path, path.size() - 1)) {
        path += '\\';
    }
    return path;
}

std::string TextRules::bareName(const std::string& path) const {
    const std::size_t slash = last(path, '\\');
    return slash == std::string::npos ? path : path.substr(slash + 1);
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

std::string getBetween(const TextRules& texts, std::string_view text, std::size_t start,
                       std::string_view left, std::string_view right) {
    if (start == 0) {
        return {};
    }
    const auto before = texts.hit(text, left, start - 1);
    const auto behind = before ? texts.hit(text, right, before->end) : std::nullopt;
    return behind ? std::string(text.substr(before->end, behind->begin - before->end)) : std::string();
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

std::string backupOf(const std::string& path) {
    return path.substr(0, path.size() - lastCharacters(path, 3).size()) + "bak";
}

std::string lowerAscii(std::string text) {
    for (char& character : text) {
        character = static_cast<char>(character >= 'A' && character <= 'Z' ? character + 32 : character);
    }
    return text;
}

bool isAscii(std::string_view text) {
    return std::ranges::all_of(text,
                               [](char character) { return static_cast<unsigned char>(character) < 0x80; });
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
