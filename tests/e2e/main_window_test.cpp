#include "driver.h"
#include "workplace.h"

#include <gtest/gtest.h>

namespace e2e {
namespace {

class MainWindow : public testing::Test {
protected:
    static ProgramFolder makeFolder() {
        ProgramFolder folder("main-window");
        folder.writeSettings({});
        folder.writeData("Integrity.dat", systemBaseline());
        return folder;
    }

    const ProgramFolder folder_ = makeFolder();
    const Program program_{folder_.program()};
    const Form window_ = program_.form("Welcome to Tarvelon");
};

TEST_F(MainWindow, EveryEntryOpensItsPageAndNoOther) {
    // A text of each page, none of which stands on another.
    const char* const scanPage = "Scan Folder Now";
    const char* const optionsPage = "Advanced Settings";
    const char* const settingsPage = "Main Tarvelon Settings:";
    const char* const advancedPage = "Integrity Checker Algorithm:";
    const char* const aboutPage = "View Help Files";
    const char* const nothing = "";
    const struct {
        const char* entry;
        const char* page;
    } steps[] = {
        {"Integrity Scan", scanPage},    {"RegWatch", nothing},       {"Options", optionsPage},
        {"Edit Settings", settingsPage}, {"AppWatch", nothing},       {"About", aboutPage},
        {"Options", optionsPage},        {optionsPage, advancedPage}, {"Cancel", optionsPage},
        {"Edit Settings", settingsPage}, {"Cancel", optionsPage},     {"Integrity Scan", scanPage},
    };
    EXPECT_TRUE(window_.shows(aboutPage)) << "the page of a fresh window";
    EXPECT_TRUE(window_.shows("Version: 2.0"));
    for (const auto& [entry, page] : steps) {
        SCOPED_TRACE(std::string("by ") + entry);
        window_.click(entry);
        EXPECT_TRUE(comesTrue(
            [&, &shownPage = page] {
                for (const char* text : {scanPage, optionsPage, settingsPage, advancedPage, aboutPage}) {
                    if (window_.shows(text) != (std::string(text) == shownPage)) {
                        return false;
                    }
                }
                return true;
            },
            Milliseconds(5000)))
            << window_.describe();
    }
    window_.click("About");
    window_.awaitText("Version: 2.0.0");
}

TEST_F(MainWindow, AsksBeforeItLeavesForTheWebAndEndsByExit) {
    const auto refuse = [this](const char* button, const std::string& question) {
        SCOPED_TRACE(button);
        window_.click(button);
        const Box box = program_.box();
        EXPECT_EQ(box.text, question);
        EXPECT_EQ(box.title, "TarvelonLow");
        EXPECT_EQ(box.buttons, (std::vector<std::string>{"Yes", "No"}));
        box.press("No");
    };
    const std::string help =
        "The Help file wasn't found or cannot be executed! Would you like to browse Tarvelon "
        "help on the web?";
    refuse("Help", help);
    refuse("View Help Files", help);
    window_.click("Options");
    refuse("Check for Updates", "Tarvelon requires Orbexa (Orbexa Update Utility) to check for updates.\n\n"
                                "Would you like to download Orbexa?");
    window_.click("Exit");
    EXPECT_TRUE(program_.ends()) << program_.describe();
}

} // namespace
} // namespace e2e
