#pragma once

#include "core/profile_files.h"

#include <optional>
#include <string>

namespace tarvelon {

struct Globals;
struct Platform;
class TextRules;

/// The settings file, and the shared writer for it, the registry snapshot and the baselines.
class SettingsFile {
public:
    SettingsFile(Globals& globals, Platform& platform);

    /// Makes the settings file when it is missing. Throws `Failure` when it cannot be made.
    void checkSettFile();

    /// The value of a main key by its request word (without regard to case): GETSETT, GETSETT2, ANTIVIRUS,
    /// AV2, ANTIVIRUS2, ALGO, PATH, ARGS, ADV. Empty for a value of one character or none, for an absent key,
    /// for a last line without line end and for any other word. Throws `Failure` when the file cannot be
    /// read.
    std::string getSetting(const std::string& request) const;

    /// Bytes of a value that can be read back.
    static constexpr std::size_t longestValue = 249;

    /// The value in a profile file, at most `longestValue` bytes of it; empty when there is none.
    std::string readIni(const std::string& file, const std::string& key, const std::string& section);

    /// A value of an added folder's slot in the settings file: "path", "args" or "args2".
    std::string ofSlot(const std::string& slot, const std::string& key);
    std::string ofSlot(int slot, const std::string& key);
    void saveOfSlot(const std::string& slot, const std::string& key, const std::string& value);

    /// Stores a main key in the settings file. Whether it reached the disk is not told.
    void saveSetting(const std::string& key, const std::string& value);

    /// Stores one entry. The settings file and the registry snapshot are written at once, and so is every
    /// file during the primary full scan: the result tells whether that worked. Otherwise the entry goes to
    /// the baseline in memory (that of the custom folder while `customFolder` is not empty), with no result;
    /// `value` then has its "*E" on. A baseline takes no name with a "?", which stands for a character that
    /// the code page lacks: such a file cannot be opened, and must be found as new each time. An entry that
    /// was made under the other page keeps its name there. Throws
    /// `Failure` for a section that the baseline does not have.
    std::optional<bool> writeEntry(const std::string& file, const std::string& key, const std::string& value,
                                   const std::string& section);

    /// The place from 1 to 9 of a section in the system baseline, without regard to case.
    std::optional<std::size_t> findSection(const std::string& name) const;
    std::optional<std::size_t> findCustomSection(const std::string& name) const;

    const TextRules& texts() const;

private:
    bool isWrittenThrough(const std::string& file) const;
    void writeToMemory(const std::string& key, const std::string& value, const std::string& section);

    Globals& globals_;
    Platform& platform_;
    ProfileFiles profiles_;
};

} // namespace tarvelon
