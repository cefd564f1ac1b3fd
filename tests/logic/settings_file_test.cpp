#include "core/failure.h"
#include "core/globals.h"
#include "core/profile_image.h"
#include "core/settings_file.h"
#include "platform/sim/workstation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvelon {
namespace {

const std::string path = R"(C:\X\Data\Tarvelon.dat)";

TEST(ProfileImage, ReadsAsTheSystemDoes) {
    struct Line {
        const char *text, *section, *key;
        std::optional<std::string> value;
    };
    const Line lines[] = {{"stray=0\r\n[Main]\r\n", "main", "stray", {}},
                          {"; note=1\r\n", "main", "; note", "1"},
                          {"  Path  =  C:\\My Folder  \r\n", "MAIN", " PATH ", "C:\\My Folder"},
                          {"quoted=\" two \"\r\n", "main", "quoted", " two "},
                          {"single='x'\r\n", "main", "single", "x"},
                          {"half=\"x\r\n", "main", "half", "\"x"},
                          {"equals=a=b\r\n", "main", "equals", "a=b"},
                          {"empty=\r\n[no head\r\n", "main", "empty", ""},
                          {"twice=1\r\ntwice=2\r\n", "main", "twice", "1"},
                          {"no equals sign\r\n\r\n", "main", "no equals sign", {}},
                          {"[ 1 ]\r\npath=one\n", "1", "path", "one"},
                          {"[main]\r\nlate=1\r\n", "main", "late", {}}, // The first section of a name counts.
                          {"[last]\r\nopen=end", "last", "open", "end"}};
    std::string text;
    for (const Line& line : lines) {
        text += line.text;
    }
    const CaseRules cases;
    ProfileImage profile(cases);
    profile.setText(text);
    for (const Line& line : lines) {
        EXPECT_EQ(profile.read(line.section, line.key), line.value) << line.key;
    }
}

TEST(ProfileImage, WritesTouchOneLine) {
    const CaseRules cases;
    ProfileImage profile(cases);
    EXPECT_EQ(profile.write("S", "k", "v"), 0u);
    EXPECT_EQ(profile.text(), "[S]\r\nk=v\r\n");
    profile.setText("; head\r\n[A]\r\nkey=old\nloose line\r\n\r\n\r\n[B]\r\n;note\r\nlast=1");
    profile.write("a", "KEY", "new value");
    profile.write("A", "added", "1");
    profile.write("b", "last", "22");
    profile.write("b", "more", "3");
    profile.write("New", "k", "v");
    EXPECT_EQ(profile.text(), "; head\r\n[A]\r\nkey=new value\nloose line\r\nadded=1\r\n\r\n\r\n"
                              "[B]\r\n;note\r\nlast=22\r\nmore=3\r\n[New]\r\nk=v\r\n");
    for (const char* key : {"k", "x"}) {
        profile.setText("[A]\r\nk=1\r");
        profile.write("A", key, "1");
        EXPECT_TRUE(profile.text().starts_with("[A]\r\nk=1\r\n")) << "A torn line end is made whole";
    }
    for (const char* odd : {";", "[0]", "[", ""}) {
        profile.write("A", odd, "v");
        EXPECT_EQ(profile.read("A", odd), "v") << "Any name that was written is found again";
    }
    profile.write("A", "k", "1\r\n[B]\r\nb=2");
    EXPECT_EQ(profile.read("A", "k"), "1") << "A value of several lines reads as it will from the disk";
    EXPECT_EQ(profile.read("B", "b"), "2");
}

class SettingsTest : public testing::Test {
protected:
    SettingsTest() {
        globals.app.settFile = path;
        globals.baselines.sectionName = {"DLL", "DRV", "386", "SYS", "OCX", "EXE", "COM", "PIF", "SCR"};
        files.makeFolders(path);
    }
    void put(const std::string& text) { files.put(path, text); }
    std::optional<bool> write(const std::string& key, const std::string& value) {
        return settings.writeEntry(path, key, value, "A");
    }
    std::string read(const std::string& key) { return settings.readIni(path, key, "A"); }
    std::string content() { return files.get(path).value_or("(missing)"); }

