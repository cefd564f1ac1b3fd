// Scans: what they take in, how they sort it and are left, and what becomes of their findings; and the
// baselines, in which the findings end.

#include "core/failure.h"
#include "tests/workstation/session.h"

#include <filesystem>
#include <iomanip>
#include <sstream>

namespace tarvelon {
namespace {

const std::string withReports = "1,1,1,1,1,1,0,1", automatic = "1,1,1,1,1,1,1,0";

class Scan : public Session {
protected:
    /// The baseline over these files of the system folder, which hold their names, and the settings of later
    /// runs, with a first scanner.
    void live(const Rows& names, const SettingsText& settings) {
        putFiles(names);
        makeBaseline();
        before = data("Integrity.dat");
        configure(settings);
    }

    void configure(SettingsText settings) {
        pc.files.put(R"(C:\av\scan.exe)", "");
        settings.antivirus = "C:\\av\\scan.exe| /s ";
        putSettings(settings);
    }

    void putFiles(const Rows& names) {
        for (const std::string& name : names) {
            pc.files.put(systemFolder + name, name);
        }
    }

    /// A log-on run up to its results.
    void find(std::size_t findings) {
        ASSERT_FALSE(start("/r"));
        ASSERT_FALSE(settle());
        ASSERT_EQ(screen().List1.items().size(), findings);
    }

    /// What happens when so many files are done.
    void at(const std::string& done, std::function<void()> action) {
        pc.messages.when([this, done] { return screen().Label6.Caption() == done; }, std::move(action));
    }

    void accept() { screen().Label12.click(); }

    IntCheckScreen& screen() const { return app->intCheck; }
    std::string figures() const {
        return screen().Label6.Caption() + "/" + screen().Label8.Caption() + "/" + screen().Label9.Caption() +
               "/" + screen().Label7.Caption();
    }
    static std::string entry(const std::string& name, const std::string& bytes) {
        return name + "=" + crcText(bytes) + "*E\r\n";
    }

