// Reports as the user comes back to them: listed, read, scanned again, deleted.

#include "tests/workstation/session.h"

namespace tarvelon {
namespace {

class Reports : public Session {
protected:
    void SetUp() override {
        pc.files.put(dataFolder + "Integrity.dat", "");
        pc.files.put(R"(C:\av.exe)", "");
        putSettings({.passCount = "2", .antivirus = "C:\\av.exe|/s", .av2 = "C:\\two.exe|/t"});
        report("03-05-2006(3_04_07PM)", "Heading,C:\\A.DLL,C:\\B.DLL,C:\\C.DLL\r\n");
        report("03-05-2006(9_00_00AM)", "Only the heading\r\n");
        report("03-06-2006(3_04_07PM)", "Heading, x ,,never shown\r\n");
        ASSERT_FALSE(start());
        app->mForm1.Image11.click();
        app->mForm1.cReports.click();
    }

    void report(const std::string& name, const std::string& text) {
        pc.files.put(dataFolder + "Log\\" + name + ".log", text);
    }

    bool there(const std::string& name) const {
        return pc.files.get(dataFolder + "Log\\" + name + ".log").has_value();
    }

    void click(const std::string& key) {
        const Tree::Node* node = app->mForm1.TreeView2.find(key);
        ASSERT_NE(node, nullptr) << key;
        app->mForm1.TreeView2.clickNode(*node);
    }

    std::string tree() const {
        std::string text;
        for (const Tree::Node& node : app->mForm1.TreeView2.nodes()) {
            text += (node.parent ? "  " : "") + node.text + "\n";
        }
        return text;
    }
};

TEST_F(Reports, TheTreeShowsDatesAndTimesAlsoEqualOnes) {
    report("notes", "foreign");
    report("1-2-2006(15_04_07)", "24 hours");
    app->mForm1.cReports.click();
    EXPECT_EQ(tree(),
              "03-05-2006\n  3:04:07 PM\n  9:00:00 AM\n03-06-2006\n  3:04:07 PM\n01-02-2006\n  15:04:07\n");
    EXPECT_FALSE(app->mForm1.cViewReport.Enabled());
    click("03-05-2006|9:00:00 AM");
    EXPECT_TRUE(app->mForm1.cViewReport.Enabled());
    click("03-05-2006");
    EXPECT_FALSE(app->mForm1.cViewReport.Enabled());
    click("01-02-2006|15:04:07");
    tells("Error - This report does not exist and could not be opened.");
    app->mForm1.cViewReport.click(); // The tree's date is padded, the file's is not.
    EXPECT_TRUE(app->mForm1.Label26.Visible());
}

TEST_F(Reports, AReportIsShownAndItsFilesScannedAgain) {
    click("03-05-2006|3:04:07 PM");
    app->mForm1.cViewReport.click();
    EXPECT_TRUE(app->mForm1.repF.isShown());
    EXPECT_FALSE(app->mForm1.Label26.Visible());
    EXPECT_EQ(app->mForm1.List4.items(), (Rows{"Heading", "C:\\A.DLL", "C:\\B.DLL", "C:\\C.DLL"}));
    tells("Anti-Virus program executed successfully!");
    app->mForm1.cScnLog.click();
    EXPECT_EQ(lines(),
              (Rows{R"(C:\av.exe /s "C:\A.DLL" "C:\B.DLL" )", R"(C:\two.exe /t "C:\A.DLL" "C:\B.DLL" )",
                    R"(C:\av.exe /s "C:\C.DLL" )", R"(C:\two.exe /t "C:\C.DLL" )"}));
    pc.processes.canStart = [](const std::string&) { return false; };
    tells("Your Anti-Virus program could not be executed!!!\rPlease verify the path of the "
          "software:\rC:\\av.exe");
    app->mForm1.cScnLog.click();

    app->mForm1.cX.click();
    EXPECT_TRUE(app->mForm1.setFq.isShown());
    click("03-05-2006|9:00:00 AM");
    app->mForm1.TreeView2.doubleClick();
    tells("Anti-Virus program executed successfully!");
    app->mForm1.cScnLog.click();
    EXPECT_EQ(app->mForm1.List4.count(), 1) << "nothing to scan, and said to have succeeded all the same";
    app->mForm1.cX.click();
    click("03-06-2006|3:04:07 PM");
    app->mForm1.cViewReport.click();
    EXPECT_EQ(app->mForm1.List4.items(), (Rows{"Heading", "x"})) << "an empty field ends the list";
}

TEST_F(Reports, DeletingSinglyByDateAndAll) {
    click("03-05-2006|3:04:07 PM");
    app->mForm1.cViewReport.click();
    asks("Are you sure you want to delete this Report?", Answer::Yes);
    app->mForm1.cDelLog.click();
    EXPECT_FALSE(there("03-05-2006(3_04_07PM)"));
    EXPECT_EQ(tree(), "03-05-2006\n  9:00:00 AM\n03-06-2006\n  3:04:07 PM\n");

    report("03-06-2006(4_00_00PM)", "late");
    click("03-06-2006|3:04:07 PM");
    app->mForm1.TreeView2.keyDown(65);
    EXPECT_NE(app->mForm1.TreeView2.find("03-06-2006|4:00:00 PM"), nullptr) << "every key rebuilds the tree";
    click("03-05-2006|9:00:00 AM");
    asks("Delete Log Entry?", Answer::No);
    app->mForm1.TreeView2.keyDown(46);
    EXPECT_TRUE(there("03-05-2006(9_00_00AM)"));
    click("03-06-2006");
    asks("Delete All Logs on this (03-06-2006) Date?", Answer::Yes);
    app->mForm1.TreeView2.keyDown(46);
    EXPECT_EQ(tree(), "03-05-2006\n  9:00:00 AM\n");

    pc.files.put(dataFolder + "Log\\keep.txt", "");
    asks("Are you sure you want to delete all the logs?", Answer::Yes);
    app->mForm1.cButton3.click();
    EXPECT_EQ(tree(), "");
    EXPECT_FALSE(there("03-05-2006(9_00_00AM)"));
    EXPECT_EQ(data("Log\\keep.txt"), "");
}

} // namespace
} // namespace tarvelon
