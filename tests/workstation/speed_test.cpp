// Compare Speeds, by a clock that moves a step with every read buffer but a file's last.

#include "tests/workstation/session.h"
#include "ui/speed_comparison.h"

namespace tarvelon {
namespace {

const std::string program = programFolder + "TarvelonLow.exe";

class Speeds : public Session {
protected:
    void SetUp() override {
        pc.files.put(program, std::string(600'000, 'x')); // Ten, five, three and two buffers.
        pc.files.put(dataFolder + "Integrity.dat", "");
        ASSERT_FALSE(start());
    }

    void compare(double startAfterMidnight, int millisecondsAStep) {
        pc.clock.now = 0;
        pc.clock.startAfterMidnight = startAfterMidnight;
        bool running = true;
        const auto step = [&] {
            pc.clock.now += millisecondsAStep;
            return !running;
        };
        pc.messages.when(step, [] {});
        form().cSpeeds.click();
        running = false;
        pc.messages.pump();
    }

    MForm1Screen& form() { return app->mForm1; }
    std::string row(int index) { return form().List1.item(index); }
    const BarChart& chart() { return form().speedChart; }
};

TEST_F(Speeds, TheReportIsWordForWordAndTheChartShowsItsFigures) {
    compare(54'247, 125);
    const Rows& report = form().List1.items();
    EXPECT_EQ(Rows(report.begin(), report.begin() + 7),
              (Rows{"Test 1 Buffer (64 Kb) 600000 byte file (calculated 5x): 5.625 seconds",
                    "Test 1 Buffer (128 Kb) 600000 byte file (calculated 5x): 2.5 seconds",
                    "Test 1 Buffer (256 Kb) 600000 byte file (calculated 5x): 1.25 seconds",
                    "Test 1 Buffer (512 Kb) 600000 byte file (calculated 5x): 0.625 seconds",
                    "Quickest Calculation at: 0.625 seconds. Using Buffer of: 512 Kb", "",
                    "Test 2 Buffer (64 Kb) 600000 byte file (calculated 10x): 11.25 seconds"}));
    EXPECT_EQ(row(12), "Test 3 Buffer (64 Kb) 600000 byte file (calculated 100x): 112.5 seconds");
    EXPECT_EQ(chart().Caption(), "Test 3: 100x") << "the last test, and the finest";
    EXPECT_EQ(chart().bars().at(3).label, "512");
    EXPECT_EQ(chart().marked(), 3);
    EXPECT_NEAR(chart().share(1), 50 / 112.5, 1e-9);
    for (const int clicked : {6, 11}) {
        form().List1.select(clicked);
        EXPECT_EQ(chart().Caption(), "Test 2: 10x") << "that of the selected row";
        EXPECT_EQ(chart().bars()[0].value, 11.25);
    }
    compare(54'247, 1); // There a float's steps are of 1/256 of a second.
    EXPECT_THAT(row(1), HasSubstr(": 0.01953125 seconds"));
    compare(86'399.9, 125);
    EXPECT_EQ(row(4), "Quickest Calculation at: -86394.38 seconds. Using Buffer of: 64 Kb") << "midnight";
    compare(0, 0);
    EXPECT_EQ(row(4), "Quickest Calculation at: 0 seconds. Using Buffer of: 64 Kb") << "the first of equals";
    EXPECT_EQ(chart().share(0), 0);
    compare(0, 250'000);
    EXPECT_EQ(row(10), "Quickest Calculation at: 999 seconds. Using Buffer of: 0 Kb") << "none was quicker";
    form().List1.select(6);
    EXPECT_EQ(chart().marked(), -1);
    EXPECT_EQ(figureText(1.0F / 32768), "3.051758E-05");
}

TEST_F(Speeds, OneRunAtATimeAndNoneWithoutTheProgram) {
    const auto state = [this] {
        return form().cSpeeds.Caption() +
               (form().cSpeeds.Enabled() && form().List1.Enabled() ? ", usable " : " ") +
               std::to_string(app->globals.settings.readBuffer) + " " + std::to_string(chart().count());
    };
    app->globals.settings.readBuffer = 70'000;
    pc.messages.when([this] { return form().List1.count() == 1; },
                     [&] {
                         EXPECT_EQ(state(), "Testing... (crc32) 65536 1");
                         form().cSpeeds.click();
                     });
    form().cSpeeds.click();
    EXPECT_EQ(form().List1.count(), 18);
    EXPECT_EQ(state(), "Compare Speeds, usable 70000 4");
    pc.files.remove(program);
    tells("Cannot read " + program);
    form().cSpeeds.click();
    EXPECT_EQ(form().List1.count(), 0);
    EXPECT_EQ(state(), "Compare Speeds, usable 70000 0");
}

} // namespace
} // namespace tarvelon
