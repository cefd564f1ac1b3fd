#pragma once

#include "platform/codepage.h"

#include <string>

namespace tarvelon {

/// Letter case in code page 1252.
class SimCodePage : public CodePage {
public:
    unsigned char upper(unsigned char character) override;
    unsigned char lower(unsigned char character) override;
    /// A whole text, as names are compared.
    static std::string capitals(std::string text);
};

} // namespace tarvelon
