#include "platform/sim/short_names.h"

#include "core/text.h"
#include "platform/sim/sim_codepage.h"

#include <algorithm>
#include <string_view>

namespace tarvelon {

namespace {

struct Parts {
    std::string_view base;
    std::string_view extension;
};

Parts partsOf(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos ? Parts{name, {}} : Parts{name.substr(0, dot), name.substr(dot + 1)};
}

bool isValid(char character) {
    return std::string_view(" .+,;=[]").find(character) == std::string_view::npos;
}

bool isShort(std::string_view name) {
    const Parts parts = partsOf(name);
    return isAscii(name) && !parts.base.empty() && parts.base.size() <= 8 && parts.extension.size() <= 3 &&
           std::ranges::all_of(parts.base, isValid) && std::ranges::all_of(parts.extension, isValid);
}

/// Each character outside of ASCII as a low line.
std::string plainCapitals(std::string_view text) {
    std::string plain;
    for (const char character : utf8Capitals(std::string(text))) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x80) {
            plain += character;
        } else if (byte >= 0xc0) {
            plain += '_';
        }
    }
    return plain;
}

/// Capitals of the valid characters, at most `count` of them.
std::string begin(std::string_view text, std::size_t count) {
    std::string capitals = plainCapitals(text);
    std::erase_if(capitals, [](char character) { return !isValid(character); });
    return capitals.substr(0, count);
}

} // namespace

std::string shortNameOf(const std::string& name, const std::vector<std::string>& namesInFolder) {
    if (isShort(name)) {
        return name;
    }
    const Parts parts = partsOf(name);
    const std::string base = begin(parts.base, 6);
    const std::string extension = begin(parts.extension, 3);
    int number = 1;
    for (const std::string& other : namesInFolder) {
        if (other == name) {
            break;
        }
        const Parts otherParts = partsOf(other);
        if (!isShort(other) && begin(otherParts.base, 6) == base &&
            begin(otherParts.extension, 3) == extension) {
            ++number;
        }
    }
    return base + "~" + std::to_string(number) + (extension.empty() ? "" : "." + extension);
}

} // namespace tarvelon
