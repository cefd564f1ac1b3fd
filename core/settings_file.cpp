#include "core/settings_file.h"

#include "core/failure.h"
#include "core/file_text.h"
#include "core/globals.h"
#include "core/other_page.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <algorithm>
#include <array>

namespace tarvelon {

namespace {

struct Request {
    std::string_view word;
    std::string_view searched;
};

constexpr std::array<Request, 9> requests{{{"GETSETT", "settings="},
                                           {"GETSETT2", "settings2="},
                                           {"ANTIVIRUS", "antivirus="},
                                           {"AV2", "av2="},
                                           {"ANTIVIRUS2", "antivirus2="},
                                           {"ALGO", "algo="},
                                           {"PATH", "path="},
                                           {"ARGS", "args="},
                                           {"ADV", "advanced="}}};

std::string newSettings() {
    std::string text = "[Tarvelon]\r\n"
                       "settings=0,0,0,0,0,0,0,0\r\n"
                       "advanced=65536,500,0\r\n"
                       "antivirus=\r\n"
                       "av2=\r\n"
                       "antivirus2=1,0,0\r\n"
                       "algo=crc32\r\n"
                       "\r\n";
    for (int slot = 1; slot <= folderSlots; ++slot) {
        text.append("[")
            .append(std::to_string(slot))
            .append("]\r\n"
                    "path=NULL\r\n"
                    "args=0,0,0,0,0,0,0\r\n"
                    "args2=0,0,0,0,0,0,0\r\n"
                    "\r\n");
    }
    return text;
}

std::optional<std::size_t> placeOf(const TextRules& texts, const std::array<std::string, sectionCount>& names,
                                   const std::string& name) {
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (texts.equal(names[i], name)) {
            return i + 1;
        }
    }
    return std::nullopt;
}

/// A baseline without any section, as a file of no bytes gives it, gets all of them.
void giveSections(std::array<EntryBlock, sectionCount>& blocks,
                  std::array<std::string, sectionCount>& names) {
    if (std::any_of(names.begin(), names.end(), [](const std::string& name) { return !name.empty(); })) {
        return;
    }
    for (std::size_t i = 0; i < sectionCount; ++i) {
        names[i] = sectionNames[i];
        blocks[i].setText("[" + names[i] + "]\r\nNULL*E\r\n");
    }
}

} // namespace

SettingsFile::SettingsFile(Globals& globals, Platform& platform)
    : globals_(globals)
    , platform_(platform)
    , profiles_(platform.files, globals.texts) {}

void SettingsFile::checkSettFile() {
    const std::string& path = globals_.app.settFile;
    if (platform_.files.open(path, OpenMode::Read)) {
        return;
    }
    // What is there is not made anew, though another program may keep it to itself for the moment: it holds
    // what the user has chosen.
    const bool isThere = platform_.files.length(path).value_or(0) > 0;
    if (isThere || !writeWholeFile(platform_.files, path, newSettings())) {
        throw Failure("The settings file cannot be made:\r\n" + path);
    }
}

std::string SettingsFile::getSetting(const std::string& request) const {
    const auto text = readWholeFile(platform_.files, globals_.app.settFile);
    if (!text) {
        throw Failure("The settings file cannot be read:\r\n" + globals_.app.settFile);
    }
    for (const Request& known : requests) {
        if (globals_.texts.equal(request, known.word)) {
            const std::string value = getBetween(globals_.texts, *text, 1, known.searched, lineEnd);
            return value.size() >= 2 ? fromEitherPage(platform_, value) : std::string();
        }
    }
    return {};
}

std::string SettingsFile::readIni(const std::string& file, const std::string& key,
                                  const std::string& section) {
    return profiles_.read(file, section, key).substr(0, longestValue);
}

std::string SettingsFile::ofSlot(const std::string& slot, const std::string& key) {
    return fromEitherPage(platform_, readIni(globals_.app.settFile, key, slot));
}

std::string SettingsFile::ofSlot(int slot, const std::string& key) {
    return ofSlot(std::to_string(slot), key);
}

void SettingsFile::saveOfSlot(const std::string& slot, const std::string& key, const std::string& value) {
    writeEntry(globals_.app.settFile, key, value, slot);
}

void SettingsFile::saveSetting(const std::string& key, const std::string& value) {
    writeEntry(globals_.app.settFile, key, value, "Tarvelon");
}

std::optional<bool> SettingsFile::writeEntry(const std::string& file, const std::string& key,
                                             const std::string& value, const std::string& section) {
    const bool isBaseline = !isWrittenThrough(file);
    if (isBaseline && key.find('?') != std::string::npos) {
        return std::nullopt;
    }
    if (globals_.baselines.primaryScan || !isBaseline) {
        return profiles_.write(file, section, key, value);
    }
    writeToMemory(key, value, section);
    return std::nullopt;
}

bool SettingsFile::isWrittenThrough(const std::string& file) const {
    const std::string_view tail = lastCharacters(file, 12);
    return globals_.texts.equal(tail, "REGISTRY.DAT") || globals_.texts.equal(tail, "TARVELON.DAT");
}

void SettingsFile::writeToMemory(const std::string& key, const std::string& value,
                                 const std::string& section) {
    Baselines& baselines = globals_.baselines;
    const bool custom = !globals_.scan.customFolder.empty();
    auto& blocks = custom ? baselines.customText : baselines.sectionText;
    auto& names = custom ? baselines.customName : baselines.sectionName;
    giveSections(blocks, names);
    const auto number = placeOf(globals_.texts, names, section);
    if (!number) {
        throw Failure("The baseline has no section \"" + section + "\".");
    }
    EntryBlock& block = blocks[*number - 1];
    const auto other = isAscii(key) ? std::nullopt : inOtherPage(platform_, key);
    const bool madeInOther = other && block.has(globals_.texts, *other) && !block.has(globals_.texts, key);
    block.put(globals_.texts, madeInOther ? *other : key, value);
}

const TextRules& SettingsFile::texts() const {
    return globals_.texts;
}

std::optional<std::size_t> SettingsFile::findSection(const std::string& name) const {
    return placeOf(globals_.texts, globals_.baselines.sectionName, name);
}

std::optional<std::size_t> SettingsFile::findCustomSection(const std::string& name) const {
    return placeOf(globals_.texts, globals_.baselines.customName, name);
}

} // namespace tarvelon
