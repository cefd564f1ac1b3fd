// Secure Shut Down up to the last step in front of the machine going down, and scheduled runs.

#include "driver.h"
#include "planted_value.h"
#include "recorder.h"
#include "workplace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace e2e {
namespace {

using Rows = std::vector<std::string>;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* dialogCaption = "Secure Shut Down";
constexpr const char* progressCaption = "Scanning and Shutting Down...Please Wait";
constexpr const char* countDown = "Status: Some files were scanned...Shutting Down in 2 minutes";
constexpr const char* guarded = "zzguarded.drv";
constexpr const char* original = "a file that the baseline knows";
constexpr const char* changed = "something else";

constexpr const char* runKey = R"(Software\Microsoft\Windows\CurrentVersion\Run)";

/// A file that the system is to delete at its next start, while the object lives.
class DoomedFile {
public:
    explicit DoomedFile(const std::string& path)
        : file_(path, "to be deleted") {
        if (MoveFileExA(path.c_str(), nullptr, MOVEFILE_DELAY_UNTIL_REBOOT) == 0) {
            throw std::runtime_error("the system does not take " + path + " for deletion");
        }
    }
    ~DoomedFile() {
        HKEY key = nullptr;
        RegOpenKeyA(HKEY_LOCAL_MACHINE, R"(System\CurrentControlSet\Control\Session Manager)", &key);
        RegDeleteValueA(key, "PendingFileRenameOperations");
        RegCloseKey(key);
    }

    const std::string& path() const { return file_.path(); }

private:
    const PlantedFile file_;
};

/// A key of the keyboard, held down while the object lives.
class HeldKey {
public:
    explicit HeldKey(WORD key)
        : key_(key) {
        sendKey(key_, 0);
    }
    HeldKey(const HeldKey&) = delete;
    ~HeldKey() { sendKey(key_, KEYEVENTF_KEYUP); }

private:
    WORD key_;
};

std::string windowsDirectory() {
    char path[MAX_PATH] = {};
    GetWindowsDirectoryA(path, sizeof path);
    return std::string(path) + "\\";
}

std::string quoted(const std::string& file) {
    return "\"" + file + "\" ";
}

/// A workstation with a complete baseline and two scanners, which scans drivers at log-on and at shut-down.
class SecureShutDown : public testing::Test {
protected:
    SecureShutDown() {
        folder_.writeData("Integrity.dat", withEntry(systemBaseline(), "DRV", guarded, crcText(original)));
        folder_.writeSettings({{"settings", "0,1,0,0,0,0,1,1\r\nsettings2=0,1,0,0,0,0"},
                               {"antivirus", first_.path() + "|/scan"},
                               {"av2", second_.path() + "|"}});
    }

    std::string firstRun(const std::string& files) const { return "2 " + first_.path() + " /scan " + files; }
    std::string secondRun(const std::string& files) const { return "2 " + second_.path() + "  " + files; }

