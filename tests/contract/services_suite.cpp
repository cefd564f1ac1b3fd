#include "tests/contract/contract_fixture.h"

namespace tarvelon {

namespace {

constexpr const char* enhanced = "Microsoft Enhanced Cryptographic Provider v1.0";
constexpr const char* base = "Microsoft Base Cryptographic Provider v1.0";
constexpr std::uint32_t rsaFull = 1;
constexpr std::uint32_t newKeyset = 8;

using Call = std::uint32_t (SystemFolders::*)(char*, std::uint32_t);

TEST_F(Contract, DirectoryCallsTellWhenTheBufferIsTooSmall) {
    for (const Call call : {&SystemFolders::getSystemDirectory, &SystemFolders::getWindowsDirectory}) {
        char buffer[300] = {};
        const std::uint32_t length = (platform.folders.*call)(buffer, sizeof buffer);
        const std::string path = buffer;
        ASSERT_GT(length, 0u);
        EXPECT_EQ(length, path.size());
        EXPECT_NE(path.back(), '\\');
        EXPECT_FALSE(list(path + "\\").empty()) << path;

        EXPECT_EQ((platform.folders.*call)(buffer, length + 1), length) << "Room for the zero";
        EXPECT_GT((platform.folders.*call)(buffer, length), length) << "No room for the zero";
        EXPECT_GT((platform.folders.*call)(buffer, 2), 2u);
    }
}

TEST_F(Contract, SpecialFoldersAreThereOrLeaveTheBufferAlone) {
    for (const int csidl : {0, 2, 24, 38}) {
        char buffer[260] = {};
        EXPECT_TRUE(platform.folders.getSpecialFolderPath(csidl, buffer)) << csidl;
        EXPECT_EQ(std::string(buffer).substr(1, 2), ":\\");
        EXPECT_FALSE(list(std::string(buffer) + "\\").empty()) << buffer;
    }
    char buffer[260] = "as it was";
    EXPECT_FALSE(platform.folders.getSpecialFolderPath(9999, buffer));
    EXPECT_STREQ(buffer, "as it was");
}

std::string inHex(const std::string& bytes) {
    std::string text;
    for (const char byte : bytes) {
        char digits[3];
        std::snprintf(digits, sizeof digits, "%02x", static_cast<unsigned char>(byte));
        text += digits;
    }
    return text;
}

class CryptoContract : public Contract {
protected:
    CryptoService& crypto = platform.crypto;

    CryptoService::Handle anyProvider() {
        CryptoService::Handle provider = 0;
        EXPECT_TRUE(crypto.acquireContext(provider, "", enhanced, rsaFull, 0) ||
                    crypto.acquireContext(provider, "", enhanced, rsaFull, newKeyset));
        return provider;
    }

