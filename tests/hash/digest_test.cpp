#include "hash/digest.h"

#include "core/failure.h"
#include "core/globals.h"
#include "hash/checksum.h"
#include "hash/file_reader.h"
#include "platform/sim/workstation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvelon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DigestTest : public testing::Test {
protected:
    DigestTest() { machine.files.put("C:\\abc.bin", "abc"); }

    std::string digest(std::int32_t index, int format, const std::string& path = "C:\\abc.bin") {
        hash.HashAlgorithm(index);
        hash.CreateHash();
        hash.CalculateFile3(path, path);
        const std::string text = hash.GetDigestedData(format);
        hash.DestroyHash();
        return text;
    }

    SimWorkstation machine;
    Globals globals;
    FileReader reader{machine.platform(), globals.settings};
    clsHash hash{machine.platform(), reader, globals.digest.provider};
};

TEST_F(DigestTest, GivesThePublishedDigestsInThreeForms) {
    globals.settings.readBuffer = 2;
    EXPECT_EQ(digest(0, 0), "A4\t48\t01\t7A\tAF\t21\tD8\t52\t5F\tC1\t0A\tE8\t7A\tA6\t72\t9D\t");
    EXPECT_EQ(digest(1, 0), "90\t01\t50\t98\t3C\tD2\t4F\tB0\tD6\t96\t3F\t7D\t28\tE1\t7F\t72\t");
    EXPECT_EQ(digest(2, 0),
              "A9\t99\t3E\t36\t47\t06\t81\t6A\tBA\t3E\t25\t71\t78\t50\tC2\t6C\t9C\tD0\tD8\t9D\t");
    EXPECT_EQ(digest(1, 1), "14418015260210791762141506312540225127114");
    EXPECT_EQ(digest(1, 2), "\x90\x01\x50\x98\x3C\xD2\x4F\xB0\xD6\x96\x3F\x7D\x28\xE1\x7F\x72");
    EXPECT_EQ(digest(1, 3), "");
    EXPECT_EQ(hash.GetDigestedData(1), "") << "the digest goes with the hash";
}

TEST_F(DigestTest, WritesAZeroByteAsOneDigit) {
    machine.files.put("C:\\610.bin", "610");
    EXPECT_EQ(digest(1, 0, "C:\\610.bin"),
              "00\tAC\t8E\tD3\tB4\t32\t7B\tDD\t4E\tBB\tEB\tCB\t2B\tA1\t0A\t00\t");
    EXPECT_EQ(digest(1, 1, "C:\\610.bin"), "0172142211180501232217818723520343161100");
}

TEST_F(DigestTest, IgnoresAnIndexOutOfRangeAndKeepsTheAlgorithmForNone) {
    hash.HashAlgorithm(1);
    hash.HashAlgorithm(-1);
    hash.HashAlgorithm(4);
    EXPECT_EQ(hash.HashAlgorithm(), 1);
    hash.HashAlgorithm(3);
    EXPECT_EQ(hash.HashAlgorithm(), 3);
    EXPECT_EQ(digest(3, 1), digest(1, 1));
}

TEST_F(DigestTest, AsksForTheProvidersInOrderOncePerProcess) {
    machine.crypto.providers.erase("Microsoft Enhanced Cryptographic Provider v1.0");
    globals.settings.readBuffer = 3;
    digest(2, 1);
    hash.CreateHash();
    clsHash(hash).CreateHash();
    EXPECT_THAT(
        machine.crypto.log(),
        ElementsAre("CryptAcquireContextA \"\" \"Microsoft Enhanced Cryptographic Provider v1.0\" 1 0",
                    "CryptAcquireContextA \"\" \"Microsoft Enhanced Cryptographic Provider v1.0\" 1 8",
                    "CryptAcquireContextA \"\" \"Microsoft Base Cryptographic Provider v1.0\" 1 0",
                    "CryptAcquireContextA \"\" \"Microsoft Base Cryptographic Provider v1.0\" 1 8",
                    "CryptCreateHash 32772", "CryptHashData 3", "CryptGetHashParam 2", "CryptDestroyHash",
                    "CryptCreateHash 32772", "CryptDestroyHash", "CryptCreateHash 32772"));
    EXPECT_EQ(machine.crypto.openHashes(), 1u);
}

TEST_F(DigestTest, TellsTheUserPerFileThatThereIsNoServiceAndGoesOn) {
    machine.crypto.providers.clear();
    const ExpectedBox box{"Unable to get a handle to key containers...\r\n"
                          "Check your registry for the following names:\r\n"
                          "Microsoft Base Cryptographic Provider v1.0\r\n"
                          "Microsoft Enhanced Cryptographic Provider v1.0\r\n"
                          "Without them, EzCryptoApi won't work.",
                          Answer::Ok, "Fatal Error [EzCryptoApi]", Buttons::Ok, Icon::Stop};
    machine.dialogs.expect(box);
    machine.dialogs.expect(box);
    globals.settings.algoName = "MD4";
    Checksum checksum(globals.settings, globals, machine.platform());
    EXPECT_EQ(checksum.getChecksum("C:\\abc.bin"), "");
    EXPECT_EQ(checksum.getChecksum("C:\\abc.bin"), "");
    EXPECT_EQ(machine.dialogs.problems(), "");
    const auto& log = machine.crypto.log();
    ASSERT_EQ(log.size(), 16u);
    EXPECT_THAT(
        std::vector(log.begin() + 4, log.begin() + 8),
        ElementsAre("CryptCreateHash 32770", "CryptHashData 3", "CryptGetHashParam 2", "CryptDestroyHash"));
}

TEST_F(DigestTest, ThrowsWhenTheHashIsNotGivenUpAndKeepsItForTheNextAttempt) {
    hash.HashAlgorithm(1);
    hash.CreateHash();
    hash.CalculateFile3("C:\\abc.bin", "");
    machine.faults.failNth(Operation::DestroyHash, 1);
    EXPECT_THROW(hash.DestroyHash(), Failure);
    EXPECT_NE(hash.GetDigestedData(1), "");
    hash.DestroyHash();
    EXPECT_EQ(hash.GetDigestedData(1), "");
    hash.DestroyHash(); // Nothing is left to destroy.
    EXPECT_EQ(machine.faults.calls(Operation::DestroyHash), 2);
}

TEST_F(DigestTest, HasNoDigestWhenTheServiceDoesNotTellIt) {
    machine.faults.failNth(Operation::GetHashParam, 1);
    EXPECT_EQ(digest(1, 1), "");
}

} // namespace
} // namespace tarvelon
