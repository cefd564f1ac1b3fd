#pragma once

#include <cstddef>
#include <vector>

namespace tarvelon {

/// A list of sizes that grows at its end. Adding one, changing one, and the sum of the first few of them take
/// logarithmic time (a Fenwick tree).
class PrefixSums {
public:
    std::size_t count() const { return sums_.size() - 1; }
    std::size_t total() const { return before(count()); }

    /// The sum of the sizes in front of number `index`, counted from 0.
    std::size_t before(std::size_t index) const {
        std::size_t sum = 0;
        for (; index > 0; index &= index - 1) {
            sum += sums_[index];
        }
        return sum;
    }

    void append(std::size_t size) {
        const std::size_t place = sums_.size();
        const std::size_t covered = place & (place - 1);
        sums_.push_back(size + before(place - 1) - before(covered));
    }

    /// Arithmetic wraps: the complement of a difference makes a size smaller.
    void add(std::size_t index, std::size_t difference) {
        for (std::size_t place = index + 1; place < sums_.size(); place += place & (~place + 1)) {
            sums_[place] += difference;
        }
    }

private:
    std::vector<std::size_t> sums_{0};
};

} // namespace tarvelon
