// Shows the real program at work, for a machine without a display: its first full scan, then a changed and an
// added file. What it says comes from the program's screen. A line "@picture NAME" asks the script that
// started this for a picture of the screen. usage: tour PROGRAM
// PICTURES-FOLDER

#include "pictures.h"
#include "tools/driver/screens.h"
#include "tools/driver/workplace.h"

namespace e2e {
namespace {

const char* const plantedFile = "tourletter.dll";
const char* const addedFile = "tourvisitor.exe";

class Tour {
public:
    explicit Tour(const Pictures& pictures)
        : pictures_(pictures) {}

    void firstScan() {
        say("The program starts for the first time. It asks:");
        const Program program(folder_.program());
        say("  \"" + program.box().text + "\"");
        pictures_.take("1-question");
        say("The answer is Yes.");
        program.press("Yes");
        const auto start = std::chrono::steady_clock::now();

        const Form scan = holdScan(program);
        say("The scan is held for a moment; its window reads \"" + scan.caption() + "\".");
        pictures_.take("2-scan");
        program.press("Resume");

        const Form window = program.form("Welcome to Tarvelon");
        const auto taken =
            std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start);
        say("The first full scan of " + systemDirectory() + " is over after " +
            std::to_string(taken.count()) + " seconds, the pause included. The main window opens.");
        pictures_.take("3-main-window");
        window.close();
        program.ends();
        say("The baseline holds " + std::to_string(entryCount()) + " files.");
    }

    void logOnScan() {
        say("");
        say("Now one file of the system directory is changed (" + std::string(plantedFile) +
            ") and one is added (" + addedFile + "), and the program starts as at log-on, with /r.");
        planted_.rewrite("The same letter, with one word too many.\r\n");
        const PlantedFile visitor(systemDirectory() + addedFile, "Not here yesterday.\r\n");
        const Program program(folder_.program(), "/r");
        const Form results = program.form("AutoCheck");
        program.awaitText("Results");
        for (const char* label : {"Total Files Scanned:", "New Files:", "Failed Files:", "Passing Files:"}) {
            say("  " + std::string(label) + " " + results.beside(label));
        }
        pictures_.take("4-results");
        program.play({{"Repair and Update Failed Files...", "Failed Files List"}});
        say("The list of new and failed files:");
        for (const std::string& row : results.rows()) {
            say("  " + row);
        }
        pictures_.take("5-failed-files");
    }

private:
    std::size_t entryCount() const {
        const std::string text = folder_.data("Integrity.dat").value_or("");
        std::size_t count = 0;
        for (std::size_t at = text.find("*E\r\n"); at != std::string::npos;
             at = text.find("*E\r\n", at + 1)) {
            ++count;
        }
        return count - 9; // the end line of each section
    }

    static ProgramFolder makeFolder() {
        ProgramFolder folder("tour");
        folder.writeSettings({{"settings", "1,1,1,1,1,1,0,0"}});
        return folder;
    }

    const Pictures pictures_;
    const ProgramFolder folder_ = makeFolder();
    const PlantedFile planted_{systemDirectory() + plantedFile, "A letter that stays as it is.\r\n"};
};

} // namespace
} // namespace e2e

int main(int count, char** arguments) {
    return e2e::takeWalk(count, arguments, [](const e2e::Pictures& pictures) {
        e2e::Tour tour(pictures);
        tour.firstScan();
        tour.logOnScan();
    });
}
