#pragma once

#include "avshell/scanner_command.h"
#include "core/services.h"

#include <functional>
#include <string>
#include <vector>

namespace tarvelon {

class CheckBox;

/// What the user is told when a scanner cannot be started.
std::string couldNotBeExecuted(const std::string& exe);

/// Starts the user's scanners and shapes what stands on their command lines.
class Scanner : Services {
public:
    Scanner(const CheckBox& avfocus, const Services& services)
        : Services(services)
        , avfocus_(avfocus) {}

    /// The 8.3 form of a path. Empty for a file that is not there.
    std::string toShortPath(const std::string& path) const;

    /// Starts a program with these arguments and does not wait for it: with the focus and a normal window if
    /// the option `avfocus` is ticked now, else minimised. Throws `Failure` when it cannot be started, or has
    /// no name or one that begins with a blank.
    void runScanner(const std::string& exe, const std::string& arguments) const;

    /// The name in its 8.3 form, if the user wants that.
    std::string shortened(const std::string& name) const;

    /// The name in quotes, if the user wants that.
    std::string quoted(const std::string& name) const;

    /// Walks rows `first` to `last` and cuts them into batches of at most `passCount` rows. Empty rows count,
    /// but add nothing. Each batch, which may be empty, goes to `flush` as its items; false from it ends the
    /// walk. Gives whether the walk came to its end.
    bool batch(int first, int last, const std::function<std::string(int)>& row,
               const std::function<bool(const std::vector<std::string>&)>& flush) const;

    /// The items as lists for the scanners' command lines (see `ScannerPair::lists`). A scanner reads its
    /// line in the system's ANSI page and mostly opens paths of less than 260 characters: what goes beyond
    /// that is handed over by its short path, if it has one.
    std::vector<std::string> lists(const ScannerPair& scanners, const std::vector<std::string>& items) const;

    /// Starts both scanners with the items, in as many runs as it takes; nothing is started for no items.
    /// Throws `Failure` at the first scanner that cannot be started.
    void startBoth(const ScannerPair& scanners, const std::vector<std::string>& items) const;

    /// Has a scanner that is not saved yet look at the settings file and the baseline, without arguments.
    /// False, with a notice, when there is no such file. Throws `Failure` when it cannot be started.
    bool test(const std::string& exe) const;

private:
    std::string item(const std::string& name) const;
    std::string handedOver(const std::string& item) const;
    bool opensForAnyProgram(const std::string& path) const;

    const CheckBox& avfocus_;
};

} // namespace tarvelon
