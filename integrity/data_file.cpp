#include "integrity/data_file.h"

#include "core/failure.h"
#include "core/file_text.h"
#include "core/func_mod.h"
#include "core/other_page.h"
#include "core/settings_file.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/messages.h"
#include "platform/platform.h"

#include <utility>

namespace tarvelon {

namespace {

void demand(bool done, const char* what, const std::string& path) {
    if (!done) {
        throw Failure(what + ("\r\n" + path));
    }
}

/// Fills the blocks and their names: each section reaches from its "[" to the next "[" that begins a line.
/// Blocks without a section are left empty. Gives the number of sections found, at most nine.
std::size_t cut(const std::string& text, std::array<EntryBlock, sectionCount>& blocks,
                std::array<std::string, sectionCount>& names) {
    std::size_t found = 0;
    std::size_t begin = text.find('[');
    for (std::size_t n = 0; n < sectionCount; ++n) {
        if (begin == std::string::npos) {
            blocks[n].setText({});
            names[n].clear();
            continue;
        }
        const std::size_t next = text.find("\r\n[", begin + 1);
        const std::size_t end = next == std::string::npos ? text.size() : next + lineEnd.size();
        std::string block = text.substr(begin, end - begin);
        const std::size_t close = block.find(']');
        names[n] = close == std::string::npos ? std::string() : block.substr(1, close - 1);
        blocks[n].setText(std::move(block));
        begin = next == std::string::npos ? next : end;
        ++found;
    }
    return found;
}

} // namespace

DataFile::DataFile(const Services& services)
    : Services(services) {}

void DataFile::loadIntFile(const std::string& path) {
    intFile_ = path;
    intFileRead_ = false;
    const auto text = read(path);
    intFileRead_ = text.has_value();
    fill(text.value_or(""), globals.baselines.sectionText, globals.baselines.sectionName);
}

void DataFile::needIntFile(const std::string& path) {
    if (!intFileRead_ || intFile_ != path) {
        loadIntFile(path);
    }
}

bool DataFile::loadCustomDat(const std::string& path) {
    const std::string backup = backupOf(path);
    if (!funcMod.fileThere(path) && funcMod.fileThere(backup)) {
        const Answer answer =
            platform.dialogs.message({.text = "The data file is missing! Would you like to use the backup?",
                                      .title = ".Dat file Missing!",
                                      .buttons = Buttons::YesNo});
        if (answer == Answer::Yes) {
            demand(copyWholeFile(platform.files, backup, path), "The backup cannot be copied to:", path);
        }
    }
    // A file that is there and cannot be opened at the moment is not missing, and no blank one takes its
    // place.
    if (!funcMod.fileThere(path) && !platform.files.length(path)) {
        // The number is all that stands between "Data\" and the first ".", so a name with an algorithm in it
        // ("7-md5") is no slot of the settings, and the folder comes out empty.
        const std::string number = getBetween(globals.texts, path, 1, dataFolderName, ".");
        const std::string folder = settings.ofSlot(number, "path");
        buildCustomDat(folder, path, number);
    }
    const auto text = read(path);
    fill(text.value_or(""), globals.baselines.customText, globals.baselines.customName);
    return text.has_value();
}

/// Empty when the file is not there. None is made in its place: it would pass for one of a folder that has
/// been scanned.
std::optional<std::string> DataFile::read(const std::string& path) const {
    auto text = readWholeFile(platform.files, path);
    if (!text && platform.files.length(path)) {
        throw Failure("The data file cannot be read:\r\n" + path);
    }
    return text;
}

void DataFile::fill(const std::string& text, Blocks& blocks, Names& names) const {
    const std::size_t found = cut(text, blocks, names);
    // Only behind the last block: a scan that runs in one of these pumps may load the file anew, and what it
    // loaded must not be mixed with the text read before.
    for (std::size_t n = 1; n < found; ++n) {
        platform.messages.pump();
    }
}

std::string DataFile::getEntry(const std::string& key, const std::string& section) const {
    return entry(globals.baselines.sectionText, settings.findSection(section), key);
}

std::string DataFile::getCustomEntry(const std::string& key, const std::string& section) const {
    return entry(globals.baselines.customText, settings.findCustomSection(section), key);
}

std::string DataFile::entry(const Blocks& blocks, std::optional<std::size_t> number,
                            const std::string& key) const {
    if (!number) {
        return {};
    }
    const EntryBlock& block = blocks[*number - 1];
    std::string value = trim(block.find(globals.texts, key));
    if (value.empty() && !isAscii(key)) {
        // The baseline may have been made when the process had another code page.
        const auto other = inOtherPage(platform, key);
        value = other ? trim(block.find(globals.texts, *other)) : value;
    }
    platform.messages.pumpInLoop();
    return value;
}

void DataFile::saveIntFile() {
    // What could not be read is empty in memory, and must not take the place of the whole file.
    demand(intFileRead_, "The data file could not be read, and is left as it is:", intFile_);
    save(intFile_, globals.app.dataFolder() + "integrity.bak", globals.baselines.sectionText);
}

void DataFile::saveCustomDat(const std::string& path) {
    save(path, backupOf(path), globals.baselines.customText);
}

void DataFile::save(const std::string& path, const std::string& backup, const Blocks& blocks) {
    demand(copyWholeFile(platform.files, path, backup), "The data file cannot be backed up:", path);
    std::string text = dataFileHeader;
    for (const EntryBlock& block : blocks) {
        text += block.text();
    }
    demand(writeWholeFile(platform.files, path, text), "The data file cannot be replaced:", path);
}

} // namespace tarvelon
