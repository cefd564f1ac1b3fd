// Compare Speeds, by a clock that moves a step with every read buffer but a file's last.

#include "tests/workstation/session.h"

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

    std::string row(int index) { return form().List1.item(index); }
    const BarChart& chart() { return form().speedChart; }
};

TEST_F(Speeds, OneRunAtATimeTellsItsFiguresAndNoneRunsWithoutTheProgram) {
    const auto state = [this] {
        return form().cSpeeds.Caption() +
               (form().cSpeeds.Enabled() && form().List1.Enabled() ? ", usable " : " ") +
               std::to_string(app->globals.settings.readBuffer) + " " + std::to_string(form().List1.count());
    };
    app->globals.settings.readBuffer = 70'000;
    pc.clock.startAfterMidnight = 86'399.9; // In front of midnight.
    const auto step = [this] {
        pc.clock.now += 125;
        return form().List1.count() == 18;
    };
    pc.messages.when(step, [] {});
    pc.messages.when([this] { return form().List1.count() == 1; },
                     [&] {
                         EXPECT_EQ(state(), "Testing... (crc32) 65536 1");
                         form().cSpeeds.click();
                     });
    form().cSpeeds.click();
    pc.messages.pump();
    EXPECT_EQ(state(), "Compare Speeds, usable 70000 18");
    EXPECT_EQ(row(0), "Test 1 Buffer (64 Kb) 600000 byte file (calculated 5x): -86394.38 seconds");
    EXPECT_EQ(row(4), "Quickest Calculation at: -86394.38 seconds. Using Buffer of: 64 Kb");
    EXPECT_EQ(row(12), "Test 3 Buffer (64 Kb) 600000 byte file (calculated 100x): 112.5 seconds");
    EXPECT_EQ(chart().Caption() + chart().bars().at(3).label, "Test 3: 100x512") << "the last test's";
    EXPECT_NEAR(chart().share(1), 50 / 112.5, 1e-6);
    form().List1.select(11);
    EXPECT_EQ(chart().Caption(), "Test 2: 10x") << "that of the selected row";
    pc.files.remove(program);
    clickTelling(form().cSpeeds, "Cannot read " + program);
    EXPECT_EQ(state(), "Compare Speeds, usable 70000 0");
}

} // namespace
} // namespace tarvelon
