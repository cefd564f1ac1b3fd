// What many files, many folders, long and odd names and many runs in a row do to the scans.

#include "tests/workstation/session.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>

extern "C" std::size_t __sanitizer_get_current_allocated_bytes();

namespace tarvelon {
namespace {

using Rows = std::vector<std::string>;
const Rows types = {"DLL", "DRV", "386", "SYS", "OCX", "EXE", "COM", "PIF", "SCR"};

std::string upperCased(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return SimCodePage().upper(c); });
    return text;
}

std::string extension(const std::string& name) {
    return upperCased(name.substr(name.size() - 3));
}

std::string entry(const std::string& name, const std::string& checksum) {
    return name + "=" + checksum + "*E\r\n";
}

std::string baselineText(std::map<std::string, std::string> entries) {
    std::string text;
    for (const std::string& type : types) {
        text += "[" + type + "]\r\n" + entries[type] + "NULL*E\r\n";
    }
    return text;
}

/// A watched folder, and its baseline as one plain text that is searched from its start each time.
struct PlainFolder {
    std::string path;
    std::map<std::string, std::pair<std::string, std::string>> files{}; ///< Name and bytes, by capitals.
    std::string text = baselineText({});

    /// Where the section of such a name begins, with the line end behind its head.
    std::size_t sectionOf(const std::string& name) const { return text.find(extension(name) + "]\r\n") + 4; }

    std::string known(const std::string& name) const {
        const std::size_t end = text.find("NULL*E\r\n", sectionOf(name));
        const std::string lines = text.substr(sectionOf(name), end - sectionOf(name));
        const std::string start = upperCased("\r\n" + name + "=");
        const std::size_t from = upperCased(lines).find(start) + start.size();
        return from < start.size() ? "" : lines.substr(from, lines.find("*E\r\n", from) - from);
    }

    void accept(const std::string& name, const std::string& checksum) {
        const std::size_t end = text.find("\r\nNULL*E\r\n", sectionOf(name));
        if (text.find("\r\n" + name, sectionOf(name)) >= end) { // In this very case.
            text.insert(end + 2, entry(name, checksum));
            return;
        }
        // A longer name that begins with this one has passed the test, too; nothing is then found to replace.
        const std::string old = upperCased("\r\n" + entry(name, known(name)));
        const std::string line = "\r\n" + entry(name, checksum);
        std::size_t at = 0;
        while ((at = upperCased(text).find(old, at)) != std::string::npos) {
            at = text.replace(at, old.size(), line).find(line, at) + line.size();
        }
    }
};

using Folders = std::map<int, PlainFolder>; // By slot, the system directory being 0.

/// The rows that a run over these folders must list. With `accept`, the baselines take the findings over.
Rows plainRun(Folders& folders, bool accept) {
    Rows rows;
    Folders accepted = folders;
    std::string lastOfSystem; // Each finding elsewhere also leaves a line with this in the system baseline.
    for (const auto& [slot, folder] : folders) {
        for (const std::string pass : {"DLL", "DRV", "SYS,386", "OCX", "EXE,COM", "PIF,SCR"}) {
            for (const auto& [key, file] : folder.files) {
                const auto& [name, bytes] = file;
                const std::string checksum = crcText(bytes);
                if (pass.find(extension(name)) == std::string::npos || folder.known(name) == checksum) {
                    continue;
                }
                rows.push_back(folder.path + name + (folder.known(name).empty() ? " *NEW*" : ""));
                accepted[slot].accept(name, checksum);
                if (slot == 0) {
                    lastOfSystem = checksum;
                } else if (!lastOfSystem.empty()) {
                    accepted[0].accept(name, lastOfSystem);
                }
            }
        }
    }
    folders = accept ? accepted : folders;
    return rows;
}

class Load : public Session {
protected:
    /// Past the simulated calls, which look each new name up.
    void put(const std::string& path, const std::string& bytes) const {
        const std::size_t name = path.rfind('\\') + 1;
        std::ofstream(pc.files.hostPath(path.substr(0, name)) + "/" + path.substr(name)) << bytes;
    }

    static std::string fileOf(int slot) {
        return dataFolder + (slot == 0 ? "Integrity" : std::to_string(slot)) + ".dat";
    }

    /// A run at log-on, of all types, with a scanner; findings are accepted without a click or stay.
    Rows logOn(bool accept, const Folders& folders = {}) {
        std::string text = std::string("[Tarvelon]\r\nsettings=1,1,1,1,1,1,") + (accept ? "1" : "0") +
                           ",0\r\nadvanced=65536,99999,0\r\nantivirus=C:\\scanner|\r\n";
        for (const auto& [slot, folder] : folders) {
            text += "[" + std::to_string(slot) + "]\r\npath=" + folder.path + "\r\nargs=1,1,1,1,1,1,1\r\n";
        }
        pc.files.put(dataFolder + "Tarvelon.dat", text);
        pc.files.put("C:\\scanner", "");
        EXPECT_FALSE(start("/r"));
        const bool ended = settle();
        const IntCheckScreen& screen = app->intCheck;
        figures = screen.Label6.Caption() + "/" + screen.Label8.Caption() + "/" + screen.Label9.Caption();
        EXPECT_EQ(ended, accept || screen.List1.count() == 0);
        return screen.List1.items();
    }

    std::string figures; ///< Of the last run at log-on: files done, new, failed.
};

