#include "core/globals.h"
#include "core/profile_image.h"
#include "core/settings_file.h"
#include "platform/sim/workstation.h"

#include <gtest/gtest.h>

#include <random>

namespace tarvelon {
namespace {

const std::string path = R"(C:\X\Data\Tarvelon.dat)";

TEST(ProfileImage, ReadsAsTheSystemDoesAndWritesOneLine) {
    const TextRules texts;
    ProfileImage profile(texts);
    profile.write("S", "k", "v");
    EXPECT_EQ(profile.text(), "[S]\r\nk=v\r\n");
    profile.setText("stray=0\r\n[Main]\r\n; note=1\r\n  Path  =  C:\\My Folder  \r\nquoted=\" two \"\r\n\r\n"
                    "single='x'\r\nhalf=\"x\r\n\r\nequals=a=b\r\nempty=\r\n[no head\r\ntwice=1\r\ntwice=2\r\n"
                    "no equals sign\n\r\n\r\n[ 1 ]\r\npath=one\n[main]\r\nlate=1\r\n[last]\r\nopen=end");
    std::string found;
    for (const char* key : {"stray", "; note", " PATH ", "quoted", "single", "half", "equals", "empty",
                            "twice", "no equals sign", "late"}) {
        found += profile.read("MAIN", key).value_or("none") + "|";
    }
    EXPECT_EQ(found, "none|1|C:\\My Folder| two |x|\"x|a=b||1|none|none|");
    EXPECT_EQ(profile.read("1", "path"), "one");
    EXPECT_EQ(profile.read("last", "open"), "end");

    profile.setText("; head\r\n[A]\r\nkey=old\nloose line\r\n\r\n\r\n[B]\r\n;note\r\nlast=1");
    profile.write("a", "KEY", "new value");
    profile.write("A", "added", "1");
    profile.write("b", "last", "22");
    profile.write("b", "more", "3");
    EXPECT_EQ(profile.read("B", "more"), "3");
    profile.write("New", "k", "v");
    EXPECT_EQ(profile.text(), "; head\r\n[A]\r\nkey=new value\nloose line\r\nadded=1\r\n\r\n\r\n"
                              "[B]\r\n;note\r\nlast=22\r\nmore=3\r\n[New]\r\nk=v\r\n");
    profile.setText("[A]\r\nk=1\r");
    profile.write("A", "x", "v");
    EXPECT_EQ(profile.text(), "[A]\r\nk=1\r\nx=v\r\n") << "The torn line end";
    profile.write("A", "k", "1\r\n[B]\r\nb=2");
    EXPECT_EQ(profile.read("A", "k"), "1") << "A value of several lines reads as it will from the disk";
}

class SettingsTest : public testing::Test {
protected:
    SettingsTest() { globals.app.settFile = path; }
    std::string read(const std::string& key) { return settings.readIni(path, key, "A"); }
    std::string content() { return files.get(path).value_or("(missing)"); }

