#include "platform/win32/win32_clock.h"

#include "platform/win32/windows_api.h"

namespace tarvelon {

namespace {

constexpr int longestText = 256;

} // namespace

std::string Win32Clock::dateText() {
    char text[longestText] = "";
    GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, text, longestText);
    return text;
}

std::string Win32Clock::timeText() {
    char text[longestText] = "";
    GetTimeFormatA(LOCALE_USER_DEFAULT, 0, nullptr, nullptr, text, longestText);
    return text;
}

double Win32Clock::secondsSinceMidnight() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    const int seconds = (now.wHour * 60 + now.wMinute) * 60 + now.wSecond;
    return seconds + now.wMilliseconds / 1000.0;
}

} // namespace tarvelon
