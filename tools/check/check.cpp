// Runs the Windows tests on the system at hand, as a guest, and tells about it in report.txt:
//
//     check [--cases-only]
//
// It lies in a folder "programs" beside which everything else is made. With the option no pictures are taken.
// Ends with 0 when no case has failed, 1 when one has, and 2 when it could not begin.

#include "child.h"
#include "leftovers.h"
#include "screen_picture.h"
#include "system_facts.h"
#include "test_program.h"
#include "tools/driver/seen_windows.h"
#include "tools/driver/workplace.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <sstream>

namespace check {
namespace {

using Result = Case::Result;

void say(const std::string& line) {
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
}

const char* word(Result result) {
    return result == Result::Passed ? "passed  " : result == Result::Failed ? "FAILED  " : "left out";
}

/// The folder above that of this program, with a backslash.
std::string kitFolder() {
    const std::string own = e2e::ownFolder();
    return own.substr(0, own.rfind('\\', own.size() - 2) + 1);
}

std::string now() {
    SYSTEMTIME time{};
    GetLocalTime(&time);
    char text[32] = {};
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", time.wYear, time.wMonth, time.wDay,
                  time.wHour, time.wMinute, time.wSecond);
    return text;
}

class Check {
public:
    explicit Check(std::string kit)
        : kit_(std::move(kit)) {}

    void runTests() {
        std::map<std::string, std::string> contract = {
            {"Contract.KeyContainersAndDigests",
             "It would delete the key container in the name of the one who runs it."}};
        if (ansiPage() != 1252) {
            contract["RegistryContract.NamesCountWithoutRegardToCase"] =
                "It knows the letters of the ANSI code page 1252 only.";
        }
        if (!keepsShortNames(work_)) {
            contract["Contract.PathsAreReadAsTheSystemReadsThem"] = "This drive keeps no short names.";
        }
        runProgram({"contract", programs_ + "contract_test.exe", "", contract});
        constexpr unsigned long windows11 = 22000;
        for (const std::string page : {"en-US", "ja-JP"}) {
            const TestProgram program{"contract in " + page, programs_ + "contract_" + page + ".exe", "",
                                      contract};
            if (buildNumber() >= windows11 || isWine_) {
                runProgram(program);
            } else {
                add({program.name, Result::LeftOut,
                     "    Only Windows 11 gives a program such a code page.\n"});
            }
        }
        runProgram({"view", programs_ + "view_test.exe", ""});
        std::map<std::string, std::string> e2e = {
            {"RunModes.AtShutDown",
             "It presses Turn Off, and writes to what the system is to do with files at its next start."}};
        constexpr unsigned utf8 = 65001;
        if (GetACP() != utf8) {
            e2e["RunModes.WithNamesOfEveryScriptAndALongPath"] = "This system grants no program UTF-8.";
        }
        runProgram({"e2e", programs_ + "e2e.exe", tarvelon_ + " \"" + work_ + "e2e" + "\"", e2e});
    }

