#pragma once

#include "core/services.h"

#include <functional>

namespace tarvelon {

/// The registry snapshot's file.
class SnapshotFile : Services {
public:
    explicit SnapshotFile(const Services& services)
        : Services(services) {}

    /// A pass over the watched locations; while `regNew` is set it records what they hold.
    std::function<void()> setReg;

    /// Makes the file with its empty sections when it is missing, and has the locations recorded. Throws
    /// `Failure` when it cannot be made.
    void checkRegFile();

private:
};

} // namespace tarvelon
