// Windows, programs and documents, and links to them.

#include "tests/contract/contract_fixture.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tarvelon {

namespace {

using testing::ElementsAre;
using Window = Desktop::Window;

TEST_F(Contract, WindowsAreMetFoundAndClosed) {
    Desktop& desktop = platform.desktop;
    /// Those of these windows that the walk meets, from the front to the back.
    const auto walk = [&](const std::vector<Window>& wanted) {
        std::vector<Window> met;
        for (Window window = desktop.firstWindow(); window != 0; window = desktop.nextWindow(window)) {
            if (std::ranges::find(wanted, window) != wanted.end()) {
                met.push_back(window);
            }
        }
        return met;
    };
    const auto text = [&](auto call, Window window, int size = 255) {
        std::string buffer(255, '~');
        buffer.back() = '\0';
        (desktop.*call)(window, buffer.data(), size);
        return std::string(buffer.c_str());
    };
    const Window plain = workstation->openWindow("Contract Window", "Static", true);
    const Window untitled = workstation->openWindow("", "Static", true);
    const Window hidden = workstation->openWindow("Contract Hidden", "ScrollBar", false);
    const Window twin = workstation->openWindow("Contract Window", "ScrollBar", true);
    EXPECT_EQ(text(&Desktop::windowText, plain), "Contract Window");
    EXPECT_EQ(text(&Desktop::windowText, untitled), "");
    EXPECT_EQ(text(&Desktop::className, hidden), "ScrollBar");
    EXPECT_EQ(desktop.processOf(hidden), workstation->windowProcess);
    EXPECT_EQ(text(&Desktop::windowText, plain, 9), "Contract") << "Cut, and ended by a zero";
    EXPECT_EQ(text(&Desktop::className, plain, 5), "Stat");

    for (const auto& [front, back] : {std::pair{plain, twin}, {twin, plain}}) {
        desktop.bringToTop(front);
        EXPECT_THAT(walk({plain, twin}), ElementsAre(front, back));
        EXPECT_EQ(desktop.find(std::nullopt, "contract WINDOW"), front);
    }
    EXPECT_THAT(walk({untitled, hidden}), testing::UnorderedElementsAre(untitled, hidden));
    EXPECT_EQ(desktop.find("sTATIC", "Contract Window"), plain);
    EXPECT_EQ(desktop.find("Static", "Contract Hidden"), 0u);
    EXPECT_EQ(desktop.find(std::nullopt, "Contract"), 0u);

    constexpr std::uint32_t closeMessage = 16;
    desktop.send(hidden, closeMessage);
    EXPECT_EQ(desktop.find(std::nullopt, "Contract Hidden"), 0u);
    for (const Window none : {hidden, Window{0}}) {
        EXPECT_EQ(text(&Desktop::windowText, none), "");
        EXPECT_EQ(text(&Desktop::className, none), std::string(254, '~')) << "The buffer stays as it was";
        EXPECT_EQ(desktop.processOf(none), 0u);
        EXPECT_EQ(desktop.nextWindow(none), 0u);
        desktop.bringToTop(none);
        desktop.send(none, closeMessage);
    }
}

TEST_F(Contract, OnlyTheProgramThatIsNamedIsStartedAndNotAwaited) {
    // On Windows this very test, which lists itself.
    put("two \xd0\xb0.exe", read(platform.processes.programFile()));
    ASSERT_TRUE(put("two.exe", "in the other's place"));
    const std::string made = folder + "made.json";
    const std::string program = folder + "two \xd0\xb0";
    std::string arguments = "--gtest_list_tests --gtest_output=json:\"" + made + "\" ";
    arguments.resize(Processes::longestCommandLine - program.size() - 1, 'x');
    EXPECT_FALSE(platform.processes.start(program, arguments + "x", WindowStyle::MinimizedFocus));
    EXPECT_TRUE(platform.processes.start(program, arguments, WindowStyle::MinimizedFocus));
    EXPECT_TRUE(workstation->hasMade(made, program + " " + arguments));
}

TEST_F(Contract, DocumentsAreOpenedInTheirFolder) {
    ASSERT_TRUE(put("\xe8\xa1\xa8.bat", "@echo opened> opened.txt\r\n"));
    EXPECT_EQ(platform.shell.open("missing.html", folder), Shell::fileNotFound);
    EXPECT_EQ(platform.shell.open(folder + "missing.html", ""), Shell::fileNotFound);
    EXPECT_GT(platform.shell.open("\xe8\xa1\xa8.bat", folder), Shell::lastFailure);
    EXPECT_TRUE(workstation->hasMade(folder + "opened.txt", "\xe8\xa1\xa8.bat"));
}

TEST_F(Contract, LinkFilesKeepWhatTheyWereTold) {
    const std::string own = platform.processes.programFile();
    const std::string description("Access \xd0\xb0\0cut", 13);
    EXPECT_TRUE(
        platform.shortcuts.saveShellLink(folder + "\xd0\xb0.lnk", {own, "C:\\", " /r", description, own,
                                                                   /* iconIndex */ 3, /* showCmd */ 5, 4}));
    EXPECT_TRUE(platform.shortcuts.saveScripted(folder + "\xe8\xa1\xa8.lnk", {"/r", "\xd0\xb0", own, 7}));
    EXPECT_EQ(workstation->readLink(folder + "\xd0\xb0.lnk"),
              own + "|C:\\| /r|Access \xd0\xb0|" + own + "|3|5");
    EXPECT_EQ(workstation->readLink(folder + "\xe8\xa1\xa8.lnk"), own + "||/r|\xd0\xb0||0|7");

    const std::string nowhere = folder + "missing\\A.lnk";
    EXPECT_FALSE(platform.shortcuts.saveShellLink(nowhere, {.path = own, .description = "A"}));
    EXPECT_FALSE(platform.shortcuts.saveScripted(nowhere, {.description = "A", .targetPath = own}));
    EXPECT_EQ(workstation->readLink(nowhere), "");
}

} // namespace

} // namespace tarvelon
