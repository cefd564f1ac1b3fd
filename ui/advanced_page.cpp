#include "ui/advanced_page.h"

#include "core/globals.h"
#include "core/settings_file.h"
#include "hash/checksum.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "ui/advanced_controls.h"
#include "ui/join_values.h"

#include <string>

namespace tarvelon {

namespace {

template<class Choices, class Value>
void choose(const Choices& choices, const Value& value) {
    for (const auto& [option, meaning] : choices) {
        option->setValue(meaning == value);
    }
}

/// The value stays as it is when no option is chosen.
template<class Choices, class Value>
void takeChosen(const Choices& choices, Value& value) {
    for (const auto& [option, meaning] : choices) {
        if (option->value()) {
            value = meaning;
        }
    }
}

/// A click on one of the two boxes decides about the warning. While the other is ticked, clearing the clicked
/// one leaves the warning as it is.
void showWarning(const CheckBox& clicked, const CheckBox& other, Label& warning) {
    if (clicked.value() != 0) {
        warning.Visible = false;
    } else if (other.value() == 0) {
        warning.Visible = true;
    }
}

} // namespace

AdvancedPage::AdvancedPage(AdvancedControls& screen, const Services& services, Checksum& checksum)
    : Services(services)
    , screen_(screen)
    , checksum_(checksum) {
    screen_.cSave2.onClick = [this] { save(); };
    screen_.Check10.onClick = [this] { showWarning(screen_.Check10, screen_.Check11, screen_.Label1); };
    screen_.Check11.onClick = [this] { showWarning(screen_.Check11, screen_.Check10, screen_.Label1); };
}

void AdvancedPage::opened() {
    const Settings& values = globals.settings;
    const std::string algorithm = globals.texts.upper(trim(values.algoName));
    choose(screen_.bufferOptions, values.readBuffer);
    choose(screen_.passOptions, values.passCount);
    choose(screen_.algorithmOptions, values.algoName.empty() ? "CRC32" : algorithm);
    screen_.wsh.setValue(values.useWsh != 0);
}

void AdvancedPage::save() {
    Settings& values = globals.settings;
    takeChosen(screen_.bufferOptions, values.readBuffer);
    takeChosen(screen_.passOptions, values.passCount);
    takeChosen(screen_.algorithmOptions, values.algoName);
    checksum_.setDatName();
    values.useWsh = static_cast<std::int16_t>(screen_.wsh.value());

    settings.checkSettFile();
    settings.saveSetting("advanced", std::to_string(values.readBuffer) + "," +
                                         std::to_string(values.passCount) + "," +
                                         std::to_string(values.useWsh));
    settings.saveSetting("antivirus2", joinValues(screen_.shellChecks));
    settings.saveSetting("algo", values.algoName);
    platform.dialogs.message({.text = "Save Success!"});
}

} // namespace tarvelon
