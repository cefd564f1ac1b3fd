#include "platform/win32/parts.h"

#include "platform/win32/windows_api.h"

namespace tarvelon {

namespace {

class Win32CodePage : public CodePage {
public:
    unsigned char upper(unsigned char character) override {
        char text = static_cast<char>(character);
        CharUpperBuffA(&text, 1);
        return static_cast<unsigned char>(text);
    }

    unsigned char lower(unsigned char character) override {
        char text = static_cast<char>(character);
        CharLowerBuffA(&text, 1);
        return static_cast<unsigned char>(text);
    }
};

} // namespace

std::unique_ptr<CodePage> makeCodePage() {
    return std::make_unique<Win32CodePage>();
}

} // namespace tarvelon
