// The system's own dialogs, in which a folder and a scanner are picked.

#include "tools/driver/driver.h"
#include "tools/driver/tree_view.h"
#include "tools/driver/workplace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace e2e {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class SystemDialogs : public testing::Test {
protected:
    SystemDialogs() {
        folder_.writeData("Integrity.dat", systemBaseline());
        folder_.writeSettings({});
    }

    std::string settings() const { return folder_.data("Tarvelon.dat").value_or("no settings"); }

    const ProgramFolder folder_{"dialogs"};
};

TEST_F(SystemDialogs, AFolderIsPickedAndScanned) {
    const ProgramFolder watched("Watched Folder");
    const PlantedFile letter(watched.path() + "letter.dll", "a letter");
    const Program program(folder_.program());
    const std::string title = "Please Choose a Folder to Add";
    program.play({{"Integrity Scan"},
                  {"Add/Remove Custom Folders...", "1) Empty:"},
                  {"Add Folder...", title},
                  {"Cancel"},
                  {"Add Folder...", title}});
    TreeView(Form(program.box().window).tree()).pick(watched.path());
    program.press("OK");
    program.play({{"", "Folder Added."},
                  {"OK"},
                  {"1) " + watched.path(), "Currently Selected: 1) " + watched.path()},
                  {"Scan this Folder at Startup (AutoLoad)", "Scan DLL Files"},
                  {"Scan DLL Files"},
                  {"Save and Exit", "Save Successful!"},
                  {"OK"}});
    EXPECT_THAT(settings(), HasSubstr("path=" + watched.path() + "\r\nargs=1,0,0,0,0,0,1\r\n"));
}

TEST_F(SystemDialogs, AScannerIsPicked) {
    const PlantedFile scanner(folder_.path() + "navw32.exe", "");
    const Program program(folder_.program());
    const Step choose{"Choose...", "Choose Anti-Virus Executable File"};
    program.play({{"Options"},
                  {"Edit Settings"},
                  {"Click here to setup your anti-virus or anti-trojan application(s)."},
                  choose,
                  {"Cancel"},
                  choose});
    Form(program.box().window).fill(0, scanner.path());
    program.play({{"Open", "Don't forget to Save!"}, {"OK"}, {"Save", "Save Success!"}, {"OK"}});
    EXPECT_THAT(settings(), HasSubstr("antivirus=" + scanner.path() + "|/HEUR:3\r\n"));
}

} // namespace
} // namespace e2e
