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

TEST_F(LogOn, FindingsStayOnTheScreenUntilTheyAreAcceptedAndACleanScanEndsByItself) {
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
    EXPECT_EQ(results.rows(), (Rows{guarded_.path(), visitor.path() + " *NEW*"}));
    results.click("Cancel");
    program.answer("Some files failed the integrity check!  Are you sure you want to exit?", "No", "Warning");
    EXPECT_EQ(folder_.data("Integrity.dat"), baseline_);

    results.click("Scan Failing Files...");
    program.box().press("OK"); // There is no scanner.
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
    EXPECT_EQ(folder_.data("Integrity.dat"), accepted);
}

} // namespace
} // namespace e2e
