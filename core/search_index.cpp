#include "core/search_index.h"

#include <cstring>
#include <utility>

namespace tarvelon {

SearchIndex::SearchIndex(std::string text)
    : text_(std::move(text)) {
    const std::size_t places = text_.size() < gram ? 0 : text_.size() - gram + 1;
    int bits = 4;
    while (std::size_t{1} << bits < places) {
        ++bits;
    }
    shift_ = 64 - bits;
    first_.assign(std::size_t{1} << bits, none);
    sizes_.assign(first_.size(), 0);
    next_.assign(places, none);
    for (std::size_t place = places; place-- > 0;) {
        const std::size_t chain = chainOf(text_.data() + place);
        std::uint32_t& first = first_[chain];
        ++sizes_[chain];
        next_[place] = first;
        first = static_cast<std::uint32_t>(place);
    }
}

std::size_t SearchIndex::find(std::string_view searched) const {
    if (searched.size() < gram) {
        return text_.find(searched);
    }
    std::size_t lead = searched.size() - gram;
    std::size_t chain = chainOf(searched.data() + lead);
    for (std::size_t other = lead; other-- > 0 && sizes_[chain] > 1;) {
        const std::size_t otherChain = chainOf(searched.data() + other);
        if (sizes_[otherChain] < sizes_[chain]) {
            lead = other;
            chain = otherChain;
        }
    }
    for (std::uint32_t place = first_[chain]; place != none; place = next_[place]) {
        if (place >= lead && text_.compare(place - lead, searched.size(), searched) == 0) {
            return place - lead;
        }
    }
    return std::string::npos;
}

std::size_t SearchIndex::chainOf(const char* characters) const {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, characters, gram);
    return static_cast<std::size_t>((bytes * 0x9E3779B97F4A7C15u) >> shift_); // Fibonacci hashing.
}

} // namespace tarvelon
