// Naming the scanners: by the file box, by the catalogue's search and test, and what a save stores.

#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

class Scanners : public Session {
protected:
    void SetUp() override {
        pc.files.put(dataFolder + "Integrity.dat", "");
        pc.files.put(R"(C:\Tools\navw32.exe)", "");
        pc.files.put(R"(C:\Tools\other.exe)", "");
        ASSERT_FALSE(start());
        putSettings({.antivirus = "C:\\x.exe|/x", .av2 = "C:\\y.exe|/y"});
        app->mForm1.cButton10.click();
        ASSERT_EQ(fields(), "C:\\x.exe|/x|C:\\y.exe|/y") << "as they stand in the file by then";
    }

    SAvirScreen& form() { return app->s_avir; }
    /// The first scanner and the second, with their arguments.
    std::string fields() {
        return form().Text5.Caption() + "|" + form().Text6.Caption() + "|" + form().Text1.Caption() + "|" +
               form().Text2.Caption();
    }

    void choose(cButton& button, const std::optional<std::string>& path) {
        pc.dialogs.expectOpenFile({.title = "Choose Anti-Virus Executable File", .choice = path});
        if (path) {
            tells("Don't forget to Save!");
        }
        button.click();
    }
};

TEST_F(Scanners, AChoiceBringsArgumentsByTheFirstScannersNameAndIsStored) {
    choose(form().cButton10, std::nullopt);
    EXPECT_EQ(fields(), "C:\\x.exe|/x|C:\\y.exe|/y");
    choose(form().cChoose, R"(C:\Tools\navw32.exe)");
    EXPECT_EQ(app->vDct.varg.Caption(), "/HEUR:3") << "for the wizard, too";
    choose(form().cButton10, R"(C:\Tools\other.exe)");
    EXPECT_EQ(fields(), R"(C:\Tools\navw32.exe|/HEUR:3|C:\Tools\other.exe|/HEUR:3)");
    choose(form().cChoose, R"(C:\Tools\other.exe)");
    clickTelling(form().cButton3, "Save Success!");
    ASSERT_FALSE(start());
    EXPECT_EQ(fields(), R"(C:\Tools\other.exe||C:\Tools\other.exe|/HEUR:3)");

    form().Text5.typed(R"(C:\gone.exe)");
    form().Text1.typed(R"(C:\gone.exe)");
    tells(noScanner);
    clickTelling(form().cButton3, "Save Success!");
    EXPECT_THAT(data("Tarvelon.dat"), HasSubstr("antivirus=Anti-Virus Software| \r\nav2=|\r\n"));
}

TEST_F(Scanners, TheCatalogueSearchesTestsAndHandsOver) {
    const std::string exe = R"(C:\Tools\navw32.exe)"; // Outside the Program Files folder.
    AVirHelpScreen& help = app->aVirHelp;
    form().cButton1.click();
    EXPECT_EQ(help.List1.count(), 16);
    help.Command4.click(); // Nothing is selected.
    EXPECT_FALSE(help.Command2.Enabled() || help.Command3.Enabled());
    const auto search = [&](int row, const std::string& outcome) {
        help.List1.select(row);
        tells("Tarvelon may become unresponsive during the file search. This is normal.\r\rClick OK to "
              "continue.");
        clickTelling(help.Command4, outcome);
        return help.Command2.Enabled() ? help.Text2.Caption() : "(none)" + help.Text2.Caption();
    };
    EXPECT_EQ(search(15, "The default executable for this program was not found! Make sure you selected "
                         "the correct anti-virus program, and the correct operating system."),
              "(none)");
    EXPECT_EQ(search(13, "Success!"), exe);
    pc.files.remove(exe);
    clickTelling(help.Command2, "You must choose a virus scanner before you proceed!");
    EXPECT_FALSE(help.Command3.Enabled());
    pc.files.put(exe, "");
    clickTelling(
        help.Command2,
        "Tarvelon will now attempt to scan two files. If the Virus-Scanner you selected scans both files, "
        "then it is fully compatible with Tarvelon! If not, make sure you chose the correct EXE file in "
        "your anti-virus folder.");
    EXPECT_EQ(lines().back(),
              exe + " \"" + dataFolder + "Tarvelon.dat\" \"" + dataFolder + "Integrity.dat\"");
    help.Command3.click();
    EXPECT_FALSE(help.Visible());
    EXPECT_EQ(fields(), "C:\\x.exe|/x|" + exe + "|" + exe) << "the path in place of arguments";
    form().cButton1.click();
    help.close();
    app->vDct.helpme.click();
    EXPECT_TRUE(help.Visible());
    help.Command3.click();
    EXPECT_EQ(fields(), exe + "|/HEUR:3|" + exe + "|" + exe) << "for the first scanner by now";
    EXPECT_EQ(app->vDct.vpath.Caption() + app->vDct.varg.Caption(), exe + "/HEUR:3");
    form().chlpFind.click();
    clickTelling(
        help.Command1,
        "There is a very good chance that your anti-virus software is compatible.  As long as it supports "
        "command line arguments, then it will work.\rTarvelon will now send you to the web site of "
        "Quillfen.\r\rSimply click on Tarvelon, and click on Anti-Virus support.");
    EXPECT_EQ(pc.shell.opened().size(), 1u);
}

} // namespace
} // namespace tarvelon
