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

    MForm1Screen& page() { return app->mForm1; }
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
        page().bSCAN.click();
        EXPECT_FALSE(settle());
    }
};

TEST_F(Folders, AFolderIsAddedScannedChangedFoundAcceptedAndRemoved) {
    page().addRem.click();
    EXPECT_TRUE(manager().Visible());
    addFolder(R"(C:\Tools)");
    addFolder(R"(C:\More)");
    saveFolders();
    EXPECT_EQ(page().Combo1.items(), (Rows{systemFolder, "C:\\Tools\\", "C:\\More\\"}));
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        asks("This Custom Folder C:\\Tools\\ has not been fully scanned yet. The scan is required by the "
             "Integrity Checker.\r\n\r\nPerform scan now?",
             answer);
        tells(answer == Answer::Yes ? "Initial Custom Folder Scan Completed Successfully!"
                                    : "You have chosen not to scan this Custom Folder.  You need to run the "
                                      "scan before using this Custom Folder Integrity Checker.");
        page().Combo1.select(1);
        EXPECT_EQ(page().Combo1.listIndex(), answer == Answer::Yes ? 1 : 0);
        EXPECT_FALSE(settle());
    }
    EXPECT_THAT(data("1.dat"), HasSubstr("t.dll=" + crcText("tool") + "*E"));

    pc.files.put(R"(C:\Tools\t.exe)", "changed");
    page().bFULL.click();
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
    page().Combo1.select(0);
    scan();
    EXPECT_EQ(app->intCheck.Label6.Caption(), "1") << "the system folder's one file";

    write("args2", "1,1,1,1,1,1,1", "1");
    page().addRem.click();
    manager().List1.select(0);
    const Rows own{"1.dat",     "1.bak",     "1-md4.dat",  "1-md4.bak",
                   "1-md5.dat", "1-md5.bak", "1-sha1.dat", "1-sha1.bak"};
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
    page().addRem.click();
    addFolder(R"(c:\windows\SYSTEM32)",
              "This is the default folder that Tarvelon scans. It cannot be added to "
              "the Custom Integrity Checker");
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        for (const ListBox* types : {&manager().List3, &manager().List5}) {
            EXPECT_EQ(manager().List1.item(19) + types->item(19), "20) Empty:0,0,0,0,0,0,0") << "forgotten";
        }
        addFolder(R"(C:\F20)");
        manager().List1.select(19);
        click(manager().Check1, manager().Check2);
        asks("Do you wish to Save your changes?", answer);
        tells(answer == Answer::Yes ? "Save Successful!" : "");
        manager().close();
        page().addRem.click();
    }
    EXPECT_EQ(page().Combo1.items().back(), "C:\\F20\\");
    addFolder(R"(c:\f20)", "This folder is already being scanned.");
    addFolder(R"(C:\F21)", "");
    EXPECT_EQ(manager().List1.item(19), "20) C:\\F20\\");
    pc.files.lock(app->globals.app.settFile); // Passed over.
    saveFolders();
}

TEST_F(Folders, TypesAreEditedWhileTheirBoxIsTicked) {
    ICustScreen& form = manager();
    page().addRem.click();
    EXPECT_EQ(form.List2.items(), (Rows{"Scan DLL Files", "Scan DRV Files", "Scan 386, SYS Files",
                                        "Scan OCX Files", "Scan EXE, COM Files", "Scan SCR, PIF Files!"}));
    clickTelling(form.Check1, "Please select a folder to edit its properties!");
    EXPECT_TRUE(form.Check1.BackColor() == 0x800000u && form.Check1.ForeColor() == colors::white);
    addFolder(R"(C:\Tools)");
    form.List1.select(1);
    EXPECT_FALSE(form.Check1.Enabled() || form.Check2.Enabled()) << "a free slot has no use";
    form.List1.select(0);
    EXPECT_EQ(form.Label1.Caption(), "Currently Selected: 1) C:\\Tools\\");
    EXPECT_FALSE(form.List2.Enabled() || form.List4.Enabled());
    click(form.Check1, form.Check2);
    EXPECT_TRUE(form.List2.Enabled() && form.List4.Enabled());
    form.List2.toggle(0);
    form.List2.toggle(4);
    form.List4.toggle(5);
    form.List1.select(2);
    EXPECT_TRUE(form.Check2.BackColor() == 0x0000ffu && form.Check2.ForeColor() == colors::black);
    EXPECT_FALSE(form.List2.ticked(0) || form.List4.ticked(5)) << "the lists are the selected slot's";
    form.List1.select(0);
    EXPECT_TRUE(form.List2.ticked(0) && form.List4.ticked(5));
    form.Check2.click();
    saveFolders();
    EXPECT_THAT(data("Tarvelon.dat"), HasSubstr("args=1,0,0,0,1,0,1\r\nargs2=0,0,0,0,0,1,0\r\n"));
    EXPECT_EQ(app->globals.scan.customIndex, 1) << "the last folder without a data file";

    pc.files.put(dataFolder + "1.dat", "");
    page().Combo1.select(1);
    EXPECT_TRUE(page().check[0].value() && page().check[4].value() && !page().check[5].value());
    page().addRem.click();
    EXPECT_EQ(form.Label1.Caption(), "Currently Selected:") << "closed, it keeps no selection";
    EXPECT_TRUE(form.Check1.Enabled() && !form.Check1.BackColor() && !form.List2.ticked(0));
    form.List1.select(0);
    EXPECT_TRUE(form.List2.ticked(0) && form.List4.ticked(5));
    form.close(); // Nothing was changed that had to be saved.
}

TEST_F(Folders, ThePageStartsScansOfTheSystemFolder) {
    click(page().bFULL, page().bCLEAR);
    clickTelling(page().bSCAN, "Please select the files to scan.");
    EXPECT_FALSE(app->intCheck.Visible());
    pc.files.put(systemFolder + "b.exe", "b");
    click(page().bEXE, page().bDLL, page().bDLL);
    for (int scans = 0; scans < 2; ++scans) {
        scan();
        EXPECT_EQ(app->intCheck.l_dll2.Caption(), "DLL Scan --- Not Scanning");
        EXPECT_EQ(app->intCheck.List1.items(), (Rows{systemFolder + "b.exe *NEW*"}));
        asks(leaveFindings, Answer::Yes, "Warning");
    }
    app->intCheck.close();
    EXPECT_FALSE(app->intCheck.Visible());
}

} // namespace
} // namespace tarvelon
