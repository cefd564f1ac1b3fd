// What lies beside the program, or in the folder that happens to be current, is neither loaded nor started.

#include "recorder.h"
#include "tools/driver/driver.h"
#include "tools/driver/seen_windows.h"
#include "tools/driver/workplace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace e2e {
namespace {

using testing::IsEmpty;

TEST(Doors, NothingOfTheProgramsOwnOrTheCurrentFolderIsLoadedOrStarted) {
    const ProgramFolder folder("doors");
    folder.writeSettings({{"algo", "MD5"}});
    folder.writeData("Integrity.dat", smallBaseline("DLL", ""));
    folder.writeData("Integrity-md5.dat", smallBaseline("DLL", ""));
    const std::string current = folder.path() + "current\\";
    makeFolder(current);
    // Loaded at run time, for the search and the digests.
    std::vector<std::unique_ptr<PlantedFile>> planted;
    for (const char* library : {"dbghelp.dll", "rsaenh.dll"}) {
        for (const std::string& place : {folder.path(), current}) {
            planted.push_back(std::make_unique<PlantedFile>(place + library,
                                                            readFile(systemDirectory() + library).value()));
        }
    }
    const RecordingScanner stranger(current + "stranger.exe");
    SetCurrentDirectoryW(wide(current).c_str()); // Of the programs that this one starts.

    const Program program(folder.program());
    program.play({{"Options"}, {"Advanced Settings"}, {"Compare Speeds"}});
    const Form window = program.form("Welcome to Tarvelon");
    EXPECT_TRUE(comesTrue([&] { return window.rows().size() == 18; })) << program.describe();
    program.play({{"Cancel"},
                  {"Settings Wizard", "Welcome to the Setup Wizard"},
                  {"Next >>>"},
                  {"Help Me!"},
                  {"AVG (All Operating Systems)"},
                  {"Search for this Selection..."},
                  {"OK"}});
    EXPECT_THAT(program.box(10 * patience).text,
                testing::StartsWith("The default executable for this program was not"));
    program.press("OK");
    program.form("Anti-Virus Shell Help").close();
    program.form("Setup Wizard").fill(0, "stranger.exe");
    program.play({{"Next >>>"}, {"Test It!"}, {"OK"}});
    EXPECT_THAT(program.box().text, testing::HasSubstr("cannot be started"));

    SetCurrentDirectoryA("C:\\");
    EXPECT_THAT(stranger.records(), IsEmpty());
    const std::vector<std::string> modules = program.modules();
    for (const char* library : {"dbghelp.dll", "rsaenh.dll"}) {
        EXPECT_THAT(modules, testing::Contains(testing::StrCaseEq(systemDirectory() + library)));
    }
    for (const std::string& module : modules) {
        EXPECT_TRUE(module == folder.program() || module.rfind(folder.path(), 0) != 0) << module;
    }
}

} // namespace
} // namespace e2e
