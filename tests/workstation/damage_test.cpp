// Files of the program and of the system in a state that no program leaves them in: cut anywhere, grown out
// of all measure, full of foreign things.

#include "tests/workstation/session.h"

#include <gmock/gmock.h>

namespace tarvelon {
namespace {

using testing::ElementsAre;
using testing::EndsWith;

const std::string settingsPath = dataFolder + "Tarvelon.dat";
const std::string runKey = R"(Software\Microsoft\Windows\CurrentVersion\Run)";

class Damage : public Session {
protected:
    void SetUp() override {
        pc.files.put(dataFolder + "Integrity.dat", "");
        for (const char* path : {R"(C:\av.exe)", R"(C:\two.exe)"}) {
            pc.files.put(path, "");
        }
    }

    void report(const std::string& name, const std::string& text) {
        pc.files.put(dataFolder + "Log\\" + name, text);
    }
};

TEST_F(Damage, SettingsCutAnywhereTakeWhateverIsSavedNext) {
    const std::string whole = "[Tarvelon]\r\nsettings=0,1,0,1,0,1,0,1\r\nadvanced=131072,50,0\r\n"
                              "antivirus=C:\\old.exe|/x\r\nav2=C:\\two.exe| \r\nantivirus2=0,1,0\r\n"
                              "settings2=1,1,1,1,1,1\r\nalgo=crc32\r\n\r\n[1]\r\npath=NULL\r\n";
    ASSERT_FALSE(start());
    MForm1Screen& form = app->mForm1;
    SAvirScreen& scanners = app->s_avir;
    Settings& settings = app->globals.settings;
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        pc.files.put(settingsPath, whole.substr(0, length));
        for (FlatCheck* check : {&form.Check2, &form.Check15}) {
            check->setValue(true);
        }
        pc.dialogs.expect({.text = "Settings Saved Successfully"});
        form.cSave.click();
        for (OptionButton* option : {&form.Option2, &form.Option5, &form.Option11}) {
            option->click();
        }
        pc.dialogs.expect({.text = "Save Success!"});
        form.cSave2.click();
        form.cButton10.click();
        scanners.Text5.typed(R"(C:\av.exe)");
        scanners.Text1.typed(R"(C:\two.exe)");
        pc.dialogs.expect({.text = "Save Success!"});
        scanners.cButton3.click();

        for (FlatCheck* check : {&form.Check2, &form.Check15}) {
            check->setValue(false);
        }
        settings.readBuffer = settings.passCount = 0;
        settings.algoName.clear();
        scanners.Text5.typed("");
        scanners.Text1.typed("");
        form.cSettings.click(); // Loads all of them.
        const std::string loaded =
            std::to_string(form.Check2.value()) + std::to_string(form.Check15.value()) + " " +
            std::to_string(settings.readBuffer) + " " + std::to_string(settings.passCount) + " " +
            settings.algoName + " " + scanners.Text5.Caption() + " " + scanners.Text1.Caption();
        ASSERT_EQ(loaded, R"(11 131072 99999 CRC32 C:\av.exe C:\two.exe)") << "cut at " << length << ":\n"
                                                                           << file(settingsPath);
    }
}

TEST_F(Damage, ASnapshotCutAnywhereWarnsOfWhatItLacksAndIsMadeWholeByAccepting) {
    putSettings({});
    const auto set = [this](Registry::Key root, const std::string& key, const std::string& name) {
        pc.files.put("C:\\" + name + ".exe", "");
        pc.registry.setText(root, key, name, "C:\\" + name + ".exe");
    };
    set(Registry::localMachine, runKey, "One");
    set(Registry::localMachine, runKey, "Two");
    set(Registry::localMachine, R"(Software\Microsoft\Windows\CurrentVersion\RunOnce)", "Three");
    set(Registry::currentUser, runKey, "Four");
    ASSERT_FALSE(start());
    const std::string snapshot = dataFolder + "Registry.dat";
    const std::string whole = file(snapshot);
    const auto warnings = [this] {
        app->mForm1.Command1.click();
        return app->mForm1.cScnUpd.Enabled() ? app->mForm1.List5.count() - 1 : 0;
    };
    app->mForm1.Image7.click();
    ASSERT_EQ(warnings(), 0);
    int fewest = 4;
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        SCOPED_TRACE(whole.substr(0, length));
        pc.files.put(snapshot, whole.substr(0, length));
        const int now = warnings();
        EXPECT_LE(now, fewest) << "more of the file never warns of more";
        fewest = now;
        app->mForm1.cScnUpd.click();
        EXPECT_EQ(warnings(), 0);
    }
    EXPECT_EQ(fewest, 0);
}

