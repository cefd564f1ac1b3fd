#include "driver.h"
#include "workplace.h"

#include <gtest/gtest.h>

namespace e2e {
namespace {

constexpr const char* allTypes = "1,1,1,1,1,1,0,0";
constexpr const char* guarded = "zzguarded.dll";
constexpr const char* added = "zzadded.exe";
constexpr const char* original = "a file that the baseline knows";

using Rows = std::vector<std::string>;

/// A workstation whose baseline is complete, with one more file under guard.
class LogOn : public testing::Test {
protected:
    LogOn() {
        folder_.writeSettings({{"settings", allTypes}});
        folder_.writeData("Integrity.dat", baseline_);
    }

    const std::string baseline_ = withEntry(systemBaseline(), "DLL", guarded, crcText(original));
    const ProgramFolder folder_{"log-on"};
    const PlantedFile guarded_{systemDirectory() + guarded, original};
};

TEST_F(LogOn, ACleanScanEndsByItself) {
    const std::optional<std::string> before = folder_.data("Integrity.dat");
    const Program program(folder_.program(), "/r");
    EXPECT_TRUE(program.ends()) << program.describe();
    EXPECT_EQ(folder_.data("Integrity.dat"), before);
}

TEST_F(LogOn, AChangedAndAnAddedFileStayOnTheScreen) {
    const std::optional<std::string> before = folder_.data("Integrity.dat");
    guarded_.rewrite("something else");
    const PlantedFile visitor(systemDirectory() + added, "a stranger");
    const Program program(folder_.program(), "/r");
    const Form results = program.form("AutoCheck");
    results.awaitText("Results");
    EXPECT_EQ(results.beside("New Files:"), "1");
    EXPECT_EQ(results.beside("Failed Files:"), "1");
    const int total = std::stoi(results.beside("Total Files Scanned:"));
    EXPECT_GT(total, 500);
    EXPECT_EQ(results.beside("Passing Files:"), std::to_string(total - 2));

    results.click("Repair and Update Failed Files...");
    results.awaitText("Failed Files List");
    EXPECT_EQ(results.rows(), (Rows{systemDirectory() + guarded, systemDirectory() + added + " *NEW*"}));

    // Leaving asks once more, and leaves the baseline as it was.
    results.click("Cancel");
    program.answer("Some files failed the integrity check!  Are you sure you want to exit?", "No", "Warning");
    EXPECT_TRUE(results.isVisible());
    results.click("Cancel");
    program.box().press("Yes");
    EXPECT_TRUE(program.ends());
    EXPECT_EQ(folder_.data("Integrity.dat"), before);
}

TEST_F(LogOn, FindingsAreReportedAndAcceptedWithoutAScanner) {
    guarded_.rewrite("something else");
    const PlantedFile visitor(systemDirectory() + added, "a stranger");
    const Program program(folder_.program(), "/r");
    const Form results = program.form("AutoCheck");
    results.click("Repair and Update Failed Files...");
    results.click("Scan Failing Files...");
    program.answer(
        "You do not have any Anti-Virus program setup with Tarvelon.  For your conveniance, these files will "
        "be "
        "added to the log, and will be updated in your Integrity File (so that you can scan them for viruses "
        "later).");
    results.awaitText("Integrity File Updated");
    EXPECT_EQ(
        folder_.logs(),
        (Rows{"Integrity Checker - These files were logged because you didn't setup an Anti-Virus Scanner," +
              guarded_.path() + "," + visitor.path() + "\r\n"}));

    // The empty line behind the header goes with the first rewrite.
    std::string accepted = withEntry(systemBaseline(), "DLL", guarded, crcText("something else"));
    accepted = withEntry(accepted, "EXE", added, crcText("a stranger"));
    accepted.erase(accepted.find("\r\n\r\n"), 2);
    EXPECT_EQ(folder_.data("Integrity.dat"), accepted);
    EXPECT_EQ(folder_.data("integrity.bak"), baseline_);

    results.click("Close Integrity Window");
    EXPECT_TRUE(program.ends()) << program.describe();
    const Program again(folder_.program(), "/r");
    EXPECT_TRUE(again.ends()) << again.describe();
}

TEST_F(LogOn, AnUnknownSwitchOpensTheMainWindow) {
    const Program program(folder_.program(), "/R");
    const Form window = program.form("Welcome to Tarvelon");
    EXPECT_FALSE(program.hasForm("AutoCheck"));
    window.close();
    EXPECT_TRUE(program.ends());
}

TEST_F(LogOn, OnlyCustomFoldersMarkedForStartUpAreScannedToo) {
    const ProgramFolder watched("watched");
    const ProgramFolder ignored("ignored");
    const PlantedFile changed(watched.path() + "tool.exe", "new contents");
    const PlantedFile note(watched.path() + "tool.dll", "not asked for");
    const PlantedFile stranger(ignored.path() + "stranger.exe", "unseen");
    // The program's copies in those folders are programs as well, known to the baseline.
    const std::string ownEntry = "TarvelonLow.exe=" + crcText(*readFile(watched.program())) + "*E\r\n";
    folder_.writeSettings({{"settings", allTypes},
                           {"3/path", watched.path()},
                           {"3/args", "0,0,0,0,1,0,1"},
                           {"7/path", ignored.path()},
                           {"7/args", "0,0,0,0,1,0,0"}});
    folder_.writeData("3.dat",
                      smallBaseline("EXE", "tool.exe=" + crcText("old contents") + "*E\r\n" + ownEntry));
    folder_.writeData("7.dat", smallBaseline("EXE", ownEntry));

    const Program program(folder_.program(), "/r");
    const Form results = program.form("AutoCheck");
    results.awaitText("Results");
    EXPECT_EQ(results.beside("Failed Files:"), "1");
    EXPECT_EQ(results.beside("New Files:"), "0");
    results.click("Repair and Update Failed Files...");
    results.awaitText("Failed Files List");
    EXPECT_EQ(results.rows(), (Rows{changed.path()}));
}

} // namespace
} // namespace e2e
