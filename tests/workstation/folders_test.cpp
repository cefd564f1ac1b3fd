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
        pc.files.put(R"(C:\av.exe)", "");
        makeBaseline();
        // In the run of the primary scan itself no finding is accepted, and no scan of the page hands its
        // findings over by itself.
        write("settings", "0,0,0,0,0,0,1,0", "Tarvelon");
        write("antivirus", "C:\\av.exe|", "Tarvelon");
        ASSERT_FALSE(start());
        app->mForm1.Image5.click();
    }

    ICustScreen& manager() { return app->iCust; }

    void addFolder(const std::string& path, const std::string& notice = "Folder Added.") {
        pc.dialogs.expectFolder({.title = "Please Choose a Folder to Add", .choice = path});
        clickTelling(manager().cButton2, notice);
    }

    void saveFolders() {
        clickTelling(manager().Command3, "Save Successful!");
        EXPECT_FALSE(manager().Visible());
    }

    void write(const std::string& key, const std::string& value, const std::string& section) {
        app->settingsFile.writeEntry(app->globals.app.settFile, key, value, section);
    }

    void scan() {
        form().bSCAN.click();
        EXPECT_FALSE(settle());
    }
};

TEST_F(Folders, AFolderIsAddedScannedChangedFoundAcceptedAndRemoved) {
    form().addRem.click();
    addFolder(R"(C:\Tools)");
    addFolder(R"(C:\More)");
    saveFolders();
    EXPECT_EQ(form().Combo1.items(), (Rows{systemFolder, "C:\\Tools\\", "C:\\More\\"}));
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        asks("This Custom Folder C:\\Tools\\ has not been fully scanned yet. The scan is required by the "
             "Integrity Checker.\r\n\r\nPerform scan now?",
             answer);
        tells(answer == Answer::Yes ? "Initial Custom Folder Scan Completed Successfully!"
                                    : "You have chosen not to scan this Custom Folder.  You need to run the "
                                      "scan before using this Custom Folder Integrity Checker.");
        form().Combo1.select(1);
        EXPECT_EQ(form().Combo1.listIndex(), answer == Answer::Yes ? 1 : 0);
        EXPECT_FALSE(settle());
    }
    EXPECT_THAT(data("1.dat"), HasSubstr("t.dll=" + crcText("tool") + "*E"));

    pc.files.put(R"(C:\Tools\t.exe)", "changed");
    click(form().bFULL, form().bCLEAR);
    clickTelling(form().bSCAN, "Please select the files to scan.");
    form().bFULL.click();
    pc.messages.when([this] { return app->intCheck.Label6.Caption() == "1"; },
                     [this] { // A further folder, while this one is scanned.
                         addFolder(R"(C:\Late)");
                         saveFolders();
                     });
    scan();
    EXPECT_EQ(app->intCheck.List1.items(), (Rows{"C:\\Tools\\t.exe"}));
    click(app->intCheck.Label12, app->intCheck.Label12);
    EXPECT_EQ(lines(), Rows{"C:\\av.exe  \"C:\\Tools\\t.exe\" "});
    EXPECT_THAT(data("1.dat"), HasSubstr("t.exe=" + crcText("changed") + "*E"));
    EXPECT_THAT(data("1.bak"), HasSubstr("t.exe=" + crcText("program") + "*E"));
    EXPECT_FALSE(pc.processes.ended()) << "a scan of the main window goes back to it";
    form().Combo1.select(0);
    scan();
    EXPECT_EQ(app->intCheck.Label6.Caption(), "1") << "the system folder's one file";

    write("args2", "1,1,1,1,1,1,1", "1");
    form().addRem.click();
    manager().List1.select(0);
    const Rows own{"1.dat", "1.bak", "1-md4.dat", "1-md5.bak", "1-sha1.dat"};
    for (const std::string& name : own) {
        pc.files.put(dataFolder + name, "x");
    }
    for (const Answer answer : {Answer::Cancel, Answer::Ok}) {
        pc.dialogs.expect({.text = "Are you sure you want to remove this folder? Doing so will lose all "
                                   "Integrity Checker data for this folder!",
                           .answer = answer,
                           .title = "Caution!",
                           .buttons = Buttons::OkCancel});
        manager().Command2.click();
        for (const std::string& name : own) {
            EXPECT_EQ(data(name), answer == Answer::Ok ? "(missing)" : "x") << name;
        }
    }
    EXPECT_EQ(manager().List1.item(0) + manager().List5.item(0), "1) Empty:0,0,0,0,0,0,0");
    asks("Do you wish to Save your changes?", Answer::No);
    manager().close();
    EXPECT_THAT(data("Tarvelon.dat"), HasSubstr("[1]\r\npath=NULL\r\nargs=0,0,0,0,0,0,0\r\n"));
}

