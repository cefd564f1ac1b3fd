#include "test_program.h"

#include "child.h"

#include <set>

namespace check {

namespace {

/// Longer than any case takes on a slow disk, of which the first scan of the whole system directory takes
/// longest.
constexpr e2e::Milliseconds longestSilence{15 * 60'000};

/// What stands behind one of the marks at the beginning of a line, up to the next blank or comma.
std::string nameBehind(const std::string& line, const char* mark) {
    const std::string start = "[" + std::string(mark) + "] ";
    return line.starts_with(start)
               ? line.substr(start.size(), line.find_first_of(" ,", start.size()) - start.size())
               : "";
}

/// Reads what a program prints about its cases.
class Listener {
public:
    Listener(const TestProgram& program, const std::function<void(const Case&)>& onCase)
        : program_(program)
        , onCase_(onCase) {}

    void hear(const std::string& line) {
        if (const std::string begun = nameBehind(line, " RUN      "); !begun.empty()) {
            running_ = begun;
            told_.clear();
            return;
        }
        for (const auto& [mark, result] : {std::pair{"       OK ", Case::Result::Passed},
                                           {"  FAILED  ", Case::Result::Failed},
                                           {"  SKIPPED ", Case::Result::LeftOut}}) {
            if (!running_.empty() && nameBehind(line, mark) == running_) {
                end(result);
                return;
            }
        }
        told_ += "    " + line + "\n";
    }

    /// Of the case that was running when the program ended; false when none was.
    bool breakOff(const std::string& why) {
        if (running_.empty()) {
            return false;
        }
        told_ += "    " + why + "\n";
        end(Case::Result::Failed);
        return true;
    }

    const std::set<std::string>& done() const { return done_; }
    const std::string& told() const { return told_; }

private:
    void end(Case::Result result) {
        done_.insert(running_);
        onCase_({program_.name + "/" + running_, result, result == Case::Result::Passed ? "" : told_});
        running_.clear();
        told_.clear();
    }

    const TestProgram& program_;
    const std::function<void(const Case&)>& onCase_;
    std::set<std::string> done_;
    std::string running_;
    std::string told_; ///< Since the last case began or ended.
};

std::string howItEnded(const Outcome& outcome) {
    switch (outcome.ending) {
    case Ending::Hung:
        return "It hung, and was ended.";
    case Ending::NotStarted:
        return "It could not be started: error " + std::to_string(outcome.code) + ".";
    case Ending::Ended:
        break;
    }
    return "Its program ended with " + std::to_string(outcome.code) + ".";
}

} // namespace

void runCases(const TestProgram& program, const std::function<void(const Case&)>& onCase) {
    for (const auto& [name, why] : program.leftOut) {
        onCase({program.name + "/" + name, Case::Result::LeftOut, "    " + why + "\n"});
    }
    Listener listener(program, onCase);
    for (bool again = true; again;) {
        std::string without;
        for (const auto& [name, why] : program.leftOut) {
            without += ":" + name;
        }
        for (const std::string& name : listener.done()) {
            without += ":" + name;
        }
        const Outcome outcome =
            runChild(program.file, "\"--gtest_filter=*-" + without + "\" " + program.arguments,
                     longestSilence, [&](const std::string& line) { listener.hear(line); });
        again = listener.breakOff(howItEnded(outcome));
        if (!again && (outcome.ending != Ending::Ended || outcome.code > 1)) {
            onCase(
                {program.name, Case::Result::Failed, listener.told() + "    " + howItEnded(outcome) + "\n"});
        }
    }
}

} // namespace check
