// The page of open windows, on a desktop with other programs' windows.

#include "tests/workstation/session.h"

#include <algorithm>

namespace tarvelon {
namespace {

using Window = Desktop::Window;

constexpr std::uint32_t closeMessage = 16;

class AppWatch : public Session {
protected:
    void SetUp() override {
        pc.files.put(dataFolder + "Integrity.dat", "");
        ASSERT_FALSE(start());
        page().Image9.click();
        ASSERT_TRUE(page().appF.isShown());
    }

    MForm1Screen& page() { return app->mForm1; }
    const Rows& rows() { return page().lstOpenWindows.items(); }

    void refresh() { page().ref.click(); }

    void select(const std::string& row) {
        const auto found = std::ranges::find(rows(), row);
        ASSERT_NE(found, rows().end()) << row;
        page().lstOpenWindows.select(static_cast<int>(found - rows().begin()));
    }

    void expectDetails(const std::string& title, const std::string& process, const std::string& className) {
        EXPECT_EQ(page().txtTitle.Caption(), title);
        EXPECT_EQ(page().lblProcessID.Caption(), process);
        EXPECT_EQ(page().lblClassName.Caption(), className);
    }

    void answerClose(const std::string& window, Answer answer) {
        asks("Are you sure you want to close " + window, answer);
        page().cl.click();
    }
};

TEST_F(AppWatch, EveryTitledWindowHasARow) {
    pc.desktop.open({"Behind", "Back", 8});
    pc.desktop.open({"", "Untitled", 12});
    pc.desktop.open({"Secret Agent", "Hidden", 16, false});
    EXPECT_EQ(rows(), Rows()) << "Only Refresh fills the list";
    EXPECT_EQ(page().lblCount.Caption(), "Please Click On Refresh");
    refresh();
    EXPECT_EQ(rows(), (Rows{"16: Secret Agent", "8: Behind"}));
    EXPECT_EQ(page().lblCount.Caption(), "2 open Windows.");

    pc.desktop.close(pc.desktop.find(std::nullopt, "Behind"));
    refresh();
    EXPECT_EQ(rows(), Rows{"16: Secret Agent"});
    EXPECT_EQ(page().lblCount.Caption(), "1 open Windows.");
}

TEST_F(AppWatch, WindowsOfOneTitleAreOneRowWhoseverTheyAre) {
    pc.desktop.open({"Twin", "One", 8});
    pc.desktop.open({"Other", "Other", 8});
    pc.desktop.open({"Twin", "Two", 12});
    pc.desktop.open({"TWIN", "Three", 16});
    refresh();
    // The front window of that title is the one that is found, in whichever case it is written.
    EXPECT_EQ(rows(), (Rows{"16: TWIN", "16: Twin", "8: Other"}));
    EXPECT_EQ(app->appPage.listOpenWindows(), 0) << "All are listed already";
    select("16: Twin");
    expectDetails("Twin", "ProcessID: 16", "Class Name: Three");
}

TEST_F(AppWatch, TitlesAreReadUpToTheBuffersEnd) {
    const std::string longest(254, 'x');
    pc.desktop.open({longest, "Long", 8});
    pc.desktop.open({longest + "y", "Longer", 12});
    refresh();
    EXPECT_EQ(rows(), Rows{"8: " + longest}) << "The longer title is cut and then that of the other window";
    pc.desktop.close(pc.desktop.find("Long", longest));
    refresh();
    EXPECT_EQ(rows(), Rows{"0: " + longest});
    select("0: " + longest);
    expectDetails(longest, "ProcessID: 0", "Window Not Found!!!");
}

TEST_F(AppWatch, ASelectedRowShowsItsWindowIfItIsStillThere) {
    expectDetails("No Window Selected", "Process ID: Please select an Entry first",
                  "Click on an Entry in the list to retrieve additional Information");
    const Window window = pc.desktop.open({"My  Window: 1", "Some Class", 1234});
    refresh();
    select("1234: My  Window: 1");
    expectDetails("My  Window: 1", "ProcessID: 1234", "Class Name: Some Class");
    pc.desktop.close(window);
    select("1234: My  Window: 1");
    expectDetails("My  Window: 1", "ProcessID: 0", "Window Not Found!!!");
    page().act.click();
    EXPECT_EQ(pc.desktop.broughtToTop(), std::vector<Window>{0});
}

TEST_F(AppWatch, ActivateRaisesTheWindowOfTheClassThatIsShown) {
    const Window first = pc.desktop.open({"Twin", "One", 8});
    pc.desktop.open({"No Window Selected", "Decoy", 4});
    page().act.click();
    EXPECT_EQ(pc.desktop.broughtToTop(), std::vector<Window>{0}) << "Nothing has been selected";

    refresh();
    select("8: Twin");
    const Window second = pc.desktop.open({"Twin", "Two", 12});
    page().act.click();
    EXPECT_EQ(pc.desktop.order().front(), first) << "Not the other one, although it was in front";
    page().txtTitle.typed("Something else");
    page().act.click();
    page().txtTitle.typed("Twin");
    page().lblClassName.Caption = "  ";
    page().act.click();
    EXPECT_EQ(pc.desktop.broughtToTop(), (std::vector<Window>{0, first, 0, 0}));
    EXPECT_TRUE(pc.desktop.isOpen(second));
}

TEST_F(AppWatch, CloseAsksAndRefreshesWhateverTheAnswer) {
    const Window window = pc.desktop.open({"Editor", "Edit", 8});
    const Window stubborn = pc.desktop.open({"Stubborn", "Rock", 12, true, true});
    refresh();
    select("8: Editor");
    const std::string question = "Editor(" + std::to_string(window) + ")";

    pc.desktop.open({"Late", "Late", 16});
    answerClose(question, Answer::No);
    EXPECT_EQ(pc.desktop.sent(), std::vector<SentMessage>());
    EXPECT_EQ(rows(), (Rows{"16: Late", "12: Stubborn", "8: Editor"}));
    EXPECT_EQ(page().lblCount.Caption(), "3 open Windows.");

    answerClose(question, Answer::Yes);
    EXPECT_EQ(rows(), (Rows{"16: Late", "12: Stubborn"}));
    answerClose("Editor(0)", Answer::Yes);

    select("12: Stubborn");
    answerClose("Stubborn(" + std::to_string(stubborn) + ")", Answer::Yes);
    EXPECT_EQ(rows(), (Rows{"16: Late", "12: Stubborn"})) << "It stays, and nothing more is done to it";
    EXPECT_EQ(pc.desktop.sent(), (std::vector<SentMessage>{
                                     {window, closeMessage}, {0, closeMessage}, {stubborn, closeMessage}}));
    EXPECT_EQ(page().lblCount.Caption(), "2 open Windows.");
}

TEST_F(AppWatch, AWindowMayCloseWhileTheListIsMade) {
    pc.desktop.open({"Last", "Last", 8});
    const Window middle = pc.desktop.open({"Middle", "Middle", 12});
    pc.desktop.open({"First", "First", 16});
    pc.messages.input([&] { pc.desktop.close(middle); });
    refresh();
    EXPECT_EQ(rows(), Rows{"16: First"}) << "The road to what stands behind it is lost";
    EXPECT_EQ(page().lblCount.Caption(), "1 open Windows.");
    refresh();
    EXPECT_EQ(rows(), (Rows{"16: First", "8: Last"}));
}

} // namespace
} // namespace tarvelon
