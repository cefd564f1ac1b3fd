#include "core/profile_files.h"
#include "core/profile_image.h"
#include "platform/sim/workstation.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace tarvelon {

namespace {

constexpr const char* path = R"(C:\Data\test.dat)";

TEST(ProfileImage, ReadsAsTheSystemDoes) {
    const CaseRules cases;
    ProfileImage profile(cases);
    profile.setText("stray=0\r\n"
                    "[Main]\r\n"
                    "; note=1\r\n"
                    "  Path  =  C:\\My Folder  \r\n"
                    "quoted=\" two \"\r\n"
                    "single='x'\r\n"
                    "half=\"x\r\n"
                    "equals=a=b\r\n"
                    "empty=\r\n"
                    "twice=1\r\n"
                    "twice=2\r\n"
                    "no equals sign\r\n"
                    "\r\n"
                    "[ 1 ]\r\n"
                    "path=one\n"
                    "[main]\r\n"
                    "late=1\r\n"
                    "[last]\r\n"
                    "open=end");
    EXPECT_EQ(profile.read("MAIN", "PATH"), "C:\\My Folder");
    EXPECT_EQ(profile.read("main", " path "), "C:\\My Folder");
    EXPECT_EQ(profile.read("main", "quoted"), " two ");
    EXPECT_EQ(profile.read("main", "single"), "x");
    EXPECT_EQ(profile.read("main", "half"), "\"x");
    EXPECT_EQ(profile.read("main", "equals"), "a=b");
    EXPECT_EQ(profile.read("main", "empty"), "");
    EXPECT_EQ(profile.read("main", "twice"), "1");
    EXPECT_EQ(profile.read("1", "path"), "one");
    EXPECT_EQ(profile.read("last", "open"), "end");
    EXPECT_FALSE(profile.read("main", "stray"));
    EXPECT_EQ(profile.read("main", "; note"), "1");
    EXPECT_FALSE(profile.read("main", "no equals sign"));
    EXPECT_FALSE(profile.read("main", "late")) << "The first section of a name counts";
    EXPECT_FALSE(profile.read("2", "path"));
}

TEST(ProfileImage, WritesTouchOneLine) {
    const CaseRules cases;
    ProfileImage profile(cases);
    profile.setText("; head\r\n[A]\r\nkey=old\r\nloose line\r\n\r\n\r\n[B]\r\n;note\r\nlast=1");
    profile.write("a", "KEY", "new value");
    profile.write("A", "added", "1");
    profile.write("A", "added2", "2");
    EXPECT_EQ(profile.text(),
              "; head\r\n[A]\r\nkey=new value\r\nloose line\r\nadded=1\r\nadded2=2\r\n\r\n\r\n"
              "[B]\r\n;note\r\nlast=1");
    profile.write("b", "last", "22");
    profile.write("b", "more", "3");
    profile.write("New", "k", "v");
    EXPECT_EQ(profile.text().substr(profile.text().find("[B]")),
              "[B]\r\n;note\r\nlast=22\r\nmore=3\r\n[New]\r\nk=v\r\n");

    for (const char* torn : {"[A]\r\nk=1", "[A]\r\nk=1\r"}) {
        profile.setText(torn);
        profile.write("A", "k", "2");
        EXPECT_EQ(profile.text(), "[A]\r\nk=2\r\n") << "A line that is written is a whole one";
    }
    profile.setText("[A]\r\nk=1\r");
    profile.write("A", "more", "2");
    EXPECT_EQ(profile.text(), "[A]\r\nk=1\r\nmore=2\r\n") << "A torn line end is made whole";
    profile.write("A", "k", "1\r\n[B]\r\nb=2");
    EXPECT_EQ(profile.read("A", "k"), "1") << "A value of several lines reads as it will from the disk";
    EXPECT_EQ(profile.read("B", "b"), "2");

    ProfileImage empty(cases);
    EXPECT_EQ(empty.write("S", "k", "v"), 0u);
    EXPECT_EQ(empty.text(), "[S]\r\nk=v\r\n");
}

TEST(ProfileImage, AChangedImageIsTheSameAsAFreshlyReadOne) {
    const CaseRules cases;
    std::mt19937 random(7);
    const auto number = [&](int to) { return std::uniform_int_distribution<int>(0, to)(random); };
    ProfileImage kept(cases);
    std::string text;
    for (int round = 0; round < 1500; ++round) {
        if (number(200) == 0) {
            text += number(1) ? " \r\n\r\nx" : "\n[" + std::to_string(number(3)) + "]\nopen=";
            kept.setText(text);
        }
        const std::string section = std::to_string(number(3));
        // Now and then what is written looks like something else, or is: another key, two lines.
        constexpr std::array<const char*, 7> odd = {";", "[", "[0]", "a=b", "", "x\r\ny", "\t"};
        const std::string key =
            (number(20) != 0 ? "k" : odd[static_cast<std::size_t>(number(6))]) + std::to_string(number(40));
        ProfileImage fresh(cases);
        fresh.setText(text);
        ASSERT_EQ(kept.read(section, key), fresh.read(section, key));

        std::string value(static_cast<std::size_t>(number(30)), 'v');
        value += number(40) == 0 ? "]\n[1]\nk2=" : "";
        const std::size_t changed = kept.write(section, key, value);
        fresh.write(section, key, value);
        ASSERT_EQ(kept.text(), fresh.text());
        ASSERT_EQ(kept.text().substr(0, changed), text.substr(0, changed))
            << "Changed in front of the position";
        fresh.setText(kept.text());
        const auto read = kept.read(section, key);
        ASSERT_EQ(read, fresh.read(section, key));
        if (key.find_first_of("=\n") == std::string::npos) {
            ASSERT_EQ(read, value.substr(0, value.find('\n')));
        }
        text = kept.text();
    }
}

class ProfileOnDisk : public testing::Test {
protected:
    SimWorkstation workstation;
    CaseRules cases;
    ProfileFiles profiles{workstation.files, cases};
};

TEST_F(ProfileOnDisk, EachWriteIsOnTheDiskAndOthersChangesAreSeen) {
    workstation.files.makeFolders("C:\\Data\\");
    EXPECT_EQ(profiles.read(path, "A", "k"), "");
    EXPECT_TRUE(profiles.write(path, "A", "k", "1"));
    EXPECT_EQ(workstation.files.get(path), "[A]\r\nk=1\r\n");
    EXPECT_TRUE(profiles.write(path, "A", "k", "a longer value"));
    EXPECT_TRUE(profiles.write(path, "A", "k", ""));
    EXPECT_EQ(workstation.files.get(path), "[A]\r\nk=\r\n") << "The file shrinks with its text";

    workstation.files.put(path, "[A]\r\nk=9\r\n");
    EXPECT_EQ(profiles.read(path, "A", "k"), "9");
    workstation.files.put(path, "[A]\r\nk=8\r\n");
    EXPECT_EQ(profiles.read(path, "A", "k"), "8") << "Changed at the same length";
    workstation.files.put(path, "[A]\r\nk=7\r\nx=1\r\n");
    EXPECT_TRUE(profiles.write(path, "A", "k", "6"));
    EXPECT_EQ(workstation.files.get(path), "[A]\r\nk=6\r\nx=1\r\n");

    const std::string other = R"(C:\Data\other.dat)";
    EXPECT_TRUE(profiles.write(other, "A", "k", "other"));
    EXPECT_EQ(profiles.read(path, "A", "k"), "6");
    EXPECT_TRUE(workstation.files.remove(path));
    EXPECT_EQ(profiles.read(path, "A", "k"), "");
    EXPECT_TRUE(profiles.write(path, "A", "y", "1"));
    EXPECT_EQ(workstation.files.get(path), "[A]\r\ny=1\r\n") << "Nothing of the removed file comes back";
}

TEST_F(ProfileOnDisk, AFailedWriteLosesNothing) {
    const std::string before = "[A]\r\nk=1\r\nlong=0123456789\r\n";
    workstation.files.put(path, before);
    workstation.files.denyWrites(path);
    EXPECT_FALSE(profiles.write(path, "A", "k", "2"));
    workstation.files.allowWrites(path);
    for (const Operation operation : {Operation::OpenFile, Operation::ReadFile, Operation::WriteFile}) {
        ProfileFiles fresh(workstation.files, cases);
        workstation.faults.failNth(operation, 1);
        EXPECT_FALSE(fresh.write(path, "A", "k", "2"));
        EXPECT_EQ(workstation.files.get(path), before);
        EXPECT_EQ(fresh.read(path, "A", "k"), "1") << "What was not written is not believed";
    }
    struct Broken {
        Operation how;
        const char* key;
        const char* value;
    };
    for (const auto& [how, key, value] : {Broken{Operation::WriteFileHalf, "k", "a longer value"},
                                          {Operation::WriteFileHalf, "long", ""},
                                          {Operation::WriteFileHalf, "new", "1"},
                                          {Operation::FillDisk, "k", "a longer value"},
                                          {Operation::FillDisk, "new", "1"}}) {
        workstation.faults.failNth(how, 1);
        EXPECT_FALSE(profiles.write(path, "A", key, value));
        EXPECT_EQ(workstation.files.get(path), before) << key << "=" << value;
        EXPECT_EQ(profiles.read(path, "A", "long"), "0123456789");
        workstation.faults.clear(how);
    }
    workstation.faults.failNth(Operation::SetLength, 1);
    EXPECT_TRUE(profiles.write(path, "A", "long", ""));
    EXPECT_EQ(workstation.files.get(path), "[A]\r\nk=1\r\nlong=\r\n" + std::string(10, '\n'))
        << "Nothing of the old text stands behind the new one";
    EXPECT_TRUE(profiles.write(path, "A", "long", "0123456789"));
    EXPECT_EQ(profiles.read(path, "A", "long"), "0123456789");
    workstation.files.put(path, before);
    workstation.faults.failNth(Operation::LastWrite, 1);
    EXPECT_EQ(profiles.read(path, "A", "k"), "1");
    EXPECT_TRUE(profiles.write(path, "A", "k", "3"));
    EXPECT_EQ(workstation.files.get(path), "[A]\r\nk=3\r\nlong=0123456789\r\n");
}

TEST_F(ProfileOnDisk, RepeatedWritesReadTheFileOnce) {
    workstation.files.put(path, "[A]\r\nk=1\r\n");
    for (int i = 0; i < 50; ++i) {
        EXPECT_TRUE(profiles.write(path, "A", "k", std::to_string(i)));
    }
    EXPECT_EQ(workstation.faults.calls(Operation::ReadFile), 1);
}

} // namespace

} // namespace tarvelon
