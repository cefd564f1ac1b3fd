#include "core/other_page.h"

#include "core/text.h"
#include "core/utf8.h"
#include "platform/codepage.h"
#include "platform/platform.h"

namespace tarvelon {

namespace {

bool isUtf8(Platform& platform) {
    return platform.codePage.kind() == CodePage::Kind::Utf8;
}

std::optional<std::string> fromUtf8(CodePage& page, const std::string& text) {
    const auto units = utf8::toUtf16(text);
    return units ? page.fromUtf16(*units) : std::nullopt;
}

std::optional<std::string> toUtf8(CodePage& page, const std::string& text) {
    const auto units = page.toUtf16(text);
    return units ? utf8::fromUtf16(*units) : std::nullopt;
}

} // namespace

std::optional<std::string> inOtherPage(Platform& platform, const std::string& text) {
    return isUtf8(platform) ? fromUtf8(platform.systemPage, text) : toUtf8(platform.codePage, text);
}

std::string fromEitherPage(Platform& platform, const std::string& text) {
    if (isAscii(text)) {
        return text;
    }
    // Hardly a text of any other page is UTF-8 by chance.
    if (!isUtf8(platform)) {
        return fromUtf8(platform.codePage, text).value_or(text);
    }
    return utf8::toUtf16(text) ? text : fromSystemPage(platform, text);
}

bool isInSystemPage(Platform& platform, const std::string& text) {
    return !isUtf8(platform) || isAscii(text) || inOtherPage(platform, text);
}

std::string fromSystemPage(Platform& platform, const std::string& text) {
    return isUtf8(platform) ? toUtf8(platform.systemPage, text).value_or(text) : text;
}

} // namespace tarvelon
