#pragma once

#include <cstdint>
#include <string>

namespace tarvelon {

class BarChart;
class Checksum;
struct Globals;
struct MForm1Screen;
struct Platform;

/// Compare Speeds: how long the checksum of the program's own file takes with each size of the read buffer.
class SpeedComparison {
public:
    SpeedComparison(MForm1Screen& screen, Globals& globals, Platform& platform, Checksum& checksum);

private:
    struct Test;
    class Session;

    void cSpeeds_Click();
    void run(const Test& test, const std::string& file, std::uint64_t length);
    float measure(const std::string& file, int repetitions);

    MForm1Screen& screen_;
    Globals& globals_;
    Platform& platform_;
    Checksum& checksum_;
};

/// A figure as the report shows it: at most seven significant digits, no zeros behind them, a point in front
/// of the fraction, and an exponent only below 0.0001. 1/64 reads "0.015625", 2 reads "2".
std::string figureText(float figure);

} // namespace tarvelon
