// Runs the program's own scan over a folder of a simulated workstation and prints how long it took.
//
//   scan_folder DRIVE FOLDER first|compare|all-new [ROUNDS [ADDED]]
//
// DRIVE is the host folder that stands for drive C, FOLDER the system directory on it, such as C:\files.
// "first" makes the first full scan, "compare" a scan at log-on against the baseline that "first" left,
// "all-new" one against an empty baseline, which lists every file. Of the folders C:\1\, C:\2\ and so on the
// first ADDED ones join the scan at log-on. Prints one line: the milliseconds of each round, the files
// scanned, and the peak memory in KiB.

#include "app/application.h"
#include "platform/sim/workstation.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace {

using namespace tarvelon;

const std::string dataFolder = R"(C:\Program Files\Tarvelon\Data\)";

/// Answers every question with Yes.
class Yes : public Dialogs {
public:
    Answer message(const MessageBox&) override { return Answer::Yes; }
    bool getOpenFileName(OpenFileRecord&) override { return false; }
    bool browseForFolder(const std::string&, std::uint32_t, char*) override { return false; }
};

/// One run of the program; gives the milliseconds of its scan.
double scan(const std::string& drive, const std::string& folder, const std::string& kind, int added,
            std::string& files) {
    const bool first = kind == "first";
    SimWorkstation pc(drive);
    pc.folders.systemDirectory = folder;
    if (first) {
        pc.files.remove(dataFolder + "Integrity.dat");
    } else if (kind == "all-new") {
        pc.files.put(dataFolder + "Integrity.dat", "");
    }
    std::string settings = "[Tarvelon]\r\nsettings=1,1,1,1,1,1,0,0\r\n";
    for (int slot = 1; slot <= added; ++slot) {
        const std::string number = std::to_string(slot);
        settings += "[" + number + "]\r\npath=C:\\" + number + "\\\r\nargs=1,1,1,1,1,1,1\r\n";
    }
    pc.files.put(dataFolder + "Tarvelon.dat", settings);
    pc.processes.arguments = first ? "" : "/r";
    Yes yes;
    Platform platform{pc.codePage, pc.systemPage, pc.files,     pc.folders,  pc.crypto,
                      pc.messages, yes,           pc.processes, pc.registry, pc.clock,
                      pc.shell,    pc.shortcuts,  pc.power,     pc.desktop};
    Application app(platform);
    for (Screen* screen : app.screens()) {
        pc.attach(*screen);
    }
    const auto begin = std::chrono::steady_clock::now();
    try {
        app.start();
        pc.messages.advance(1000);
    } catch (const ProcessEnded&) {
        // A clean scan at log-on ends the program.
    }
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
    files = kind == "all-new" ? std::to_string(app.intCheck.List1.count()) : app.intCheck.Label6.Caption();
    return time.count();
}

/// In KiB. (What `getrusage` tells may be the peak of the process that started this one.)
long peakMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == "VmHWM:") {
            long peak = 0;
            status >> peak;
            return peak;
        }
    }
    return 0;
}

} // namespace

int main(int count, char** arguments) {
    if (count < 4) {
        std::fprintf(stderr, "usage: scan_folder DRIVE FOLDER first|compare|all-new [ROUNDS [ADDED]]\n");
        return 2;
    }
    const int rounds = count > 4 ? std::atoi(arguments[4]) : 1;
    const int added = count > 5 ? std::atoi(arguments[5]) : 0;
    std::string files;
    for (int round = 0; round < rounds; ++round) {
        std::printf("%.3f ", scan(arguments[1], arguments[2], arguments[3], added, files));
    }
    std::printf("files %s peak_kib %ld\n", files.c_str(), peakMemory());
}
