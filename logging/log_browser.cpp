#include "logging/log_browser.h"

#include "avshell/scanner.h"
#include "core/failure.h"
#include "core/file_text.h"
#include "core/func_mod.h"
#include "core/globals.h"
#include "core/other_page.h"
#include "core/settings_file.h"
#include "logging/log_controls.h"
#include "logging/report_name.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/messages.h"
#include "platform/platform.h"

#include <algorithm>
#include <vector>

namespace tarvelon {

namespace {

constexpr int deleteKey = 46;

bool isReport(const TextRules& texts, const std::string& name) {
    return texts.equal(lastCharacters(name, 4), ".LOG");
}

} // namespace

LogBrowser::LogBrowser(LogControls& screen, NavButton& options, const Services& services,
                       const Scanner& scanner)
    : Services(services)
    , screen_(screen)
    , options_(options)
    , scanner_(scanner) {
    bind();
}

void LogBrowser::bind() {
    Tree& tree = screen_.TreeView2;
    tree.onNodeClick = [this] {
        screen_.cViewReport.Enabled = screen_.TreeView2.selected()->text.find('-') == std::string::npos;
    };
    tree.onExpandOrCollapse = [this] { screen_.cViewReport.Enabled = false; };
    tree.onDoubleClick = [this] {
        const Tree::Node* node = screen_.TreeView2.selected();
        if (node && node->parent && !node->text.empty()) {
            open();
        }
    };
    tree.onKeyDown = [this](int keyCode) { keyInTree(keyCode); };
    screen_.cReports.onClick = [this] { load(); };
    screen_.cViewReport.onClick = [this] { open(); };
    screen_.cButton3.onClick = [this] { deleteAll(); };
    screen_.cScnLog.onClick = [this] { scan(); };
    screen_.cDelLog.onClick = [this] { deleteShown(); };
    screen_.cX.onClick = [this] { backToTree(); };
}

// ---- The tree

void LogBrowser::load() {
    screen_.TreeView2.clear();
    Files& files = platform.files;
    std::vector<std::string> names;
    for (std::string name = files.firstName(globals.app.logFolder()); !name.empty();
         name = files.nextName()) {
        if (name != "." && name != ".." && isReport(globals.texts, name)) {
            names.push_back(name);
        }
    }
    for (const std::string& name : names) {
        platform.messages.pump();
        addReport(name);
        platform.messages.pump();
    }
}

/// A name without a "(" is none of our reports and stays out of the tree.
void LogBrowser::addReport(const std::string& fileName) {
    const std::size_t open = fileName.find('(');
    if (open == std::string::npos) {
        return;
    }
    const std::string date = reportDate(fileName.substr(0, open));
    const std::string time = reportTimeShown(globals.texts, getBetween(globals.texts, fileName, 1, "(", ")"));
    screen_.TreeView2.addRoot(date, date);
    // The date belongs to the key: two reports of different days may bear the same time.
    screen_.TreeView2.addChild(date, date + "|" + time, time);
}

// ---- One report

void LogBrowser::open() {
    screen_.List4.clear();
    const Tree::Node* node = screen_.TreeView2.selected();
    if (!node || node->text.empty()) {
        return;
    }
    screen_.Label26.Visible = true;
    const std::string path = fileOf(*node);
    if (!funcMod.fileThere(path)) {
        platform.dialogs.message({.text = "Error - This report does not exist and could not be opened."});
        return;
    }
    const auto text = readWholeFile(platform.files, path);
    if (!text) {
        return;
    }
    fillReport(trim(fromEitherPage(platform, *text)));
    screen_.Label26.Visible = false;
    norms2();
    options_.Current = true;
    screen_.repF.Visible = true;
}

/// Two commas in a row end the list, whatever stands behind them.
void LogBrowser::fillReport(std::string text) {
    text = globals.texts.replaceAll(text, lineEnd, ",");
    if (text.empty() || text.back() != ',') {
        text += ',';
    }
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t comma = text.find(',', from);
        const std::string piece = trim(std::string_view(text).substr(from, comma - from));
        if (piece.empty()) {
            return;
        }
        screen_.List4.add(piece);
        from = comma + 1;
        platform.messages.pump();
    }
}

void LogBrowser::scan() {
    const ScannerPair scanners = ScannerPair::stored(settings);
    try {
        scanner_.batch(
            1, screen_.List4.count() - 1, [this](int row) { return screen_.List4.item(row); },
            [&](const std::vector<std::string>& items) {
                scanner_.startBoth(scanners, items);
                return true;
            });
    } catch (const Failure&) {
        platform.dialogs.message({.text = couldNotBeExecuted(scanners.first.exe)});
        return;
    }
    platform.dialogs.message({.text = "Anti-Virus program executed successfully!"});
}

// ---- Deleting

void LogBrowser::deleteShown() {
    if (!confirms("Are you sure you want to delete this Report?")) {
        return;
    }
    if (const Tree::Node* node = screen_.TreeView2.selected()) {
        platform.files.remove(fileOf(*node));
    }
    backToTree();
    load();
}

void LogBrowser::deleteAll() {
    if (!confirms("Are you sure you want to delete all the logs?")) {
        return;
    }
    Files& files = platform.files;
    std::vector<std::string> names;
    for (std::string name = files.firstName(globals.app.logFolder()); !name.empty();
         name = files.nextName()) {
        names.push_back(name);
    }
    for (const std::string& name : names) {
        platform.messages.pump();
        if (isReport(globals.texts, name)) {
            files.remove(globals.app.logFolder() + name);
        }
        platform.messages.pump();
    }
    screen_.TreeView2.clear();
}

/// Every key builds the tree anew; only a refused deletion leaves it alone.
void LogBrowser::keyInTree(int keyCode) {
    const Tree::Node* node = screen_.TreeView2.selected();
    if (!node || node->text.empty()) {
        return;
    }
    if (keyCode == deleteKey && !(node->parent ? deleteEntry(*node) : deleteDate(*node))) {
        return;
    }
    load();
}

/// The entries are those that were made right behind the date, as many as it has.
bool LogBrowser::deleteDate(const Tree::Node& root) {
    if (!confirms("Delete All Logs on this (" + root.text + ") Date?")) {
        return false;
    }
    const auto& nodes = screen_.TreeView2.nodes();
    const auto place =
        std::find_if(nodes.begin(), nodes.end(), [&](const Tree::Node& node) { return &node == &root; });
    const auto children = std::count_if(nodes.begin(), nodes.end(),
                                        [&](const Tree::Node& node) { return node.parent == &root; });
    for (auto i = 1; i <= children && nodes.end() - place > i; ++i) {
        platform.files.remove(fileOf(*(place + i)));
    }
    return true;
}

bool LogBrowser::deleteEntry(const Tree::Node& node) {
    if (!confirms("Delete Log Entry?")) {
        return false;
    }
    platform.files.remove(fileOf(node));
    return true;
}

void LogBrowser::backToTree() {
    norms2();
    options_.Current = true;
    screen_.optionsPage.Visible = true;
}

bool LogBrowser::confirms(const std::string& question) const {
    return platform.dialogs.message({.text = question, .buttons = Buttons::YesNo, .destroys = true}) ==
           Answer::Yes;
}

std::string LogBrowser::fileOf(const Tree::Node& node) const {
    const std::string date = node.parent ? node.parent->text : std::string();
    return globals.app.logFolder() + date + "(" + reportTimeStored(globals.texts, node.text) + ").log";
}

} // namespace tarvelon
