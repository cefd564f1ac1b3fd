#include "platform/win32/parts.h"

#include "platform/win32/windows_api.h"

namespace tarvelon {

namespace {

constexpr int longestText = 256;

class Win32Clock : public Clock {
public:
    std::string dateText() override {
        char text[longestText] = "";
        GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, text, longestText);
        return text;
    }

    std::string timeText() override {
        char text[longestText] = "";
        GetTimeFormatA(LOCALE_USER_DEFAULT, 0, nullptr, nullptr, text, longestText);
        return text;
    }

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
