// The settings page and the advanced page, and the shortcuts that they make.

#include "tests/workstation/session.h"
#include "ui/shortcuts.h"

namespace tarvelon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string startupLink =
    R"(C:\Documents and Settings\All Users\Start Menu\Programs\Startup\Tarvelon.lnk)";
const std::string desktopLink = R"(C:\Documents and Settings\User\Desktop\SecureShutDown.lnk)";
const std::string program = programFolder + "TarvelonLow.exe";

class SettingsRun : public Session {
protected:
    void SetUp() override {
        pc.files.put(program, "program");
        pc.files.put(dataFolder + "Integrity.dat", "");
        ASSERT_FALSE(start());
    }

    void openSettings() {
        app->mForm1.Image11.click();
        app->mForm1.cSettings.click();
        ASSERT_TRUE(app->mForm1.qSett.isShown());
        ASSERT_FALSE(app->mForm1.advF.Visible());
    }

    void openAdvanced() {
        app->mForm1.Image11.click();
        app->mForm1.cButton2.click();
        ASSERT_TRUE(app->mForm1.advF.isShown());
        ASSERT_FALSE(app->mForm1.qSett.Visible());
    }

    void save() {
        tells("Settings Saved Successfully");
        app->mForm1.cSave.click();
    }

    void saveAdvanced() {
        tells("Save Success!");
        app->mForm1.cSave2.click();
    }

    void createSS(Answer onDesktop, const std::string& notice = "") {
        pc.dialogs.expect(
            {.text = "Tarvelon will now create a shortcut for you to use the Secure ShutDown and Scan "
                     "Feature.\r\nWould you like this shortcut on your Desktop?",
             .answer = onDesktop,
             .buttons = Buttons::YesNo});
        if (!notice.empty()) {
            tells(notice);
        }
        tells("Success!");
        app->mForm1.cCreateSS.click();
    }

    template<class Boxes>
    static void tick(const Boxes& boxes, const std::string& ticks) {
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            boxes[i]->setValue(ticks.at(i) == '1');
        }
    }

    template<class Boxes>
    static std::string ticks(const Boxes& boxes) {
        std::string text;
        for (const auto* box : boxes) {
            text += std::to_string(box->value());
        }
        return text;
    }

    /// The caption of the one chosen option, or empty.
    template<class Choices>
    static std::string chosen(const Choices& choices) {
        std::string captions;
        for (const auto& choice : choices) {
            captions += choice.first->value() ? choice.first->Caption() : "";
        }
        return captions;
    }
};

TEST_F(SettingsRun, SaveWritesBothListsAndTheShortcutIsTheAutoLoadSetting) {
    openSettings();
    MForm1Screen& form = app->mForm1;
    EXPECT_EQ(form.Check1.value(), 0);
    tick(form.autoLoadChecks, "11101101");
    tick(form.shutDownChecks, "111011");
    form.Check1.click();
    pc.files.remove(dataFolder + "Tarvelon.dat"); // Made again in front of the write.
    save();
    EXPECT_TRUE(form.qSett.isShown());
    EXPECT_THAT(data("Tarvelon.dat"), HasSubstr("[Tarvelon]\r\n"
                                                "settings=1,1,1,0,1,1,0,1\r\n"
                                                "advanced=65536,500,0\r\n"
                                                "antivirus=\r\n"
                                                "av2=\r\n"
                                                "antivirus2=1,0,0\r\n"
                                                "algo=crc32\r\n"
                                                "settings2=1,1,1,0,1,1\r\n"));
    EXPECT_FALSE(app->globals.settings.autoScanFailed);
    EXPECT_NE(file(startupLink), "(missing)");

    form.Check8.click();
    pc.files.put(startupLink, "an old link");
    save();
    EXPECT_TRUE(app->globals.settings.autoScanFailed) << "at once";
    EXPECT_NE(file(startupLink), "an old link");
    EXPECT_EQ(pc.shortcuts.shellLinks().size(), 2u);

    pc.files.remove(startupLink);
    openSettings();
    EXPECT_EQ(form.Check1.value(), 0) << "removed by hand";
    form.Check1.click();
    save();
    form.Check1.click();
    save();
    EXPECT_EQ(file(startupLink), "(missing)");
}

