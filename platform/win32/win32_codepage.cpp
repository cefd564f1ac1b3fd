#include "platform/win32/win32_codepage.h"

#include "platform/win32/windows_api.h"

namespace tarvelon {

unsigned char Win32CodePage::upper(unsigned char character) {
    char text = static_cast<char>(character);
    CharUpperBuffA(&text, 1);
    return static_cast<unsigned char>(text);
}

unsigned char Win32CodePage::lower(unsigned char character) {
    char text = static_cast<char>(character);
    CharLowerBuffA(&text, 1);
    return static_cast<unsigned char>(text);
}

} // namespace tarvelon
