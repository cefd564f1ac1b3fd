#pragma once

#include "core/services.h"
#include "integrity/comparison.h"
#include "integrity/passes.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tarvelon {

struct IntCheckScreen;
class BaselineBuilder;
class Checksum;
class DataFile;

/// What a scan calls above itself.
struct IntCheckHooks {
    std::function<void()> resultAction;   ///< Hands the findings over and accepts them (`Label12`).
    std::function<void()> preShut2;       ///< A scan inside a shut-down is over.
    std::function<void()> showMainWindow; ///< The primary full scan is over.
};

/// The scan window's behaviour: plans a scan, runs its passes folder by folder, shows the results, and
/// leaves.
class IntCheck : Services {
public:
    IntCheck(IntCheckScreen& screen, const Services& services, Checksum& checksum, DataFile& dataFile,
             BaselineBuilder& baselineBuilder, Comparison& comparison);

    IntCheckHooks hooks;

    /// Plans the scan by the run's flags and starts it on `Timer1`; returns before it runs. Throws `Failure`
    /// when the settings cannot be read.
    void LoadUp();

    /// A scan is being planned, is planned, or is under way.
    bool runs() const;

    /// The leave action: asks what there is to ask, then ends the program or goes back to the main window.
    void Command1_Click();

    /// Runs one pass over the current folder.
    void IntegrityChecker2(const std::string& ext1, const std::string& ext2,
                           const std::string& dataFile = "");

private:
    struct Plan;

    struct Busy {
        explicit Busy(int& count)
            : count_(count) {
            ++count_;
        }
        Busy(const Busy&) = delete;
        ~Busy() { --count_; }
        int& count_;
    };

    void bind();
    void resetCaptions();
    void setPaused(bool paused);

    void resetRun();
    void wantTypesOfRun();
    void countFolder(Plan& plan);
    bool joinNextFolder(Plan& plan);
    std::string savedTypes() const;
    void wantFrom(const std::string& list);
    void wantFromWithAutoScan(const std::string& list);

    void scanFolders();
    void runPasses();
    bool takeNextCustomFolder(int& turn, std::size_t& folders);
    void finish();
    void showOutcome();
    void showFindings();

    void showFailedFiles();
    bool queryClose();
    bool confirmLeave();

    IntCheckScreen& screen_;
    Checksum& checksum_;
    DataFile& dataFile_;
    BaselineBuilder& baselineBuilder_;
    Comparison& comparison_;

    PlannedFiles planned_;
    int busy_ = 0;       ///< Plans and scans on the stack; one can run inside another.
    std::string extList; ///< The wanted extensions of the folder being counted, one behind the other.
};

} // namespace tarvelon