    std::string before; ///< The baseline without the findings.
};

TEST_F(Scan, SortsItsFindingsAndOneClickAcceptsThem) {
    live({"bad.exe", "gone.ocx", "going.dll", "good.dll", "k.386", "locked.sys", "s.scr", ".dll"},
         {.settings = withReports, .av2 = "C:\\av\\two.exe|", .antivirus2 = "1,0,1"});
    pc.files.put(systemFolder + "bad.exe", "after");
    pc.files.put(systemFolder + "new one.com", "new");
    pc.files.remove(systemFolder + "gone.ocx");
    ASSERT_FALSE(start("/r"));
    EXPECT_TRUE(screen().Minimized() && !app->mForm1.Visible());
    at("1", [this] {
        pc.files.remove(systemFolder + "going.dll");
        pc.files.lock(systemFolder + "locked.sys");
    });
    ASSERT_FALSE(settle());
    EXPECT_EQ(figures(), "8/1/3/4") << "what had gone before is not treated at all";
    EXPECT_EQ(screen().Caption() + screen().Label13.Caption(), "100% AutoCheckResults");
    EXPECT_EQ(screen().l_exe.Caption() + screen().l_sdrv.Caption(), "new one.com100%");
    EXPECT_TRUE(screen().Frame2.isShown() && !screen().Label14.Visible() && !screen().Minimized());
    screen().Label2.click();
    EXPECT_TRUE(screen().Frame3.isShown());
    asks(leaveFindings, Answer::No, "Warning");
    EXPECT_FALSE(ends([this] { screen().close(); }));

    accept();
    const std::string dir = "\"" + systemFolder;
    const std::string all =
        dir + "going.dll\" " + dir + "locked.sys\" " + dir + "bad.exe\" " + dir + "new one.com\" ";
    EXPECT_EQ(pc.processes.started(),
              (std::vector<StartedProcess>{{"C:\\av\\scan.exe /s " + all, WindowStyle::NormalFocus},
                                           {"C:\\av\\two.exe  " + all, WindowStyle::NormalFocus}}));
    EXPECT_TRUE(file(report).starts_with(
        "Integrity Checker - These files were either New or Failed the Integrity Check," + systemFolder +
        "going.dll,"));
    EXPECT_TRUE(file(report).ends_with("bad.exe," + systemFolder + "new,one.com\r\n"));
    EXPECT_EQ(data("integrity.bak"), before);
    EXPECT_THAT(data("Integrity.dat"), HasSubstr(entry("bad.exe", "after") + "NULL*E\r\n[COM]\r\n" +
                                                 entry("new one.com", "new") + "NULL*E\r\n[PIF]"));
    EXPECT_EQ(screen().Caption() + screen().Label13.Caption() + screen().Label12.Caption(),
              "Integrity File(s) UpdatedIntegrity File UpdatedClose Integrity Window");
    EXPECT_TRUE(ends([this] { accept(); })) << "without a question";
    ASSERT_FALSE(start("/r"));
    EXPECT_TRUE(settle()) << "the second scan is clean";
}

struct Naming {
    SimCodePage::Page page;
    bool shortNames;
    Rows shown; ///< The names below, as they are listed.
};

class Names : public Scan, public testing::WithParamInterface<Naming> {};

TEST_P(Names, HideNoFile) {
    using Page = SimCodePage::Page;
    const auto& [page, shortNames, shown] = GetParam();
    pc.codePage.use(page);
    pc.systemPage.use(page == Page::Japanese ? page : Page::Western);
    pc.files.withoutShortNames = !shortNames;
    const auto putAll = [&](const std::string& bytes) {
        for (const char* name : {"plain.dll", "\u0436\u0451.dll", "\u03b1\u03b2.sys", "\u30bd\u8868.exe",
                                 "\u00e9t\u00e9.ocx", "\U0001f600.drv"}) {
            pc.files.putByUtf8(systemFolder + name, name + bytes);
        }
    };
    // What cannot be opened by its name is new in each run, also if it was accepted.
    const auto finds = [&](bool changed) {
        Rows rows;
        for (const std::string& name : GetParam().shown) {
            const bool isLost = name.find('?') != std::string::npos;
            if (changed || isLost) {
                rows.push_back(systemFolder + name + (isLost ? " *NEW*" : ""));
            }
        }
        const bool ended = start("/r") || settle();
        EXPECT_EQ(ended, rows.empty());
        EXPECT_THAT(screen().List1.items(), testing::UnorderedElementsAreArray(rows));
    };
    putAll("");
    makeBaseline();
    configure({.settings = withReports});
    finds(false);
    const std::string host = pc.files.hostPath(systemFolder) + "/";
    std::filesystem::rename(host + "\u0436\u0451.dll", host + "\u0416\u0401.dll");
    finds(false);
    std::filesystem::rename(host + "\u0416\u0401.dll", host + "\u0436\u0451.dll");
    putAll("changed");
    finds(true);
    accept();
    std::istringstream files(lines().at(0).substr(std::string("C:\\av\\scan.exe /s ").size()));
    for (std::string path; files >> std::quoted(path, '"', '\0');) {
        EXPECT_TRUE(path.find('?') != std::string::npos || pc.files.get(path)) << path;
        EXPECT_TRUE(pc.systemPage.toUtf16(path)) << path;
    }
    EXPECT_THAT(file(report), HasSubstr("," + systemFolder + shown[3]));
    finds(false);
    if (page != Page::Utf8) {
        return;
    }
    // The same system before it had UTF-8 to give, and after: new once are those that it had to list by other
    // names.
    pc.codePage.use(Page::Western);
    find(4);
    accept();
    pc.files.put(systemFolder + "\xe9t\xe9.ocx", "by another page");
    find(1);
    accept();
    pc.codePage.use(Page::Utf8);
    finds(false);
}

INSTANTIATE_TEST_SUITE_P(
    Under, Names,
    testing::Values(Naming{SimCodePage::Page::Utf8,
                           true,
                           {"plain.dll", "\u0436\u0451.dll", "\u03b1\u03b2.sys", "\u30bd\u8868.exe",
                            "\u00e9t\u00e9.ocx", "\U0001f600.drv"}},
                    Naming{SimCodePage::Page::Japanese,
                           true,
                           {"plain.dll", "\x84\x77\x84\x76.dll", "\x83\xbf\x83\xc0.sys",
                            "\x83\x5c\x95\x5c.exe", "_T_~1.OCX", "_~1.DRV"}},
                    Naming{SimCodePage::Page::Western,
                           true,
                           {"plain.dll", "__~1.DLL", "__~1.SYS", "__~1.EXE", "\xe9t\xe9.ocx", "_~1.DRV"}},
                    Naming{SimCodePage::Page::Western,
                           false,
                           {"plain.dll", "??.dll", "??.sys", "??.exe", "\xe9t\xe9.ocx", "??.drv"}}));

TEST_F(Scan, TypesNotWantedAreLeftOut) {
    live({"a.dll", "b.drv", "s.scr"}, {.settings = "1,0,0,0,0,1,0,0"});
    pc.files.put(systemFolder + "b.drv", "changed");
    ASSERT_FALSE(start("/r"));
    EXPECT_EQ(screen().pb2max.Caption(), "2") << "the last type counts towards the total";
    EXPECT_TRUE(settle());
    EXPECT_EQ(screen().l_2exe2.ForeColor(), colors::scanGrey);
}

TEST_F(Scan, IsStartedAnewPausedAndCancelledOnItsWay) {
    live({"0.dll", "1.dll", "2.dll", "3.dll", "4.dll", "5.dll", "6.dll", "7.dll", "8.dll"}, {});
    ASSERT_FALSE(start());
    app->mForm1.bDLL.click();
    const auto scan = [this] { app->mForm1.bSCAN.click(); };
    scan();
    at("3", scan); // Runs inside the first.
    EXPECT_FALSE(settle());
    EXPECT_EQ(figures(), "9/0/0/9");
    screen().Label2.click();
    EXPECT_FALSE(screen().Visible());

    putFiles({"55.dll"}); // The next one when the scan is cancelled.
    scan();
    at("4", [this] { screen().Image9.click(); });
    std::string whilePaused;
    pc.messages.onWait([&] {
        whilePaused = screen().Label6.Caption() + (screen().Label11.isShown() ? " Resume" : "");
        screen().Label11.click();
    });
    at("6", [this] { screen().Image9.click(); });
    pc.messages.onWait([this] { screen().Image11.click(); });
    EXPECT_FALSE(settle());
    EXPECT_EQ(whilePaused, "4 Resume");
    EXPECT_EQ(figures() + " " + screen().l_sdll.Caption(), "6/0/0/6 60%");
    EXPECT_EQ(screen().pbm.Caption(), "0") << "a cancelled pass leaves no sum";
    EXPECT_TRUE(!screen().Visible() && !screen().Label14.Visible());
}

TEST_F(Scan, AutomaticRunsTakeInCustomFoldersAndAcceptWhatTheyFound) {
    for (const std::string folder :
         {R"(C:\Plain Folder\)", R"(C:\With (x86)\)", R"(C:\Dots v1.2\)", R"(C:\No\)"}) {
        pc.files.put(folder + "a,b.dll", "1");
        pc.files.put(folder + "two.dots.exe", "2");
    }
    live({"a.dll"},
         {.settings = automatic,
          .folders = "[1]\r\npath=C:\\Plain Folder\\\r\nargs=1,1,1,1,1,1,1\r\nargs2=0,0,0,0,0,0,0\r\n"
                     "[2]\r\npath=C:\\With (x86)\\\r\nargs=1,1,1,1,1,1,1\r\n"
                     "[3]\r\npath=C:\\No\\\r\nargs=1,1,1,1,1,1,0\r\n"
                     "[20]\r\npath=C:\\Dots v1.2\r\nargs=0,0,0,0,1,0,1\r\n"});
    pc.files.put(systemFolder + "a.dll", "changed");
    ASSERT_FALSE(start("/r"));
    EXPECT_EQ(screen().pb2max.Caption(), "6");
    std::string turn;
    at("2", [&] { turn = screen().l_cust2.Caption() + " of " + app->globals.scan.customFolder; });
    EXPECT_TRUE(settle());
    EXPECT_EQ(turn, "Custom Folder 1/3 of C:\\Plain Folder\\");
    EXPECT_EQ(figures(), "6/5/1/0") << "folders without a baseline get a blank one, and their files are new";
    EXPECT_THAT(data("1.dat"), HasSubstr(entry("a,b.dll", "1") + "NULL*E\r\n[DRV]"));
    EXPECT_EQ(data("2.dat").find(crcText("2")), std::string::npos) << "the slot is not found";
    EXPECT_THAT(data("20.dat"), HasSubstr("b.dll=NULL*E\r\nNULL*E\r\n[DRV]"));
    EXPECT_THAT(data("20.dat"), HasSubstr(entry("two.dots.exe", "2")));
    EXPECT_THAT(data("Integrity.dat"), HasSubstr(entry("a.dll", "changed") + entry("a,b.dll", "changed")))
        << "a custom folder's file behind a system file leaves a line in the system baseline";
}

TEST_F(Scan, BatchesFollowPassCountAndTheRoomOfACommandLine) {
    const std::string f = systemFolder + "f";
    live({}, {.settings = allTypes, .passCount = "2", .antivirus2 = "0,1,0"});
    putFiles({"f0.dll", "f1.dll", "f2.dll", "f3.dll", "f4.dll"});
    find(5);
    pc.files.remove(f + "4.dll"); // Gone by now: its short name is empty.
    accept();
    EXPECT_EQ(lines(), (Rows{"C:\\av\\scan.exe /s " + f + "0.dll " + f + "1.dll ",
                             "C:\\av\\scan.exe /s " + f + "2.dll " + f + "3.dll ", "C:\\av\\scan.exe /s  "}));
    EXPECT_EQ(pc.processes.started()[0].style, WindowStyle::MinimizedFocus);

    for (int i = 0; i < 180; ++i) {
        putFiles({std::string(180, 'n') + std::to_string(i) + ".dll"});
    }
    configure(
        {.settings = withReports, .passCount = "99999", .av2 = "C:\\two.exe|" + std::string(9000, 'x')});
    find(180);
    accept();
    EXPECT_EQ(lines().size(), 3u + 4u) << "two runs of two scanners";
    EXPECT_TRUE(file(report).ends_with("n99.dll\r\n"));
}

TEST_F(Scan, AFailingScannerLeavesTheFindingsAndAMissingOneIsPassedOver) {
    live({}, {.settings = withReports, .passCount = "1", .av2 = "C:\\av\\two.exe|/x"});
    putFiles({"a.dll", "b.dll"});
    find(2);
    pc.processes.canStart = [](const std::string& line) { return line.find("two.exe") == std::string::npos; };
    clickTelling(screen().Label12, notExecuted + "C:\\av\\scan.exe");
    EXPECT_EQ(screen().List1.count(), 2);
    EXPECT_EQ(data("Integrity.dat") + file(report), before + "(missing)");
    pc.processes.canStart = nullptr;

    configure({.settings = allTypes, .passCount = "1"});
    pc.files.remove(R"(C:\av\scan.exe)");
    find(2);
    clickTelling(
        screen().Label12,
        "You do not have any Anti-Virus program setup with Tarvelon.  For your conveniance, these files "
        "will be added to the log, and will be updated in your Integrity File (so that you can scan them "
        "for viruses later).");
    EXPECT_EQ(file(report),
              "Integrity Checker - These files were logged because you didn't setup an Anti-Virus Scanner," +
                  systemFolder + "a.dll\r\n")
        << "the first batch, even without reports";
    EXPECT_THAT(data("Integrity.dat"), HasSubstr(entry("a.dll", "a.dll") + entry("b.dll", "b.dll")));
    EXPECT_EQ(screen().List1.count(), 0);
}

TEST_F(Scan, AFailingUpdateNeverCostsTheBaseline) {
    live({}, {.settings = allTypes});
    putFiles({"a.dll", "b.dll"});
    find(2);
    const auto refused = [this](const std::string& what) {
        tells(what + "\r\n" + dataFolder +
              "Integrity.dat\r\n\r\nThe files stay listed and can be accepted again.");
        accept();
        EXPECT_EQ(data("Integrity.dat"), before);
        EXPECT_EQ(screen().Label13.Caption(), "Failed Files List");
    };
    using enum Operation;
    for (const Operation operation : {WriteFile, WriteFileHalf, Flush, MoveFile, FillDisk}) {
        SCOPED_TRACE(static_cast<int>(operation));
        pc.faults.failNth(operation, 1);
        refused("The data file cannot be backed up:");
        pc.faults.clear(operation);
    }
    pc.files.denyWrites(dataFolder + "Integrity.dat");
    refused("The data file cannot be replaced:");
    pc.files.allowWrites(dataFolder + "Integrity.dat");
    accept();
    EXPECT_THAT(data("Integrity.dat"), HasSubstr(entry("b.dll", "b.dll")));
}

TEST_F(Scan, NothingComesBetweenFindingsAndTheirBaseline) {
    pc.files.put(R"(C:\One\x.dll)", "x");
    live({"a.dll"}, {.settings = allTypes, .folders = "[1]\r\npath=C:\\One\\\r\n[2]\r\npath=C:\\Two\\\r\n"});
    for (const char* empty : {"1.dat", "2.dat", "Integrity-md5.dat"}) {
        pc.files.put(dataFolder + empty, "");
    }
    ASSERT_FALSE(start());
    MForm1Screen& form = app->mForm1;
    form.Image5.click();
    form.Combo1.select(1);
    click(form.bFULL, form.bSCAN);
    at("1", [&] { // Another algorithm counts from the next plan.
        form.Option12.click();
        clickTelling(form.cSave2, "Save Success!");
    });
    EXPECT_FALSE(settle());
    pc.messages.when([this] { return screen().Caption() == "Updating - Please Wait..."; },
                     [&] {
                         form.Combo1.select(2);
                         click(form.bSCAN, form.cSave2, app->iCust.Command3, screen().Image11);
                         accept();
                         form.close();
                     });
    EXPECT_TRUE(ends([this] { accept(); })) << "closed when all is saved";
    EXPECT_THAT(data("1.dat"), HasSubstr("[DLL]\r\n" + entry("x.dll", "x") + "NULL*E\r\n[DRV]"));
    EXPECT_EQ(data("2.dat") + data("Integrity-md5.dat"), "");
    EXPECT_EQ(data("Integrity.dat").find("x.dll"), std::string::npos);
    EXPECT_EQ(lines().size(), 1u);
    EXPECT_TRUE(form.bSCAN.Enabled());
}

TEST_F(Scan, ReportNamesFollowTheRegionalForms) {
    live({}, {});
    for (const auto& [date, time, name] : {std::tuple("2006?3?5?", "?? 3:04:07", "2006_3_5_(__3_04_07).log"),
                                           {"5.3.2006!#", "15:04:07", "5.3.2006!#(15_04_07).log"}}) {
        pc.clock.date = date;
        pc.clock.time = time;
        EXPECT_EQ(app->logFiles.fileName(), dataFolder + "Log\\" + name);
    }
}

class DataFiles : public Scan {
protected:
    void SetUp() override { live({}, {}); }

