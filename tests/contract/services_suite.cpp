// Folders, digests, the clock, timers, and what the system tells of itself.

#include "tests/contract/contract_fixture.h"
#include "ui/controls/controls.h"

#include <array>
#include <cmath>
#include <tuple>

namespace tarvelon {

namespace {

TEST_F(Contract, FoldersAreToldWhereTheyFit) {
    std::vector<std::string> paths;
    for (const auto call : {&SystemFolders::getSystemDirectory, &SystemFolders::getWindowsDirectory}) {
        char buffer[300] = {};
        const std::uint32_t length = (platform.folders.*call)(buffer, sizeof buffer);
        paths.emplace_back(buffer, length);
        EXPECT_EQ((platform.folders.*call)(buffer, length + 1), length) << "Room for the zero";
        EXPECT_GT((platform.folders.*call)(buffer, length), length) << "No room for the zero";
    }
    EXPECT_THAT(paths[0], testing::StartsWith(paths[1] + "\\"));
    for (const int csidl : {0, 2, 24, 38}) {
        std::string buffer(260, '~');
        EXPECT_TRUE(platform.folders.getSpecialFolderPath(csidl, buffer.data())) << csidl;
        paths.emplace_back(buffer.c_str());
    }
    for (const std::string& path : paths) {
        EXPECT_FALSE(list(path + "\\").empty()) << path;
    }
    char buffer[260] = "as it was";
    EXPECT_FALSE(platform.folders.getSpecialFolderPath(9999, buffer));
    EXPECT_STREQ(buffer, "as it was");
}

TEST_F(Contract, KeyContainersAndDigests) {
    constexpr const char* enhanced = "Microsoft Enhanced Cryptographic Provider v1.0";
    const std::string base("Microsoft Base Cryptographic Provider v1.0\0cut", 46);
    constexpr std::uint32_t rsaFull = 1;
    constexpr std::uint32_t newKeyset = 8;
    CryptoService& crypto = platform.crypto;
    CryptoService::Handle provider = 0;
    workstation->removeDefaultKeyContainer();
    EXPECT_FALSE(crypto.acquireContext(provider, "", enhanced, rsaFull, 0)) << "There is none yet";
    EXPECT_TRUE(crypto.acquireContext(provider, "", enhanced, rsaFull, newKeyset));
    EXPECT_FALSE(crypto.acquireContext(provider, "", enhanced, rsaFull, newKeyset)) << "It exists now";
    EXPECT_TRUE(crypto.acquireContext(provider, std::string(1, '\0'), base, rsaFull, 0)) << "Shared";
    EXPECT_FALSE(crypto.acquireContext(provider, "", "No Such Provider", rsaFull, 0));
    EXPECT_FALSE(crypto.acquireContext(provider, "", enhanced, 24, 0)) << "Another type";

    CryptoService::Handle hash = 0;
    for (const auto& [algorithm, size, begins] :
         {std::tuple{0x8002u, 16u, 0xd9}, {0x8003u, 16u, 0xf9}, {0x8004u, 20u, 0xc1}}) {
        ASSERT_TRUE(crypto.createHash(provider, algorithm, hash));
        EXPECT_TRUE(crypto.hashData(hash, "message ", 8));
        EXPECT_TRUE(crypto.hashData(hash, "digest and more", 6));
        unsigned char value[20];
        std::uint32_t length = size - 1;
        EXPECT_FALSE(crypto.getHashParam(hash, 2, value, length)) << "It does not fit";
        length = 20;
        EXPECT_TRUE(crypto.getHashParam(hash, 2, value, length));
        EXPECT_EQ(length, size);
        EXPECT_EQ(value[0], begins);
        EXPECT_FALSE(crypto.hashData(hash, "more", 4)) << "The value has been read";
        EXPECT_TRUE(crypto.destroyHash(hash));
    }
    EXPECT_FALSE(crypto.createHash(provider, 0x1234, hash));
    EXPECT_FALSE(crypto.createHash(0, 0x8003, hash));
    EXPECT_FALSE(crypto.hashData(0, "x", 1));
    EXPECT_FALSE(crypto.destroyHash(0));
}

TEST_F(Contract, TimersTickInPumpsWhileEnabled) {
    Screen screen("Timers", 100, 100);
    Timer repeating(screen, 20);
    Timer oneShot(screen, 1);
    workstation->attach(screen);
    screen.load();
    int ticks = 0;
    repeating.onTick = [&] { repeating.Enabled = ++ticks < 3; };
    int shots = 0;
    oneShot.onTick = [&] {
        oneShot.Enabled = false;
        ++shots;
        platform.messages.pump(); // As long work does; the timer must not come again.
    };
    repeating.Enabled = oneShot.Enabled = true;
    EXPECT_EQ(ticks + shots, 0) << "Ticks in pumps only";
    while (ticks < 3 || shots < 1) {
        platform.messages.wait();
        platform.messages.pump();
    }
    EXPECT_TRUE(ticks == 3 && shots == 1);
    EXPECT_EQ(platform.messages.queueStatus(0x85), 0u) << "No key, mouse button or hot key waits";
    workstation.reset();
}

TEST_F(Contract, DateTimeAndVersionAreTold) {
    const auto numbersIn = [](const std::string& told) {
        std::array<int, 3> numbers{-1, -1, -1};
        std::sscanf(told.c_str(), "%d%*c%d%*c%d", &numbers[0], &numbers[1], &numbers[2]);
        return numbers;
    };
    EXPECT_THAT(numbersIn(platform.clock.dateText()), testing::Each(testing::Gt(0)));
    const double before = platform.clock.secondsSinceMidnight();
    const auto [hour, minute, second] = numbersIn(platform.clock.timeText());
    const int told = ((hour % 12) * 60 + minute) * 60 + second;
    EXPECT_LE(std::fmod(told - std::floor(before) + 86400, 43200), 2) << before;

    EXPECT_THAT(platform.processes.programVersion(), testing::ElementsAre(2, 0, 0));
    EXPECT_EQ(platform.power.version().platformId, 2u) << "The NT family";
    EXPECT_GT(platform.power.version().major, 4u);
    EXPECT_NE(platform.power.desktopProcess(), 0u);
}

} // namespace

} // namespace tarvelon
