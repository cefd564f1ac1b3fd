#pragma once

#include "core/services.h"

#include <span>
#include <string>

namespace tarvelon {

struct AdvancedControls;
struct SAvirScreen;
struct SettingsControls;
class OwnShortcuts;
class check;

/// The settings page and the advanced page of the main window.
class SettingsPages : Services {
public:
    SettingsPages(SettingsControls& screen, AdvancedControls& advanced, SAvirScreen& scanners,
                  const Services& services, OwnShortcuts& shortcuts);

    /// Fills both pages, the scanner fields and every global that depends on the settings from the settings
    /// file. A list with fewer positions leaves the rest as it is. A value that cannot be taken ends the
    /// routine, and what stands behind it keeps its state.
    void loadSettings();

private:
    void save();
    bool loadAutoLoad();
    std::span<check* const> typesAtLogOn() const;
    void tellNothingTicked();
    bool loadAdvanced();
    bool loadShellOptions();

    SettingsControls& screen_;
    AdvancedControls& advanced_;
    SAvirScreen& scanners_;
    OwnShortcuts& shortcuts_;
};

} // namespace tarvelon
