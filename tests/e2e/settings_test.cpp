// The settings from the user's side: the wizard, the two settings pages, and the choice of the scanners.

#include "recorder.h"
#include "settings_screens.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace e2e {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

TEST_F(SettingsScreens, TheWizardLeadsFromWelcomeToDoneAndWritesOnlyAtItsEnd) {
    const RecordingScanner scanner(folder_.path() + "scanner.exe");
    const Program program(folder_.program());
    open(program, "Settings Wizard");
    const Form wizard = program.form("Setup Wizard");
    const auto next = [&](const char* title) {
        wizard.click("Next >>>");
        wizard.awaitText(title);
    };
    wizard.awaitText("Welcome to the Setup Wizard");
    EXPECT_FALSE(wizard.shows("<<< Back"));
    next("Anti-Virus Setup (1/2)");
    wizard.fill(0, scanner.path());
    wizard.fill(1, "/deep");
    next("Anti-Virus Setup (2/2)");
    wizard.click("Test It!");
    program.answer(testNotice);
    EXPECT_THAT(scanner.records(1),
                ElementsAre("2 " + scanner.path() + " \"" + folder_.path() + "Data\\Tarvelon.dat\" \"" +
                            folder_.path() + "Data\\Integrity.dat\""));
    next("Main Settings (1/3)");
    wizard.click("Enable Auto-Load (Highly Recommended)");
    next("Main Settings (2/3)");
    wizard.click("Check DRV (Drivers)");
    wizard.click("Check SCR,PIF (Commonly Exploited File Types)");
    wizard.click("<<< Back");
    wizard.awaitText("Main Settings (1/3)");
    EXPECT_TRUE(wizard.isTicked("Enable Auto-Load (Highly Recommended)"));
    next("Main Settings (2/3)");
    next("Main Settings (3/3)");
    wizard.click("Enable Auto-Scan");
    next("Other Settings (1/2)");
    wizard.click("Enable Logging Feature");
    next("Other Settings (2/2)");
    wizard.click("Create Shutdown/Scan shortcut");
    program.answer(desktopQuestion, "No");
    program.answer("Tarvelon will now create a SecureShutDown shortcut in your Tarvelon directory.");
    program.answer("Success!");
    expectLink(folder_.path() + "SecureShutDown.lnk", " /s");
    next("You're done!");
    EXPECT_FALSE(wizard.shows("Next >>>"));
    EXPECT_THAT(wizard.describe(), HasSubstr("This setup took: 0 minutes to complete."));
    expectSettings({});
    EXPECT_FALSE(autoLoad_.exists());

    wizard.click("Cancel");
    program.answer("Are you sure you want to disregard all changes and exit the setup wizard?", "No");
    wizard.click("Save");
    program.answer("Settings Saved Successfully!");
    awaitHidden(program, wizard);
    expectSettings({{"settings", "0,1,0,0,0,1,1,1"}, {"antivirus", scanner.path() + "|/deep"}});
    expectLink(autoLoad_.path(), " /r");
}

TEST_F(SettingsScreens, TheSettingsPageSavesReloadsAndForgetsWhatIsNotSaved) {
    const char* const atLogOn = "Check ActiveX Files (OCX)";
    const char* const atShutDown = "SYS,386";
    const Changes saved = {{"settings", "0,0,0,1,0,0,1,0"}};
    const std::string added = "settings2=0,0,1,0,0,0\r\n";
    writeFile(autoLoad_.path(), "an old link");
    {
        const Program program(folder_.program());
        const Form window = open(program, "Edit Settings");
        window.awaitText("Main Tarvelon Settings:");
        EXPECT_TRUE(window.isTicked("Auto-Load at Startup"));
        for (const char* text : {atLogOn, atShutDown, "Auto-Scan Failed Files"}) {
            window.click(text);
        }
        window.click("Save Settings");
        program.answer("Settings Saved Successfully");
        expectSettings(saved, added);
        expectLink(autoLoad_.path(), " /r");

        window.click("Auto-Logging");
        window.click("Auto-Load at Startup");
        window.click("Cancel");
        window.awaitText("Settings Wizard");
        expectSettings(saved, added);
        EXPECT_TRUE(autoLoad_.exists());
    }
    const Program program(folder_.program());
    const Form window = open(program, "Edit Settings");
    for (const char* text : {atLogOn, atShutDown, "Auto-Scan Failed Files", "Auto-Load at Startup"}) {
        EXPECT_TRUE(window.isTicked(text)) << text;
    }
    EXPECT_FALSE(window.isTicked("Auto-Logging"));
}

