// The settings screens and the system around them: its file dialog, its search, its folders for links.

#include "recorder.h"
#include "settings_screens.h"
#include "system_dialogs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace e2e {
namespace {

using testing::ElementsAre;

class SettingsAndSystem : public SettingsScreens {
protected:
    static Form openScanners(const Program& program) {
        const Form window = open(program, "Edit Settings");
        window.click("Click here to setup your anti-virus or anti-trojan application(s).");
        return program.form("Anti-Virus/Trojan Selection Screen");
    }

    static void awaitFields(const Form& form, const std::vector<std::string>& texts) {
        comesTrue([&] { return form.fields() == texts; }, Milliseconds(5000));
        EXPECT_EQ(form.fields(), texts);
    }

    const PassingFolder scanners_{"C:\\Scanners\\"};
    const RecordingScanner known_{scanners_.path() + "navw32.exe"};
    const RecordingScanner other_{scanners_.path() + "other one.com"};
};

TEST_F(SettingsAndSystem, ScannersArePickedInTheFileDialog) {
    {
        const Program program(folder_.program());
        Form choice = openScanners(program);
        const auto choose = [&](std::size_t place) {
            choice.click("Choose...", place);
            return FileDialog(program, "Choose Anti-Virus Executable File");
        };
        const std::vector<std::string> before = choice.fields();
        choose(0).press("Cancel");
        awaitFields(choice, before);
        choose(0).pick(known_.path());
        program.answer("Don't forget to Save!");
        choose(1).pick(other_.path());
        program.answer("Don't forget to Save!");
        awaitFields(choice, {known_.path(), "/HEUR:3", other_.path(), "/HEUR:3"});
        expectSettings({});
        choice.click("Save");
        program.answer("Save Success!");
        awaitHidden(program, choice);
        expectSettings({{"antivirus", known_.path() + "|/HEUR:3"}, {"av2", other_.path() + "|/HEUR:3"}});

        choice = openScanners(program);
        choose(0).pick(other_.path());
        program.answer("Don't forget to Save!");
        awaitFields(choice, {other_.path(), " ", other_.path(), "/HEUR:3"});
        DeleteFileA(other_.path().c_str());
        choice.click("Save");
        program.answer(noScanner);
        program.answer("Save Success!");
        expectSettings({{"antivirus", "Anti-Virus Software| "}, {"av2", "|"}});
    }
    const Program program(folder_.program());
    open(program, "Settings Wizard");
    const Form wizard = program.form("Setup Wizard");
    wizard.click("Next >>>");
    wizard.click("Locate...");
    FileDialog(program, "Choose Anti-Virus Executable File").press("Cancel");
    awaitFields(wizard, {"", " "});
    wizard.click("Locate...");
    FileDialog(program, "Choose Anti-Virus Executable File").pick(known_.path());
    awaitFields(wizard, {known_.path(), "/HEUR:3"});
    for (int page = 1; page < 8; ++page) {
        wizard.click("Next >>>");
    }
    wizard.click("Save");
    program.answer("Settings Saved Successfully!");
    expectSettings({{"antivirus", known_.path() + "|/HEUR:3"}, {"av2", "|"}});
}

TEST_F(SettingsAndSystem, TheCatalogueTellsOfAScannerThatIsNowhere) {
    const Program program(folder_.program());
    openScanners(program).click("Help me find the correct exe file...");
    const Form catalogue = program.form("Anti-Virus Shell Help");
    for (const auto& [product, found] :
         {std::pair("Norton (Win95/98/ME/XP)", true), std::pair("Sophos Anti Virus (All-OS)", false)}) {
        catalogue.clickRow(product);
        catalogue.click("Search for this Selection...");
        program.answer("Tarvelon may become unresponsive during the file search. This is normal.\n\n"
                       "Click OK to continue.");
        program.answer(found ? "Success!"
                             : "The default executable for this program was not found! Make sure you "
                               "selected the correct anti-virus program, and the correct operating system.");
        EXPECT_TRUE(comesTrue([&] { return catalogue.isEnabled("Test It!") == found; })) << product;
        EXPECT_EQ(catalogue.field(), found ? known_.path() : "");
    }
    EXPECT_FALSE(catalogue.isEnabled("Use It!"));
}

TEST_F(SettingsAndSystem, TheShutDownShortcutStandsOnTheDesktop) {
    const LinkPlace link(shellFolder(CSIDL_DESKTOPDIRECTORY) + "SecureShutDown.lnk");
    const Program program(folder_.program());
    open(program, "Shutdown/Scan Shortcut");
    program.answer(desktopQuestion, "Yes");
    program.answer("Success!");
    expectLink(link.path(), " /s");
}

/// A folder that is away while the object lives.
class AbsentFolder {
public:
    /// With a backslash.
    explicit AbsentFolder(const std::string& path)
        : path_(path.substr(0, path.size() - 1)) {
        MoveFileA(path_.c_str(), away().c_str());
    }
    AbsentFolder(const AbsentFolder&) = delete;
    ~AbsentFolder() {
        RemoveDirectoryA(path_.c_str());
        MoveFileA(away().c_str(), path_.c_str());
    }

private:
    std::string away() const { return path_ + " (away)"; }

    std::string path_;
};

TEST_F(SettingsAndSystem, AutoLoadThatCannotBeChangedShowsAsItIsAndCostsNoSetting) {
    const char* const autoLoad = "Auto-Load at Startup";
    const char* const libraries = "Check Dynamic Linked Libraries (DLL)";
    bool ticked = false;
    /// Changes two settings and saves them; Auto-Load shows as told afterwards, on the page opened anew.
    const auto change = [&](bool before, bool after) {
        const Program program(folder_.program());
        Form window = open(program, "Edit Settings");
        EXPECT_EQ(window.isTicked(autoLoad), before);
        window.click(autoLoad);
        window.click(libraries);
        ticked = !ticked;
        window.click("Save Settings");
        program.answer("Settings Saved Successfully");
        window.click("Cancel");
        window.awaitText("Settings Wizard");
        window = open(program, "Edit Settings");
        window.awaitText("Main Tarvelon Settings:");
        EXPECT_EQ(window.isTicked(autoLoad), after);
        EXPECT_EQ(window.isTicked(libraries), ticked);
        expectSettings({{"settings", ticked ? "1,0,0,0,0,0,0,0" : "0,0,0,0,0,0,0,0"}},
                       "settings2=0,0,0,0,0,0\r\n");
    };
    {
        const std::string own = shellFolder(CSIDL_STARTUP);
        const LinkPlace ownLink(own + "Tarvelon.lnk");
        const AbsentFolder everyones(shellFolder(CSIDL_COMMON_STARTUP));
        change(false, true);
        expectLink(ownLink.path(), " /r");
        change(true, false);
        EXPECT_FALSE(ownLink.exists());
        const AbsentFolder owns(own);
        change(false, false);
    }
    const std::string& link = autoLoad_.path();
    CreateDirectoryA(link.c_str(), nullptr);
    change(false, false);
    RemoveDirectoryA(link.c_str());
    writeFile(link, "an old link");
    SetFileAttributesA(link.c_str(), FILE_ATTRIBUTE_READONLY);
    change(true, true);
    SetFileAttributesA(link.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(readFile(link), "an old link");
}

} // namespace
} // namespace e2e
