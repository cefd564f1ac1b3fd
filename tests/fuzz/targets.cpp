// What the program reads from outside, a target for each kind of text, chosen by FUZZ_TARGET: it takes any
// bytes, cut into fields at form feeds, and throws when a rule does not hold that must hold for all of them.
#include "app/application.h"
#include "core/profile_image.h"
#include "platform/sim/workstation.h"
#include "regwatch/locations.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace tarvelon::fuzz {
namespace {
using std::string, std::string_view;
SimCodePage codePage(SimCodePage::Page::Utf8);
const TextRules texts(codePage);

void demand(bool holds, const char* rule) {
    if (!holds) {
        throw std::logic_error(rule);
    }
}

constexpr auto contains = [](string_view text, string_view what) { return text.find(what) != string::npos; };

/// Exactly `count` fields: the last takes the rest, missing ones are empty.
std::vector<string> fields(string_view input, std::size_t count) {
    std::vector<string> result(count);
    for (std::size_t i = 0; i < count; ++i) {
        result[i] = i + 1 < count ? input.substr(0, input.find('\f')) : input;
        input.remove_prefix(std::min(result[i].size() + 1, input.size()));
    }
    return result;
}

/// Without these characters, and without control characters, which no file's name and no line holds.
string without(string text, string_view characters = "") {
    std::erase_if(text, [&](char it) { return (it >= 0 && it < ' ') || contains(characters, {&it, 1}); });
    return text;
}

const string programFolder = R"(C:\Program Files\Tarvelon\)", dataFolder = programFolder + "Data\\";
const string systemFolder = R"(C:\WINDOWS\system32\)";

/// A workstation with an empty baseline and a scanner, and the program, told of its files but not started.
struct Machine : SimWorkstation {
    Machine() {
        dialogs.answerer = [](const MessageBox& box) {
            return box.buttons == Buttons::YesNo ? Answer::Yes : Answer::Ok;
        };
        std::ranges::for_each(app.screens(), [this](Screen* screen) { attach(*screen); });
        app.globals.app = {programFolder, settingsPath, baselinePath, snapshotPath, "", -1, false, false};
        files.makeFolders(dataFolder + "Log\\");
        files.put(baselinePath, "");
        files.put(settingsPath, "antivirus=C:\\av.exe|/s\r\nav2=|\r\n");
    }
    const string settingsPath = dataFolder + "Tarvelon.dat", baselinePath = dataFolder + "Integrity.dat",
                 snapshotPath = dataFolder + "Registry.dat", wininitPath = R"(C:\WINDOWS\wininit.ini)";
    Application app{platform()};
};

/// The value as a fresh look at the text gives it.
std::optional<string> searched(const string& text, const string& section, const string& key) {
    ProfileImage image(texts);
    image.setText(text);
    return image.read(section, key);
}

/// A profile file's text, a section and key to look at, and three times section, key and value to write.
void profile(string_view input) {
    const auto parts = fields(input, 12);
    ProfileImage kept(texts);
    kept.setText(parts[0]);
    for (std::size_t i = 3; i < parts.size(); i += 3) {
        const string &section = parts[i], &key = parts[i + 1], &value = parts[i + 2], before = kept.text();
        const auto old = searched(before, section, key), other = kept.read(parts[1], parts[2]);
        demand(kept.read(section, key) == old, "a look-up gives what a fresh image gives");
        const auto change = kept.write(section, key, value);
        demand(kept.read(section, key) == searched(kept.text(), section, key), "and after a write");
        string undone = kept.text();
        undone.replace(change.position, change.length, change.taken);
        demand(undone == before && change.taken.find('\n') >= change.taken.size() - 1, "one line changes");
        const string all = section + key;
        const bool entry = without(all, "=]") == all && without(value) == value;
        const bool same = searched("[" + parts[1] + "]\n" + parts[2] + "=", section, key).has_value();
        demand(!entry || same || kept.read(parts[1], parts[2]) == other, "other keys keep their values");
        const bool bare = value.find_first_of(" \t\"'") == string::npos;
        demand(!entry || !bare || kept.read(section, key) == value, "what was written is read");
    }
}

/// A file's name, a checksum, and a data file.
void baseline(string_view input) {
    static Machine pc;
    const auto parts = fields(input, 3);
    const string name = without(parts[0]), value = without(parts[1], "=");
    const Baselines& held = pc.app.globals.baselines;
    DataFile& data = pc.app.dataFile;
    const auto sections = [&](const char* between) {
        return std::accumulate(held.sectionText.begin(), held.sectionText.end(), string(),
                               [&](const string& all, auto& block) { return all + block.text() + between; });
    };
    const auto survives = [&](const string& before) {
        data.saveIntFile();
        data.loadIntFile(pc.baselinePath);
        return sections("\f") == before;
    };
    pc.files.put(pc.baselinePath, parts[2]);
    data.loadIntFile(pc.baselinePath);
    demand(contains(parts[2], sections("")), "the sections are a piece of the file");
    demand(survives(sections("\f")), "what is saved is loaded again");

    const string section = held.sectionName[0];
    if (section.empty()) { // Its head is torn, or there is none.
        return;
    }
    const string block = texts.upper(held.sectionText[0].text());
    const bool isNew = !contains(block, texts.upper("\r\n" + name)) && contains(block, "\r\nNULL*E\r\n");
    pc.app.settingsFile.writeEntry(pc.baselinePath, name, value + "*E", section);
    demand(!isNew || data.getEntry(name, section) == trim(value), "an accepted entry is found");
    demand(name.starts_with('[') || survives(sections("\f")), "an accepted entry is saved and loaded again");
}

/// A whole run: its switch, and the settings file.
void settings(string_view input) {
    Machine pc;
    const auto parts = fields(input, 2);
    const string run = trim(pc.processes.arguments = parts[0]);
    SettingsFile& file = pc.app.settingsFile;
    pc.files.put(pc.settingsPath, parts[1]);
    pc.files.put(systemFolder + "new.dll", "new");
    const string algo = file.getSetting("algo");
    // Bytes that are no UTF-8 are taken for the system's ANSI page.
    demand(algo.size() != 1 && (!isAscii(algo) || contains(parts[1] + "=\r\n", "=" + algo + "\r\n")),
           "a setting ends a line");
    pc.app.start();
    const bool hides = run == "/r" || run == "/s" || run == "/a" || pc.app.globals.baselines.primaryScan;
    demand(pc.app.mForm1.Visible() != hides, "a switch or a first scan hides the main window");
    pc.messages.advance(1000);
    pc.app.mForm1.Check9.setValue(1);
    pc.app.mForm1.cSave.click();
    demand(contains(file.readIni(pc.settingsPath, "settings", "Tarvelon"), ",1,"), "a ticked box is saved");
}

/// The snapshot, wininit.ini, and up to four values of the watched locations, name and data.
void registry(string_view input) {
    Machine pc;
    const auto parts = fields(input, 10);
    pc.files.put(pc.snapshotPath, parts[0]);
    pc.files.put(pc.wininitPath, parts[1]);
    bool recordable = true; // A line of the snapshot holds the values, and reads as their names.
    for (std::size_t i = 2; i < parts.size(); i += 2) {
        const string &name = parts[i], &text = parts[i + 1], both = name + text;
        const Location& location = locations[i * 5 % locations.size()];
        const std::uint32_t type = text.size() % 3 + 1; // Text, expandable text or binary data.
        pc.registry.setValue(location.root, location.path, name, {type, text + '\0'});
        recordable = recordable && without(both) == both && both.size() < 80 && trim(name) == name &&
                     !contains(name, "=") && !name.starts_with('(');
    }
    MForm1Screen& form = pc.app.mForm1;
    form.Command1.click();
    demand(form.List5.count() > 1 && form.List5.count() < 10, "a value warns once in each of its locations");
    for (ListBox* list : {&form.List5, &form.List6}) {
        for (int row = 0; row < list->count(); ++row) {
            list->select(row);
            form.Command11.click();
        }
        form.cMod.click();
    }
    form.Command1.click();
    form.cScnUpd.click();
    form.Command1.click();
    demand(!recordable || form.List5.item(1)[0] == '*', "what was accepted does not warn");
    form.TreeView1.clickNode(form.TreeView1.nodes().back());
    form.Command3.click();
}

const std::map<string_view, void (*)(string_view)> targets{
    {"profile", profile}, {"baseline", baseline}, {"settings", settings}, {"registry", registry}};
} // namespace
} // namespace tarvelon::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto target = tarvelon::fuzz::targets.at(std::getenv("FUZZ_TARGET"));
    try {
        target({reinterpret_cast<const char*>(data), size});
    } catch (const tarvelon::ProcessEnded&) { // As the program may do at any time.
    }
    return 0;
}
