#include "integrity/baseline_builder.h"

#include "core/failure.h"
#include "core/file_text.h"
#include "core/func_mod.h"
#include "core/globals.h"
#include "integrity/data_file.h"
#include "integrity/restart.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/messages.h"
#include "platform/platform.h"
#include "ui/controls/lists.h"

#include <array>
#include <optional>
#include <vector>

namespace tarvelon {

namespace {

using SectionLists = std::array<std::vector<std::string>, sectionCount>;

/// The section of a file by its last four characters, from 0.
std::optional<std::size_t> sectionOf(const TextRules& texts, const std::string& name) {
    for (std::size_t n = 0; n < sectionCount; ++n) {
        if (texts.equal(lastCharacters(name, 4), std::string(".") + sectionNames[n])) {
            return n;
        }
    }
    return std::nullopt;
}

/// Names of the matching files directly in the folder; a folder with such a name counts as a file.
SectionLists walk(Globals& globals, Platform& platform, const std::string& folder) {
    SectionLists lists;
    for (std::string name = platform.files.firstName(folder); !name.empty();
         name = platform.files.nextName()) {
        if (name == "." || name == "..") {
            continue;
        }
        if (const auto section = sectionOf(globals.texts, name)) {
            lists[*section].push_back(name);
        }
        platform.messages.pump();
    }
    return lists;
}

std::string blankText(const SectionLists& lists) {
    std::string text = std::string(dataFileHeader) + "\r\n";
    for (std::size_t n = 0; n < sectionCount; ++n) {
        text.append("[").append(sectionNames[n]).append("]\r\n");
        for (const std::string& name : lists[n]) {
            // A comma in a name breaks it into two entries; the scan then reports the whole name as new.
            for (const std::string& part : split(name, ',')) {
                text.append(part).append("=NULL*E\r\n");
            }
        }
        text.append("NULL*E\r\n");
    }
    return text;
}

/// Makes a baseline without entries. It has its section heads from the first moment: should the program be
/// killed during the walk, all files are found as new and can be accepted into it.
void makeEmpty(Files& files, const std::string& path) {
    if (!writeWholeFile(files, path, blankText({}))) {
        throw Failure("The data file cannot be made:\r\n" + path);
    }
}

/// Fills a file in that was made empty for the walk. It goes when that fails: a file that stands counts as
/// scanned, and the next start would not ask for the scan.
void writeBlank(Files& files, const std::string& path, const SectionLists& lists) {
    if (!writeWholeFile(files, path, blankText(lists))) {
        files.remove(path);
        throw Failure("The data file cannot be written:\r\n" + path);
    }
}

} // namespace

BaselineBuilder::BaselineBuilder(const Services& services, DataFile& dataFile, Screen& mainWindow,
                                 const ComboBox& folders)
    : Services(services)
    , dataFile_(dataFile)
    , mainWindow_(mainWindow)
    , folders_(folders) {}

void BaselineBuilder::checkIntFile() {
    if (!platform.files.open(globals.app.intFile, OpenMode::Read)) {
        const std::string backup = backupOf(globals.app.intFile);
        if (funcMod.fileThere(backup)) {
            restoreOrRestart(backup);
            return;
        }
        const Answer answer = platform.dialogs.message(
            {.text =
                 "This is your first time using Tarvelon.  Tarvelon is required to do a system file "
                 "Integrity scan before proceeding.\r\n"
                 "If you are sure there are no viruses on your computer, it is safe to scan now. Otherwise, "
                 "please do a full scan at a later time. The full scan should take no more than five "
                 "minutes to complete.\r\n\r\n"
                 "Perform scan now?",
             .buttons = Buttons::YesNo});
        if (answer != Answer::Yes) {
            platform.dialogs.message(
                {.text = "You have chosen not to do a full scan at this time.  You need to run the full scan "
                         "before using the Integrity Checker."});
            return;
        }
        buildPrimary();
    }
    mainWindow_.Caption = "Welcome to Tarvelon";
}

void BaselineBuilder::restoreOrRestart(const std::string& backup) {
    const Answer answer = platform.dialogs.message(
        {.text = "Your Integrity.dat file cannot be found! But the backup file was located!\r\n"
                 "Would you like to restore the backup?",
         .title = "Missing Integrity.dat file",
         .buttons = Buttons::YesNo});
    if (answer == Answer::Yes) {
        if (!copyWholeFile(platform.files, backup, globals.app.intFile)) {
            throw Failure("The backup cannot be restored to:\r\n" + globals.app.intFile);
        }
        return;
    }
    restartWithoutBackup(globals, platform, backup);
}

void BaselineBuilder::buildPrimary() {
    globals.baselines.primaryBuild = true;
    const std::string& path = globals.app.intFile;
    makeEmpty(platform.files, path);
    mainWindow_.Caption = "Building Integrity File...";
    platform.messages.pump();
    const SectionLists lists = walk(globals, platform, trim(funcMod.getSysDir()));
    mainWindow_.Caption = "Saving...";
    platform.messages.pump();
    writeBlank(platform.files, path, lists);
    mainWindow_.hide();
    globals.baselines.primaryScan = true;
    hooks.showScan();
    hooks.loadUp();
}

bool BaselineBuilder::buildCustomDat(std::string folder, const std::string& datFile, const std::string&) {
    // While findings are accepted no scan starts either; they go into the blank file.
    const bool blankOnly = globals.app.autoLoadRun || globals.scan.accepting;
    if (!blankOnly) {
        const Answer answer = platform.dialogs.message(
            {.text = "This Custom Folder " + folder +
                     " has not been fully scanned yet. The scan is required by the Integrity Checker.\r\n\r\n"
                     "Perform scan now?",
             .buttons = Buttons::YesNo});
        if (answer != Answer::Yes) {
            platform.dialogs.message(
                {.text = "You have chosen not to scan this Custom Folder.  You need to run the scan before "
                         "using this Custom Folder Integrity Checker."});
            return false;
        }
    }
    makeEmpty(platform.files, datFile);
    folder = globals.texts.withBackslash(std::move(folder));
    writeBlank(platform.files, datFile, walk(globals, platform, folder));
    if (blankOnly) {
        return true;
    }

    ScanRun& scan = globals.scan;
    scan.pageScan = true;
    scan.noAutoAction = true;
    hooks.leaveScan();
    dataFile_.loadCustomDat(datFile);
    scan.want(true);
    scan.customIndex = static_cast<std::int16_t>(folders_.listIndex());
    scan.customFirstScan = true;
    scan.pageScan = true;
    scan.customFolder = folder;
    hooks.loadUp();
    return true;
}

} // namespace tarvelon
