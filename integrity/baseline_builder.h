#pragma once

#include "core/services.h"

#include <functional>
#include <string>

namespace tarvelon {

class ComboBox;
class DataFile;
class Screen;

/// How the baseline build reaches the scan window, which stands above it.
struct BaselineBuilderHooks {
    std::function<void()> showScan;  ///< Makes the scan window visible.
    std::function<void()> leaveScan; ///< Its leave action, which clears an earlier scan.
    std::function<void()> loadUp;    ///< Plans a scan and starts it.
};

/// Makes sure that baselines exist: lists a folder into a data file without checksums, and starts the scan
/// that fills them in.
class BaselineBuilder : Services {
public:
    BaselineBuilder(const Services& services, DataFile& dataFile, Screen& mainWindow,
                    const ComboBox& folders);

    BaselineBuilderHooks hooks;

    /// Sees to the system baseline: restores the backup, or on the user's word lists the system directory and
    /// starts the primary full scan. Throws `Failure` when a file cannot be made or restored.
    void checkIntFile();

    /// Does the same for a custom folder; `number` is its slot. False when the user refuses the scan; no file
    /// has been made then. In a run without questions, and while findings are
    /// accepted, the file stays blank and no scan is started here.
    bool buildCustomDat(std::string folder, const std::string& datFile, const std::string& number);

private:
    void restoreOrRestart(const std::string& backup);
    void buildPrimary();

    DataFile& dataFile_;
    Screen& mainWindow_;
    const ComboBox& folders_; ///< What the user picks a folder from.
};

} // namespace tarvelon
