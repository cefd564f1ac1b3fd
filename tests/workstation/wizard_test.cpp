#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

const std::string noScanner = "You didn't choose an anti-virus software exe.  We recommend that you get one "
                              "to take full advantage of Tarvelon";

class WizardRun : public Session {
protected:
    void SetUp() override {
        pc.files.put(dataFolder + "Integrity.dat", "");
        pc.files.put(R"(C:\pavcl.exe)", "");
        putSettings({.settings = "0,1,0,0,0,1,0,1"});
        ASSERT_FALSE(start());
        app->mForm1.Image11.click();
        app->mForm1.cSetW.click();
        ASSERT_TRUE(form().Visible());
    }

    WizardScreen& form() { return app->vDct; }
    void next() { form().Label1.click(); }

    /// The captions of what stands on the page beside its texts and the way on.
    std::string shown() {
        std::string names;
        for (const Control* control : form().controls()) {
            if (control->Visible() && control->kind() != ControlKind::Label) {
                names += control->Caption() + ";";
            }
        }
        return names;
    }
};

TEST_F(WizardRun, NinePagesFromWelcomeToDone) {
    EXPECT_EQ(form().title.Caption(), "Welcome to the Setup Wizard");
    EXPECT_FALSE(form().Label2.Visible());
    EXPECT_EQ(shown(), "");
    next();
    EXPECT_EQ(form().title.Caption(), "Anti-Virus Setup (1/2)");
    EXPECT_TRUE(form().vpath.Visible() && form().varg.Visible() && form().Label4.Visible());
    app->mForm1.cSetW.click();
    EXPECT_EQ(form().title.Caption(), "Anti-Virus Setup (1/2)") << "Asked for again, it stays where it was";
    EXPECT_EQ(form().vpath.Caption(), "Anti-Virus Path");
    form().Label2.click();
    EXPECT_EQ(form().title.Caption(), "Welcome to the Setup Wizard");
    next();
    next();
    EXPECT_EQ(form().title.Caption(), "Anti-Virus Setup (2/2)");
    EXPECT_EQ(shown(), "Test It!;");
    tells(noScanner);
    next();
    EXPECT_EQ(shown(), "Enable Auto-Load (Highly Recommended);");
    next();
    EXPECT_EQ(form().desc.Caption(),
              "-Please choose the types of files you would like to scan at startup.\r\r"
              "-We recommend scanning of at least these files types:\r"
              "DRV,SYS,EXE,SCR and PIF files.");
    EXPECT_EQ(form().Check2.value(), 1);
    EXPECT_EQ(form().Check8.value(), 1);
    EXPECT_EQ(form().Check1.value(), 0);
    next();
    EXPECT_EQ(shown(), "Enable Auto-Scan;");
    next();
    EXPECT_EQ(shown(), "Enable Logging Feature;");
    next();
    EXPECT_EQ(shown(), "Create Shutdown/Scan shortcut;");
    next();
    EXPECT_EQ(form().title.Caption(), "You're done!");
    EXPECT_EQ(form().desc.Caption(),
              "Just click on the Save button to save the settings!\r\rThis setup took: 0 minutes "
              "to complete.\r\rThat was quick! Go Speed Racer Go!");
    EXPECT_FALSE(form().Label1.Visible());
    form().Label2.click();
    pc.messages.advance(95'000);
    next();
    EXPECT_EQ(
        form().desc.Caption(),
        "Just click on the Save button to save the settings!\r\rThis setup took: 2 minutes to complete.");
    asks("Are you sure you want to disregard all changes and exit the setup wizard?", Answer::Yes);
    form().Label3.click();
    EXPECT_FALSE(form().Visible());
}

TEST_F(WizardRun, SavingWritesTheSettingsAndTheShortcut) {
    pc.dialogs.expectOpenFile({.title = "Choose Anti-Virus Executable File", .choice = R"(C:\pavcl.exe)"});
    form().locate.click();
    EXPECT_EQ(form().varg.Caption(), "/NSB /NOM /AUT");
    EXPECT_EQ(app->s_avir.Text6.Caption(), "/NSB /NOM /AUT");
    form().aload.setValue(true);
    form().Check1.setValue(true);
    form().Check6.setValue(true);
    tells("Settings Saved Successfully!");
    form().Command2.click();
    EXPECT_THAT(data("Tarvelon.dat"), HasSubstr("settings=1,1,0,0,0,1,1,1\r\n"));
    EXPECT_EQ(app->settingsFile.getSetting("ANTIVIRUS"), "C:\\pavcl.exe|/NSB /NOM /AUT");
    EXPECT_TRUE(app->globals.settings.autoScanFailed);
    app->settingsPages.loadSettings();
    EXPECT_EQ(app->mForm1.Check1.value(), 1) << "the log-on shortcut is there";

    app->mForm1.cSetW.click();
    form().aload.setValue(false);
    form().vpath.typed("");
    tells(noScanner);
    tells("Settings Saved Successfully!");
    form().Command2.click();
    app->settingsPages.loadSettings();
    EXPECT_EQ(app->mForm1.Check1.value(), 0);
    EXPECT_EQ(app->settingsFile.getSetting("ANTIVIRUS"), "Anti-Virus Software| ");
}

TEST_F(WizardRun, LabelsLightUpOneAtATime) {
    form().Label1.onMouseMove();
    EXPECT_TRUE(form().Label1.Underlined());
    EXPECT_EQ(form().Label1.ForeColor(), 0xff0000u);
    form().Label3.onMouseMove();
    EXPECT_FALSE(form().Label1.Underlined());
    form().Label3.mouseDown();
    EXPECT_EQ(form().Label3.ForeColor(), 0xff8080u);
    form().Label3.mouseUp();
    EXPECT_EQ(form().Label3.ForeColor(), colors::black);
    form().Label3.onMouseMove();
    EXPECT_TRUE(form().Label3.Underlined()) << "lit again after a release";
    form().onMouseMove();
    EXPECT_FALSE(form().Label3.Underlined());
}

} // namespace
} // namespace tarvelon
