// Ends the program without warning while it writes, starts it again as its user would, and sees whether it
// comes back to work: kills COUNT PROGRAM EXPECTED-BASELINES-FOLDER

#include "tools/driver/driver.h"
#include "tools/driver/workplace.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <memory>
#include <set>
#include <sstream>

namespace e2e {
namespace {

/// The lines that are not empty, in any order. None has a blank in it.
std::multiset<std::string> linesOf(const std::optional<std::string>& text) {
    std::istringstream stream(text.value_or(""));
    return {std::istream_iterator<std::string>(stream), {}};
}

/// The program's folder, a file that its baseline lacks, and one more folder under watch.
struct Place {
    const ProgramFolder folder{"killed"};
    const ProgramFolder watched{"many"};
    const PlantedFile visitor{systemDirectory() + "zzvisitor.dll", "a visitor"};
    std::unique_ptr<Program> program;

    Place() {
        for (int number = 100; number < 300; ++number) {
            writeFile(watched.path() + std::to_string(number) + ".dll", std::to_string(number));
        }
        configure("1");
    }

    /// With "1", log-on runs accept what they find, in the watched folder too.
    void configure(const std::string& accept) const {
        folder.writeSettings({{"settings", "1,1,1,1,1,1," + accept + ",0"},
                              {"1/path", watched.path()},
                              {"1/args", "1,0,0,0,0,0,1"}});
    }

    Form start(const std::string& arguments, const char* form) {
        folder.writeData("Integrity.dat", systemBaseline());
        program = std::make_unique<Program>(folder.program(), arguments);
        return program->form(form);
    }

    std::string state() const {
        std::string all;
        for (const std::string name : {"Integrity.dat", "integrity.bak", "1.dat", "1.bak"}) {
            const auto lines = linesOf(folder.data(name));
            const auto blank =
                std::ranges::count_if(lines, [](auto& line) { return line.ends_with("=NULL*E"); });
            all += folder.hasData(name) ? name + " " + std::to_string(lines.size()) + " lines, " : "";
            all += folder.hasData(name) ? std::to_string(blank) + " blank; " : "";
        }
        return all;
    }
};

using Click = std::function<void()>; // A work goes up to its last click, which it gives.

Click pressing(Place& place, const char* text) {
    return [&place, text] { place.program->press(text); };
}

Click firstFullScan(Place& place) {
    place.program = std::make_unique<Program>(place.folder.program());
    place.program->box();
    return pressing(place, "Yes");
}

Click acceptance(Place& place) {
    place.configure("0");
    place.start("/r", "AutoCheck");
    place.program->play({{"Repair and Update Failed Files..."}, {"Scan Failing Files..."}});
    place.program->box();
    return pressing(place, "OK");
}

Click settings(Place& place) {
    place.start("", "Welcome to Tarvelon");
    place.program->play({{"Options"}, {"Edit Settings"}, {"Auto-Logging"}, {"SYS,386"}});
    return pressing(place, "Save Settings");
}

Click wizard(Place& place) {
    place.start("", "Welcome to Tarvelon");
    place.program->play({{"Options"},
                         {"Settings Wizard", "Welcome to the Setup Wizard"},
                         {"Next >>>", "Anti-Virus Setup (1/2)"}});
    place.program->form("Setup Wizard").fill(0, place.folder.program());
    place.program->play(std::vector<Step>(7, {"Next >>>"}));
    return pressing(place, "Save");
}

Click customFirstScan(Place& place) {
    const Form window = place.start("", "Welcome to Tarvelon");
    place.program->press("Integrity Scan");
    Sleep(1000); // The list of folders opens only once it stands.
    window.choose(place.watched.path());
    place.program->box();
    return pressing(place, "Yes");
}

struct Work {
    const char* name;
    Click (*prepare)(Place&);
    const char* watched; ///< The file in the data folder that changes first.
    double span;         ///< Milliseconds from there to the latest kill.
};
constexpr Work works[] = {{"first full scan", firstFullScan, "Integrity.dat", 4000},
                          {"acceptance", acceptance, "1.bak", 60},
                          {"settings", settings, "Tarvelon.dat", 30},
                          {"wizard", wizard, "Tarvelon.dat", 30},
                          {"folder's first scan", customFirstScan, "1.dat", 3000}};

/// Ends a program some time behind the first change of a file.
struct Killer {
    const Program& program;
    const std::string watched;
    const std::chrono::duration<double, std::milli> delay;
    const DWORD first = stamp();

