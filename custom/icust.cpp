#include "custom/icust.h"

#include "core/failure.h"
#include "core/func_mod.h"
#include "core/globals.h"
#include "core/settings_file.h"
#include "custom/icust_screen.h"
#include "hash/checksum.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <array>
#include <utility>
#include <vector>

namespace tarvelon {

namespace {

constexpr const char* noTypes = "0,0,0,0,0,0,0";
constexpr const char* emptyMark = ") Empty:";
constexpr Color tickedGround = 0x800000;
constexpr Color clearedGround = 0x0000ff;

constexpr std::array<const char*, 6> typeRows = {"Scan DLL Files",      "Scan DRV Files",
                                                 "Scan 386, SYS Files", "Scan OCX Files",
                                                 "Scan EXE, COM Files", "Scan SCR, PIF Files!"};

constexpr std::array<const char*, 8> slotFiles = {".dat",     ".bak",     "-md4.dat",  "-md4.bak",
                                                  "-md5.dat", "-md5.bak", "-sha1.dat", "-sha1.bak"};

std::string rowText(int slot, const std::string& path) {
    return std::to_string(slot) + ") " + path;
}

/// Passes the ticks over to the settings' digits, by way of the words that the lists speak.
std::string digits(const TextRules& texts, const std::string& words) {
    return texts.replaceAll(texts.replaceAll(words, "False", "0"), "True", "1");
}

const char* word(bool ticked) {
    return ticked ? "True" : "False";
}

} // namespace

ICust::ICust(ICustScreen& screen, const Services& services, const Checksum& checksum)
    : Services(services)
    , screen_(screen)
    , checksum_(checksum) {
    bind();
}

void ICust::bind() {
    for (const char* row : typeRows) {
        screen_.List2.add(row);
        screen_.List4.add(row);
    }
    screen_.onQueryClose = [this] { return queryClose(); };
    screen_.List1.onClick = [this] { showFolder(); };
    screen_.Check1.onClick = [this] { boxClicked(atStartup()); };
    screen_.List2.onClick = [this] { storeTypes(atStartup()); };
    screen_.Check2.onClick = [this] { boxClicked(atShutDown()); };
    screen_.List4.onClick = [this] { storeTypes(atShutDown()); };
    screen_.cButton2.onClick = [this] { addFolder(); };
    screen_.Command2.onClick = [this] { removeFolder(); };
    screen_.Command3.onClick = [this] { save(); };
}

void ICust::open() {
    if (!screen_.Visible()) {
        begin();
    }
    screen_.show();
}

/// What an earlier opening has left unsaved is forgotten.
void ICust::begin() {
    custDirty = 0;
    startup();
    screen_.Label1.Caption = "Currently Selected:";
    for (const Use& use : {atStartup(), atShutDown()}) {
        for (int i = 0; i < use.types.count(); ++i) {
            use.types.setTicked(i, false);
        }
        use.box.setValue(false);
        use.box.BackColor = std::nullopt;
        use.box.ForeColor = colors::black;
        use.box.Enabled = true;
        use.types.Enabled = true;
    }
}

ICust::Use ICust::atStartup() {
    return {screen_.Check1, screen_.List2, screen_.List3};
}

ICust::Use ICust::atShutDown() {
    return {screen_.Check2, screen_.List4, screen_.List5};
}

void ICust::startup() {
    custLoading = true;
    screen_.List1.clear();
    screen_.List3.clear();
    screen_.List5.clear();
    for (int slot = 1; slot <= folderSlots; ++slot) {
        const std::string path = trim(settings.ofSlot(slot, "path"));
        const std::string args = settings.ofSlot(slot, "args");
        const std::string args2 = settings.ofSlot(slot, "args2");
        screen_.List1.add(path == "NULL" ? std::to_string(slot) + emptyMark : rowText(slot, path));
        screen_.List3.add(args.empty() ? noTypes : args);
        screen_.List5.add(args2.empty() ? noTypes : args2);
    }
    custLoading = false;
}

void ICust::showFolder() {
    custLoading = true;
    const int row = screen_.List1.listIndex();
    if (row >= 0) {
        const bool empty = isEmptyRow(row);
        screen_.Check1.Enabled = !empty;
        screen_.Check2.Enabled = !empty;
    }
    showUse(atStartup(), row);
    showUse(atShutDown(), row);
    screen_.Label1.Caption = "Currently Selected: " + screen_.List1.item(row);
    screen_.List2.Enabled = screen_.Check1.value() != 0;
    screen_.List4.Enabled = screen_.Check2.value() != 0;
    custLoading = false;
}

void ICust::showUse(const Use& use, int row) {
    const std::vector<std::string> positions = split(use.rows.item(row), ',');
    for (int i = 0; i < static_cast<int>(positions.size()) && i < 6; ++i) {
        use.types.setTicked(i, positions[static_cast<std::size_t>(i)] == "1");
    }
    const bool before = use.box.value() != 0;
    const bool ticked = positions.size() > 6 ? positions[6] == "1" : before;
    if (ticked != before) {
        use.box.setValue(ticked);
        followBox(use);
    }
}

/// The types can be edited only while the folder's box is ticked; cleared, they keep their ticks.
void ICust::followBox(const Use& use) {
    const bool ticked = use.box.value() == 1;
    use.box.BackColor = ticked ? tickedGround : clearedGround;
    use.box.ForeColor = ticked ? colors::white : colors::black;
    use.types.Enabled = ticked;
}

void ICust::boxClicked(const Use& use) {
    followBox(use);
    storeTypes(use);
}

void ICust::storeTypes(const Use& use) {
    if (custLoading) {
        return;
    }
    custDirty = 1;
    const int row = screen_.List1.listIndex();
    if (row < 0) {
        platform.dialogs.message({.text = "Please select a folder to edit its properties!"});
        return;
    }
    std::string words;
    for (int i = 0; i < 6; ++i) {
        words.append(word(use.types.ticked(i))).append(",");
    }
    words += word(use.box.value() != 0);
    use.rows.replace(row, digits(globals.texts, words));
}

void ICust::addFolder() {
    custDirty = 1;
    std::string folder = funcMod.browseFolder("Please Choose a Folder to Add");
    if (!folder.empty()) {
        add(std::move(folder));
    }
}

void ICust::addDropped(const std::string& path) {
    if (!platform.files.length(path)) {
        custDirty = 1;
        add(path);
    }
}

void ICust::add(std::string folder) {
    const TextRules& texts = globals.texts;
    folder = texts.withBackslash(std::move(folder));
    if (folder.size() > SettingsFile::longestValue) {
        platform.dialogs.message(
            {.text = "The path of this folder is too long to be saved, and the folder cannot be added:\r\n" +
                     folder,
             .icon = BoxIcon::Warning});
        return;
    }
    if (texts.equal(folder, funcMod.getSysDir())) {
        platform.dialogs.message({.text = "This is the default folder that Tarvelon scans. It cannot be "
                                          "added to the Custom Integrity Checker"});
        return;
    }
    int free = -1;
    for (int row = 0; row < screen_.List1.count(); ++row) {
        if (texts.equal(folder, folderOf(row))) {
            platform.dialogs.message({.text = "This folder is already being scanned."});
            return;
        }
        if (free < 0 && isEmptyRow(row)) {
            free = row;
        }
    }
    if (free < 0) {
        return; // Twenty folders are the limit, and nothing is said of it.
    }
    screen_.List1.replace(free, rowText(free + 1, folder));
    platform.dialogs.message({.text = "Folder Added."});
}

/// Takes effect at once, and is not stopped by a settings file that cannot be written.
void ICust::removeFolder() {
    custDirty = 1;
    const int row = screen_.List1.listIndex();
    if (row < 0 || isEmptyRow(row)) {
        return;
    }
    const Answer answer = platform.dialogs.message(
        {.text =
             "Are you sure you want to remove this folder? Doing so will lose all Integrity Checker data for "
             "this folder!",
         .title = "Caution!",
         .buttons = Buttons::OkCancel,
         .destroys = true});
    if (answer != Answer::Ok) {
        return;
    }
    const std::string slot = std::to_string(row + 1);
    passOver([&] { settings.checkSettFile(); });
    settings.saveOfSlot(slot, "path", "NULL");
    settings.saveOfSlot(slot, "args", noTypes);
    settings.saveOfSlot(slot, "args2", noTypes);
    screen_.List1.replace(row, slot + emptyMark);
    screen_.List3.replace(row, noTypes);
    screen_.List5.replace(row, noTypes);
    for (const char* ending : slotFiles) {
        platform.files.remove(globals.app.dataFolder() + slot + ending);
    }
}

/// Tells of success whatever became of the settings file.
void ICust::save() {
    custDirty = 0;
    passOver([&] { settings.checkSettFile(); });
    for (int row = 0; row < folderSlots; ++row) {
        const std::string slot = std::to_string(row + 1);
        const std::string folder = isEmptyRow(row) ? "NULL" : folderOf(row);
        if (folder.empty()) {
            continue; // It could not be read when the window opened, and the file keeps what it has.
        }
        settings.saveOfSlot(slot, "path", folder);
        settings.saveOfSlot(slot, "args", screen_.List3.item(row));
        settings.saveOfSlot(slot, "args2", screen_.List5.item(row));
    }
    for (int slot = 1; slot <= folderSlots; ++slot) {
        if (!scanRuns() && !isEmptyRow(slot - 1) && !funcMod.fileThere(checksum_.getCustomDat(slot))) {
            globals.scan.customIndex = static_cast<std::int16_t>(slot);
        }
    }
    platform.dialogs.message({.text = "Save Successful!"});
    passOver(loadf);
    screen_.hide();
}

bool ICust::queryClose() {
    if (custDirty == 1) {
        const Answer answer = platform.dialogs.message(
            {.text = "Do you wish to Save your changes?", .buttons = Buttons::YesNo});
        if (answer == Answer::Yes) {
            save();
        }
    }
    passOver(loadf);
    return true;
}

std::string ICust::selectedFolder() const {
    const int row = screen_.List1.listIndex();
    return row < 0 || isEmptyRow(row) ? std::string() : folderOf(row);
}

bool ICust::isEmptyRow(int row) const {
    return screen_.List1.item(row).find(emptyMark) != std::string::npos;
}

/// The row's text from its fourth character on; behind a number of two digits that is a blank, which goes.
std::string ICust::folderOf(int row) const {
    const std::string text = screen_.List1.item(row);
    return text.size() > 3 ? trim(std::string_view(text).substr(3)) : std::string();
}

} // namespace tarvelon
