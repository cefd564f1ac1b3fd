// Uses the program at random, by real keys and the real mouse, and sees after each event that it can still be
// used:
//
//     random_user PROGRAM SEED PLAYS EVENTS [shut-down]
//
// A play is so many events from one seed, in a fresh folder with findings; the next play has the next seed.
// What a play does hangs on its seed and on what stands on the screen. Only with the word shut-down is the
// shut-down dialog opened. Ends with 0 when no play failed.

#include "demands.h"
#include "hand.h"
#include "hidden_window.h"
#include "recorder.h"
#include "tools/driver/planted_value.h"
#include "tools/driver/seen_windows.h"
#include "tools/driver/workplace.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <memory>

namespace e2e {
namespace {

/// How the program is started, out of ten times.
constexpr const char* usualStarts[] = {"", "", "", "", "", "", "/r", "/r", "/r", "/a"};
constexpr const char* shutDownStarts[] = {"/s", "/s", "/s", "/s", "/s", "/s", "/s", "/s", "/a", ""};

std::atomic<int> timesAsked = 0;

/// Refuses whenever the system asks whether it may go down: this program was started first, so it is asked
/// first.
DWORD WINAPI standGuard(void*) {
    makeHiddenWindow([](HWND window, UINT message, WPARAM wide, LPARAM low) WINAPI -> LRESULT {
        timesAsked += message == WM_QUERYENDSESSION ? 1 : 0;
        return message == WM_QUERYENDSESSION ? FALSE : DefWindowProcA(window, message, wide, low);
    });
    for (MSG message{}; GetMessageA(&message, nullptr, 0, 0) > 0;) {
        DispatchMessageA(&message);
    }
    return 0;
}

/// Two folders under watch: one with more findings than are accepted in a moment, and one whose scan lasts.
struct WatchedFolders {
    const ProgramFolder many{"many"};
    const ProgramFolder big{"big"};

    WatchedFolders() {
        for (int number = 1000; number < 7000; ++number) {
            writeFile(many.path() + std::to_string(number) + ".dll", std::to_string(number));
        }
        for (const std::string name : {"a.drv", "b.drv", "c.dll", "d.dll", "e.exe", "f.exe"}) {
            writeFile(big.path() + name, "");
            PlantedFile::stretch(big.path() + name, 600'000'000);
        }
    }
};

/// Ends what the program has started, such as a browser; all else on the screen is the desktop's.
void closeOtherPrograms(const Program& program) {
    EnumWindows(
        [](HWND window, LPARAM spared) WINAPI -> BOOL {
            DWORD desktop = 0;
            DWORD owner = 0;
            GetWindowThreadProcessId(GetDesktopWindow(), &desktop);
            GetWindowThreadProcessId(window, &owner);
            if (IsWindowVisible(window) != 0 && owner != desktop && owner != static_cast<DWORD>(spared) &&
                owner != GetCurrentProcessId()) {
                HANDLE const process = OpenProcess(PROCESS_TERMINATE, FALSE, owner);
                TerminateProcess(process, 0);
                CloseHandle(process);
            }
            return TRUE;
        },
        static_cast<LPARAM>(program.id()));
}

class Play {
public:
    Play(std::uint32_t seed, const WatchedFolders& watched, bool shutDown)
        : seed_(seed)
        , watched_(watched)
        , shutDown_(shutDown) {
        const std::string accept = Chance(seed, 0).oneIn(2) ? "1" : "0";
        folder_.writeSettings({{"settings", "0,1,0,0,0,0," + accept + ",1\r\nsettings2=0,1,0,0,0,0"},
                               {"antivirus", scanner_.path() + "|/scan"},
                               {"1/path", watched_.many.path()},
                               {"1/args", "1,0,0,0,0,0,1"},
                               {"1/args2", "1,0,0,0,0,0,1"},
                               {"2/path", watched_.big.path()},
                               {"2/args", "1,1,0,0,1,0,1"}});
    }

