#include "platform/win32/parts.h"

#include "platform/win32/wide.h"
#include "platform/win32/windows_api.h"

namespace tarvelon {

namespace {

/// A time, or now, as one of the two forms of a call writes it for the user.
template<class WideCall, class NarrowCall>
std::string formatted(WideCall wideCall, NarrowCall narrowCall, DWORD flags,
                      const SYSTEMTIME* time = nullptr) {
    constexpr int longest = 256;
    if (hasWideCalls()) {
        wchar_t text[longest] = L"";
        wideCall(LOCALE_USER_DEFAULT, flags, time, nullptr, text, longest);
        return narrowText(text);
    }
    char text[longest] = "";
    narrowCall(LOCALE_USER_DEFAULT, flags, time, nullptr, text, longest);
    return text;
}

class Win32Clock : public Clock {
public:
    std::string dateText() override { return formatted(GetDateFormatW, GetDateFormatA, DATE_SHORTDATE); }

    std::string dayOf(std::uint64_t lastWrite) override {
        const FILETIME time{static_cast<DWORD>(lastWrite), static_cast<DWORD>(lastWrite >> 32)};
        FILETIME local;
        SYSTEMTIME day;
        if (!FileTimeToLocalFileTime(&time, &local) || !FileTimeToSystemTime(&local, &day)) {
            return {};
        }
        return formatted(GetDateFormatW, GetDateFormatA, DATE_SHORTDATE, &day);
    }

    std::string timeText() override { return formatted(GetTimeFormatW, GetTimeFormatA, 0); }

    double secondsSinceMidnight() override {
        SYSTEMTIME now;
        GetLocalTime(&now);
        const int seconds = (now.wHour * 60 + now.wMinute) * 60 + now.wSecond;
        return seconds + now.wMilliseconds / 1000.0;
    }
};

} // namespace

std::unique_ptr<Clock> makeClock() {
    return std::make_unique<Win32Clock>();
}

} // namespace tarvelon
