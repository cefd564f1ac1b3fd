// What becomes of a scan's findings: command lines, reports, accepted baselines, and how each run ends.

#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

const std::string noScannerNotice =
    "You do not have any Anti-Virus program setup with Tarvelon.  For your conveniance, these files will be "
    "added "
    "to the log, and will be updated in your Integrity File (so that you can scan them for viruses later).";
const std::string newOrFailed =
    "Integrity Checker - These files were either New or Failed the Integrity Check,";

class HandOver : public Session {
protected:
    void SetUp() override {
        pc.files.put(R"(C:\av\scan.exe)", "");
        pc.files.put(R"(C:\av\two.exe)", "");
        pc.files.put(systemFolder + "a.dll", "a");
    }

    /// All types at log-on, `tail` for automatic scan and reports, and with a first scanner.
    void configure(const std::string& tail, SettingsText more = {}) {
        more.settings = "1,1,1,1,1,1," + tail;
        more.antivirus = "C:\\av\\scan.exe| /s ";
        putSettings(more);
    }

    /// Changed and new files, and a log-on run up to its results.
    void findBoth() {
        pc.files.put(systemFolder + "a.dll", "changed");
        pc.files.put(systemFolder + "long name.exe", "new");
        ASSERT_FALSE(start("/r"));
        ASSERT_FALSE(settle());
        ASSERT_EQ(app->intCheck.List1.count(), 2);
    }

    const std::string report = dataFolder + "Log\\03-05-2006(3_04_07PM).log";
};

TEST_F(HandOver, ByHandScannersReportAndBaselineFollowOneClick) {
    makeBaseline();
    const std::string before = data("Integrity.dat");
    configure("0,1", {.av2 = "C:\\av\\two.exe|", .antivirus2 = "1,0,1"});
    findBoth();
    app->intCheck.Label12.click();
    const std::string both = "\"" + systemFolder + "a.dll\" \"" + systemFolder + "long name.exe\" ";
    EXPECT_EQ(pc.processes.started(),
              (std::vector<StartedProcess>{{"C:\\av\\scan.exe /s " + both, WindowStyle::NormalFocus},
                                           {"C:\\av\\two.exe  " + both, WindowStyle::NormalFocus}}));
    EXPECT_EQ(file(report), newOrFailed + systemFolder + "a.dll," + systemFolder + "long,name.exe\r\n");
    EXPECT_EQ(app->intCheck.Label13.Caption(), "Integrity File Updated");
    EXPECT_EQ(app->intCheck.Label12.Caption(), "Close Integrity Window");
    EXPECT_EQ(app->intCheck.Caption(), "Integrity File(s) Updated");
    EXPECT_EQ(data("integrity.bak"), before);
    const std::string updated = data("Integrity.dat");
    EXPECT_NE(updated.find("\r\na.dll=" + crcText("changed") + "*E\r\nNULL*E\r\n[DRV]"), std::string::npos);
    EXPECT_NE(updated.find("[EXE]\r\nlong name.exe=" + crcText("new") + "*E\r\nNULL*E\r\n"),
              std::string::npos)
        << "the blank in the path does not reach the checksum";
    EXPECT_TRUE(ends([this] { app->intCheck.Label12.click(); }))
        << "it now closes the window, without a question";

    ASSERT_FALSE(start("/r"));
    EXPECT_TRUE(settle()) << "the second scan is clean";
}

TEST_F(HandOver, BatchesFollowPassCountAndNamesTheOptions) {
    for (int i = 0; i < 5; ++i) {
        pc.files.put(systemFolder + "f" + std::to_string(i) + ".dll", "1");
    }
    makeBaseline();
    for (int i = 0; i < 5; ++i) {
        pc.files.put(systemFolder + "f" + std::to_string(i) + ".dll", "2");
    }
    configure("0,0", {.passCount = "2", .antivirus2 = "0,1,0"});
    ASSERT_FALSE(start("/r"));
    ASSERT_FALSE(settle());
    pc.files.remove(systemFolder + "f4.dll"); // Gone by now: its short name is empty.
    app->intCheck.Label12.click();
    const std::string f = systemFolder + "f";
    EXPECT_EQ(lines(), (Rows{"C:\\av\\scan.exe /s " + f + "0.dll " + f + "1.dll ",
                             "C:\\av\\scan.exe /s " + f + "2.dll " + f + "3.dll ", "C:\\av\\scan.exe /s  "}));
    EXPECT_EQ(pc.processes.started()[0].style, WindowStyle::MinimizedFocus);
    EXPECT_EQ(file(report), "(missing)") << "Auto-Logging is off";
}

