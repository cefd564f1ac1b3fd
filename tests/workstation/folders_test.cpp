// The page where a scan is started by hand, and the manager of the custom folders.

#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

class Folders : public Session {
protected:
    void SetUp() override {
        pc.files.put(systemFolder + "a.dll", "a");
        pc.files.put(R"(C:\Tools\t.dll)", "tool");
        pc.files.put(R"(C:\Tools\t.exe)", "program");
        makeBaseline();
        ASSERT_FALSE(start()); // In the run of the primary scan itself no finding is accepted.
    }

    void addFolder(const std::string& path) {
        pc.dialogs.expectFolder({.title = "Please Choose a Folder to Add", .choice = path});
        app->iCust.cButton2.click();
    }

    void showManager() {
        app->mForm1.Image5.click();
        app->mForm1.addRem.click();
        ASSERT_TRUE(app->iCust.Visible());
    }

    std::string setting(int slot, const std::string& key) {
        return app->settingsFile.readIni(app->globals.app.settFile, key, slot);
    }

    const std::string scanQuestion =
        "This Custom Folder C:\\Tools\\ has not been fully scanned yet. The scan is "
        "required by the Integrity Checker.\r\n\r\nPerform scan now?";
};

TEST_F(Folders, AFolderIsAddedScannedChangedFoundAcceptedAndRemoved) {
    showManager();
    tells("Folder Added.");
    addFolder(R"(C:\Tools)");
    EXPECT_EQ(app->iCust.List1.item(0), "1) C:\\Tools\\");
    tells("Save Successful!");
    app->iCust.Command3.click();
    EXPECT_FALSE(app->iCust.Visible());
    EXPECT_EQ(app->mForm1.Combo1.items(), (Rows{systemFolder, "C:\\Tools\\"}));

    asks(scanQuestion, Answer::No);
    tells(
        "You have chosen not to scan this Custom Folder.  You need to run the scan before using this Custom "
        "Folder Integrity Checker.");
    app->mForm1.Combo1.select(1);
    EXPECT_EQ(app->mForm1.Combo1.listIndex(), 0);
    asks(scanQuestion, Answer::Yes);
    tells("Initial Custom Folder Scan Completed Successfully!");
    app->mForm1.Combo1.select(1);
    EXPECT_FALSE(settle());
    EXPECT_FALSE(app->intCheck.Visible());
    const std::string scanned = data("1.dat");
    EXPECT_NE(scanned.find("t.dll=" + crcText("tool") + "*E"), std::string::npos);

    pc.files.put(R"(C:\Tools\t.exe)", "changed");
    app->mForm1.bFULL.click();
    app->mForm1.bSCAN.click();
    pc.messages.when([this] { return app->intCheck.Label6.Caption() == "1"; },
                     [this] { // A further folder, while this one is scanned.
                         app->mForm1.addRem.click();
                         tells("Folder Added.");
                         addFolder(R"(C:\More)");
                         tells("Save Successful!");
                         app->iCust.Command3.click();
                     });
    EXPECT_FALSE(settle());
    EXPECT_EQ(app->intCheck.List1.items(), (Rows{"C:\\Tools\\t.exe"}));
    app->intCheck.Label2.click();
    pc.files.put(R"(C:\av.exe)", "");
    app->intCheck.Text1.Caption = R"(C:\av.exe)";
    app->intCheck.Label12.click();
    EXPECT_THAT(data("1.dat"), HasSubstr("t.exe=" + crcText("changed") + "*E"));
    EXPECT_EQ(data("1.bak").substr(scanned.find("[DLL]")), scanned.substr(scanned.find("[DLL]")));
    app->intCheck.Label12.click();
    EXPECT_FALSE(app->intCheck.Visible());
    EXPECT_FALSE(pc.processes.ended()) << "a scan of the main window goes back to it";

    for (const char* ending : {"-md4.dat", "-md4.bak", "-md5.dat", "-md5.bak", "-sha1.dat", "-sha1.bak"}) {
        pc.files.put(dataFolder + "1" + ending, "x");
    }
    pc.files.put(dataFolder + "11.dat", "another slot's");
    app->mForm1.addRem.click();
    app->iCust.List1.select(0);
    pc.dialogs.expect({.text =
                           "Are you sure you want to remove this folder? Doing so will lose all Integrity "
                           "Checker data for this folder!",
                       .answer = Answer::Ok,
                       .title = "Caution!",
                       .buttons = Buttons::OkCancel});
    app->iCust.Command2.click();
    EXPECT_EQ(app->iCust.List1.item(0), "1) Empty:");
    EXPECT_EQ(setting(1, "path"), "NULL");
    for (const char* ending :
         {".dat", ".bak", "-md4.dat", "-md4.bak", "-md5.dat", "-md5.bak", "-sha1.dat", "-sha1.bak"}) {
        EXPECT_EQ(file(dataFolder + "1" + ending), "(missing)") << ending;
    }
    EXPECT_EQ(data("11.dat"), "another slot's");
}

