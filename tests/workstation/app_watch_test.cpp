// The page of open windows, on a desktop with other programs' windows.

#include "tests/workstation/session.h"

#include <algorithm>

namespace tarvelon {
namespace {

using Window = Desktop::Window;

class AppWatch : public Session {
protected:
    void SetUp() override {
        pc.files.put(dataFolder + "Integrity.dat", "");
        ASSERT_FALSE(start());
        form().Image9.click();
    }

    const Rows& rows() { return form().lstOpenWindows.items(); }

    /// Each listed window counts.
    void refreshesTo(const Rows& expected) {
        form().ref.click();
        EXPECT_EQ(rows(), expected);
        EXPECT_EQ(form().lblCount.Caption(), std::to_string(rows().size()) + " open Windows.");
    }

    std::string select(const std::string& row) {
        form().lstOpenWindows.select(static_cast<int>(std::ranges::find(rows(), row) - rows().begin()));
        return form().txtTitle.Caption() + ", " + form().lblProcessID.Caption() + ", " +
               form().lblClassName.Caption();
    }
};

TEST_F(AppWatch, EachTitleHasOneRowWithTheProcessOfItsFrontWindow) {
    const std::string longest(254, 'x');
    pc.desktop.open({longest + "y", "Longer", 4});
    pc.desktop.open({"Twin", "One", 8});
    pc.desktop.open({"", "Untitled", 12});
    const Window behind = pc.desktop.open({"My  Window: 1", "Behind", 1234});
    pc.desktop.open({"Twin", "Two", 12});
    pc.desktop.open({"TWIN", "Hidden", 16, false});
    refreshesTo({"16: TWIN", "16: Twin", "1234: My  Window: 1", "0: " + longest});
    EXPECT_EQ(select("16: Twin"), "Twin, ProcessID: 16, Class Name: Hidden");
    EXPECT_EQ(select("1234: My  Window: 1"), "My  Window: 1, ProcessID: 1234, Class Name: Behind");
    pc.desktop.close(behind);
    EXPECT_EQ(select("1234: My  Window: 1"), "My  Window: 1, ProcessID: 0, Window Not Found!!!");

    pc.messages.input([&] { pc.desktop.close(pc.desktop.find("Two", "Twin")); });
    refreshesTo({"16: TWIN"}); // The road to what stood behind the closed one is lost.
    refreshesTo({"16: TWIN", "16: Twin", "0: " + longest});
}

TEST_F(AppWatch, ActivateAndCloseReachTheWindowOfTheClassThatIsShown) {
    const Window first = pc.desktop.open({"Twin", "One", 8});
    pc.desktop.open({"No Window Selected", "Decoy", 4});
    form().ref.click();
    select("8: Twin");
    pc.desktop.open({"Twin", "Two", 12});
    form().act.click(); // Not the other one, although it is in front.
    EXPECT_EQ(pc.desktop.broughtToTop(), std::vector<Window>{first});

    select("4: No Window Selected");
    form().txtTitle.typed("Something else");
    asks("Are you sure you want to close Something else(0)", Answer::Yes);
    form().cl.click();
    refreshesTo({"8: Twin", "4: No Window Selected"});
    select("8: Twin");
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        pc.desktop.open({"Late", "Late", 16});
        asks("Are you sure you want to close Twin(" + std::to_string(first) + ")", answer);
        form().cl.click();
        EXPECT_EQ(pc.desktop.isOpen(first), answer == Answer::No);
        EXPECT_EQ(rows().front(), "16: Late") << "the list is made anew whatever the answer";
    }
    EXPECT_EQ(pc.desktop.sent(), (std::vector<SentMessage>{{0, 16}, {first, 16}}));
}

} // namespace
} // namespace tarvelon