TEST_F(HandOver, AllFilesAtOnceTakeAsManyRunsAsTheirNamesNeed) {
    makeBaseline();
    for (int i = 0; i < 200; ++i) {
        pc.files.put(systemFolder + std::string(180, 'n') + std::to_string(i) + ".dll", "new");
    }
    configure("0,1", {.passCount = "99999"});
    ASSERT_FALSE(start("/r"));
    ASSERT_FALSE(settle());
    app->intCheck.Label12.click();
    EXPECT_EQ(lines().size(), 2u);
    EXPECT_EQ(app->intCheck.List1.count(), 0);
    EXPECT_TRUE(file(report).ends_with("n99.dll\r\n"));
}

TEST_F(HandOver, AScannerThatCannotStartLeavesEverythingToTryAgain) {
    makeBaseline();
    const std::string before = data("Integrity.dat");
    configure("0,1", {.av2 = "C:\\av\\two.exe|/x"});
    findBoth();
    pc.processes.canStart = [](const std::string& line) { return line.find("two.exe") == std::string::npos; };
    tells("Your Anti-Virus program could not be executed!!!\rPlease verify the path of the "
          "software:\rC:\\av\\scan.exe");
    app->intCheck.Label12.click();
    EXPECT_EQ(app->intCheck.List1.count(), 2);
    EXPECT_EQ(data("Integrity.dat"), before);
    EXPECT_EQ(file(report), "(missing)");
    pc.processes.canStart = nullptr;
    app->intCheck.Label12.click();
    EXPECT_EQ(app->intCheck.List1.count(), 0);
    EXPECT_NE(data("Integrity.dat"), before);
}

TEST_F(HandOver, WithoutAScannerTheFirstBatchIsLoggedAndAllIsAccepted) {
    makeBaseline();
    configure("0,0", {.passCount = "1"});
    pc.files.remove(R"(C:\av\scan.exe)");
    findBoth();
    tells(noScannerNotice);
    app->intCheck.Label12.click();
    EXPECT_TRUE(lines().empty());
    EXPECT_EQ(file(report),
              "Integrity Checker - These files were logged because you didn't setup an Anti-Virus "
              "Scanner," +
                  systemFolder + "a.dll\r\n");
    EXPECT_THAT(data("Integrity.dat"), HasSubstr("long name.exe=" + crcText("new")));
}

TEST_F(HandOver, AutomaticRunsReachTheirEnds) {
    makeBaseline();
    for (const char* typed : {"/r", "/a"}) {
        configure("1,1");
        ASSERT_FALSE(start(typed));
        EXPECT_TRUE(settle()) << typed << " without findings";
        const std::size_t startedBefore = lines().size();

        pc.files.put(systemFolder + "a.dll", typed);
        ASSERT_FALSE(start(typed));
        EXPECT_TRUE(settle()) << typed << " with findings";
        ASSERT_EQ(lines().size(), startedBefore + 1);
        EXPECT_EQ(lines().back(), "C:\\av\\scan.exe /s \"" + systemFolder + "a.dll\" ");
        EXPECT_THAT(data("Integrity.dat"), HasSubstr("a.dll=" + crcText(typed)));
        EXPECT_NE(file(report), "(missing)");
        pc.files.remove(report);
    }
    // A scheduled run acts by itself even if the setting is off, since its plan is for everything.
    configure("0,0");
    pc.files.put(systemFolder + "a.dll", "scheduled");
    ASSERT_FALSE(start("/a"));
    EXPECT_TRUE(settle());
    EXPECT_EQ(lines().size(), 3u);
}

