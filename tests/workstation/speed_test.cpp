// Compare Speeds, by a clock that moves a step with every read buffer but a file's last.

#include "tests/workstation/session.h"
#include "ui/speed_comparison.h"

namespace tarvelon {
namespace {

using testing::ElementsAre;
using testing::EndsWith;

const std::string program = programFolder + "TarvelonLow.exe";

class Speeds : public Session {
protected:
    void SetUp() override {
        // Ten, five, three and two buffers of the four sizes.
        pc.files.put(program, std::string(600'000, 'x'));
        pc.files.put(dataFolder + "Integrity.dat", "");
        ASSERT_FALSE(start());
        app->mForm1.Image11.click();
        app->mForm1.cButton2.click();
    }

    void compare(double startAfterMidnight, int millisecondsAStep) {
        pc.clock.now = 0;
        pc.clock.startAfterMidnight = startAfterMidnight;
        bool running = true;
        std::function<void()> step = [&] {
            if (running) {
                pc.clock.now += millisecondsAStep;
                pc.messages.atQueueStatus(1, step);
            }
        };
        pc.messages.atQueueStatus(1, step);
        app->mForm1.cSpeeds.click();
        running = false;
        pc.messages.queueStatus(0xff);
        pc.messages.pump();
    }

    std::string row(int index) const { return app->mForm1.List1.item(index); }
    const BarChart& chart() const { return app->mForm1.speedChart; }
};

TEST_F(Speeds, TheReportIsWordForWordAndTheChartShowsItsFigures) {
    app->globals.settings.readBuffer = 70'000;
    compare(54'247, 125);
    EXPECT_THAT(app->mForm1.List1.items(),
                ElementsAre("Test 1 Buffer (64 Kb) 600000 byte file (calculated 5x): 5.625 seconds",
                            "Test 1 Buffer (128 Kb) 600000 byte file (calculated 5x): 2.5 seconds",
                            "Test 1 Buffer (256 Kb) 600000 byte file (calculated 5x): 1.25 seconds",
                            "Test 1 Buffer (512 Kb) 600000 byte file (calculated 5x): 0.625 seconds",
                            "Quickest Calculation at: 0.625 seconds. Using Buffer of: 512 Kb", "",
                            "Test 2 Buffer (64 Kb) 600000 byte file (calculated 10x): 11.25 seconds",
                            "Test 2 Buffer (128 Kb) 600000 byte file (calculated 10x): 5 seconds",
                            "Test 2 Buffer (256 Kb) 600000 byte file (calculated 10x): 2.5 seconds",
                            "Test 2 Buffer (512 Kb) 600000 byte file (calculated 10x): 1.25 seconds",
                            "Quickest Calculation at: 1.25 seconds. Using Buffer of: 512 Kb", "",
                            "Test 3 Buffer (64 Kb) 600000 byte file (calculated 100x): 112.5 seconds",
                            "Test 3 Buffer (128 Kb) 600000 byte file (calculated 100x): 50 seconds",
                            "Test 3 Buffer (256 Kb) 600000 byte file (calculated 100x): 25 seconds",
                            "Test 3 Buffer (512 Kb) 600000 byte file (calculated 100x): 12.5 seconds",
                            "Quickest Calculation at: 12.5 seconds. Using Buffer of: 512 Kb", ""));
    EXPECT_EQ(app->globals.settings.readBuffer, 70'000) << "put back";
    EXPECT_EQ(chart().Caption(), "Test 3: 100x") << "the last test, and the finest";
    std::string labels;
    for (const BarChart::Bar& bar : chart().bars()) {
        labels += bar.label + " ";
    }
    EXPECT_EQ(labels, "64 128 256 512 ");
    EXPECT_EQ(chart().marked(), 3);
    EXPECT_EQ(chart().share(0), 1);
    EXPECT_NEAR(chart().share(1), 50 / 112.5, 1e-9);
    for (const int clicked : {6, 11}) {
        app->mForm1.List1.select(clicked);
        EXPECT_EQ(chart().Caption(), "Test 2: 10x") << "that of the selected row";
        EXPECT_EQ(chart().bars()[0].value, 11.25);
    }
}

TEST_F(Speeds, TimesAreOfSinglePrecision) {
    compare(54'247, 1); // There a float's steps are of 1/256 of a second.
    EXPECT_THAT(row(0), EndsWith(": 0.046875 seconds"));
    EXPECT_THAT(row(1), EndsWith(": 0.01953125 seconds"));
    compare(86'399.9, 125);
    EXPECT_THAT(row(0), EndsWith(": -86394.38 seconds")) << "past midnight";
    EXPECT_EQ(row(4), "Quickest Calculation at: -86394.38 seconds. Using Buffer of: 64 Kb");
    app->mForm1.List1.select(0);
    EXPECT_EQ(chart().marked(), 0);
    EXPECT_EQ(chart().share(0), 0);
    EXPECT_EQ(chart().share(1), 1);
    compare(0, 0);
    EXPECT_EQ(row(4), "Quickest Calculation at: 0 seconds. Using Buffer of: 64 Kb") << "the first of equals";
    EXPECT_EQ(app->mForm1.List1.count(), 18) << "a new report each time";
    compare(0, 250'000);
    EXPECT_EQ(row(10), "Quickest Calculation at: 999 seconds. Using Buffer of: 0 Kb") << "none was quicker";
    app->mForm1.List1.select(6);
    EXPECT_EQ(chart().marked(), -1);

    EXPECT_EQ(figureText(0.0009765625F), "0.0009765625");
    EXPECT_EQ(figureText(1.0F / 3), "0.3333333");
    EXPECT_EQ(figureText(1.0F / 32768), "3.051758E-05");
}

TEST_F(Speeds, OneRunAtATimeWithARowForEachPump) {
    MForm1Screen& form = app->mForm1;
    const int pumpsBefore = pc.messages.pumps();
    for (int pump = 1; pump <= 4; ++pump) {
        pc.messages.when([&form, pump] { return form.List1.count() == pump; },
                         [&form] {
                             EXPECT_EQ(form.cSpeeds.Caption(), "Testing... (crc32)");
                             EXPECT_FALSE(form.cSpeeds.Enabled());
                             EXPECT_FALSE(form.List1.Enabled());
                             EXPECT_EQ(form.speedChart.count(), form.List1.count());
                             form.cSpeeds.click();
                         });
    }
    app->globals.settings.algoName = "crc32";
    form.cSpeeds.click();
    EXPECT_EQ(form.List1.count(), 18);
    EXPECT_EQ(form.cSpeeds.Caption(), "Compare Speeds");
    EXPECT_TRUE(form.cSpeeds.Enabled());
    EXPECT_TRUE(form.List1.Enabled());
    EXPECT_GE(pc.messages.pumps() - pumpsBefore, 12);
}

TEST_F(Speeds, AMissingProgramIsToldAndLeavesThePageUsable) {
    MForm1Screen& form = app->mForm1;
    form.List1.add("an old report");
    app->globals.settings.readBuffer = 131072;
    pc.files.remove(program);
    tells("Cannot read " + program);
    form.cSpeeds.click();
    EXPECT_EQ(form.cSpeeds.Caption(), "Compare Speeds");
    EXPECT_TRUE(form.cSpeeds.Enabled());
    EXPECT_TRUE(form.List1.Enabled());
    EXPECT_EQ(form.List1.count(), 0);
    EXPECT_EQ(app->globals.settings.readBuffer, 131072);
}

} // namespace
} // namespace tarvelon
