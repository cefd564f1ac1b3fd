// A custom folder from its choice in the system's dialog to its removal.

#include "driver.h"
#include "system_dialogs.h"
#include "workplace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace e2e {
namespace {

using testing::ElementsAre;

constexpr const char* managerCaption = "Add/Remove Custom Integrity Scan Folders";
const std::string emptySlot = "1) Empty:";

class CustomFolder : public testing::Test {
protected:
    CustomFolder() { folder_.writeData("Integrity.dat", systemBaseline()); }

    static Form openManager(const Program& program) {
        const Form window = program.form("Welcome to Tarvelon");
        window.click("Integrity Scan");
        window.click("Add/Remove Custom Folders...");
        return program.form(managerCaption);
    }

    static void save(const Program& program, const Form& manager) {
        manager.click("Save and Exit");
        program.answer("Save Successful!");
        EXPECT_TRUE(comesTrue([&] { return !manager.isVisible(); })) << program.describe();
    }

    std::string setting(const std::string& key) const {
        char value[300] = {};
        GetPrivateProfileStringA("1", key.c_str(), "", value, sizeof value,
                                 (folder_.path() + "Data\\Tarvelon.dat").c_str());
        return value;
    }

    const ProgramFolder folder_{"custom"};
    const ProgramFolder watched_{"Watched Folder"};
    const std::string path_ = watched_.path();
    const PlantedFile letter_{path_ + "letter.dll", "a letter"};
};

TEST_F(CustomFolder, IsAddedScannedChangedAcceptedAndRemoved) {
    folder_.writeSettings({});
    const Program program(folder_.program());
    const Form window = program.form("Welcome to Tarvelon");

    Form manager = openManager(program);
    EXPECT_EQ(manager.rows().front(), emptySlot);
    manager.click("Add Folder...");
    FolderDialog(program).press("Cancel");
    manager.click("Add Folder...");
    FolderDialog(program).pick(path_);
    program.answer("Folder Added.");
    manager.click("Add Folder...");
    FolderDialog(program).pick(path_);
    program.answer("This folder is already being scanned.");
    manager.clickRow("1) " + path_);
    manager.awaitText("Currently Selected: 1) " + path_);
    manager.click("Scan this Folder at Startup (AutoLoad)");
    manager.clickRow("Scan DLL Files");
    EXPECT_EQ(setting("path"), "NULL");
    save(program, manager);
    EXPECT_EQ(setting("path"), path_);
    EXPECT_EQ(setting("args"), "1,0,0,0,0,0,1");
    EXPECT_EQ(setting("args2"), "0,0,0,0,0,0,0");

    const std::string question = "This Custom Folder " + path_ +
                                 " has not been fully scanned yet. The scan is required by the Integrity "
                                 "Checker.\n\nPerform scan now?";
    window.choose(path_);
    program.answer(question, "No");
    program.answer(
        "You have chosen not to scan this Custom Folder.  You need to run the scan before using this Custom "
        "Folder Integrity Checker.");
    EXPECT_EQ(window.chosen(), systemDirectory());
    EXPECT_FALSE(folder_.hasData("1.dat"));
    window.choose(path_);
    program.answer(question, "Yes");
    program.answer("Initial Custom Folder Scan Completed Successfully!");
    EXPECT_FALSE(program.hasForm("AutoCheck"));
    const std::string known = "letter.dll=" + crcText("a letter") + "*E\r\n";
    const std::string first = folder_.data("1.dat").value_or("");
    EXPECT_NE(first.find("[DLL]\r\n" + known + "NULL*E\r\n"), std::string::npos) << first;

    letter_.rewrite("another letter");
    const PlantedFile ignored(path_ + "ignored.exe", "not of the chosen types");
    window.click("Scan Folder Now");
    const Form results = program.form("AutoCheck");
    results.awaitText("Results");
    EXPECT_EQ(results.beside("Failed Files:"), "1");
    EXPECT_EQ(results.beside("New Files:"), "0");
    results.click("Repair and Update Failed Files...");
    EXPECT_THAT(results.rows(), ElementsAre(letter_.path()));
    results.click("Scan Failing Files...");
    program.box().press("OK"); // there is no scanner
    results.awaitText("Close Integrity Window");
    results.click("Close Integrity Window");
    std::string accepted = first;
    accepted.replace(accepted.find(known), known.size(),
                     "letter.dll=" + crcText("another letter") + "*E\r\n");
    EXPECT_EQ(folder_.data("1.dat"), accepted);
    EXPECT_EQ(folder_.data("1.bak"), first);

    window.click("Scan Folder Now");
    results.awaitText("Scan Complete. No new or modified files were found.");
    results.click("Close Integrity Check Window");
    EXPECT_TRUE(comesTrue([&] { return !results.isVisible(); })) << program.describe();

    manager = openManager(program);
    manager.clickRow("1) " + path_);
    manager.click("Remove Folder");
    program.answer("Are you sure you want to remove this folder? Doing so will lose all Integrity Checker "
                   "data for this folder!",
                   "OK", "Caution!");
    EXPECT_TRUE(comesTrue([&] { return manager.rows().front() == emptySlot; }));
    EXPECT_EQ(setting("path"), "NULL");
    EXPECT_FALSE(folder_.hasData("1.dat"));
    EXPECT_FALSE(folder_.hasData("1.bak"));
    save(program, manager);
    EXPECT_EQ(window.chosen(), systemDirectory());
}

} // namespace
} // namespace e2e