TEST_F(HandOver, AMixedListLeavesTheLastSystemChecksumBehind) {
    pc.files.put(R"(C:\Tools\t.dll)", "tool");
    configure("1,0", {.folders = "[2]\r\npath=C:\\Tools\\\r\nargs=1,1,1,1,1,1,1\r\nargs2=0,0,0,0,0,0,0\r\n"});
    makeBaseline();
    pc.files.put(systemFolder + "a.dll", "changed");
    ASSERT_FALSE(start("/r"));
    EXPECT_TRUE(settle());
    EXPECT_THAT(data("2.dat"), HasSubstr("[DLL]\r\nt.dll=" + crcText("tool") + "*E\r\nNULL*E\r\n"));
    EXPECT_THAT(data("2.bak"), HasSubstr("t.dll=NULL*E"));
    EXPECT_THAT(data("Integrity.dat"), HasSubstr("a.dll=" + crcText("changed") +
                                                 "*E\r\nt.dll=" + crcText("changed") + "*E\r\nNULL*E\r\n"))
        << "a custom folder's file behind a system file leaves a line in the system baseline";
}

TEST_F(HandOver, OddPathsAreAcceptedOrPassedOver) {
    const std::string folders[] = {R"(C:\Plain Folder\)", R"(C:\With (x86)\)", R"(C:\Dots v1.2\)"};
    std::string slots;
    for (int i = 0; i < 3; ++i) {
        pc.files.put(folders[i] + "a,b.dll", "1");
        pc.files.put(folders[i] + "two.dots.exe", "2");
        slots += "[" + std::to_string(i + 1) + "]\r\npath=" + folders[i] + "\r\nargs=1,1,1,1,1,1,1\r\n";
    }
    configure("1,0", {.folders = slots});
    makeBaseline();
    ASSERT_FALSE(start("/r"));
    EXPECT_TRUE(settle());
    EXPECT_THAT(data("1.dat"), HasSubstr("two.dots.exe=" + crcText("2") + "*E"));
    EXPECT_THAT(data("1.dat"), HasSubstr("a,b.dll=" + crcText("1") + "*E"));
    EXPECT_EQ(data("2.dat").find(crcText("2")), std::string::npos) << "the slot is not found";
    EXPECT_THAT(data("3.dat"), HasSubstr("two.dots.exe=" + crcText("2") + "*E"));
}

TEST_F(HandOver, AFailingUpdateNeverCostsTheBaseline) {
    makeBaseline();
    configure("0,0");
    const std::string before = file(dataFolder + "Integrity.dat");
    const std::string staysListed =
        dataFolder + "Integrity.dat\r\n\r\nThe files stay listed and can be accepted again.";
    const std::pair<Operation, const char*> faults[] = {{Operation::WriteFile, "write"},
                                                        {Operation::WriteFileHalf, "half a write"},
                                                        {Operation::Flush, "flush"},
                                                        {Operation::MoveFile, "move"},
                                                        {Operation::FillDisk, "full disk"}};
    for (const auto& [operation, name] : faults) {
        findBoth();
        pc.faults.failNth(operation, 1);
        tells("The data file cannot be backed up:\r\n" + staysListed);
        app->intCheck.Label12.click();
        pc.faults.clear(operation);
        EXPECT_EQ(file(dataFolder + "Integrity.dat"), before) << name;
        EXPECT_EQ(app->intCheck.Label13.Caption(), "Failed Files List");
    }
    pc.files.denyWrites(dataFolder + "Integrity.dat");
    tells("The data file cannot be replaced:\r\n" + staysListed);
    app->intCheck.Label12.click();
    EXPECT_EQ(file(dataFolder + "Integrity.dat"), before) << "read-only";
    pc.files.allowWrites(dataFolder + "Integrity.dat");
    app->intCheck.Label12.click();
    EXPECT_THAT(data("Integrity.dat"), HasSubstr("long name.exe=" + crcText("new")));
}

TEST_F(HandOver, NothingComesBetweenFindingsAndTheirBaseline) {
    pc.files.put(R"(C:\One\x.dll)", "x");
    pc.files.put(R"(C:\Two\y.dll)", "y");
    configure("0,0", {.folders = "[1]\r\npath=C:\\One\\\r\n[2]\r\npath=C:\\Two\\\r\n"});
    makeBaseline();
    pc.files.put(dataFolder + "1.dat", "");
    pc.files.put(dataFolder + "2.dat", "");
    ASSERT_FALSE(start());
    MForm1Screen& form = app->mForm1;
    form.Image5.click();
    form.Combo1.select(1);
    form.bFULL.click();
    form.bSCAN.click();
    ASSERT_FALSE(settle());
    form.addRem.Enabled = false;
    pc.messages.when([this] { return app->intCheck.Caption() == "Updating - Please Wait..."; },
                     [&] {
                         form.Combo1.select(2);
                         for (FlatButton* button :
                              {&form.bSCAN, &form.cSave2, &app->iCust.Command3, &app->intCheck.Image11}) {
                             button->click();
                         }
                         app->intCheck.Label12.click();
                         form.close();
                     });
    EXPECT_TRUE(ends([this] { app->intCheck.Label12.click(); })) << "closed when all is saved";
    EXPECT_THAT(data("1.dat"), HasSubstr("[DLL]\r\nx.dll=" + crcText("x") + "*E\r\nNULL*E\r\n[DRV]"));
    EXPECT_EQ(data("2.dat"), "");
    EXPECT_EQ(lines().size(), 1u);
    EXPECT_TRUE(form.bSCAN.Enabled());
    EXPECT_FALSE(form.addRem.Enabled()) << "as it was before";
}

