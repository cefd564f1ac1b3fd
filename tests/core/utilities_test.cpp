#include "core/utilities.h"
#include "platform/sim/workstation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvelon {

namespace {

class UtilitiesTest : public testing::Test {
protected:
    SimWorkstation workstation;
    Platform platform = workstation.platform();
    Utilities utilities{platform};
};

TEST_F(UtilitiesTest, FileThereAsksWhetherItCanBeRead) {
    workstation.files.put("C:\\A\\empty.txt", "");
    EXPECT_TRUE(utilities.fileThere("c:\\a\\EMPTY.TXT"));
    EXPECT_FALSE(utilities.fileThere("C:\\A"));
    EXPECT_FALSE(utilities.fileThere("C:\\A\\"));
    EXPECT_FALSE(utilities.fileThere(""));
    workstation.files.lock("C:\\A\\empty.txt");
    EXPECT_FALSE(utilities.fileThere("C:\\A\\empty.txt"));
}

TEST_F(UtilitiesTest, SystemFoldersEndInOneBackslash) {
    EXPECT_EQ(utilities.getSysDir(), "C:\\WINDOWS\\system32\\");
    EXPECT_EQ(utilities.getWinDir(), "C:\\WINDOWS\\");
    workstation.folders.windowsDirectory = "C:\\";
    workstation.folders.systemDirectory = "C:\\" + std::string(140, 's');
    EXPECT_EQ(utilities.getWinDir(), "C:\\");
    EXPECT_EQ(utilities.getSysDir(), "C:\\" + std::string(140, 's') + "\\") << "Just fits";

    EXPECT_EQ(utilities.getSpecialFolder(), "C:\\Program Files\\");
    workstation.folders.special[24] = "  C:\\Startup\\ ";
    EXPECT_EQ(utilities.getSpecialFolder(24), "C:\\Startup\\");
    workstation.folders.special[24] = "\\";
    EXPECT_EQ(utilities.getSpecialFolder(24), "C:\\Program Files\\");
    workstation.folders.special.erase(24);
    EXPECT_EQ(utilities.getSpecialFolder(24), "\\") << "Unknown is not replaced";
}

TEST_F(UtilitiesTest, FindInTreePumpsInFrontAndBehind) {
    workstation.files.put("C:\\Program Files\\AV\\bin\\Scan.exe", "");
    bool clicked = false;
    workstation.messages.atPump(1, [&] { EXPECT_EQ(workstation.faults.calls(Operation::SearchTree), 0); });
    workstation.messages.atPump(2, [&] {
        EXPECT_EQ(workstation.faults.calls(Operation::SearchTree), 1);
        clicked = true;
    });
    EXPECT_EQ(utilities.findInTree("C:\\Program Files\\", "scan.exe"),
              "C:\\Program Files\\AV\\bin\\Scan.exe");
    EXPECT_TRUE(clicked);
    EXPECT_EQ(workstation.messages.pumps(), 2);
    EXPECT_EQ(utilities.findInTree("C:\\Program Files\\", "other.exe"), "");
    EXPECT_EQ(utilities.findInTree("C:\\Missing\\", "scan.exe"), "");
}

TEST_F(UtilitiesTest, DialogsGiveTheirBuffers) {
    workstation.dialogs.expectOpenFile({"Find it", "C:\\AV\\scan.exe"});
    const std::string file = utilities.openFileBox("Find it", std::string("Programs\0*.exe\0", 15));
    EXPECT_EQ(file, "C:\\AV\\scan.exe" + std::string(257 - 14, '\0')) << "The zeros behind the name stay";
    const OpenFileRecord& record = workstation.dialogs.openFileRecords().back();
    EXPECT_EQ(record.maxFile, 256u);
    EXPECT_EQ(record.filterIndex, 1u);
    EXPECT_EQ(record.flags, 0u);
    EXPECT_EQ(record.filter, std::string("Programs\0*.exe\0", 15));

    workstation.dialogs.expectOpenFile({"Find it", std::nullopt});
    EXPECT_EQ(utilities.openFileBox("Find it", ""), "");
    workstation.dialogs.expectFolder({"Folder", "C:\\AV"});
    EXPECT_EQ(utilities.browseFolder("Folder"), "C:\\AV");
    workstation.dialogs.expectFolder({"Folder", std::nullopt});
    EXPECT_EQ(utilities.browseFolder("Folder"), "");
    EXPECT_EQ(workstation.dialogs.problems(), "");
}

} // namespace

} // namespace tarvelon
