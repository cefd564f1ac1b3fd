// What the program reads from outside, a target for each kind of text, chosen by FUZZ_TARGET: it takes any
// bytes, cut into fields at form feeds, and throws when a rule does not hold that must hold for all of them.
#include "avshell/known_scanners.h"
#include "core/application.h"
#include "core/profile_image.h"
#include "platform/command_line.h"
#include "platform/sim/workstation.h"
#include "regwatch/file_path.h"
#include "regwatch/locations.h"
#include "regwatch/pending_files.h"

#include <map>
#include <numeric>

namespace tarvelon::fuzz {
namespace {
using std::string, std::string_view;
SimCodePage codePage;
const CaseRules cases(codePage);

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

/// Says yes to every question.
struct YesDialogs : SimDialogs {
    Answer message(const MessageBox& box) override {
        return box.buttons == Buttons::YesNo ? Answer::Yes : Answer::Ok;
    }
};

const string programFolder = R"(C:\Program Files\Tarvelon\)", dataFolder = programFolder + "Data\\";
const string systemFolder = R"(C:\WINDOWS\system32\)";

/// A workstation with an empty baseline and a scanner, and the program, told of its files but not started.
struct Machine : SimWorkstation {
    Machine() {
        std::ranges::for_each(app.screens(), [this](Screen* screen) { attach(*screen); });
        app.globals.app = {programFolder, settingsPath, baselinePath, snapshotPath, "", -1, false, false};
        files.makeFolders(dataFolder + "Log\\");
        files.put(baselinePath, "");
        files.put(settingsPath, "antivirus=C:\\av.exe|/s\r\nav2=|\r\n");
    }
    const string settingsPath = dataFolder + "Tarvelon.dat", baselinePath = dataFolder + "Integrity.dat",
                 snapshotPath = dataFolder + "Registry.dat", wininitPath = R"(C:\WINDOWS\wininit.ini)";
    YesDialogs yes;
    Platform outside{codePage, files, folders, crypto,    messages, yes,    processes,
                     registry, clock, shell,   shortcuts, power,    desktop};
    Application app{outside};
};

string_view stripped(string_view text) {
    const std::size_t first = std::min(text.find_first_not_of(" \t"), text.size());
    return text.substr(first, text.find_last_not_of(" \t") + 1 - first);
}

/// The value as the lines of a profile file give it when they are read one by one.
std::optional<string> searched(const string& text, string_view section, string_view key) {
    int state = 0; // In front of the first section of the name, in it, or behind it.
    for (const string& part : split(text, '\n')) {
        const string_view line = stripped(string_view(part).substr(0, part.size() - part.ends_with('\r')));
        const std::size_t close = line.find(']'), equals = line.find('=');
        if (line.starts_with('[') && close != string::npos && equals == string::npos) {
            state = state > 0 ? 2 : cases.equal(stripped(line.substr(1, close - 1)), stripped(section));
        } else if (state == 1 && equals != string::npos &&
                   cases.equal(stripped(line.substr(0, equals)), stripped(key))) {
            const string_view it = stripped(line.substr(equals + 1));
            const bool quoted = it.size() > 1 && contains("\"'", it.substr(0, 1)) && it.ends_with(it[0]);
            return string(it.substr(quoted, it.size() - 2 * quoted));
        }
    }
    return std::nullopt;
}

/// A profile file's text, a section and key to look at, and three times section, key and value to write.
void profile(string_view input) {
    const auto parts = fields(input, 12);
    ProfileImage kept(cases);
    kept.setText(parts[0]);
    for (std::size_t i = 3; i < parts.size(); i += 3) {
        const string &section = parts[i], &key = parts[i + 1], &value = parts[i + 2], before = kept.text();
        const auto old = searched(before, section, key), other = kept.read(parts[1], parts[2]);
        demand(kept.read(section, key) == old, "a look-up gives what a search by lines gives");
        const std::size_t start = kept.write(section, key, value);
        demand(kept.read(section, key) == searched(kept.text(), section, key), "and after a write");
        const string rest = before.substr(old ? std::min(before.find('\n', start), before.size()) : start);
        const string& text = kept.text();
        demand(text.starts_with(before.substr(0, start)) && text.ends_with(rest), "only one line changes");
        const string all = section + key;
        const bool entry = without(all, "=]") == all && without(value) == value;
        const bool same = searched("[" + parts[1] + "]\n" + parts[2] + "=", section, key).has_value();
        demand(!entry || same || kept.read(parts[1], parts[2]) == other, "other keys keep their values");
        const bool bare = stripped(value) == value && !value.ends_with('"') && !value.ends_with('\'');
        demand(!entry || !bare || kept.read(section, key) == value, "what was written is read");
    }
}

/// Two names, and a section of a data file.
void entryBlock(string_view input) {
    const auto parts = fields(input, 3);
    EntryBlock block;
    block.setText(parts[2]);
    for (const string& name : {parts[0], parts[1]}) {
        const string text = cases.upper(parts[2]), head = "\r\n" + name + "=";
        const std::size_t hit = text.find(cases.upper(head)), start = hit + head.size();
        const std::size_t end = hit == string::npos ? hit : text.find("*E\r\n", start);
        const string found = end == string::npos ? "" : parts[2].substr(start, end - start);
        demand(block.find(cases, name) == found, "the index gives what a search through the text gives");
        demand(getBetween(cases, parts[2], 1, head, "*E\r\n") == found, "a text is found in any case");
    }
}

/// A process's whole command line, and a stored scanner, `<exe>|<args>`.
void commandLine(string_view input) {
    const auto parts = fields(input, 2);
    const string rest(behindProgramName(parts[0]));
    demand(parts[0].ends_with(rest) && rest.find_first_of(" \t") != 0, "arguments end the line");
    demand(behindProgramName("\"C:\\Program Files\\x.exe\" " + rest) == rest, "they follow a name in quotes");
    demand(behindProgramName("x.exe\t" + rest) == rest, "and one without");
    const auto scanner = splitExeAndArgs(parts[1]);
    const string exe = parts[1].substr(0, parts[1].find('|')), name = cases.upper(exe);
    demand((scanner ? scanner->exe + "|" : exe) == parts[1].substr(0, exe.size() + 1),
           "a bar ends the program");
    demand(!scanner || scanner->args == trim(parts[1].substr(exe.size() + 1)), "the rest is kept trimmed");
    const char* usual = contains(name, "NAVW") ? "/HEUR:3" : contains(name, "PAVCL") ? "/NSB /NOM /AUT" : " ";
    demand(string(usual) == defaultArguments(scannerFamily(cases, exe)), "the name chooses the arguments");
}

/// A file's name, a checksum, another file's name, and a data file.
void baseline(string_view input) {
    static Machine pc;
    const auto parts = fields(input, 4);
    const string name = without(parts[0]), value = without(parts[1], "="), other = without(parts[2], "=");
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
    pc.files.put(pc.baselinePath, parts[3]);
    data.loadIntFile(pc.baselinePath);
    demand(contains(parts[3], sections("")), "the sections are a piece of the file");
    demand(survives(sections("\f")), "what is saved is loaded again");

    const string section = held.sectionName[0], known = data.getEntry(other, section);
    const string block = cases.upper(held.sectionText[0].text());
    const bool isNew = !contains(block, cases.upper("\r\n" + name)) && contains(block, "\r\nNULL*E\r\n");
    pc.app.settingsFile.writeEntry(pc.baselinePath, name, value + "*E", section);
    demand(!isNew || data.getEntry(name, section) == trim(value), "an accepted entry is found");
    // A name with "=" in it answers for the name in front of that as well.
    const bool answersForIt = cases.upper(name).starts_with(cases.upper(other) + "=");
    const bool whole = isNew && !answersForIt && !known.empty() && !contains(known, "\r");
    demand(!whole || data.getEntry(other, section) == known, "other entries keep their values");
    demand(name.starts_with('[') || survives(sections("\f")), "an accepted entry is saved and loaded again");
}

/// Rows, findings of the system folder and of others, and names in the baselines. Among the rows stand a
/// proper finding of the system folder and one of the third added folder.
void findings(string_view input) {
    Machine pc;
    DataFile& data = pc.app.dataFile;
    const auto parts = fields(input, 4);
    string text = "[EXE]\r\nNULL*E\r\n[DLL]\r\n", rows = without(parts[0], "qQ[");
    for (const string& name : split(without(parts[3], "qQ["), '|')) {
        text += name + "=1*E\r\n";
    }
    pc.files.put(pc.baselinePath, text + "NULL*E\r\n");
    pc.files.put(dataFolder + "3.dat", text + "NULL*E\r\n");
    pc.app.globals.app.autoLoadRun = true;
    data.loadIntFile(pc.baselinePath);
    for (const string& row : split(rows + "|" + systemFolder + R"(q.dll *NEW*|D:\q\qq.dll|)" + rows, '|')) {
        pc.app.intCheck.List1.add(row);
    }
    const string inSystem = without(parts[1], "qQ") + ",", elsewhere = without(parts[2], "qQ") + ",";
    pc.app.globals.scan.failList = inSystem + systemFolder + "q.dll 1A2B," + inSystem;
    pc.app.globals.scan.customFailList = elsewhere + R"(D:\q\qq.dll(3) 77,)" + elsewhere;
    pc.app.resultAction.UpdateDatFile();
    data.loadIntFile(pc.baselinePath);
    demand(data.getEntry("q.dll", "DLL") == "1A2B", "a finding of the system folder is accepted");
    data.loadCustomDat(dataFolder + "3.dat");
    demand(data.getCustomEntry("qq.dll", "DLL") == "77", "a finding of an added folder is accepted");
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
    demand(algo.size() != 1 && contains(parts[1] + "=\r\n", "=" + algo + "\r\n"), "a setting ends a line");
    pc.app.start();
    const bool hides = run == "/r" || run == "/s" || run == "/a" || pc.app.globals.baselines.primaryScan;
    demand(pc.app.mForm1.Visible() != hides, "a switch or a first scan hides the main window");
    pc.messages.advance(1000);
    pc.app.mForm1.Check9.setValue(1);
    pc.app.mForm1.cSave.click();
    demand(contains(file.readIni(pc.settingsPath, "settings", "Tarvelon"), ",1,"), "a ticked box is saved");
    const auto saveFolders = [&] {
        pc.app.iCust.show();
        pc.app.iCust.Command3.click();
        return pc.files.get(pc.settingsPath);
    };
    const auto once = saveFolders();
    const bool quotes = parts[1].find_first_of("\"'") != string::npos; // Each reading takes a pair away.
    demand(saveFolders() == once || quotes, "folders that nobody edited are saved as they were");
}

/// An entry of the registry page.
void filePath(string_view input) {
    static Machine pc;
    pc.files.put(systemFolder + "found.exe", "");
    const CutPath cut = cutToFilePath(string(input), pc.app.utilities);
    const bool bare = !contains(cut.text, "\\");
    demand(contains(input, cut.text), "the program's name is a piece of the entry");
    demand(bare || (cut.path && contains(*cut.path, ".")), "a path is taken as one, with an ending");
    demand(!bare || !cut.path || pc.app.utilities.fileThere(*cut.path), "a bare name's file is there");
}

/// The pending-rename value, and wininit.ini.
void pendingFiles(string_view input) {
    static Machine pc;
    const auto parts = fields(input, 2);
    pc.files.put(pc.wininitPath, parts[1]);
    std::size_t from = 0;
    for (const PendingFile& entry : wininitEntries(cases, pc.outside, pc.app.utilities)) {
        const std::size_t hit = parts[1].find("=" + entry.file, from);
        demand(hit != string::npos && !contains(entry.file, "\r\n"), "right sides come in their order");
        from = std::min(parts[1].find("\r\n", hit), parts[1].size());
    }
    demand(!contains(parts[1].substr(from), "="), "and none is left out");
    pc.registry.setValue(Registry::localMachine, R"(System\CurrentControlSet\Control\Session Manager)",
                         "PendingFileRenameOperations", {SimRegistry::TextList, parts[0]});
    for (const auto& file : pendingRenames(cases, pc.outside)) {
        demand(!file || (contains(parts[0], *file) && !contains(*file, R"(\??\)")), "marks part files");
    }
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

/// A date and a time as the system writes them, names of reports, and a report's text.
void reports(string_view input) {
    Machine pc;
    const auto parts = fields(input, 4);
    for (const string& name : split(without(parts[2], R"(\/:*?"<>)"), '|')) {
        pc.files.put(dataFolder + "Log\\" + name.substr(0, 99) + ".log", parts[3]);
    }
    pc.clock.date = "3" + without(parts[0], R"(\:*?"<>|(), )").substr(0, 30);
    pc.clock.time = "3" + without(parts[1], R"(\/*?"<>|(),-)").substr(0, 30);
    pc.app.logFiles.writeLog("Mine,C:\\A.DLL," + parts[3], true);
    MForm1Screen& form = pc.app.mForm1;
    form.cReports.click();
    bool mine = false;
    for (const Tree::Node& node : form.TreeView2.nodes()) {
        form.TreeView2.clickNode(node);
        form.cViewReport.click();
        for (const string& row : form.List4.items()) {
            demand(!row.empty() && trim(row) == row && !contains(row, ","), "a row is a name");
        }
        mine = mine || (form.List4.item(0) == "Mine" && form.List4.item(1) == "C:\\A.DLL");
        form.cScnLog.click();
    }
    demand(mine && !pc.processes.started().empty(), "a report is found, opened and scanned");
    form.TreeView2.keyDown(46);
}

const std::map<string_view, void (*)(string_view)> targets{
    {"profile", profile},   {"entryBlock", entryBlock},     {"commandLine", commandLine},
    {"baseline", baseline}, {"findings", findings},         {"settings", settings},
    {"filePath", filePath}, {"pendingFiles", pendingFiles}, {"registry", registry},
    {"reports", reports}};
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
