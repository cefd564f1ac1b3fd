// The watched registry locations: the snapshot, warnings, the page's actions, and what is pending for the
// next boot.

#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

using namespace std::string_literals;
using Sim = SimRegistry;

constexpr auto machine = Registry::localMachine, user = Registry::currentUser,
               classes = Registry::classesRoot;
const std::string version = R"(Software\Microsoft\Windows\CurrentVersion\)", run = version + "Run";
const std::string command = R"(file\shell\open\command)";
const Rows noWarnings = {"*No new or modified Registry Entries*"};

class RegistryWatch : public Session {
protected:
    void SetUp() override {
        pc.files.put(dataFolder + "Integrity.dat", "");
        putSettings({.settings = "0,0,0,0,0,0,0,1", .antivirus = "C:\\av.exe|/s", .av2 = "C:\\two.exe| "});
        pc.files.put(R"(C:\av.exe)", "");
    }

    void set(Registry::Key root, const std::string& key, const std::string& name, const std::string& text,
             std::uint32_t type = Sim::Text) {
        pc.registry.setValue(root, key, name, {type, text + '\0'});
    }

    /// The warnings of now.
    Rows refresh() {
        form().Image7.click();
        form().Command1.click();
        return {form().List5.items().begin() + 1, form().List5.items().end()};
    }

    /// The entry that can be acted on.
    std::string entry() {
        EXPECT_EQ(form().Command11.Enabled(), form().Command3.Enabled());
        return form().Command3.Enabled() ? form().Text4.Caption() : "(none)";
    }
    std::string select(int row) {
        form().List5.select(row);
        return entry();
    }
    std::string select(const std::string& node) {
        form().TreeView1.clickNode(*form().TreeView1.find(node));
        return entry();
    }

    /// Tries to delete the selected entry; true when that value of the key has gone.
    bool deletes(const std::string& name, Registry::Key root, const std::string& key, Answer answer) {
        asks("WARNING!\r\nYou are about to Delete the key: " + name +
                 "\r\nFrom: " + (root == machine ? "HKEY_LOCAL_MACHINE\\" : "HKEY_CURRENT_USER\\") + key +
                 "\r\nDoing this may have unpredictable results!\r\n\r\nContinue?",
             answer);
        form().Command3.click();
        return !pc.registry.value(root, key, name);
    }
};

TEST_F(RegistryWatch, TheFirstStartRecordsEachLocationSilently) {
    for (const char* key : {"Run", "RunOnce", "RunOnceEx", "RunServices", "RunServicesOnce"}) {
        set(machine, version + key, key, "m");
        set(user, version + key, key, "u");
    }
    for (const char* type : {"exe", "bat", "hta", "pif"}) {
        set(classes, type + command, type, "c");
    }
    set(classes, "com" + command, "", R"("%1" %*)"); // The normal command is no entry.
    set(classes, "pif" + command, "", "x.exe %1");
    set(machine, run, "A=B", R"("C:\My Files\x.exe" -q)");
    set(machine, run, ";expandable", "%windir%\\x.exe", Sim::ExpandableText);
    set(machine, run, "[lines]", "two\r\nlines");
    set(machine, run, "bytes", "\0\x05\x09\x0a\x0f\x10\x80\xff"s, Sim::Binary);
    set(user, run, "fits", std::string(239, 'x'));
    set(user, run, "ends the list", std::string(240, 'x'));
    set(user, run, "unseen", "x");
    ASSERT_FALSE(start());
    const std::string ofClasses = "/SE]|exe= (c)||[XX/SC]||[XX/SB]|bat= (c)||[XX/SH]|hta= (c)||[XX/SP]|pif= "
                                  "(c)| (x.exe %1)= (x.exe %1)||";
    EXPECT_EQ(
        replaceExact(data("Registry.dat"), "\r\n", "|"),
        R"([LM/R]|Run= (m)|A-B= ("C:\My Files\x.exe" -q)|;expandable= (%windir%\x.exe|[lines]= (two  lines)|)"
        "bytes= (00 05 09 A F 10 80 FF )||[LM/RO]|RunOnce= (m)||[LM/ROX]|RunOnceEx= (m)||[LM/RS]|"
        "RunServices= (m)||[LM/RSO]|RunServicesOnce= (m)||[LM" +
            replaceExact(ofClasses, "XX", "LM") + "[CU/R]|Run= (u)|fits= (" + std::string(239, 'x') +
            ")||[CU/RO]|RunOnce= (u)||[CR" + replaceExact(ofClasses, "XX", "CR"));
    EXPECT_EQ(refresh(), noWarnings);
    EXPECT_FALSE(form().cScnUpd.Enabled());
}