    /// True when nothing has failed.
    bool run(std::uint32_t events) try {
        while (event_ < events) {
            Chance chance(seed_, ++event_);
            start(chance);
            const std::uint32_t last = std::min(events, event_ + 60 + chance.below(90));
            for (Hand hand(*program_, scanner_.path()); event_ < last && go(hand);) {
            }
            program_.reset(); // As if the power had gone.
            demandWholeFiles(folder_);
        }
        return true;
    } catch (const std::exception& failure) {
        std::printf("FAILED: seed %u, event %u: %s\n%s\n", seed_, event_, failure.what(),
                    program_ ? program_->describe().c_str() : "");
        return false;
    }

private:
    /// What is found may have been accepted by now, so most starts find it anew.
    void start(Chance& chance) {
        const char* const arguments = chance.of(shutDown_ ? shutDownStarts : usualStarts);
        const bool firstTime = *arguments == '\0' && chance.oneIn(8);
        if (firstTime) {
            DeleteFileA((folder_.path() + "Data\\Integrity.dat").c_str());
            DeleteFileA((folder_.path() + "Data\\integrity.bak").c_str());
        } else if (event_ == 1 || !chance.oneIn(3)) {
            for (const char* name : {"Integrity.dat", "1.dat", "2.dat"}) {
                folder_.writeData(name, smallBaseline("DLL", ""));
            }
        }
        std::printf("%u: starts it%s with \"%s\"\n", event_, firstTime ? " for the first time" : "",
                    arguments);
        program_ = std::make_unique<Program>(folder_.program(), arguments);
        comesTrue([this] { return !program_->windows().empty() || program_->ends(Milliseconds(0)); });
    }

    /// One event and what must hold behind it. False when the program has ended.
    bool go(Hand& hand) {
        Chance chance(seed_, ++event_);
        closeOtherPrograms(*program_);
        std::printf("%u: %s\n", event_, hand.act(chance).c_str());
        std::fflush(stdout);
        Sleep(pause);
        demandUsable(*program_);
        if (!shutDown_ && timesAsked > 0) {
            throw NotSeen("the system is asked to go down");
        }
        if (!program_->ends(Milliseconds(0))) {
            return true;
        }
        if (program_->exitCode() != 0) {
            throw NotSeen("the program has ended with " + std::to_string(program_->exitCode()));
        }
        std::printf("%u: it has ended\n", event_);
        return false;
    }

    static constexpr DWORD pause = 30; ///< Milliseconds until an event has reached the program.

    const std::uint32_t seed_;
    const WatchedFolders& watched_;
    const bool shutDown_;
    const ProgramFolder folder_{"random-user"};
    const RecordingScanner scanner_{folder_.path() + "scanner.exe"};
    const PlantedValue stranger_{HKEY_LOCAL_MACHINE, R"(Software\Microsoft\Windows\CurrentVersion\Run)",
                                 "Stranger", systemDirectory() + "notepad.exe /silent"};
    std::unique_ptr<Program> program_;
    std::uint32_t event_ = 0;
};

} // namespace
} // namespace e2e

int main(int count, char** arguments) {
    using namespace e2e;
    const auto number = [&](int place) {
        return static_cast<std::uint32_t>(std::strtoul(arguments[place], nullptr, 10));
    };
    setInputs(arguments[1]);
    CloseHandle(CreateThread(nullptr, 0, standGuard, nullptr, 0, nullptr));
    const WatchedFolders watched;
    const DWORD start = GetTickCount();
    int failed = 0;
    for (std::uint32_t seed = number(2); seed < number(2) + number(3); ++seed) {
        std::printf("Seed %u\n", seed);
        failed += Play(seed, watched, count > 5).run(number(4)) ? 0 : 1;
    }
    std::printf("%u plays of %u events, %lu seconds, %d asked to go down, %d failed\n", number(3), number(4),
                (GetTickCount() - start) / 1000, timesAsked.load(), failed);
    return failed == 0 ? 0 : 1;
}
