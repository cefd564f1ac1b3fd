// The program's own files in a state that no program leaves them in: cut anywhere.

#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

class Damage : public Session {
protected:
    void SetUp() override {
        pc.files.put(dataFolder + "Integrity.dat", "");
        pc.files.put(R"(C:\av.exe)", "");
        putSettings({.antivirus = R"(C:\av.exe|)", .folders = "[1]\r\npath=NULL\r\n"});
    }
};

TEST_F(Damage, SettingsCutAnywhereTakeWhateverIsSavedNext) {
    ASSERT_FALSE(start());
    SettingsFile& settings = app->settingsFile;
    const std::string path = dataFolder + "Tarvelon.dat";
    const std::string whole = file(path);
    const Rows keys = {"settings", "advanced", "antivirus", "av2", "antivirus2", "settings2", "algo"};
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        SCOPED_TRACE(whole.substr(0, length));
        pc.files.put(path, whole.substr(0, length));
        settings.checkSettFile();
        for (const std::string& key : keys) {
            settings.writeEntry(path, key, key + "!", "Tarvelon");
        }
        EXPECT_EQ(settings.getSetting("AV2"), "av2!");
        for (const std::string& key : keys) {
            EXPECT_EQ(settings.readIni(path, key, "Tarvelon"), key + "!");
        }
    }
}

TEST_F(Damage, ASnapshotCutAnywhereWarnsOfWhatItLacksAndIsMadeWholeByAccepting) {
    const std::string runKey = R"(Software\Microsoft\Windows\CurrentVersion\Run)";
    for (const Registry::Key root : {Registry::localMachine, Registry::currentUser}) {
        pc.registry.setText(root, runKey, "Name", R"(C:\av.exe)");
        pc.registry.setText(root, runKey + "Once", "Name", R"(C:\av.exe)");
    }
    ASSERT_FALSE(start());
    const std::string whole = data("Registry.dat");
    const auto warnings = [this] {
        app->mForm1.Command1.click();
        return app->mForm1.cScnUpd.Enabled() ? app->mForm1.List5.count() - 1 : 0;
    };
    int fewest = 4;
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        SCOPED_TRACE(whole.substr(0, length));
        pc.files.put(dataFolder + "Registry.dat", whole.substr(0, length));
        const int now = warnings();
        EXPECT_LE(now, fewest) << "more of the file never warns of more";
        fewest = now;
        app->mForm1.cScnUpd.click();
        EXPECT_EQ(warnings(), 0);
    }
    EXPECT_EQ(fewest, 0);
}

} // namespace
} // namespace tarvelon
