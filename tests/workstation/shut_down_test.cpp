// In place of the system's shut-down: the dialog, the scans in their order, and the machine going down.

#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

using namespace std::string_literals;

const std::string twoMinutes = "Status: Some files were scanned...Shutting Down in 2 minutes";

class ShutDownRun : public Session {
protected:
    void SetUp() override {
        pc.files.put(R"(C:\av.exe)", "");
        pc.files.put(R"(C:\two.exe)", "");
        pc.files.put(systemFolder + "a.dll", "a");
        makeBaseline();
        putSettings({.settings = "1,1,1,1,1,1,0,1\r\nsettings2=1,1,1,1,1,1",
                     .passCount = "2",
                     .antivirus = "C:\\av.exe|/s",
                     .av2 = "C:\\two.exe|x",
                     .folders = "[3]\r\npath=C:\\New\\\r\nargs2=1,1,1,1,1,1,1\r\n"});
        pc.files.makeFolders("C:\\New\\"); // Its first scan comes without a question.
        ASSERT_FALSE(start("/s"));
    }

    LogoffScreen& dialog() { return app->frmLogoff; }
    std::string status() const { return app->sProg.Label2.Caption(); }
};

TEST_F(ShutDownRun, CleanTheMachineGoesDownAtOnce) {
    EXPECT_TRUE(dialog().Visible() && !app->mForm1.Visible());
    dialog().Image4.click();
    EXPECT_TRUE(app->sProg.Visible() && !dialog().Visible());
    EXPECT_FALSE(settle());
    EXPECT_EQ(status(), "Status: All scans completed.  No suspicious files found!");
    EXPECT_EQ(app->intCheck.Caption() + app->intCheck.Label6.Caption(), "AutoCheck1000") << "it stands still";
    EXPECT_EQ(app->sProg.ProgressBar1.value(), 100);
    EXPECT_EQ(lines(), Rows());
    EXPECT_EQ(pc.power.calls(),
              (Rows{"adjustPrivilege SeShutdownPrivilege 2147483651", "exitWindows 25 4294967295"}));
}

TEST_F(ShutDownRun, TheDialogFollowsShiftKeyboardAndMouse) {
    constexpr int shift = 16, space = 32;
    dialog().onKeyDown(space);
    EXPECT_EQ(dialog().Label4.Caption(), "Standby");
    dialog().onKeyDown(shift);
    EXPECT_EQ(dialog().Image1.Caption(), "Hibernate");
    dialog().Image1.keyPress();
    dialog().onKeyUp(space);
    EXPECT_EQ(dialog().Label4.Caption(), "Standby");
    dialog().Image1.keyClick();
    EXPECT_EQ(app->globals.app.shutAction, 0) << "Hibernate, as it read under the key";
    dialog().Image2.click();
    EXPECT_EQ(app->globals.app.shutAction, 1);

    dialog().Image5.focus();
    dialog().Image3.onMouseMove();
    EXPECT_TRUE(dialog().Image4.Visible() && !dialog().Image6.Visible()) << "one is lit at a time";
    dialog().Image3.loseFocus();
    EXPECT_FALSE(dialog().Image4.Visible());
    dialog().Image1.onMouseMove();
    dialog().Label2.onMouseMove();
    EXPECT_EQ(dialog().Label2.ForeColor(), colors::white);
    dialog().onMouseMove();
    EXPECT_TRUE(dialog().Label2.ForeColor() == colors::black && !dialog().Image2.Visible());

    EXPECT_TRUE(ends([&] { dialog().Label1.click(); }));
    EXPECT_TRUE(ends([&] { dialog().close(); }));
    pc.processes.otherInstance = true;
    tells("You must close Tarvelon before using the Shut Down Feature.");
    EXPECT_TRUE(start("/s"));
}

