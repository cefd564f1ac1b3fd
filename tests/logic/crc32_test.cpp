#include "hash/crc32.h"
#include "hash/crc32_kernels.h"
#include "tests/support/bitwise_crc32.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace tarvelon {

namespace {

class EveryCrc32Kernel : public testing::TestWithParam<Crc32Kernel> {};

// The bytes end where their memory ends, so that a sanitizer sees a read behind them.
TEST_P(EveryCrc32Kernel, AgreesWithTheDefinitionAtEveryLengthAndOffset) {
    const auto& [name, runsHere, update] = GetParam();
    if (!runsHere()) {
        GTEST_SKIP() << "this processor lacks what " << name << " needs";
    }
    std::mt19937 random(20260101);
    for (std::size_t length = 0; length <= 20'000; length += length < 600 ? 1 : 4'850) {
        for (std::size_t offset = 0; offset <= 16; ++offset) {
            std::vector<unsigned char> memory(offset + length);
            std::ranges::generate(memory, [&] { return static_cast<unsigned char>(random()); });
            const auto bytes = std::span(memory).subspan(offset);
            const std::uint32_t start = offset % 2 == 0 ? crc32Start : static_cast<std::uint32_t>(random());
            ASSERT_EQ(update(start, bytes), bitByBit(start, bytes)) << length << " bytes from " << offset;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Crc32, EveryCrc32Kernel, testing::ValuesIn(crc32Kernels),
                         [](const auto& kernel) { return std::string(kernel.param.name); });

} // namespace
} // namespace tarvelon