TEST_F(SettingsScreens, TheAdvancedPageSavesAndHasTheScriptingHostMakeShortcuts) {
    const Program program(folder_.program());
    const Form window = open(program, "Advanced Settings");
    for (const char* text : {"64 Kb", "500", "CRC32"}) {
        EXPECT_TRUE(window.isTicked(text)) << text;
    }
    const char* const warning = "Warning! Current options may cause errors!";
    const char* const scripting = "Use Windows Scripting Host (If Auto-Load won't create shortcut/save)";
    EXPECT_FALSE(window.shows(warning));
    for (const char* text : {"256 Kb", "100", "MD5", "Enclose Files with Quotes", scripting}) {
        window.click(text);
    }
    window.awaitText(warning);
    window.click("Save");
    program.answer("Save Success!");
    const Changes saved = {{"advanced", "262144,100,1"}, {"antivirus2", "0,0,0"}, {"algo", "MD5"}};
    expectSettings(saved);

    open(program, "Advanced Settings");
    for (const char* text : {"256 Kb", "100", "MD5", scripting}) {
        EXPECT_TRUE(window.isTicked(text)) << text;
    }
    open(program, "Edit Settings");
    window.click("Auto-Load at Startup");
    window.click("Save Settings");
    program.answer("Settings Saved Successfully");
    const std::optional<LinkFile> link = readLink(autoLoad_.path());
    ASSERT_TRUE(link);
    EXPECT_EQ(link->target, folder_.program());
    EXPECT_EQ(link->arguments, "/r") << "made by the scripting host";
    EXPECT_EQ(link->description, "Tarvelon");
}

TEST_F(SettingsScreens, ScannersAreSearchedTestedUsedAndSavedForBothPlaces) {
    const PassingFolder known("C:\\Program Files\\Known Scanners\\");
    const RecordingScanner first(known.path() + "nod32.exe");
    const RecordingScanner second(known.path() + "navw32.exe");
    const Program program(folder_.program());
    const Form window = open(program, "Edit Settings");
    window.click("Click here to setup your anti-virus or anti-trojan application(s).");
    const Form choice = program.form("Anti-Virus/Trojan Selection Screen");

    const auto search = [&](std::size_t place, const char* product, const std::string& path) {
        choice.click("Help me find the correct exe file...", place);
        const Form catalogue = program.form("Anti-Virus Shell Help");
        catalogue.clickRow(product);
        catalogue.click("Search for this Selection...");
        program.answer("Tarvelon may become unresponsive during the file search. This is normal.\n\n"
                       "Click OK to continue.",
                       "OK");
        program.answer("Success!");
        EXPECT_TRUE(comesTrue([&] { return catalogue.fields() == std::vector<std::string>{path}; }));
        return catalogue;
    };
    Form catalogue = search(0, "NOD32 (All Operating Systems)", first.path());
    EXPECT_FALSE(catalogue.isEnabled("Use It!")) << "not tested yet";
    catalogue.click("Test It!");
    program.answer(testNotice);
    EXPECT_THAT(first.records(1),
                ElementsAre("2 \"" + first.path() + "\" \"" + folder_.path() + "Data\\Tarvelon.dat\" \"" +
                            folder_.path() + "Data\\Integrity.dat\""));
    EXPECT_TRUE(comesTrue([&] { return catalogue.isEnabled("Use It!"); }));
    catalogue.click("Use It!");
    awaitHidden(program, catalogue);
    EXPECT_TRUE(comesTrue([&] { return choice.fields()[0] == first.path(); }));

    catalogue = search(1, "Norton (Win95/98/ME/XP)", second.path());
    catalogue.click("Use It!");
    awaitHidden(program, catalogue);
    EXPECT_THAT(choice.fields(), ElementsAre(first.path(), " ", second.path(), second.path()));
    EXPECT_THAT(second.recordsNow(), IsEmpty());
    choice.click("Save");
    program.answer("Save Success!");
    awaitHidden(program, choice);
    expectSettings({{"antivirus", first.path() + "| "}, {"av2", second.path() + "|" + second.path()}});
}

} // namespace
} // namespace e2e
