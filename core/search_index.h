#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvelon {

/// A text that does not change, for being searched thousands of times: gives exactly what `std::string::find`
/// would give, but looks only at the places of those eight characters of the searched text that are rarest.
class SearchIndex {
public:
    explicit SearchIndex(std::string text);

    const std::string& text() const { return text_; }

    /// Where `searched` stands first, or `npos`.
    std::size_t find(std::string_view searched) const;

private:
    static constexpr std::size_t gram = 8;
    static constexpr std::uint32_t none = 0xffffffff;

    std::size_t chainOf(const char* characters) const;

    std::string text_;
    int shift_ = 0;                    ///< Leaves as many bits of a hash as there are chains.
    std::vector<std::uint32_t> first_; ///< The first place of each chain.
    std::vector<std::uint32_t> sizes_; ///< How many places each chain has.
    std::vector<std::uint32_t> next_;  ///< For each place, the next one of its chain.
};

} // namespace tarvelon