TEST_F(RegistryWatch, NewAndModifiedEntriesWarnInTheirOrder) {
    set(machine, run, "Old", R"(C:\old.exe)");
    ASSERT_FALSE(start());
    set(user, run, "User", R"(C:\user.exe)");
    EXPECT_EQ(refresh(), Rows{R"(HKEY_CURRENT_USER|Loaded in \User (C:\user.exe) New Entry!)"});
    set(machine, run, "Old", R"(C:\OLD.exe)");
    set(machine, version + "RunOnce", "Foo", R"(C:\foo.exe)");
    set(user, run, "Twin", R"(C:\OLD.exe)");
    set(classes, "exe" + command, "", "x.exe %1"); // The same key as the local machine's.
    EXPECT_EQ(refresh(), (Rows{R"(HKEY_LOCAL_MACHINE|Loaded in Run\Old (C:\OLD.exe) Entry Modified!)",
                               R"(HKEY_LOCAL_MACHINE|Loaded in RunOnce\Foo (C:\foo.exe) New Entry!)",
                               R"(HKEY_LOCAL_MACHINE|Loaded in command\ (x.exe %1) (x.exe %1) New Entry!)",
                               R"(HKEY_CURRENT_USER|Loaded in command\User (C:\user.exe) New Entry!)",
                               R"(HKEY_CURRENT_USER|Loaded in command\Twin (C:\OLD.exe) New Entry!)",
                               R"(HKEY_CLASSES_ROOT|Loaded in command\ (x.exe %1) (x.exe %1) New Entry!)"}));
    set(user, run, "\u0436", "x.exe");
    pc.codePage.use(SimCodePage::Page::Western);
    app->globals.regWatch.regNew = true; // Accepts all.
    refresh();
    EXPECT_EQ(refresh(), Rows{R"(HKEY_CURRENT_USER|Loaded in \? () New Entry!)"})
        << "its value is out of reach";
}

TEST_F(RegistryWatch, WhatIsSelectedCanBeDeleted) {
    set(classes, "bat" + command, "", "other %1");
    ASSERT_FALSE(start());
    set(machine, run, "Foo", R"(C:\foo.exe)");
    set(machine, run, "Cut", "%systemroot%\\c.exe", Sim::ExpandableText);
    set(machine, version + "RunOnce", "Bar", "bar.exe");
    set(user, run, "User", "u.exe");
    refresh();
    const std::string foo = R"(Foo (C:\foo.exe))", fooNode = R"(#1 (C:\foo.exe))";
    EXPECT_EQ(select(2), R"(Cut (%systemroot%\c.exe New Entry!))") << "cut at its zero";
    for (int again = 0; again < 2; ++again) {
        EXPECT_EQ(select(1) + select(0) + form().Label19.Caption(), foo + "(none)" + foo);
    }
    form().Image7.click();
    EXPECT_TRUE(entry() == "(none)" && !form().cScnUpd.Enabled()) << "after coming to the page anew";
    EXPECT_EQ(select("LOCAL") + select("!LLIR") + form().Label19.Caption(), "(none)(none)" + foo);
    EXPECT_EQ(select("#2 (bar.exe)"), "Bar (bar.exe)");

    select(fooNode);
    EXPECT_FALSE(deletes("Foo", machine, run, Answer::No));
    EXPECT_TRUE(deletes("Foo", machine, run, Answer::Yes));
    EXPECT_TRUE(form().TreeView1.find(fooNode) == nullptr && form().Text4.Caption().empty());
    select(3);
    deletes("User", user, version + "RunOnce", Answer::Yes); // A row of the user's names no key of its own.
    EXPECT_TRUE(pc.registry.value(user, run, "User"));
    select(2);
    EXPECT_TRUE(deletes("Bar", machine, version + "RunOnce", Answer::Yes));
    select("#1 (u.exe)");
    EXPECT_TRUE(deletes("User", user, run, Answer::Yes));
    select("#3 (other %1)");
    asks("This key will not be deleted.\r\nYou must change the value manually. Would you like to open the "
         "Registry for Editing now?",
         Answer::Yes, "Caution");
    form().Command3.click();
    EXPECT_EQ(pc.processes.started().back(), (StartedProcess{"regedit.exe", WindowStyle::MinimizedFocus}));
    EXPECT_TRUE(pc.registry.value(classes, "bat" + command, ""));
}