TEST_F(ShutDownRun, FindingsAreHandedOverInOrderAndTwoMinutesAreGiven) {
    pc.files.put(R"(C:\WINDOWS\wininit.ini)",
                 "[Rename]\r\nNUL=C:\\1.TMP\r\nNUL=C:\\GONE.TMP\r\nNUL=C:\\2.TMP\r\nNUL=C:\\3.TMP\r\n");
    for (const char* file : {"C:\\1.TMP", "C:\\2.TMP", "C:\\3.TMP", "C:\\4.TMP"}) {
        pc.files.put(file, "");
    }
    pendingRenames("\\??\\C:\\1.TMP\0\0\\??\\C:\\1.TMP\0\0\\??\\C:\\2.TMP\0\0\\??\\C:\\3.TMP\0\0"
                   "\\??\\C:\\4.TMP\0\0"s);
    pc.files.put(systemFolder + "a.dll", "changed");
    pc.registry.setText(Registry::localMachine, runKey, "New", systemFolder + "a.dll");
    dialog().Image6.click();
    EXPECT_FALSE(settle());
    Rows expected;
    const std::string dll = "\"" + systemFolder + "a.dll\"";
    for (const std::string& list : {R"("C:\1.TMP" "C:\2.TMP" "C:\3.TMP" )"s, R"("C:\1.TMP" "C:\2.TMP" )"s,
                                    R"("C:\3.TMP" "C:\4.TMP" )"s, dll + " ", " " + dll}) {
        expected.insert(expected.end(), {"C:\\av.exe /s " + list, "C:\\two.exe x " + list});
    }
    EXPECT_EQ(lines(), expected);
    EXPECT_EQ(status(), twoMinutes);
    EXPECT_THAT(data("Integrity.dat"), HasSubstr("a.dll=" + crcText("changed")));
    EXPECT_THAT(data("Registry.dat"), HasSubstr("New= ("));

    asks("Cancel Shutdown?", Answer::No);
    app->sProg.close();
    while (app->sProg.ProgressBar1.value() < 119) {
        pc.messages.advance(1000);
    }
    EXPECT_EQ(pc.power.calls(), Rows());
    pc.messages.advance(1000);
    EXPECT_EQ(pc.power.calls().back(), "exitWindows 19 4294967295");
    pc.messages.advance(180'000);
    EXPECT_EQ(pc.power.calls().size(), 2u) << "once";
}

TEST_F(ShutDownRun, WithSettingsOutOfReachNoSwitchPassesForAScan) {
    pc.files.lock(dataFolder + "Tarvelon.dat");
    const std::string notice = "The settings file cannot be read:\r\n" + dataFolder +
                               "Tarvelon.dat\r\n\r\nThe Integrity Check was not made.";
    tells(notice);
    dialog().Label2.click(); // "Log Off..." hibernates.
    EXPECT_EQ(status(), twoMinutes);
    EXPECT_EQ(pc.power.calls(), Rows());
    EXPECT_TRUE(app->sProg.Command1.isShown());
    app->sProg.Command1.click();
    EXPECT_EQ(pc.power.calls().back(), "setSystemPowerState 0 1");
    asks("Cancel Shutdown?", Answer::Yes);
    EXPECT_TRUE(ends([this] { app->sProg.close(); }));
    for (const char* typed : {"/r", "/a"}) {
        tells(notice);
        EXPECT_TRUE(start(typed)) << typed;
    }
}

TEST_F(ShutDownRun, EachActionReachesTheSystemWithItsFlags) {
    using Case = std::tuple<SystemVersion, std::int16_t, std::string>;
    const SystemVersion xp{2, 5}, nt4{2, 4}, win98{1, 4};
    const Case cases[] = {{xp, 1, "setSystemPowerState 1 1"}, {xp, 4, "exitWindows 20"},
                          {nt4, 2, "exitWindows 7"},          {nt4, 4, "exitWindows 8"},
                          {win98, 8, "exitWindows 13"},       {win98, 4, "exitWindows 8"}};
    for (const auto& [version, action, call] : cases) {
        pc.power.systemVersion = version;
        PowerAction(pc.platform()).ShutDown(action);
        EXPECT_THAT(pc.power.calls().back(), HasSubstr(call)) << action;
    }
    // On the oldest systems a log-off takes the desktop's process with it.
    EXPECT_EQ(pc.power.calls().rbegin()[1], "terminateProcess 500 2035711 1");
}

TEST_F(ShutDownRun, AScheduledRunTakesTheFirstStepsAndEnds) {
    pc.files.put(R"(C:\1.TMP)", "");
    pc.files.put(systemFolder + "a.dll", "scheduled"); // Is accepted, though the setting is off.
    const auto run = [this](const std::string& source) {
        ASSERT_FALSE(start("/a"));
        EXPECT_EQ(lines().back(), "C:\\two.exe x \"C:\\1.TMP\" ");
        EXPECT_EQ(file(report),
                  "The following Files were scanned as a precaution (being renamed or deleted from " +
                      source + "),C:\\1.TMP\r\n");
        EXPECT_TRUE(settle());
        EXPECT_THAT(data("Integrity.dat"), HasSubstr("a.dll=" + crcText("scheduled")));
    };
    pc.files.put(R"(C:\WINDOWS\wininit.ini)", "[Rename]\r\nNUL=C:\\1.TMP\r\n");
    run("Wininit");
    pendingRenames("\\??\\C:\\1.TMP\0\0"s);
    run("the Registry");
    EXPECT_EQ(pc.power.calls(), Rows());
}

} // namespace
} // namespace tarvelon
