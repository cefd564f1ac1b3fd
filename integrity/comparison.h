#pragma once

#include <string>

namespace tarvelon {

struct Globals;
struct IntCheckScreen;
struct Platform;
struct SProgScreen;
class Checksum;
class DataFile;
class SettingsFile;
class Utilities;

/// What one pass looks for.
struct PassArguments {
    std::string ext1;     ///< Upper-case, with its dot.
    std::string ext2;     ///< Likewise; "..." where the pass has one extension only.
    std::string dataFile; ///< Empty: the system baseline.
};

/// The inner loop of a scan: sorts the files of one folder with the pass's extensions into passing, new and
/// failed. It walks the disk, not the baseline, so a file that has gone is never reported.
class Comparison {
public:
    Comparison(IntCheckScreen& screen, SProgScreen& sProg, Globals& globals, Platform& platform,
               SettingsFile& settings, Checksum& checksum, DataFile& dataFile, const Utilities& utilities);

    /// Runs one pass. Window messages run inside; cancelled, it returns between two files.
    void comparePass(const PassArguments& arguments);

private:
    struct Pass;
    enum class Outcome { Done, Cancelled };

    Outcome compareFile(Pass& pass, const std::string& name);
    void noteNew(Pass& pass, const std::string& name, const std::string& section,
                 const std::string& checksum);
    void noteFailed(Pass& pass, const std::string& name, const std::string& checksum);
    void list(const Pass& pass, const std::string& name, const std::string& mark, const std::string& value);
    void showProgress(Pass& pass);
    bool inShutDown() const;

    IntCheckScreen& screen_;
    SProgScreen& sProg_;
    Globals& globals_;
    Platform& platform_;
    SettingsFile& settings_;
    Checksum& checksum_;
    DataFile& dataFile_;
    const Utilities& utilities_;
};

} // namespace tarvelon
