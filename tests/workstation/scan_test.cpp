#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

class Scan : public Session {
protected:
    /// A baseline over the files put so far, and a log-on run with all types.
    void baselineAndSettings(const std::string& more = "", const std::string& types = allTypes) {
        putSettings({.settings = types, .folders = more});
        makeBaseline();
    }

    void putNumbered(int count) {
        for (int i = 0; i < count; ++i) {
            pc.files.put(systemFolder + std::to_string(i) + ".dll", "x");
        }
    }

    /// A scan of the main window, so that leaving it does not end the program.
    void askForPageScan() {
        ScanRun& run = app->globals.scan;
        run.pageScan = run.noAutoAction = run.scanDLL = true;
    }

    const IntCheckScreen& screen() const { return app->intCheck; }
    std::string figures() const {
        return screen().Label6.Caption() + "/" + screen().Label8.Caption() + "/" + screen().Label9.Caption() +
               "/" + screen().Label7.Caption();
    }
};

TEST_F(Scan, SortsIntoPassingNewAndFailed) {
    pc.files.put(systemFolder + "good.dll", "good");
    pc.files.put(systemFolder + "bad.exe", "before");
    pc.files.put(systemFolder + "gone.ocx", "gone");
    pc.files.put(systemFolder + "k.386", "386");
    pc.files.put(systemFolder + "s.scr", "saver");
    baselineAndSettings();
    pc.files.put(systemFolder + "bad.exe", "after");
    pc.files.put(systemFolder + "new.com", "new");
    pc.files.remove(systemFolder + "gone.ocx");

    ASSERT_FALSE(start("/r"));
    EXPECT_FALSE(app->mForm1.Visible());
    EXPECT_TRUE(screen().Minimized());
    ASSERT_FALSE(settle());
    EXPECT_EQ(figures(), "5/1/1/3") << "a file that has gone is not treated at all";
    ASSERT_EQ(screen().List1.items(), (Rows{systemFolder + "bad.exe", systemFolder + "new.com *NEW*"}));
    EXPECT_EQ(app->globals.scan.failList, systemFolder + "bad.exe " + crcText("after") + "," + systemFolder +
                                              "new.com " + crcText("new") + ",");
    EXPECT_EQ(screen().Caption(), "100% AutoCheck");
    EXPECT_EQ(screen().Label13.Caption(), "Results");
    EXPECT_TRUE(screen().Frame2.Visible());
    EXPECT_FALSE(screen().Label14.Visible());
    EXPECT_FALSE(screen().Minimized());
    EXPECT_EQ(screen().l_exe.Caption(), "new.com");
    EXPECT_EQ(screen().l_sdrv.Caption(), "100%");

    app->intCheck.Label2.click();
    EXPECT_TRUE(screen().Frame3.isShown());
    EXPECT_EQ(screen().Label13.Caption(), "Failed Files List");
    asks(leaveFindings, Answer::No, "Warning");
    EXPECT_FALSE(ends([this] { app->intCheck.close(); }));
    EXPECT_TRUE(screen().Visible());
    asks(leaveFindings, Answer::Yes, "Warning");
    EXPECT_TRUE(ends([this] { app->intCheck.Image11.click(); }));
}

TEST_F(Scan, TypesNotWantedAreNamedAndCounted) {
    pc.files.put(systemFolder + "a.dll", "a");
    pc.files.put(systemFolder + "b.drv", "b");
    pc.files.put(systemFolder + "s.scr", "s");
    baselineAndSettings("", "1,0,0,0,0,1,0,0");
    pc.files.put(systemFolder + "b.drv", "changed");
    ASSERT_FALSE(start("/r"));
    EXPECT_EQ(screen().pb2max.Caption(), "2") << "the last type counts towards the total";
    std::string percentInLastPass;
    pc.messages.when([this] { return screen().pb1max.Caption().empty() && screen().Label6.Caption() == "2"; },
                     [&] { percentInLastPass = screen().l_2sexe.Caption(); });
    EXPECT_TRUE(settle());
    EXPECT_EQ(percentInLastPass, "0%") << "the last pass has no count of its own";
    EXPECT_EQ(screen().l_drv2.Caption(), "Driver Scan --- Not Scanning");
    EXPECT_EQ(screen().l_sys2.Caption(), "System Files --- Not Scanning");
    EXPECT_EQ(screen().l_2exe2.ForeColor(), colors::scanGrey);
}

TEST_F(Scan, NothingWantedIsCleanByTheDesignFigures) {
    baselineAndSettings("", "0,0,0,0,0,0,0,0");
    ASSERT_FALSE(start("/r"));
    EXPECT_EQ(screen().pb2max.Caption(), "1");
    EXPECT_TRUE(settle());
    EXPECT_EQ(figures(), "1000/1000/1000/1000");
}

