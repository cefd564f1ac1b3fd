#pragma once

#include <functional>

namespace tarvelon {

struct Globals;
struct Platform;

/// The registry snapshot's file.
class SnapshotFile {
public:
    SnapshotFile(Globals& globals, Platform& platform)
        : globals_(globals)
        , platform_(platform) {}

    /// A pass over the watched locations; while `regNew` is set it records what they hold.
    std::function<void()> setReg;

    /// Makes the file with its empty sections when it is missing, and has the locations recorded. Throws
    /// `Failure` when it cannot be made.
    void checkRegFile();

private:
    Globals& globals_;
    Platform& platform_;
};

} // namespace tarvelon
