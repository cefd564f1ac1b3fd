// The watched registry locations: the snapshot, warnings, the page's actions, and what is pending for the
// next boot.

#include "regwatch/file_path.h"
#include "tests/workstation/session.h"

#include <map>
#include <random>

namespace tarvelon {
namespace {

using namespace std::string_literals;

const std::string runKey = R"(Software\Microsoft\Windows\CurrentVersion\Run)";
const std::string runOnceKey = R"(Software\Microsoft\Windows\CurrentVersion\RunOnce)";
const std::string noWarnings = "*No new or modified Registry Entries*";

class RegistryWatch : public Session {
protected:
    void SetUp() override {
        pc.files.put(dataFolder + "Integrity.dat", "");
        putSettings({.settings = "0,0,0,0,0,0,0,1", .antivirus = "C:\\av.exe|/s", .av2 = "C:\\two.exe| "});
        pc.files.put(R"(C:\av.exe)", "");
        pc.files.put(systemFolder + "found.exe", "");
    }

    void set(Registry::Key root, const std::string& key, const std::string& name, const std::string& text) {
        pc.registry.setText(root, key, name, text);
    }

    void refresh() {
        app->mForm1.Image7.click();
        app->mForm1.Command1.click();
    }

    std::vector<std::string> warnings() const {
        const std::vector<std::string>& rows = app->mForm1.List5.items();
        EXPECT_EQ(rows.at(0), "New and Modified Registry Entry Warnings");
        return {rows.begin() + 1, rows.end()};
    }

