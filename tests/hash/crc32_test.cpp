#include "hash/crc16.h"
#include "hash/crc32.h"
#include "hash/crc32_kernels.h"
#include "tests/support/bitwise_crc32.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace tarvelon {

void PrintTo(const Crc32Kernel& kernel, std::ostream* out) {
    *out << kernel.name;
}

namespace {

using Bytes = std::vector<unsigned char>;

std::span<const unsigned char> bytesOf(std::string_view text) {
    return {reinterpret_cast<const unsigned char*>(text.data()), text.size()};
}

Bytes randomBytes(std::mt19937& random, std::size_t count) {
    Bytes bytes(count);
    for (unsigned char& byte : bytes) {
        byte = static_cast<unsigned char>(random());
    }
    return bytes;
}

class EveryCrc32Kernel : public testing::TestWithParam<Crc32Kernel> {
protected:
    void SetUp() override {
        if (!GetParam().runsHere()) {
            GTEST_SKIP() << "this processor lacks what " << GetParam().name << " needs";
        }
    }

    std::uint32_t update(std::uint32_t state, std::span<const unsigned char> bytes) {
        return GetParam().update(state, bytes);
    }

    std::mt19937 random{20260101};
};

// The bytes end where their memory ends, so that a sanitizer sees a read behind them.
TEST_P(EveryCrc32Kernel, AgreesWithTheDefinitionAtEveryLengthAndOffset) {
    for (std::size_t length = 0; length <= 600; ++length) {
        for (std::size_t offset = 0; offset <= 16; ++offset) {
            const Bytes memory = randomBytes(random, offset + length);
            const auto bytes = std::span(memory).subspan(offset);
            const std::uint32_t start = offset % 2 == 0 ? crc32Start : static_cast<std::uint32_t>(random());
            ASSERT_EQ(update(start, bytes), bitByBit(start, bytes)) << length << " bytes from " << offset;
        }
    }
}

TEST_P(EveryCrc32Kernel, CarriesTheStateOverAnySplit) {
    const Bytes bytes = randomBytes(random, 20'000);
    const std::uint32_t whole = bitByBit(crc32Start, bytes);
    EXPECT_EQ(update(crc32Start, bytes), whole);
    for (int round = 0; round < 200; ++round) {
        std::uint32_t state = crc32Start;
        const std::size_t longest = std::size_t{1} << (random() % 17);
        for (std::span<const unsigned char> rest = bytes; !rest.empty();) {
            const std::size_t part = std::min<std::size_t>(rest.size(), random() % longest + 1);
            state = update(state, rest.first(part));
            rest = rest.subspan(part);
        }
        ASSERT_EQ(state, whole) << "parts of up to " << longest;
    }
}

// Zeros at either end are where a wrong start or a lost lane would not show in random bytes.
TEST_P(EveryCrc32Kernel, CountsZerosAndSingleBits) {
    Bytes bytes(1024);
    EXPECT_EQ(~update(crc32Start, bytes), 0xEFB5AF2EU);
    EXPECT_EQ(update(0, bytes), 0U);
    for (std::size_t place = 0; place < bytes.size(); ++place) {
        bytes[place] = 0x80;
        ASSERT_EQ(update(0, bytes), bitByBit(0, bytes)) << place;
        bytes[place] = 0;
    }
}

INSTANTIATE_TEST_SUITE_P(Crc32, EveryCrc32Kernel, testing::ValuesIn(crc32Kernels),
                         [](const auto& kernel) { return std::string(kernel.param.name); });

TEST(Crc, GivesThePublishedCheckValues) {
    EXPECT_EQ(~updateCrc32(crc32Start, bytesOf("123456789")), 0xCBF43926U);
    EXPECT_EQ(updateCrc16(0, bytesOf("123456789")), 0x31C3U);
    EXPECT_EQ(updateCrc16(updateCrc16(0, bytesOf("1234")), bytesOf("56789")), 0x31C3U);
    EXPECT_EQ(updateCrc16(0xABCD0000, bytesOf("123456789")), 0x31C3U) << "only sixteen bits count";
}

} // namespace

} // namespace tarvelon
