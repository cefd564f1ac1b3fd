// In place of the system's shut-down: the dialog, the scans in their order, and the machine going down.

#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

using namespace std::string_literals;

const std::string sessionManager = R"(System\CurrentControlSet\Control\Session Manager)";
const std::string runKey = R"(Software\Microsoft\Windows\CurrentVersion\Run)";

class ShutDownRun : public Session {
protected:
    void SetUp() override {
        pc.files.put(R"(C:\av.exe)", "");
        pc.files.put(R"(C:\two.exe)", "");
        pc.files.put(systemFolder + "a.dll", "a");
        makeBaseline();
        configure();
    }

    void configure(const std::string& second = "", const std::string& passCount = "500") {
        putSettings({.settings = "1,1,1,1,1,1,0,1\r\nsettings2=1,1,1,1,1,1",
                     .passCount = passCount,
                     .antivirus = "C:\\av.exe|/s",
                     .av2 = second});
    }

    void pendingRename(const std::string& bytes) {
        pc.registry.setValue(Registry::localMachine, sessionManager, "PendingFileRenameOperations",
                             {SimRegistry::TextList, bytes});
    }

    std::string status() const { return app->sProg.Label2.Caption(); }
};

TEST_F(ShutDownRun, CleanTheMachineGoesDownAtOnce) {
    // Without a second scanner named at all its field holds a text, which is tried in vain.
    configure("C:\\two.exe|x");
    ASSERT_FALSE(start("/s"));
    EXPECT_TRUE(app->frmLogoff.Visible());
    EXPECT_FALSE(app->mForm1.Visible());
    app->frmLogoff.Image4.click();
    EXPECT_FALSE(app->frmLogoff.Visible());
    EXPECT_TRUE(app->sProg.Visible());
    EXPECT_EQ(status(), "Status: Scanning Files...");
    EXPECT_FALSE(settle());
    EXPECT_EQ(status(), "Status: All scans completed.  No suspicious files found!");
    EXPECT_FALSE(app->intCheck.Visible());
    EXPECT_TRUE(lines().empty());
    EXPECT_EQ(pc.power.calls(),
              (Rows{"adjustPrivilege SeShutdownPrivilege 2147483651", "exitWindows 25 4294967295"}));
}

TEST_F(ShutDownRun, TheKeyboardChoosesWhatItPressed) {
    ASSERT_FALSE(start("/s"));
    LogoffScreen& dialog = app->frmLogoff;
    dialog.Image5.focus();
    dialog.Image1.focus();
    EXPECT_TRUE(dialog.Image2.Visible() && !dialog.Image6.Visible());
    dialog.Image1.loseFocus();
    EXPECT_FALSE(dialog.Image2.Visible());

    constexpr int shift = 16;
    constexpr int space = 32;
    dialog.onKeyDown(shift);
    dialog.onKeyDown(space);
    dialog.Image1.keyPress();
    dialog.onKeyUp(space);
    EXPECT_EQ(dialog.Label4.Caption(), "Standby");
    dialog.Image1.keyClick();
    EXPECT_EQ(app->globals.app.shutAction, 0) << "Hibernate, as it read under the key";
}

