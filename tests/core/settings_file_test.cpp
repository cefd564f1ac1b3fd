#include "core/failure.h"
#include "core/globals.h"
#include "core/settings_file.h"
#include "platform/sim/workstation.h"

#include <gtest/gtest.h>

namespace tarvelon {

namespace {

class Settings : public testing::Test {
protected:
    Settings() {
        globals.cases = CaseRules(workstation.codePage);
        globals.app.settFile = R"(C:\Program Files\Tarvelon\Data\Tarvelon.dat)";
        workstation.files.makeFolders(globals.app.settFile);
    }

    void holds(const std::string& text) { workstation.files.put(globals.app.settFile, text); }
    std::string content() { return workstation.files.get(globals.app.settFile).value_or("(missing)"); }

    SimWorkstation workstation;
    Globals globals;
    Platform platform = workstation.platform();
    SettingsFile settings{globals, platform};
};

TEST_F(Settings, ANewFileIsMadeOnceAndRemadeWhenDeleted) {
    settings.checkSettFile();
    const std::string fresh = content();
    EXPECT_EQ(fresh.substr(0, fresh.find("[2]")),
              "[Tarvelon]\r\nsettings=0,0,0,0,0,0,0,0\r\nadvanced=65536,500,0\r\n"
              "antivirus=\r\nav2=\r\nantivirus2=1,0,0\r\nalgo=crc32\r\n\r\n"
              "[1]\r\npath=NULL\r\nargs=0,0,0,0,0,0,0\r\n"
              "args2=0,0,0,0,0,0,0\r\n\r\n");
    EXPECT_EQ(fresh.substr(fresh.find("[20]")),
              "[20]\r\npath=NULL\r\nargs=0,0,0,0,0,0,0\r\nargs2=0,0,0,0,0,0,0\r\n\r\n");
    EXPECT_EQ(settings.getSetting("GETSETT2"), "");

    EXPECT_TRUE(*settings.writeEntry(globals.app.settFile, "settings2", "1,1,1,1,1,1", "Tarvelon"));
    EXPECT_NE(content().find("algo=crc32\r\nsettings2=1,1,1,1,1,1\r\n\r\n[1]\r\n"), std::string::npos);
    settings.checkSettFile();
    EXPECT_EQ(settings.getSetting("getsett2"), "1,1,1,1,1,1") << "An existing file stays";

    workstation.files.remove(globals.app.settFile);
    settings.checkSettFile();
    EXPECT_EQ(content(), fresh);
}

TEST_F(Settings, GetSettingSearchesTheWholeFile) {
    holds(
        "[x]\r\nSETTINGS=1,0\r\nalgo=x\r\nantivirus=\r\nav2= | \r\n[1]\r\npath=C:\\A\r\n[2]\r\npath=C:\\B\r\n"
        "args=1,1\r\nadvanced=4096,1,0");
    EXPECT_EQ(settings.getSetting("GETSETT"), "1,0") << "A key in another case";
    EXPECT_EQ(settings.getSetting("path"), "C:\\A") << "The first hit in any section";
    EXPECT_EQ(settings.getSetting("AV2"), " | ") << "Blanks stay";
    EXPECT_EQ(settings.getSetting("ALGO"), "") << "One character is nothing";
    EXPECT_EQ(settings.getSetting("ANTIVIRUS"), "");
    EXPECT_EQ(settings.getSetting("ADV"), "") << "A last line without its end";
    EXPECT_EQ(settings.getSetting("CHECKPW"), "");
    EXPECT_EQ(settings.getSetting("settings"), "") << "No request word";
}

TEST_F(Settings, FailuresReachTheCaller) {
    EXPECT_THROW(settings.getSetting("ALGO"), Failure);
    workstation.faults.failAlways(Operation::OpenFile);
    EXPECT_THROW(settings.checkSettFile(), Failure);
    workstation.faults.clear(Operation::OpenFile);
    settings.checkSettFile();
    workstation.faults.failNth(Operation::ReadFile, 1);
    EXPECT_THROW(settings.getSetting("ALGO"), Failure);
    EXPECT_EQ(settings.getSetting("ALGO"), "crc32");
}

TEST_F(Settings, ReadIniTakesWhatItsBufferHolds) {
    settings.checkSettFile();
    const std::string folder = "C:\\" + std::string(300, 'x');
    settings.writeEntry(globals.app.settFile, "path", folder, "7");
    EXPECT_EQ(settings.readIni(globals.app.settFile, "PATH", 7), folder.substr(0, 249));
    EXPECT_EQ(settings.readIni(globals.app.settFile, "path", "8"), "NULL");
    EXPECT_EQ(settings.readIni(globals.app.settFile, "path", 21), "");
    EXPECT_EQ(settings.readIni("C:\\missing.dat", "path", 1), "");
}

class BaselineEntries : public Settings {
protected:
    BaselineEntries() {
        globals.baselines.sectionName = {"DLL", "DRV", "386", "SYS", "OCX", "EXE", "COM", "PIF", "SCR"};
        globals.baselines.customName = {"DLL", "", "", "", "", "EXE", "", "", ""};
        dll().setText("[DLL]\r\nKERNEL32.DLL=AA*E\r\nuser32.dll=BB*E\r\nNULL*E\r\n");
        custom().setText("[DLL]\r\nNULL*E\r\n");
        workstation.files.makeFolders("C:\\X\\Data\\");
    }
    EntryBlock& dll() { return globals.baselines.sectionText[0]; }
    EntryBlock& custom() { return globals.baselines.customText[0]; }
    void write(const std::string& key, const std::string& value) {
        EXPECT_FALSE(settings.writeEntry(baseline, key, value, "dll").has_value());
    }

