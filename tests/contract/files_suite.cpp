#include "tests/contract/contract_fixture.h"

#include <chrono>

namespace tarvelon {

namespace {

using testing::ElementsAre;
using testing::StrCaseEq;

constexpr OpenMode allModes[] = {OpenMode::Read, OpenMode::ReadOrCreate, OpenMode::Create};

// Longer than a tick of any clock that file times are taken from.
void letTimePass() {
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(60);
    while (std::chrono::steady_clock::now() < end) {
    }
}

TEST_F(Contract, ListingGivesDotEntriesThenAllNamesInOrder) {
    ASSERT_TRUE(put(folder + "beta.txt", ""));
    ASSERT_TRUE(put(folder + "Alpha.dll", ""));
    ASSERT_TRUE(put(folder + "gamma.sys", ""));
    ASSERT_TRUE(put(folder + "b_low.txt", ""));
    ASSERT_TRUE(files.createFolder(folder + "Delta"));
    workstation->hide(folder + "gamma.sys");
    EXPECT_THAT(list(folder),
                ElementsAre(".", "..", "Alpha.dll", "beta.txt", "b_low.txt", "Delta", "gamma.sys"));
    EXPECT_EQ(files.nextName(), "") << "The listing has ended";
    EXPECT_THAT(list(folder + "Delta\\"), ElementsAre(".", ".."));
}

TEST_F(Contract, ThereIsOneListing) {
    ASSERT_TRUE(files.createFolder(folder + "one"));
    ASSERT_TRUE(files.createFolder(folder + "two"));
    ASSERT_TRUE(put(folder + "one\\a", ""));
    ASSERT_TRUE(put(folder + "two\\b", ""));

    EXPECT_EQ(files.firstName(folder + "one\\"), ".");
    EXPECT_EQ(files.firstName(folder + "two\\"), ".");
    EXPECT_EQ(files.nextName(), "..");
    EXPECT_EQ(files.nextName(), "b");

    EXPECT_EQ(files.firstName(folder + "one\\"), ".");
    EXPECT_EQ(files.firstName(folder + "missing\\"), "");
    EXPECT_EQ(files.nextName(), "") << "A listing that fails ends the one before";
}

TEST_F(Contract, OpenModesMakeAndKeepWhatTheySay) {
    EXPECT_FALSE(files.open(folder + "missing", OpenMode::Read));
    EXPECT_FALSE(files.length(folder + "missing"));
    EXPECT_TRUE(files.open(folder + "made", OpenMode::ReadOrCreate));
    EXPECT_EQ(files.length(folder + "made"), 0u);
    EXPECT_FALSE(files.open(folder + "no folder\\file", OpenMode::Create));

    ASSERT_TRUE(put(folder + "kept", "content"));
    EXPECT_TRUE(files.open(folder + "kept", OpenMode::ReadOrCreate));
    EXPECT_EQ(get(folder + "kept"), "content");
    EXPECT_FALSE(files.open(folder + "kept", OpenMode::Read)->writeAt(0, "x"));
    EXPECT_TRUE(files.open(folder + "kept", OpenMode::Create));
    EXPECT_EQ(files.length(folder + "kept"), 0u);
}

TEST_F(Contract, FoldersDoNotOpenAndHaveNoLength) {
    ASSERT_TRUE(files.createFolder(folder + "sub"));
    for (const OpenMode mode : allModes) {
        EXPECT_FALSE(files.open(folder + "sub", mode));
        EXPECT_FALSE(files.open(folder + "sub\\", mode));
    }
    EXPECT_FALSE(files.length(folder + "sub"));
    EXPECT_FALSE(files.remove(folder + "sub"));
    EXPECT_FALSE(files.createFolder(folder + "sub")) << "It exists";
    EXPECT_FALSE(files.createFolder(folder + "a\\b")) << "No parent";
}

TEST_F(Contract, PositionsAndLengths) {
    const auto file = files.open(folder + "f", OpenMode::Create);
    ASSERT_TRUE(file);
    EXPECT_TRUE(file->writeAt(0, "0123456789"));
    char buffer[20] = {};
    EXPECT_EQ(file->readAt(7, buffer, sizeof buffer), 3u);
    EXPECT_STREQ(buffer, "789");
    EXPECT_EQ(file->readAt(10, buffer, 5), 0u);
    EXPECT_EQ(file->readAt(99, buffer, 5), 0u);

    EXPECT_TRUE(file->writeAt(2, "xx"));
    EXPECT_TRUE(file->setLength(5));
    EXPECT_TRUE(file->flush());
    EXPECT_EQ(file->length(), 5u);
    EXPECT_TRUE(file->writeAt(7, "end"));
    EXPECT_EQ(get(folder + "f"), std::string("01xx4\0\0end", 10)) << "The gap is zeros";
    EXPECT_EQ(files.length(folder + "f"), 10u);
}

TEST_F(Contract, MoveAndRemove) {
    ASSERT_TRUE(put(folder + "from", "new content"));
    ASSERT_TRUE(put(folder + "to", "a longer old content"));
    EXPECT_TRUE(files.move(folder + "from", folder + "TO")) << "In the other's place";
    EXPECT_THAT(list(folder), ElementsAre(".", "..", StrCaseEq("to")));
    EXPECT_EQ(get(folder + "to"), "new content");
    EXPECT_FALSE(files.move(folder + "from", folder + "to")) << "It is not there any more";
    EXPECT_FALSE(files.move(folder + "to", folder + "no folder\\to"));
    EXPECT_TRUE(files.move(folder + "to", folder + "from")) << "To a new name";

    EXPECT_TRUE(files.remove(folder + "from"));
    EXPECT_FALSE(files.remove(folder + "from"));
    EXPECT_FALSE(files.open(folder + "from", OpenMode::Read));
}

TEST_F(Contract, ReadOnlyFilesAreOnlyRead) {
    ASSERT_TRUE(put(folder + "from", "new"));
    ASSERT_TRUE(put(folder + "kept", "content"));
    const bool held = workstation->makeReadOnly(folder + "kept");
    EXPECT_EQ(get(folder + "kept"), "content");
    EXPECT_FALSE(files.remove(folder + "kept"));
    if (!held) {
        GTEST_SKIP() << "this user may write read-only files here";
    }
    EXPECT_FALSE(files.move(folder + "from", folder + "kept"));
    for (const OpenMode mode : {OpenMode::ReadOrCreate, OpenMode::Create}) {
        EXPECT_FALSE(files.open(folder + "kept", mode));
    }
    EXPECT_EQ(get(folder + "kept"), "content");
}

TEST_F(Contract, LastWriteMovesWithEachWriteAndNoRead) {
    ASSERT_TRUE(put(folder + "f", "1"));
    const auto first = files.open(folder + "f", OpenMode::Read)->lastWrite();
    ASSERT_TRUE(first);
    letTimePass();
    EXPECT_EQ(get(folder + "f"), "1");
    EXPECT_EQ(files.open(folder + "f", OpenMode::ReadOrCreate)->lastWrite(), first);
    EXPECT_TRUE(files.open(folder + "f", OpenMode::ReadOrCreate)->writeAt(0, "2"));
    EXPECT_GT(files.open(folder + "f", OpenMode::Read)->lastWrite(), first);
}

TEST_F(Contract, FilesAreSharedUnlessSomeoneLocksThem) {
    ASSERT_TRUE(put(folder + "f", "shared"));
    {
        const auto reader = files.open(folder + "f", OpenMode::Read);
        const auto writer = files.open(folder + "f", OpenMode::ReadOrCreate);
        ASSERT_TRUE(reader && writer);
        EXPECT_TRUE(writer->writeAt(0, "SH"));
        EXPECT_EQ(get(folder + "f"), "SHared");
    }
    auto lock = workstation->lock(folder + "f");
    for (const OpenMode mode : allModes) {
        EXPECT_FALSE(files.open(folder + "F", mode));
    }
    EXPECT_EQ(files.length(folder + "f"), 6u) << "Told without opening";
    EXPECT_FALSE(files.move(folder + "f", folder + "g"));
    EXPECT_FALSE(files.remove(folder + "f"));
    lock.reset();
    EXPECT_EQ(get(folder + "f"), "SHared");
}

TEST_F(Contract, PathsCountWithoutRegardToCase) {
    ASSERT_TRUE(files.createFolder(folder + "Sub"));
    ASSERT_TRUE(put(folder + "Sub\\Kernel32.dll", "1"));
    EXPECT_EQ(get(folder + "SUB\\KERNEL32.DLL"), "1");
    EXPECT_EQ(files.length(folder + "sub\\kernel32.dll"), 1u);
    EXPECT_TRUE(put(folder + "SUB\\kernel32.DLL", "22"));
    EXPECT_THAT(list(folder + "sUB\\"), ElementsAre(".", "..", "Kernel32.dll"))
        << "The same file, its case kept";
    EXPECT_TRUE(files.move(folder + "sub\\KERNEL32.dll", folder + "sub\\Other.bak"));
    EXPECT_THAT(list(folder + "Sub\\"), ElementsAre(".", "..", "Other.bak"));
}

TEST_F(Contract, PathsAreReadAsTheSystemReadsThem) {
    ASSERT_TRUE(put(folder + "file.txt", "1"));
    EXPECT_EQ(get(folder + "file.txt" + std::string(5, '\0') + "rest"), "1") << "Cut at the first zero";
    EXPECT_EQ(get(folder + "\\file.txt"), "1") << "Two backslashes count as one";
    EXPECT_EQ(get(folder + ".\\x\\..\\file.txt"), "1");
    EXPECT_EQ(get(folder + "file.txt. "), "1") << "Dots and blanks at the end do not count";
    EXPECT_FALSE(files.open(folder + "*.txt", OpenMode::Read));
    EXPECT_FALSE(files.open("", OpenMode::Read));
    EXPECT_FALSE(files.length(""));
    EXPECT_FALSE(files.open(folder + std::string(260, 'x'), OpenMode::Create));
}

TEST_F(Contract, SearchTreeFindsTheNameInAnyDepth) {
    char buffer[520] = "untouched";
    EXPECT_FALSE(files.searchTreeForFile(folder, "scan.exe", buffer));
    ASSERT_TRUE(files.createFolder(folder + "One"));
    ASSERT_TRUE(files.createFolder(folder + "One\\Two"));
    ASSERT_TRUE(put(folder + "One\\Two\\Scan.exe", ""));
    ASSERT_TRUE(files.searchTreeForFile(folder, "sCAN.EXE", buffer));
    EXPECT_EQ(files.length(buffer), 0u) << buffer;
    EXPECT_STRCASEEQ(buffer, (folder + "One\\Two\\Scan.exe").c_str());
    EXPECT_FALSE(files.searchTreeForFile(folder + "missing", "scan.exe", buffer));
}

TEST_F(Contract, ShortPathsNameTheSameFiles) {
    const std::string longFolder = folder + "A folder with a long name\\";
    const std::string longName = longFolder + "Some long + odd name.text";
    ASSERT_TRUE(files.createFolder(longFolder));
    ASSERT_TRUE(put(longName, "found"));
    ASSERT_TRUE(put(longFolder + "Some long + odd one.text", "another"));

    char buffer[260] = {};
    const std::uint32_t length = files.getShortPathName(longName, buffer, sizeof buffer);
    const std::string shortPath = buffer;
    EXPECT_EQ(length, shortPath.size());
    EXPECT_EQ(shortPath.find_first_of(" +"), std::string::npos) << shortPath;
    const std::string name = shortPath.substr(shortPath.rfind('\\') + 1);
    EXPECT_LE(name.find('.'), 8u) << name;
    EXPECT_EQ(name.size() - name.find('.'), 4u) << name;
    EXPECT_EQ(get(shortPath), "found");
    EXPECT_EQ(files.getShortPathName(longName, buffer, length + 1), length) << "Room for the zero";
    EXPECT_EQ(files.getShortPathName(longName, buffer, length), length + 1) << "No room for the zero";

    const std::uint32_t folderLength = files.getShortPathName(longFolder, buffer, sizeof buffer);
    EXPECT_EQ(std::string(buffer), shortPath.substr(0, folderLength));
    EXPECT_EQ(buffer[folderLength - 1], '\\') << "Kept at the end";
    const std::string shortFolder = buffer;
    ASSERT_TRUE(put(longFolder + "short.Txt", ""));
    files.getShortPathName(longFolder + "short.Txt", buffer, sizeof buffer);
    EXPECT_EQ(std::string(buffer), shortFolder + "short.Txt") << "Short names stay";
    files.getShortPathName(shortPath, buffer, sizeof buffer);
    EXPECT_EQ(std::string(buffer), shortPath);

    EXPECT_EQ(files.getShortPathName(longFolder + "missing", buffer, sizeof buffer), 0u);
    EXPECT_EQ(files.getShortPathName(folder + "missing folder\\file", buffer, sizeof buffer), 0u);
    EXPECT_EQ(files.getShortPathName("", buffer, sizeof buffer), 0u);
}

} // namespace

} // namespace tarvelon
