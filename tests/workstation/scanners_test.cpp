// Naming the scanners: by the file box, by the catalogue's search and test, and what a save stores.

#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

const std::string box = "Choose Anti-Virus Executable File";

class Scanners : public Session {
protected:
    void SetUp() override {
        pc.files.put(dataFolder + "Integrity.dat", "");
        pc.files.put(R"(C:\Tools\navw32.exe)", "");
        pc.files.put(R"(C:\Tools\other.exe)", "");
        ASSERT_FALSE(start());
        app->mForm1.cButton10.click();
        ASSERT_TRUE(app->s_avir.Visible());
    }

    void choose(FlatButton& button, const std::string& path) {
        pc.dialogs.expectOpenFile({.title = box, .choice = path});
        tells("Don't forget to Save!");
        button.click();
    }

    std::string stored(const std::string& key) { return app->settingsFile.getSetting(key); }
};

TEST_F(Scanners, ChoosingBringsDefaultArgumentsByTheFirstScannersName) {
    SAvirScreen& form = app->s_avir;
    EXPECT_EQ(form.Text5.Caption(), "Anti-Virus Software");
    pc.dialogs.expectOpenFile({.title = box, .choice = std::nullopt});
    form.cChoose.click();
    EXPECT_EQ(form.Text5.Caption(), "Anti-Virus Software");

    choose(form.cChoose, R"(C:\Tools\navw32.exe)");
    EXPECT_EQ(form.Text5.Caption(), R"(C:\Tools\navw32.exe)");
    EXPECT_EQ(form.Text6.Caption(), "/HEUR:3");
    choose(form.cButton10, R"(C:\Tools\other.exe)");
    EXPECT_EQ(form.Text2.Caption(), "/HEUR:3") << "by the first scanner's name, as for the first";
    choose(form.cChoose, R"(C:\Pavcl\x.com)");
    EXPECT_EQ(form.Text6.Caption(), "/NSB /NOM /AUT");
    choose(form.cChoose, R"(C:\Tools\other.exe)");
    EXPECT_EQ(form.Text6.Caption(), " ");

    tells("Save Success!");
    form.cButton3.click();
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(stored("ANTIVIRUS"), "C:\\Tools\\other.exe| ");
    EXPECT_EQ(stored("AV2"), "C:\\Tools\\other.exe|/HEUR:3");
}

TEST_F(Scanners, ASaveStoresAMissingFirstAsPlaceholderAndASecondAsNothing) {
    app->s_avir.Text5.typed(R"(C:\gone.exe)");
    app->s_avir.Text1.typed(R"(C:\gone.exe)");
    tells("You didn't choose an anti-virus software exe.  We recommend that you get one to take full "
          "advantage of Tarvelon");
    tells("Save Success!");
    app->s_avir.cButton3.click();
    EXPECT_THAT(data("Tarvelon.dat"), HasSubstr("antivirus=Anti-Virus Software| \r\nav2=|\r\n"));
    ASSERT_FALSE(start());
    EXPECT_EQ(app->s_avir.Text5.Caption(), "Anti-Virus Software");
    EXPECT_EQ(app->s_avir.Text1.Caption(), "Anti-Virus Software")
        << "a bar alone is too short to be read back";
}

TEST_F(Scanners, TheCatalogueSearchesTestsAndHandsOver) {
    const std::string notice =
        "Tarvelon may become unresponsive during the file search. This is normal.\r\rClick OK to continue.";
    app->s_avir.cButton1.click();
    AVirHelpScreen& help = app->aVirHelp;
    ASSERT_TRUE(help.Visible());
    EXPECT_EQ(help.List1.count(), 16);
    EXPECT_FALSE(help.Command2.Enabled());
    help.Command4.click();

    help.List1.select(15);
    tells(notice);
    tells("The default executable for this program was not found! Make sure you selected the correct "
          "anti-virus program, and the correct operating system.");
    help.Command4.click();
    EXPECT_EQ(help.Text2.Caption(), "");

    help.List1.select(13);
    tells(notice);
    tells("Success!");
    help.Command4.click();
    EXPECT_EQ(help.Text2.Caption(), R"(C:\Tools\navw32.exe)") << "outside the Program Files folder";
    EXPECT_FALSE(help.Command3.Enabled());
    tells("Tarvelon will now attempt to scan two files. If the Virus-Scanner you selected scans both files, "
          "then it is fully compatible with Tarvelon! If not, make sure you chose the correct EXE file in "
          "your anti-virus folder.");
    help.Command2.click();
    EXPECT_EQ(pc.processes.started().back().commandLine,
              "C:\\Tools\\navw32.exe \"" + dataFolder + "Tarvelon.dat\" \"" + dataFolder + "Integrity.dat\"");
    help.Command3.click();
    EXPECT_FALSE(help.Visible());
    EXPECT_EQ(app->s_avir.Text1.Caption(), R"(C:\Tools\navw32.exe)");
    EXPECT_EQ(app->s_avir.Text2.Caption(), R"(C:\Tools\navw32.exe)")
        << "the path once more, in place of arguments";

    app->s_avir.chlpFind.click();
    help.Command3.click();
    EXPECT_EQ(app->s_avir.Text5.Caption(), R"(C:\Tools\navw32.exe)");
    EXPECT_EQ(app->s_avir.Text6.Caption(), "/HEUR:3");
    pc.files.remove(R"(C:\Tools\navw32.exe)");
    tells("You must choose a virus scanner before you proceed!");
    help.Command2.click();
}

} // namespace
} // namespace tarvelon
