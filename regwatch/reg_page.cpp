#include "regwatch/reg_page.h"

#include "avshell/scanner.h"
#include "core/failure.h"
#include "core/func_mod.h"
#include "core/globals.h"
#include "core/settings_file.h"
#include "logging/log_files.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/processes.h"
#include "regwatch/detection.h"
#include "regwatch/file_path.h"
#include "regwatch/pending_files.h"
#include "regwatch/reg_class.h"
#include "regwatch/reg_page_controls.h"

#include <algorithm>

namespace tarvelon {

namespace {

constexpr const char* scanOne = "Scan File for Viruses";
constexpr const char* scanAll = "Scan all Files for Viruses";
constexpr const char* deletedMark = " {To be Deleted}";
constexpr const char* overwrittenMark = " {To be Overwritten}";
constexpr std::string_view rowEnd = ") ";

std::string before(const std::string& text, char mark) {
    return text.substr(0, text.find(mark));
}

} // namespace

RegPage::RegPage(RegPageControls& screen, const Services& services, const Scanner& scanner,
                 LogFiles& logFiles, Detection& detection)
    : Services(services)
    , screen_(screen)
    , scanner_(scanner)
    , logFiles_(logFiles)
    , detection_(detection) {
    bind();
}

void RegPage::bind() {
    screen_.Command1.onClick = [this] { refresh(); };
    screen_.Command3.onClick = [this] { deleteSelected(); };
    screen_.Command11.onClick = [this] { scanSelected(); };
    screen_.cScnUpd.onClick = [this] { scanAndUpdate(); };
    screen_.cMod.onClick = [this] { showPending(); };
    screen_.List5.onClick = [this] { selectWarning(); };
    screen_.List6.onClick = [this] { selectPending(); };
    screen_.TreeView1.onNodeClick = [this] { selectNode(); };
    screen_.TreeView1.onExpandOrCollapse = [this] { enableEntryButtons(false); };
}

void RegPage::opened() {
    screen_.cScnUpd.Enabled = false;
    enableEntryButtons(false);
}

void RegPage::enableEntryButtons(bool enabled) {
    screen_.Command3.Enabled = enabled;
    screen_.Command11.Enabled = enabled;
}

void RegPage::refresh() {
    screen_.Command11.Caption = scanOne;
    screen_.TreeView1.Visible = true;
    screen_.List6.Visible = false;
    detection_.setReg();
}

// ---- Selection

void RegPage::selectWarning() {
    const int index = screen_.List5.listIndex();
    const bool entry = screen_.List5.item(1) != RegPageControls::noWarnings && index > 0;
    enableEntryButtons(entry);
    if (!entry) {
        return;
    }
    std::string row = screen_.List5.item(index);
    selEntry = before(row, '\\');
    // A value that was cut at a zero has lost its ")"; with one at the end of every row the search below
    // finds an end. The row keeps it.
    if (lastCharacters(row, rowEnd.size()) != rowEnd) {
        row += rowEnd;
        screen_.List5.replace(index, row);
    }
    screen_.Text4.Caption = getBetween(globals.texts, row, selEntry.size(), "\\", rowEnd) + ")";
    screen_.Label19.Caption = screen_.Text4.Caption();
    screen_.List5.ToolTip = row;
}

void RegPage::selectNode() {
    const Tree::Node* node = screen_.TreeView1.selected();
    const std::string parent = node && node->parent ? node->parent->text : std::string();
    const bool entry = node && !parent.empty() && parent.substr(0, 4) != "HKEY";
    enableEntryButtons(entry);
    if (!entry) {
        return;
    }
    screen_.Label19.Caption = node->text;
    screen_.Text4.Caption = node->text;
    const std::string path = globals.texts.withBackslash(Tree::fullPath(*node));
    selEntry = before(path, '\\') + "|" + getBetween(globals.texts, path, 1, "\\", "\\");
}

void RegPage::selectPending() {
    // No row has these words: the list's heading reads otherwise, and is taken like any row.
    const bool selected = screen_.List6.listIndex() >= 0;
    if (selected &&
        screen_.List6.text() != "The Following Files are to be Deleted or Overwritten on the next Reboot.") {
        screen_.Text4.Caption = screen_.List6.text();
    }
}

// ---- Deleting

void RegPage::deleteSelected() {
    const std::string root = before(selEntry, '|');
    const std::string location = selEntry.substr(std::min(selEntry.size(), root.size() + 1));
    if (location.substr(0, 1) == "S") {
        offerRegistryEditor();
    } else {
        deleteValue(root, location);
    }
}

void RegPage::deleteValue(const std::string& root, const std::string& location) {
    const std::string name = trim(before(screen_.Label19.Caption(), '('));
    const std::string path = R"(Software\Microsoft\Windows\CurrentVersion\)" +
                             getBetween(globals.texts, location + "|", 1, "in ", "|");
    const Answer answer = platform.dialogs.message(
        {.text = "WARNING!\r\nYou are about to Delete the key: " + name + "\r\nFrom: " + root + "\\" + path +
                 "\r\nDoing this may have unpredictable results!\r\n\r\nContinue?",
         .buttons = Buttons::YesNo,
         .destroys = true});
    if (answer == Answer::No) {
        return;
    }
    {
        RegClass key(platform.registry);
        if (root == "HKEY_LOCAL_MACHINE") {
            key.OpenRegistry(Registry::localMachine, path);
        } else if (root == "HKEY_CURRENT_USER") {
            key.OpenRegistry(Registry::currentUser, path);
        }
        key.DeleteKey(name);
        key.CloseRegistry();
    }
    screen_.Text4.Caption = "";
    screen_.Command3.Enabled = false;
    refresh(); // Whether the value has gone shows in the lists.
}

void RegPage::offerRegistryEditor() {
    const Answer answer =
        platform.dialogs.message({.text = "This key will not be deleted.\r\nYou must change the value "
                                          "manually. Would you like to open the "
                                          "Registry for Editing now?",
                                  .title = "Caution",
                                  .buttons = Buttons::YesNo});
    if (answer != Answer::No) {
        platform.processes.start("regedit.exe", "", WindowStyle::MinimizedFocus);
    }
}

// ---- Scanning and accepting

void RegPage::scanSelected() {
    if (screen_.Command11.Caption() == scanAll) {
        scanAndUpdate();
        return;
    }
    const CutPath cut = cutToFilePath(globals.texts, screen_.Label19.Caption(), funcMod);
    if (!cut.path) {
        platform.dialogs.message({.text = "Cannot find file, please scan manually"});
        return;
    }
    std::string path = *cut.path;
    if (path.find('"') == std::string::npos) {
        path = scanner_.quoted(scanner_.shortened(path));
    }
    runBoth({path});
}

void RegPage::scanAndUpdate() {
    const bool pending = screen_.List6.Visible();
    const ListBox& source = pending ? screen_.List6 : screen_.List5;
    if (source.count() == 1) {
        return;
    }
    std::vector<std::string> files;
    for (int row = 1; row < source.count(); ++row) {
        files.push_back(" " + fileOfRow(rowToScan(row)));
    }
    if (!runBoth(files)) {
        refuseToAccept();
        return;
    }
    globals.regWatch.regNew = true;
    detection_.setReg();
    passOver([&] {
        logFiles_.writeLog(
            (pending ? "Precautionary Scan - These files were to be renamed/deleted/overwritten at startup,"
                     : "Registry Action - Scan and Update Multiple Entries,") +
            joined(files));
    });
    globals.regWatch.regNew = false;
}

/// The rows stay as they are. In a shut-down nobody is asked, but the end must not say that all is clean.
void RegPage::refuseToAccept() {
    if (globals.app.inShutDown()) {
        globals.shutDown.scanLogged = 1;
        return;
    }
    std::string exe;
    passOver([&] { exe = ScannerPair::stored(settings).first.exe; });
    platform.dialogs.message({.text = couldNotBeExecuted(exe)});
}

/// The row in the form that is scanned, which it also takes on the screen.
std::string RegPage::rowToScan(int row) {
    const bool pending = screen_.List6.Visible();
    ListBox& source = pending ? screen_.List6 : screen_.List5;
    std::string text = source.item(row);
    if (pending) {
        text = replaceExact(replaceExact(text, deletedMark, ""), overwrittenMark, "");
    } else if (lastCharacters(text, rowEnd.size()) != rowEnd) {
        text += rowEnd;
    }
    source.replace(row, text);
    return text;
}

/// The row's file as it stands on a command line; empty when it cannot be found.
std::string RegPage::fileOfRow(const std::string& row) {
    const CutPath cut = cutToFilePath(globals.texts, row, funcMod);
    if (!cut.path && !globals.app.inShutDown()) {
        platform.dialogs.message(
            {.text = "Unable to find the file: " + cut.text + "\r\nPlease scan manually."});
    }
    const std::string path = scanner_.shortened(replaceExact(cut.path.value_or(std::string()), "\"", ""));
    return path.empty() ? path : scanner_.quoted(path);
}

/// A scanner that is not there goes unnoticed. False when one that is there did not get all of the files.
bool RegPage::runBoth(const std::vector<std::string>& files) const {
    bool handedOver = false;
    passOver([&] {
        const ScannerPair scanners = ScannerPair::stored(settings);
        handedOver = true;
        for (const std::string& list : scanner_.lists(scanners, files)) {
            handedOver &= run(scanners.first, list);
            handedOver &= !scanners.second.isSet() || run(scanners.second, list);
        }
    });
    return handedOver;
}

bool RegPage::run(const ScannerCommand& scanner, const std::string& list) const {
    bool started = false;
    passOver([&] {
        scanner_.runScanner(scanner.exe, scanner.arguments(list));
        started = true;
    });
    return started || !funcMod.fileThere(scanner.exe);
}

// ---- Pending boot operations

void RegPage::showPending() {
    enableEntryButtons(false);
    screen_.cScnUpd.Enabled = false;
    screen_.Command11.Caption = scanAll;
    screen_.TreeView1.Visible = false;
    screen_.List6.Visible = true;
    screen_.List6.clear();
    screen_.List6.add(
        "These files are to be Deleted or Overwritten on the next Reboot (Wininit.ini and Registry).");
    for (const PendingFile& entry : wininitEntries(globals.texts, platform, funcMod)) {
        screen_.List6.add(entry.file + (entry.toBeDeleted ? deletedMark : overwrittenMark));
    }
    for (const auto& file : pendingRenames(globals.texts, platform)) {
        if (file) {
            screen_.List6.add(*file);
        }
    }
    if (screen_.List6.count() >= 2) {
        screen_.Command11.Enabled = true;
    } else {
        platform.dialogs.message({.text = "No files will be modified or deleted on Restart!"});
    }
}

} // namespace tarvelon
