#pragma once

#include "platform/codepage.h"

namespace tarvelon {

class Win32CodePage : public CodePage {
public:
    unsigned char upper(unsigned char character) override;
    unsigned char lower(unsigned char character) override;
};

} // namespace tarvelon
