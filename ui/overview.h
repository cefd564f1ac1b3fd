#pragma once

#include "core/services.h"
#include "ui/controls/controls.h"

#include <string>
#include <vector>

namespace tarvelon {

class Checksum;

/// One line of the start page: how something stands, as `StatusLine` shows it.
struct Standing {
    Tone tone;
    std::string text;
};

/// Tells how the program's parts stand. Everything is read from the files when it is asked for.
class Overview : Services {
public:
    Overview(const Services& services, const Checksum& checksum);

    /// The baseline of the system's files.
    Standing systemFiles() const;
    /// The folders that were added.
    Standing folders() const;
    Standing scanner() const;
    /// Whether there is a check at log-on, and of what.
    Standing autoLoad() const;
    /// Lists the folder of the reports, which ends any other listing.
    Standing reports() const;

private:
    std::vector<std::string> typesAtLogOn() const;
    int foldersAtLogOn() const;

    const Checksum& checksum_;
};

} // namespace tarvelon
