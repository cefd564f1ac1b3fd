#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tarvelon {

class Control;
class SettingsFile;

/// One of the user's two scanners. An empty program (blanks aside) stands for none.
struct ScannerCommand {
    std::string exe; ///< Stands in the command line as it is, without quotes.
    std::string args;

    /// By its request word, from a setting `<exe>|<args>`; empty without a "|". Throws `Failure` when the
    /// settings cannot be read.
    static std::optional<ScannerCommand> stored(const SettingsFile& settings, const char* request);

    std::string setting() const { return exe + "|" + args; }
    bool isSet() const;
    /// What stands behind the program: `<args> <files>`. With empty args two blanks stand between program and
    /// files.
    std::string arguments(const std::string& files) const;
};

/// The user's first and second scanner. What goes to one goes to the other.
struct ScannerPair {
    ScannerCommand first;
    ScannerCommand second;

    /// As they are saved; one that is not saved is empty. Throws `Failure` as above.
    static ScannerPair stored(const SettingsFile& settings);

    /// Joins items, each with its blank, to as few lists as the length of a command line allows: one, also
    /// for no items, unless they are very many. An item that is too long by itself makes a list of its own.
    std::vector<std::string> lists(const std::vector<std::string>& items) const;
};

/// Where a screen holds a scanner.
struct ScannerFields {
    Control& exe;
    Control& args;

    ScannerCommand command() const;
    /// What is no scanner's setting leaves the fields as they are. Throws `Failure` as above.
    void fill(const SettingsFile& settings, const char* request) const;
};

/// Fills the fields of both scanners from the settings, and leaves them as they are where those cannot be
/// read.
void fillBoth(const SettingsFile& settings, const ScannerFields& first, const ScannerFields& second);

/// All items in one text.
std::string joined(const std::vector<std::string>& items);

} // namespace tarvelon
