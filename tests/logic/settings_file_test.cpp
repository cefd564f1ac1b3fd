#include "core/globals.h"
#include "core/profile_image.h"
#include "core/settings_file.h"
#include "platform/sim/workstation.h"

#include <gtest/gtest.h>

namespace tarvelon {
namespace {

const std::string path = R"(C:\X\Data\Tarvelon.dat)";

TEST(ProfileImage, ReadsAsTheSystemDoesAndWritesOneLine) {
    const CaseRules cases;
    ProfileImage profile(cases);
    profile.write("S", "k", "v");
    EXPECT_EQ(profile.text(), "[S]\r\nk=v\r\n");
    profile.setText("stray=0\r\n[Main]\r\n; note=1\r\n  Path  =  C:\\My Folder  \r\nquoted=\" two \"\r\n"
                    "single='x'\r\nhalf=\"x\r\nequals=a=b\r\nempty=\r\n[no head\r\ntwice=1\r\ntwice=2\r\n"
                    "no equals sign\n\r\n\r\n[ 1 ]\r\npath=one\n[main]\r\nlate=1\r\n[last]\r\nopen=end");
    struct Line {
        const char *section, *key;
        std::optional<std::string> value;
    };
    for (const auto& [section, key, value] : {Line{"main", "stray", {}},
                                              {"main", "; note", "1"},
                                              {"MAIN", " PATH ", "C:\\My Folder"},
                                              {"main", "quoted", " two "},
                                              {"main", "single", "x"},
                                              {"main", "half", "\"x"},
                                              {"main", "equals", "a=b"},
                                              {"main", "empty", ""},
                                              {"main", "twice", "1"},
                                              {"main", "no equals sign", {}},
                                              {"1", "path", "one"},
                                              {"main", "late", {}},
                                              {"last", "open", "end"}}) {
        EXPECT_EQ(profile.read(section, key), value) << key;
    }

    profile.setText("; head\r\n[A]\r\nkey=old\nloose line\r\n\r\n\r\n[B]\r\n;note\r\nlast=1");
    for (const auto& [section, key, value] : {Line{"a", "KEY", "new value"},
                                              {"A", "added", "1"},
                                              {"b", "last", "22"},
                                              {"b", "more", "3"},
                                              {"New", "k", "v"}}) {
        profile.write(section, key, *value);
        EXPECT_EQ(profile.read(section, key), value);
    }
    EXPECT_EQ(profile.text(), "; head\r\n[A]\r\nkey=new value\nloose line\r\nadded=1\r\n\r\n\r\n"
                              "[B]\r\n;note\r\nlast=22\r\nmore=3\r\n[New]\r\nk=v\r\n");
    profile.setText("[A]\r\nk=1\r");
    for (const char* odd : {"x", ";", "[0]", "[", ""}) {
        profile.write("A", odd, "v");
        EXPECT_EQ(profile.read("A", odd), "v") << "Any name that was written is found again";
    }
    EXPECT_TRUE(profile.text().starts_with("[A]\r\nk=1\r\nx=v\r\n")) << "A torn line end is made whole";
    profile.write("A", "k", "1\r\n[B]\r\nb=2");
    EXPECT_EQ(profile.read("A", "k"), "1") << "A value of several lines reads as it will from the disk";
    EXPECT_EQ(profile.read("B", "b"), "2");
}

class SettingsTest : public testing::Test {
protected:
    SettingsTest() { globals.app.settFile = path; }
    void put(const std::string& text) { files.put(path, text); }
    std::string read(const std::string& key) { return settings.readIni(path, key, "A"); }
    std::string content() { return files.get(path).value_or("(missing)"); }

