// What a scan takes in, how it sorts that, and how it is paused and left.

#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

class Scan : public Session {
protected:
    /// The baseline over these files of the system folder, which hold their names, and the settings of later
    /// scans.
    void baselineOf(const Rows& names, const std::string& types = allTypes, const std::string& folders = "") {
        for (const std::string& name : names) {
            pc.files.put(systemFolder + name, name);
        }
        pc.files.put(R"(C:\av.exe)", "");
        putSettings({.settings = types, .antivirus = R"(C:\av.exe|)", .folders = folders});
        makeBaseline();
    }

    /// What happens when so many files are done.
    void at(const std::string& done, std::function<void()> action) {
        pc.messages.when([this, done] { return screen().Label6.Caption() == done; }, std::move(action));
    }

    IntCheckScreen& screen() const { return app->intCheck; }
    std::string figures() const {
        return screen().Label6.Caption() + "/" + screen().Label8.Caption() + "/" + screen().Label9.Caption() +
               "/" + screen().Label7.Caption();
    }
};

TEST_F(Scan, CountsWhatPassesIsNewOrFails) {
    baselineOf({"bad.exe", "gone.ocx", "going.dll", "good.dll", "k.386", "locked.sys", "s.scr", ".dll"});
    pc.files.put(systemFolder + "bad.exe", "after");
    pc.files.put(systemFolder + "new.com", "new");
    pc.files.remove(systemFolder + "gone.ocx");
    ASSERT_FALSE(start("/r"));
    EXPECT_TRUE(screen().Minimized() && !app->mForm1.Visible());
    at("1", [this] {
        pc.files.remove(systemFolder + "going.dll");
        pc.files.lock(systemFolder + "locked.sys");
    });
    ASSERT_FALSE(settle());
    EXPECT_EQ(figures(), "8/1/3/4") << "what had gone before is not treated at all";
    EXPECT_EQ(app->globals.scan.failList, systemFolder + "going.dll 0," + systemFolder + "locked.sys 0," +
                                              systemFolder + "bad.exe " + crcText("after") + "," +
                                              systemFolder + "new.com " + crcText("new") + ",");
    EXPECT_EQ(screen().Caption(), "100% AutoCheck");
    EXPECT_EQ(screen().l_exe.Caption() + " " + screen().l_sdrv.Caption(), "new.com 100%");
    asks(leaveFindings, Answer::Yes, "Warning");
    EXPECT_TRUE(ends([this] { screen().Image11.click(); }));
}

TEST_F(Scan, TypesNotWantedAreNamedAndCounted) {
    baselineOf({"a.dll", "b.drv", "s.scr"}, "1,0,0,0,0,1,0,0");
    pc.files.put(systemFolder + "b.drv", "changed");
    ASSERT_FALSE(start("/r"));
    EXPECT_EQ(screen().pb2max.Caption(), "2") << "the last type counts towards the total";
    std::string inLastPass;
    at("2", [&] { inLastPass = screen().l_2sexe.Caption(); });
    EXPECT_TRUE(settle());
    EXPECT_EQ(inLastPass, "0%") << "the last pass has no count of its own";
    EXPECT_EQ(screen().l_drv2.Caption(), "Driver Scan --- Not Scanning");
    EXPECT_EQ(screen().l_2exe2.Caption(), "Commonly Exploited Executable Scan");
    EXPECT_EQ(screen().l_2exe2.ForeColor(), colors::scanGrey);

    pc.folders.systemDirectory = R"(C:\Nowhere)"; // An empty walk.
    ASSERT_FALSE(start("/r"));
    EXPECT_EQ(screen().pb2max.Caption(), "1");
    EXPECT_TRUE(settle());
    EXPECT_EQ(figures(), "1000/1000/1000/1000") << "clean by the design's figures";
}

