#pragma once

#include "core/services.h"

namespace tarvelon {

class Checksum;
struct AdvancedControls;

/// The advanced page of the main window.
class AdvancedPage : Services {
public:
    AdvancedPage(AdvancedControls& screen, const Services& services, Checksum& checksum);

    /// Shows the settings in force on the page. A value that no option stands for leaves its group without a
    /// choice, and so lasts until the user picks one.
    void opened();

private:
    void save();

    AdvancedControls& screen_;
    Checksum& checksum_;
};

} // namespace tarvelon
