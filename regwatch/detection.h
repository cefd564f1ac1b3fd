#pragma once

#include "core/services.h"

#include <cstdint>
#include <string>

namespace tarvelon {

struct Location;
struct RegPageControls;
class RegClass;

/// Compares the watched locations with the snapshot: fills the tree with what they hold and the warnings with
/// what is new or changed. While `regNew` is set it records instead.
class Detection : Services {
public:
    Detection(RegPageControls& screen, const Services& services);

    /// One pass over all locations. Window messages run inside. A location that cannot be read is left empty.
    void setReg();

    enum class Found { Nothing, New, Modified };

    /// Compares one value with its line in the snapshot, or records it. `name` and `storedText` come back as
    /// they stand in that line: the text cut at its first zero, an empty name replaced by the text, "=" by
    /// "-", line ends by blanks.
    Found checkRegEntry(std::string& name, std::string& storedText, const Location& location);

private:
    void walk(const Location& location, int groupIndex, RegClass& key, std::string& keyTail);
    void showEntry(const Location& location, int groupIndex, std::string name, std::string storedText,
                   std::string& keyTail);
    void showOutcome();

    RegPageControls& screen_;
};

} // namespace tarvelon