TEST_F(Scan, CustomFoldersJoinBehindTheSystemFolder) {
    pc.files.put(systemFolder + "a.dll", "a");
    pc.files.put(R"(C:\Tools\t.dll)", "tool");
    pc.files.put(R"(C:\Tools\t.exe)", "not wanted");
    pc.files.put(R"(C:\Other\o.exe)", "other");
    baselineAndSettings(
        "[3]\r\npath=C:\\Tools\\\r\nargs=1,0,0,0,0,0,1\r\nargs2=0,0,0,0,0,0,0\r\n"
        "[12]\r\npath=C:\\Other\r\nargs=0,0,0,0,1,0,1\r\n[13]\r\npath=C:\\No\\\r\nargs=1,1,1,1,1,1,0\r\n");
    ASSERT_FALSE(start("/r"));
    EXPECT_EQ(app->globals.scan.customQueue, "3,12,");
    EXPECT_EQ(screen().pb2max.Caption(), "3");
    EXPECT_TRUE(app->globals.scan.scanOCX) << "the flags are back to those of the system passes";
    std::string firstTurn;
    pc.messages.when([this] { return screen().l_cust2.Caption() == "Custom Folder 1/2"; },
                     [&] { firstTurn = app->globals.scan.customFolder; });
    ASSERT_FALSE(settle());
    EXPECT_EQ(firstTurn, "C:\\Tools\\");
    EXPECT_EQ(screen().l_cust2.Caption(), "Custom Folder 2/2");
    EXPECT_EQ(figures(), "3/2/0/1") << "folders without a baseline get a blank one, and their files are new";
    EXPECT_EQ(app->globals.scan.customFailList,
              "C:\\Tools\\t.dll(3) " + crcText("tool") + ",C:\\Other\\o.exe(12) " + crcText("other") + ",");
    EXPECT_THAT(data("3.dat"), HasSubstr("[EXE]\r\nt.exe=NULL*E\r\n"));
    asks(leaveFindings, Answer::Yes, "Warning");
    EXPECT_TRUE(ends([this] { app->intCheck.close(); }));
}

TEST_F(Scan, PauseHoldsBetweenFilesAndCancelEndsThePause) {
    putNumbered(9);
    baselineAndSettings();
    ASSERT_FALSE(start());
    askForPageScan();
    app->scan.LoadUp();
    pc.messages.when([this] { return screen().Label6.Caption() == "4"; },
                     [this] { app->intCheck.Image9.click(); });
    std::string whilePaused;
    pc.messages.onWait([&] {
        whilePaused = screen().Label6.Caption() + (screen().Label11.isShown() ? " Resume" : "");
        app->intCheck.Label11.click();
    });
    pc.messages.when([this] { return screen().Label6.Caption() == "6"; },
                     [this] { app->intCheck.Image9.click(); });
    pc.messages.onWait([this] { app->intCheck.Image11.click(); });
    EXPECT_FALSE(settle());
    EXPECT_EQ(whilePaused, "4 Resume");
    EXPECT_EQ(screen().Label6.Caption(), "6");
    EXPECT_FALSE(screen().Visible());
    EXPECT_FALSE(screen().Label14.Visible());
    EXPECT_EQ(screen().pbm.Caption(), "0") << "a cancelled pass leaves no sum";
    EXPECT_EQ(screen().l_sdll.Caption(), "67%");
}

TEST_F(Scan, ASecondStartDuringAScanRunsInsideTheFirst) {
    putNumbered(6);
    baselineAndSettings();
    ASSERT_FALSE(start());
    const auto begin = [&] {
        askForPageScan();
        app->scan.Command1_Click();
        app->scan.LoadUp();
    };
    begin();
    pc.messages.when([this] { return screen().Label6.Caption() == "3"; }, begin);
    EXPECT_FALSE(settle());
    EXPECT_EQ(figures(), "6/0/0/6");
    EXPECT_TRUE(screen().Frame2.isShown());
    EXPECT_EQ(screen().Label2.Caption(), "Close Integrity Check Window");
    app->intCheck.Label2.click();
    EXPECT_FALSE(screen().Visible());
}

TEST_F(Scan, InAShutDownOnlyTheProgressBarMoves) {
    pc.files.put(systemFolder + "a.dll", "a");
    pc.files.put(systemFolder + "b.dll", "b");
    baselineAndSettings();
    app->settingsFile.writeEntry(dataFolder + "Tarvelon.dat", "settings2", "1,0,0,0,0,0", "Tarvelon");
    pc.files.put(systemFolder + "b.dll", "changed");
    ASSERT_FALSE(start());
    app->globals.app.shutAction = 8;
    std::string calls;
    app->scan.hooks.resultAction = [&] { calls += "action "; };
    app->scan.hooks.preShut2 = [&] { calls += "next"; };
    app->scan.LoadUp();
    EXPECT_FALSE(settle());
    EXPECT_EQ(calls, "action next");
    EXPECT_EQ(app->sProg.ProgressBar1.value(), 100);
    EXPECT_EQ(figures(), "1000/1000/1000/1000");
    EXPECT_EQ(screen().Caption(), "AutoCheck");
    EXPECT_EQ(app->globals.scan.failCount, 1);
    EXPECT_EQ(screen().pbm.Caption(), "0");
}

TEST_F(Scan, FilesThatComeAndGoDuringTheScanAreReportedNotFatal) {
    pc.files.put(systemFolder + "a.dll", "a");
    pc.files.put(systemFolder + "b.dll", "b");
    pc.files.put(systemFolder + "c.dll", "c");
    baselineAndSettings();
    ASSERT_FALSE(start("/r"));
    pc.messages.when([this] { return screen().Label6.Caption() == "1"; },
                     [this] {
                         pc.files.remove(systemFolder + "b.dll");
                         pc.files.lock(systemFolder + "c.dll");
                     });
    EXPECT_FALSE(settle());
    EXPECT_EQ(figures(), "3/0/2/1");
    EXPECT_EQ(app->globals.scan.failList, systemFolder + "b.dll 0," + systemFolder + "c.dll 0,");
    pc.files.unlock(systemFolder + "c.dll");

    // A whole folder that is not there is an empty walk.
    pc.folders.systemDirectory = R"(C:\Nowhere)";
    ASSERT_FALSE(start("/r"));
    EXPECT_TRUE(settle());
}

} // namespace
} // namespace tarvelon
