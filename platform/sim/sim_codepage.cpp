#include "platform/sim/sim_codepage.h"

#include "core/text.h"
#include "core/utf8.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

namespace tarvelon {

namespace {

/// Codes in a row that stand for units in a row.
struct Run {
    std::uint16_t first;
    std::uint16_t last;
    char16_t unit;
};

constexpr Run western[] = {
    {0x00, 0x7f, 0x00},   {0x80, 0x80, 0x20ac}, {0x81, 0x81, 0x81},   {0x82, 0x82, 0x201a},
    {0x83, 0x83, 0x192},  {0x84, 0x84, 0x201e}, {0x85, 0x85, 0x2026}, {0x86, 0x87, 0x2020},
    {0x88, 0x88, 0x2c6},  {0x89, 0x89, 0x2030}, {0x8a, 0x8a, 0x160},  {0x8b, 0x8b, 0x2039},
    {0x8c, 0x8c, 0x152},  {0x8d, 0x8d, 0x8d},   {0x8e, 0x8e, 0x17d},  {0x8f, 0x90, 0x8f},
    {0x91, 0x92, 0x2018}, {0x93, 0x94, 0x201c}, {0x95, 0x95, 0x2022}, {0x96, 0x97, 0x2013},
    {0x98, 0x98, 0x2dc},  {0x99, 0x99, 0x2122}, {0x9a, 0x9a, 0x161},  {0x9b, 0x9b, 0x203a},
    {0x9c, 0x9c, 0x153},  {0x9d, 0x9d, 0x9d},   {0x9e, 0x9e, 0x17e},  {0x9f, 0x9f, 0x178},
    {0xa0, 0xff, 0xa0},
};

// Kana, Latin, Greek and Cyrillic letters, and two ideographs whose second byte is a backslash.
constexpr Run japanese[] = {
    {0x00, 0x7f, 0x00},       {0xa1, 0xdf, 0xff61},     {0x8260, 0x8279, 0xff21}, {0x8281, 0x829a, 0xff41},
    {0x829f, 0x82f1, 0x3041}, {0x8340, 0x837e, 0x30a1}, {0x8380, 0x8396, 0x30e0}, {0x839f, 0x83af, 0x391},
    {0x83b0, 0x83b6, 0x3a3},  {0x83bf, 0x83cf, 0x3b1},  {0x83d0, 0x83d6, 0x3c3},  {0x8440, 0x8445, 0x410},
    {0x8446, 0x8446, 0x401},  {0x8447, 0x8460, 0x416},  {0x8470, 0x8475, 0x430},  {0x8476, 0x8476, 0x451},
    {0x8477, 0x847e, 0x436},  {0x8480, 0x8491, 0x43e},  {0x955c, 0x955c, 0x8868}, {0x945c, 0x945c, 0x80fd},
};

template<class Runs>
const Run* runOfCode(const Runs& runs, unsigned code) {
    const auto hit =
        std::ranges::find_if(runs, [code](const Run& run) { return code >= run.first && code <= run.last; });
    return hit == std::end(runs) ? nullptr : &*hit;
}

template<class Runs>
const Run* runOfUnit(const Runs& runs, char16_t unit) {
    const auto hit = std::ranges::find_if(
        runs, [unit](const Run& run) { return unit >= run.unit && unit - run.unit <= run.last - run.first; });
    return hit == std::end(runs) ? nullptr : &*hit;
}

/// In Latin, Greek and Cyrillic; each letter that has a capital in one unit has it there.
char16_t capital(char16_t unit) {
    const auto in = [unit](int first, int last) { return unit >= first && unit <= last; };
    const bool isPairedOdd = in(0x100, 0x12f) || in(0x14a, 0x177) || in(0x460, 0x481) || in(0x48a, 0x4bf);
    const bool isPairedEven = in(0x139, 0x148) || in(0x179, 0x17e);
    if (in('a', 'z') || (in(0xe0, 0xfe) && unit != 0xf7) || (in(0x3b1, 0x3cb) && unit != 0x3c2) ||
        in(0x430, 0x44f) || in(0xff41, 0xff5a)) {
        return static_cast<char16_t>(unit - 32);
    }
    if (in(0x450, 0x45f)) {
        return static_cast<char16_t>(unit - 80);
    }
    if (unit == 0xff) {
        return 0x178;
    }
    if (unit == 0x2c65) { // One byte more in UTF-8 than its capital.
        return 0x23a;
    }
    const bool isSmall = (isPairedOdd && unit % 2 == 1) || (isPairedEven && unit % 2 == 0);
    return static_cast<char16_t>(isSmall ? unit - 1 : unit);
}

} // namespace

CodePage::Kind SimCodePage::kind() {
    return page_ == Page::Western    ? Kind::SingleByte
           : page_ == Page::Japanese ? Kind::DoubleByte
                                     : Kind::Utf8;
}

bool SimCodePage::isLead(unsigned char byte) {
    return page_ == Page::Japanese && ((byte >= 0x81 && byte <= 0x9f) || (byte >= 0xe0 && byte <= 0xfc));
}

std::optional<std::u16string> SimCodePage::toUtf16(std::string_view text) {
    if (page_ == Page::Utf8) {
        return utf8::toUtf16(text);
    }
    std::u16string units;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned code = static_cast<unsigned char>(text[i]);
        if (isLead(static_cast<unsigned char>(code)) && i + 1 < text.size()) {
            code = code << 8 | static_cast<unsigned char>(text[++i]);
        }
        const Run* run = page_ == Page::Western ? runOfCode(western, code) : runOfCode(japanese, code);
        if (!run) {
            return std::nullopt;
        }
        units += static_cast<char16_t>(run->unit + (code - run->first));
    }
    return units;
}

std::optional<std::string> SimCodePage::fromUtf16(std::u16string_view text) {
    if (page_ == Page::Utf8) {
        return utf8::fromUtf16(text);
    }
    std::string bytes;
    for (const char16_t unit : text) {
        const Run* run = page_ == Page::Western ? runOfUnit(western, unit) : runOfUnit(japanese, unit);
        if (!run) {
            return std::nullopt;
        }
        const unsigned code = run->first + static_cast<unsigned>(unit - run->unit);
        if (code > 0xff) {
            bytes += static_cast<char>(code >> 8);
        }
        bytes += static_cast<char>(code);
    }
    return bytes;
}

std::u16string SimCodePage::capitals(std::u16string units) {
    std::ranges::transform(units, units.begin(), capital);
    return units;
}

std::string SimCodePage::toUtf8(std::string_view text) {
    const auto units = isAscii(text) ? std::nullopt : toUtf16(text);
    const auto utf8 = units ? utf8::fromUtf16(*units) : std::nullopt;
    return utf8.value_or(std::string(text));
}

std::optional<std::string> SimCodePage::fromUtf8(std::string_view text) {
    if (isAscii(text)) {
        return std::string(text);
    }
    const auto units = utf8::toUtf16(text);
    return units ? fromUtf16(*units) : std::nullopt;
}

std::string SimCodePage::shown(std::string_view text) {
    if (auto whole = fromUtf8(text)) {
        return *std::move(whole);
    }
    std::string bytes;
    for (const char16_t unit : utf8::toUtf16(text).value_or(std::u16string(text.begin(), text.end()))) {
        bytes += fromUtf16({&unit, 1}).value_or("?");
    }
    return bytes;
}

std::string utf8Capitals(const std::string& text) {
    static SimCodePage page(SimCodePage::Page::Utf8);
    static const TextRules texts(page);
    return texts.upper(text);
}

} // namespace tarvelon
