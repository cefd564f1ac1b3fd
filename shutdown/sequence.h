#pragma once

#include "core/services.h"

#include <functional>
#include <string>

namespace tarvelon {

struct LogoffScreen;
struct SAvirScreen;
struct SProgScreen;
class Failure;
class ListBox;
class LogFiles;
class PowerAction;
class Scanner;

/// What the sequence calls in other subsystems.
struct SequenceHooks {
    std::function<void()> loadUp;        ///< Plans the integrity scan and starts it.
    std::function<void()> setReg;        ///< A pass over the watched registry locations.
    std::function<void()> scanAndUpdate; ///< Scans and accepts the registry warnings.
};

/// The scans between the choice of a shut-down and the machine going down: files pending for the next boot,
/// the integrity scan, the registry; then the power action, at once when nothing was logged, after two
/// minutes otherwise.
class Sequence : Services {
public:
    Sequence(LogoffScreen& logoff, SProgScreen& sProg, const ListBox& warnings, const SAvirScreen& scanners,
             const Services& services, const Scanner& scanner, LogFiles& logFiles, PowerAction& power);

    SequenceHooks hooks;

    /// The first steps, which a scheduled run takes as well.
    void preShut0();

    /// What follows the integrity scan.
    void PreShut2();

private:
    void CheckWinInit();
    void scanWininit();
    void scanPendingRenames();
    void PreShut1();
    void goOnWithoutScan(const Failure& failure);
    void startCountDown();
    void countDown();
    void showTimeLeft(int seconds);
    bool queryClose();

    void runScanners(const std::vector<std::string>& batch);
    std::string item(const std::string& file) const;
    void status(const std::string& text);

    LogoffScreen& logoff_;
    SProgScreen& sProg_;
    const ListBox& warnings_; ///< Of the watched registry locations.
    const SAvirScreen& scanners_;
    const Scanner& scanner_;
    LogFiles& logFiles_;
    PowerAction& power_;

    int secondsPast = 0;
    int minutesPast = 0;
};

} // namespace tarvelon
