// What becomes of thousands of findings and reports, timed:
//
//   findings update|update-custom|reports COUNT ROUNDS
//
// "update" accepts COUNT findings of the system directory, every second one new, into its baseline,
// "update-custom" those of a custom folder into that folder's; "reports" fills the tree with COUNT reports.
// Prints the milliseconds of each round.

#include "app/application.h"
#include "platform/sim/workstation.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

namespace {

using namespace tarvelon;

const std::string dataFolder = R"(C:\Program Files\Tarvelon\Data\)";
const std::string watchedFolder = R"(C:\Program Files\Watched Programs\)";

/// The program with its window open, on a workstation of its own.
struct Running {
    explicit Running(const std::function<void(SimFiles&)>& prepare) {
        pc.files.put(dataFolder + "Tarvelon.dat", "[Tarvelon]\r\nsettings=1,1,1,1,1,1,0,0\r\n");
        pc.files.put(dataFolder + "Integrity.dat", "");
        prepare(pc.files);
        for (Screen* screen : app.screens()) {
            pc.attach(*screen);
        }
        app.start();
    }

    SimWorkstation pc;
    Platform platform{pc.platform()};
    Application app{platform};
};

double millisecondsOf(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

std::string fileName(int number) {
    return "program file " + std::to_string(number) + ".dll";
}

/// A baseline that knows every second file.
std::string baselineOf(int count) {
    std::string text = dataFileHeader;
    for (const std::string section : sectionNames) {
        text.append("[").append(section).append("]\r\n");
        for (int number = 0; number < count; number += 2) {
            const std::string name = fileName(number);
            if (TextRules().upper(lastCharacters(name, 3)) == section) {
                text.append(name).append("=3A2B44C1*E\r\n");
            }
        }
        text.append("NULL*E\r\n");
    }
    return text;
}

double update(int count, bool custom) {
    const std::string data = dataFolder + (custom ? "3.dat" : "Integrity.dat");
    Running run([&](SimFiles& files) { files.put(data, baselineOf(count)); });
    ScanRun& scan = run.app.globals.scan;
    for (int number = 0; number < count; ++number) {
        const std::string path = (custom ? watchedFolder : R"(C:\WINDOWS\system32\)") + fileName(number);
        run.app.intCheck.List1.add(path + (number % 2 != 0 ? " *NEW*" : ""));
        (custom ? scan.customFailList : scan.failList)
            .append(path)
            .append(custom ? "(3) " : " ")
            .append("59F1D00D,");
    }
    const double time = millisecondsOf([&] { run.app.resultAction.UpdateDatFile(); });
    const std::string saved = run.pc.files.get(data).value_or("");
    if (saved.find(fileName(0) + "=59F1D00D*E") == std::string::npos ||
        saved.find(fileName(count - 1) + "=59F1D00D*E") == std::string::npos) {
        std::fputs("the baseline does not hold the findings\n", stderr);
        std::exit(1);
    }
    return time;
}

double reports(int count) {
    Running run([&](SimFiles& files) {
        for (int number = 0; number < count; ++number) {
            char name[64];
            std::snprintf(name, sizeof name, "%d-%d-2004(%d_%02d_%02dPM).log", number % 12 + 1,
                          number / 12 % 28 + 1, number % 11 + 1, number / 60 % 60, number % 60);
            files.put(dataFolder + "Log\\" + name, "heading\r\n");
        }
    });
    const double time = millisecondsOf([&] { run.app.mForm1.cReports.click(); });
    const auto& nodes = run.app.mForm1.TreeView2.nodes();
    if (nodes.size() <= static_cast<std::size_t>(count) / 2) {
        std::fputs("the tree does not hold the reports\n", stderr);
        std::exit(1);
    }
    return time;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 4) {
        std::fputs("usage: findings update|update-custom|reports COUNT ROUNDS\n", stderr);
        return 2;
    }
    const std::string work = arguments[1];
    const int amount = std::atoi(arguments[2]);
    for (int round = 0; round < std::atoi(arguments[3]); ++round) {
        std::printf("%.3f ", work == "reports" ? reports(amount) : update(amount, work == "update-custom"));
    }
    std::puts("");
}
