#pragma once

#include "platform/codepage.h"

namespace tarvelon {

/// Letter case in code page 1252.
class SimCodePage : public CodePage {
public:
    unsigned char upper(unsigned char character) override;
    unsigned char lower(unsigned char character) override;
};

} // namespace tarvelon
