// Link files made in both ways, and what the system itself then reads in them.

#include "tests/contract/contract_fixture.h"

namespace tarvelon {

namespace {

TEST_F(Contract, AShellLinkKeepsWhatItWasTold) {
    const std::string target = platform.processes.programFile();
    const std::string path = folder + "Plain.lnk";
    ASSERT_TRUE(platform.shortcuts.saveShellLink(path, {.path = target,
                                                        .workingDirectory = "",
                                                        .arguments = " /r",
                                                        .description = std::string("Access Shortcut\0", 16),
                                                        .iconFile = target,
                                                        .iconIndex = 0,
                                                        .showCmd = 5,
                                                        .resolveFlags = 4}));
    auto link = workstation->readLink(path);
    ASSERT_TRUE(link);
    EXPECT_EQ(link->target, target);
    EXPECT_EQ(link->workingDirectory, "");
    EXPECT_EQ(link->arguments, " /r") << "with its blank";
    EXPECT_EQ(link->description, "Access Shortcut");
    EXPECT_EQ(link->iconFile, target);
    EXPECT_EQ(link->iconIndex, 0);
    EXPECT_EQ(link->showCmd, 5);

    const std::string full = folder + "Full.lnk";
    ASSERT_TRUE(platform.shortcuts.saveShellLink(full, {.path = target,
                                                        .workingDirectory = R"(C:\)",
                                                        .arguments = "",
                                                        .description = "Another",
                                                        .iconFile = "",
                                                        .iconIndex = 3,
                                                        .showCmd = 7,
                                                        .resolveFlags = 4}));
    link = workstation->readLink(full);
    ASSERT_TRUE(link);
    EXPECT_EQ(link->workingDirectory, R"(C:\)");
    EXPECT_EQ(link->arguments, "");
    EXPECT_EQ(link->showCmd, 7);
}

TEST_F(Contract, TheScriptingHostMakesTheLinkAsWell) {
    const std::string target = platform.processes.programFile();
    const std::string path = folder + "Scripted.lnk";
    ASSERT_TRUE(platform.shortcuts.saveScripted(
        path, {.arguments = "/r", .description = "Tarvelon", .targetPath = target, .windowStyle = 0}));
    const auto link = workstation->readLink(path);
    ASSERT_TRUE(link);
    EXPECT_EQ(link->target, target);
    EXPECT_EQ(link->arguments, "/r");
    EXPECT_EQ(link->description, "Tarvelon");
    EXPECT_EQ(link->showCmd, 0);
}

TEST_F(Contract, NoLinkIsMadeInAFolderThatIsNotThere) {
    const std::string target = platform.processes.programFile();
    const std::string path = folder + R"(missing\A.lnk)";
    EXPECT_FALSE(platform.shortcuts.saveShellLink(path, {.path = target, .description = "A"}));
    EXPECT_FALSE(platform.shortcuts.saveScripted(path, {.description = "A", .targetPath = target}));
    EXPECT_FALSE(workstation->readLink(path));
}

} // namespace

} // namespace tarvelon