TEST_F(Scan, CustomFoldersJoinBehindTheSystemFolder) {
    for (const char* path : {R"(C:\Tools\t.dll)", R"(C:\Tools\not wanted.exe)", R"(C:\Other\o.exe)"}) {
        pc.files.put(path, path);
    }
    baselineOf(
        {"a.dll"}, allTypes,
        "[3]\r\npath=C:\\Tools\\\r\nargs=1,0,0,0,0,0,1\r\nargs2=0,0,0,0,0,0,0\r\n"
        "[20]\r\npath=C:\\Other\r\nargs=0,0,0,0,1,0,1\r\n[13]\r\npath=C:\\No\\\r\nargs=1,1,1,1,1,1,0\r\n");
    ASSERT_FALSE(start("/r"));
    EXPECT_EQ(screen().pb2max.Caption(), "3");
    std::string turns;
    at("2", [&] { turns = screen().l_cust2.Caption() + " of " + app->globals.scan.customFolder; });
    ASSERT_FALSE(settle());
    EXPECT_EQ(turns, "Custom Folder 1/2 of C:\\Tools\\");
    EXPECT_EQ(screen().l_cust2.Caption(), "Custom Folder 2/2");
    EXPECT_EQ(screen().l_ocx2.ForeColor(), colors::black) << "not wanted in the last folder";
    EXPECT_EQ(figures(), "3/2/0/1") << "folders without a baseline get a blank one, and their files are new";
    EXPECT_EQ(app->globals.scan.customFailList, "C:\\Tools\\t.dll(3) " + crcText("C:\\Tools\\t.dll") +
                                                    ",C:\\Other\\o.exe(20) " + crcText("C:\\Other\\o.exe") +
                                                    ",");
    EXPECT_THAT(data("3.dat"), HasSubstr("[EXE]\r\nnot wanted.exe=NULL*E\r\n"));
}

TEST_F(Scan, IsStartedAnewPausedAndCancelledOnItsWay) {
    baselineOf({"0.dll", "1.dll", "2.dll", "3.dll", "4.dll", "5.dll", "6.dll", "7.dll", "8.dll"});
    ASSERT_FALSE(start());
    app->mForm1.bDLL.click();
    const auto scan = [this] { app->mForm1.bSCAN.click(); };
    scan();
    at("3", scan); // Runs inside the first.
    EXPECT_FALSE(settle());
    EXPECT_EQ(figures(), "9/0/0/9");
    EXPECT_EQ(screen().Label2.Caption(), "Close Integrity Check Window");
    screen().Label2.click();
    EXPECT_FALSE(screen().Visible());

    pc.files.put(systemFolder + "55.dll", "new"); // The next when the scan is cancelled.
    scan();
    at("4", [this] { screen().Image9.click(); });
    std::string whilePaused;
    pc.messages.onWait([&] {
        whilePaused = screen().Label6.Caption() + (screen().Label11.isShown() ? " Resume" : "");
        screen().Label11.click();
    });
    at("6", [this] { screen().Image9.click(); });
    pc.messages.onWait([this] { screen().Image11.click(); });
    EXPECT_FALSE(settle());
    EXPECT_EQ(whilePaused, "4 Resume");
    EXPECT_FALSE(screen().Visible());
    EXPECT_EQ(figures() + " " + screen().l_sdll.Caption(), "6/0/0/6 60%");
    EXPECT_EQ(screen().pbm.Caption(), "0") << "a cancelled pass leaves no sum";
    EXPECT_FALSE(screen().Label14.Visible());
}

TEST_F(Scan, InAShutDownOnlyTheProgressBarMoves) {
    baselineOf({"a.dll", "b.dll", "c.drv"}, allTypes + "\r\nsettings2=1,0,0,0,0,0");
    ASSERT_FALSE(start("/s"));
    app->frmLogoff.Image4.click();
    EXPECT_FALSE(settle());
    EXPECT_EQ(app->sProg.ProgressBar1.value(), 100);
    EXPECT_EQ(figures(), "1000/1000/1000/1000");
    EXPECT_EQ(screen().Caption(), "AutoCheck");
}

} // namespace
} // namespace tarvelon
