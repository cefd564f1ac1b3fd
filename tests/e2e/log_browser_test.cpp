// Reports on the screen: loaded into the tree, viewed, scanned again and deleted.

#include "driver.h"
#include "recorder.h"
#include "tree_view.h"
#include "workplace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>

namespace e2e {
namespace {

using testing::ElementsAre;
using testing::Pair;
using testing::UnorderedElementsAre;

constexpr const char* firstReport = "05-01-2003(3_04_07PM).log";
constexpr const char* secondReport = "05-01-2003(11_30_00AM).log";
constexpr const char* laterReport = "12-24-2003(3_04_07PM).log";

class LogBrowser : public testing::Test {
protected:
    LogBrowser() {
        folder_.writeData("Integrity.dat", systemBaseline());
        folder_.writeSettings({{"antivirus", first_.path() + "|/all"}, {"av2", second_.path() + "|/deep"}});
        CreateDirectoryA((folder_.path() + "Data\\Log").c_str(), nullptr);
        for (const char* name : {firstReport, secondReport, laterReport}) {
            folder_.writeData(std::string("Log\\") + name, "A heading,C:\\one.dll,C:\\two.ocx\r\n");
        }
        folder_.writeData("Log\\notes.txt", "no report");
    }

    std::vector<std::string> files() const { return namesIn(folder_.path() + "Data\\Log\\"); }

    void start() {
        program_ = std::make_unique<Program>(folder_.program());
        window_ = std::make_unique<Form>(program_->form("Welcome to Tarvelon"));
        window_->click("Options");
        window_->click("Load Logs");
        tree_ = std::make_unique<TreeView>(window_->tree());
    }

    /// The tree's times, by date.
    std::map<std::string, std::vector<std::string>> reports() const {
        std::map<std::string, std::vector<std::string>> all;
        for (HTREEITEM item = tree_->root(); item != nullptr; item = tree_->next(TVGN_NEXT, item)) {
            all[tree_->textOf(item)] = tree_->textsUnder(item);
        }
        return all;
    }

    /// Waits until so many dates are in the tree.
    bool dates(std::size_t count) const {
        return comesTrue([&] { return reports().size() == count; });
    }

    /// A date, or a time below it.
    HTREEITEM node(const std::string& date, const std::string& time = "") const {
        HTREEITEM item = tree_->root();
        while (item != nullptr && tree_->textOf(item) != date) {
            item = tree_->next(TVGN_NEXT, item);
        }
        if (item != nullptr && !time.empty()) {
            tree_->open(item);
            item = tree_->child(item, time, patience);
        }
        EXPECT_NE(item, nullptr) << date << " " << time;
        return item;
    }

    void clickNode(const std::string& date, const std::string& time = "") const {
        HTREEITEM const item = node(date, time);
        clickOn(window_->tree(), tree_->placeOf(item));
        EXPECT_TRUE(comesTrue([&] { return tree_->next(TVGN_CARET, nullptr) == item; }));
    }

    const ProgramFolder folder_{"logs"};
    const RecordingScanner first_{folder_.path() + "first.exe"};
    const RecordingScanner second_{folder_.path() + "second.exe"};
    std::unique_ptr<Program> program_;
    std::unique_ptr<Form> window_;
    std::unique_ptr<TreeView> tree_;
};

TEST_F(LogBrowser, AReportIsViewedScannedAgainAndDeleted) {
    start();
    ASSERT_TRUE(dates(2));
    EXPECT_THAT(reports(),
                UnorderedElementsAre(Pair("05-01-2003", UnorderedElementsAre("3:04:07 PM", "11:30:00 AM")),
                                     Pair("12-24-2003", ElementsAre("3:04:07 PM"))));
    clickNode("05-01-2003");
    EXPECT_TRUE(comesTrue([&] { return !window_->isEnabled("View Log"); }));
    clickNode("05-01-2003", "3:04:07 PM");
    EXPECT_TRUE(comesTrue([&] { return window_->isEnabled("View Log"); }));
    window_->click("View Log");
    window_->awaitText("The following files either failed an Integrity Check, or were New/Modified Registry "
                       "Entries:");
    EXPECT_THAT(window_->rows(), ElementsAre("A heading", "C:\\one.dll", "C:\\two.ocx"));

    window_->click("Scan Files For Viruses");
    program_->answer("Anti-Virus program executed successfully!");
    const std::string list = " \"C:\\one.dll\" \"C:\\two.ocx\" ";
    EXPECT_THAT(first_.records(1), ElementsAre("2 " + first_.path() + " /all" + list));
    EXPECT_THAT(second_.records(1), ElementsAre("2 " + second_.path() + " /deep" + list));

    window_->click("Delete this Report");
    program_->answer("Are you sure you want to delete this Report?", "Yes");
    window_->awaitText("Load Logs");
    EXPECT_TRUE(comesTrue([&] { return reports()["05-01-2003"].size() == 1; }));
    EXPECT_THAT(files(), UnorderedElementsAre(secondReport, laterReport, "notes.txt"));
}

TEST_F(LogBrowser, ADoubleClickOpensAReportUnlessItHasGoneAndEveryKeyLooksAgain) {
    start();
    ASSERT_TRUE(dates(2));
    doubleClickOn(window_->tree(), tree_->placeOf(node("12-24-2003", "3:04:07 PM")));
    window_->awaitText("Scan Files For Viruses");
    EXPECT_THAT(window_->rows(), ElementsAre("A heading", "C:\\one.dll", "C:\\two.ocx"));
    window_->click("Close");
    window_->awaitText("Load Logs");

    DeleteFileA((folder_.path() + "Data\\Log\\" + firstReport).c_str());
    doubleClickOn(window_->tree(), tree_->placeOf(node("05-01-2003", "3:04:07 PM")));
    program_->answer("Error - This report does not exist and could not be opened.");
    EXPECT_TRUE(window_->shows("Load Logs"));
    EXPECT_EQ(reports()["05-01-2003"].size(), 2U);
    window_->bringToFront();
    pressKey('A');
    EXPECT_TRUE(comesTrue([&] { return reports()["05-01-2003"].size() == 1; }));
}

TEST_F(LogBrowser, TheDeleteKeyTakesADateOrAnEntryAndTheButtonAll) {
    start();
    ASSERT_TRUE(dates(2));
    clickNode("05-01-2003");
    pressKey(VK_DELETE);
    program_->answer("Delete All Logs on this (05-01-2003) Date?", "Yes");
    EXPECT_TRUE(dates(1));
    clickNode("12-24-2003", "3:04:07 PM");
    pressKey(VK_DELETE);
    program_->answer("Delete Log Entry?", "Yes");
    EXPECT_TRUE(dates(0));
    EXPECT_THAT(files(), ElementsAre("notes.txt"));

    folder_.writeData(std::string("Log\\") + firstReport, "A heading\r\n");
    window_->click("Load Logs");
    EXPECT_TRUE(dates(1));
    window_->click("Delete All Logs");
    program_->answer("Are you sure you want to delete all the logs?", "Yes");
    EXPECT_TRUE(dates(0));
    EXPECT_THAT(files(), ElementsAre("notes.txt"));
}

} // namespace
} // namespace e2e
