#include "core/failure.h"
#include "platform/sim/workstation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvelon {

namespace {

using testing::ElementsAre;

class Sim : public testing::Test {
protected:
    SimMessages::Action note(int number) {
        return [this, number] { seen.push_back(number); };
    }

    SimWorkstation workstation;
    SimMessages& messages = workstation.messages;
    std::vector<int> seen;
};

TEST_F(Sim, ScriptedInputComesAtItsPumpAndIsAnnounced) {
    messages.atPump(2, note(2));
    EXPECT_EQ(messages.queueStatus(165), 0u);
    messages.pump();
    EXPECT_THAT(seen, ElementsAre());
    EXPECT_NE(messages.queueStatus(165), 0u) << "The next pump brings it";
    EXPECT_EQ(messages.queueStatus(0x20), 0u) << "It is no repaint";
    messages.pump();
    messages.pump();
    EXPECT_THAT(seen, ElementsAre(2)) << "Once only";

    messages.atQueueStatus(2, note(3));
    messages.pump();
    EXPECT_EQ(messages.queueStatus(165), 0u);
    EXPECT_NE(messages.queueStatus(165), 0u);
    messages.pump();
    EXPECT_THAT(seen, ElementsAre(2, 3));

    bool ready = false;
    messages.when([&] { return ready; }, note(4));
    messages.pump();
    ready = true;
    messages.pump();
    EXPECT_THAT(seen, ElementsAre(2, 3, 4));
    EXPECT_TRUE(messages.scriptDone());
}

TEST_F(Sim, WaitingBringsWhatComesNextOrTellsOfAHang) {
    EXPECT_THROW(messages.wait(), Hang);
    messages.onWait(note(1));
    messages.pump();
    EXPECT_THAT(seen, ElementsAre()) << "Not while the program is busy";
    messages.wait();
    messages.pump();
    EXPECT_THAT(seen, ElementsAre(1));

    messages.when([] { return false; }, note(2));
    EXPECT_THROW(
        for (;;) {
            messages.wait();
            messages.pump();
        },
        Hang);
}

TEST_F(Sim, BoxesAreAnsweredByTheScriptAlone) {
    SimDialogs& dialogs = workstation.dialogs;
    dialogs.expect(
        {.text = "Go on?", .answer = Answer::Yes, .buttons = Buttons::YesNo, .whileOpen = note(1)});
    EXPECT_FALSE(dialogs.allAnswered());
    EXPECT_EQ(dialogs.message({"Go on?", "", Buttons::YesNo}), Answer::Yes);
    EXPECT_THAT(seen, ElementsAre(1));
    EXPECT_TRUE(dialogs.allAnswered());

    dialogs.expect({.text = "Saved", .title = "Title"});
    EXPECT_THROW(dialogs.message({"Saved", "Other title"}), UnexpectedQuestion);
    EXPECT_EQ(dialogs.message({"Saved", "Title"}), Answer::Ok);
    EXPECT_THROW(dialogs.message({"Saved", "Title"}), UnexpectedQuestion);
    dialogs.expect({.text = "No such button", .answer = Answer::Cancel});
    EXPECT_THROW(dialogs.message({"No such button"}), UnexpectedQuestion);
    EXPECT_FALSE(dialogs.allAnswered()) << "What came unawaited stays on the record";
}

TEST_F(Sim, TheEndOfTheProcessIsNoErrorToPassOver) {
    EXPECT_THROW(passOver([&] { workstation.processes.end(); }), ProcessEnded);
    EXPECT_TRUE(workstation.processes.ended());
}

TEST_F(Sim, WhatIsOpenedIsOnTheRecord) {
    SimShell& shell = workstation.shell;
    workstation.files.put("C:\\Help\\index.html", "");
    EXPECT_GT(shell.open("index.html", "C:\\Help\\"), 32);
    EXPECT_GT(shell.open("mailto:somebody", ""), 32);
    shell.results["mailto:somebody"] = Shell::noProgram;
    EXPECT_EQ(shell.open("mailto:somebody", ""), Shell::noProgram);
    EXPECT_EQ(shell.open("other.html", "C:\\Help\\"), Shell::fileNotFound);
    EXPECT_THAT(shell.opened(), ElementsAre(OpenedDocument{"index.html", "C:\\Help\\"},
                                            OpenedDocument{"mailto:somebody", ""}));
}

} // namespace

} // namespace tarvelon
