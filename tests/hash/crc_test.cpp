#include "hash/crc.h"

#include "core/globals.h"
#include "hash/file_reader.h"
#include "platform/sim/workstation.h"

#include <gtest/gtest.h>

namespace tarvelon {
namespace {

class CrcTest : public testing::Test {
protected:
    SimWorkstation machine;
    Settings settings;
    FileReader reader{machine.platform(), settings};
    clsCRC crc{reader};
};

TEST_F(CrcTest, StartsAsAClearedCrc32AndCarriesItsStateOn) {
    EXPECT_EQ(crc.Algorithm(), -1);
    EXPECT_EQ(crc.Value(), 0);
    EXPECT_EQ(crc.CalculateString(""), std::nullopt);
    EXPECT_EQ(crc.CalculateString("1234"), static_cast<std::int32_t>(0x9BE3E0A3));
    EXPECT_EQ(crc.AddBytes({}), std::nullopt);
    EXPECT_EQ(crc.AddString("56789"), static_cast<std::int32_t>(0xCBF43926)) << "nothing is cleared between";
    EXPECT_LT(crc.Value(), 0) << "the value is signed";
    crc.Clear();
    EXPECT_EQ(crc.Value(), 0);
}

TEST_F(CrcTest, ChoosesTheKindAndClearsBoth) {
    crc.AddString("left over");
    crc.Algorithm(0);
    EXPECT_EQ(crc.Algorithm(), 0);
    EXPECT_EQ(crc.Value(), 0);
    EXPECT_EQ(crc.CalculateString("123456789"), 0x31C3);
    crc.Algorithm(1);
    EXPECT_EQ(crc.Algorithm(), -1);
    EXPECT_EQ(crc.CalculateString("123456789"), static_cast<std::int32_t>(0xCBF43926));
    crc.Algorithm(0);
    EXPECT_EQ(crc.Value(), 0);
}

TEST_F(CrcTest, TakesASetValueAsTheBareState) {
    crc.AddString("1234");
    const std::int32_t half = crc.Value();
    crc.Clear();
    crc.Value(half);
    EXPECT_EQ(crc.Value(), ~half);
    crc.Value(~half);
    EXPECT_EQ(crc.AddString("56789"), static_cast<std::int32_t>(0xCBF43926));

    crc.Algorithm(0);
    crc.Value(0x12345678);
    EXPECT_EQ(crc.Value(), 0x5678);
}

TEST_F(CrcTest, ClearsBeforeAFileAndKeepsTheKind) {
    machine.files.put("C:\\nine.bin", "123456789");
    settings.readBuffer = 4;
    crc.AddString("left over");
    EXPECT_EQ(crc.CalculateFile2("C:\\nine.bin", "label"), static_cast<std::int32_t>(0xCBF43926));
    crc.Algorithm(0);
    EXPECT_EQ(crc.CalculateFile2("C:\\nine.bin", ""), 0x31C3);
    EXPECT_EQ(crc.CalculateFile2("C:\\missing.bin", ""), std::nullopt);
}

} // namespace
} // namespace tarvelon
