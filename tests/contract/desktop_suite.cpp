// The windows of the desktop, other instances of the program, and what can be tried of shutting down without
// doing it.

#include "tests/contract/contract_fixture.h"

#include <algorithm>

namespace tarvelon {

namespace {

using testing::ElementsAre;

constexpr std::uint32_t closeMessage = 16;

class DesktopContract : public Contract {
protected:
    using Window = Desktop::Window;
    using Windows = std::vector<Window>;

    Desktop& desktop = platform.desktop;

    /// Those of these windows that the walk meets, from the front to the back.
    Windows walk(const Windows& wanted) {
        Windows met;
        for (Window window = desktop.firstWindow(); window != 0; window = desktop.nextWindow(window)) {
            if (std::ranges::find(wanted, window) != wanted.end()) {
                met.push_back(window);
            }
        }
        return met;
    }

    std::string title(Window window, int size = 255) {
        std::string buffer(255, '~');
        desktop.windowText(window, buffer.data(), size);
        return buffer.c_str();
    }

    std::string className(Window window, int size = 255) {
        std::string buffer(255, '~');
        buffer.back() = '\0';
        desktop.className(window, buffer.data(), size);
        return buffer.c_str();
    }
};

TEST_F(DesktopContract, AllTopLevelWindowsAreMet) {
    const Window plain = workstation->openWindow("Contract Window", "ContractOne");
    const Window untitled = workstation->openWindow("", "ContractOne");
    const Window hidden = workstation->openWindow("Contract Hidden", "ContractTwo", false);
    EXPECT_THAT(walk({plain, untitled, hidden}), testing::UnorderedElementsAre(plain, untitled, hidden));

    EXPECT_EQ(title(plain), "Contract Window");
    EXPECT_EQ(title(plain, 9), "Contract") << "Cut, and ended by a zero";
    EXPECT_EQ(title(untitled), "");
    EXPECT_EQ(title(hidden), "Contract Hidden");
    EXPECT_EQ(className(hidden), "ContractTwo");
    EXPECT_EQ(className(hidden, 9), "Contract");
    EXPECT_EQ(desktop.processOf(plain), workstation->windowProcess());
    EXPECT_EQ(desktop.processOf(hidden), workstation->windowProcess());
}

TEST_F(DesktopContract, WindowsAreFoundByTitleAndClass) {
    const Window first = workstation->openWindow("Contract Window", "ContractOne");
    const Window other = workstation->openWindow("Contract Windows", "ContractOne");
    const Window hidden = workstation->openWindow("Contract Hidden", "ContractTwo", false);
    EXPECT_EQ(desktop.find(std::nullopt, "Contract Window"), first);
    EXPECT_EQ(desktop.find(std::nullopt, "contract WINDOWS"), other);
    EXPECT_EQ(desktop.find("contractTWO", "Contract Hidden"), hidden);
    EXPECT_EQ(desktop.find("ContractOne", "Contract Hidden"), 0u);
    EXPECT_EQ(desktop.find("ContractNone", "Contract Window"), 0u);
    EXPECT_EQ(desktop.find(std::nullopt, "Contract"), 0u);
}

TEST_F(DesktopContract, OfEqualTitlesTheFrontWindowIsFound) {
    const Window one = workstation->openWindow("Contract Twin", "ContractOne");
    const Window two = workstation->openWindow("Contract Twin", "ContractTwo");
    desktop.bringToTop(one);
    EXPECT_THAT(walk({one, two}), ElementsAre(one, two));
    EXPECT_EQ(desktop.find(std::nullopt, "Contract Twin"), one);
    desktop.bringToTop(two);
    EXPECT_THAT(walk({one, two}), ElementsAre(two, one));
    EXPECT_EQ(desktop.find(std::nullopt, "Contract Twin"), two);
    EXPECT_EQ(desktop.find("ContractOne", "Contract Twin"), one);
}

TEST_F(DesktopContract, AWindowThatWasAskedToCloseIsGone) {
    const Window window = workstation->openWindow("Contract Window", "ContractOne");
    desktop.send(window, closeMessage);
    EXPECT_EQ(desktop.find(std::nullopt, "Contract Window"), 0u);
    for (const Window none : {window, Window{0}}) {
        EXPECT_EQ(title(none), "");
        EXPECT_EQ(className(none), std::string(254, '~')) << "The buffer stays as it was";
        EXPECT_EQ(desktop.processOf(none), 0u);
        EXPECT_EQ(desktop.nextWindow(none), 0u);
        desktop.bringToTop(none);
        desktop.send(none, closeMessage);
    }
}

TEST_F(Contract, AnotherInstanceIsSeen) {
    EXPECT_FALSE(platform.processes.anotherInstance());
    EXPECT_TRUE(workstation->startedAgain().anotherInstance());
}

TEST_F(Contract, TheRightToShutDownIsTakenAndTheSystemIsOfTheNtFamily) {
    constexpr std::uint32_t enabledAndUsed = 0x80000003;
    const std::string right = "SeShutdownPrivilege";
    EXPECT_FALSE(workstation->holdsPrivilege(right));
    platform.power.adjustPrivilege("NoSuchPrivilege", enabledAndUsed);
    EXPECT_FALSE(workstation->holdsPrivilege(right));
    platform.power.adjustPrivilege(right, enabledAndUsed);
    EXPECT_TRUE(workstation->holdsPrivilege(right));

    EXPECT_EQ(platform.power.version().platformId, 2u);
    EXPECT_GT(platform.power.version().major, 4u);
}

} // namespace

} // namespace tarvelon