    /// The empty baseline, with these entries in its first section.
    std::string with(const std::string& entries) const {
        return replaceExact(before, "[DLL]\r\n", "[DLL]\r\n" + entries);
    }

    const std::string path = dataFolder + "Integrity.dat";
};

TEST_F(DataFiles, EntriesAreFoundInSectionsCutAtTheirHeads) {
    const std::string entries = with("KERNEL32.dll= A B *E\r\n");
    const std::string split = with("a.dll=1*E\r\n[x].dll=2*E\r\n"); // By the "[", which makes ten.
    for (const auto& [text, section, number, name, value] :
         {std::tuple(entries, "dll", 1u, "kernel32.DLL", "A B"),
          {entries, "SCR", 9u, "kernel32.dll", ""},
          {split, "DRV", 3u, "a.dll", ""},
          {split, "SCR", 0u, "a.dll", ""},
          {"[unclosed\r\n[DLL]\r\na.dll=7*E\r\n", "DLL", 2u, "A.DLL", "7"}}) {
        pc.files.put(path, text);
        app->dataFile.loadIntFile(path);
        EXPECT_EQ(app->settingsFile.findSection(section).value_or(0), number) << text;
        EXPECT_EQ(app->dataFile.getEntry(name, section), value);
    }
}

TEST_F(DataFiles, ACustomFoldersMissingFileIsRestoredOrBuilt) {
    const std::string custom = dataFolder + "7.dat", backup = dataFolder + "7.bak";
    const std::string question = "The data file is missing! Would you like to use the backup?";
    pc.files.put(backup, with("a.dll=1*E\r\n"));
    asks(question, Answer::Yes, ".Dat file Missing!");
    EXPECT_TRUE(app->dataFile.loadCustomDat(custom));
    EXPECT_EQ(app->dataFile.getCustomEntry("a.dll", "DLL"), "1");

    pc.files.remove(custom);
    pc.files.put(R"(C:\Tools\b.dll)", "b");
    app->settingsFile.writeEntry(dataFolder + "Tarvelon.dat", "path", R"(C:\Tools\)", "7");
    asks(question, Answer::No, ".Dat file Missing!");
    app->globals.app.autoLoadRun = true; // Builds it unasked.
    pc.faults.failNth(Operation::MoveFile, 2);
    EXPECT_THAT([&] { app->dataFile.loadCustomDat(custom); },
                testing::ThrowsMessage<Failure>("The data file cannot be written:\r\n" + custom));
    EXPECT_EQ(file(custom), "(missing)") << "an empty file would count as scanned";
    pc.files.remove(backup);
    EXPECT_TRUE(app->dataFile.loadCustomDat(custom));
    EXPECT_EQ(file(custom), with("b.dll=NULL*E\r\n"));
}

} // namespace
} // namespace tarvelon
