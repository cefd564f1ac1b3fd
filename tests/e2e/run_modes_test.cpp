// From findings to accepted files, in each way that the program is started: what the scanners are given, what
// the report says, what the baseline holds.

#include "recorder.h"
#include "tools/driver/driver.h"
#include "tools/driver/planted_value.h"
#include "tools/driver/seen_windows.h"
#include "tools/driver/workplace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace e2e {
namespace {

using Rows = std::vector<std::string>;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* automatic =
    "0,1,0,0,0,0,1,1\r\nsettings2=0,1,0,0,0,0"; ///< Drivers, scanned and logged.

/// As a scanner's command line holds it.
std::string quoted(const std::string& file) {
    return "\"" + file + "\" ";
}

/// A workstation with a baseline and two scanners. Of the system's drivers the first has another checksum
/// there, and the second is not in it.
class RunModes : public testing::Test {
protected:
    RunModes() { folder_.writeData("Integrity.dat", before_); }

    void configure(const std::string& settings) const {
        folder_.writeSettings({{"settings", settings},
                               {"antivirus", first_.path() + "| /scan /log:all "},
                               {"av2", second_.path() + "| "}});
    }

    /// Both scanners were run once for each of the lists, and what was found is accepted.
    void expectAccepted(const Rows& lists) const {
        Rows first;
        Rows second;
        for (const std::string& files : lists) {
            first.push_back("2 " + asFirstWord(first_.path()) + " /scan /log:all " + files);
            second.push_back("2 " + asFirstWord(second_.path()) + "  " + files);
        }
        EXPECT_EQ(first_.records(lists.size()), first);
        EXPECT_EQ(second_.records(lists.size()), second);
        std::string accepted = withEntry(withLine(systemBaseline(), drivers_[1], ""), "DRV", drivers_[1]);
        accepted.erase(accepted.find("\r\n\r\n"), 2); // A rewrite leaves out the empty line behind the head.
        EXPECT_TRUE(comesTrue([&] { return folder_.data("Integrity.dat") == accepted; }))
            << folder_.data("Integrity.dat").value_or("no baseline");
        EXPECT_EQ(folder_.data("integrity.bak"), before_);
    }

