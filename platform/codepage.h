#pragma once

namespace tarvelon {

/// Letter case in the system's 8-bit code page, one byte at a time.
class CodePage {
public:
    virtual ~CodePage() = default;
    virtual unsigned char upper(unsigned char character) = 0;
    virtual unsigned char lower(unsigned char character) = 0;
};

} // namespace tarvelon
