// Texts that others can write - registry, boot files, reports, settings - steer neither what is started nor
// what is written or deleted.

#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

using namespace std::string_literals;

using HostileTexts = Session;

TEST_F(HostileTexts, ReachNothingButTheScannersCommandLine) {
    const Rows victims{R"(C:\Home\letter.dll)",  R"(C:\Home\notes.log)",      R"(C:\evil.exe)",
                       dataFolder + "notes.log", programFolder + "..(1).log", programFolder + "x(1).log"};
    for (const std::string& victim : victims) {
        pc.files.put(victim, "precious");
    }
    pc.files.put(R"(C:\av.exe)", "");
    pc.files.put(dataFolder + "Integrity.dat", "");
    pc.files.put(dataFolder + "1.dat", "");
    pc.files.put(dataFolder + "Tarvelon.dat", "[Tarvelon]\r\nantivirus=|\r\n");
    pendingRenames("\\??\\C:\\Home\\letter.dll\0\0\\??\\\"C:\\evil.exe\0\0"s);
    pc.files.put(R"(C:\WINDOWS\wininit.ini)", "[Rename]\r\nNUL=C:\\Home\\letter.dll\r\n"
                                              "C:\\Home\\a.exe=C:\\evil.exe\" & \"C:\\evil.exe\r\n");
    ASSERT_FALSE(start());
    pc.registry.setText(Registry::localMachine, runKey, "Stranger", R"(C:\evil.exe)");
    click(form().Image7, form().Command1, form().cScnUpd, form().cMod, form().Command11);
    EXPECT_EQ(lines(), Rows()) << "in the place of a scanner that is missing";

    for (const char* text : {R"("C:\evil.exe" & C:\evil.exe)", R"(C:\Home\letter.dll,C:\evil.exe)"}) {
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
    click(form().Image11, form().cReports);
    for (int dates = 3; dates > 0; --dates) {
        const Tree::Node& root = form().TreeView2.nodes().front();
        form().TreeView2.clickNode(root);
        asks("Delete All Logs on this (" + root.text + ") Date?", Answer::Yes);
        form().TreeView2.keyDown(46);
    }
    click(form().Image7, form().Command1, form().cScnUpd);
    ASSERT_FALSE(start("/s"));
    app->frmLogoff.Image6.click();
    EXPECT_FALSE(settle());
    for (const std::string& victim : victims) {
        EXPECT_EQ(file(victim), "precious") << victim;
    }
    EXPECT_GT(lines().size(), 4u);
    EXPECT_THAT(lines(), testing::Each(testing::StartsWith("C:\\av.exe ")));
}

} // namespace
} // namespace tarvelon
