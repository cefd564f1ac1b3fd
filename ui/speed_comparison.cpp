#include "ui/speed_comparison.h"

#include "core/failure.h"
#include "core/globals.h"
#include "hash/checksum.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/messages.h"
#include "platform/platform.h"
#include "ui/advanced_controls.h"

#include <array>
#include <cstdio>

namespace tarvelon {

namespace {

constexpr std::array<std::int32_t, 4> bufferSizes = {65536, 131072, 262144, 524288};

/// A test's rows in the report: one for each size, the quickest, and an empty one.
constexpr std::size_t rowsOfTest = bufferSizes.size() + 2;

constexpr std::int32_t kilobytes(std::int32_t bytes) {
    return bytes / 1024;
}

} // namespace

/// What the comparison borrows while it runs: the button, the list and the read buffer.
class SpeedComparison::Session {
public:
    Session(AdvancedControls& screen, Settings& values)
        : screen_(screen)
        , values_(values)
        , readBuffer_(values.readBuffer) {
        screen_.cSpeeds.Caption = "Testing... (" + values_.algoName + ")";
        screen_.cSpeeds.Enabled = false;
        screen_.List1.clear();
        screen_.List1.Enabled = false;
        screen_.speedChart.clear();
    }
    Session(const Session&) = delete;
    ~Session() {
        screen_.List1.Enabled = true;
        values_.readBuffer = readBuffer_;
        screen_.cSpeeds.Caption = "Compare Speeds";
        screen_.cSpeeds.Enabled = true;
    }

private:
    AdvancedControls& screen_;
    Settings& values_;
    std::int32_t readBuffer_;
};

SpeedComparison::SpeedComparison(AdvancedControls& screen, const Services& services, Checksum& checksum)
    : Services(services)
    , screen_(screen)
    , checksum_(checksum) {
    screen_.cSpeeds.onClick = [this] { compare(); };
    screen_.List1.onClick = [this] { drawSelected(); };
}

void SpeedComparison::compare() {
    const Session session(screen_, globals.settings);
    const std::string file = globals.app.appPath + "TarvelonLow.exe";
    const auto length = platform.files.length(file);
    if (!length) {
        throw Failure("Cannot read " + file);
    }
    for (Test& test : tests_) {
        run(test, file, *length);
    }
}

void SpeedComparison::run(Test& test, const std::string& file, std::uint64_t length) {
    test.seconds.clear();
    test.quickest.reset();
    float bestTime = 999;
    for (std::size_t i = 0; i < bufferSizes.size(); ++i) {
        globals.settings.readBuffer = bufferSizes[i];
        const float elapsed = measure(file, test.repetitions);
        screen_.List1.add("Test " + std::to_string(test.number) + " Buffer (" +
                          std::to_string(kilobytes(bufferSizes[i])) + " Kb) " + std::to_string(length) +
                          " byte file (calculated " + std::to_string(test.repetitions) +
                          "x): " + figureText(elapsed) + " seconds");
        test.seconds.push_back(elapsed);
        if (elapsed < bestTime) {
            bestTime = elapsed;
            test.quickest = i;
        }
        draw(test);
        platform.messages.pump();
    }
    const std::int32_t bestSize = test.quickest ? kilobytes(bufferSizes[*test.quickest]) : 0;
    screen_.List1.add("Quickest Calculation at: " + figureText(bestTime) +
                      " seconds. Using Buffer of: " + std::to_string(bestSize) + " Kb");
    screen_.List1.add("");
}

/// Seconds of single precision on both ends, so that late in the day the figures are coarse: multiples of
/// 1/128 from 18:12 on. Past midnight the difference is negative.
float SpeedComparison::measure(const std::string& file, int repetitions) {
    const auto now = [this] {
        // Through memory: a processor's registers may keep more digits than a float has.
        const volatile auto seconds = static_cast<float>(platform.clock.secondsSinceMidnight());
        return seconds;
    };
    const float start = now();
    for (int i = 0; i < repetitions; ++i) {
        checksum_.getChecksum(file);
    }
    return now() - start;
}

void SpeedComparison::drawSelected() {
    const auto test = static_cast<std::size_t>(screen_.List1.listIndex()) / rowsOfTest;
    if (test < tests_.size()) {
        draw(tests_[test]);
    }
}

void SpeedComparison::draw(const Test& test) {
    BarChart& chart = screen_.speedChart;
    chart.Caption = "Test " + std::to_string(test.number) + ": " + std::to_string(test.repetitions) + "x";
    chart.clear();
    for (std::size_t i = 0; i < test.seconds.size(); ++i) {
        chart.add(std::to_string(kilobytes(bufferSizes[i])), test.seconds[i]);
    }
    if (test.quickest) {
        chart.mark(static_cast<int>(*test.quickest));
    }
}

std::string figureText(float figure) {
    char text[32];
    std::snprintf(text, sizeof text, "%.7G", static_cast<double>(figure));
    return text;
}

} // namespace tarvelon
