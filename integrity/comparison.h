#pragma once

#include "core/services.h"

#include <cstdint>
#include <string>

namespace tarvelon {

struct IntCheckScreen;
class Checksum;
class DataFile;
class ProgressBar;

/// What one pass looks for.
struct PassArguments {
    std::string ext1;     ///< Upper-case, with its dot.
    std::string ext2;     ///< Likewise; "..." where the pass has one extension only.
    std::string dataFile; ///< Empty: the system baseline.
};

/// The inner loop of a scan: sorts the files of one folder with the pass's extensions into passing, new and
/// failed. It walks the disk, not the baseline, so a file that has gone is never reported.
class Comparison : Services {
public:
    Comparison(IntCheckScreen& screen, ProgressBar& shutDownProgress, const Services& services,
               Checksum& checksum, DataFile& dataFile);

    /// Runs one pass. Window messages run inside; cancelled, it returns between two files.
    void comparePass(const PassArguments& arguments);

    /// Shows how many files of the whole scan are done.
    void showDone(std::int32_t done);

private:
    struct Pass;
    enum class Outcome { Done, Cancelled };

    Outcome compareFile(Pass& pass, const std::string& name);
    void noteNew(Pass& pass, const std::string& name, const std::string& section,
                 const std::string& checksum);
    void noteFailed(Pass& pass, const std::string& name, const std::string& checksum);
    void list(const Pass& pass, const std::string& name, const std::string& mark, const std::string& value);
    void showProgress(Pass& pass);

    IntCheckScreen& screen_;
    Checksum& checksum_;
    DataFile& dataFile_;
    ProgressBar& shutDownProgress_;
};

} // namespace tarvelon
