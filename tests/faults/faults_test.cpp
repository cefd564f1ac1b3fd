// Each way of using the program, with every call of the platform failing: once at each place where it is
// made, and then always; and with the process ending in front of each call that changes the disk. Nothing
// crashes or hangs, no file suffers, and the next start finds a way on.

#include "tests/workstation/session.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

namespace tarvelon {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

using Folder = std::map<std::string, std::string>;

/// A small workstation with the program on it, and its user.
struct Machine : Session {
    explicit Machine(const Machine* like = nullptr) {
        for (const char* file : {R"(C:\WINDOWS\system32\a.dll)", R"(C:\WINDOWS\system32\b.exe)",
                                 R"(C:\av.exe)", R"(C:\Tools\t.dll)", R"(C:\More\m.dll)"}) {
            pc.files.put(file, file);
        }
        pc.files.put(dataFolder + "integrity.bak", "");
        pc.registry.setText(Registry::localMachine, runKey, "Updater", R"(C:\av.exe /min)");
        pc.desktop.open({"Title", "Class", 8});
        pc.messages.when([this] { return pc.messages.pumps() > 20'000; },
                         [] { throw Hang("the program pumps without end"); });
        pc.dialogs.answerer = [this](const MessageBox& box) {
            const bool scan = box.text == firstRunQuestion || box.text.starts_with("You have not");
            const bool yes = scan ? isNew : !isNew || !box.text.starts_with("Your Integrity.dat");
            return box.buttons != Buttons::YesNo ? Answer::Ok : yes ? Answer::Yes : Answer::No;
        };
        if (like) {
            fs::copy(like->pc.files.hostPath("C:\\"), pc.files.hostPath("C:\\"),
                     fs::copy_options::recursive | fs::copy_options::overwrite_existing);
        }
    }
    void TestBody() override {}

    /// Settings, first scans of the system and of one folder, old reports.
    void live(bool md5) {
        std::string folders;
        for (int slot = 1; slot <= folderSlots; ++slot) {
            folders += "[" + std::to_string(slot) + "]\r\npath=NULL\r\n\r\n";
        }
        putSettings({.settings = (md5 ? "1,1,1,1,1,1,1,1" : "1,1,1,1,1,1,0,1") + "\r\nsettings2=1,1,1,1,1,1"s,
                     .antivirus = R"(C:\av.exe|/s)",
                     .av2 = R"(C:\av.exe|/2)",
                     .antivirus2 = md5 ? "1,0,0\r\nalgo=md5" : "1,0,0",
                     .folders = folders});
        run("");
        run("", [](Machine& m) { m.addFolder(1, R"(C:\Tools)"); });
        pc.files.put(report, "Heading,C:\\av.exe\r\n");
    }

    /// Changed and new files, registry values, and files pending for the next boot.
    void change() {
        for (const char* file : {"WINDOWS\\system32\\a.dll", "WINDOWS\\system32\\c.sys", "Tools\\t.dll"}) {
            pc.files.put("C:\\"s + file, "changed");
        }
        pc.files.put(R"(C:\WINDOWS\wininit.ini)", "[Rename]\r\nNUL=C:\\av.exe\r\n");
        pc.registry.setText(Registry::localMachine, runKey, "Updater", R"(C:\Tools\t.dll)");
        pc.registry.setText(Registry::localMachine, runKey, "New", R"(C:\av.exe /new)");
        pendingRenames("\\??\\C:\\av.exe\0\0"s);
    }

    Folder data() const {
        Folder folder;
        for (const auto& entry : fs::recursive_directory_iterator(pc.files.hostPath(dataFolder))) {
            if (entry.is_regular_file()) {
                const std::ifstream file(entry.path());
                folder[entry.path().filename()] = (std::ostringstream() << file.rdbuf()).str();
            }
        }
        return folder;
    }

    /// One run until nothing happens any more, then what the user does, at most up to the process's end. An
    /// open window that has gone, as for a new start, is opened again.
    void run(const std::string& arguments, void (*use)(Machine&) = nothing) {
        const bool ended = start(arguments) || settle() || ends([&] { use(*this); }) || settle();
        if (ended && arguments.empty() && !start()) {
            settle();
        }
    }

    void addFolder(int slot, const std::string& path) {
        click(app->mForm1.Image5, app->mForm1.addRem);
        pc.dialogs.expectFolder({.title = "Please Choose a Folder to Add", .choice = path});
        app->iCust.cButton2.click();
        app->iCust.List1.select(slot - 1);
        app->iCust.List2.setTicked(0, true);
        app->iCust.List4.setTicked(0, true);
        click(app->iCust.Check1, app->iCust.Check2, app->iCust.Command3);
        app->mForm1.Combo1.select(slot);
        settle();
    }

    static void nothing(Machine&) {}
    void acceptFindings() { click(app->intCheck.Label2, app->intCheck.Label12, app->intCheck.Label12); }

    static void click(auto&... controls) { (controls.click(), ...); }

    using Session::app, Session::pc, Session::settle;
    bool isNew = true; ///< The user wants first scans and no backups.
};

void scanPage(Machine& m) {
    m.click(m.app->mForm1.bFULL, m.app->mForm1.bSCAN);
    m.settle();
    m.acceptFindings();
}

void addAndRemoveFolders(Machine& m) {
    m.addFolder(2, R"(C:\More)");
    m.pc.files.put(R"(C:\More\m.dll)", "changed");
    scanPage(m);
    m.app->mForm1.addRem.click();
    m.app->iCust.List1.select(0);
    m.app->iCust.Command2.click();
}

void saveSettings(Machine& m) {
    MForm1Screen& form = m.app->mForm1;
    m.click(form.Image11, form.cSettings, form.Check1, form.Check2, form.cSave, form.cSave);
    m.click(form.cButton2, form.Option2, form.wsh, form.cSave2, form.cCreateSS, form.cButton10);
    m.app->s_avir.Text2.typed("/changed");
    m.click(m.app->s_avir.cButton3, form.cButton4, form.cButton5, form.Label37, form.cUpdates);
    WizardScreen& wizard = m.app->vDct;
    m.pc.dialogs.expectOpenFile({.title = "Choose Anti-Virus Executable File", .choice = R"(C:\av.exe)"});
    m.click(form.cSetW, wizard.locate, wizard.Command1, wizard.cButton1, wizard.aload, wizard.Command2);
}

void watchRegistry(Machine& m) {
    MForm1Screen& form = m.app->mForm1;
    m.click(form.Image7, form.Command1);
    form.List5.select(1);
    m.click(form.Command11, form.Command3, form.cScnUpd, form.cMod, form.Command11);
}

void readReports(Machine& m) {
    MForm1Screen& form = m.app->mForm1;
    m.click(form.Image9, form.ref);
    form.lstOpenWindows.select(0);
    m.click(form.act, form.cl, form.Image11, form.cReports);
    if (const auto* node = form.TreeView2.find("03-05-2006|3:04:07 PM")) {
        form.TreeView2.clickNode(*node);
    }
    m.click(form.cViewReport, form.cScnLog, form.cDelLog, form.cButton3);
}

void turnOff(Machine& m) {
    m.app->frmLogoff.Image4.click();
    m.pc.messages.advance(130'000);
    EXPECT_FALSE(m.pc.power.calls().empty()) << "something has stopped the sequence";
}

struct Mode {
    const char* name;
    const char* arguments;
    enum { None, Clean, Found, FoundUnderMd5 } past;
    void (*use)(Machine&);
};

const Mode modes[] = {
    {"FirstRun", "", Mode::None, Machine::nothing},
    {"PageScan", "", Mode::Found, scanPage},
    {"Folders", "", Mode::Clean, addAndRemoveFolders},
    {"Settings", "", Mode::Clean, saveSettings},
    {"Registry", "", Mode::Found, watchRegistry},
    {"Reports", "", Mode::Clean, readReports},
    {"LogOnByHand", "/r", Mode::Found, [](Machine& m) { m.acceptFindings(); }},
    {"LogOnAutomatic", "/r", Mode::FoundUnderMd5, Machine::nothing},
    {"ShutDown", "/s", Mode::Found, turnOff},
    {"Scheduled", "/a", Mode::Found, Machine::nothing},
};

/// Of each line what stands behind the key, by its section and the key.
Folder linesOf(std::string text) {
    Folder lines;
    std::string section;
    std::erase(text, '\r');
    for (const std::string& line : split(text, '\n')) {
        section = line.starts_with('[') ? line : section;
        const std::size_t key = std::min(line.find('='), line.size());
        if (!line.empty()) {
            lines[section + "\n" + line.substr(0, key)] = line.substr(key);
        }
    }
    return lines;
}

/// What the program writes for what it cannot read, what a page shows then, and the registry as it stands.
const std::regex deliberate(R"(=(0|NULL|)\*E|= \([^()]*\)|=[^|]*\|.*|=C:.+\\|=\d+(,\d+)*)");

struct Faulty : testing::TestWithParam<Mode> {
    void use(Machine& machine) {
        const Mode& mode = GetParam();
        machine.isNew = mode.past == Mode::None;
        if (mode.past > Mode::Clean) {
            machine.change();
        }
        machine.run(mode.arguments, mode.use);
    }

    Folder learn(const Machine& machine) {
        const Folder folder = machine.data();
        for (const auto& [name, text] : folder) {
            for (const auto& [key, value] : linesOf(text)) {
                known.insert({key, value});
            }
        }
        return folder;
    }

    /// Each key and each value stood there before or stands there after an undisturbed run; no key and no
    /// file has gone.
    void expectNoDamage(const Folder& now, bool ended = false) {
        for (const auto& [name, text] : before) {
            EXPECT_TRUE(now.count(name) || !undisturbed.count(name)) << name << " has gone";
        }
        for (const auto& [name, text] : now) {
            EXPECT_TRUE(ended || !name.ends_with(".new")) << name << " was left behind";
            EXPECT_TRUE(text.ends_with("\n") || text.empty() || name.ends_with(".new")) << name << " is cut";
            if (name.ends_with(".log") || name.ends_with(".new")) {
                continue;
            }
            const Folder lines = linesOf(text);
            for (const auto& [key, value] : lines) {
                EXPECT_TRUE(known.count(key) && (known.count(value) || std::regex_match(value, deliberate)))
                    << name << key << value;
            }
            for (const auto& [key, value] : linesOf(before.count(name) ? before.at(name) : "")) {
                EXPECT_TRUE(lines.count(key)) << name << " has lost " << key;
            }
        }
    }

    /// With call 0, all calls fail.
    void inject(const Machine& original, Operation operation, int call, bool ends) {
        SCOPED_TRACE("operation " + std::to_string(static_cast<int>(operation)) + " at call " +
                     std::to_string(call) + (ends ? ", where the process ends" : ""));
        Machine machine(&original);
        Faults& faults = machine.pc.faults;
        if (ends) {
            faults.endNth(operation, call);
        } else if (call > 0) {
            faults.failNth(operation, call);
        } else {
            faults.failAlways(operation);
        }
        ASSERT_NO_THROW(use(machine));
        const Folder left = machine.data();
        if (!seen.insert({ends, left}).second) {
            return; // The next start has found the same files already.
        }
        if (!ends) {
            expectNoDamage(left);
        }
        faults.clear(operation);
        ASSERT_NO_THROW(machine.run(""));
        EXPECT_TRUE(machine.app->mForm1.Visible());
        EXPECT_EQ(machine.app->globals.baselines.sectionName.back(), "SCR");
        EXPECT_NE(machine.app->settingsFile.getSetting("ADV"), "");
        expectNoDamage(machine.data(), ends);
    }

    Folder before, undisturbed;
    std::set<std::string> known; ///< Keys with their sections, and values.
    std::set<std::pair<bool, Folder>> seen;
};

TEST_P(Faulty, NothingIsLost) {
    Machine original;
    if (GetParam().past != Mode::None) {
        original.live(GetParam().past == Mode::FoundUnderMd5);
    }
    Machine clean(&original);
    use(clean);
    before = learn(original);
    undisturbed = learn(clean);
    known.insert("[LM/R]\nNew");               // A snapshot that cannot be opened is made anew.
    clean.app->globals.settings.algoName = ""; // In force when the settings cannot be read.
    for (const char* file : {"a.dll", "b.exe", "c.sys"}) {
        known.insert("=" + clean.app->checksum.getChecksum(systemFolder + file) + "*E");
    }
    using enum Operation;
    const std::set<Operation> changesOfTheDisk = {WriteFile, SetLength, MoveFile, RemoveFile, CreateFolder};
    for (int number = 0; number < static_cast<int>(count_); ++number) {
        const auto operation = static_cast<Operation>(number);
        const int calls = clean.pc.faults.calls(operation);
        // A disk that never takes more than half of a write leaves no way to put anything right.
        for (int call = operation == WriteFileHalf ? 1 : 0; calls > 0 && call <= calls; ++call) {
            inject(original, operation, call, false);
            if (call > 0 && changesOfTheDisk.contains(operation)) {
                inject(original, operation, call, true);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Each, Faulty, testing::ValuesIn(modes),
                         [](const auto& mode) { return std::string(mode.param.name); });

} // namespace
} // namespace tarvelon