    const Rows drivers_ = entriesOf(systemBaseline(), "DRV");
    const std::string before_ =
        withLine(withLine(systemBaseline(), drivers_[0], nameOf(drivers_[0]) + "=1D*E\r\n"), drivers_[1], "");
    const ProgramFolder folder_{"run modes"};
    const ProgramFolder plainFolder_{"scanner"};
    const RecordingScanner first_{folder_.path() + "first scanner.exe"};
    const RecordingScanner second_{plainFolder_.path() + "second.exe"};
    const std::string guarded_ = systemDirectory() + nameOf(drivers_[0]);
    const std::string visitor_ = systemDirectory() + nameOf(drivers_[1]);
    const std::string both_ = quoted(guarded_) + quoted(visitor_);
};

TEST_F(RunModes, ByHand) {
    configure("0,0,0,0,0,0,0,1");
    const Program program(folder_.program());
    program.play({{"Integrity Scan"}, {"Driver Files (DRV)"}, {"Scan Folder Now", "Results"}});
    program.play({{"Repair and Update Failed Files...", "Failed Files List"}});
    EXPECT_THAT(program.form("AutoCheck").rows(), ElementsAre(guarded_, visitor_ + " *NEW*"));
    EXPECT_THAT(first_.records(), IsEmpty());
    program.play({{"Scan Failing Files...", "Integrity File Updated"}});
    expectAccepted({both_});
    EXPECT_THAT(folder_.logs(),
                ElementsAre("Integrity Checker - These files were either New or Failed the Integrity Check," +
                            guarded_ + "," + visitor_ + "\r\n"));
    program.play({{"Close Integrity Window"},
                  {"Scan Folder Now", "Scan Complete. No new or modified files were found."},
                  {"Close Integrity Check Window"},
                  {"Exit"}});
    EXPECT_TRUE(program.ends()) << program.describe();
}

TEST_F(RunModes, AtLogOnFindingsWaitForTheUserAndACleanScanEnds) {
    folder_.writeSettings({{"settings", "0,1,0,0,0,0,0,0"}}); // No scanner.
    const Program program(folder_.program(), "/r");
    program.play({{"", "Results"},
                  {"Repair and Update Failed Files...", "Failed Files List"},
                  {"Cancel", "Some files failed the integrity check!  Are you sure you want to exit?"},
                  {"No"}});
    EXPECT_EQ(folder_.data("Integrity.dat"), before_);
    program.play({{"Scan Failing Files..."}, {"OK", "Integrity File Updated"}});
    expectAccepted({});
    EXPECT_THAT(folder_.logs(),
                ElementsAre(HasSubstr("logged because you didn't setup an Anti-Virus Scanner")));
    program.press("Close Integrity Window");
    EXPECT_TRUE(program.ends()) << program.describe();
    const Program again(folder_.program(), "/r");
    EXPECT_TRUE(again.ends()) << again.describe();
}

TEST_F(RunModes, AtShutDown) {
    demandOwnSystem(); // It presses Turn Off, and names files for the next start.
    configure(automatic);
    const PlantedFile replaced(folder_.path() + "replaced.tmp", "to be replaced");
    const PlantedFile wininit("C:\\windows\\wininit.ini",
                              "[Rename]\r\nC:\\new.tmp=" + replaced.path() + "\r\nNUL=C:\\gone.tmp\r\n");
    // The system adds to what stands there, and nothing of it is left behind.
    const PlantedValue pending(HKEY_LOCAL_MACHINE, R"(System\CurrentControlSet\Control\Session Manager)",
                               "PendingFileRenameOperations", REG_MULTI_SZ, std::string(1, '\0'));
    const PlantedFile doomed(folder_.path() + "doomed.tmp", "to be deleted");
    MoveFileExA(doomed.path().c_str(), nullptr, MOVEFILE_DELAY_UNTIL_REBOOT);
    const Program program(folder_.program(), "/s");
    program.press("Turn Off");
    const Form progress = program.form("Scanning and Shutting Down...Please Wait");
    // The machine must not go down under the other tests: two minutes are left from here.
    program.awaitText("Status: Some files were scanned...Shutting Down in 2 minutes");
    progress.close();
    program.play({{"", "Cancel Shutdown?"}, {"Yes"}});
    EXPECT_TRUE(program.ends()) << program.describe();
    expectAccepted({quoted(replaced.path()), quoted(doomed.path()), both_});
}

TEST_F(RunModes, WithNamesOfEveryScriptAndALongPath) {
    const std::string folder =
        folder_.path() + "\u041f\u0430\u043f\u043a\u0430\u30bd" + std::string(170, 'f') + "\\";
    ASSERT_TRUE(makeFolder(folder));
    std::string ideographs; // As many as the disks below Wine can hold.
    for (int i = 0; i < 83; ++i) {
        ideographs += "\u6f22";
    }
    std::vector<std::unique_ptr<PlantedFile>> files;
    Rows found;
    Rows added;
    for (const std::string& name :
         {std::string("\u0436\u0451\u043b\u0442\u044b\u0439.dll"), std::string("\u03b1\u03b2\u03b3.sys"),
          std::string("\u30bd\u8868.exe"), std::string("\u00e9t\u00e9.ocx"), std::string("\U0001f600.scr"),
          ideographs + ".com", std::string(190, 'n') + ".drv"}) {
        files.push_back(std::make_unique<PlantedFile>("\\\\?\\" + folder + name, name));
        found.push_back(folder + name);
        added.push_back(folder + name + " *NEW*");
    }
    folder_.writeData("Integrity.dat", systemBaseline());
    folder_.writeSettings({{"settings", "0,0,0,0,0,0,0,1"},
                           {"antivirus", first_.path() + "|"},
                           {"3/path", folder},
                           {"3/args", "1,1,1,1,1,1,1"}});
    const auto acceptFindings = [&](const Rows& expected) {
        const Program program(folder_.program(), "/r");
        program.play({{"", "Results"}, {"Repair and Update Failed Files...", "Failed Files List"}});
        EXPECT_THAT(program.form("AutoCheck").rows(), testing::UnorderedElementsAreArray(expected));
        program.play({{"Scan Failing Files...", "Integrity File Updated"}, {"Close Integrity Window"}});
        EXPECT_TRUE(program.ends()) << program.describe();
    };
    const auto isClean = [&] {
        const Program program(folder_.program(), "/r");
        EXPECT_TRUE(program.ends()) << program.describe();
    };
    acceptFindings(added);
    isClean();
    for (const auto& file : files) {
        file->rewrite("changed");
    }
    acceptFindings(found);
    std::filesystem::rename(
        std::filesystem::path(wide(files[0]->path())),
        std::filesystem::path(wide("\\\\?\\" + folder + "\u0416\u0401\u043b\u0442\u044b\u0439.dll")));
    isClean();
    for (const std::string& line : first_.records(2)) {
        EXPECT_EQ(line.find(" !"), std::string::npos) << "could not be opened: " << line;
    }
    for (const std::string& report : folder_.logs()) {
        for (const std::string& path : found) {
            EXPECT_THAT(report, HasSubstr(path.substr(path.rfind('\\'))));
        }
    }
}

TEST_F(RunModes, OnSchedule) {
    configure(automatic);
    for (int times = 0; times < 2; ++times) { // The second run finds nothing.
        const Program program(folder_.program(), "/a");
        EXPECT_TRUE(program.ends()) << program.describe();
        expectAccepted({both_});
    }
}

} // namespace
} // namespace e2e
