// What becomes of a scan's findings: command lines, reports, accepted baselines, and how each run ends.

#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

class HandOver : public Session {
protected:
    void SetUp() override {
        for (const char* scanner : {R"(C:\av\scan.exe)", R"(C:\av\two.exe)"}) {
            pc.files.put(scanner, "");
        }
        pc.files.put(systemFolder + "a.dll", "a");
        makeBaseline();
        before = data("Integrity.dat");
    }

    /// All types at log-on, `tail` for automatic scan and reports, and with a first scanner.
    void configure(const std::string& tail, SettingsText more = {}) {
        more.settings = "1,1,1,1,1,1," + tail;
        more.antivirus = "C:\\av\\scan.exe| /s ";
        putSettings(more);
    }

    /// A log-on run up to its results.
    void find(int findings) {
        ASSERT_FALSE(start("/r"));
        ASSERT_FALSE(settle());
        ASSERT_EQ(app->intCheck.List1.count(), findings);
    }

    void findBoth() {
        pc.files.put(systemFolder + "a.dll", "changed");
        pc.files.put(systemFolder + "long name.exe", "new");
        find(2);
    }

    void accept() { app->intCheck.Label12.click(); }

    static std::string entry(const std::string& name, const std::string& bytes) {
        return name + "=" + crcText(bytes) + "*E\r\n";
    }

    const std::string report = dataFolder + "Log\\03-05-2006(3_04_07PM).log";
    std::string before; ///< The baseline without the findings.
};

TEST_F(HandOver, AScanSortsItsFindingsAndOneClickAcceptsThem) {
    configure("0,1", {.av2 = "C:\\av\\two.exe|", .antivirus2 = "1,0,1"});
    findBoth();
    IntCheckScreen& screen = app->intCheck;
    EXPECT_EQ(screen.List1.items(), (Rows{systemFolder + "a.dll", systemFolder + "long name.exe *NEW*"}));
    EXPECT_EQ(app->dataFile.getEntry("long name.exe", "EXE"), "") << "nothing is accepted yet";
    EXPECT_EQ(screen.Label13.Caption(), "Results");
    EXPECT_TRUE(screen.Frame2.isShown() && !screen.Label14.Visible() && !screen.Minimized());
    screen.Label2.click();
    EXPECT_EQ(screen.Label13.Caption(), "Failed Files List");
    EXPECT_TRUE(screen.Frame3.isShown());
    asks(leaveFindings, Answer::No, "Warning");
    EXPECT_FALSE(ends([&] { screen.close(); }));
    accept();
    const std::string both = "\"" + systemFolder + "a.dll\" \"" + systemFolder + "long name.exe\" ";
    EXPECT_EQ(pc.processes.started(),
              (std::vector<StartedProcess>{{"C:\\av\\scan.exe /s " + both, WindowStyle::NormalFocus},
                                           {"C:\\av\\two.exe  " + both, WindowStyle::NormalFocus}}));
    EXPECT_EQ(file(report), "Integrity Checker - These files were either New or Failed the Integrity Check," +
                                systemFolder + "a.dll," + systemFolder + "long,name.exe\r\n");
    EXPECT_EQ(data("integrity.bak"), before);
    EXPECT_THAT(data("Integrity.dat"), HasSubstr(entry("a.dll", "changed") + "NULL*E\r\n[DRV]"));
    EXPECT_THAT(data("Integrity.dat"), HasSubstr("[EXE]\r\n" + entry("long name.exe", "new") + "NULL*E\r\n"));
    EXPECT_EQ(screen.Label13.Caption(), "Integrity File Updated");
    EXPECT_EQ(screen.Caption(), "Integrity File(s) Updated");
    EXPECT_EQ(screen.Label12.Caption(), "Close Integrity Window");
    EXPECT_TRUE(ends([this] { accept(); })) << "without a question";
    ASSERT_FALSE(start("/r"));
    EXPECT_TRUE(settle()) << "the second scan is clean";
}