    std::string digest(std::uint32_t algorithm, const std::string& first, const std::string& second) {
        CryptoService::Handle hash = 0;
        EXPECT_TRUE(crypto.createHash(anyProvider(), algorithm, hash));
        EXPECT_TRUE(crypto.hashData(hash, first.data(), first.size()));
        EXPECT_TRUE(crypto.hashData(hash, second.data(), second.size()));
        std::string value(20, '\0');
        std::uint32_t length = 20;
        EXPECT_TRUE(crypto.getHashParam(hash, 2, value.data(), length));
        EXPECT_TRUE(crypto.destroyHash(hash));
        return inHex(value.substr(0, length));
    }
};

TEST_F(CryptoContract, TheFirstProgramHasToMakeTheKeyContainer) {
    workstation->removeDefaultKeyContainer();
    CryptoService::Handle provider = 0;
    EXPECT_FALSE(crypto.acquireContext(provider, "", enhanced, rsaFull, 0));
    EXPECT_TRUE(crypto.acquireContext(provider, "", enhanced, rsaFull, newKeyset));
    EXPECT_NE(provider, 0u);
    EXPECT_FALSE(crypto.acquireContext(provider, "", enhanced, rsaFull, newKeyset)) << "It exists now";
    EXPECT_TRUE(crypto.acquireContext(provider, std::string(1, '\0'), std::string(base) + '\0', rsaFull, 0))
        << "Texts end at their first zero, and the providers share the container";

    EXPECT_FALSE(crypto.acquireContext(provider, "", "No Such Provider", rsaFull, 0));
    EXPECT_FALSE(crypto.acquireContext(provider, "", enhanced, 24, 0)) << "Another type";
}

TEST_F(CryptoContract, DigestsAreThoseOfThePublishedAlgorithms) {
    EXPECT_EQ(digest(0x8002, "message ", "digest"), "d9130a8164549fe818874806e1c7014b");
    EXPECT_EQ(digest(0x8003, "message ", "digest"), "f96b697d7cb7938d525a2f31aaf161d0");
    EXPECT_EQ(digest(0x8004, "message ", "digest"), "c12252ceda8be8994d5fa0290a47231c1d16aae3");
}

TEST_F(CryptoContract, WhatTheServiceRefuses) {
    const CryptoService::Handle provider = anyProvider();
    CryptoService::Handle hash = 0;
    EXPECT_FALSE(crypto.createHash(provider, 0, hash));
    EXPECT_FALSE(crypto.createHash(provider, 0x1234, hash));
    EXPECT_FALSE(crypto.createHash(0, 0x8003, hash));
    EXPECT_FALSE(crypto.hashData(0, "x", 1));
    EXPECT_FALSE(crypto.destroyHash(0));

    ASSERT_TRUE(crypto.createHash(provider, 0x8004, hash));
    EXPECT_TRUE(crypto.hashData(hash, "x", 1));
    char value[20];
    std::uint32_t length = 16;
    EXPECT_FALSE(crypto.getHashParam(hash, 2, value, length)) << "20 bytes do not fit";
    length = 20;
    EXPECT_FALSE(crypto.getHashParam(hash, 99, value, length));
    length = 20;
    EXPECT_TRUE(crypto.getHashParam(hash, 2, value, length));
    EXPECT_EQ(length, 20u);
    EXPECT_FALSE(crypto.hashData(hash, "more", 4)) << "The value has been read";
    EXPECT_TRUE(crypto.getHashParam(hash, 2, value, length));
    EXPECT_TRUE(crypto.destroyHash(hash));
}

TEST_F(Contract, LetterCaseOfTheWesternCodePage) {
    for (int code = 0; code < 256; ++code) {
        const auto character = static_cast<unsigned char>(code);
        unsigned char upper = character;
        unsigned char lower = character;
        if ((code >= 'a' && code <= 'z') || (code >= 0xe0 && code <= 0xfe && code != 0xf7)) {
            upper = static_cast<unsigned char>(code - 32);
        } else if ((code >= 'A' && code <= 'Z') || (code >= 0xc0 && code <= 0xde && code != 0xd7)) {
            lower = static_cast<unsigned char>(code + 32);
        } else if (code == 0x9a || code == 0x9c || code == 0x9e) {
            upper = static_cast<unsigned char>(code - 16);
        } else if (code == 0x8a || code == 0x8c || code == 0x8e) {
            lower = static_cast<unsigned char>(code + 16);
        } else if (code == 0xff) {
            upper = 0x9f;
        } else if (code == 0x9f) {
            lower = 0xff;
        }
        EXPECT_EQ(platform.codePage.upper(character), upper) << code;
        EXPECT_EQ(platform.codePage.lower(character), lower) << code;
    }
}

TEST_F(Contract, ProgramsAreStartedAndNotAwaited) {
    const std::string file = platform.processes.programFile();
    ASSERT_GT(file.size(), 7u);
    EXPECT_EQ(file.substr(1, 2), ":\\");
    EXPECT_THAT(file, testing::EndsWith(".exe"));

    const std::string made = folder + "made.txt";
    const std::string arguments = "/c echo started> " + made;
    EXPECT_TRUE(platform.processes.start("cmd.exe", arguments, WindowStyle::MinimizedFocus));
    EXPECT_TRUE(workstation->hasMade(made, "cmd.exe " + arguments));
    const std::string rest = "/c rem " + std::string(Processes::longestCommandLine, 'x');
    const std::size_t fitting = Processes::longestCommandLine - std::string("cmd.exe ").size();
    EXPECT_TRUE(platform.processes.start("cmd.exe", rest.substr(0, fitting), WindowStyle::MinimizedFocus));
    EXPECT_FALSE(platform.processes.start("cmd.exe", rest.substr(0, fitting + 1), WindowStyle::NormalFocus));
}

TEST_F(Contract, OnlyTheProgramThatIsNamedIsStarted) {
    const std::string program = folder + "two three.exe";
    put(program, get(platform.processes.programFile())); // On Windows this very test, which lists itself.
    put(folder + "two.exe", "in the other's place");
    const std::string made = folder + "made.json";
    const std::string arguments = "--gtest_list_tests --gtest_output=json:" + made;
    EXPECT_TRUE(platform.processes.start(program, arguments, WindowStyle::MinimizedFocus));
    EXPECT_TRUE(workstation->hasMade(made, program + " " + arguments));
}

TEST_F(Contract, AnEmptyQueuePumpsAndHasNoInput) {
    platform.messages.pump();
    EXPECT_EQ(platform.messages.queueStatus(0x85), 0u) << "No key, mouse button or hot key waits";
}

TEST_F(Contract, TimersTickInPumpsWhileEnabled) {
    struct TimerScreen : Screen {
        TimerScreen()
            : Screen("Timers", 100, 100) {}
        Timer repeating{*this, 20};
        Timer oneShot{*this, 1};
    } screen;
    workstation->attach(screen);
    screen.load();
    int ticks = 0;
    screen.repeating.onTick = [&] { screen.repeating.Enabled = ++ticks < 3; };
    int shots = 0;
    screen.oneShot.onTick = [&] {
        screen.oneShot.Enabled = false;
        ++shots;
        platform.messages.pump(); // As long work does; the timer must not come again.
    };
    const auto waitFor = [&](const auto& reached) {
        while (!reached()) {
            platform.messages.wait();
            platform.messages.pump();
        }
    };
    screen.oneShot.Enabled = true;
    waitFor([&] { return shots == 1; });
    EXPECT_EQ(ticks, 0) << "Still disabled";
    screen.repeating.Enabled = true;
    EXPECT_EQ(ticks, 0) << "Ticks in pumps only";
    waitFor([&] { return ticks == 3; });
    screen.oneShot.Enabled = true;
    waitFor([&] { return shots == 2; });
    EXPECT_EQ(ticks, 3) << "Disabled in its own tick";
    workstation.reset();
}

TEST_F(Contract, TheProgramKnowsItsVersion) {
    EXPECT_THAT(platform.processes.programVersion(), testing::ElementsAre(2, 0, 0));
}

TEST_F(Contract, DateAndTimeAreTextsThatBeginWithANumber) {
    for (const std::string& text : {platform.clock.dateText(), platform.clock.timeText()}) {
        ASSERT_GE(text.size(), 6u) << text;
        EXPECT_TRUE(text[0] >= '0' && text[0] <= '9') << text;
    }
    const double seconds = platform.clock.secondsSinceMidnight();
    EXPECT_GE(seconds, 0);
    EXPECT_LT(seconds, 24 * 60 * 60);
}

TEST_F(Contract, ADocumentThatIsNotThereCannotBeOpened) {
    EXPECT_EQ(platform.shell.open("missing.html", folder), Shell::fileNotFound);
    EXPECT_EQ(platform.shell.open(folder + "missing.html", ""), Shell::fileNotFound);
}

} // namespace

} // namespace tarvelon
