#include "hash/checksum.h"

#include "core/failure.h"
#include "core/globals.h"
#include "hash/crc.h"
#include "hash/digest.h"
#include "platform/sim/workstation.h"
#include "tests/support/bitwise_crc32.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>

namespace tarvelon {
namespace {

using testing::ElementsAre;
using Rows = std::vector<std::string>;

constexpr const char* file = "C:\\file.bin";
const std::optional<std::int32_t> crc32OfNine = static_cast<std::int32_t>(0xCBF43926);

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
    std::string checksumOf(const std::string& bytes) {
        machine.files.put(file, bytes);
        return checksum.getChecksum(file);
    }
    std::string digestOf(const std::string& bytes, std::int32_t index, int format) {
        machine.files.put(file, bytes);
        hash.HashAlgorithm(index);
        hash.CreateHash();
        hash.CalculateFile3(file, "label");
        const std::string text = hash.GetDigestedData(format);
        hash.DestroyHash();
        return text;
    }

    SimWorkstation machine;
    Globals globals;
    Checksum checksum{globals.settings, globals, machine.platform()};
    FileReader reader{machine.platform(), globals.settings};
    clsCRC crc{reader};
    clsHash hash{machine.platform(), reader, globals.digest.provider};
};

TEST_F(Hashing, ReadsByBuffersAndLooksForInputOnlyBetweenThem) {
    for (const int buffer : {1, 16, 1000}) {
        for (const int length : {buffer, 2 * buffer - 1, 2 * buffer, 2 * buffer + 1}) {
            const int buffers = (length + buffer - 1) / buffer;
            const int reads = machine.faults.calls(Operation::ReadFile);
            const int looks = machine.messages.queueStatusCalls();
            globals.settings.readBuffer = buffer;
            EXPECT_EQ(checksumOf(bytesOf(length)), crcText(bytesOf(length))) << length << " by " << buffer;
            EXPECT_EQ(machine.faults.calls(Operation::ReadFile) - reads, buffers);
            EXPECT_EQ(machine.messages.queueStatusCalls() - looks, buffers - 1);
        }
    }
    EXPECT_EQ(machine.messages.pumps(), 0) << "nothing waited";
    globals.settings.readBuffer = 0;
    EXPECT_EQ(checksumOf(bytesOf(65537)), crcText(bytesOf(65537)));
    EXPECT_EQ(globals.settings.readBuffer, 65536) << "a buffer of nothing is replaced for good";
}

TEST_F(Hashing, GivesNoValueAfterAnErrorAndHoldsTheFileUntilTheEnd) {
    const std::ptrdiff_t openBefore = openFiles();
    {
        Checksum ended(globals.settings, globals, machine.platform());
        globals.settings.readBuffer = 4;
        machine.files.put(file, "123456789");
        machine.faults.failNth(Operation::ReadFile, 2);
        EXPECT_EQ(ended.getChecksum(file), "0");
        globals.settings.algoName = "MD5";
        for (const Operation fault : {Operation::ReadFile, Operation::HashData, Operation::GetHashParam}) {
            machine.faults.failNth(fault, 1);
            EXPECT_EQ(ended.getChecksum(file), "");
        }
        EXPECT_EQ(machine.crypto.openHashes(), 0u);
        globals.settings.algoName = "";
        machine.faults.failNth(Operation::LengthOfOpenFile, 1);
        EXPECT_EQ(ended.getChecksum(file), "0");
        globals.settings.readBuffer = -1;
        EXPECT_EQ(ended.getChecksum(file), "0");
        globals.settings.readBuffer = 4;
        EXPECT_EQ(ended.getChecksum(file), "CBF43926") << "the next file is not concerned";
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
    EXPECT_EQ(machine.messages.pumps(), 1);

    globals.settings.algoName = "CRC32";
    machine.messages.atQueueStatus(1, [&] { machine.files.put(file, bytes.substr(0, 50)); });
    EXPECT_EQ(checksumOf(bytes), crcText(bytes.substr(0, 50) + std::string(950, '\0')));
    EXPECT_TRUE(machine.messages.scriptDone());
}

TEST_F(Hashing, TrimsTheAlgorithmsNameForTheDataFileButNotForTheChecksum) {
    struct Algorithm {
        const char* name;
        std::string ending, checksumOfNine;
    };
    globals.app.appPath = "C:\\Tarvelon\\";
    for (const auto& [name, ending, text] :
         {Algorithm{"crc32", ".dat", "CBF43926"},
          {"", ".dat", "CBF43926"},
          {" crc32 ", ".dat", ""},
          {"MD4", "-md4.dat", "4222935120931217577471818719332222492"},
          {"md5", "-md5.dat", "3724923114850596956133245243127987711"},
          {" MD5", "-md5.dat", ""},
          {"Sha1", "-sha1.dat", "24719518829128142411542223103153101204195761671745265"},
          {"sha-1", "-sha-1.dat", ""}}) {
        globals.settings.algoName = name;
        checksum.setDatName();
        EXPECT_EQ(globals.app.intFile, "C:\\Tarvelon\\Data\\Integrity" + ending) << name;
        EXPECT_EQ(checksum.getCustomDat(7), "C:\\Tarvelon\\Data\\7" + ending) << name;
        EXPECT_EQ(checksumOf("123456789"), text) << name;
        const std::string nothing = text == "CBF43926" ? "0" : "";
        EXPECT_EQ(checksumOf(""), nothing) << name;
        EXPECT_EQ(checksum.getChecksum("C:\\missing.bin"), nothing) << name;
    }
    globals.settings.algoName = "CRC32";
    EXPECT_EQ(checksumOf("665"), "81566") << "no leading zeros";
    const auto asks = [](const std::string& call) { return call.starts_with("CryptAcquireContext"); };
    EXPECT_EQ(std::ranges::count_if(machine.crypto.log(), asks), 2) << "once per process, old and new keys";
}

TEST_F(Hashing, ACrcCarriesItsStateUntilItIsClearedOrOfAnotherKind) {
    EXPECT_EQ(crc.CalculateString(""), std::nullopt);
    const std::int32_t half = crc.CalculateString("1234").value();
    EXPECT_EQ(crc.AddString("56789"), crc32OfNine);
    crc.Value(~half);
    EXPECT_EQ(crc.AddString("56789"), crc32OfNine) << "a set value is the bare state";
    machine.files.put(file, "123456789");
    EXPECT_EQ(crc.CalculateFile2(file, "label"), crc32OfNine);
    EXPECT_EQ(crc.CalculateFile2("C:\\missing.bin", ""), std::nullopt);
    crc.Algorithm(0);
    EXPECT_EQ(crc.CalculateString("123456789"), 0x31C3);
    crc.Algorithm(1);
    EXPECT_EQ(crc.CalculateString("123456789"), crc32OfNine);
    crc.Algorithm(0);
    EXPECT_EQ(crc.Value(), 0);
    crc.Value(0x12345678);
    EXPECT_EQ(crc.Value(), 0x5678);
}

TEST_F(Hashing, GivesThePublishedDigestsInThreeForms) {
    globals.settings.readBuffer = 2;
    EXPECT_EQ(digestOf("abc", 0, 0), "A4\t48\t01\t7A\tAF\t21\tD8\t52\t5F\tC1\t0A\tE8\t7A\tA6\t72\t9D\t");
    EXPECT_EQ(digestOf("610", 1, 1), "0172142211180501232217818723520343161100");
    EXPECT_EQ(digestOf("abc", 1, 2), "\x90\x01\x50\x98\x3C\xD2\x4F\xB0\xD6\x96\x3F\x7D\x28\xE1\x7F\x72");
    EXPECT_EQ(digestOf("abc", 1, 3), "");
    EXPECT_EQ(hash.GetDigestedData(1), "") << "the digest goes with the hash";
    EXPECT_EQ(digestOf("610", 3, 1), digestOf("610", 1, 1)) << "the last index keeps the algorithm";
    hash.HashAlgorithm(-1);
    EXPECT_EQ(digestOf("610", 4, 1), digestOf("610", 1, 1)) << "others are none";

    hash.CreateHash();
    hash.CreateHash();
    EXPECT_EQ(machine.crypto.openHashes(), 1u);
    hash.CalculateFile3(file, "");
    machine.faults.failNth(Operation::DestroyHash, 1);
    EXPECT_THROW(hash.DestroyHash(), Failure);
    EXPECT_NE(hash.GetDigestedData(1), "") << "kept for the next attempt";
    const int calls = machine.faults.calls(Operation::DestroyHash);
    hash.DestroyHash();
    hash.DestroyHash(); // Nothing is left to destroy.
    EXPECT_EQ(machine.faults.calls(Operation::DestroyHash), calls + 1);
}

TEST_F(Hashing, TellsTheUserPerFileThatThereIsNoServiceAndGoesOn) {
    machine.crypto.providers.clear();
    globals.settings.algoName = "MD4";
    for (int i = 0; i < 2; ++i) {
        machine.dialogs.expect({"Unable to get a handle to key containers...\r\n"
                                "Check your registry for the following names:\r\n"
                                "Microsoft Base Cryptographic Provider v1.0\r\n"
                                "Microsoft Enhanced Cryptographic Provider v1.0\r\n"
                                "Without them, EzCryptoApi won't work.",
                                Answer::Ok, "Fatal Error [EzCryptoApi]", Buttons::Ok, Icon::Stop});
        EXPECT_EQ(checksumOf("abc"), "");
    }
    EXPECT_EQ(machine.dialogs.problems(), "");
    const Rows& log = machine.crypto.log();
    EXPECT_THAT(
        Rows(log.begin() + 8, log.end()),
        ElementsAre("CryptAcquireContextA \"\" \"Microsoft Enhanced Cryptographic Provider v1.0\" 1 0",
                    "CryptAcquireContextA \"\" \"Microsoft Enhanced Cryptographic Provider v1.0\" 1 8",
                    "CryptAcquireContextA \"\" \"Microsoft Base Cryptographic Provider v1.0\" 1 0",
                    "CryptAcquireContextA \"\" \"Microsoft Base Cryptographic Provider v1.0\" 1 8",
                    "CryptCreateHash 32770", "CryptHashData 3", "CryptGetHashParam 2", "CryptDestroyHash"));
}

} // namespace
} // namespace tarvelon
