#include "hash/checksum.h"

#include "core/failure.h"
#include "core/globals.h"
#include "hash/crc.h"
#include "hash/digest.h"
#include "platform/sim/workstation.h"
#include "tests/support/bitwise_crc32.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>

namespace tarvelon {
namespace {

constexpr const char* file = "C:\\file.bin";
constexpr std::int32_t crc32OfNine = static_cast<std::int32_t>(0xCBF43926);

/// Files that this process holds open.
std::ptrdiff_t openFiles() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

std::string bytesOf(int length) {
    std::string bytes(static_cast<std::size_t>(length), '\0');
    std::ranges::generate(bytes, [random = std::mt19937()]() mutable { return static_cast<char>(random()); });
    return bytes;
}

class Hashing : public testing::Test {
protected:
    std::string checksumOf(const std::string& bytes, const std::string& algorithm = "") {
        machine.files.put(file, bytes);
        globals.settings.algoName = algorithm;
        return checksum.getChecksum(file);
    }
    std::string digestOf(const std::string& bytes, std::int32_t index, int format) {
        machine.files.put(file, bytes);
        hash.HashAlgorithm(index);
        hash.CreateHash();
        hash.CalculateFile3(file, "label");
        return hash.GetDigestedData(format);
    }

    SimWorkstation machine;
    Globals globals;
    Checksum checksum{globals.settings, globals, machine.platform()};
    FileReader reader{machine.platform(), globals.settings};
    clsCRC crc{reader};
    clsHash hash{machine.platform(), reader, globals.digest.provider};
};

TEST_F(Hashing, GivesNoValueAfterAnErrorAndHoldsTheFileUntilTheEnd) {
    const std::ptrdiff_t openBefore = openFiles();
    {
        Checksum ended(globals.settings, globals, machine.platform());
        machine.files.put(file, "123456789");
        globals.settings.readBuffer = -1;
        EXPECT_EQ(ended.getChecksum(file), "0");
        globals.settings.readBuffer = 0;
        EXPECT_EQ(ended.getChecksum(file), "CBF43926");
        EXPECT_EQ(globals.settings.readBuffer, 65536) << "for good";
        EXPECT_EQ(machine.faults.calls(Operation::ReadFile), 1);
        globals.settings.readBuffer = 4;
        machine.faults.failNth(Operation::ReadFile, 2);
        EXPECT_EQ(ended.getChecksum(file), "0");
        machine.faults.failNth(Operation::LengthOfOpenFile, 1);
        EXPECT_EQ(ended.getChecksum(file), "0");
        EXPECT_EQ(ended.getChecksum(file), "CBF43926") << "the next file is not concerned";
        globals.settings.algoName = "MD5";
        for (const Operation fault : {Operation::ReadFile, Operation::HashData, Operation::GetHashParam}) {
            machine.faults.failNth(fault, 1);
            EXPECT_EQ(ended.getChecksum(file), "");
        }
        EXPECT_EQ(openFiles(), openBefore + 4);
    }
    EXPECT_EQ(openFiles(), openBefore);
}

// The user may click anything: start another comparison with other buffers, or change the file itself.
TEST_F(Hashing, StaysRightWhenInputChangesThingsBetweenBuffers) {
    globals.settings.readBuffer = 100;
    const std::string bytes = bytesOf(1000);
    std::string otherText;
    machine.files.put("C:\\other.bin", bytesOf(5000));
    machine.messages.atQueueStatus(3, [&] {
        globals.settings.readBuffer = 37;
        otherText = checksum.getChecksum("C:\\other.bin");
        globals.settings.algoName = "MD5";
    });
    EXPECT_EQ(checksumOf(bytes), crcText(bytes));
    EXPECT_EQ(otherText, crcText(bytesOf(5000)));
    machine.messages.atQueueStatus(1, [&] { machine.files.put(file, bytes.substr(0, 50)); });
    EXPECT_EQ(checksumOf(bytes), crcText(bytes.substr(0, 50) + std::string(950, '\0')));
    EXPECT_EQ(machine.messages.pumps(), 2);
}

TEST_F(Hashing, TrimsTheAlgorithmsNameForTheDataFileButNotForTheChecksum) {
    globals.app.appPath = "C:\\Tarvelon\\";
    for (const auto& [name, ending, text] :
         {std::tuple<std::string, std::string, std::string>{"crc32", ".dat", "CBF43926"},
          {"", ".dat", "CBF43926"},
          {"MD4", "-md4.dat", "4222935120931217577471818719332222492"},
          {" MD5", "-md5.dat", ""},
          {"md5", "-md5.dat", "3724923114850596956133245243127987711"},
          {"Sha1", "-sha1.dat", "24719518829128142411542223103153101204195761671745265"}}) {
        EXPECT_EQ(checksumOf("123456789", name), text) << name;
        checksum.setDatName();
        EXPECT_EQ(globals.app.intFile, "C:\\Tarvelon\\Data\\Integrity" + ending) << name;
        EXPECT_EQ(checksum.getCustomDat(7), "C:\\Tarvelon\\Data\\7" + ending) << name;
        EXPECT_EQ(checksumOf("", name), text == "CBF43926" ? "0" : "") << name;
    }
    EXPECT_EQ(checksum.getChecksum("C:\\missing.bin"), "");
    EXPECT_EQ(checksumOf("665"), "81566") << "no leading zeros";
    const auto asks = [](const std::string& call) { return call.starts_with("CryptAcquireContext"); };
    EXPECT_EQ(std::ranges::count_if(machine.crypto.log(), asks), 2) << "once per process, old and new keys";
}

TEST_F(Hashing, ACrcCarriesItsStateUntilItIsClearedOrOfAnotherKind) {
    EXPECT_EQ(crc.CalculateString(""), std::nullopt);
    crc.Value(~crc.CalculateString("1234").value());
    EXPECT_EQ(crc.AddString("56789"), crc32OfNine) << "a set value is the bare state";
    machine.files.put(file, "123456789");
    EXPECT_EQ(crc.CalculateFile2(file, "label"), crc32OfNine);
    crc.Algorithm(0);
    crc.Value(0x12340000);
    EXPECT_EQ(crc.CalculateString("123456789"), 0x31C3) << "only sixteen bits count";
    crc.Algorithm(1);
    EXPECT_EQ(crc.CalculateString("123456789"), crc32OfNine);
}

TEST_F(Hashing, GivesThePublishedDigestsInThreeForms) {
    EXPECT_EQ(digestOf("abc", 0, 0), "A4\t48\t01\t7A\tAF\t21\tD8\t52\t5F\tC1\t0A\tE8\t7A\tA6\t72\t9D\t");
    EXPECT_EQ(digestOf("abc", 1, 2), "\x90\x01\x50\x98\x3C\xD2\x4F\xB0\xD6\x96\x3F\x7D\x28\xE1\x7F\x72");
    for (const std::int32_t index : {1, 3, 4, -1}) { // Others than the first three keep the algorithm.
        EXPECT_EQ(digestOf("610", index, 1), "0172142211180501232217818723520343161100");
    }
    EXPECT_EQ(machine.crypto.openHashes(), 1u) << "the one before goes when another is made";
    machine.faults.failNth(Operation::DestroyHash, 1);
    EXPECT_THROW(hash.DestroyHash(), Failure);
    EXPECT_NE(hash.GetDigestedData(1), "") << "kept for the next attempt";
    hash.DestroyHash();
    EXPECT_EQ(hash.GetDigestedData(1), "");
}

TEST_F(Hashing, TellsTheUserPerFileThatThereIsNoServiceAndGoesOn) {
    machine.crypto.providers.clear();
    machine.dialogs.answerer = [](const MessageBox&) { return Answer::Ok; };
    EXPECT_EQ(checksumOf("abc", "MD4") + checksumOf("abc", "MD4"), "");
    EXPECT_EQ(machine.dialogs.shown().size(), 2u);
    EXPECT_EQ(machine.dialogs.shown()[1].title, "Fatal Error [EzCryptoApi]");
    EXPECT_TRUE(machine.dialogs.shown()[1].text.starts_with("Unable to get a handle to key containers..."));
}

} // namespace
} // namespace tarvelon
