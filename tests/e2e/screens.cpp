// Walks through every screen of the program and has a picture taken of each. usage: screens PROGRAM
// PICTURES-FOLDER

#include "driver.h"
#include "pictures.h"
#include "planted_value.h"
#include "tree_view.h"
#include "workplace.h"

namespace e2e {
namespace {

class Walk {
public:
    explicit Walk(const Pictures& pictures)
        : pictures_(pictures) {
        writeSettings("C:\\no scanner.exe|/deep");
    }

    /// Leaves a baseline behind.
    void firstScan() {
        const Program program(folder_.program());
        const Box question = program.box();
        take("question");
        question.press("Yes");
        const Form scan = program.form("AutoCheck");
        scan.click("Pause");
        scan.awaitText("Resume");
        take("scan-progress");
        scan.click("Resume");
        program.form("Welcome to Tarvelon").close();
        program.ends();
    }

    void findings() {
        CreateDirectoryA(long_.c_str(), nullptr);
        writeSettings("C:\\no scanner.exe|/deep", {{"1/path", long_},
                                                   {"1/args", "1,1,1,1,1,1,1"},
                                                   {"2/path", "C:\\Program Files\\"},
                                                   {"2/args", "0,0,0,0,1,0,0"}});
        folder_.writeData("1.dat", smallBaseline("EXE", ""));
        folder_.writeData("2.dat", smallBaseline("EXE", ""));
        planted_.rewrite("changed");
        const PlantedFile added(long_ + "a-visitor.exe", "new");
        const Program program(folder_.program(), "/r");
        const Form results = program.form("AutoCheck");
        results.awaitText("Results");
        take("scan-results");
        results.click("Repair and Update Failed Files...");
        results.awaitText("Failed Files List");
        take("scan-failed-files");
    }

    void mainWindow() {
        for (const char* name : {"11-19-2026(8_15_00AM)", "11-20-2026(8_14_21AM)", "11-20-2026(6_02_50PM)"}) {
            folder_.writeData("Log\\" + std::string(name) + ".log",
                              "Integrity Checker - These files were either New or Failed the Integrity Check,"
                              "C:\\windows\\system32\\arrived.dll,C:\\windows\\system32\\changed.drv\r\n");
        }
        const Program program(folder_.program());
        const Form window = program.form("Welcome to Tarvelon");
        take("about");
        page(window, "Integrity Scan", "Scan Folder Now", "scan-page");
        window.click("Add/Remove Custom Folders...");
        const Form folders = program.form("Add/Remove Custom Integrity Scan Folders");
        take("folders");
        folders.close();
        registry(program, window);
        window.click("AppWatch");
        window.click("Refresh");
        comesTrue([&] { return !window.rows().empty(); });
        window.clickRow(window.rows().front());
        take("windows");
        window.click("Options");
        window.click("Load Logs");
        report(window);
        page(window, "Edit Settings", "Main Tarvelon Settings:", "settings");
        window.click("Click here to setup your anti-virus or anti-trojan application(s).");
        const Form choice = program.form("Anti-Virus/Trojan Selection Screen");
        take("scanners");
        choice.click("Help me find the correct exe file...");
        const Form catalogue = program.form("Anti-Virus Shell Help");
        take("catalogue");
        catalogue.close();
        choice.click("Cancel");
        window.click("Cancel");
        page(window, "Advanced Settings", "Integrity Checker Algorithm:", "advanced");
        window.click("Enclose Files with Quotes");
        window.click("Compare Speeds");
        comesTrue([&] { return window.rows().size() == 18 && window.shows("Compare Speeds"); });
        take("speeds");
        window.click("Cancel");
        wizard(program, window);
    }

    void shutDown() {
        writeSettings(systemDirectory() + "rundll32.exe|");
        const Program program(folder_.program(), "/s");
        const Form dialog = program.form("Secure Shut Down");
        take("shut-down");
        dialog.click("Turn Off");
        const Form progress = program.form("Scanning and Shutting Down...Please Wait");
        progress.awaitText("Status: Some files were scanned...Shutting Down in 2 minutes");
        take("count-down");
    }

private:
    void writeSettings(const std::string& scanner, std::map<std::string, std::string> more = {}) const {
        more["settings"] = "0,1,0,0,0,0,0,1\r\nsettings2=0,1,0,0,0,0";
        more["antivirus"] = scanner;
        folder_.writeSettings(more);
    }

    void registry(const Program& program, const Form& window) {
        const PlantedValue stranger(HKEY_LOCAL_MACHINE, R"(Software\Microsoft\Windows\CurrentVersion\Run)",
                                    "Stranger", R"(C:\Program Files\A stranger\stranger.exe /silent)");
        window.click("RegWatch");
        window.click("Refresh");
        comesTrue([&] { return window.rows().size() == 2; });
        window.clickRow(window.rows().at(1));
        take("registry");
        window.click("Check for modifications/deletions on reboot");
        program.box().press("OK");
        take("pending");
    }

    void report(const Form& window) {
        const TreeView tree(window.tree());
        tree.open(tree.root());
        tree.open(tree.next(TVGN_NEXT, tree.root()));
        const HTREEITEM entry = tree.next(TVGN_CHILD, tree.root());
        tree.select(entry);
        clickOn(window.tree(), tree.placeOf(entry));
        take("options");
        page(window, "View Log", "Delete this Report", "report");
        window.click("Close");
    }

    void take(const std::string& name) { pictures_.take(name); }

    void page(const Form& window, const char* entry, const char* text, const char* name) {
        window.click(entry);
        window.awaitText(text);
        take(name);
    }

    void wizard(const Program& program, const Form& window) {
        window.click("Settings Wizard");
        const Form wizard = program.form("Setup Wizard");
        for (int number = 1; number <= 9; ++number) {
            take("wizard-" + std::to_string(number));
            if (number == 9) {
                break;
            }
            wizard.click("Next >>>");
            if (number == 3) {
                program.box().press("OK");
            }
        }
    }

    const Pictures pictures_;
    const ProgramFolder folder_{"screens"};
    const PlantedFile planted_{systemDirectory() + "zzscreens.drv", "as it was"};
    const std::string long_ =
        folder_.path() + "A folder with a name that is a good deal longer than most are\\";
};

} // namespace
} // namespace e2e

int main(int count, char** arguments) {
    return e2e::takeWalk(count, arguments, [](const e2e::Pictures& pictures) {
        e2e::Walk walk(pictures);
        walk.firstScan();
        walk.findings();
        walk.mainWindow();
        walk.shutDown();
    });
}
