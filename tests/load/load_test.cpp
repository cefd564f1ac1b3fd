// What many files, many folders, long and odd names and many runs in a row do to the scans.

#include "tests/workstation/session.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>

extern "C" std::size_t __sanitizer_get_current_allocated_bytes();

namespace tarvelon {
namespace {

const Rows types = {"DLL", "DRV", "386", "SYS", "OCX", "EXE", "COM", "PIF", "SCR"};

using Folders = std::map<int, std::string>; // Paths by slot, the system directory being 0.

class Load : public Session {
protected:
    /// Past the simulated calls, which look each new name up.
    void put(const std::string& path, const std::string& bytes) const {
        const std::size_t name = path.rfind('\\') + 1;
        std::ofstream(pc.files.hostPath(path.substr(0, name)) + "/" + path.substr(name)) << bytes;
    }

    /// A run at log-on, of all types, with a scanner; findings are accepted without a click or stay.
    Rows logOn(bool accept, const Folders& folders = {}) {
        std::string text = std::string("[Tarvelon]\r\nsettings=1,1,1,1,1,1,") + (accept ? "1" : "0") +
                           ",0\r\nadvanced=65536,99999,0\r\nantivirus=C:\\scanner|\r\n";
        for (const auto& [slot, path] : folders) {
            text += "[" + std::to_string(slot) + "]\r\npath=" + path + "\r\nargs=1,1,1,1,1,1,1\r\n";
        }
        pc.files.put(dataFolder + "Tarvelon.dat", text);
        pc.files.put("C:\\scanner", "");
        EXPECT_FALSE(start("/r"));
        const bool ended = settle();
        EXPECT_EQ(ended, accept || app->intCheck.List1.count() == 0);
        return app->intCheck.List1.items();
    }
};

TEST_F(Load, SixtyFourThousandFilesInOneFolder) {
    const auto type = [](std::size_t i) { return types[i % 2 == 0 ? 0 : i % 9]; }; // Half of them are of one.
    const auto name = [&](std::size_t i) { return std::to_string(100'000 + i) + "." + type(i); };
    for (std::size_t i = 0; i < 64'000; ++i) {
        put(systemFolder + name(i), std::to_string(i));
    }
    makeBaseline();
    Rows changes;
    for (std::size_t i = 5; i < 64'000; i += 640) {
        put(systemFolder + name(i), "changed");
        put(systemFolder + "new" + name(i), "added");
        pc.files.remove(systemFolder + name(i + 1));
        changes.insert(changes.end(), {systemFolder + name(i), systemFolder + "new" + name(i) + " *NEW*"});
    }
    EXPECT_THAT(logOn(true), testing::UnorderedElementsAreArray(changes));
    EXPECT_EQ(app->intCheck.Label6.Caption(), "64000");
    EXPECT_EQ(logOn(true), Rows()) << "all was accepted";
}

TEST_F(Load, ThreeHundredRunsInARowFindWhatChangedAndNothingElse) {
    std::mt19937 random(20061121);
    const auto oneOf = [&](const Rows& texts) { return texts[random() % texts.size()]; };
    const Rows stems = {"some blanks", "kernel", "na=me", ";note", "\u00e9t\u00e9", "\u0401\u6f22\U0001f600",
                        " blank"};
    const Folders folders = {{2, "C:\\Tools\\"}, {9, "C:\\\u00df \u00e4\\"}, {20, "C:\\T\\"}};
    for (const auto& [slot, path] : folders) {
        pc.files.makeFolders(path);
        pc.files.put(dataFolder + std::to_string(slot) + ".dat", "");
    }
    pc.files.put(dataFolder + "Integrity.dat", "");
    std::map<std::string, std::string> files, accepted; // Bytes by path.
    std::pair<std::size_t, std::ptrdiff_t> before;      // Bytes in use and open files.
    for (int number = 1; number <= 300; ++number) {
        SCOPED_TRACE("seed 20061121, run " + std::to_string(number));
        for (auto changes = random() % 12; changes > 0; --changes) {
            const std::string name = oneOf(stems) + "." + oneOf(types); // Of one folder each.
            const std::string path =
                oneOf({systemFolder, "C:\\Tools\\s", "C:\\\u00df \u00e4\\9", "C:\\T\\t"}) + name;
            pc.files.remove(path);
            files.erase(path);
            if (random() % 3 != 0) {
                put(path, files[path] = std::to_string(random() % 9));
            }
        }
        Rows expected;
        for (const auto& [path, bytes] : files) {
            if (!accepted.count(path) || accepted[path] != bytes) {
                expected.push_back(path + (accepted.count(path) ? "" : " *NEW*"));
            }
        }
        const bool accept = random() % 3 != 0;
        ASSERT_THAT(logOn(accept, folders), testing::UnorderedElementsAreArray(expected));
        if (accept) {
            std::ranges::for_each(files, [&](const auto& file) { accepted[file.first] = file.second; });
        }
        if (number == 50 || number == 300) {
            app.reset();
            const std::size_t all = __sanitizer_get_current_allocated_bytes();
            const auto ours =
                std::tuple(files, accepted, pc.processes.started()); // Twice now, which leaves them out.
            const std::pair now(2 * all - __sanitizer_get_current_allocated_bytes(),
                                std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {}));
            EXPECT_TRUE(number == 50 || (now.first <= before.first + 8'192 && now.second == before.second));
            before = now;
        }
    }
}

} // namespace
} // namespace tarvelon
