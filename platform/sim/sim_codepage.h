#pragma once

#include "platform/codepage.h"

#include <string>

namespace tarvelon {

/// One of three code pages.
class SimCodePage : public CodePage {
public:
    enum class Page {
        Western,  ///< 1252, one byte each.
        Japanese, ///< 932, one byte or two; of its characters those that tests need.
        Utf8,
    };

    explicit SimCodePage(Page page = Page::Western)
        : page_(page) {}

    void use(Page page) { page_ = page; }

    Kind kind() override;
    bool isLead(unsigned char byte) override;
    std::optional<std::u16string> toUtf16(std::string_view text) override;
    std::optional<std::string> fromUtf16(std::u16string_view text) override;
    std::u16string capitals(std::u16string units) override;

    /// To UTF-8 and back. Bytes that mean nothing stay as they are, and what the page lacks is empty.
    std::string toUtf8(std::string_view text);
    std::optional<std::string> fromUtf8(std::string_view text);
    /// From UTF-8, with a "?" for each character that the page lacks.
    std::string shown(std::string_view text);

private:
    Page page_;
};

/// Of a text in UTF-8, as names are compared.
std::string utf8Capitals(const std::string& text);

} // namespace tarvelon
