// The settings page, the advanced page and the wizard, and the shortcuts that they make.

#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

using testing::ElementsAre;
using testing::EndsWith;

const std::string programsMenu = R"(C:\Documents and Settings\User\Start Menu\Programs\)";
const std::string startupLink =
    R"(C:\Documents and Settings\All Users\Start Menu\Programs\Startup\Tarvelon.lnk)";
const std::string desktopLink = R"(C:\Documents and Settings\User\Desktop\SecureShutDown.lnk)";
const std::string ownLink = programFolder + "SecureShutDown.lnk";
const std::string program = programFolder + "TarvelonLow.exe";

class SettingsRun : public Session {
protected:
    void SetUp() override {
        pc.files.put(dataFolder + "Integrity.dat", "");
        pc.files.put(R"(C:\pavcl.exe)", "");
        ASSERT_FALSE(start());
    }

    WizardScreen& wizard() { return app->vDct; }

    void load(const std::string& lines) {
        pc.files.put(dataFolder + "Tarvelon.dat", "[Tarvelon]\r\n" + lines);
        form().cButton2.click();
    }

    void save() { clickTelling(form().cSave, "Settings Saved Successfully"); }
    void saveAdvanced() { clickTelling(form().cSave2, "Save Success!"); }

    void createSS(Answer onDesktop, const std::string& notice = "") {
        asks("Tarvelon will now create a shortcut for you to use the Secure ShutDown and Scan "
             "Feature.\r\nWould you like this shortcut on your Desktop?",
             onDesktop);
        tells(notice);
        clickTelling(form().cCreateSS, "Success!");
    }

    template<class Choices>
    static std::string chosen(const Choices& choices) {
        std::string captions;
        for (const auto& choice : choices) {
            captions += choice.first->value() ? choice.first->Caption() : "";
        }
        return captions;
    }

    /// The boxes of the settings page, and what the advanced page shows.
    std::string shown() {
        return ticks(form().autoLoadChecks) + " " + ticks(form().shutDownChecks) + " " +
               ticks(form().shellChecks) + " " + chosen(form().bufferOptions) + "," +
               chosen(form().passOptions) + "," + chosen(form().algorithmOptions) +
               (form().wsh.value() ? ",WSH" : "");
    }

    /// The title of the wizard's page, then what stands on it beside texts and ways on.
    std::string page() {
        std::string names = wizard().title.Caption();
        for (const Control* control : wizard().controls()) {
            if (control->Visible() && control->kind() != ControlKind::Label && control->Caption() != "") {
                names += ";" + control->Caption();
            }
        }
        return names;
    }
};

TEST_F(SettingsRun, ShowWhatTheFileHoldsAsFarAsItCanBeRead) {
    load("antivirus=C:\\av one.exe| /s /x |y\r\nav2=C:\\b.exe|\r\n");
    SAvirScreen& scanners = app->s_avir;
    EXPECT_EQ(scanners.Text5.Caption() + ";" + scanners.Text6.Caption() + ";" + scanners.Text1.Caption(),
              "C:\\av one.exe;/s /x |y;C:\\b.exe");
    // One after the other: what a text does not hold, or holds behind a value of no use, stays as it was.
    const std::pair<const char*, std::string> loadings[] = {
        {"", "00000000 000000 100 64 Kb,500,CRC32"},
        {"SETTINGS=1,0,1,0,1,0,1,1,1,1\r\nsettings2=1,0,1,0,1,0,1\r\nadvanced=131072,50,1,0\r\n"
         "antivirus2=0,1,1,0\r\nalgo=Md5\r\n",
         "10101011 101010 011 128 Kb,50,MD5,WSH"},
        {"settings=0,1,0\r\nsettings2=0,1\r\nantivirus2=1,1\r\nalgo= sha1 \r\n",
         "01001011 011010 111 128 Kb,50,SHA-1,WSH"},
        {"advanced=70000,7,0\r\nalgo=rot13\r\n", "01001011 011010 111 ,,"},
        {"settings=1,1,1\r\nsettings2=1,x,0\r\nadvanced=65536\r\n", "11101011 111010 111 ,,"},
        {"advanced=65536,500,32768\r\nantivirus2=0,0,0\r\nalgo=MD5\r\n", "11101011 111010 111 64 Kb,500,"}};
    for (const auto& [lines, expected] : loadings) {
        load(lines);
        EXPECT_EQ(shown(), expected) << lines;
    }
}