TEST_F(Folders, TwentyAreTakenWithoutTheDefaultAndDoubles) {
    for (int slot = 1; slot < 20; ++slot) {
        write("path", "C:\\F" + std::to_string(slot) + "\\", std::to_string(slot));
    }
    form().addRem.click();
    addFolder(
        R"(c:\windows\SYSTEM32)",
        "This is the default folder that Tarvelon scans. It cannot be added to the Custom Integrity Checker");
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        EXPECT_EQ(manager().List1.item(19) + manager().List3.item(19), "20) Empty:0,0,0,0,0,0,0")
            << "forgotten";
        addFolder(R"(C:\F20)");
        manager().List1.select(19);
        click(manager().Check1, manager().Check2);
        asks("Do you wish to Save your changes?", answer);
        tells(answer == Answer::Yes ? "Save Successful!" : "");
        manager().close();
        form().addRem.click();
    }
    EXPECT_EQ(form().Combo1.items().back(), "C:\\F20\\");
    addFolder(R"(c:\f20)", "This folder is already being scanned.");
    addFolder(R"(C:\F21)", "");
    EXPECT_EQ(manager().List1.item(19), "20) C:\\F20\\");
    pc.files.lock(app->globals.app.settFile); // Passed over.
    saveFolders();
}

TEST_F(Folders, TypesAreEditedWhileTheirBoxIsTicked) {
    ICustScreen& dialog = manager();
    form().addRem.click();
    EXPECT_EQ(dialog.List2.items(), (Rows{"Scan DLL Files", "Scan DRV Files", "Scan 386, SYS Files",
                                          "Scan OCX Files", "Scan EXE, COM Files", "Scan SCR, PIF Files!"}));
    clickTelling(dialog.Check1, "Please select a folder to edit its properties!");
    addFolder(R"(C:\Tools)");
    dialog.List1.select(1);
    EXPECT_FALSE(dialog.Check1.Enabled() || dialog.Check2.Enabled()) << "a free slot has no use";
    dialog.List1.select(0);
    EXPECT_EQ(dialog.Label1.Caption(), "Currently Selected: 1) C:\\Tools\\");
    EXPECT_FALSE(dialog.List2.Enabled() || dialog.List4.Enabled());
    click(dialog.Check1, dialog.Check2);
    EXPECT_TRUE(dialog.List2.Enabled() && dialog.List4.Enabled());
    dialog.List2.toggle(0);
    dialog.List2.toggle(4);
    dialog.List4.toggle(5);
    dialog.List1.select(2);
    EXPECT_FALSE(dialog.List2.ticked(0) || dialog.List4.ticked(5)) << "the lists are the selected slot's";
    dialog.List1.select(0);
    EXPECT_TRUE(dialog.List2.ticked(0) && dialog.List4.ticked(5));
    dialog.Check2.click();
    saveFolders();
    EXPECT_THAT(data("Tarvelon.dat"), HasSubstr("args=1,0,0,0,1,0,1\r\nargs2=0,0,0,0,0,1,0\r\n"));
    EXPECT_EQ(app->globals.scan.customIndex, 1) << "the last folder without a data file";

    pc.files.put(dataFolder + "1.dat", "");
    form().Combo1.select(1);
    EXPECT_TRUE(form().check[0]->value() && form().check[4]->value() && !form().check[5]->value());
    form().addRem.click();
    EXPECT_EQ(dialog.Label1.Caption(), "Currently Selected:") << "closed, it keeps no selection";
    EXPECT_TRUE(dialog.Check1.Enabled() && !dialog.List2.ticked(0));
    dialog.close(); // Nothing was changed that had to be saved.
}

} // namespace
} // namespace tarvelon
