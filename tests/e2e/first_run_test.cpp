#include "driver.h"
#include "workplace.h"

#include <gtest/gtest.h>

#include <memory>

namespace e2e {
namespace {

constexpr const char* firstRunQuestion =
    "This is your first time using Tarvelon.  Tarvelon is required to do a system file Integrity scan before "
    "proceeding.\nIf you are sure there are no viruses on your computer, it is safe to scan now. Otherwise, "
    "please do a full scan at a later time. The full scan should take no more than five minutes to complete."
    "\n\nPerform scan now?";
constexpr const char* refusalNotice =
    "You have chosen not to do a full scan at this time.  You need to run the full scan before using the "
    "Integrity Checker.";

/// Answers the first-run question with No and its notice with OK.
void refuse(const Program& program) {
    const Box question = program.box();
    EXPECT_EQ(question.text, firstRunQuestion);
    EXPECT_EQ(question.title, "TarvelonLow");
    EXPECT_EQ(question.buttons, (std::vector<std::string>{"Yes", "No"}));
    question.press("No");

    program.answer(refusalNotice);
}

TEST(FirstRun, RefusedTwiceOpensTheMainWindowAndLeavesNoBaseline) {
    const ProgramFolder folder("refused");
    const Program program(folder.program());
    refuse(program);
    refuse(program);
    const Form window = program.form("Welcome to Tarvelon");
    EXPECT_FALSE(folder.hasData("Integrity.dat"));
    EXPECT_TRUE(folder.hasData("Tarvelon.dat"));
    EXPECT_TRUE(folder.hasData("Registry.dat"));
    window.close();
    EXPECT_TRUE(program.ends());
}

struct Algorithm {
    const char* name; ///< As in the settings file.
    const char* file; ///< The baseline's name.
};

class FirstRunWith : public testing::TestWithParam<Algorithm> {};

TEST_P(FirstRunWith, TheWholeSystemDirectoryIsInTheBaseline) {
    const auto [algorithm, file] = GetParam();
    const ProgramFolder folder(std::string("accepted-") + algorithm);
    folder.writeSettings({{"algo", algorithm}});
    const Program program(folder.program());
    if (std::string(file) != "Integrity.dat") {
        refuse(program); // asked for the plain name, before the settings are read
    }
    program.box().press("Yes");

    program.form("AutoCheck");
    const Form window = program.form("Welcome to Tarvelon");
    EXPECT_TRUE(comesTrue([&] { return !program.hasForm("AutoCheck"); })) << program.describe();
    EXPECT_EQ(folder.data(file), readFile(inputs().expected + file).value());
    window.close();
    EXPECT_TRUE(program.ends());
}

INSTANTIATE_TEST_SUITE_P(Algorithms, FirstRunWith,
                         testing::Values(Algorithm{"crc32", "Integrity.dat"},
                                         Algorithm{"MD5", "Integrity-md5.dat"},
                                         Algorithm{"SHA1", "Integrity-sha1.dat"},
                                         Algorithm{"MD4", "Integrity-md4.dat"}),
                         [](const auto& instance) { return instance.param.name; });

/// Enough work at the head of the system directory that a scan can be met while it runs.
class RunningFirstScan : public testing::Test {
protected:
    static constexpr int fileCount = 30;
    static constexpr std::int64_t fileLength = std::int64_t{3} << 29; // a fifth of a second each, or more

    RunningFirstScan() {
        for (int number = 0; number < fileCount; ++number) {
            const std::string name = "000slow" + std::to_string(100 + number) + ".dll";
            ballast_.push_back(std::make_unique<PlantedFile>(systemDirectory() + name, ""));
            PlantedFile::stretch(ballast_.back()->path(), fileLength);
        }
    }

    Form startScan() {
        program_.box().press("Yes");
        const Form scan = program_.form("AutoCheck");
        scan.awaitText("000slow101.dll");
        return scan;
    }

    const ProgramFolder folder_{"running"};

private:
    std::vector<std::unique_ptr<PlantedFile>> ballast_;

protected:
    const Program program_{folder_.program()};
};

TEST_F(RunningFirstScan, PausesGoesOnAndIsAbandonedForGood) {
    const Form scan = startScan();
    scan.click("Pause");
    scan.awaitText("Resume");
    // A pause takes hold between two files: from then on nothing on the screen moves.
    std::string before;
    ASSERT_TRUE(comesTrue([&] {
        before = scan.describe();
        Sleep(3000);
        return scan.describe() == before;
    })) << scan.describe();
    scan.click("Resume");
    ASSERT_TRUE(comesTrue([&] { return scan.describe() != before && !scan.shows("Resume"); }));

    const char* const question = "If you stop the scan now, you will need to re-start it later\n"
                                 "Are you sure you want to abandon the full system scan?";
    scan.click("Cancel");
    program_.answer(question, "No");
    EXPECT_TRUE(scan.isVisible());
    EXPECT_TRUE(folder_.hasData("Integrity.dat"));

    scan.click("Cancel");
    program_.box().press("Yes");
    EXPECT_TRUE(program_.ends());
    EXPECT_FALSE(folder_.hasData("Integrity.dat"));
}

TEST_F(RunningFirstScan, ASecondStartTakesTheGrowingFileForComplete) {
    const Form scan = startScan();
    const Program second(folder_.program());
    second.form("Welcome to Tarvelon").close();
    EXPECT_TRUE(second.ends());
    EXPECT_TRUE(scan.isVisible()) << program_.describe();
}

} // namespace
} // namespace e2e
