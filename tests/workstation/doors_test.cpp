// Texts that others can write - registry, boot files, reports, settings - steer neither what is started nor
// what is written or deleted.

#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

using namespace std::string_literals;

class HostileTexts : public Session {};

TEST_F(HostileTexts, ReachNothingButTheScannersCommandLine) {
    const std::string runKey = R"(Software\Microsoft\Windows\CurrentVersion\Run)";
    const Rows victims{R"(C:\Home\letter.dll)",  R"(C:\Home\notes.log)",      R"(C:\evil.exe)",
                       dataFolder + "notes.log", programFolder + "..(1).log", programFolder + "x(1).log"};
    for (const std::string& victim : victims) {
        pc.files.put(victim, "precious");
    }
    pc.files.put(R"(C:\av.exe)", "");
    pc.files.put(dataFolder + "Integrity.dat", "");
    pc.files.put(dataFolder + "1.dat", "");
    pc.files.put(dataFolder + "Tarvelon.dat", "[Tarvelon]\r\nantivirus=|\r\n");
    pc.registry.setValue(Registry::localMachine, R"(System\CurrentControlSet\Control\Session Manager)",
                         "PendingFileRenameOperations",
                         {SimRegistry::TextList, "\\??\\C:\\Home\\letter.dll\0\0\\??\\\"C:\\evil.exe\0\0"s});
    pc.files.put(R"(C:\WINDOWS\wininit.ini)", "[Rename]\r\nNUL=C:\\Home\\letter.dll\r\n"
                                              "C:\\Home\\a.exe=C:\\evil.exe\" & \"C:\\evil.exe\r\n");
    ASSERT_FALSE(start());
    MForm1Screen& window = app->mForm1;
    pc.registry.setText(Registry::localMachine, runKey, "Stranger", R"(C:\evil.exe)");
    click(window.Image7, window.Command1, window.cScnUpd, window.cMod, window.Command11);
    EXPECT_EQ(lines(), Rows()) << "in the place of a scanner that is missing";

    for (const char* text : {R"(C:\evil.exe "C:\Home\letter.dll")", R"("C:\evil.exe" & C:\evil.exe)",
                             R"(|C:\evil.exe|)", R"(C:\Home\letter.dll,C:\evil.exe)"}) {
        pc.registry.setText(Registry::localMachine, runKey, text, text);
    }
    putSettings({.settings = "1,1,1,1,1,1,1,1\r\nsettings2=1,1,1,1,1,1",
                 .antivirus = "C:\\av.exe|/s",
                 .av2 = "C:\\av.exe|",
                 .folders = "[1]\r\npath=C:\\Home\\..\\Home\\\r\nargs=1,1,1,1,1,1,1\r\nargs2=1,1,1,1,1,1,1"
                            "\r\n[..\\..\\Home]\r\npath=C:\\Home\\\r\n"});
    for (const char* name : {"x(1)", "..(1)", "C:(Home)"}) {
        pc.files.put(dataFolder + "Log\\" + name + ".log", "..\\..\\Home\\letter.dll,C:\\evil.exe|x\r\n");
    }
    click(window.Image11, window.cReports);
    for (int dates = 3; dates > 0; --dates) {
        const Tree::Node& root = window.TreeView2.nodes().front();
        window.TreeView2.clickNode(root);
        asks("Delete All Logs on this (" + root.text + ") Date?", Answer::Yes);
        window.TreeView2.keyDown(46);
    }
    click(window.Image7, window.Command1, window.cScnUpd);
    ASSERT_FALSE(start("/s"));
    app->frmLogoff.Image6.click();
    EXPECT_FALSE(settle());
    EXPECT_EQ(app->sProg.Label2.Caption(), "Status: Some files were scanned...Shutting Down in 2 minutes");
    for (const std::string& victim : victims) {
        EXPECT_EQ(file(victim), "precious") << victim;
    }
    EXPECT_GT(lines().size(), 4u);
    EXPECT_THAT(lines(), testing::Each(testing::StartsWith("C:\\av.exe ")));
}

} // namespace
} // namespace tarvelon