TEST_F(Damage, AHugeWininitWithFiveHundredFilesIsScannedWholeAndHoldsNothingUp) {
    pc.files.put(settingsPath, "[Tarvelon]\r\nsettings2=0,0,0,0,0,0\r\nantivirus=C:\\av.exe|/"
                               "s\r\nav2=C:\\two.exe|/t\r\nsettings=0,0,0,"
                               "0,0,0,0,1\r\nantivirus2=1,0,0\r\n");
    std::string text = std::string(600000, 'x') + "\r\n[Rename]\r\n";
    std::string files;
    for (int number = 0; number < 500; ++number) {
        const std::string name = "C:\\T\\" + std::to_string(number) + ".TMP";
        pc.files.put(name, "");
        files += "\"" + name + "\" ";
        text += "NUL=" + name + "\r\nC:\\NEW=C:\\T\\GONE\r\nNUL=" + std::string(1000, '=') + "\r\n";
    }
    text += std::string("=\r\n\0=\0\r\nNUL=", 12);
    ASSERT_GT(text.size(), std::size_t{1} << 20);
    pc.files.put(R"(C:\WINDOWS\wininit.ini)", text);
    for (const bool startable : {true, false}) {
        pc.processes.canStart = [&](const std::string&) { return startable; };
        ASSERT_FALSE(start("/s"));
        app->frmLogoff.Image4.click();
        EXPECT_FALSE(settle());
        EXPECT_EQ(app->sProg.Label2.Caption(),
                  "Status: Some files were scanned...Shutting Down in 2 minutes");
        app->frmLogoff.Timer1.Enabled = false;
    }
    EXPECT_THAT(pc.processes.started(),
                ElementsAre(StartedProcess{"C:\\av.exe /s " + files, WindowStyle::MinimizedFocus},
                            StartedProcess{"C:\\two.exe /t " + files, WindowStyle::MinimizedFocus}));
    EXPECT_THAT(file(dataFolder + "Log\\03-05-2006(3_04_07PM).log"), EndsWith(",C:\\T\\499.TMP\r\n"));

    ASSERT_FALSE(start());
    app->mForm1.Image7.click();
    app->mForm1.cMod.click();
    EXPECT_EQ(app->mForm1.List6.count(), 1 + 3 * 500 + 3);
    EXPECT_EQ(app->mForm1.List6.item(1), "C:\\T\\0.TMP {To be Deleted}");
}

TEST_F(Damage, ReportsBigForeignAndManyAreListedAndDeleted) {
    constexpr int days = 10;
    constexpr int perDay = 40;
    for (int day = 1; day <= days; ++day) {
        for (int minute = 0; minute < perDay; ++minute) {
            report("02-" + std::to_string(100 + day).substr(1) + "-2006(" + std::to_string(minute / 60) +
                       "_" + std::to_string(100 + minute % 60).substr(1) + "_00PM).log",
                   "Heading,C:\\A.DLL\r\n");
        }
    }
    for (const char* name : {"(", ")", "()", "-(-)", "x", "02-01-2006(", "02-01-2006)0_00_00PM("}) {
        report(std::string(name) + ".LOG", "");
    }
    pc.files.makeFolders(dataFolder + "Log\\folder(1).log\\");
    report(
        "big(1).log", "Heading" + [] {
            std::string fields;
            for (int number = 0; fields.size() < 1 << 20; ++number) {
                fields += ",C:\\" + std::to_string(number) + std::string(200, 'x') + ".DLL";
            }
            return fields;
        }());
    ASSERT_FALSE(start());
    MForm1Screen& form = app->mForm1;
    form.Image11.click();
    form.cReports.click();
    const Tree& tree = form.TreeView2;
    EXPECT_NE(tree.find("02-10-2006|0:39:00 PM"), nullptr);
    EXPECT_GE(tree.nodes().size(), static_cast<std::size_t>(days * (perDay + 1)));
    const auto open = [&](const std::string& key) {
        ASSERT_NE(tree.find(key), nullptr);
        form.TreeView2.clickNode(*tree.find(key));
        form.cViewReport.click();
    };
    open("big|1");
    EXPECT_GT(form.List4.count(), 4900);
    EXPECT_THAT(form.List4.item(4900), HasSubstr("C:\\4899xxx"));
    form.cX.click();
    pc.dialogs.expect({.text = "Error - This report does not exist and could not be opened."});
    open("folder|1");

    pc.dialogs.expect({.text = "Are you sure you want to delete all the logs?", .answer = Answer::Yes});
    form.cButton3.click();
    form.cReports.click();
    EXPECT_EQ(tree.nodes().size(), 2U) << "the folder stays, as no report";
}

} // namespace
} // namespace tarvelon