TEST_F(Load, SixtyFourThousandFilesInOneFolder) {
    const auto name = [](std::size_t i) { // Half of them are of one type.
        return std::to_string(100'000 + i) + "." + types[i % 2 == 0 ? 0 : i % 9];
    };
    std::map<std::string, std::string> entries;
    for (std::size_t i = 0; i < 64'000; ++i) {
        put(systemFolder + name(i), std::to_string(i));
        entries[extension(name(i))] += entry(name(i), crcText(std::to_string(i)));
    }
    makeBaseline();
    ASSERT_TRUE(file(fileOf(0)).ends_with(baselineText(entries))) << "the baseline differs";
    Rows changes;
    for (std::size_t i = 5; i < 64'000; i += 640) {
        put(systemFolder + name(i), "changed");
        put(systemFolder + "new" + name(i), "added");
        pc.files.remove(systemFolder + name(i + 1));
        changes.insert(changes.end(), {systemFolder + name(i), systemFolder + "new" + name(i) + " *NEW*"});
    }
    EXPECT_THAT(logOn(true), testing::UnorderedElementsAreArray(changes));
    EXPECT_EQ(figures, "64000/100/100");
}

TEST_F(Load, TwentyFoldersOfFiveThousandFilesInOneRun) {
    Folders folders;
    Rows all;
    Rows changes;
    for (int slot = 1; slot <= 20; ++slot) {
        const std::string path = folders[slot].path = "C:\\Folder " + std::to_string(slot) + "\\";
        pc.files.makeFolders(path);
        std::string entries;
        for (int i = 10'000; i < 15'000; ++i) {
            const std::string name = std::to_string(i) + ".dll";
            put(path + name, std::to_string(slot * i));
            entries += entry(name, crcText(std::to_string(slot * i)));
            all.push_back(path + name + " *NEW*");
        }
        folders[slot].text = baselineText({{"DLL", entries}});
        changes.insert(changes.end(), {path + "12345.dll", path + "added.exe *NEW*"});
    }
    pc.files.put(fileOf(0), baselineText({}));
    EXPECT_TRUE(logOn(false, folders) == all) << "not every file was found, in its order";
    EXPECT_EQ(figures, "100000/100000/0");
    for (const auto& [slot, folder] : folders) {
        pc.files.put(fileOf(slot), folder.text);
        put(folder.path + "12345.dll", "changed");
        put(folder.path + "added.exe", "added");
        pc.files.remove(folder.path + "14999.dll");
    }
    EXPECT_EQ(logOn(true, folders), changes) << figures;
}

TEST_F(Load, LongAndOddNamesAreKnownAsFarAsTheirLinesAre) {
    // The last path is longer than the system's calls take: no change behind it is ever seen.
    const std::string longest = std::string(251, 'n') + ".dll";
    const Rows paths = {systemFolder + ";note.dll",  systemFolder + "a,b.dll",
                        systemFolder + "na=me.dll",  systemFolder + longest.substr(16),
                        "C:\\m" + longest.substr(1), systemFolder + longest};
    const Folders root = {{1, {"C:\\"}}};
    std::ranges::for_each(paths, [this](const std::string& path) { put(path, "before"); });
    put("C:\\b.dll", "b");
    makeBaseline();
    EXPECT_EQ(logOn(true, root), (Rows{paths[2] + " *NEW*", "C:\\b.dll *NEW*", paths[4] + " *NEW*"}));
    std::ranges::for_each(paths, [this](const std::string& path) { put(path, "behind"); });
    EXPECT_EQ(logOn(true, root), Rows(paths.begin(), paths.end() - 1));
}

TEST_F(Load, ThreeHundredRunsInARowFindWhatChangedAndNothingElse) {
    std::mt19937 random(20061121);
    const auto oneOf = [&](const Rows& texts) { return texts[random() % texts.size()]; };
    const Rows stems = {"some blanks", "kernel", "kernel.dll", "na=me", ";note", "\xe9t\xe9", " blank"};
    Folders place = {{0, {systemFolder}}, {2, {"C:\\Tools\\"}}, {9, {"C:\\\xdf \xe4\\"}}, {20, {"C:\\T\\"}}};
    for (const auto& [slot, folder] : place) {
        pc.files.makeFolders(folder.path);
        pc.files.put(fileOf(slot), folder.text);
    }
    std::pair<std::size_t, std::ptrdiff_t> before; // Bytes in use and open files.
    for (int number = 1; number <= 300; ++number) {
        SCOPED_TRACE("seed 20061121, run " + std::to_string(number));
        for (auto changes = random() % 12; changes > 0; --changes) {
            auto& [path, files, text] = std::next(place.begin(), static_cast<int>(random() % 4))->second;
            const std::string name = oneOf(stems) + "." + oneOf(types);
            const std::string key = upperCased(name);
            pc.files.remove(path + files[key].first);
            files.erase(key);
            if (random() % 3 != 0) {
                files[key] = {oneOf({name, name, key}), std::to_string(random() % 9)};
                put(path + files[key].first, files[key].second);
            }
        }
        const bool accept = random() % 3 != 0;
        const Rows expected = plainRun(place, accept);
        ASSERT_EQ(logOn(accept, place), expected);
        for (const auto& [slot, folder] : place) {
            ASSERT_TRUE(file(fileOf(slot)).ends_with(folder.text)) << slot;
        }
        if (number == 50 || number == 300) {
            app.reset();
            place = Folders(place);
            const std::size_t all = __sanitizer_get_current_allocated_bytes();
            const auto ours = std::pair(place, pc.processes.started()); // Twice now, which leaves them out.
            const std::pair now(2 * all - __sanitizer_get_current_allocated_bytes(),
                                std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {}));
            EXPECT_TRUE(number == 50 || (now.first <= before.first + 8'192 && now.second == before.second));
            before = now;
        }
    }
}

} // namespace
} // namespace tarvelon
