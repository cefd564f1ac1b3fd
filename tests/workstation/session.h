#pragma once

#include "app/application.h"
#include "platform/sim/workstation.h"
#include "tests/support/bitwise_crc32.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tarvelon {

using Rows = std::vector<std::string>;
using testing::HasSubstr;

inline const std::string programFolder = R"(C:\Program Files\Tarvelon\)";
inline const std::string dataFolder = programFolder + R"(Data\)";
inline const std::string systemFolder = R"(C:\WINDOWS\system32\)";
inline const std::string runKey = R"(Software\Microsoft\Windows\CurrentVersion\Run)";
inline const std::string report = dataFolder + "Log\\03-05-2006(3_04_07PM).log"; ///< Of one made now.
inline const std::string firstRunQuestion =
    "This is your first time using Tarvelon.  Tarvelon is required to do a system file Integrity scan before "
    "proceeding.\r\nIf you are sure there are no viruses on your computer, it is safe to scan now. "
    "Otherwise, "
    "please do a full scan at a later time. The full scan should take no more than five minutes to "
    "complete.\r\n\r\nPerform scan now?";
inline const std::string firstRunRefused =
    "You have chosen not to do a full scan at this time.  You need to run the full scan before using the "
    "Integrity Checker.";
inline const std::string noScanner =
    "You didn't choose an anti-virus software exe.  We recommend that you get one to take full advantage of "
    "Tarvelon";

inline const std::string allTypes = "1,1,1,1,1,1,0,0"; ///< Without automatic scan and reports.

/// With the path of the first scanner behind it.
inline const std::string notExecuted =
    "Your Anti-Virus program could not be executed!!!\rPlease verify the path of the software:\r";

inline const std::string leaveFindings =
    "Some files failed the integrity check!  Are you sure you want to exit?";

/// What a settings file holds.
struct SettingsText {
    std::string settings =
        "0,0,0,0,0,0,0,0"; ///< For scans at log-on; with "\r\nsettings2=..." for shut-down.
    std::string passCount = "500";
    std::string antivirus = "";
    std::string av2 = "";
    std::string antivirus2 = "1,0,0"; ///< Quotes, short names, focus.
    std::string folders = "";         ///< The sections of the custom folders.
};

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

    void putSettings(const SettingsText& text);

    /// Awaits a box with an OK; without a text, none.
    void tells(const std::string& text, const std::string& title = "");

    /// Awaits a question with Yes and No.
    void asks(const std::string& text, Answer answer, const std::string& title = "");

    /// Clicks what ends with a box that has an OK.
    template<class Control>
    void clickTelling(Control& control, const std::string& text) {
        tells(text);
        control.click();
    }

    template<class... Controls>
    static void click(Controls&... controls) {
        (controls.click(), ...);
    }

    /// The values of check boxes, a digit each.
    template<class Boxes>
    static std::string ticks(const Boxes& boxes) {
        std::string digits;
        for (const auto* box : boxes) {
            digits += std::to_string(box->value());
        }
        return digits;
    }

    /// The command lines of the programs that were started.
    Rows lines() const;

    std::string file(const std::string& path) const { return pc.files.get(path).value_or("(missing)"); }
    std::string data(const std::string& name) const { return file(dataFolder + name); }

    MForm1Screen& form() { return app->mForm1; }

    /// Has the system delete these files at its next start.
    void pendingRenames(const std::string& bytes);

    SimWorkstation pc;
    std::unique_ptr<Application> app;
};

} // namespace tarvelon
