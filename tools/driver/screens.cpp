#include "screens.h"

#include "planted_value.h"
#include "tree_view.h"
#include "workplace.h"

namespace e2e {
namespace {

constexpr const char* absent = "C:\\Program Files\\My scanner\\scan.exe|/deep"; ///< Nothing is started.

class Walk {
public:
    explicit Walk(const Look& look)
        : look_(look) {
        writeSettings(absent);
    }

    /// Leaves a baseline behind.
    void firstScan() {
        const Program program(folder_.program());
        program.box();
        look_("question");
        program.press("Yes");
        holdScan(program);
        look_("scan-progress");
        program.press("Resume");
        program.form("Welcome to Tarvelon", 10 * patience).close();
        program.ends();
    }

    void findings() {
        makeFolder(long_);
        writeSettings(absent, {{"1/path", long_},
                               {"1/args", "1,1,1,1,1,1,1"},
                               {"2/path", "C:\\Program Files\\"},
                               {"2/args", "0,0,0,0,1,0,0"}});
        folder_.writeData("1.dat", smallBaseline("EXE", ""));
        folder_.writeData("2.dat", smallBaseline("EXE", ""));
        const std::string baseline = folder_.data("Integrity.dat").value();
        const std::string driver = entriesOf(baseline, "DRV").at(0);
        folder_.writeData("Integrity.dat", withLine(baseline, driver, nameOf(driver) + "=1D*E\r\n"));
        const PlantedFile added(long_ + "a-visitor.exe", "new");
        const Program program(folder_.program(), "/r");
        program.awaitText("Results");
        look_("scan-results");
        program.play({{"Repair and Update Failed Files...", "Failed Files List"}});
        look_("scan-failed-files");
    }

    void mainWindow() {
        for (const char* name : {"11-19-2026(8_15_00AM)", "11-20-2026(8_14_21AM)", "11-20-2026(6_02_50PM)"}) {
            folder_.writeData("Log\\" + std::string(name) + ".log",
                              "Integrity Checker - These files were either New or Failed the Integrity Check,"
                              "C:\\windows\\system32\\arrived.dll,C:\\windows\\system32\\changed.drv\r\n");
        }
        const Program program(folder_.program());
        const Form window = program.form("Welcome to Tarvelon");
        look_("about");
        visit(program, {"Integrity Scan", "Scan Folder Now"}, "scan-page");
        program.press("Add/Remove Custom Folders...");
        const Form folders = program.form("Add/Remove Custom Integrity Scan Folders");
        look_("folders");
        folders.bringToFront();
        pressKey(VK_RETURN); // "Save and Exit", from wherever the keyboard is.
        program.press("OK");
        registry(program, window);
        if (!inputs().asGuest) { // What somebody has open is nobody's business.
            program.play({{"AppWatch", "Please Click On Refresh"}, {"Refresh"}});
            comesTrue([&] { return !window.rows().empty(); });
            visit(program, {window.rows().front()}, "windows");
        }
        program.play({{"Options"}, {"Load Logs"}});
        report(program, window);
        visit(program, {"Edit Settings", "Main Tarvelon Settings:"}, "settings");
        program.press("Click here to setup your anti-virus or anti-trojan application(s).");
        const Form choice = program.form("Anti-Virus/Trojan Selection Screen");
        look_("scanners");
        program.press("Help me find the correct exe file...");
        const Form catalogue = program.form("Anti-Virus Shell Help");
        look_("catalogue");
        leave(catalogue);
        leave(choice);
        leavePage(program);
        visit(program, {"Advanced Settings", "Integrity Checker Algorithm:"}, "advanced");
        program.play({{"Enclose Files with Quotes"}, {"Compare Speeds"}});
        comesTrue([&] { return window.rows().size() == 18 && program.shows("Compare Speeds"); });
        look_("speeds");
        leavePage(program);
        program.press("Settings Wizard");
        wizard(program);
    }

    void shutDown() {
        writeSettings(systemDirectory() + "rundll32.exe|");
        const Program program(folder_.program(), "/s");
        program.form("Secure Shut Down");
        look_("shut-down");
        if (inputs().asGuest) {
            return;
        }
        visit(program, {"Turn Off", "Status: Some files were scanned...Shutting Down in 2 minutes"},
              "count-down");
    }

private:
    void writeSettings(const std::string& scanner, std::map<std::string, std::string> more = {}) const {
        more["settings"] = "0,1,0,0,0,0,0,1\r\nsettings2=0,1,0,0,0,0";
        more["antivirus"] = scanner;
        folder_.writeSettings(more);
    }

    void registry(const Program& program, const Form& window) {
        const bool asGuest = inputs().asGuest;
        const PlantedValue stranger(asGuest ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE,
                                    R"(Software\Microsoft\Windows\CurrentVersion\Run)",
                                    asGuest ? "Tarvelon check" : "Stranger",
                                    R"(C:\Program Files\A stranger\stranger.exe /silent)");
        program.play({{"RegWatch"}, {"Refresh"}});
        comesTrue([&] { return window.rows().size() == 2; });
        visit(program, {window.rows().at(1)}, "registry");
        if (asGuest) {
            return;
        }
        const PlantedFile wininit("C:\\windows\\wininit.ini",
                                  "[Rename]\r\nNUL=C:\\windows\\temp\\setup.tmp\r\n"
                                  "C:\\windows\\system32\\new.dll=C:\\windows\\system32\\old.dll\r\n");
        program.press("Check for modifications/deletions on reboot");
        comesTrue([&] { return program.shows("C:\\windows\\temp\\setup.tmp {To be Deleted}"); });
        look_("pending");
    }

    void report(const Program& program, const Form& window) {
        const TreeView tree(window.tree());
        tree.open(tree.root());
        tree.open(tree.next(TVGN_NEXT, tree.root()));
        tree.select(tree.next(TVGN_CHILD, tree.root()));
        look_("options");
        visit(program, {"View Log", "Delete this Report"}, "report");
        leavePage(program);
    }

    void visit(const Program& program, const Step& step, const char* name) {
        program.play({step});
        look_(name);
    }

    static void leave(const Form& form) {
        form.bringToFront();
        pressKey(VK_ESCAPE);
        if (!comesTrue([&] { return !form.isVisible(); })) {
            throw NotSeen("Esc does not close the " + form.describe());
        }
    }

    static void leavePage(const Program& program) {
        pressKey(VK_ESCAPE);
        program.awaitText("Edit Settings");
    }

    void wizard(const Program& program) {
        program.form("Setup Wizard");
        for (int number = 1; number <= 9; ++number) {
            look_("wizard-" + std::to_string(number));
            if (number == 9) {
                break;
            }
            program.press("Next >>>");
            if (number == 3) {
                program.press("OK");
            }
        }
    }

    const Look& look_;
    const ProgramFolder folder_{"screens"};
    const std::string long_ =
        folder_.path() + "A folder with a name that is a good deal longer than most are\\";
};

} // namespace

Form holdScan(const Program& program) {
    const Form scan = program.form("AutoCheck");
    // A percentage joins the caption with the first file; a pause before that would be forgotten.
    comesTrue([&] { return scan.caption() != "AutoCheck"; });
    program.play({{"Pause", "Resume"}});
    return scan;
}

void walkScreens(const Look& look) {
    Walk walk(look);
    walk.firstScan();
    walk.findings();
    walk.mainWindow();
    walk.shutDown();
}

} // namespace e2e
