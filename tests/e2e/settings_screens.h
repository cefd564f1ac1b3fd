#pragma once

#include "driver.h"
#include "link_file.h"
#include "workplace.h"

#include <gtest/gtest.h>

#include <shlobj.h>

namespace e2e {

using Changes = std::map<std::string, std::string>;

inline constexpr const char* noScanner =
    "You didn't choose an anti-virus software exe.  We recommend that you get one to take full advantage of "
    "Tarvelon";
inline constexpr const char* testNotice = "Tarvelon will now attempt to scan two files. If the Virus-Scanner "
                                          "you selected scans both files, then it is "
                                          "fully compatible with Tarvelon! If not, make sure you chose the "
                                          "correct EXE file in your anti-virus folder.";
inline constexpr const char* desktopQuestion =
    "Tarvelon will now create a shortcut for you to use the Secure ShutDown and Scan Feature.\n"
    "Would you like this shortcut on your Desktop?";

/// A link, or what stands in its place, that is gone when the object is made and when it dies.
class LinkPlace {
public:
    explicit LinkPlace(std::string path)
        : path_(std::move(path)) {
        clear();
    }
    LinkPlace(const LinkPlace&) = delete;
    ~LinkPlace() { clear(); }

    const std::string& path() const { return path_; }
    bool exists() const { return readFile(path_).has_value(); }

private:
    void clear() const {
        SetFileAttributesA(path_.c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileA(path_.c_str());
        RemoveDirectoryA(path_.c_str());
    }

    std::string path_;
};

/// With a backslash.
inline std::string shellFolder(int number) {
    char path[MAX_PATH] = {};
    SHGetSpecialFolderPathA(nullptr, path, number, TRUE);
    return std::string(path) + "\\";
}

/// A folder of the C drive that is gone afterwards.
class PassingFolder {
public:
    explicit PassingFolder(std::string path)
        : path_(std::move(path)) {
        clear();
        CreateDirectoryA(path_.c_str(), nullptr);
    }
    PassingFolder(const PassingFolder&) = delete;
    ~PassingFolder() { clear(); }

    const std::string& path() const { return path_; }

private:
    void clear() const {
        for (const std::string& name : namesIn(path_)) {
            DeleteFileA((path_ + name).c_str());
        }
        RemoveDirectoryA(path_.c_str());
    }

    std::string path_;
};

class SettingsScreens : public testing::Test {
protected:
    SettingsScreens() {
        folder_.writeData("Integrity.dat", systemBaseline());
        folder_.writeSettings({});
        original_ = folder_.data("Tarvelon.dat").value();
    }

    static Form open(const Program& program, const std::string& entry) {
        const Form window = program.form("Welcome to Tarvelon");
        window.click("Options");
        window.click(entry);
        return window;
    }

    static void awaitHidden(const Program& program, const Form& form) {
        EXPECT_TRUE(comesTrue([&] { return !form.isVisible(); })) << program.describe();
    }

    /// The settings file holds these values, with an added line behind the others of the main section, and
    /// else what it held at first.
    void expectSettings(const Changes& values, const std::string& added = "") const {
        std::string expected = original_;
        expected.insert(expected.find("\r\n\r\n") + 2, added);
        for (const auto& [key, value] : values) {
            const std::size_t from = expected.find("\r\n" + key + "=") + key.size() + 3;
            expected.replace(from, expected.find("\r\n", from) - from, value);
        }
        EXPECT_EQ(folder_.data("Tarvelon.dat"), expected);
    }

    void expectLink(const std::string& path, const std::string& arguments) const {
        const std::optional<LinkFile> link = readLink(path);
        ASSERT_TRUE(link) << path;
        EXPECT_EQ(link->target, folder_.program());
        EXPECT_EQ(link->arguments, arguments);
        EXPECT_EQ(link->workingFolder, "");
        EXPECT_EQ(link->description, "Access Shortcut");
        EXPECT_EQ(link->icon, folder_.program() + ",0");
        EXPECT_EQ(link->show, SW_SHOW);
    }

    const ProgramFolder folder_{"settings"};
    std::string original_;
    const LinkPlace autoLoad_{shellFolder(CSIDL_COMMON_STARTUP) + "Tarvelon.lnk"};
};

} // namespace e2e
