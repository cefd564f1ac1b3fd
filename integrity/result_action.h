#pragma once

#include "core/globals.h"
#include "core/services.h"

#include <array>
#include <functional>
#include <string>

namespace tarvelon {

struct IntCheckScreen;
class Checksum;
class DataFile;
class LogFiles;
class Scanner;
class SearchIndex;

/// What the result action calls beside itself.
struct ResultActionHooks {
    std::function<void()> leaveScan; ///< The scan window's leave action.
    /// Runs an action and keeps the user meanwhile from all that would load another baseline, change folders
    /// or the algorithm, or leave.
    std::function<void(const std::function<void()>&)> undisturbed;
};

/// What becomes of a scan's findings: they go to the scanners and into a report, and their present state is
/// then the baseline.
class ResultAction : Services {
public:
    ResultAction(IntCheckScreen& screen, const Services& services, Checksum& checksum, DataFile& dataFile,
                 const Scanner& scanner, LogFiles& logFiles);

    ResultActionHooks hooks;

    /// The action, by click or by itself at the end of a scan. A scanner that cannot be started ends it with
    /// a message; nothing is logged or accepted then, and it can be tried again. It is not entered a second
    /// time while it runs.
    void act();

    /// Accepts every listed finding into the baseline it belongs to and saves the baselines. Failures are
    /// passed over, but false when a baseline could not be saved: the user has been told, and the findings
    /// stay listed.
    bool UpdateDatFile();

    /// Accepts what is pending for a custom folder's slot, 1 to 20, and saves its baseline, the old file as
    /// its backup. Throws `Failure` when the baseline cannot be loaded or saved.
    void SpecialSave(int slot);

private:
    enum class Handed { All, FirstBatchOnly };

    void handOverAndAccept();
    bool handOver();
    Handed startScanners(bool noScanner, std::string& all);
    void acceptFindings();
    std::string systemValue(const SearchIndex& copy, const std::string& item) const;
    void queueForCustom(const SearchIndex& copy, const std::string& item);

    IntCheckScreen& screen_;
    Checksum& checksum_;
    DataFile& dataFile_;
    const Scanner& scanner_;
    LogFiles& logFiles_;

    /// Pending entries of each slot: path, "(slot) ", checksum, comma. Empty between updates.
    std::array<std::string, folderSlots> passFolderList;
};

} // namespace tarvelon