TEST_F(SettingsRun, WhatIsNotSavedIsForgottenAndShortListsLeaveTheRest) {
    openSettings();
    MForm1Screen& form = app->mForm1;
    tick(form.autoLoadChecks, "11111111");
    form.cCancelSett.click();
    EXPECT_TRUE(form.setFq.isShown());
    EXPECT_FALSE(form.settF.Visible());
    EXPECT_EQ(form.Check7.value(), 1) << "read live until the next loading";
    openSettings();
    EXPECT_EQ(ticks(form.autoLoadChecks), "00000000");

    tick(form.autoLoadChecks, "11111111");
    tick(form.shutDownChecks, "111111");
    pc.files.put(dataFolder + "Tarvelon.dat", "[Tarvelon]\r\nsettings=0,1,0\r\nsettings2=0,0\r\n");
    openSettings();
    EXPECT_EQ(ticks(form.autoLoadChecks), "01011111");
    EXPECT_EQ(ticks(form.shutDownChecks), "001111");
}

TEST_F(SettingsRun, BothWaysOfMakingShortcutsDifferInTheirArguments) {
    openSettings();
    app->mForm1.Check1.click();
    save();
    createSS(Answer::Yes);
    const auto shellLink = [](const std::string& path, const std::string& arguments) {
        return MadeShortcut<ShellLink>{path,
                                       {.path = program,
                                        .workingDirectory = "",
                                        .arguments = arguments,
                                        .description = std::string("Access Shortcut\0", 16),
                                        .iconFile = program,
                                        .iconIndex = 0,
                                        .showCmd = 5,
                                        .resolveFlags = 4}};
    };
    EXPECT_THAT(pc.shortcuts.shellLinks(),
                ElementsAre(shellLink(startupLink, " /r"), shellLink(desktopLink, " /s")));
    EXPECT_THAT(pc.shortcuts.scripted(), IsEmpty());

    pc.files.remove(desktopLink);
    app->globals.settings.useWsh = 1;
    save();
    createSS(Answer::Yes);
    using Scripted = MadeShortcut<ScriptedShortcut>;
    EXPECT_THAT(pc.shortcuts.scripted(),
                ElementsAre(Scripted{startupLink, {"/r", "Tarvelon", program, 0}},
                            Scripted{desktopLink, {"/s", "SecureShutDown", program, 0}}));
    EXPECT_EQ(pc.shortcuts.shellLinks().size(), 2u);

    Platform platform = pc.platform();
    const CaseRules& cases = app->globals.cases;
    EXPECT_TRUE(makeShortcutWsh(platform, cases, R"(C:\Page.URL)", "", program, ""));
    EXPECT_TRUE(makeShortcutWsh(platform, cases, R"(C:\Plain)", "", program, ""));
    EXPECT_EQ(pc.shortcuts.scripted()[2].path, R"(C:\Page.URL)");
    EXPECT_EQ(pc.shortcuts.scripted()[3].path, R"(C:\Plain.lnk)");
    EXPECT_FALSE(makeShortcut(platform, "", program, "", "", "", 0, 1));
    EXPECT_FALSE(makeShortcut(platform, R"(C:\Empty.lnk)", "", "", "", "", 0, 1));
    EXPECT_EQ(file(R"(C:\Empty.lnk)"), "(missing)");
}

TEST_F(SettingsRun, AShortcutThatCannotBeMadeIsOnlyMissing) {
    openSettings();
    const auto checkAfterSaving = [this] {
        app->mForm1.Check1.setValue(true);
        save();
        openSettings();
        return app->mForm1.Check1.value();
    };
    pc.faults.failAlways(Operation::SaveShellLink);
    EXPECT_EQ(checkAfterSaving(), 0);
    pc.shortcuts.hasScriptingHost = false;
    pc.files.put(dataFolder + "Tarvelon.dat", "[Tarvelon]\r\nadvanced=65536,500,1\r\n");
    openSettings();
    EXPECT_EQ(checkAfterSaving(), 0);

    pc.shortcuts.hasScriptingHost = true;
    pc.folders.special.erase(24);
    EXPECT_EQ(checkAfterSaving(), 0) << "no StartUp folder in that of the programs";
    pc.files.makeFolders(R"(C:\Documents and Settings\User\Start Menu\Programs\StartUp\)");
    EXPECT_EQ(checkAfterSaving(), 1);

    const std::string link = R"(C:\Documents and Settings\User\Start Menu\Programs\StartUp\Tarvelon.lnk)";
    pc.files.put(link, "of somebody else");
    pc.files.denyWrites(link);
    EXPECT_EQ(checkAfterSaving(), 1);
    EXPECT_EQ(file(link), "of somebody else");
}