TEST_F(HandOver, BatchesFollowPassCountAndTheRoomOfACommandLine) {
    const std::string f = systemFolder + "f";
    for (int i = 0; i < 5; ++i) {
        pc.files.put(f + std::to_string(i) + ".dll", "new");
    }
    configure("0,0", {.passCount = "2", .antivirus2 = "0,1,0"});
    find(5);
    pc.files.remove(f + "4.dll"); // Gone by now: its short name is empty.
    accept();
    EXPECT_EQ(lines(), (Rows{"C:\\av\\scan.exe /s " + f + "0.dll " + f + "1.dll ",
                             "C:\\av\\scan.exe /s " + f + "2.dll " + f + "3.dll ", "C:\\av\\scan.exe /s  "}));
    EXPECT_EQ(pc.processes.started()[0].style, WindowStyle::MinimizedFocus);
    EXPECT_EQ(file(report), "(missing)") << "Auto-Logging is off";

    for (int i = 0; i < 200; ++i) {
        pc.files.put(systemFolder + std::string(180, 'n') + std::to_string(i) + ".dll", "new");
    }
    configure("0,1", {.passCount = "99999"});
    find(200);
    accept();
    EXPECT_EQ(lines().size(), 3u + 2u);
    EXPECT_TRUE(file(report).ends_with("n99.dll\r\n"));
}

TEST_F(HandOver, WhatCannotBeHandedOverStaysListedToTryAgain) {
    configure("0,1", {.av2 = "C:\\av\\two.exe|/x"});
    findBoth();
    const auto refused = [this] {
        tells(notExecuted + "C:\\av\\scan.exe");
        accept();
        EXPECT_EQ(app->intCheck.List1.count(), 2);
        EXPECT_EQ(data("Integrity.dat"), before);
    };
    pc.processes.canStart = [](const std::string& line) { return line.find("two.exe") == std::string::npos; };
    refused();
    EXPECT_EQ(file(report), "(missing)");
    pc.processes.canStart = nullptr;
    pc.files.put(report, "older");
    pc.files.lock(report);
    refused();
    pc.files.unlock(report);
    accept();
    EXPECT_EQ(app->intCheck.List1.count(), 0);
    EXPECT_NE(data("Integrity.dat"), before);
}

TEST_F(HandOver, WithoutAScannerTheFirstBatchIsLoggedAndAllIsAccepted) {
    configure("0,0", {.passCount = "1"});
    pc.files.remove(R"(C:\av\scan.exe)");
    findBoth();
    tells("You do not have any Anti-Virus program setup with Tarvelon.  For your conveniance, these files "
          "will be added to the log, and will be updated in your Integrity File (so that you can scan them "
          "for viruses later).");
    accept();
    EXPECT_TRUE(lines().empty());
    EXPECT_EQ(file(report),
              "Integrity Checker - These files were logged because you didn't setup an Anti-Virus Scanner," +
                  systemFolder + "a.dll\r\n");
    EXPECT_THAT(data("Integrity.dat"), HasSubstr(entry("long name.exe", "new")));
}

TEST_F(HandOver, AutomaticRunsAcceptWhatTheyFoundInAnyFolder) {
    const std::string folders[] = {R"(C:\Plain Folder\)", R"(C:\With (x86)\)", R"(C:\Dots v1.2\)"};
    std::string slots;
    for (int i = 0; i < 3; ++i) {
        pc.files.put(folders[i] + "a,b.dll", "1");
        pc.files.put(folders[i] + "two.dots.exe", "2");
        slots += "[" + std::to_string(i + 1) + "]\r\npath=" + folders[i] + "\r\nargs=1,1,1,1,1,1,1\r\n";
    }
    configure("1,0", {.folders = slots});
    pc.files.put(systemFolder + "a.dll", "changed");
    ASSERT_FALSE(start("/r"));
    EXPECT_TRUE(settle());
    for (const char* accepted : {"1.dat", "3.dat"}) {
        EXPECT_THAT(data(accepted), HasSubstr(entry("a,b.dll", "1") + "NULL*E\r\n[DRV]"));
        EXPECT_THAT(data(accepted), HasSubstr(entry("two.dots.exe", "2")));
    }
    EXPECT_EQ(data("2.dat").find(crcText("2")), std::string::npos) << "the slot is not found";
    EXPECT_THAT(data("Integrity.dat"), HasSubstr(entry("a.dll", "changed") + entry("a,b.dll", "changed")))
        << "a custom folder's file behind a system file leaves a line in the system baseline";

    // A scheduled run acts by itself even if the setting is off, since its plan is for everything.
    configure("0,0");
    pc.files.put(systemFolder + "a.dll", "scheduled");
    ASSERT_FALSE(start("/a"));
    EXPECT_TRUE(settle());
    EXPECT_THAT(data("Integrity.dat"), HasSubstr(entry("a.dll", "scheduled")));
}