TEST_F(Folders, AddingIsRefusedForTheDefaultADoubleAndATwentyFirst) {
    showManager();
    tells(
        "This is the default folder that Tarvelon scans. It cannot be added to the Custom Integrity Checker");
    addFolder(R"(c:\windows\SYSTEM32)");
    for (int i = 1; i <= 20; ++i) {
        tells("Folder Added.");
        addFolder("C:\\F" + std::to_string(i));
    }
    EXPECT_EQ(app->iCust.List1.item(19), "20) C:\\F20\\");
    tells("This folder is already being scanned.");
    addFolder(R"(c:\f20)");
    addFolder(R"(C:\F21)");
    EXPECT_EQ(app->iCust.List1.count(), 20);
    pc.dialogs.expectFolder({.title = "Please Choose a Folder to Add", .choice = std::nullopt});
    app->iCust.cButton2.click();

    asks("Do you wish to Save your changes?", Answer::No);
    pc.files.lock(dataFolder + "Tarvelon.dat"); // No matter by the next opening.
    app->iCust.close();
    pc.files.unlock(dataFolder + "Tarvelon.dat");
    EXPECT_EQ(setting(1, "path"), "NULL");
    app->mForm1.addRem.click();
    EXPECT_EQ(app->iCust.List1.item(0), "1) Empty:") << "what was not saved is forgotten";
}

TEST_F(Folders, TypesAreEditedWhileTheirBoxIsTicked) {
    showManager();
    tells("Please select a folder to edit its properties!");
    app->iCust.Check1.click();
    EXPECT_EQ(app->iCust.Check1.BackColor(), 0x800000u);
    tells("Folder Added.");
    addFolder(R"(C:\Tools)");
    app->iCust.List1.select(1);
    EXPECT_FALSE(app->iCust.Check1.Enabled()) << "a free slot has no use";
    app->iCust.List1.select(0);
    EXPECT_EQ(app->iCust.Label1.Caption(), "Currently Selected: 1) C:\\Tools\\");
    EXPECT_FALSE(app->iCust.List2.Enabled());
    app->iCust.Check1.click();
    EXPECT_TRUE(app->iCust.List2.Enabled());
    app->iCust.List2.toggle(0);
    app->iCust.List2.toggle(4);
    app->iCust.Check2.click();
    app->iCust.List4.toggle(5);
    app->iCust.Check2.click();
    EXPECT_EQ(app->iCust.Check2.BackColor(), 0x0000ffu);
    EXPECT_FALSE(app->iCust.List4.Enabled());
    app->iCust.List1.select(2);
    EXPECT_EQ(app->iCust.Check1.BackColor(), 0x0000ffu) << "the box shows the slot that is selected";
    asks("Do you wish to Save your changes?", Answer::Yes);
    tells("Save Successful!");
    app->iCust.close();
    EXPECT_EQ(setting(1, "args"), "1,0,0,0,1,0,1");
    EXPECT_EQ(setting(1, "args2"), "0,0,0,0,0,1,0");
    EXPECT_EQ(app->globals.scan.customIndex, 1) << "the last folder without a data file";

    pc.files.put(dataFolder + "1.dat", "");
    app->mForm1.Combo1.select(1);
    std::string ticks;
    for (const FlatCheck& box : app->mForm1.check) {
        ticks += std::to_string(box.value());
    }
    EXPECT_EQ(ticks, "100010");

    app->mForm1.addRem.click();
    EXPECT_EQ(app->iCust.Label1.Caption(), "Currently Selected:") << "closed, it keeps no selection";
    pc.files.lock(app->globals.app.settFile);
    tells("Save Successful!");
    app->iCust.Command3.click();
    EXPECT_FALSE(app->iCust.Visible()) << "a settings file out of reach is passed over";
}

TEST_F(Folders, ThePageStartsScansOfTheSystemFolder) {
    app->mForm1.Image5.click();
    EXPECT_TRUE(app->mForm1.intF.isShown());
    tells("Please select the files to scan.");
    app->mForm1.bSCAN.click();
    pc.files.put(systemFolder + "b.exe", "b");
    app->mForm1.bEXE.click();
    app->mForm1.bDLL.click();
    app->mForm1.bDLL.click();
    app->mForm1.bSCAN.click();
    EXPECT_TRUE(app->intCheck.Visible());
    EXPECT_FALSE(settle());
    EXPECT_EQ(app->intCheck.l_dll2.Caption(), "DLL Scan --- Not Scanning");
    EXPECT_EQ(app->intCheck.List1.items(), (Rows{systemFolder + "b.exe *NEW*"}));

    // Starting again with findings on the screen asks for them, and a No leaves them there.
    asks(leaveFindings, Answer::Yes, "Warning");
    app->mForm1.bSCAN.click();
    EXPECT_FALSE(settle());
    EXPECT_EQ(app->intCheck.Label6.Caption(), "1");

    asks(leaveFindings, Answer::Yes, "Warning");
    app->intCheck.close();
    EXPECT_FALSE(app->intCheck.Visible());
}

TEST_F(Folders, EnteringWithoutABaselineOffersToStartOver) {
    pc.files.remove(dataFolder + "Integrity.dat");
    pc.files.put(dataFolder + "integrity.bak", "old");
    asks(fullScanQuestion, Answer::No, "Missing File");
    app->mForm1.Image5.click();
    EXPECT_FALSE(app->mForm1.intF.Visible());
    EXPECT_FALSE(app->mForm1.Frame2.Visible()) << "the bare frame";
    asks(fullScanQuestion, Answer::Yes, "Missing File");
    tells("Tarvelon needs to be re-started");
    EXPECT_TRUE(ends([this] { app->mForm1.Image5.click(); }));
    EXPECT_EQ(data("integrity.bak"), "(missing)");
    EXPECT_EQ(pc.processes.started().size(), 1u);
}

} // namespace
} // namespace tarvelon
