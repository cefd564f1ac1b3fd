#include "tests/contract/contract_fixture.h"

#include <cstring>
#include <tuple>

namespace tarvelon {

namespace {

using testing::ElementsAre;
using namespace std::string_literals;

TEST_F(Contract, OneListingGivesAllNamesInOrder) {
    for (const char* name : {"beta.txt", "Alpha.dll", "gamma.sys", "b_low.txt"}) {
        ASSERT_TRUE(put(name, ""));
    }
    EXPECT_TRUE(files.createFolder(folder + "Delta") && !files.createFolder(folder + "Delta"));
    EXPECT_FALSE(files.createFolder(folder + "a\\b")) << "No parent";
    EXPECT_EQ(files.firstName(folder + "Delta\\"), ".");
    EXPECT_THAT(list(folder),
                ElementsAre(".", "..", "Alpha.dll", "beta.txt", "b_low.txt", "Delta", "gamma.sys"));
    // As the passes of a scan list it, while others add files.
    EXPECT_TRUE(list(folder) == list(folder) && put("zeta", "") && list(folder).back() == "zeta");
    EXPECT_EQ(files.nextName(), "") << "The listing has ended";
    EXPECT_EQ(files.firstName(folder), ".");
    EXPECT_EQ(files.firstName(folder + "missing\\"), "");
    EXPECT_EQ(files.nextName(), "") << "A listing that fails ends the one before";
}

TEST_F(Contract, OpenModesMakeAndKeepWhatTheySay) {
    ASSERT_TRUE(files.createFolder(folder + "sub"));
    // What then stands in a file that was not there, and in one that was.
    for (const auto& [mode, missing, kept, writes] :
         {std::tuple{OpenMode::Read, "(cannot be opened)", "content", false},
          {OpenMode::ReadOrCreate, "", "content", true},
          {OpenMode::Create, "", "", true}}) {
        files.remove(folder + "made");
        files.open(folder + "made", mode);
        EXPECT_EQ(get("made"), missing);
        for (const auto& refused :
             {""s, "sub"s, "sub\\"s, "no folder\\f"s, "*.txt"s, std::string(260, 'x')}) {
            EXPECT_FALSE(files.open(folder + refused, mode)) << refused;
            EXPECT_FALSE(files.length(folder + refused)) << refused;
        }
        EXPECT_FALSE(files.open("", mode));
        ASSERT_TRUE(put("f", "content"));
        const auto file = files.open(folder + "f", mode);
        ASSERT_TRUE(file && files.open(folder + "f", OpenMode::ReadOrCreate)) << "Others may go on using it";
        EXPECT_EQ(get("f"), kept);
        EXPECT_EQ(file->writeAt(0, "x"), writes);
        EXPECT_EQ(file->setLength(1), writes);
    }
}

TEST_F(Contract, PositionsAndLengths) {
    auto file = files.open(folder + "f", OpenMode::Create);
    ASSERT_TRUE(file && file->writeAt(0, "0123456789"));
    const auto reader = files.open(folder + "f", OpenMode::Read);
    ASSERT_TRUE(reader);
    char buffer[8] = {};
    for (const auto& [position, read] : {std::pair{4u, "4"}, {1, "12"}, {1, "12"}, {3, "345"}}) {
        EXPECT_EQ(reader->readAt(position, buffer, std::strlen(read)), std::strlen(read)) << position;
        EXPECT_EQ(std::string(buffer, std::strlen(read)), read);
    }
    EXPECT_EQ(file->readAt(7, buffer, 8), 3u) << "Fewer come at the end";
    EXPECT_EQ(file->readAt(99, buffer, 8), 0u);
    EXPECT_TRUE(file->writeAt(4, "y") && file->writeAt(2, "xx"));
    EXPECT_TRUE(file->setLength(5) && file->flush());
    EXPECT_EQ(file->length(), 5u);
    EXPECT_TRUE(file->writeAt(7, "end"));
    EXPECT_EQ(get("f"), "01xxy\0\0end"s) << "The gap is zeros";
    EXPECT_EQ(files.length(folder + "f"), 10u);
    const auto written = file->touch();
    file.reset();
    EXPECT_TRUE(written && files.open(folder + "f", OpenMode::Read)->lastWrite() == written) << "Also closed";
    do {
        ASSERT_TRUE(put("f", "until the clock moves on"));
    } while (files.open(folder + "f", OpenMode::Read)->lastWrite() == written);
}

TEST_F(Contract, FilesAreMovedAndRemovedUnlessHeld) {
    ASSERT_TRUE(put("from", "new content") && put("to", "a longer old content"));
    auto lock = workstation->lock(folder + "to");
    EXPECT_FALSE(files.open(folder + "TO", OpenMode::ReadOrCreate));
    EXPECT_FALSE(files.open(folder + "TO", OpenMode::Create));
    EXPECT_FALSE(files.move(folder + "from", folder + "to"));
    EXPECT_FALSE(files.remove(folder + "to"));
    EXPECT_EQ(get("to"), "(cannot be opened)");
    EXPECT_EQ(files.length(folder + "to"), 20u) << "Told without opening";
    EXPECT_FALSE(files.move(folder + "to", folder + "other"));
    lock.reset();

    EXPECT_TRUE(files.move(folder + "from", folder + "TO")) << "In the other's place";
    EXPECT_THAT(list(folder), ElementsAre(".", "..", testing::StrCaseEq("to")));
    for (const char* target : {"to", "no folder\\to"}) {
        EXPECT_FALSE(files.move(folder + "from", folder + target)) << target;
    }
    EXPECT_TRUE(files.move(folder + "to", folder + "from")) << "To a new name";
    EXPECT_EQ(get("from"), "new content");
    EXPECT_TRUE(files.remove(folder + "from"));
    EXPECT_FALSE(files.remove(folder + "from"));
}

TEST_F(Contract, PathsAreReadAsTheSystemReadsThem) {
    ASSERT_TRUE(files.createFolder(folder + "A long name"));
    ASSERT_TRUE(put("A long name\\Some + odd name.text", "1"));
    ASSERT_TRUE(put("A LONG name\\some + odd name.TEXT", "22"));
    EXPECT_THAT(list(folder + "a long name\\"), ElementsAre(".", "..", "Some + odd name.text"));
    for (const std::string& name :
         {"\\A LONG NAME\\\\SOME + ODD NAME.TEXT"s, ".\\x\\..\\A long name\\Some + odd name.text"s,
          "A long name\\Some + odd name.text. "s, "A long name\\Some + odd name.text\0\0rest"s}) {
        EXPECT_EQ(get(name), "22") << name;
    }
    char buffer[520] = "";
    EXPECT_FALSE(files.searchTreeForFile(folder, "other.text", buffer));
    EXPECT_FALSE(files.searchTreeForFile(folder + "missing", "Some + odd name.text", buffer));
    EXPECT_TRUE(files.searchTreeForFile(folder, "SOME + odd name.text", buffer));
    const std::string found = buffer;
    EXPECT_STRCASEEQ(buffer, (folder + "A long name\\Some + odd name.text").c_str());

    ASSERT_TRUE(put("A long name\\Some + odd one.text", "another"));
    const auto shortPathOf = [&](const std::string& path) {
        return std::string(buffer, files.getShortPathName(path, buffer, sizeof buffer));
    };
    const std::string shortPath = shortPathOf(found);
    const std::string name = shortPath.substr(shortPathOf(folder + "A long name\\").size());
    EXPECT_EQ(name.find_first_of("\\ +"), std::string::npos) << shortPath;
    EXPECT_LE(name.find('.'), 8u) << name;
    EXPECT_EQ(name.size() - name.find('.'), 4u) << name;
    EXPECT_EQ(files.length(shortPath), 2u);
    EXPECT_EQ(shortPathOf(shortPath), shortPath) << "Short names stay";
    EXPECT_EQ(shortPathOf(folder + "missing\\f"), "");
    const auto length = static_cast<std::uint32_t>(shortPath.size());
    EXPECT_EQ(files.getShortPathName(found, buffer, length + 1), length) << "Room for the zero";
    EXPECT_EQ(files.getShortPathName(found, buffer, length), length + 1) << "No room for the zero";
}

} // namespace

} // namespace tarvelon