TEST_F(RegistryWatch, OneFileOrAllGoToTheScannersAndAllIsAccepted) {
    for (const char* path : {"system32\\found.exe", "notepad.exe", "system\\old.drv"}) {
        pc.files.put("C:\\WINDOWS\\"s + path, "");
    }
    ASSERT_FALSE(start());
    for (const char* text :
         {"found.exe /quiet", "gone.exe", R"("C:\a b\x.exe" "%1")", "notepad.exe", "old.drv x",
          R"(C:\Program Files\a)", R"(%systemroot%\a.exe /a)", R"(%SystemRoot%\b.exe)", R"(C:\\double\\x)"}) {
        set(machine, run, text, text);
    }
    set(machine, run, "Cut", R"(%windir%\c.exe)", Sim::ExpandableText);
    refresh();
    const std::string found = R"("C:\WINDOWS\system32\found.exe")", quoted = R"("C:\a b\x.exe")";
    for (const int row : {1, 3}) {
        select(row);
        form().Command11.click();
    }
    EXPECT_EQ(lines(), (Rows{"C:\\av.exe /s " + found, "C:\\two.exe  " + found, "C:\\av.exe /s " + quoted,
                             "C:\\two.exe  " + quoted}));
    select(2);
    clickTelling(form().Command11, "Cannot find file, please scan manually");

    const std::string notice = "Unable to find the file: gone.exe\r\nPlease scan manually.";
    pc.processes.canStart = [](const std::string&) { return false; };
    tells(notice);
    clickTelling(form().cScnUpd, notExecuted + "C:\\av.exe");
    pc.processes.canStart = nullptr;
    pc.files.lock(dataFolder + "Tarvelon.dat"); // Which names the scanners.
    app->globals.app.shutAction = 8;
    form().cScnUpd.click();
    EXPECT_EQ(app->globals.shutDown.scanLogged, 1) << "the end tells of files to look at";
    app->globals.app.shutAction = -1;
    pc.files.unlock(dataFolder + "Tarvelon.dat");
    EXPECT_EQ(refresh().size(), 10u);
    clickTelling(form().cScnUpd, notice);
    EXPECT_EQ(lines().at(4),
              "C:\\av.exe /s  " + found + "  " + quoted +
                  R"( "C:\WINDOWS\notepad.exe" "C:\WINDOWS\system\old.drv" "C:\Program.exe")"
                  R"( "C:\WINDOWS\a.exe" "%SystemRoot%\b.exe" "C:\double\x.exe" "%windir%\c.exe")");
    EXPECT_THAT(file(report),
                testing::StartsWith("Registry Action - Scan and Update Multiple "
                                    "Entries,C:\\WINDOWS\\system32\\found.exe,,C:\\a,b\\x.exe,"));
    EXPECT_EQ(refresh(), noWarnings);
}

TEST_F(RegistryWatch, PendingOperationsAreShownAndScanned) {
    ASSERT_FALSE(start());
    form().Image7.click();
    clickTelling(form().cMod, "No files will be modified or deleted on Restart!");
    EXPECT_TRUE(form().List6.isShown() && !form().TreeView1.isShown());
    pc.files.put(R"(C:\WINDOWS\wininit.ini)",
                 "[Rename]\r\nnul=C:\\T\\X.TMP\r\nno entry\r\nC:\\A.DLL=C:\\B.DLL\r\na=b=c");
    pendingRenames("\\??\\C:\\a.tmp\0\0\\??\\C:\\b.tmp\0!\\??\\C:\\c (1).dll\0"s);
    form().cMod.click();
    EXPECT_EQ(
        form().List6.items(),
        (Rows{"These files are to be Deleted or Overwritten on the next Reboot (Wininit.ini and Registry).",
              "C:\\T\\X.TMP {To be Deleted}", "C:\\B.DLL {To be Overwritten}", "b=c {To be Overwritten}",
              "C:\\a.tmp", "C:\\b.tmp", "C:\\c (1).dll"}));
    form().List6.select(2);
    EXPECT_EQ(form().Text4.Caption(), "C:\\B.DLL {To be Overwritten}");
    tells("Unable to find the file: b=c\r\nPlease scan manually.");
    tells("Unable to find the file: 1\r\nPlease scan manually.");
    form().Command11.click();
    EXPECT_EQ(lines().at(0), "C:\\av.exe /s  \"C:\\T\\X.TMP\" \"C:\\B.DLL\"  \"C:\\a.tmp\" \"C:\\b.tmp\" ");
    EXPECT_THAT(
        file(report),
        testing::StartsWith("Precautionary Scan - These files were to be renamed/deleted/overwritten at "
                            "startup,C:\\T\\X.TMP,"));
    pendingRenames("\\??\\C:\\" + std::string(300, 'x'));
    form().cMod.click();
    EXPECT_EQ(form().List6.count(), 4) << "a value of more than 256 bytes reads as empty";
    form().Command1.click();
    EXPECT_TRUE(form().TreeView1.isShown() && !form().List6.isShown());
    EXPECT_EQ(form().Command11.Caption(), "Scan File for Viruses");
}

} // namespace
} // namespace tarvelon
