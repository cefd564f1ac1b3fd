#include "ui/settings_pages.h"

#include "avshell/s_avir_screen.h"
#include "core/failure.h"
#include "core/func_mod.h"
#include "core/globals.h"
#include "core/settings_file.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "ui/advanced_controls.h"
#include "ui/join_values.h"
#include "ui/own_shortcuts.h"
#include "ui/settings_controls.h"
#include "ui/short_cut.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

namespace tarvelon {

namespace {

/// Ticks the boxes by the positions that the list has; false at one that is no number.
template<class Boxes>
bool tick(const Boxes& boxes, const std::string& list) {
    const std::vector<std::string> positions = split(list, ',');
    for (std::size_t i = 0; i < boxes.size() && i < positions.size(); ++i) {
        const auto value = toNumber(positions[i]);
        if (!value) {
            return false;
        }
        boxes[i]->setValue(*value != 0);
    }
    return true;
}

} // namespace

SettingsPages::SettingsPages(SettingsControls& screen, AdvancedControls& advanced, SAvirScreen& scanners,
                             const Services& services, OwnShortcuts& shortcuts)
    : Services(services)
    , screen_(screen)
    , advanced_(advanced)
    , scanners_(scanners)
    , shortcuts_(shortcuts) {
    screen_.cSave.onClick = [this] { save(); };
    for (check* box : typesAtLogOn()) {
        box->onClick = [this] { tellNothingTicked(); };
    }
}

void SettingsPages::loadSettings() {
    passOver([this] {
        if (!loadAutoLoad() || !loadAdvanced()) {
            return;
        }
        globals.settings.autoScanFailed = screen_.Check8.value() == 1;
        fillBoth(settings, scanners_.first, scanners_.second);
        if (!loadShellOptions()) {
            return;
        }
        globals.settings.algoName = settings.getSetting("ALGO");
    });
}

bool SettingsPages::loadAutoLoad() {
    screen_.Check1.setValue(funcMod.fileThere(shortCut::autoLoadShortcut(platform, globals.texts)));
    const bool read = tick(screen_.autoLoadChecks, settings.getSetting("GETSETT"));
    tellNothingTicked();
    return read && tick(screen_.shutDownChecks, settings.getSetting("GETSETT2"));
}

std::span<check* const> SettingsPages::typesAtLogOn() const {
    return std::span(screen_.autoLoadChecks).first<6>();
}

void SettingsPages::tellNothingTicked() {
    screen_.nothingTicked.Visible =
        std::ranges::none_of(typesAtLogOn(), [](const check* box) { return box->value() != 0; });
}

bool SettingsPages::loadAdvanced() {
    const std::vector<std::string> positions = split(settings.getSetting("ADV"), ',');
    Settings& values = globals.settings;
    for (std::size_t i = 0; i < 3 && i < positions.size(); ++i) {
        const auto number = toNumber(positions[i]);
        const bool fits = number && (i < 2 || (*number >= std::numeric_limits<std::int16_t>::min() &&
                                               *number <= std::numeric_limits<std::int16_t>::max()));
        if (!fits) {
            return false;
        }
        switch (i) {
        case 0:
            values.readBuffer = *number;
            break;
        case 1:
            values.passCount = *number;
            break;
        default:
            values.useWsh = static_cast<std::int16_t>(*number);
        }
    }
    return true;
}

bool SettingsPages::loadShellOptions() {
    if (!tick(advanced_.shellChecks, settings.getSetting("ANTIVIRUS2"))) {
        return false;
    }
    globals.settings.quoteChar = advanced_.Check10.value() != 0 ? "\"" : "";
    globals.settings.shortPaths = advanced_.Check11.value() != 0;
    return true;
}

/// Every save starts from no shortcut, so that an old one is never left in place of a new one. Whether the
/// shortcut and the settings reached the disk is not looked at.
void SettingsPages::save() {
    settings.checkSettFile();
    const std::string shortcut = shortCut::autoLoadShortcut(platform, globals.texts);
    if (funcMod.fileThere(shortcut)) {
        platform.files.remove(shortcut);
    }
    if (screen_.Check1.value() == 1) {
        shortcuts_.createAutoLoad();
    }
    settings.saveSetting("settings", joinValues(screen_.autoLoadChecks));
    settings.saveSetting("settings2", joinValues(screen_.shutDownChecks));
    globals.settings.autoScanFailed = screen_.Check8.value() == 1;
    platform.dialogs.message({.text = "Settings Saved Successfully"});
}

} // namespace tarvelon
