#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

class StartUpRun : public Session {};

TEST_F(StartUpRun, SwitchesWithoutABaselineAreRefused) {
    const std::string unfinished = "Primary Full Scan has not yet been completed.\r\n";
    const std::pair<const char*, std::string> switches[] = {
        {"/r", "Cannot start Auto-Load.  " + unfinished + "Closing"},
        {" /s ", "Cannot start Secure Shut Down.  " + unfinished + "Closing."},
        {"/a", "Cannot run Scheduled Scan.  " + unfinished + "Closing."}};
    for (const auto& [typed, message] : switches) {
        for (int i = 0; i < 2; ++i) {
            asks(firstRunQuestion, Answer::No);
            tells(firstRunRefused);
        }
        tells(message);
        EXPECT_TRUE(start(typed)) << typed;
    }
}

TEST_F(StartUpRun, UnknownSwitchesOpenTheMainWindow) {
    pc.files.put(dataFolder + "Integrity.dat", "");
    for (const char* typed : {"", "/R", "/r /s", "readme.txt"}) {
        EXPECT_FALSE(start(typed));
        EXPECT_TRUE(app->mForm1.Visible()) << typed;
        EXPECT_FALSE(app->intCheck.Visible()) << typed;
    }
}

TEST_F(StartUpRun, SettingsReachControlsAndGlobals) {
    pc.files.put(dataFolder + "Integrity.dat", "");
    pc.files.put(R"(C:\Documents and Settings\All Users\x.lnk)", "");
    pc.folders.special[24] = R"(C:\Start)";
    pc.files.put(R"(C:\Start\Tarvelon.lnk)", "");
    pc.files.put(dataFolder + "Tarvelon.dat",
                 "[Tarvelon]\r\nSETTINGS=1,0,1,0,1,0,1,1,1,1\r\nsettings2=1,0,1\r\n"
                 "advanced=131072,50,1\r\nantivirus=C:\\av one.exe| /s /x |y\r\n"
                 "av2=C:\\b.exe|\r\nantivirus2=0,1,1\r\nalgo=Md5\r\n");
    pc.files.put(dataFolder + "Integrity-md5.dat", "");
    EXPECT_FALSE(start());
    const MForm1Screen& form = app->mForm1;
    std::string ticks;
    for (const FlatCheck* check : form.autoLoadChecks) {
        ticks += std::to_string(check->value());
    }
    for (const FlatCheck* check : form.shutDownChecks) {
        ticks += std::to_string(check->value());
    }
    EXPECT_EQ(ticks, "10101011"
                     "101000");
    EXPECT_EQ(form.Check1.value(), 1);
    const Settings& settings = app->globals.settings;
    EXPECT_EQ(settings.readBuffer, 131072);
    EXPECT_EQ(settings.passCount, 50);
    EXPECT_EQ(settings.useWsh, 1);
    EXPECT_EQ(settings.quoteChar, "");
    EXPECT_TRUE(settings.shortPaths);
    EXPECT_TRUE(settings.autoScanFailed);
    EXPECT_EQ(settings.algoName, "Md5");
    EXPECT_EQ(app->globals.app.intFile, dataFolder + "Integrity-md5.dat");
    EXPECT_EQ(app->s_avir.Text5.Caption(), "C:\\av one.exe");
    EXPECT_EQ(app->s_avir.Text6.Caption(), "/s /x |y");
    EXPECT_EQ(app->s_avir.Text1.Caption(), "C:\\b.exe");
}

TEST_F(StartUpRun, DamagedSettingsNeverStopTheStart) {
    pc.files.put(dataFolder + "Integrity.dat", "");
    const std::string longLine(1 << 20, 'x');
    const std::string texts[] = {"",
                                 "[Tarvelon]\r\nsettings=1",
                                 "[Tarvelon]\r\nadvanced=huge,,\r\nalgo=MD5\r\n",
                                 "[Tarvelon]\r\nsettings=" + longLine + "\r\n",
                                 "algo=x\r\n",
                                 longLine,
                                 "[Tarvelon]\r\nadvanced=99999999999,1\r\n"};
    for (const std::string& text : texts) {
        pc.files.put(dataFolder + "Tarvelon.dat", text);
        EXPECT_FALSE(start()) << text.substr(0, 60);
        EXPECT_TRUE(app->mForm1.Visible());
        EXPECT_EQ(app->globals.settings.readBuffer, 65536);
        EXPECT_EQ(app->globals.settings.algoName, "") << "an unusable value ends the reading in front of it";
        EXPECT_EQ(data("Tarvelon.dat"), text) << "nothing of the user's is overwritten";
    }
}

TEST_F(StartUpRun, EveryEntryOpensItsPageAndNoOther) {
    pc.files.put(dataFolder + "Integrity.dat", "");
    ASSERT_FALSE(start());
    MForm1Screen& form = app->mForm1;
    const auto opens = [&](auto& entry, const Frame& opened) {
        entry.click();
        for (const Frame* page :
             {&form.intF, &form.regF, &form.appF, &form.setFq, &form.qSett, &form.advF, &form.Frame2}) {
            EXPECT_EQ(page->isShown(), page == &opened) << entry.Caption();
        }
    };
    opens(form.Image5, form.intF);
    opens(form.Image7, form.regF);
    opens(form.Image9, form.appF);
    opens(form.Image11, form.setFq);
    opens(form.cSettings, form.qSett);
    opens(form.cCancelSett, form.setFq);
    opens(form.cButton2, form.advF);
    opens(form.cButton1, form.setFq);
    opens(form.cButton7, form.Frame2);
    pc.files.put(programFolder + "Help\\index.html", "");
    form.chlp.click();
    EXPECT_EQ(pc.shell.opened().size(), 1u);
    pc.files.remove(programFolder + "Help\\index.html");
    asks("The Help file wasn't found or cannot be executed! Would you like to browse Tarvelon help on the "
         "web?",
         Answer::No);
    form.chlp.click();
    EXPECT_EQ(pc.shell.opened().size(), 1u);
    EXPECT_TRUE(ends([&] { form.cButton9.click(); }));
}

} // namespace
} // namespace tarvelon
