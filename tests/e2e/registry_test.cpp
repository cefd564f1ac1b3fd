// The watched registry locations and what is pending for the next boot, as another program changes them.

#include "driver.h"
#include "planted_value.h"
#include "recorder.h"
#include "tree_view.h"
#include "workplace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace e2e {
namespace {

using Rows = std::vector<std::string>;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
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

class RegistryWatch : public testing::Test {
protected:
    RegistryWatch() {
        folder_.writeData("Integrity.dat", systemBaseline());
        folder_.writeSettings({{"settings", "0,0,0,0,0,0,0,1"},
                               {"antivirus", first_.path() + "| /scan "},
                               {"av2", second_.path() + "| "},
                               {"antivirus2", "1,0,0"}});
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
};

TEST_F(RegistryWatch, TheFirstStartRecordsWhatStandsAndWarnsOfNothing) {
    const PlantedValue treated(HKEY_LOCAL_MACHINE, run, "A=B", "C:\\Tools\\alpha.exe /min");
    const PlantedValue usual(HKEY_LOCAL_MACHINE, run, "Usual", "\"%1\" %*");
    const PlantedValue quoted(HKEY_CURRENT_USER, run, "Mail Check", "\"C:\\Program Files\\m.exe\" -q");
    const PlantedValue command(HKEY_LOCAL_MACHINE, pifCommand, "", "x.exe \"%1\" %*");
    std::string expected;
    {
        const Program program(folder_.program());
        const Form window = openPage(program);
        expected = recorded();
        const std::string commandLine = "SP]\r\n (x.exe \"%1\" %*)= (x.exe \"%1\" %*)\r\n\r\n";
        EXPECT_THAT(expected, AllOf(HasSubstr("A-B= (C:\\Tools\\alpha.exe /min)\r\n\r\n[LM/RO]\r\n"),
                                    HasSubstr("Mail Check= (\"C:\\Program Files\\m.exe\" -q)\r\n\r\n[CU/RO]"),
                                    HasSubstr("[LM/" + commandLine), HasSubstr("[CR/" + commandLine)));
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

    window.clickRow(fooRow);
    awaitButtons(window, true);
    EXPECT_EQ(window.field(), "Foo (C:\\foo.exe)");
    window.clickRow(heading);
    awaitButtons(window, false);
    refresh(window, changes);
}

TEST_F(RegistryWatch, DeleteKeyAsksFirst) {
    const PlantedValue doomed(HKEY_LOCAL_MACHINE, run, "Doomed", "C:\\doomed.exe");
    const Program program(folder_.program());
    const Form window = openPage(program);
    const std::string question = "WARNING!\nYou are about to Delete the key: Doomed\nFrom: " + local + "\\" +
                                 run + "\nDoing this may have unpredictable results!\n\nContinue?";
    selectNode(window, local, "Loaded in Run", "Doomed (C:\\doomed.exe)");
    window.click("Delete Key");
    program.answer(question, "No");
    EXPECT_TRUE(doomed.stands());
    window.click("Delete Key");
    program.answer(question, "Yes");
    EXPECT_TRUE(comesTrue([&] { return !doomed.stands() && !window.isEnabled("Delete Key"); }));
    EXPECT_TRUE(comesTrue([&] {
        const TreeView tree(window.tree());
        HTREEITEM const first = tree.next(TVGN_CHILD, tree.root());
        return first != nullptr && tree.child(first, "(C:\\doomed.exe)", Milliseconds(0)) == nullptr &&
               window.rows() == warnings({noWarnings});
    }));
    EXPECT_EQ(window.field(), "");
}

TEST_F(RegistryWatch, WarningsGoToBothScannersIntoTheReportAndIntoTheSnapshot) {
    const Program program(folder_.program());
    const Form window = openPage(program);
    const std::string before = recorded();
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
    EXPECT_EQ(recorded(), before);

    window.click(scanWarnings);
    program.answer("Unable to find the file: zznowhere.exe\nPlease scan manually.");
    const std::string notepad = systemDirectory() + "notepad.exe";
    expectRun(3, " \"C:\\Tools\\arrow.exe\" \"" + notepad + "\"  \"C:\\a b\\q.exe\"");
    awaitRows(window, warnings({noWarnings}));
    EXPECT_TRUE(comesTrue([&] { return folder_.logs().size() == 1; }));
    EXPECT_THAT(folder_.logs(), ElementsAre("Registry Action - Scan and Update Multiple Entries,"
                                            "C:\\Tools\\arrow.exe," +
                                            notepad + ",,C:\\a,b\\q.exe\r\n"));
    EXPECT_THAT(recorded(), AllOf(HasSubstr("Arrow= (C:\\Tools\\arrow.exe /x)\r\nBare= (notepad.exe)\r\n"
                                            "Lost= (zznowhere.exe)\r\n\r\n[LM/RO]"),
                                  HasSubstr("Quoted= (\"C:\\a b\\q.exe\" \"%1\")\r\n\r\n[CU/RO]")));
    EXPECT_FALSE(window.isEnabled(scanWarnings));
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