    void takePictures() {
        const std::string pictures = kit_ + "pictures\\";
        e2e::removeFolder(pictures);
        e2e::makeFolder(pictures);
        std::string told;
        const auto onLine = [&](const std::string& line) {
            std::istringstream words(line);
            std::string mark;
            std::string name;
            long width = 0;
            long height = 0;
            RECT place{};
            char between = 0;
            words >> mark >> name >> width >> between >> height >> place.left >> place.top;
            if (mark != "@picture") {
                told += "    " + line + "\n";
                return;
            }
            place.right = place.left + width;
            place.bottom = place.top + height;
            pictures_ += "    pictures\\" + name + "\n";
            if (!takeScreenPicture(place, pictures + name)) {
                told += "    no picture " + name + "\n";
                e2e::writeFile(pictures + name, ""); // It is waited for.
            }
        };
        say("Pictures of the screens");
        const Outcome outcome =
            runChild(programs_ + "screens.exe",
                     tarvelon_ + " \"" + kit_ + "pictures" + "\" \"" + work_ + "screens" + "\"",
                     e2e::Milliseconds(15 * 60'000), onLine);
        const bool whole = outcome.ending == Ending::Ended && outcome.code == 0 && told.empty();
        add({"screens", whole ? Result::Passed : Result::Failed, told});
    }

    void writeReport(const std::string& begun) const {
        std::string text = "\xef\xbb\xbfTarvelon, checked on the Windows at hand\n\nBegun " + begun +
                           ", over " + now() + "\n" + summary() + "\n\nSYSTEM\n\n";
        for (const auto& [name, fact] : facts_) {
            text += "    " + name + ": " + fact + "\n";
        }
        text += "\nCASES\n\n";
        for (const Case& one : cases_) {
            text += std::string("    ") + word(one.result) + "  " + one.name + "\n";
        }
        for (const Result result : {Result::LeftOut, Result::Failed}) {
            text += result == Result::Failed ? "\nWHAT FAILED\n\n" : "\nWHAT IS LEFT OUT, AND WHY\n\n";
            for (const Case& one : cases_) {
                text += one.result == result ? one.name + "\n" + one.told + "\n" : "";
            }
        }
        text += "PICTURES\n\n" + pictures_;
        std::string lines;
        for (const char letter : text) {
            lines += letter == '\n' ? "\r\n" : std::string(1, letter);
        }
        e2e::writeFile(kit_ + "report.txt", lines);
    }

    std::string summary() const {
        return count(Result::Passed) + " passed, " + count(Result::Failed) + " failed, " +
               count(Result::LeftOut) + " left out";
    }
    bool hasFailed() const { return count(Result::Failed) != "0"; }

private:
    std::string count(Result result) const {
        return std::to_string(std::ranges::count(cases_, result, &Case::result));
    }

    void add(const Case& one) {
        cases_.push_back(one);
        say(std::string(word(one.result)) + "  " + one.name);
    }

    void runProgram(const TestProgram& program) {
        runCases(program, [this](const Case& one) { add(one); });
    }

    const std::string kit_;
    const std::string work_ = kit_ + "work\\";
    const std::string programs_ = kit_ + "programs\\";
    const std::string tarvelon_ = "\"" + programs_ + "TarvelonLow.exe\"";
    const std::vector<std::pair<std::string, std::string>> facts_ = systemFacts(work_);
    const bool isWine_ = facts_.at(1).second != "no";
    std::vector<Case> cases_;
    std::string pictures_;
};

/// Empty when the check can begin.
std::string whatIsInTheWay(const std::string& kit) {
    if (!takeBack(kit + "work\\")) {
        return "The folder " + kit + "work is left from an earlier check and cannot be removed.";
    }
    if (programRuns()) {
        return "Tarvelon is running. Please end it and start the check again.";
    }
    if (!e2e::makeFolder(kit + "work")) {
        return "Nothing can be written into " + kit + ". Please unpack the check into a folder of your own.";
    }
    return "";
}

int run(bool withPictures) {
    const std::string kit = kitFolder();
    if (const std::string why = whatIsInTheWay(kit); !why.empty()) {
        say(why);
        return 2;
    }
    // The tests' own temporary files lie there too.
    e2e::makeFolder(kit + "work\\temp");
    SetEnvironmentVariableW(L"TMP", e2e::wide(kit + "work\\temp").c_str());
    SetEnvironmentVariableW(L"TEMP", e2e::wide(kit + "work\\temp").c_str());
    SetThreadExecutionState(ES_CONTINUOUS | ES_SYSTEM_REQUIRED | ES_DISPLAY_REQUIRED);

    const std::string begun = now();
    Check all(kit);
    all.runTests();
    if (withPictures) {
        all.takePictures();
    }
    const bool removed = takeBack(kit + "work\\");
    all.writeReport(begun);
    say(removed ? "" : "The folder " + kit + "work could not be removed; the next check removes it.");
    say(all.summary());
    say("The report is " + kit + "report.txt");
    return all.hasFailed() ? 1 : 0;
}

} // namespace
} // namespace check

int main(int count, char** arguments) {
    try {
        return check::run(count < 2 || std::strcmp(arguments[1], "--cases-only") != 0);
    } catch (const std::exception& problem) {
        std::printf("The check stops: %s\n", problem.what());
        return 2;
    }
}