    const std::string baseline = R"(C:\X\Data\Integrity.dat)";
};

TEST_F(BaselineEntries, GoToMemory) {
    write("user32.dll", "CC*E");
    write("new.dll", "DD*E");
    EXPECT_EQ(dll().text(), "[DLL]\r\nKERNEL32.DLL=AA*E\r\nuser32.dll=CC*E\r\nnew.dll=DD*E\r\nNULL*E\r\n");
    EXPECT_EQ(dll().find(globals.cases, "USER32.DLL"), "CC");
    EXPECT_EQ(workstation.files.get(baseline), std::nullopt);

    write("user32", "EE*E");
    EXPECT_EQ(dll().text().find("EE"), std::string::npos) << "The beginning of a longer name changes nothing";
    write("Kernel32.dll", "FF*E");
    EXPECT_EQ(dll().text(), "[DLL]\r\nKERNEL32.DLL=AA*E\r\nuser32.dll=CC*E\r\nnew.dll=DD*E\r\n"
                            "Kernel32.dll=FF*E\r\nNULL*E\r\n")
        << "Another case makes a second line";
    dll().setText("[DLL]\r\na.dll=AA*E\r\n");
    write("b.dll", "BB*E");
    EXPECT_EQ(dll().text(), "[DLL]\r\na.dll=AA*E\r\n") << "Without the end line there is no place for it";
    EXPECT_THROW(settings.writeEntry(baseline, "a.txt", "AA*E", "TXT"), Failure);
}

TEST_F(BaselineEntries, GoToTheCustomBaselineWhileACustomFolderIsInHand) {
    const std::string before = dll().text();
    globals.scan.customFolder = "!";
    write("a.dll", "AA*E");
    EXPECT_EQ(custom().text(), "[DLL]\r\na.dll=AA*E\r\nNULL*E\r\n");
    EXPECT_EQ(dll().text(), before);
    EXPECT_THROW(settings.writeEntry(baseline, "a.drv", "AA*E", "DRV"), Failure);
    EXPECT_EQ(settings.findCustomSection("exe"), 6u);
    EXPECT_EQ(settings.findSection("scr"), 9u);
}

TEST_F(BaselineEntries, SomeFilesAreWrittenAtOnce) {
    const std::string before = dll().text();
    for (const char* direct :
         {"C:\\X\\Data\\REGISTRY.DAT", "c:\\x\\data\\tarvelon.dat", "C:\\X\\myregistry.dat"}) {
        EXPECT_EQ(settings.writeEntry(direct, "k", "v", "DLL"), true);
        EXPECT_EQ(workstation.files.get(direct), "[DLL]\r\nk=v\r\n");
    }
    globals.baselines.primaryScan = true;
    EXPECT_EQ(settings.writeEntry(baseline, "a.dll", "AA*E", "DLL"), true);
    EXPECT_EQ(workstation.files.get(baseline), "[DLL]\r\na.dll=AA*E\r\n");
    EXPECT_EQ(dll().text(), before);
    workstation.faults.failNth(Operation::WriteFile, 1);
    EXPECT_EQ(settings.writeEntry(baseline, "b.dll", "AA*E", "DLL"), false);
}

} // namespace

} // namespace tarvelon
