#include "hash/checksum.h"

#include "core/globals.h"
#include "platform/sim/workstation.h"
#include "tests/support/bitwise_crc32.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>

namespace tarvelon {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

constexpr const char* file = "C:\\file.bin";

std::string patternOf(std::size_t length) {
    std::string bytes(length, '\0');
    std::generate(bytes.begin(), bytes.end(), [value = 1U]() mutable {
        value = value * 1103515245 + 12345;
        return static_cast<char>(value >> 16);
    });
    return bytes;
}

/// Files that this process holds open.
std::ptrdiff_t openFiles() {
    const std::filesystem::directory_iterator descriptors("/proc/self/fd");
    return std::distance(begin(descriptors), end(descriptors));
}

class ChecksumTest : public testing::Test {
protected:
    std::string checksumOf(const std::string& bytes) {
        machine.files.put(file, bytes);
        return checksum.getChecksum(file);
    }

    SimWorkstation machine;
    Globals globals;
    Checksum checksum{globals.settings, globals, machine.platform()};
};

TEST_F(ChecksumTest, ReadsByBuffersAndLooksForInputOnlyBetweenThem) {
    const std::ptrdiff_t openBefore = openFiles();
    for (const std::int32_t buffer : {1, 16, 1000}) {
        globals.settings.readBuffer = buffer;
        const auto size = static_cast<std::size_t>(buffer);
        for (const std::size_t length :
             {size - 1, size, size + 1, 2 * size - 1, 2 * size, 2 * size + 1, 5 * size}) {
            if (length == 0) {
                continue;
            }
            const std::string bytes = patternOf(length);
            const auto buffers = static_cast<int>((length + size - 1) / size);
            for (const std::string algorithm : {"CRC32", "SHA1"}) {
                globals.settings.algoName = algorithm;
                const int reads = machine.faults.calls(Operation::ReadFile);
                const int looks = machine.messages.queueStatusCalls();
                const std::string text = checksumOf(bytes);
                EXPECT_EQ(machine.faults.calls(Operation::ReadFile) - reads, buffers) << length;
                EXPECT_EQ(machine.messages.queueStatusCalls() - looks, buffers - 1) << length;
                if (algorithm == "CRC32") {
                    EXPECT_EQ(text, crcText(bytes)) << length << " by " << buffer;
                }
            }
        }
    }
    EXPECT_EQ(machine.messages.pumps(), 0) << "nothing waited";
    EXPECT_EQ(openFiles(), openBefore);
}

TEST_F(ChecksumTest, GivesNoValueForEmptyAndMissingFiles) {
    for (const auto& [algorithm, nothing] :
         {std::pair("CRC32", "0"), std::pair("MD4", ""), std::pair("MD5", ""), std::pair("SHA1", "")}) {
        globals.settings.algoName = algorithm;
        EXPECT_EQ(checksumOf(""), nothing) << algorithm;
        EXPECT_EQ(checksum.getChecksum("C:\\missing.bin"), nothing) << algorithm;
        EXPECT_EQ(checksum.getChecksum("C:\\"), nothing) << algorithm;
        machine.files.lock(file);
        EXPECT_EQ(checksumOf("locked"), nothing) << algorithm;
        machine.files.unlock(file);
    }
    EXPECT_THAT(machine.crypto.log(), Not(Contains(HasSubstr("CryptGetHashParam"))));
}

TEST_F(ChecksumTest, WritesHexadecimalWithoutLeadingZeros) {
    EXPECT_EQ(checksumOf("123456789"), "CBF43926");
    EXPECT_EQ(checksumOf("682"), "EFAD4B");
    EXPECT_EQ(checksumOf("665"), "81566");
    EXPECT_EQ(checksumOf("\xFF\xFF\xFF\xFF"), "FFFFFFFF");
}

TEST_F(ChecksumTest, ReplacesABufferOfNothingForGood) {
    globals.settings.readBuffer = 0;
    const std::string bytes = patternOf(65537);
    EXPECT_EQ(checksumOf(bytes), crcText(bytes));
    EXPECT_EQ(globals.settings.readBuffer, 65536);
    EXPECT_EQ(machine.faults.calls(Operation::ReadFile), 2);
}

TEST_F(ChecksumTest, GivesNoValueAfterAnErrorAndHoldsTheFileUntilTheEnd) {
    const std::ptrdiff_t openBefore = openFiles();
    {
        Checksum ended(globals.settings, globals, machine.platform());
        globals.settings.readBuffer = 4;
        machine.files.put(file, "123456789");
        machine.faults.failNth(Operation::ReadFile, 2);
        EXPECT_EQ(ended.getChecksum(file), "0");
        EXPECT_EQ(openFiles(), openBefore + 1);

        globals.settings.algoName = "MD5";
        machine.faults.failNth(Operation::ReadFile, 3);
        EXPECT_EQ(ended.getChecksum(file), "");
        EXPECT_THAT(machine.crypto.log(), Not(Contains(HasSubstr("CryptGetHashParam"))));
        EXPECT_EQ(machine.crypto.openHashes(), 0u);

        globals.settings.algoName = "";
        machine.faults.failNth(Operation::LengthOfOpenFile, 1);
        EXPECT_EQ(ended.getChecksum(file), "0");
        globals.settings.readBuffer = -1;
        EXPECT_EQ(ended.getChecksum(file), "0");
        EXPECT_EQ(globals.settings.readBuffer, -1);
        EXPECT_EQ(openFiles(), openBefore + 4);

        globals.settings.readBuffer = 4;
        EXPECT_EQ(ended.getChecksum(file), "CBF43926") << "the next file is not concerned";
        EXPECT_EQ(openFiles(), openBefore + 4);
    }
    EXPECT_EQ(openFiles(), openBefore);
}

// The user may click anything: start another comparison with other buffers, or change the file itself.
TEST_F(ChecksumTest, StaysRightWhenInputChangesThingsBetweenBuffers) {
    globals.settings.readBuffer = 100;
    const std::string bytes = patternOf(1000);
    const std::string other = patternOf(5000);
    machine.files.put("C:\\other.bin", other);
    std::string otherText;
    machine.messages.atQueueStatus(3, [&] {
        globals.settings.readBuffer = 37;
        otherText = checksum.getChecksum("C:\\other.bin");
        globals.settings.algoName = "MD5";
    });
    EXPECT_EQ(checksumOf(bytes), crcText(bytes));
    EXPECT_EQ(otherText, crcText(other));
    EXPECT_EQ(machine.messages.pumps(), 1);

    globals.settings.algoName = "CRC32";
    machine.messages.atQueueStatus(1, [&] { machine.files.put(file, bytes.substr(0, 50)); });
    EXPECT_EQ(checksumOf(bytes),
              crcText(bytes.substr(0, 37) + bytes.substr(37, 13) + std::string(950, '\0')));
    EXPECT_TRUE(machine.messages.scriptDone());
}

TEST_F(ChecksumTest, TrimsTheAlgorithmsNameForTheDataFileButNotForTheChecksum) {
    struct Case {
        const char* name;
        const char* system;
        const char* custom;
        const char* checksumOfNine;
    };
    globals.app.appPath = "C:\\Tarvelon\\";
    for (const auto& [name, system, custom, text] : {
             Case{"CRC32", "Integrity.dat", "7.dat", "CBF43926"},
             Case{"crc32", "Integrity.dat", "7.dat", "CBF43926"},
             Case{"", "Integrity.dat", "7.dat", "CBF43926"},
             Case{"  ", "Integrity.dat", "7.dat", "CBF43926"},
             Case{" crc32 ", "Integrity.dat", "7.dat", ""},
             Case{"MD4", "Integrity-md4.dat", "7-md4.dat", "4222935120931217577471818719332222492"},
             Case{"md5", "Integrity-md5.dat", "7-md5.dat", "3724923114850596956133245243127987711"},
             Case{" MD5", "Integrity-md5.dat", "7-md5.dat", ""},
             Case{"Sha1", "Integrity-sha1.dat", "7-sha1.dat",
                  "24719518829128142411542223103153101204195761671745265"},
             Case{"sha-1", "Integrity-sha-1.dat", "7-sha-1.dat", ""},
         }) {
        globals.settings.algoName = name;
        checksum.setDatName();
        EXPECT_EQ(globals.app.intFile, globals.app.appPath + "Data\\" + system) << name;
        EXPECT_EQ(checksum.getCustomDat(7), globals.app.appPath + "Data\\" + custom) << name;
        EXPECT_EQ(checksumOf("123456789"), text) << name;
    }
}

} // namespace
} // namespace tarvelon
