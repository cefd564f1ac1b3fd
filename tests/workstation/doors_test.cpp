// Texts that others can write - registry, boot files, reports, settings - steer neither what is started nor
// what is written or deleted.

#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

using namespace std::string_literals;

const std::string runKey = R"(Software\Microsoft\Windows\CurrentVersion\Run)";

class HostileTexts : public Session {
protected:
    void SetUp() override {
        pc.files.put(R"(C:\av.exe)", "");
        pc.files.put(systemFolder + "a.dll", "a");
        makeBaseline();
        for (const std::string& victim : victims) {
            pc.files.put(victim, "precious");
        }
        putSettings({.settings = "1,1,1,1,1,1,1,1\r\nsettings2=1,1,1,1,1,1",
                     .antivirus = "C:\\av.exe|/s",
                     .av2 = "C:\\av.exe|",
                     .folders =
                         "[1]\r\npath=C:\\Home\\..\\Home\\\r\nargs=1,1,1,1,1,1,1\r\nargs2=1,1,1,1,1,1,1\r\n"
                         "[..\\..\\Home]\r\npath=C:\\Home\\\r\n"});
        pc.files.put(dataFolder + "1.dat", "");
        pc.files.put(
            R"(C:\WINDOWS\wininit.ini)",
            "[Rename]\r\nNUL=C:\\Home\\letter.dll\r\nC:\\Home\\a.exe=C:\\evil.exe\" & \"C:\\evil.exe\r\n");
        pc.registry.setValue(
            Registry::localMachine, R"(System\CurrentControlSet\Control\Session Manager)",
            "PendingFileRenameOperations",
            {SimRegistry::TextList, "\\??\\C:\\Home\\letter.dll\0\0\\??\\\"C:\\evil.exe\0\0"s});
    }

    void plantInRegistry() {
        for (const char* text : {R"(C:\evil.exe "C:\Home\letter.dll")", R"("C:\evil.exe" & C:\evil.exe)",
                                 R"(|C:\evil.exe|)", R"(C:\Home\letter.dll,C:\evil.exe)"}) {
            pc.registry.setText(Registry::localMachine, runKey, text, text);
        }
    }

    void expectHarmless() const {
        for (const std::string& victim : victims) {
            EXPECT_EQ(file(victim), "precious") << victim;
        }
        EXPECT_FALSE(pc.processes.started().empty());
        for (const StartedProcess& process : pc.processes.started()) {
            EXPECT_EQ(process.commandLine.rfind("C:\\av.exe ", 0), 0U) << process.commandLine;
        }
    }

    const std::vector<std::string> victims = {
        R"(C:\Home\letter.dll)",  R"(C:\Home\notes.log)",      R"(C:\evil.exe)",
        dataFolder + "notes.log", programFolder + "..(1).log", programFolder + "05-01-2003(3_04_07PM).log"};
};

TEST_F(HostileTexts, AtShutDownOnlyReachTheScannersCommandLine) {
    ASSERT_FALSE(start("/s"));
    plantInRegistry();
    app->frmLogoff.Image6.click();
    EXPECT_FALSE(settle());
    EXPECT_EQ(app->sProg.Label2.Caption(), "Status: Some files were scanned...Shutting Down in 2 minutes");
    expectHarmless();
}

TEST_F(HostileTexts, InReportsAndTheRegistryPageDeleteNothingElse) {
    const std::string logs = dataFolder + "Log\\";
    pc.files.put(logs + "05-01-2003(3_04_07PM).log",
                 "..\\..\\Home\\letter.dll,C:\\evil.exe|C:\\evil.exe\r\n");
    pc.files.put(logs + "..(1).log", "x\r\n");
    pc.files.put(logs + "C:(Home).log", "x\r\n");
    ASSERT_FALSE(start());
    MForm1Screen& window = app->mForm1;
    window.Image11.click();
    window.cReports.click();
    for (int dates = 3; dates > 0; --dates) {
        const Tree::Node& root = window.TreeView2.nodes().front();
        window.TreeView2.clickNode(root);
        asks("Delete All Logs on this (" + root.text + ") Date?", Answer::Yes);
        window.TreeView2.keyDown(46);
    }
    plantInRegistry();
    window.Image7.click();
    window.Command1.click();
    EXPECT_EQ(window.List5.count(), 5);
    window.cScnUpd.click();
    expectHarmless();
}

TEST_F(HostileTexts, WithoutAScannerTheSuspectIsNotStartedInItsPlace) {
    pc.files.put(dataFolder + "Tarvelon.dat", "[Tarvelon]\r\nsettings2=1,1,1,1,1,1\r\nantivirus=|\r\n");
    ASSERT_FALSE(start());
    pc.registry.setText(Registry::localMachine, runKey, "Stranger", R"(C:\evil.exe)");
    app->mForm1.Image7.click();
    app->mForm1.Command1.click();
    app->mForm1.cScnUpd.click();
    app->mForm1.cMod.click();
    app->mForm1.Command11.click();
    EXPECT_TRUE(pc.processes.started().empty());
}

} // namespace
} // namespace tarvelon