    DWORD stamp() const {
        WIN32_FILE_ATTRIBUTE_DATA data{};
        GetFileAttributesExA(watched.c_str(), GetFileExInfoStandard, &data);
        return data.ftLastWriteTime.dwLowDateTime;
    }
    static DWORD WINAPI run(void* argument) {
        const Killer& self = *static_cast<const Killer*>(argument);
        for (int tries = 0; self.stamp() == self.first && tries < 1'000'000; ++tries) {
        }
        const auto moment = std::chrono::steady_clock::now() + self.delay;
        while (std::chrono::steady_clock::now() < moment) {
        }
        self.program.kill();
        return 0;
    }
};

/// Answers boxes, as a user does who wants to go on, until something holds. Gives what the boxes asked.
std::string answerUntil(const Program& program, const std::function<bool()>& holds) {
    std::string asked;
    const bool came = comesTrue([&] {
        const std::optional<Box> box = program.boxNow();
        if (box && !box->text.empty()) {
            asked += "\"" + box->text.substr(0, 40) + "...\" ";
            program.press(std::ranges::count(box->buttons, "Yes") > 0 ? "Yes" : "OK");
        }
        return !box && holds();
    });
    if (!came) {
        throw NotSeen("it asks " + asked + "and does not get on; " + program.describe());
    }
    return asked;
}

/// Starts the program as its user would, and gives what it asked.
std::string comeBack(Place& place) {
    auto program = std::make_unique<Program>(place.folder.program());
    const std::string asked = answerUntil(*program, [&, rest = 0]() mutable {
        rest = program->hasForm("Welcome to Tarvelon") && !program->hasForm("AutoCheck") ? rest + 1 : 0;
        return rest == 20; // Nothing more is asked.
    });
    program->form("Welcome to Tarvelon").close();
    answerUntil(*program, [&] { return program->ends(Milliseconds(0)); });
    place.configure("1");
    program = std::make_unique<Program>(place.folder.program(), "/r");
    answerUntil(*program, [&] { return program->ends(Milliseconds(0)); });
    const std::string all = withEntry(systemBaseline(), "DLL", "zzvisitor.dll", crcText("a visitor"));
    if (!std::ranges::includes(linesOf(place.folder.data("Integrity.dat")), linesOf(all)) ||
        !linesOf(place.folder.data("1.dat")).contains("299.dll=" + crcText("299") + "*E")) {
        throw NotSeen("the baselines are not those of the folders: " + place.state());
    }
    return asked;
}

/// How many settings are as saved. All others must be as before.
std::size_t savedSettings(const Place& place, const std::multiset<std::string>& before) {
    const std::set<std::string> saved = {"settings=1,1,1,1,1,1,1,1", "settings2=0,0,1,0,0,0",
                                         "antivirus=" + place.folder.program() + "|"};
    const auto now = linesOf(place.folder.data("Tarvelon.dat"));
    std::set<std::string> changed;
    std::ranges::set_difference(now, before, std::inserter(changed, changed.end()));
    if (now.size() < before.size() || !std::ranges::includes(saved, changed)) {
        throw NotSeen("the settings are: " + place.folder.data("Tarvelon.dat").value_or("lost"));
    }
    return changed.size();
}

void killOnce(const Work& work, double delay) {
    Place place;
    const Click lastClick = work.prepare(place);
    const auto before = linesOf(place.folder.data("Tarvelon.dat"));
    Killer killer{*place.program, place.folder.path() + "Data\\" + work.watched,
                  std::chrono::duration<double, std::milli>(delay)};
    HANDLE const thread = CreateThread(nullptr, 0, Killer::run, &killer, 0, nullptr);
    try {
        lastClick();
    } catch (const NotSeen&) { // It went while it was clicked.
    }
    WaitForSingleObject(thread, INFINITE);
    std::fprintf(stderr, "%s%zu settings saved; ", place.state().c_str(), savedSettings(place, before));
    std::fprintf(stderr, "%s\n", comeBack(place).c_str());
}

} // namespace
} // namespace e2e

int main(int, char** arguments) {
    e2e::setInputs({arguments[2], std::string(arguments[3]) + "\\"});
    const int kills = std::atoi(arguments[1]);
    int failed = 0;
    for (int number = 0; number < kills; ++number) {
        const e2e::Work& work = e2e::works[number % 5];
        const double share = (number / 5 + 0.5) / ((kills + 4) / 5);
        std::fprintf(stderr, "%s, %.2f ms from its first change: ", work.name, work.span * share * share);
        try {
            e2e::killOnce(work, work.span * share * share);
        } catch (const std::exception& failure) {
            std::fprintf(stderr, "FAILED: %s\n", failure.what());
            ++failed;
        }
    }
    std::fprintf(stderr, "%d kills, %d without a way back\n", kills, failed);
    return failed;
}
