#pragma once

#include <functional>
#include <string>

namespace tarvelon {

struct Globals;
struct MForm1Screen;
struct Platform;

/// One of the user's two scanners. An empty program (blanks aside) stands for none.
struct ScannerCommand {
    std::string exe; ///< Stands in the command line as it is, without quotes.
    std::string args;

    bool isSet() const;
    /// `<exe> <args> <files>`; with empty args two blanks stand between program and files.
    std::string line(const std::string& files) const;
};

/// Starts the user's scanners and shapes what stands on their command lines.
class Scanner {
public:
    Scanner(const MForm1Screen& mForm1, const Globals& globals, Platform& platform)
        : mForm1_(mForm1)
        , globals_(globals)
        , platform_(platform) {}

    /// The 8.3 form of a path. Empty for a file that is not there.
    std::string toShortPath(const std::string& path) const;

    /// Starts a command line and does not wait for it: with the focus and a normal window if the option
    /// `avfocus` is ticked now, else minimised. Throws `Failure` when it cannot be started, or begins with a
    /// blank where the scanner should stand.
    void runScanner(const std::string& commandLine) const;

    /// The name in its 8.3 form, if the user wants that.
    std::string shortened(const std::string& name) const;

    /// The name in quotes, if the user wants that.
    std::string quoted(const std::string& name) const;

    /// Walks rows `first` to `last` and cuts them into lists of at most `passCount` rows. Empty rows count,
    /// but add nothing. Each list, which may be empty, goes to `flush`; false from it ends the walk. Gives
    /// whether the walk came to its end.
    bool batch(int first, int last, const std::function<std::string(int)>& row,
               const std::function<bool(const std::string&)>& flush) const;

    /// Starts both scanners with the list; nothing is started for an empty list.
    void startBoth(const ScannerCommand& first, const ScannerCommand& second, const std::string& list) const;

    /// Has a scanner that is not saved yet look at the settings file and the baseline, without arguments.
    /// False, with a notice, when there is no such file. Throws `Failure` when it cannot be started.
    bool test(const std::string& exe) const;

private:
    std::string item(const std::string& name) const;

    const MForm1Screen& mForm1_;
    const Globals& globals_;
    Platform& platform_;
};

} // namespace tarvelon
