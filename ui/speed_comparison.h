#pragma once

#include "core/services.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tarvelon {

class Checksum;
struct AdvancedControls;

/// Compare Speeds: how long the checksum of the program's own file takes with each size of the read buffer.
/// Three tests, of more and more repetitions. Beside the report a chart shows the test that runs, afterwards
/// the last one, or that of the row which the user selects.
class SpeedComparison : Services {
public:
    SpeedComparison(AdvancedControls& screen, const Services& services, Checksum& checksum);

private:
    class Session;

    struct Test {
        int number;
        int repetitions;
        std::vector<float> seconds; ///< In the order of the buffer sizes.
        std::optional<std::size_t> quickest;
    };

    void compare();
    void run(Test& test, const std::string& file, std::uint64_t length);
    float measure(const std::string& file, int repetitions);
    void drawSelected();
    void draw(const Test& test);

    AdvancedControls& screen_;
    Checksum& checksum_;
    std::array<Test, 3> tests_{{{1, 5, {}, {}}, {2, 10, {}, {}}, {3, 100, {}, {}}}};
};

/// A figure as the report shows it: at most seven significant digits, no zeros behind them, a point in front
/// of the fraction, and an exponent only below 0.0001. 1/64 reads "0.015625", 2 reads "2".
std::string figureText(float figure);

} // namespace tarvelon