    SimWorkstation pc;
    SimFiles& files = pc.files;
    Globals globals;
    SettingsFile settings{globals, pc.platform()};
};

TEST_F(SettingsTest, EachWriteIsOnTheDiskAndOthersChangesAreSeen) {
    put("");
    for (const char* value : {"a longer value", "", "1", "2"}) {
        EXPECT_EQ(settings.writeEntry(path, "k", value, "A"), true);
        EXPECT_EQ(content(), "[A]\r\nk=" + std::string(value) + "\r\n");
    }
    EXPECT_EQ(pc.faults.calls(Operation::ReadFile), 1) << "What it wrote itself is not read again";
    EXPECT_EQ(settings.writeEntry(R"(C:\X\myregistry.dat)", "k", "other", "A"), true);
    put("[A]\r\nk=9\r\n");
    EXPECT_EQ(read("k"), "9") << "Changed by another program, at the same length";
    put("[A]\r\nk=7\r\n");
    EXPECT_EQ(settings.writeEntry(path, "x", "1", "A"), true);
    EXPECT_EQ(content(), "[A]\r\nk=7\r\nx=1\r\n");
    files.remove(path);
    EXPECT_EQ(read("k"), "");
    EXPECT_EQ(settings.writeEntry(path, "path", "C:\\" + std::string(300, 'x'), "7"), true);
    EXPECT_EQ(content().find("k="), std::string::npos) << "Nothing of the removed file comes back";
    EXPECT_EQ(settings.readIni(path, "PATH", 7).size(), 249u);
}

TEST_F(SettingsTest, AFailedWriteLosesNothing) {
    const std::string before = "[A]\r\nk=1\r\nlong=0123456789\r\n";
    put(before);
    using enum Operation;
    for (const Operation how : {OpenFile, ReadFile, WriteFile, WriteFileHalf, FillDisk}) {
        for (const auto& [key, value] : {std::pair("k", "a longer value"), {"long", ""}, {"new", "1"}}) {
            SettingsFile fresh(globals, pc.platform());
            pc.faults.failNth(how, 1);
            const bool written = fresh.writeEntry(path, key, value, "A").value_or(true);
            EXPECT_EQ(written, how == FillDisk && key == std::string("long")) << "It gets shorter";
            EXPECT_EQ(content(), written ? "[A]\r\nk=1\r\nlong=\r\n" : before) << key << "=" << value;
            EXPECT_EQ(fresh.readIni(path, "k", "A"), "1") << "What was not written is not believed";
            pc.faults.clear(how);
            put(before);
        }
    }
    pc.faults.failNth(SetLength, 1);
    settings.writeEntry(path, "long", "", "A");
    EXPECT_EQ(content(), "[A]\r\nk=1\r\nlong=\r\n" + std::string(10, '\n'))
        << "Nothing of the old text stays";
    settings.writeEntry(path, "long", "0123456789", "A");
    EXPECT_EQ(content().find("0123456789"), content().rfind("0123456789"));
    pc.faults.failNth(LastWrite, 1);
    put(before);
    EXPECT_EQ(read("k") + read("long"), "10123456789");
}

TEST_F(SettingsTest, BaselineEntriesGoToMemory) {
    EntryBlock& dll = globals.baselines.sectionText[0];
    globals.baselines.sectionName[0] = "DLL";
    const std::string known = "[DLL]\r\nKERNEL32.DLL=AA*E\r\nuser32.dll=BB*E\r\n";
    const std::string end = "NULL*E\r\n";
    for (const auto& [name, after] :
         {std::pair<std::string, std::string>{"new.dll", known + "new.dll=CC*E\r\n" + end},
          {"user32.dll", "[DLL]\r\nKERNEL32.DLL=AA*E\r\nuser32.dll=CC*E\r\n" + end},
          // The beginning of a longer name changes nothing; another case makes a second line.
          {"user32", known + end},
          {"Kernel32.dll", known + "Kernel32.dll=CC*E\r\n" + end}}) {
        dll.setText(known + end);
        EXPECT_FALSE(settings.writeEntry(R"(C:\X\Data\Integrity.dat)", name, "CC*E", "dll").has_value());
        EXPECT_EQ(dll.text(), after);
        EXPECT_EQ(dll.find(globals.cases, "kernel32.dll"), "AA") << "The first line of a name counts";
    }
}

} // namespace
} // namespace tarvelon