    void selectNode(const std::string& key) {
        const Tree::Node* node = app->mForm1.TreeView1.find(key);
        ASSERT_NE(node, nullptr) << key;
        app->mForm1.TreeView1.clickNode(*node);
    }
};

TEST_F(RegistryWatch, TheFirstStartRecordsSilently) {
    set(Registry::localMachine, runKey, "Updater", R"(C:\Tools\updater.exe /min)");
    set(Registry::localMachine, runKey, "A=B", "x");
    set(Registry::currentUser, runKey, "Mail Check", R"("C:\Program Files\Mail\check.exe" -q)");
    set(Registry::classesRoot, R"(exefile\shell\open\command)", "", R"(launcher.exe "%1" %*)");
    set(Registry::classesRoot, R"(comfile\shell\open\command)", "", R"("%1" %*)");
    pc.registry.setValue(Registry::localMachine, runOnceKey, "Expand",
                         {SimRegistry::ExpandableText, "%windir%\\x.exe\0"s});
    set(Registry::localMachine, runOnceKey + "Ex", ";note", "x");
    set(Registry::localMachine, runOnceKey + "Ex", "[head]", "two\r\nlines");
    ASSERT_FALSE(start());
    EXPECT_EQ(warnings(), Rows{noWarnings});
    const std::string snapshot = data("Registry.dat");
    EXPECT_EQ(snapshot.substr(0, snapshot.find("[LM/ROX]")),
              "[LM/R]\r\nUpdater= (C:\\Tools\\updater.exe /min)\r\nA-B= (x)\r\n\r\n"
              "[LM/RO]\r\nExpand= (%windir%\\x.exe\r\n\r\n");
    EXPECT_THAT(
        snapshot,
        HasSubstr(
            "[CU/R]\r\nMail Check= (\"C:\\Program Files\\Mail\\check.exe\" -q)\r\n\r\n[CU/RO]\r\n\r\n"));
    // The name of a default value is its own text, leading blank and all.
    EXPECT_THAT(snapshot, HasSubstr("[CR/SE]\r\n (launcher.exe \"%1\" %*)= (launcher.exe \"%1\" %*)\r\n"));
    EXPECT_THAT(snapshot, HasSubstr("[CR/SC]\r\n\r\n")) << "the normal command is no entry";
    refresh();
    EXPECT_EQ(warnings(), Rows{noWarnings});
    EXPECT_FALSE(app->mForm1.cScnUpd.Enabled());
}

TEST_F(RegistryWatch, EachLocationHasItsSection) {
    const std::string version = R"(Software\Microsoft\Windows\CurrentVersion\)";
    const std::string command = R"(file\shell\open\command)";
    const std::map<std::string, std::string> started = {{"R", "Run"},
                                                        {"RO", "RunOnce"},
                                                        {"ROX", "RunOnceEx"},
                                                        {"RS", "RunServices"},
                                                        {"RSO", "RunServicesOnce"}};
    const std::map<std::string, std::string> spawned = {
        {"SE", "exe"}, {"SC", "com"}, {"SB", "bat"}, {"SH", "hta"}, {"SP", "pif"}};
    for (const auto& [name, key] : started) {
        set(Registry::localMachine, version + key, name, "lm");
        set(Registry::currentUser, version + key, name, "cu");
    }
    for (const auto& [name, type] : spawned) {
        set(Registry::classesRoot, type + command, name, "cr");
    }
    ASSERT_FALSE(start());
    std::string expected;
    for (const std::string section :
         {"LM/R", "LM/RO", "LM/ROX", "LM/RS", "LM/RSO", "LM/SE", "LM/SC", "LM/SB", "LM/SH", "LM/SP", "CU/R",
          "CU/RO", "CR/SE", "CR/SC", "CR/SB", "CR/SH", "CR/SP"}) {
        const std::string name = section.substr(3);
        const bool ofClasses = name[0] == 'S'; // The machine's classes are the classes root.
        expected += "[" + section + "]\r\n" + name +
                    (ofClasses           ? "= (cr)"
                     : section[0] == 'L' ? "= (lm)"
                                         : "= (cu)") +
                    "\r\n\r\n";
    }
    EXPECT_EQ(data("Registry.dat"), expected);
}

TEST_F(RegistryWatch, NewAndModifiedEntriesWarnInTheirOrder) {
    set(Registry::localMachine, runKey, "Old", R"(C:\old.exe)");
    ASSERT_FALSE(start());
    refresh();
    set(Registry::currentUser, runKey, "User", R"(C:\user.exe)");
    refresh();
    EXPECT_EQ(warnings(), Rows{R"(HKEY_CURRENT_USER|Loaded in \User (C:\user.exe) New Entry!)"})
        << "without a warning of the machine there is no tail to carry";

    set(Registry::localMachine, runKey, "Old", R"(C:\OLD.exe)");
    set(Registry::localMachine, runOnceKey, "Foo", R"(C:\foo.exe)");
    set(Registry::classesRoot, R"(exefile\shell\open\command)", "", R"(x.exe "%1" %*)");
    pc.registry.setValue(Registry::currentUser, runOnceKey, "Wide",
                         {SimRegistry::ExpandableText, "%windir%\\w.exe\0"s});
    refresh();
    EXPECT_EQ(warnings(),
              (Rows{R"(HKEY_LOCAL_MACHINE|Loaded in Run\Old (C:\OLD.exe) Entry Modified!)",
                    R"(HKEY_LOCAL_MACHINE|Loaded in RunOnce\Foo (C:\foo.exe) New Entry!)",
                    // The local machine's classes are the same keys as the classes root.
                    R"(HKEY_LOCAL_MACHINE|Loaded in command\ (x.exe "%1" %*) (x.exe "%1" %*) New Entry!)",
                    R"(HKEY_CURRENT_USER|Loaded in command\User (C:\user.exe) New Entry!)",
                    R"(HKEY_CURRENT_USER|Loaded in command\Wide (%windir%\w.exe New Entry!)",
                    R"(HKEY_CLASSES_ROOT|Loaded in command\ (x.exe "%1" %*) (x.exe "%1" %*) New Entry!)"}));
    EXPECT_TRUE(app->mForm1.cScnUpd.Enabled());
    const Tree& tree = app->mForm1.TreeView1;
    EXPECT_EQ(Tree::fullPath(*tree.find(R"(#2 (C:\foo.exe))")),
              R"(HKEY_LOCAL_MACHINE\Loaded in RunOnce\Foo (C:\foo.exe))");
    EXPECT_EQ(tree.find("!RSWE")->text, "Spawned with EXE's");

    set(Registry::currentUser, runKey, "Twin", R"(C:\OLD.exe)");
    refresh();
    EXPECT_EQ(tree.find(R"(#1 (C:\OLD.exe))")->text, R"(Old (C:\OLD.exe))")
        << "the tree shows the first of two";
    EXPECT_EQ(warnings().size(), 7u);
}

TEST_F(RegistryWatch, UnreadableKeysAndLostSnapshotsAreNoFailure) {
    set(Registry::localMachine, runKey, "A", "a.exe");
    set(Registry::currentUser, runKey, "B", "b.exe");
    pc.registry.deny(Registry::localMachine, runKey, SimRegistry::setRight);
    pc.files.lock(dataFolder + "Registry.dat");
    ASSERT_FALSE(start());
    refresh();
    const Rows allNew{R"(HKEY_CURRENT_USER|Loaded in \B (b.exe) New Entry!)"};
    EXPECT_EQ(warnings(), allNew) << "a snapshot that could not be made";
    pc.files.unlock(dataFolder + "Registry.dat");
    pc.files.put(dataFolder + "Registry.dat", "garbage");
    refresh();
    EXPECT_EQ(warnings(), allNew);
    pc.files.denyWrites(dataFolder + "Registry.dat");
    tells("Unable to find the file: b.exe\r\nPlease scan manually.");
    app->mForm1.cScnUpd.click();
    EXPECT_EQ(data("Registry.dat"), "garbage");
    refresh();
    EXPECT_EQ(warnings().size(), 1u);
}

TEST_F(RegistryWatch, SelectionsFillTheEntryAndRowsEndInAParenthesis) {
    ASSERT_FALSE(start());
    refresh();
    MForm1Screen& form = app->mForm1;
    form.List5.select(1);
    EXPECT_FALSE(form.Command3.Enabled()) << "nothing to act on";

    set(Registry::localMachine, runKey, "Foo", R"(C:\foo.exe)");
    pc.registry.setValue(Registry::localMachine, runKey, "Cut",
                         {SimRegistry::ExpandableText, "%systemroot%\\c.exe\0"s});
    refresh();
    form.List5.select(0);
    EXPECT_FALSE(form.Command11.Enabled());
    form.List5.select(1);
    EXPECT_TRUE(form.Command3.Enabled());
    EXPECT_EQ(form.Text4.Caption(), R"(Foo (C:\foo.exe))");
    const std::string marked = R"(HKEY_LOCAL_MACHINE|Loaded in Run\Foo (C:\foo.exe) New Entry!) )";
    EXPECT_EQ(form.List5.item(1), marked);
    EXPECT_EQ(form.List5.ToolTip(), marked);
    form.List5.select(1);
    EXPECT_EQ(form.List5.item(1), marked) << "only once";
    form.List5.select(2);
    EXPECT_EQ(form.Text4.Caption(), R"(Cut (%systemroot%\c.exe New Entry!))") << "cut at its zero";

    selectNode("!LLIR");
    EXPECT_FALSE(form.Command3.Enabled());
    selectNode(R"(#1 (C:\foo.exe))");
    EXPECT_TRUE(form.Command3.Enabled());
    EXPECT_EQ(form.Label19.Caption(), R"(Foo (C:\foo.exe))");
    EXPECT_EQ(form.Text4.Caption(), R"(Foo (C:\foo.exe))");
    form.Image7.click();
    EXPECT_FALSE(form.Command3.Enabled()) << "not after coming to the page anew";
    form.List5.select(1);
    tells("No files will be modified or deleted on Restart!");
    form.cMod.click();
    EXPECT_FALSE(form.Command3.Enabled()) << "nor among what is pending";
    refresh();
    selectNode(R"(#1 (C:\foo.exe))");
    form.TreeView1.expandOrCollapse();
    EXPECT_FALSE(form.Command11.Enabled());
}

TEST_F(RegistryWatch, DeletingAsksAndFollowsTheSelection) {
    set(Registry::localMachine, runKey, "Foo", R"(C:\foo.exe)");
    set(Registry::classesRoot, R"(batfile\shell\open\command)", "", "other %1");
    ASSERT_FALSE(start());
    refresh();
    const auto warning = [](const std::string& name, const std::string& from) {
        return "WARNING!\r\nYou are about to Delete the key: " + name + "\r\nFrom: " + from +
               "\r\nDoing this may have unpredictable results!\r\n\r\nContinue?";
    };
    const std::string question = warning("Foo", "HKEY_LOCAL_MACHINE\\" + runKey);
    selectNode(R"(#1 (C:\foo.exe))");
    asks(question, Answer::No);
    app->mForm1.Command3.click();
    EXPECT_TRUE(pc.registry.value(Registry::localMachine, runKey, "Foo"));
    asks(question, Answer::Yes);
    app->mForm1.Command3.click();
    EXPECT_FALSE(pc.registry.value(Registry::localMachine, runKey, "Foo"));
    EXPECT_EQ(app->mForm1.TreeView1.find(R"(#1 (C:\foo.exe))"), nullptr);
    EXPECT_EQ(app->mForm1.Text4.Caption(), "");

    // A row of the user's keys names no key of its own; one of the machine's does.
    set(Registry::currentUser, runKey, "Missed", "m.exe");
    set(Registry::localMachine, runOnceKey, "Listed", "l.exe");
    refresh();
    app->mForm1.List5.select(2);
    asks(warning("Missed", R"(HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\RunOnce)"),
         Answer::Yes);
    app->mForm1.Command3.click();
    EXPECT_TRUE(pc.registry.value(Registry::currentUser, runKey, "Missed"));
    app->mForm1.List5.select(1);
    asks(warning("Listed", "HKEY_LOCAL_MACHINE\\" + runOnceKey), Answer::Yes);
    app->mForm1.Command3.click();
    EXPECT_FALSE(pc.registry.value(Registry::localMachine, runOnceKey, "Listed"));

    selectNode("#3 (other %1)");
    const std::string caution =
        "This key will not be deleted.\r\nYou must change the value manually. Would you like to "
        "open the Registry for Editing now?";
    asks(caution, Answer::Yes, "Caution");
    app->mForm1.Command3.click();
    EXPECT_EQ(pc.processes.started().back(), (StartedProcess{"regedit.exe", WindowStyle::MinimizedFocus}));
    EXPECT_TRUE(pc.registry.value(Registry::classesRoot, R"(batfile\shell\open\command)", ""));
}

TEST_F(RegistryWatch, OneFileOrAllGoToTheScannersAndAllIsAccepted) {
    ASSERT_FALSE(start());
    set(Registry::localMachine, runKey, "Found", "found.exe /quiet");
    set(Registry::localMachine, runKey, "Quoted", R"("C:\a b\x.exe" "%1")");
    set(Registry::localMachine, runKey, "Gone", "gone.exe");
    refresh();
    MForm1Screen& form = app->mForm1;
    form.List5.select(1);
    form.Command11.click();
    const std::string found = "\"" + systemFolder + "found.exe\"";
    EXPECT_EQ(lines(), (Rows{"C:\\av.exe /s " + found, "C:\\two.exe  " + found}));
    form.List5.select(2);
    form.Command11.click();
    EXPECT_EQ(lines().at(2), R"(C:\av.exe /s "C:\a b\x.exe")");
    form.List5.select(3);
    tells("Cannot find file, please scan manually");
    form.Command11.click();

    tells("Unable to find the file: gone.exe\r\nPlease scan manually.");
    form.cScnUpd.click();
    EXPECT_EQ(lines().at(4), "C:\\av.exe /s  " + found + R"( "C:\a b\x.exe" )");
    EXPECT_EQ(warnings(), Rows{noWarnings});
    EXPECT_THAT(data("Registry.dat"), HasSubstr("Gone= (gone.exe)"));
    EXPECT_EQ(data("Log\\03-05-2006(3_04_07PM).log"), "Registry Action - Scan and Update Multiple Entries," +
                                                          systemFolder + "found.exe,C:\\a,b\\x.exe\r\n");
}

TEST_F(RegistryWatch, WhatCannotBeHandedOverIsNotAccepted) {
    ASSERT_FALSE(start());
    for (int i = 0; i < 200; ++i) {
        set(Registry::localMachine, runKey, std::to_string(i), "C:\\" + std::string(200, 'x') + ".exe");
    }
    refresh();
    app->mForm1.cScnUpd.click();
    EXPECT_EQ(lines().size(), 4u) << "Two runs of two scanners";
    EXPECT_EQ(warnings(), Rows{noWarnings});

    set(Registry::localMachine, runKey, "0", R"(C:\new.exe)");
    refresh();
    pc.processes.canStart = [](const std::string&) { return false; };
    tells("Your Anti-Virus program could not be executed!!!\rPlease verify the path of the "
          "software:\rC:\\av.exe");
    app->mForm1.cScnUpd.click();
    app->globals.app.shutAction = 8;
    app->mForm1.cScnUpd.click();
    EXPECT_EQ(app->globals.shutDown.scanLogged, 1) << "The end tells of files to look at";
    refresh();
    EXPECT_EQ(warnings().size(), 1u);
    EXPECT_NE(warnings(), Rows{noWarnings});
    pc.files.remove(R"(C:\av.exe)");
    app->mForm1.cScnUpd.click();
    EXPECT_EQ(warnings(), Rows{noWarnings}) << "A scanner that is not there goes unnoticed";
}

TEST_F(RegistryWatch, PendingOperationsAreShownAndScanned) {
    ASSERT_FALSE(start());
    MForm1Screen& form = app->mForm1;
    form.Image7.click();
    const std::string heading =
        "These files are to be Deleted or Overwritten on the next Reboot (Wininit.ini and Registry).";
    tells("No files will be modified or deleted on Restart!");
    form.cMod.click();
    EXPECT_EQ(form.List6.items(), Rows{heading});
    EXPECT_TRUE(form.List6.isShown());
    EXPECT_FALSE(form.TreeView1.isShown());

    pc.files.put(R"(C:\WINDOWS\wininit.ini)",
                 "[Rename]\r\nnul=C:\\T\\X.TMP\r\nno entry\r\nC:\\A.DLL=C:\\B.DLL\r\na=b=c");
    const std::string value = "\\??\\C:\\a.tmp\0\0\\??\\C:\\b.tmp\0!\\??\\C:\\c.dll\0\0"s;
    const std::string sessionManager = R"(System\CurrentControlSet\Control\Session Manager)";
    pc.registry.setValue(Registry::localMachine, sessionManager, "PendingFileRenameOperations",
                         {SimRegistry::TextList, value});
    form.cMod.click();
    EXPECT_EQ(form.List6.items(),
              (Rows{heading, "C:\\T\\X.TMP {To be Deleted}", "C:\\B.DLL {To be Overwritten}",
                    "b=c {To be Overwritten}", "C:\\a.tmp", "C:\\b.tmp", "C:\\c.dll"}));
    form.List6.select(2);
    EXPECT_EQ(form.Text4.Caption(), "C:\\B.DLL {To be Overwritten}");
    tells("Unable to find the file: b=c\r\nPlease scan manually.");
    EXPECT_EQ(form.Command11.Caption(), "Scan all Files for Viruses");
    form.Command11.click();
    EXPECT_EQ(lines().at(0),
              "C:\\av.exe /s  \"C:\\T\\X.TMP\" \"C:\\B.DLL\"  \"C:\\a.tmp\" \"C:\\b.tmp\" \"C:\\c.dll\"");
    EXPECT_EQ(data("Log\\03-05-2006(3_04_07PM).log").substr(0, 60),
              "Precautionary Scan - These files were to be renamed/deleted/");

    pc.registry.setValue(Registry::localMachine, sessionManager, "PendingFileRenameOperations",
                         {SimRegistry::TextList, "\\??\\C:\\" + std::string(300, 'x')});
    form.cMod.click();
    EXPECT_EQ(form.List6.count(), 4) << "a value of more than 256 bytes reads as empty";
    form.Command1.click();
    EXPECT_TRUE(form.TreeView1.isShown());
    EXPECT_EQ(form.Command11.Caption(), "Scan File for Viruses");
}

TEST_F(RegistryWatch, CommandsAreCutDownToTheirFile) {
    pc.files.put(R"(C:\WINDOWS\system\old.drv)", "");
    pc.files.put(R"(C:\WINDOWS\notepad.exe)", "");
    const Utilities utilities(pc.platform());
    const std::pair<const char*, const char*> cases[] = {
        {R"(N (C:\WINDOWS\notepad.exe))", R"(C:\WINDOWS\notepad.exe)"},
        {"N (notepad.exe)", R"(C:\WINDOWS\notepad.exe)"},
        {"N (old.drv x)", R"(C:\WINDOWS\system\old.drv)"},
        {R"(N (C:\Program Files\a.exe /x))", R"(C:\Program Files\a.exe)"},
        {R"(N ("C:\Program Files\a.exe"))", R"("C:\Program Files\a.exe")"},
        {R"(N (C:\a b\c.exe))", R"(C:\a b\c.exe)"},
        {R"(N (C:\Program Files\a))", R"(C:\Program.exe)"},
        {R"(N (%systemroot%\system32\x.exe /a))", R"(C:\WINDOWS\system32\x.exe)"},
        {R"(N (%SystemRoot%\x.exe))", R"(%SystemRoot%\x.exe)"},
        {R"(N (C:\\double\\x))", R"(C:\double\x.exe)"},
        {R"(C:\plain\path.dll)", R"(C:\plain\path.dll)"},
        {R"(C:\Program Files (x86)\a.exe)", nullptr},
        {"N (rundll32 shell32.dll,Control_RunDLL)", nullptr},
        {"", nullptr},
        {")(", nullptr},
        {"(((", nullptr}};
    for (const auto& [entry, expected] : cases) {
        EXPECT_EQ(cutToFilePath(entry, utilities).path.value_or("(not found)"),
                  expected ? expected : "(not found)")
            << entry;
    }
    EXPECT_EQ(cutToFilePath("N (%windir%\\x.exe\0   )"s, utilities).path, R"(%windir%\x.exe)");
    // Rubbish of any kind gives some answer.
    std::mt19937 random(7);
    const std::string alphabet = "(). \\\"%a:\0\xe4"s;
    for (int round = 0; round < 3000; ++round) {
        std::string text;
        for (auto n = random() % 24; n > 0; --n) {
            text += alphabet[random() % alphabet.size()];
        }
        const CutPath cut = cutToFilePath(text, utilities);
        EXPECT_TRUE(!cut.path || cut.path->find('.') != std::string::npos) << text;
    }
}

} // namespace
} // namespace tarvelon
