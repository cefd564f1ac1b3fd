#include "ui/speed_comparison.h"

#include "core/failure.h"
#include "core/globals.h"
#include "hash/checksum.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/messages.h"
#include "platform/platform.h"
#include "ui/mform1_screen.h"

#include <array>
#include <cstdio>

namespace tarvelon {

namespace {

constexpr std::array<std::int32_t, 4> bufferSizes = {65536, 131072, 262144, 524288};

constexpr std::int32_t kilobytes(std::int32_t bytes) {
    return bytes / 1024;
}

} // namespace

struct SpeedComparison::Test {
    int number;
    int repetitions;
    BarChart& chart;
};

/// What the comparison borrows while it runs: the button, the list and the read buffer.
class SpeedComparison::Session {
public:
    Session(MForm1Screen& screen, Settings& settings)
        : screen_(screen)
        , settings_(settings)
        , readBuffer_(settings.readBuffer) {
        screen_.cSpeeds.Caption = "Testing... (" + settings_.algoName + ")";
        screen_.cSpeeds.Enabled = false;
        screen_.List1.clear();
        screen_.List1.Enabled = false;
        for (BarChart& chart : screen_.speedChart) {
            chart.clear();
        }
    }
    Session(const Session&) = delete;
    ~Session() {
        screen_.List1.Enabled = true;
        settings_.readBuffer = readBuffer_;
        screen_.cSpeeds.Caption = "Compare Speeds";
        screen_.cSpeeds.Enabled = true;
    }

private:
    MForm1Screen& screen_;
    Settings& settings_;
    std::int32_t readBuffer_;
};

SpeedComparison::SpeedComparison(MForm1Screen& screen, Globals& globals, Platform& platform,
                                 Checksum& checksum)
    : screen_(screen)
    , globals_(globals)
    , platform_(platform)
    , checksum_(checksum) {
    screen_.cSpeeds.onClick = [this] { cSpeeds_Click(); };
}

void SpeedComparison::cSpeeds_Click() {
    const Session session(screen_, globals_.settings);
    const std::string file = globals_.app.appPath + "TarvelonLow.exe";
    const auto length = platform_.files.length(file);
    if (!length) {
        throw Failure("Cannot read " + file);
    }
    auto& charts = screen_.speedChart;
    for (const Test& test : {Test{1, 5, charts[0]}, Test{2, 10, charts[1]}, Test{3, 100, charts[2]}}) {
        run(test, file, *length);
    }
}

void SpeedComparison::run(const Test& test, const std::string& file, std::uint64_t length) {
    float bestTime = 999;
    std::int32_t bestSize = 0;
    for (const std::int32_t size : bufferSizes) {
        globals_.settings.readBuffer = size;
        const float elapsed = measure(file, test.repetitions);
        const std::string kb = std::to_string(kilobytes(size));
        screen_.List1.add("Test " + std::to_string(test.number) + " Buffer (" + kb + " Kb) " +
                          std::to_string(length) + " byte file (calculated " +
                          std::to_string(test.repetitions) + "x): " + figureText(elapsed) + " seconds");
        test.chart.add(kb, elapsed);
        if (elapsed < bestTime) {
            bestTime = elapsed;
            bestSize = kilobytes(size);
            test.chart.mark(test.chart.count() - 1);
        }
        platform_.messages.pump();
    }
    screen_.List1.add("Quickest Calculation at: " + figureText(bestTime) +
                      " seconds. Using Buffer of: " + std::to_string(bestSize) + " Kb");
    screen_.List1.add("");
}

/// Seconds of single precision on both ends, so that late in the day the figures are coarse: multiples of
/// 1/128 from 18:12 on. Past midnight the difference is negative.
float SpeedComparison::measure(const std::string& file, int repetitions) {
    const auto now = [this] {
        // Through memory: a processor's registers may keep more digits than a float has.
        const volatile float seconds = static_cast<float>(platform_.clock.secondsSinceMidnight());
        return seconds;
    };
    const float start = now();
    for (int i = 0; i < repetitions; ++i) {
        checksum_.getChecksum(file);
    }
    return now() - start;
}

std::string figureText(float figure) {
    char text[32];
    std::snprintf(text, sizeof text, "%.7G", static_cast<double>(figure));
    return text;
}

} // namespace tarvelon
