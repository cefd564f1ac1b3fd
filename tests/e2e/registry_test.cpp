// The watched registry locations and what is pending for the next boot, as another program changes them.

#include "driver.h"
#include "planted_value.h"
#include "recorder.h"
#include "tree_view.h"
#include "workplace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace e2e {
namespace {

using Rows = std::vector<std::string>;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::StartsWith;

const std::string version = R"(Software\Microsoft\Windows\CurrentVersion\)";
const std::string run = version + "Run";
const std::string runOnce = version + "RunOnce";
const std::string pifCommand = R"(Software\Classes\piffile\shell\open\command)";
const std::string local = "HKEY_LOCAL_MACHINE";
const std::string user = "HKEY_CURRENT_USER";
const std::string classes = "HKEY_CLASSES_ROOT";

constexpr const char* heading = "New and Modified Registry Entry Warnings";
constexpr const char* noWarnings = "*No new or modified Registry Entries*";
constexpr const char* pendingHeading =
    "These files are to be Deleted or Overwritten on the next Reboot (Wininit.ini and Registry).";
constexpr const char* scanOne = "Scan File for Viruses";
constexpr const char* scanWarnings = "Scan & Update Warnings";
constexpr const char* showPending = "Check for modifications/deletions on reboot";

/// The sections of the snapshot in their order, and the keys that they stand for.
const struct {
    const char* name;
    HKEY root;
    std::string key;
} sections[] = {
    {"LM/R", HKEY_LOCAL_MACHINE, run},
    {"LM/RO", HKEY_LOCAL_MACHINE, runOnce},
    {"LM/ROX", HKEY_LOCAL_MACHINE, version + "RunOnceEx"},
    {"LM/RS", HKEY_LOCAL_MACHINE, version + "RunServices"},
    {"LM/RSO", HKEY_LOCAL_MACHINE, version + "RunServicesOnce"},
    {"LM/SE", HKEY_LOCAL_MACHINE, R"(Software\Classes\exefile\shell\open\command)"},
    {"LM/SC", HKEY_LOCAL_MACHINE, R"(Software\Classes\comfile\shell\open\command)"},
    {"LM/SB", HKEY_LOCAL_MACHINE, R"(Software\Classes\batfile\shell\open\command)"},
    {"LM/SH", HKEY_LOCAL_MACHINE, R"(Software\Classes\htafile\shell\open\command)"},
    {"LM/SP", HKEY_LOCAL_MACHINE, pifCommand},
    {"CU/R", HKEY_CURRENT_USER, run},
    {"CU/RO", HKEY_CURRENT_USER, runOnce},
    {"CR/SE", HKEY_CLASSES_ROOT, R"(exefile\shell\open\command)"},
    {"CR/SC", HKEY_CLASSES_ROOT, R"(comfile\shell\open\command)"},
    {"CR/SB", HKEY_CLASSES_ROOT, R"(batfile\shell\open\command)"},
    {"CR/SH", HKEY_CLASSES_ROOT, R"(htafile\shell\open\command)"},
    {"CR/SP", HKEY_CLASSES_ROOT, R"(piffile\shell\open\command)"},
};

/// The lines of the texts that a key holds, by the system's own tools. Nothing else stands in these keys.
std::string linesOf(HKEY root, const std::string& path) {
    std::string lines;
    HKEY key = nullptr;
    if (RegOpenKeyExA(root, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) {
        return lines;
    }
    char name[256] = {};
    char data[256] = {};
    DWORD nameSize = sizeof name;
    DWORD size = sizeof data;
    DWORD type = 0;
    for (DWORD index = 0; RegEnumValueA(key, index, name, &nameSize, nullptr, &type,
                                        reinterpret_cast<BYTE*>(data), &size) == ERROR_SUCCESS;
         ++index, nameSize = sizeof name, size = sizeof data) {
        EXPECT_EQ(type, static_cast<DWORD>(REG_SZ)) << path << "\\" << name;
        EXPECT_STRNE(name, "") << path << " holds " << data;
        lines += std::string(name) + "= (" + data + ")\r\n";
    }
    RegCloseKey(key);
    return lines;
}

class RegistryWatch : public testing::Test {
protected:
    using Lines = std::map<std::string, std::string>;

    RegistryWatch() {
        folder_.writeData("Integrity.dat", systemBaseline());
        folder_.writeSettings({{"settings", "0,0,0,0,0,0,0,1"},
                               {"antivirus", first_.path() + "| /scan "},
                               {"av2", second_.path() + "| "},
                               {"antivirus2", "1,0,0"}});
        // A usual command leaves no line.
        for (const auto& [name, root, key] : sections) {
            if (key.find("command") == std::string::npos) {
                own_[name] = linesOf(root, key);
            }
        }
    }

    /// The whole snapshot with these lines behind those of the system itself.
    std::string snapshot(const Lines& lines) const {
        std::string text;
        for (const auto& section : sections) {
            const auto own = own_.find(section.name);
            const auto more = lines.find(section.name);
            text += std::string("[") + section.name + "]\r\n";
            text += (own == own_.end() ? "" : own->second) + (more == lines.end() ? "" : more->second);
            text += "\r\n";
        }
        return text;
    }

    std::string recorded() const { return folder_.data("Registry.dat").value_or("no snapshot"); }

    static Form openPage(const Program& program) {
        const Form window = program.form("Welcome to Tarvelon");
        window.click("RegWatch");
        window.awaitText("Refresh");
        return window;
    }

    static Rows warnings(const Rows& rows) {
        Rows all{heading};
        all.insert(all.end(), rows.begin(), rows.end());
        return all;
    }

    static void awaitRows(const Form& window, const Rows& rows) {
        comesTrue([&] { return window.rows() == rows; }, Milliseconds(10'000));
        EXPECT_EQ(window.rows(), rows);
    }

    static void refresh(const Form& window, const Rows& expected) {
        window.click("Refresh");
        awaitRows(window, warnings(expected));
    }

    /// Waits for the selection that frees the buttons, or takes them away.
    static void awaitButtons(const Form& window, bool enabled) {
        EXPECT_TRUE(comesTrue(
            [&] { return window.isEnabled("Delete Key") == enabled && window.isEnabled(scanOne) == enabled; },
            Milliseconds(10'000)))
            << "not " << (enabled ? "enabled" : "disabled");
    }

    static HTREEITEM location(const TreeView& tree, const std::string& root, const std::string& label) {
        HTREEITEM item = tree.root();
        while (item != nullptr && tree.textOf(item) != root) {
            item = tree.next(TVGN_NEXT, item);
        }
        HTREEITEM const found = item == nullptr ? nullptr : tree.child(item, label, Milliseconds(0));
        if (found == nullptr) {
            throw NotSeen("no " + root + "\\" + label + " in the tree");
        }
        tree.open(item);
        tree.open(found);
        return found;
    }

    /// Selects the value's node. Nodes are opened first: doing that takes a selection's buttons away.
    static void selectNode(const Form& window, const std::string& root, const std::string& label,
                           const std::string& text) {
        const TreeView tree(window.tree());
        HTREEITEM const parent = location(tree, root, label);
        HTREEITEM const node = tree.child(parent, text, Milliseconds(0));
        ASSERT_NE(node, nullptr) << text << " is not among" << tree.describe(parent);
        tree.select(node);
        EXPECT_EQ(window.field(), text);
        awaitButtons(window, true);
    }

    static std::string deletionQuestion(const std::string& name, const std::string& key) {
        return "WARNING!\nYou are about to Delete the key: " + name + "\nFrom: " + key +
               "\nDoing this may have unpredictable results!\n\nContinue?";
    }

    /// The last of that many runs of both scanners.
    void expectRun(std::size_t count, const std::string& files) const {
        const Rows first = first_.records(count);
        const Rows second = second_.records(count);
        ASSERT_EQ(first.size(), count);
        ASSERT_EQ(second.size(), count);
        EXPECT_EQ(first.back(), "2 " + first_.path() + " /scan " + files);
        EXPECT_EQ(second.back(), "2 " + second_.path() + "  " + files);
    }

    const ProgramFolder folder_{"registry"};
    const RecordingScanner first_{folder_.path() + "first.exe"};
    const RecordingScanner second_{folder_.path() + "second.exe"};
    Lines own_;
};

TEST_F(RegistryWatch, TheFirstStartRecordsWhatStandsAndWarnsOfNothing) {
    const PlantedValue treated(HKEY_LOCAL_MACHINE, run, "A=B", "C:\\Tools\\alpha.exe /min");
    const PlantedValue cut(HKEY_LOCAL_MACHINE, run, "Expand", REG_EXPAND_SZ,
                           std::string("%windir%\\x.exe", 15));
    const PlantedValue usual(HKEY_LOCAL_MACHINE, run, "Usual", "\"%1\" %*");
    const PlantedValue quoted(HKEY_CURRENT_USER, run, "Mail Check", "\"C:\\Program Files\\m.exe\" -q");
    const PlantedValue command(HKEY_LOCAL_MACHINE, pifCommand, "", "x.exe \"%1\" %*");
    const std::string commandLine = " (x.exe \"%1\" %*)= (x.exe \"%1\" %*)\r\n";
    const std::string expected =
        snapshot({{"LM/R", "A-B= (C:\\Tools\\alpha.exe /min)\r\nExpand= (%windir%\\x.exe\r\n"},
                  {"CU/R", "Mail Check= (\"C:\\Program Files\\m.exe\" -q)\r\n"},
                  {"LM/SP", commandLine},
                  {"CR/SP", commandLine}});
    {
        const Program program(folder_.program());
        const Form window = openPage(program);
        EXPECT_EQ(recorded(), expected);
        EXPECT_EQ(window.rows(), warnings({noWarnings}));
        for (const char* button : {"Delete Key", scanOne, scanWarnings}) {
            EXPECT_FALSE(window.isEnabled(button)) << button;
        }
        const TreeView tree(window.tree());
        EXPECT_THAT(tree.textsUnder(tree.root()),
                    ElementsAre("Loaded in Run", "Loaded in RunOnce", "Loaded in RunOnceEx",
                                "Loaded in RunServices", "Loaded in RunServicesOnce", "Spawned with EXE's",
                                "Spawned with COM's", "Spawned with BAT's", "Spawned with HTA's",
                                "Spawned with PIF's"));
        EXPECT_THAT(tree.textsUnder(location(tree, local, "Loaded in Run")),
                    AllOf(Contains("A=B (C:\\Tools\\alpha.exe /min)"), Contains("Expand (%windir%\\x.exe"),
                          Not(Contains(StartsWith("Usual")))));
        EXPECT_THAT(tree.textsUnder(location(tree, classes, "Spawned with PIF's")),
                    Contains(" (x.exe \"%1\" %*)"));
    }
    const Program again(folder_.program());
    refresh(openPage(again), {noWarnings});
    EXPECT_EQ(recorded(), expected);
}

TEST_F(RegistryWatch, WhatIsAddedAndChangedShowsAfterRefreshAndCanBeSelected) {
    const PlantedValue altered(HKEY_LOCAL_MACHINE, run, "Altered", "C:\\old.exe");
    const PlantedValue gone(HKEY_LOCAL_MACHINE, run, "Gone", "C:\\gone.exe");
    const Program program(folder_.program());
    const Form window = openPage(program);
    const std::string before = recorded();

    const PlantedValue mine(HKEY_CURRENT_USER, run, "Foo", "C:\\foo.exe");
    refresh(window, {user + "|Loaded in \\Foo (C:\\foo.exe) New Entry!"});
    EXPECT_TRUE(window.isEnabled(scanWarnings));

    altered.rewrite("C:\\Old.exe");
    gone.remove();
    const PlantedValue binary(HKEY_LOCAL_MACHINE, run, "Binary", REG_BINARY, "\x0A\x10\x05\x99");
    const PlantedValue number(HKEY_LOCAL_MACHINE, run, "Number", REG_DWORD, std::string("A\0\0\0", 4));
    const PlantedValue later(HKEY_LOCAL_MACHINE, runOnce, "Later", REG_EXPAND_SZ,
                             std::string("%windir%\\x.exe", 15));
    const std::string laterRow = local + "|Loaded in RunOnce\\Later (%windir%\\x.exe New Entry!";
    const std::string fooRow = user + "|Loaded in RunOnce\\Foo (C:\\foo.exe) New Entry!";
    const Rows changes{local + "|Loaded in Run\\Altered (C:\\Old.exe) Entry Modified!",
                       local + "|Loaded in Run\\Binary (A 10 05 ) New Entry!",
                       local + "|Loaded in Run\\Number (A New Entry!", laterRow, fooRow};
    refresh(window, changes);
    EXPECT_EQ(recorded(), before);
    {
        const TreeView tree(window.tree());
        EXPECT_THAT(tree.textsUnder(location(tree, local, "Loaded in Run")),
                    AllOf(Contains("Altered (C:\\Old.exe)"), Contains("Binary (A 10 05 )"),
                          Contains("Number (A"), Not(Contains(StartsWith("Gone")))));
    }

    window.clickRow(laterRow);
    awaitButtons(window, true);
    EXPECT_EQ(window.field(), "Later (%windir%\\x.exe New Entry!)");
    window.clickRow(fooRow);
    EXPECT_TRUE(comesTrue([&] { return window.field() == "Foo (C:\\foo.exe)"; })) << window.field();
    window.clickRow(fooRow + ") ");
    window.clickRow(heading);
    awaitButtons(window, false);
    EXPECT_THAT(window.rows(),
                ElementsAre(heading, changes[0], changes[1], changes[2], laterRow + ") ", fooRow + ") "));

    selectNode(window, user, "Loaded in Run", "Foo (C:\\foo.exe)");
    const TreeView tree(window.tree());
    tree.select(location(tree, user, "Loaded in Run"));
    awaitButtons(window, false);
    refresh(window, changes);
}

TEST_F(RegistryWatch, DeleteKeyAsksFirstAndOnlyTheTreeKnowsEveryPlace) {
    const PlantedValue doomed(HKEY_LOCAL_MACHINE, run, "Doomed", "C:\\doomed.exe");
    const PlantedValue command(HKEY_LOCAL_MACHINE, pifCommand, "", "x.exe \"%1\" %*");
    const Program program(folder_.program());
    const Form window = openPage(program);
    const std::string localKey = local + "\\" + run;

    selectNode(window, local, "Loaded in Run", "Doomed (C:\\doomed.exe)");
    window.click("Delete Key");
    program.answer(deletionQuestion("Doomed", localKey), "No");
    EXPECT_TRUE(doomed.stands());
    window.click("Delete Key");
    program.answer(deletionQuestion("Doomed", localKey), "Yes");
    EXPECT_TRUE(comesTrue([&] { return !doomed.stands() && !window.isEnabled("Delete Key"); }));
    EXPECT_TRUE(comesTrue([&] {
        const TreeView tree(window.tree());
        HTREEITEM const first = tree.next(TVGN_CHILD, tree.root());
        return first != nullptr && tree.child(first, "(C:\\doomed.exe)", Milliseconds(0)) == nullptr &&
               window.rows() == warnings({noWarnings});
    }));
    EXPECT_EQ(window.field(), "");

    selectNode(window, local, "Spawned with PIF's", " (x.exe \"%1\" %*)");
    window.click("Delete Key");
    program.answer(
        "This key will not be deleted.\nYou must change the value manually. Would you like to open the "
        "Registry for Editing now?",
        "No", "Caution");
    EXPECT_TRUE(command.stands());

    // A row of the user's keys names no key of its own.
    const PlantedValue missed(HKEY_CURRENT_USER, run, "Missed", "C:\\missed.exe");
    const std::string missedRow = user + "|Loaded in \\Missed (C:\\missed.exe) New Entry!";
    refresh(window, {missedRow});
    window.clickRow(missedRow);
    awaitButtons(window, true);
    window.click("Delete Key");
    program.answer(deletionQuestion("Missed", user + "\\" + version), "Yes");
    awaitRows(window, warnings({missedRow}));
    EXPECT_TRUE(missed.stands());
    selectNode(window, user, "Loaded in Run", "Missed (C:\\missed.exe)");
    window.click("Delete Key");
    program.answer(deletionQuestion("Missed", user + "\\" + run), "Yes");
    awaitRows(window, warnings({noWarnings}));
    EXPECT_FALSE(missed.stands());

    const PlantedValue listed(HKEY_LOCAL_MACHINE, runOnce, "Listed", "C:\\listed.exe");
    const std::string listedRow = local + "|Loaded in RunOnce\\Listed (C:\\listed.exe) New Entry!";
    refresh(window, {listedRow});
    window.clickRow(listedRow);
    awaitButtons(window, true);
    window.click("Delete Key");
    program.answer(deletionQuestion("Listed", local + "\\" + runOnce), "Yes");
    awaitRows(window, warnings({noWarnings}));
    EXPECT_FALSE(listed.stands());
}

TEST_F(RegistryWatch, WarningsGoToBothScannersIntoTheReportAndIntoTheSnapshot) {
    const Program program(folder_.program());
    const Form window = openPage(program);
    EXPECT_EQ(recorded(), snapshot({}));
    const PlantedValue plain(HKEY_LOCAL_MACHINE, run, "Arrow", "C:\\Tools\\arrow.exe /x");
    const PlantedValue bare(HKEY_LOCAL_MACHINE, run, "Bare", "notepad.exe");
    const PlantedValue lost(HKEY_LOCAL_MACHINE, run, "Lost", "zznowhere.exe");
    const PlantedValue quoted(HKEY_CURRENT_USER, run, "Quoted", "\"C:\\a b\\q.exe\" \"%1\"");
    refresh(window, {local + "|Loaded in Run\\Arrow (C:\\Tools\\arrow.exe /x) New Entry!",
                     local + "|Loaded in Run\\Bare (notepad.exe) New Entry!",
                     local + "|Loaded in Run\\Lost (zznowhere.exe) New Entry!",
                     user + "|Loaded in Run\\Quoted (\"C:\\a b\\q.exe\" \"%1\") New Entry!"});

    selectNode(window, local, "Loaded in Run", "Arrow (C:\\Tools\\arrow.exe /x)");
    window.click(scanOne);
    expectRun(1, "\"C:\\Tools\\arrow.exe\"");
    selectNode(window, user, "Loaded in Run", "Quoted (\"C:\\a b\\q.exe\" \"%1\")");
    window.click(scanOne);
    expectRun(2, "\"C:\\a b\\q.exe\"");
    selectNode(window, local, "Loaded in Run", "Lost (zznowhere.exe)");
    window.click(scanOne);
    program.answer("Cannot find file, please scan manually");
    EXPECT_THAT(folder_.logs(), ElementsAre());
    EXPECT_EQ(recorded(), snapshot({}));

    window.click(scanWarnings);
    program.answer("Unable to find the file: zznowhere.exe\nPlease scan manually.");
    const std::string notepad = systemDirectory() + "notepad.exe";
    expectRun(3, " \"C:\\Tools\\arrow.exe\" \"" + notepad + "\"  \"C:\\a b\\q.exe\"");
    awaitRows(window, warnings({noWarnings}));
    EXPECT_TRUE(comesTrue([&] { return folder_.logs().size() == 1; }));
    EXPECT_THAT(folder_.logs(), ElementsAre("Registry Action - Scan and Update Multiple Entries,"
                                            "C:\\Tools\\arrow.exe," +
                                            notepad + ",,C:\\a,b\\q.exe\r\n"));
    EXPECT_EQ(recorded(), snapshot({{"LM/R", "Arrow= (C:\\Tools\\arrow.exe /x)\r\nBare= (notepad.exe)\r\n"
                                             "Lost= (zznowhere.exe)\r\n"},
                                    {"CU/R", "Quoted= (\"C:\\a b\\q.exe\" \"%1\")\r\n"}}));
    EXPECT_FALSE(window.isEnabled(scanWarnings));

    bare.rewrite("regedit.exe");
    refresh(window, {local + "|Loaded in Run\\Bare (regedit.exe) Entry Modified!"});
}

TEST_F(RegistryWatch, FilesPendingForTheNextBootAreShownAndScanned) {
    const Program program(folder_.program());
    const Form window = openPage(program);
    Rows rows = warnings({noWarnings});
    rows.push_back(pendingHeading);
    window.click(showPending);
    program.answer("No files will be modified or deleted on Restart!");
    EXPECT_EQ(window.rows(), rows);
    EXPECT_FALSE(window.isEnabled("Scan all Files for Viruses"));

    char windowsFolder[MAX_PATH] = {};
    GetWindowsDirectoryA(windowsFolder, sizeof windowsFolder);
    const std::string orders = "[Rename]\r\nnul=C:\\gone.tmp\r\nC:\\new.dll=C:\\over=x.dll\r\n";
    const PlantedFile wininit(std::string(windowsFolder) + "\\wininit.ini", orders);
    constexpr char renames[] = "\\??\\C:\\drop.tmp\0\0\\??\\C:\\from.tmp\0!\\??\\C:\\to.dll\0";
    const PlantedValue pending(HKEY_LOCAL_MACHINE, "System\\CurrentControlSet\\Control\\Session Manager",
                               "PendingFileRenameOperations", REG_MULTI_SZ,
                               std::string(renames, sizeof renames));
    window.click(showPending);
    const std::string toBeDeleted = "C:\\gone.tmp {To be Deleted}";
    Rows shown = rows;
    shown.insert(shown.end(), {toBeDeleted, "C:\\over=x.dll {To be Overwritten}", "C:\\drop.tmp",
                               "C:\\from.tmp", "C:\\to.dll"});
    awaitRows(window, shown);
    window.clickRow(toBeDeleted);
    EXPECT_TRUE(comesTrue([&] { return window.field() == toBeDeleted; })) << window.field();

    window.click("Scan all Files for Viruses");
    expectRun(1, " \"C:\\gone.tmp\" \"C:\\over=x.dll\" \"C:\\drop.tmp\" \"C:\\from.tmp\" \"C:\\to.dll\"");
    rows.insert(rows.end(), {"C:\\gone.tmp", "C:\\over=x.dll", "C:\\drop.tmp", "C:\\from.tmp", "C:\\to.dll"});
    awaitRows(window, rows);
    EXPECT_TRUE(comesTrue([&] { return folder_.logs().size() == 1; }));
    EXPECT_THAT(
        folder_.logs(),
        ElementsAre("Precautionary Scan - These files were to be renamed/deleted/overwritten at startup,"
                    "C:\\gone.tmp,C:\\over=x.dll,C:\\drop.tmp,C:\\from.tmp,C:\\to.dll\r\n"));
    EXPECT_EQ(readFile(wininit.path()), orders);
    EXPECT_TRUE(pending.stands());

    window.click("Refresh");
    window.awaitText(scanOne);
    awaitRows(window, warnings({noWarnings}));
    EXPECT_NO_THROW(window.tree());
}

} // namespace
} // namespace e2e