TEST_F(ShutDownRun, FindingsAreHandedOverInOrderAndTwoMinutesAreGiven) {
    configure("C:\\two.exe|x", "2");
    pc.files.put(R"(C:\WINDOWS\wininit.ini)", "[Rename]\r\nNUL=C:\\W.TMP\r\nNUL=C:\\GONE.TMP\r\n");
    for (const char* file : {"C:\\W.TMP", "C:\\P1.TMP", "C:\\P2.TMP", "C:\\P3.TMP"}) {
        pc.files.put(file, "");
    }
    pendingRename("\\??\\C:\\P1.TMP\0\0\\??\\C:\\P1.TMP\0\0\\??\\C:\\P2.TMP\0\0\\??\\C:\\P3.TMP\0\0"s);
    pc.files.put(systemFolder + "a.dll", "changed");
    ASSERT_FALSE(start("/s"));
    pc.registry.setText(Registry::localMachine, runKey, "New", systemFolder + "a.dll");
    app->frmLogoff.Image6.click();
    EXPECT_FALSE(settle());
    const std::string dll = "\"" + systemFolder + "a.dll\"";
    EXPECT_EQ(
        lines(),
        (Rows{"C:\\av.exe /s \"C:\\W.TMP\" ", "C:\\two.exe x \"C:\\W.TMP\" ",
              "C:\\av.exe /s \"C:\\P1.TMP\" \"C:\\P2.TMP\" ", "C:\\two.exe x \"C:\\P1.TMP\" \"C:\\P2.TMP\" ",
              "C:\\av.exe /s \"C:\\P3.TMP\" ", "C:\\two.exe x \"C:\\P3.TMP\" ", "C:\\av.exe /s " + dll + " ",
              "C:\\two.exe x " + dll + " ", "C:\\av.exe /s  " + dll, "C:\\two.exe x  " + dll}));
    EXPECT_EQ(status(), "Status: Some files were scanned...Shutting Down in 2 minutes");
    EXPECT_TRUE(app->sProg.Command1.isShown());
    EXPECT_THAT(data("Integrity.dat"), HasSubstr("a.dll=" + crcText("changed")));
    EXPECT_THAT(data("Registry.dat"), HasSubstr("New= ("));
    EXPECT_TRUE(pc.power.calls().empty());

    asks("Cancel Shutdown?", Answer::No);
    app->sProg.close();
    EXPECT_TRUE(app->sProg.Visible());
    const auto ticks = [this] { return app->sProg.ProgressBar1.value(); };
    while (ticks() < 119) {
        pc.messages.advance(1000);
    }
    EXPECT_TRUE(pc.power.calls().empty());
    pc.messages.advance(1000);
    EXPECT_EQ(ticks(), 120);
    EXPECT_EQ(pc.power.calls().back(), "exitWindows 19 4294967295");
    pc.messages.advance(180'000);
    EXPECT_EQ(pc.power.calls().size(), 2u) << "once";
}

TEST_F(ShutDownRun, WithSettingsOutOfReachNoSwitchPassesForAScan) {
    pc.files.lock(dataFolder + "Tarvelon.dat");
    const std::string notice = "The settings file cannot be read:\r\n" + dataFolder +
                               "Tarvelon.dat\r\n\r\nThe Integrity Check was not made.";
    for (const char* typed : {"/r", "/a"}) {
        tells(notice);
        EXPECT_TRUE(start(typed)) << typed;
    }
    ASSERT_FALSE(start("/s"));
    tells(notice);
    app->frmLogoff.Image4.click();
    EXPECT_EQ(status(), "Status: Some files were scanned...Shutting Down in 2 minutes");
    EXPECT_TRUE(pc.power.calls().empty());
}

TEST_F(ShutDownRun, TheCountDownCanBeCutShortOrCancelled) {
    pc.files.put(systemFolder + "a.dll", "changed");
    ASSERT_FALSE(start("/s"));
    app->frmLogoff.Label2.click(); // "Log Off..." hibernates.
    EXPECT_FALSE(settle());
    app->sProg.Command1.click();
    EXPECT_EQ(pc.power.calls().back(), "setSystemPowerState 0 1");
    asks("Cancel Shutdown?", Answer::Yes);
    EXPECT_TRUE(ends([this] { app->sProg.close(); }));
}

TEST_F(ShutDownRun, TheDialogFollowsShiftAndTheMouse) {
    ASSERT_FALSE(start("/s"));
    LogoffScreen& form = app->frmLogoff;
    form.onKeyDown(17);
    EXPECT_EQ(form.Label4.Caption(), "Standby");
    form.onKeyDown(16);
    EXPECT_EQ(form.Label4.Caption(), "Hibernate");
    form.onKeyUp(65);
    EXPECT_EQ(form.Label4.Caption(), "Standby") << "any key's release";
    form.Image3.onMouseMove();
    EXPECT_TRUE(form.Image4.Visible());
    form.Label1.onMouseMove();
    EXPECT_EQ(form.Label1.ForeColor(), colors::white);
    form.onMouseMove();
    EXPECT_FALSE(form.Image4.Visible());
    EXPECT_EQ(form.Label1.ForeColor(), colors::black);
    form.onKeyDown(16);
    form.Image2.click();
    EXPECT_EQ(app->globals.app.shutAction, 0);
    EXPECT_TRUE(ends([&] { form.Label1.click(); }));
    pc.processes.otherInstance = true;
    tells("You must close Tarvelon before using the Shut Down Feature.");
    EXPECT_TRUE(start("/s"));
}

TEST_F(ShutDownRun, EachActionReachesTheSystemWithItsFlags) {
    struct Case {
        SystemVersion version;
        std::int16_t action;
        std::string call;
    };
    const SystemVersion xp{2, 5};
    const SystemVersion nt4{2, 4};
    const SystemVersion win98{1, 4};
    const Case cases[] = {{xp, 0, "setSystemPowerState 0 1"},      {xp, 1, "setSystemPowerState 1 1"},
                          {xp, 2, "exitWindows 19 4294967295"},    {xp, 4, "exitWindows 20 4294967295"},
                          {xp, 8, "exitWindows 25 4294967295"},    {xp, 3, "exitWindows 16 4294967295"},
                          {nt4, 2, "exitWindows 7 4294967295"},    {nt4, 4, "exitWindows 8 4294967295"},
                          {win98, 8, "exitWindows 13 4294967295"}, {win98, 4, "exitWindows 8 4294967295"}};
    for (const Case& each : cases) {
        pc.power.systemVersion = each.version;
        PowerAction(pc.platform()).ShutDown(each.action);
        EXPECT_EQ(pc.power.calls().back(), each.call) << each.action;
    }
    EXPECT_NE(pc.power.calls().at(pc.power.calls().size() - 2).find("terminateProcess"), std::string::npos)
        << "on the oldest systems a log-off takes the desktop's process with it";
}

TEST_F(ShutDownRun, AScheduledRunTakesTheFirstStepsAndEnds) {
    pendingRename("\\??\\C:\\P1.TMP\0\0"s);
    pc.files.put(R"(C:\P1.TMP)", "");
    ASSERT_FALSE(start("/a"));
    EXPECT_EQ(lines().at(0), "C:\\av.exe /s \"C:\\P1.TMP\" ");
    EXPECT_EQ(data("Log\\03-05-2006(3_04_07PM).log"),
              "The following Files were scanned as a precaution (being renamed or deleted from the "
              "Registry),C:\\P1.TMP\r\n");
    EXPECT_TRUE(app->sProg.Visible());
    EXPECT_EQ(app->sProg.ProgressBar1.value(), 100);
    EXPECT_TRUE(settle());
    EXPECT_TRUE(pc.power.calls().empty());
}

} // namespace
} // namespace tarvelon