TEST_F(HandOver, AFailingUpdateNeverCostsTheBaseline) {
    configure("0,0");
    findBoth();
    const auto refused = [this](const std::string& what) {
        tells(what + "\r\n" + dataFolder +
              "Integrity.dat\r\n\r\nThe files stay listed and can be accepted again.");
        accept();
        EXPECT_EQ(data("Integrity.dat"), before);
        EXPECT_EQ(app->intCheck.Label13.Caption(), "Failed Files List");
    };
    using enum Operation;
    for (const Operation operation : {WriteFile, WriteFileHalf, Flush, MoveFile, FillDisk}) {
        SCOPED_TRACE(static_cast<int>(operation));
        pc.faults.failNth(operation, 1);
        refused("The data file cannot be backed up:");
        pc.faults.clear(operation);
    }
    pc.files.denyWrites(dataFolder + "Integrity.dat");
    refused("The data file cannot be replaced:");
    pc.files.allowWrites(dataFolder + "Integrity.dat");
    accept();
    EXPECT_THAT(data("Integrity.dat"), HasSubstr(entry("long name.exe", "new")));
}

TEST_F(HandOver, NothingComesBetweenFindingsAndTheirBaseline) {
    pc.files.put(R"(C:\One\x.dll)", "x");
    configure("0,0", {.folders = "[1]\r\npath=C:\\One\\\r\n[2]\r\npath=C:\\Two\\\r\n"});
    for (const char* empty : {"1.dat", "2.dat", "Integrity-md5.dat"}) {
        pc.files.put(dataFolder + empty, "");
    }
    ASSERT_FALSE(start());
    const auto scan = [this](int folder) {
        app->mForm1.Image5.click();
        app->mForm1.Combo1.select(folder);
        app->mForm1.bFULL.click();
        app->mForm1.bSCAN.click();
        EXPECT_FALSE(settle());
    };
    pc.messages.when([this] { return app->intCheck.Label6.Caption() == "1"; },
                     [this] { // Another algorithm counts from the next plan.
                         app->mForm1.Option12.click();
                         tells("Save Success!");
                         app->mForm1.cSave2.click();
                     });
    scan(1);
    app->mForm1.addRem.Enabled = false;
    pc.messages.when([this] { return app->intCheck.Caption() == "Updating - Please Wait..."; },
                     [this] {
                         MForm1Screen& form = app->mForm1;
                         form.Combo1.select(2);
                         for (FlatButton* button :
                              {&form.bSCAN, &form.cSave2, &app->iCust.Command3, &app->intCheck.Image11}) {
                             button->click();
                         }
                         accept();
                         form.close();
                     });
    EXPECT_TRUE(ends([this] { accept(); })) << "closed when all is saved";
    EXPECT_THAT(data("1.dat"), HasSubstr("[DLL]\r\n" + entry("x.dll", "x") + "NULL*E\r\n[DRV]"));
    EXPECT_EQ(data("2.dat") + data("Integrity-md5.dat"), "");
    EXPECT_EQ(data("Integrity.dat").find("x.dll"), std::string::npos);
    EXPECT_EQ(lines().size(), 1u);
    EXPECT_TRUE(app->mForm1.bSCAN.Enabled());
    EXPECT_FALSE(app->mForm1.addRem.Enabled()) << "as it was before";

    ASSERT_FALSE(start());
    scan(0);
    accept();
    EXPECT_THAT(data("Integrity-md5.dat"), HasSubstr("*E\r\nNULL*E\r\n[DRV]\r\nNULL*E\r\n[386]\r\n"));
    scan(0);
    EXPECT_TRUE(app->intCheck.Label14.isShown()) << "what was accepted stays accepted";
}

TEST_F(HandOver, ReportNamesFollowTheRegionalForms) {
    ASSERT_FALSE(start());
    for (const auto& [date, time, name] : {std::tuple("2006-3-5", "15:04:07", "2006-03-5(15_04_07).log"),
                                           {"2006?3?5?", "?? 3:04:07", "2006_3_5_(__3_04_07).log"},
                                           {"5.3.2006", "15:04:07", "5.3.2006(15_04_07).log"}}) {
        pc.clock.date = date;
        pc.clock.time = time;
        EXPECT_EQ(app->logFiles.fileName(), dataFolder + "Log\\" + name);
    }
}

} // namespace
} // namespace tarvelon