TEST_F(SettingsRun, SaveWritesBothListsAndTheShortcutIsTheAutoLoadSetting) {
    load("settings=1,1,1,0,1,1,0,1\r\nsettings2=1,1,1,0,1,1\r\n");
    form().Check1.click();
    pc.files.remove(dataFolder + "Tarvelon.dat"); // Made again in front of the write.
    save();
    EXPECT_THAT(data("Tarvelon.dat"),
                HasSubstr("[Tarvelon]\r\nsettings=1,1,1,0,1,1,0,1\r\nadvanced=65536,500,0\r\nantivirus=\r\n"
                          "av2=\r\nantivirus2=1,0,0\r\nalgo=crc32\r\nsettings2=1,1,1,0,1,1\r\n\r\n[1]\r\n"));
    form().Check8.click();
    save();
    EXPECT_TRUE(app->globals.settings.autoScanFailed) << "at once";

    pc.files.remove(startupLink);
    form().cSettings.click();
    EXPECT_EQ(form().Check1.value(), 0) << "removed by hand";
    for (const bool made : {true, false}) {
        form().Check1.click();
        save();
        EXPECT_EQ(file(startupLink) != "(missing)", made);
    }
    pc.files.lock(dataFolder + "Tarvelon.dat");
    clickTelling(form().cSave, "The settings file cannot be made:\r\n" + dataFolder + "Tarvelon.dat");
}

TEST_F(SettingsRun, ShortcutsOfBothKindsAreMadeWhereTheUserAndTheSystemSay) {
    using namespace std::string_literals;
    const auto link = [](const std::string& path, const std::string& arguments) {
        const ShellLink told{program, "", arguments, "Access Shortcut\0"s, program, 0, 5, 4};
        return MadeShortcut<ShellLink>{path, told};
    };
    form().Check1.click();
    save();
    createSS(Answer::Yes);
    pc.folders.special.erase(24); // Then it is in the folder of the programs.
    pc.files.makeFolders(programsMenu + "StartUp\\");
    load("advanced=65536,500,1\r\n");
    form().Check1.click();
    save();
    createSS(Answer::Yes); // It is there already.
    createSS(Answer::No, "Tarvelon will now create a SecureShutDown shortcut in your Tarvelon directory.");
    pc.files.remove(ownLink);
    pc.folders.special.erase(0);
    createSS(Answer::Yes,
             "Error: Could not find Desktop directory...Creating shortcut in Tarvelon directory.");
    EXPECT_THAT(pc.shortcuts.shellLinks(), ElementsAre(link(startupLink, " /r"), link(desktopLink, " /s")));
    const MadeShortcut<ScriptedShortcut> own{ownLink, {"/s", "SecureShutDown", program, 0}};
    const MadeShortcut<ScriptedShortcut> autoLoad{programsMenu + "StartUp\\Tarvelon.lnk",
                                                  {"/r", "Tarvelon", program, 0}};
    EXPECT_THAT(pc.shortcuts.scripted(), ElementsAre(autoLoad, own, own));
}