TEST_F(HandOver, AnotherAlgorithmCountsFromTheNextPlan) {
    configure("0,0");
    makeBaseline();
    pc.files.put(systemFolder + "b.dll", "b");
    ASSERT_FALSE(start());
    const auto scan = [this] {
        app->mForm1.Image5.click();
        app->mForm1.bFULL.click();
        app->mForm1.bSCAN.click();
        EXPECT_FALSE(settle());
    };
    pc.messages.when([this] { return app->intCheck.Label6.Caption() == "1"; },
                     [this] {
                         app->mForm1.Option12.click();
                         tells("Save Success!");
                         app->mForm1.cSave2.click();
                     });
    scan();
    EXPECT_EQ(app->intCheck.List1.items(), (Rows{systemFolder + "b.dll *NEW*"}));
    app->intCheck.Label12.click();
    app->intCheck.Label12.click();
    EXPECT_THAT(data("Integrity.dat"), HasSubstr("b.dll=" + crcText("b") + "*E"));
    EXPECT_EQ(data("Integrity-md5.dat"), "(missing)");

    pc.files.put(dataFolder + "Integrity-md5.dat", "");
    scan();
    EXPECT_EQ(app->intCheck.List1.count(), 2);
    app->intCheck.Label12.click();
    EXPECT_THAT(data("Integrity-md5.dat"), HasSubstr("*E\r\nNULL*E\r\n[DRV]\r\nNULL*E\r\n[386]\r\n"));
    scan();
    EXPECT_TRUE(app->intCheck.Label14.isShown()) << "what was accepted stays accepted";
}

TEST_F(HandOver, AReportThatCannotBeWrittenStopsTheUpdate) {
    makeBaseline();
    configure("0,1");
    findBoth();
    pc.files.lock(report);
    pc.files.put(report, "older");
    tells("Your Anti-Virus program could not be executed!!!\rPlease verify the path of the "
          "software:\rC:\\av\\scan.exe");
    app->intCheck.Label12.click();
    EXPECT_EQ(app->intCheck.List1.count(), 2);
}

TEST_F(HandOver, ReportNamesFollowTheRegionalForms) {
    pc.files.put(dataFolder + "Integrity.dat", "");
    start();
    const std::string folder = dataFolder + "Log\\";
    EXPECT_EQ(app->logFiles.fileName(), folder + "03-05-2006(3_04_07PM).log");
    pc.clock.date = "2006-3-5";
    pc.clock.time = "15:04:07";
    EXPECT_EQ(app->logFiles.fileName(), folder + "2006-03-5(15_04_07).log")
        << "the last part is never padded";
    pc.clock.date = "5.3.2006";
    EXPECT_EQ(app->logFiles.fileName(), folder + "5.3.2006(15_04_07).log");

    pc.clock.date = "2006?3?5?";
    pc.clock.time = "?? 3:04:07";
    EXPECT_EQ(app->logFiles.fileName(), folder + "2006_3_5_(__3_04_07).log");

    app->mForm1.Check7.setValue(false);
    app->globals.app.shutAction = 8;
    app->logFiles.writeLog("Heading,A.DLL ");
    EXPECT_EQ(app->globals.shutDown.scanLogged, 1) << "counts although nothing is written";
    EXPECT_EQ(file(app->logFiles.fileName()), "(missing)");
    app->logFiles.writeLog("Heading,", true);
    EXPECT_EQ(file(app->logFiles.fileName()), "Heading,\r\n");
}

} // namespace
} // namespace tarvelon
