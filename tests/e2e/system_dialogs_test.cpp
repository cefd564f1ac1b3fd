// The system's own dialogs, in which a folder and a scanner are picked.

#include "tools/driver/driver.h"
#include "tools/driver/tree_view.h"
#include "tools/driver/workplace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace e2e {
namespace {

using testing::HasSubstr;
using testing::Optional;

TEST(SystemDialogs, AFolderAndAScannerArePicked) {
    const ProgramFolder folder("dialogs");
    folder.writeData("Integrity.dat", systemBaseline());
    folder.writeSettings({});
    const ProgramFolder watched("Watched Folder");
    const PlantedFile letter(watched.path() + "letter.dll", "a letter");
    const PlantedFile scanner(folder.path() + "navw32.exe", "");
    const Program program(folder.program());
    const Step add{"Add Folder...", "Please Choose a Folder to Add"};
    program.play({{"Integrity Scan"}, {"Add/Remove Custom Folders...", "1) Empty:"}, add, {"Cancel"}, add});
    TreeView(Form(program.box().window).tree()).pick(watched.path());
    program.press("OK");
    program.play({{"", "Folder Added."}, {"OK"}, {"Save and Exit", "Save Successful!"}, {"OK"}});
    EXPECT_THAT(folder.data("Tarvelon.dat"),
                Optional(HasSubstr("path=" + watched.path() + "\r\nargs=0,0,0,0,0,0,0\r\n")));

    const Step choose{"Choose...", "Choose Anti-Virus Executable File"};
    program.play({{"Options"},
                  {"Edit Settings"},
                  {"Click here to setup your anti-virus or anti-trojan application(s)."},
                  choose,
                  {"Cancel"},
                  choose});
    Form(program.box().window).fill(0, scanner.path());
    program.play({{"Open", "Don't forget to Save!"}, {"OK"}, {"Save", "Save Success!"}, {"OK"}});
    EXPECT_THAT(folder.data("Tarvelon.dat"),
                Optional(HasSubstr("antivirus=" + scanner.path() + "|/HEUR:3\r\n")));
}

} // namespace
} // namespace e2e
