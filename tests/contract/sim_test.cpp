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

TEST_F(Sim, AHandlerMayPumpAgain) {
    messages.input([&] {
        note(1)();
        messages.input(note(2));
        messages.pump();
        note(3)();
    });
    messages.pump();
    EXPECT_THAT(seen, ElementsAre(1, 2, 3));
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

TEST_F(Sim, TimersTickAtTheirTimes) {
    struct TwoTimers : Screen {
        TwoTimers()
            : Screen("Timers", 10, 10) {}
        Timer second{*this, 1000};
        Timer oneShot{*this, 1};
    } screen;
    workstation.attach(screen);
    std::vector<std::int64_t> times;
    screen.second.onTick = [&] { times.push_back(workstation.clock.now); };
    screen.oneShot.onTick = [&] {
        screen.oneShot.Enabled = false;
        screen.second.Enabled = true;
        messages.advance(2500);
    };
    messages.advance(100);
    screen.oneShot.Enabled = true;
    messages.pump();
    EXPECT_EQ(workstation.clock.now, 100) << "Pumping takes no time";
    messages.wait();
    EXPECT_EQ(workstation.clock.now, 101);
    EXPECT_NE(messages.queueStatus(0x10), 0u);
    messages.pump();
    EXPECT_THAT(times, ElementsAre(1101, 2101));
    messages.advance(499);
    EXPECT_THAT(times, ElementsAre(1101, 2101));
    messages.advance(1);
    EXPECT_THAT(times, ElementsAre(1101, 2101, 3101));
    screen.second.Enabled = false;
    EXPECT_THROW(messages.wait(), Hang);
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

TEST_F(Sim, FaultsStrikeTheCallTheyAreMeantFor) {
    workstation.files.put("C:\\f", "x");
    workstation.faults.failNth(Operation::LengthByName, 2);
    EXPECT_TRUE(workstation.files.length("C:\\f"));
    EXPECT_FALSE(workstation.files.length("C:\\f"));
    EXPECT_TRUE(workstation.files.length("C:\\f"));
    EXPECT_EQ(workstation.faults.calls(Operation::LengthByName), 3);
    workstation.faults.failAlways(Operation::StartProcess);
    EXPECT_FALSE(workstation.processes.start("a.exe", WindowStyle::NormalFocus));
    EXPECT_TRUE(workstation.processes.started().empty());
}

TEST_F(Sim, ShortNamesCountWhatBeginsAlike) {
    SimFiles& files = workstation.files;
    files.put("C:\\D\\Program one.html", "1");
    files.put("C:\\D\\Program two.html", "2");
    files.put("C:\\D\\.rc", "3");
    const auto shortPath = [&](const std::string& path) {
        char buffer[260] = "";
        files.getShortPathName(path, buffer, sizeof buffer);
        return std::string(buffer);
    };
    EXPECT_EQ(shortPath("C:\\D\\Program one.html"), "C:\\D\\PROGRA~1.HTM");
    EXPECT_EQ(shortPath("C:\\D\\program two.html"), "C:\\D\\PROGRA~2.HTM");
    EXPECT_EQ(files.get("C:\\d\\progra~2.htm"), "2");
    files.setShortPath("C:\\D\\Program one.html", "C:\\X");
    EXPECT_EQ(shortPath("C:\\d\\PROGRA~1.HTM"), "C:\\D\\PROGRA~1.HTM");
    EXPECT_EQ(shortPath("c:\\d\\program one.html"), "C:\\X");
}

TEST_F(Sim, TheClockRunsOverMidnight) {
    workstation.clock.startAfterMidnight = 86'399;
    messages.advance(500);
    EXPECT_EQ(workstation.clock.secondsSinceMidnight(), 86'399.5);
    messages.advance(500);
    EXPECT_EQ(workstation.clock.secondsSinceMidnight(), 0);
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