    SimWorkstation pc;
    SimFiles& files = pc.files;
    Globals globals;
    SettingsFile settings{globals, pc.platform()};
};

TEST_F(SettingsTest, EachWriteIsOnTheDiskAndOthersChangesAreSeen) {
    EXPECT_EQ(read("k"), "");
    EXPECT_EQ(write("k", "a longer value"), true);
    EXPECT_EQ(write("k", ""), true);
    EXPECT_EQ(content(), "[A]\r\nk=\r\n") << "The file shrinks with its text";
    for (int i = 0; i < 50; ++i) {
        write("k", std::to_string(i));
    }
    EXPECT_EQ(pc.faults.calls(Operation::ReadFile), 1) << "What it wrote itself is not read again";
    for (const char* value : {"9", "8"}) { // Changed at the same length, too.
        put(std::string("[A]\r\nk=") + value + "\r\nx=1\r\n");
        EXPECT_EQ(read("k"), value);
    }
    put("[A]\r\nk=7\r\nx=1\r\n");
    EXPECT_EQ(write("k", "6"), true);
    EXPECT_EQ(content(), "[A]\r\nk=6\r\nx=1\r\n");
    EXPECT_EQ(settings.writeEntry(R"(C:\X\myregistry.dat)", "k", "other", "A"), true);
    EXPECT_EQ(read("k"), "6");
    files.remove(path);
    EXPECT_EQ(read("k"), "");
    EXPECT_EQ(write("y", "1"), true);
    EXPECT_EQ(content(), "[A]\r\ny=1\r\n") << "Nothing of the removed file comes back";
}

TEST_F(SettingsTest, AFailedWriteLosesNothing) {
    const std::string before = "[A]\r\nk=1\r\nlong=0123456789\r\n";
    put(before);
    using enum Operation;
    struct Fault {
        Operation how;
        const char *key, *value;
    };
    for (const auto& [how, key, value] : {Fault{OpenFile, "k", "2"},
                                          {ReadFile, "k", "2"},
                                          {WriteFile, "k", "2"},
                                          {WriteFileHalf, "k", "a longer value"},
                                          {WriteFileHalf, "long", ""},
                                          {WriteFileHalf, "new", "1"},
                                          {FillDisk, "k", "a longer value"},
                                          {FillDisk, "new", "1"}}) {
        SettingsFile fresh(globals, pc.platform());
        pc.faults.failNth(how, 1);
        EXPECT_EQ(fresh.writeEntry(path, key, value, "A"), false);
        EXPECT_EQ(content(), before) << key << "=" << value;
        EXPECT_EQ(fresh.readIni(path, "k", "A"), "1") << "What was not written is not believed";
        pc.faults.clear(how);
    }
    pc.faults.failNth(SetLength, 1);
    EXPECT_EQ(write("long", ""), true);
    EXPECT_EQ(content(), "[A]\r\nk=1\r\nlong=\r\n" + std::string(10, '\n'))
        << "Nothing of the old text stands behind the new one";
    write("long", "0123456789");
    EXPECT_EQ(read("long"), "0123456789");
    put(before);
    pc.faults.failNth(LastWrite, 1);
    EXPECT_EQ(read("k"), "1");
    write("k", "3");
    EXPECT_EQ(content(), "[A]\r\nk=3\r\nlong=0123456789\r\n");
}

TEST_F(SettingsTest, ANewFileIsMadeOnceAndReadAsFarAsABufferHolds) {
    settings.checkSettFile();
    EXPECT_TRUE(
        content().ends_with("[20]\r\npath=NULL\r\nargs=0,0,0,0,0,0,0\r\nargs2=0,0,0,0,0,0,0\r\n\r\n"));
    const std::string folder = "C:\\" + std::string(300, 'x');
    settings.writeEntry(path, "path", folder, "7");
    settings.checkSettFile();
    EXPECT_EQ(settings.readIni(path, "PATH", 7), folder.substr(0, 249));
    pc.faults.failAlways(Operation::OpenFile);
    EXPECT_THAT([&] { settings.checkSettFile(); },
                testing::ThrowsMessage<Failure>("The settings file cannot be made:\r\n" + path));
}

TEST_F(SettingsTest, ASettingIsSearchedInTheWholeFile) {
    EXPECT_THROW(settings.getSetting("ALGO"), Failure);
    put("[x]\r\nSETTINGS=1,0\r\nalgo=x\r\nantivirus=\r\nav2= | \r\n[1]\r\npath=C:\\A\r\n"
        "[2]\r\npath=C:\\B\r\nargs=1,1\r\nadvanced=4096,1,0");
    // At last one character, none, a line without its end, no such line, no request.
    for (const auto& [request, value] : {std::pair("GETSETT", "1,0"),
                                         {"path", "C:\\A"},
                                         {"AV2", " | "},
                                         {"ARGS", "1,1"},
                                         {"ALGO", ""},
                                         {"ANTIVIRUS", ""},
                                         {"ADV", ""},
                                         {"GETSETT2", ""},
                                         {"settings", ""}}) {
        EXPECT_EQ(settings.getSetting(request), value);
    }
    pc.faults.failNth(Operation::ReadFile, 1);
    EXPECT_THROW(settings.getSetting("ALGO"), Failure);
}

TEST_F(SettingsTest, BaselineEntriesGoToMemory) {
    EntryBlock& dll = globals.baselines.sectionText[0];
    const std::string known = "[DLL]\r\nKERNEL32.DLL=AA*E\r\nuser32.dll=BB*E\r\n";
    struct Accepted {
        std::string before, entry, after;
    };
    for (const auto& [before, name, after] :
         {Accepted{known + "NULL*E\r\n", "new.dll", known + "new.dll=CC*E\r\nNULL*E\r\n"},
          {known + "NULL*E\r\n", "user32.dll", "[DLL]\r\nKERNEL32.DLL=AA*E\r\nuser32.dll=CC*E\r\nNULL*E\r\n"},
          // The beginning of a longer name changes nothing; another case makes a second line.
          {known + "NULL*E\r\n", "user32", known + "NULL*E\r\n"},
          {known + "NULL*E\r\n", "Kernel32.dll", known + "Kernel32.dll=CC*E\r\nNULL*E\r\n"},
          // Without the end line there is no place for it.
          {known, "new.dll", known}}) {
        dll.setText(before);
        EXPECT_FALSE(settings.writeEntry(R"(C:\X\Data\Integrity.dat)", name, "CC*E", "dll").has_value());
        EXPECT_EQ(dll.text(), after);
        EXPECT_EQ(dll.find(globals.cases, "kernel32.dll"), "AA") << "The first line of a name counts";
    }
    EXPECT_THROW(settings.writeEntry(R"(C:\X\Data\Integrity.dat)", "a.txt", "AA*E", "TXT"), Failure);
}

} // namespace
} // namespace tarvelon
