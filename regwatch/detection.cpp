#include "regwatch/detection.h"

#include "core/globals.h"
#include "core/other_page.h"
#include "core/settings_file.h"
#include "platform/codepage.h"
#include "platform/messages.h"
#include "platform/platform.h"
#include "regwatch/locations.h"
#include "regwatch/reg_class.h"
#include "regwatch/reg_page_controls.h"

#include <algorithm>
#include <vector>

namespace tarvelon {

namespace {

/// What a command key normally holds.
constexpr const char* normalCommand = "\"%1\" %*";

const LocationRoot& rootOf(const Location& location) {
    return *std::find_if(locationRoots.begin(), locationRoots.end(),
                         [&](const LocationRoot& root) { return root.root == location.root; });
}

} // namespace

Detection::Detection(RegPageControls& screen, const Services& services)
    : Services(services)
    , screen_(screen) {}

void Detection::setReg() {
    screen_.List2.clear();
    screen_.List3.clear();
    screen_.List5.clear();
    screen_.List5.add("New and Modified Registry Entry Warnings");
    screen_.TreeView1.clear();
    for (const LocationRoot& root : locationRoots) {
        screen_.TreeView1.addRoot(root.nodeKey, root.name);
    }
    // Rows of the user's and the classes' keys carry the tail of the last warning of the local machine.
    std::string keyTail;
    RegClass key(platform.registry);
    int groupIndex = 0;
    Registry::Key group = 0;
    for (const Location& location : locations) {
        groupIndex = location.root == group ? groupIndex + 1 : 1;
        group = location.root;
        walk(location, groupIndex, key, keyTail);
    }
    showOutcome();
    globals.regWatch.regNew = false;
}

void Detection::walk(const Location& location, int groupIndex, RegClass& key, std::string& keyTail) {
    screen_.TreeView1.addChild(rootOf(location).nodeKey, location.nodeKey, location.label);
    key.OpenRegistry(location.root, location.path);
    for (const std::string& name : key.GetAllValues().value_or(std::vector<std::string>())) {
        const std::string value = key.GetValue(name);
        if (value != normalCommand) {
            showEntry(location, groupIndex, name, " (" + value + ")", keyTail);
        }
        platform.messages.pump();
    }
    key.CloseRegistry();
}

/// Puts a value into the tree, and into the warnings if it is one.
void Detection::showEntry(const Location& location, int groupIndex, std::string name, std::string storedText,
                          std::string& keyTail) {
    // Of two values with one text the tree shows the first, be it in another group's location of that number.
    screen_.TreeView1.addChild(location.nodeKey, "#" + std::to_string(groupIndex) + storedText,
                               name + storedText);
    const Found found = checkRegEntry(name, storedText, location);
    if (found == Found::Nothing) {
        return;
    }
    if (location.root == Registry::localMachine) {
        keyTail = globals.texts.bareName(location.path);
    }
    screen_.List5.add(std::string(rootOf(location).name) + "|Loaded in " + keyTail + "\\" + name +
                      storedText + (found == Found::New ? " New Entry!" : " Entry Modified!"));
}

void Detection::showOutcome() {
    const bool warnings = screen_.List5.count() > 1;
    if (!warnings) {
        screen_.List5.add(RegPageControls::noWarnings);
    }
    screen_.cScnUpd.Enabled = warnings;
}

Detection::Found Detection::checkRegEntry(std::string& name, std::string& storedText,
                                          const Location& location) {
    storedText = storedText.substr(0, storedText.find('\0'));
    if (name.empty()) {
        name = storedText;
    }
    std::replace(name.begin(), name.end(), '=', '-');
    // The snapshot has one line for each value.
    for (std::string* text : {&name, &storedText}) {
        std::replace(text->begin(), text->end(), '\r', ' ');
        std::replace(text->begin(), text->end(), '\n', ' ');
    }
    // A name that the code page cannot hold does not lead to its value: nobody can say that it is as it was.
    const bool isOutOfReach = storedText == " ()" && name.find('?') != std::string::npos &&
                              platform.codePage.kind() != CodePage::Kind::Utf8;
    const std::string& file = globals.app.regFile;
    if (globals.regWatch.regNew) {
        if (!isOutOfReach) {
            settings.writeEntry(file, name, storedText, location.section);
        }
        return Found::Nothing;
    }
    if (isOutOfReach) {
        return Found::New;
    }
    // The snapshot may have been made when the process had another code page.
    const auto otherName = inOtherPage(platform, name);
    const auto otherText = inOtherPage(platform, storedText);
    std::string entry = settings.readIni(file, name, location.section);
    if (entry.empty() && otherName && *otherName != name) {
        entry = settings.readIni(file, *otherName, location.section);
    }
    if (entry.empty()) {
        return Found::New;
    }
    const bool isSame = trim(storedText) == trim(entry) || (otherText && trim(*otherText) == trim(entry));
    return isSame ? Found::Nothing : Found::Modified;
}

} // namespace tarvelon
