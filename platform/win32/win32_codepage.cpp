#include "platform/win32/parts.h"

#include "platform/win32/wide.h"
#include "platform/win32/windows_api.h"

#include <utility>

namespace tarvelon {

namespace {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

/// The number of the ANSI page that the system's language brings with it, whatever this process asked for.
UINT systemPageNumber() {
    char digits[8] = {};
    GetLocaleInfoA(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE, digits, sizeof digits);
    UINT number = 0;
    for (const char* digit = digits; *digit >= '0' && *digit <= '9'; ++digit) {
        number = number * 10 + static_cast<UINT>(*digit - '0');
    }
    return number == 0 ? GetACP() : number; // Some languages have none.
}

class Win32CodePage : public CodePage {
public:
    explicit Win32CodePage(UINT number)
        : number_(number) {}

    Kind kind() override { return kind_; }
    bool isLead(unsigned char byte) override { return IsDBCSLeadByteEx(number_, byte) != FALSE; }

    std::optional<std::u16string> toUtf16(std::string_view text) override {
        const auto length = static_cast<int>(text.size());
        std::u16string units(text.size(), u'\0');
        const int count = MultiByteToWideChar(number_, MB_ERR_INVALID_CHARS, text.data(), length,
                                              reinterpret_cast<wchar_t*>(units.data()), length);
        units.resize(static_cast<std::size_t>(count));
        return count > 0 || text.empty() ? std::optional(std::move(units)) : std::nullopt;
    }

    std::optional<std::string> fromUtf16(std::u16string_view text) override {
        // No character takes more than three bytes for each of its units in any page that a system can have.
        std::string bytes(text.size() * 3, '\0');
        const DWORD flags = kind_ == Kind::Utf8 ? 0 : WC_NO_BEST_FIT_CHARS;
        const int count = WideCharToMultiByte(number_, flags, reinterpret_cast<const wchar_t*>(text.data()),
                                              static_cast<int>(text.size()), bytes.data(),
                                              static_cast<int>(bytes.size()), nullptr, nullptr);
        bytes.resize(static_cast<std::size_t>(count));
        return toUtf16(bytes) == text ? std::optional(std::move(bytes)) : std::nullopt;
    }

    std::u16string capitals(std::u16string units) override {
        const auto length = static_cast<DWORD>(units.size());
        if (hasWideCalls()) {
            CharUpperBuffW(reinterpret_cast<wchar_t*>(units.data()), length);
            return units;
        }
        for (char16_t& unit : units) {
            std::string narrow = fromUtf16({&unit, 1}).value_or("");
            CharUpperBuffA(narrow.data(), static_cast<DWORD>(narrow.size()));
            const auto capital = toUtf16(narrow);
            unit = capital && capital->size() == 1 ? capital->front() : unit;
        }
        return units;
    }

private:
    Kind findKind() const {
        CPINFO info{};
        GetCPInfo(number_, &info);
        return number_ == CP_UTF8 ? Kind::Utf8 : info.MaxCharSize == 2 ? Kind::DoubleByte : Kind::SingleByte;
    }

    UINT number_;
    Kind kind_ = findKind();
};

} // namespace

std::unique_ptr<CodePage> makeCodePage() {
    return std::make_unique<Win32CodePage>(GetACP());
}

std::unique_ptr<CodePage> makeSystemPage() {
    return std::make_unique<Win32CodePage>(systemPageNumber());
}

} // namespace tarvelon
