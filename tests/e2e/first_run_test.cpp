// The first full scan of the real system directory.

#include "tools/driver/driver.h"
#include "tools/driver/workplace.h"

#include <gtest/gtest.h>

#include <memory>

namespace e2e {
namespace {

TEST(FirstRun, IsRefusedOrPutsTheWholeSystemDirectoryIntoTheBaseline) {
    const ProgramFolder folder("first-run");
    const Program program(folder.program());
    program.play({{"No"}, {"OK"}, {"", "TarvelonLow"}});
    EXPECT_FALSE(folder.hasData("Integrity.dat"));
    program.press("Yes");
    const Form window = program.form("Welcome to Tarvelon");
    EXPECT_TRUE(comesTrue([&] { return !program.hasForm("AutoCheck"); })) << program.describe();
    EXPECT_EQ(folder.data("Integrity.dat"), systemBaseline());
    window.close();
    EXPECT_TRUE(program.ends());
}

TEST(FirstRun, PausesGoesOnAndIsAbandonedForGood) {
    // Enough work at the head of the system directory that the scan is met while it runs, however busy the
    // machine is. None of it takes long, since a pause takes hold between two files.
    std::vector<std::unique_ptr<PlantedFile>> ballast;
    for (int number = 100; number < 160; ++number) {
        const std::string path = systemDirectory() + "000slow" + std::to_string(number) + ".dll";
        ballast.push_back(std::make_unique<PlantedFile>(path, ""));
        PlantedFile::stretch(path, std::int64_t{1} << 29);
    }
    const ProgramFolder folder("running");
    const Program program(folder.program());
    program.press("Yes");
    const Form scan = program.form("AutoCheck");
    ASSERT_TRUE(comesTrue([&] { return scan.describe().find("[000slow") != std::string::npos; }))
        << scan.describe();
    program.press("Pause");
    std::string before;
    const auto stands = [&] {
        before = scan.describe();
        Sleep(3000);
        return scan.describe() == before && program.shows("Resume");
    };
    ASSERT_TRUE(comesTrue(stands)) << scan.describe();
    {
        const Program second(folder.program()); // It takes the growing file for a complete one.
        second.form("Welcome to Tarvelon").close();
        EXPECT_TRUE(second.ends()) << second.describe();
    }
    EXPECT_EQ(scan.describe(), before);
    program.press("Resume");
    EXPECT_TRUE(comesTrue([&] { return scan.describe() != before && program.shows("Pause"); }));

    const std::string warning = "If you stop the scan now, you will need to re-start it later\n"
                                "Are you sure you want to abandon the full system scan?";
    program.play({{"Cancel", warning}, {"No"}});
    EXPECT_TRUE(folder.hasData("Integrity.dat"));
    program.play({{"Cancel", warning}, {"Yes"}});
    EXPECT_TRUE(program.ends()) << program.describe();
    EXPECT_FALSE(folder.hasData("Integrity.dat"));
}

} // namespace
} // namespace e2e
