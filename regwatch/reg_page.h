#pragma once

#include "core/services.h"

#include <string>
#include <vector>

namespace tarvelon {

struct RegPageControls;
struct ScannerCommand;
class Detection;
class LogFiles;
class Scanner;

/// The page of the watched registry locations: selecting, deleting, scanning and accepting entries, and the
/// view of what is pending for the next boot.
class RegPage : Services {
public:
    RegPage(RegPageControls& screen, const Services& services, const Scanner& scanner, LogFiles& logFiles,
            Detection& detection);

    /// The page comes to light: its lists are as they were left, and nothing can be acted on yet.
    void opened();

    /// Hands the files behind all rows of the shown list to the scanners, and accepts the registry as it
    /// stands; what could not be handed over to a scanner that is there is told, and nothing is accepted
    /// then. Also called by the shut-down, which asks and tells nothing.
    void scanAndUpdate();

private:
    void bind();
    void refresh();
    void selectWarning();
    void selectNode();
    void selectPending();
    void deleteSelected();
    void deleteValue(const std::string& root, const std::string& location);
    void offerRegistryEditor();
    void scanSelected();
    void showPending();
    std::string rowToScan(int row);
    std::string fileOfRow(const std::string& row);
    bool runBoth(const std::vector<std::string>& files) const;
    bool run(const ScannerCommand& scanner, const std::string& list) const;
    void refuseToAccept();
    void enableEntryButtons(bool enabled);

    RegPageControls& screen_;
    const Scanner& scanner_;
    LogFiles& logFiles_;
    Detection& detection_;
    std::string selEntry; ///< The selection: root, "|", label of the location.
};

} // namespace tarvelon
