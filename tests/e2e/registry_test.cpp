// The watched registry locations and what is pending for the next boot, as the system and other programs
// write them.

#include "recorder.h"
#include "tools/driver/driver.h"
#include "tools/driver/planted_value.h"
#include "tools/driver/workplace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace e2e {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const std::string run = R"(Software\Microsoft\Windows\CurrentVersion\Run)";
const std::string noWarnings = "*No new or modified Registry Entries*";

TEST(RegistryWatch, FromTheFirstSnapshotToAcceptedWarnings) {
    const ProgramFolder folder("registry");
    const RecordingScanner scanner(folder.path() + "scanner.exe");
    folder.writeData("Integrity.dat", systemBaseline());
    folder.writeSettings({{"settings", "0,0,0,0,0,0,0,1"}, {"antivirus", scanner.path() + "|/scan"}});
    const auto recorded = [&] { return folder.data("Registry.dat").value_or("no snapshot"); };
    const PlantedValue altered(HKEY_CURRENT_USER, run, "Tarvelon check", "C:\\old.exe");
    const PlantedValue quoted(HKEY_CURRENT_USER, run, "Tarvelon check 2", "\"C:\\Program Files\\m.exe\" -q");
    const Program program(folder.program());
    program.press("RegWatch");
    program.awaitText(noWarnings);
    EXPECT_THAT(recorded(), HasSubstr("\r\nTarvelon check= (C:\\old.exe)\r\nTarvelon check 2= "
                                      "(\"C:\\Program Files\\m.exe\" -q)\r\n\r\n[CU/RO]"));

    altered.rewrite("C:\\Old.exe");
    program.press("Refresh");
    program.awaitText("HKEY_CURRENT_USER|Loaded in \\Tarvelon check (C:\\Old.exe) Entry Modified!");
    program.press("Scan & Update Warnings");
    program.awaitText(noWarnings);
    EXPECT_THAT(scanner.records(1),
                ElementsAre("2 " + asFirstWord(scanner.path()) + " /scan  \"C:\\Old.exe\" !C:\\Old.exe"));
    EXPECT_THAT(recorded(), HasSubstr("\r\nTarvelon check= (C:\\Old.exe)\r\n"));
}

} // namespace
} // namespace e2e