TEST_F(SettingsRun, TheAdvancedPageSavesWhatIsPickedAndKeepsWhatItDoesNotOffer) {
    pc.files.remove(dataFolder + "Tarvelon.dat");
    click(form().Option2, form().Option5, form().Option13, form().wsh, form().Check11, form().avfocus);
    saveAdvanced();
    EXPECT_THAT(data("Tarvelon.dat"), HasSubstr("\r\nadvanced=131072,99999,1\r\nantivirus=\r\nav2=\r\n"
                                                "antivirus2=1,1,1\r\nalgo=SHA1\r\n"));
    EXPECT_EQ(app->globals.app.intFile, dataFolder + "Integrity-sha1.dat");
    EXPECT_FALSE(app->globals.settings.shortPaths) << "follows at the next loading";
    load("advanced=70000,7,0\r\nantivirus2=1,1,1\r\nalgo=rot13\r\n");
    EXPECT_TRUE(app->globals.settings.shortPaths);
    saveAdvanced();
    EXPECT_THAT(data("Tarvelon.dat"), HasSubstr("advanced=70000,7,0\r\nantivirus2=1,1,1\r\nalgo=rot13\r\n"));
}

TEST_F(SettingsRun, TheWarningFollowsClicksOnly) {
    load("antivirus2=0,0,0\r\n");
    EXPECT_FALSE(form().Label1.Visible()) << "not by opening the page";
    CheckBox* const quotes = &form().Check10;
    CheckBox* const names = &form().Check11;
    std::string warned;
    for (CheckBox* clicked : {quotes, quotes, names, quotes, quotes, names, quotes, names, names}) {
        clicked->click();
        warned += form().Label1.Visible() ? "!" : "-";
    }
    EXPECT_EQ(warned, "-!---!---") << "only by clearing the last one";
}

TEST_F(SettingsRun, TheWizardHasNinePagesFromWelcomeToDone) {
    load("settings=0,1,0,0,0,1,0,1\r\nantivirus=C:\\gone.exe|/x\r\n");
    std::string texts;
    for (int number = 1; number <= 9; ++number) {
        form().cSetW.click(); // Asked for again, it stays where it is.
        EXPECT_EQ(wizard().Label2.Visible(), number > 1);
        EXPECT_EQ(wizard().Label1.Visible(), number < 9);
        texts += page() + "\n" + wizard().desc.Caption() + "\n";
        if (number == 3) {
            tells(noScanner);
        }
        wizard().Label1.click();
    }
    EXPECT_EQ(ticks(wizard().settingChecks), "01000101");
    EXPECT_EQ(crcText(texts), "9CF3E573") << "settled to the letter:\n" << texts;

    click(wizard().Label2, wizard().Label2);
    EXPECT_EQ(page(), "Other Settings (2/2);Create Shutdown/Scan shortcut");
    pc.messages.advance(95'000);
    wizard().Label1.click();
    EXPECT_THAT(wizard().desc.Caption(), EndsWith("This setup took: 2 minutes to complete."));
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        asks("Are you sure you want to disregard all changes and exit the setup wizard?", answer);
        wizard().Label3.click();
        EXPECT_EQ(wizard().Visible(), answer == Answer::No);
    }
}

TEST_F(SettingsRun, TheWizardWritesTheSettingsAndTheShortcut) {
    load("settings=0,1,0,0,0,1,0,1\r\n");
    pc.dialogs.expectOpenFile({.title = "Choose Anti-Virus Executable File", .choice = R"(C:\pavcl.exe)"});
    click(form().cSetW, wizard().locate, wizard().aload, wizard().Check1, wizard().Check6);
    EXPECT_EQ(app->s_avir.Text6.Caption(), "/NSB /NOM /AUT");
    clickTelling(wizard().Command2, "Settings Saved Successfully!");
    EXPECT_EQ(data("Tarvelon.dat"),
              "[Tarvelon]\r\nsettings=1,1,0,0,0,1,1,1\r\nantivirus=C:\\pavcl.exe|/NSB /NOM /AUT\r\n");
    EXPECT_TRUE(app->globals.settings.autoScanFailed && !wizard().Visible());
    EXPECT_NE(file(startupLink), "(missing)");
}

} // namespace
} // namespace tarvelon