TEST_F(SettingsRun, TheShutDownShortcutGoesWhereTheUserSays) {
    app->mForm1.Image11.click();
    const std::string ownLink = programFolder + "SecureShutDown.lnk";
    createSS(Answer::No, "Tarvelon will now create a SecureShutDown shortcut in your Tarvelon directory.");
    EXPECT_NE(file(ownLink), "(missing)");
    EXPECT_EQ(file(desktopLink), "(missing)");

    pc.files.put(desktopLink, "there already");
    createSS(Answer::Yes);
    EXPECT_EQ(file(desktopLink), "there already");

    pc.files.remove(ownLink);
    pc.folders.special.erase(0);
    createSS(Answer::Yes,
             "Error: Could not find Desktop directory...Creating shortcut in Tarvelon directory.");
    EXPECT_NE(file(ownLink), "(missing)");
}

TEST_F(SettingsRun, TheAdvancedPageShowsWhatIsInForceAndSavesWhatIsPicked) {
    MForm1Screen& form = app->mForm1;
    openAdvanced();
    EXPECT_EQ(chosen(form.bufferOptions) + "|" + chosen(form.passOptions) + "|" +
                  chosen(form.algorithmOptions),
              "64 Kb|500|CRC32");
    for (Control* option : {&form.Option2, &form.Option5, &form.Option13}) {
        static_cast<OptionButton*>(option)->click();
    }
    form.wsh.click();
    form.Check11.click();
    form.avfocus.click();
    saveAdvanced();
    const std::string saved = data("Tarvelon.dat");
    EXPECT_THAT(saved, HasSubstr("\r\nadvanced=131072,99999,1\r\n"));
    EXPECT_THAT(saved, HasSubstr("\r\nantivirus2=1,1,1\r\nalgo=SHA1\r\n"));
    EXPECT_FALSE(app->globals.settings.shortPaths) << "follows at the next loading";
    openAdvanced();
    EXPECT_TRUE(app->globals.settings.shortPaths);
    EXPECT_EQ(chosen(form.bufferOptions) + "|" + chosen(form.passOptions) + "|" +
                  chosen(form.algorithmOptions),
              "128 Kb|Pass All Files|SHA-1");
    EXPECT_EQ(form.wsh.value(), 1);

    form.Option3.click();
    form.cButton1.click();
    EXPECT_TRUE(form.setFq.isShown());
    pc.files.put(dataFolder + "Tarvelon.dat", "[Tarvelon]\r\nadvanced=70000,7,0\r\nalgo=rot13\r\n");
    openAdvanced();
    EXPECT_EQ(chosen(form.bufferOptions) + chosen(form.passOptions) + chosen(form.algorithmOptions), "");
    saveAdvanced();
    EXPECT_THAT(data("Tarvelon.dat"), HasSubstr("advanced=70000,7,0\r\nalgo=rot13\r\n"))
        << "other values last until an option is picked";
}

TEST_F(SettingsRun, AnotherAlgorithmNeedsAFullScanOfItsOwn) {
    openAdvanced();
    app->mForm1.Option12.click();
    saveAdvanced();
    EXPECT_EQ(app->globals.app.intFile, dataFolder + "Integrity-md5.dat");
    EXPECT_EQ(data("Integrity.dat"), "");
    asks(fullScanQuestion, Answer::No, "Missing File");
    app->mForm1.Image5.click();
    EXPECT_FALSE(app->mForm1.intF.Visible());

    openAdvanced();
    app->mForm1.Option11.click();
    saveAdvanced();
    app->mForm1.Image5.click();
    EXPECT_TRUE(app->mForm1.intF.isShown());
}

TEST_F(SettingsRun, TheWarningFollowsClicksOnly) {
    MForm1Screen& form = app->mForm1;
    pc.files.put(dataFolder + "Tarvelon.dat", "[Tarvelon]\r\nantivirus2=0,0,0\r\n");
    openAdvanced();
    EXPECT_FALSE(form.Label1.Visible()) << "not by opening the page";
    for (const auto& [clicked, other] :
         {std::pair(&form.Check10, &form.Check11), std::pair(&form.Check11, &form.Check10)}) {
        SCOPED_TRACE(clicked->Caption());
        clicked->click();
        EXPECT_FALSE(form.Label1.Visible());
        clicked->click();
        EXPECT_TRUE(form.Label1.Visible());
        other->click();
        EXPECT_FALSE(form.Label1.Visible());
        clicked->click();
        form.Label1.Visible = true;
        clicked->click();
        EXPECT_TRUE(form.Label1.Visible()) << "left as it is while the other is ticked";
        other->click();
    }
}

} // namespace
} // namespace tarvelon