    const ProgramFolder folder_{"shut-down"};
    const RecordingScanner first_{folder_.path() + "first.exe"};
    const RecordingScanner second_{folder_.path() + "second.exe"};
    const PlantedFile guarded_{systemDirectory() + guarded, original};
};

TEST_F(SecureShutDown, TheDialogFollowsShiftAndEndsOnCancel) {
    const Program program(folder_.program(), "/s");
    const Form dialog = program.form(dialogCaption);
    dialog.awaitText("hold SHIFT for Hibernate");
    EXPECT_FALSE(program.hasForm("Welcome to Tarvelon"));
    dialog.bringToFront();
    EXPECT_FALSE(dialog.shows("Hibernate"));
    {
        const HeldKey shift(VK_SHIFT);
        dialog.awaitText("Hibernate");
    }
    EXPECT_TRUE(comesTrue([&] { return !dialog.shows("Hibernate"); })) << dialog.describe();
    dialog.click("Cancel");
    EXPECT_TRUE(program.ends()) << program.describe();
    EXPECT_THAT(second_.recordsNow(), IsEmpty());
}

TEST_F(SecureShutDown, IsRefusedWhileTheProgramIsOpen) {
    const Program open(folder_.program());
    open.form("Welcome to Tarvelon");
    const Program program(folder_.program(), "/s");
    program.answer("You must close Tarvelon before using the Shut Down Feature.");
    EXPECT_TRUE(program.ends()) << program.describe();
    EXPECT_TRUE(open.hasForm("Welcome to Tarvelon"));
}

TEST_F(SecureShutDown, HandsAllFindingsOverAcceptsThemAndCanBeCancelled) {
    const std::optional<std::string> before = folder_.data("Integrity.dat");
    const PlantedFile replaced(folder_.path() + "replaced.tmp", "to be replaced");
    const PlantedFile wininit(windowsDirectory() + "wininit.ini",
                              "[Rename]\r\nC:\\new.tmp=" + replaced.path() + "\r\nNUL=C:\\gone.tmp\r\n");
    const DoomedFile doomed(folder_.path() + "doomed.tmp");
    guarded_.rewrite(changed);
    const std::string started = systemDirectory() + "notepad.exe";

    const Program program(folder_.program(), "/s");
    const Form dialog = program.form(dialogCaption);
    // Later than the snapshot that the first start makes.
    const PlantedValue stranger(HKEY_LOCAL_MACHINE, runKey, "Stranger", started);
    dialog.click("Turn Off");
    const Form progress = program.form(progressCaption);
    progress.awaitText(countDown);
    EXPECT_TRUE(progress.shows("ShutDown Now"));
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(program.hasForm("AutoCheck"));

    const std::string files[] = {quoted(replaced.path()), quoted(doomed.path()), quoted(guarded_.path()),
                                 " \"" + started + "\""};
    // No more waiting when they do not come: the machine must not go down under the other tests.
    ASSERT_THAT(first_.records(4),
                ElementsAre(firstRun(files[0]), firstRun(files[1]), firstRun(files[2]), firstRun(files[3])));
    ASSERT_THAT(second_.records(4), ElementsAre(secondRun(files[0]), secondRun(files[1]), secondRun(files[2]),
                                                secondRun(files[3])));
    // Reports of the same second replace one another.
    EXPECT_THAT(folder_.logs(),
                testing::Contains("Registry Action - Scan and Update Multiple Entries," + started + "\r\n"));
    std::string accepted = withEntry(systemBaseline(), "DRV", guarded, crcText(changed));
    EXPECT_EQ(folder_.data("Integrity.dat"), accepted.erase(accepted.find("\r\n\r\n"), 2));
    EXPECT_EQ(folder_.data("integrity.bak"), before);
    EXPECT_NE(folder_.data("Registry.dat")->find("Stranger= (" + started + ")\r\n"), std::string::npos);

    progress.close();
    program.answer("Cancel Shutdown?", "No");
    EXPECT_TRUE(progress.shows(countDown)) << program.describe();
    progress.close();
    program.answer("Cancel Shutdown?", "Yes");
    EXPECT_TRUE(program.ends()) << program.describe();
}

TEST_F(SecureShutDown, AScheduledRunLeavesTheRegistryAloneAndEnds) {
    {
        const Program clean(folder_.program(), "/a");
        EXPECT_TRUE(clean.ends()) << clean.describe();
    }
    EXPECT_THAT(second_.recordsNow(), IsEmpty());
    EXPECT_THAT(folder_.logs(), IsEmpty());

    const DoomedFile doomed(folder_.path() + "doomed.tmp");
    const PlantedValue stranger(HKEY_LOCAL_MACHINE, runKey, "Stranger", systemDirectory() + "notepad.exe");
    guarded_.rewrite(changed);
    const std::optional<std::string> snapshot = folder_.data("Registry.dat");
    {
        const Program program(folder_.program(), "/a");
        EXPECT_TRUE(program.ends()) << program.describe();
    }
    const std::string files[] = {quoted(doomed.path()), quoted(guarded_.path())};
    EXPECT_THAT(first_.records(2), ElementsAre(firstRun(files[0]), firstRun(files[1])));
    EXPECT_THAT(second_.records(2), ElementsAre(secondRun(files[0]), secondRun(files[1])));
    EXPECT_NE(folder_.data("Integrity.dat")->find(std::string(guarded) + "=" + crcText(changed) + "*E\r\n"),
              std::string::npos);
    EXPECT_EQ(folder_.data("Registry.dat"), snapshot);
}

} // namespace
} // namespace e2e