    SimWorkstation pc;
    SimFiles& files = pc.files;
    Globals globals;
    SettingsFile settings{globals, pc.platform()};
};

TEST_F(SettingsTest, EachWriteIsOnTheDiskAndOthersChangesAreSeen) {
    files.put(path, "");
    for (const char* value : {"a longer value", "", "1", "2"}) {
        EXPECT_EQ(settings.writeEntry(path, "k", value, "A"), true);
        EXPECT_EQ(content(), "[A]\r\nk=" + std::string(value) + "\r\n");
    }
    EXPECT_EQ(pc.faults.calls(Operation::ReadFile), 1) << "What it wrote itself is not read again";
    files.put(path, "[A]\r\nk=9\r\n");
    EXPECT_EQ(read("k"), "9") << "Changed by another program, at the same length";
    files.put(path, "[A]\r\nk=7\r\n");
    EXPECT_EQ(settings.writeEntry(path, "x", "1", "A"), true);
    EXPECT_EQ(content(), "[A]\r\nk=7\r\nx=1\r\n");
    files.remove(path);
    EXPECT_EQ(read("k"), "");
    EXPECT_EQ(settings.writeEntry(path, "path", "C:\\" + std::string(300, 'x'), "7"), true);
    EXPECT_EQ(content().find("k="), std::string::npos) << "Nothing of the removed file comes back";
    EXPECT_EQ(settings.readIni(path, "PATH", "7").size(), 249u);
}

TEST_F(SettingsTest, AFailedWriteLosesNothing) {
    const std::string before = "[A]\r\nk=1\r\nlong=0123456789\r\n";
    files.put(path, before);
    using enum Operation;
    for (const Operation how : {OpenFile, ReadFile, WriteFile, WriteFileHalf, FillDisk}) {
        for (const auto& [key, value] : {std::pair("k", "a longer value"), {"new", "1"}}) {
            SettingsFile fresh(globals, pc.platform());
            pc.faults.failNth(how, 1);
            EXPECT_EQ(fresh.writeEntry(path, key, value, "A"), false);
            EXPECT_EQ(content(), before) << key << "=" << value;
            EXPECT_EQ(fresh.readIni(path, "k", "A"), "1") << "What was not written is not believed";
            pc.faults.clear(how);
        }
    }
    pc.faults.failNth(WriteFileHalf, 1);
    EXPECT_EQ(settings.writeEntry(path, "long", "", "A"), false);
    EXPECT_EQ(content(), before) << "A shorter text is put back, too";
    pc.faults.failNth(SetLength, 1);
    settings.writeEntry(path, "long", "", "A");
    EXPECT_EQ(content(), "[A]\r\nk=1\r\nlong=\r\n" + std::string(10, '\n')) << "No old text";
    settings.writeEntry(path, "long", "0123456789", "A");
    EXPECT_EQ(content().find("0123456789"), content().rfind("0123456789"));
    pc.faults.failNth(LastWrite, 1);
    files.put(path, before);
    EXPECT_EQ(read("k") + read("long"), "10123456789");
}

TEST_F(SettingsTest, EntriesOfABaselineAreGatheredAsIfEachReplacedItsLineInTheText) {
    SimCodePage unicode(SimCodePage::Page::Utf8);
    globals.texts = TextRules(unicode);
    const TextRules& texts = globals.texts;
    EntryBlock& dll = globals.baselines.sectionText[0];
    globals.baselines.sectionName[0] = "DLL";
    std::mt19937 random(20061122);
    const auto oneOf = [&](const std::vector<std::string>& all) { return all[random() % all.size()]; };
    const std::string end = "\r\nNULL*E\r\n", mark = "*E\r\n";
    for (int round = 0; round < 3000; ++round) {
        std::string text = "[DLL]\r\n";
        for (auto lines = random() % 6; lines > 0; --lines) {
            text += oneOf({"a=1*E", "A=1*e", "ab=2*E", "\u2c65=1*E", "\u2c65b=1*E", "a=b=1*E", "b=3", "a*E\r",
                           "Null*E"}) +
                    "\r\n";
        }
        dll.setText(text += oneOf({"NULL*E\r\n", "NULL*E\r\n", "null*E\r\n", "NULL*E"}));
        for (int count = 0; count < 9; ++count) {
            const std::string name =
                oneOf({"a", "A", "ab", "a=b", "b", "B", "\u023a", "\u2c65", "NULL", "", "b=3\r\na"});
            const std::string head = "\r\n" + name + "=", value = oneOf({"1*E", "2*E", "b=1*E", "odd"});
            EXPECT_EQ(settings.writeEntry(R"(C:\X\Data\Integrity.dat)", name, value, "dll"), std::nullopt);
            const std::string old = head + getBetween(texts, text, 1, head, mark) + mark;
            text = text.find("\r\n" + name) == std::string::npos
                       ? texts.replaceAll(text, end, head + value + end)
                       : texts.replaceAll(text, old, head + value + "\r\n");
        }
        const std::string name = oneOf({"a", "A=B", "b=3\r\na"});
        ASSERT_EQ(dll.find(texts, name), getBetween(texts, text, 1, "\r\n" + name + "=", mark));
        ASSERT_EQ(dll.text(), text);
    }
}

} // namespace
} // namespace tarvelon
