#pragma once

#include "core/application.h"
#include "platform/sim/workstation.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace tarvelon {

inline const std::string programFolder = R"(C:\Program Files\Tarvelon\)";
inline const std::string dataFolder = programFolder + R"(Data\)";
inline const std::string systemFolder = R"(C:\WINDOWS\system32\)";
inline const std::string firstRunQuestion =
    "This is your first time using Tarvelon.  Tarvelon is required to do a system file Integrity scan before "
    "proceeding.\r\nIf you are sure there are no viruses on your computer, it is safe to scan now. "
    "Otherwise, "
    "please do a full scan at a later time. The full scan should take no more than five minutes to "
    "complete.\r\n\r\nPerform scan now?";
inline const std::string firstRunRefused =
    "You have chosen not to do a full scan at this time.  You need to run the full scan before using the "
    "Integrity Checker.";

/// Upper-case hexadecimal CRC-32 without leading zeros, bit by bit.
std::string crcText(const std::string& bytes);

/// A settings file with this list of eight positions for scans at log-on, no scanner, and `more` at its end.
std::string settingsWith(const std::string& settings, const std::string& more = "");

/// A workstation, and the runs of the program on it, one at a time.
class Session : public testing::Test {
protected:
    void TearDown() override;

    /// Starts the program anew; true when the start itself ended the process.
    bool start(const std::string& arguments = "");

    /// Lets time pass until nothing runs any more; true when the process ended on the way.
    bool settle();

    /// True when the action ended the process.
    bool ends(const std::function<void()>& action);

    /// Makes the first full scan of what stands in the system folder, in a run of its own.
    void makeBaseline();

    std::string file(const std::string& path) const { return pc.files.get(path).value_or("(missing)"); }

    SimWorkstation pc;
    std::unique_ptr<Application> app;
};

} // namespace tarvelon
