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
        put("03-05-2006(3_04_07PM)", "Heading,C:\\A.DLL,C:\\B.DLL,C:\\C.DLL\r\n");
        put("03-05-2006(9_00_00AM)", "Only the heading\r\n");
        put("03-06-2006(3_04_07PM)", "Another day\r\n");
        ASSERT_FALSE(start());
        form().Image11.click();
        form().cReports.click();
    }

    void put(const std::string& name, const std::string& text) {
        pc.files.put(dataFolder + "Log\\" + name + ".log", text);
    }

    void click(const std::string& key) {
        const Tree::Node* node = form().TreeView2.find(key);
        ASSERT_NE(node, nullptr) << key;
        form().TreeView2.clickNode(*node);
    }

    /// The rows of the report that is opened then.
    const Rows& view(const std::string& key) {
        click(key);
        form().cViewReport.click();
        return form().List4.items();
    }

    std::string tree() {
        std::string text;
        for (const Tree::Node& node : form().TreeView2.nodes()) {
            text += (node.parent ? "  " : "") + node.text + "\n";
        }
        return text;
    }

    /// Answered with No nothing goes, neither from the tree nor from the disk.
    void deletes(const std::string& question, const std::function<void()>& press, const std::string& left) {
        for (const auto& [answer, expected] : {std::pair(Answer::No, tree()), {Answer::Yes, left}}) {
            asks(question, answer);
            press();
            EXPECT_EQ(tree(), expected) << question;
            form().cReports.click();
            EXPECT_EQ(tree(), expected) << question;
        }
    }
};

TEST_F(Reports, TheTreeShowsDatesAndTimesAlsoEqualOnes) {
    put("notes", "foreign");
    put("1-2-2006(15_04_07)", "24 hours");
    pc.files.makeFolders(dataFolder + "Log\\zz(.log\\");
    form().cReports.click();
    EXPECT_EQ(tree(), "03-05-2006\n  3:04:07 PM\n  9:00:00 AM\n03-06-2006\n  3:04:07 PM\n"
                      "01-02-2006\n  15:04:07\nzz\n  \n");
    click("03-05-2006|9:00:00 AM");
    EXPECT_TRUE(form().cViewReport.Enabled());
    click("03-05-2006");
    EXPECT_FALSE(form().cViewReport.Enabled());
    tells("Error - This report does not exist and could not be opened.");
    view("01-02-2006|15:04:07"); // The tree's date is padded, the file's is not.
    EXPECT_TRUE(form().Label26.Visible());
}

TEST_F(Reports, AReportIsShownUpToItsFirstEmptyField) {
    for (const auto& [text, rows] : {std::pair<std::string, Rows>{"", {}},
                                     {"Heading, x ,,never shown\r\n", {"Heading", "x"}},
                                     {"  a b \r\n\xff\r\n, ,x", {"a b", "\u00ff"}},
                                     {"\x01|\"\n", {"\x01|\"\n"}}}) {
        put("03-05-2006(3_04_07PM)", text);
        EXPECT_EQ(view("03-05-2006|3:04:07 PM"), rows) << text;
    }
}

TEST_F(Reports, TheFilesOfAReportAreScannedAgain) {
    view("03-05-2006|3:04:07 PM");
    EXPECT_TRUE(form().repF.isShown() && !form().setFq.isShown() && !form().Label26.Visible());
    clickTelling(form().cScnLog, "Anti-Virus program executed successfully!");
    EXPECT_EQ(lines(),
              (Rows{R"(C:\av.exe /s "C:\A.DLL" "C:\B.DLL" )", R"(C:\two.exe /t "C:\A.DLL" "C:\B.DLL" )",
                    R"(C:\av.exe /s "C:\C.DLL" )", R"(C:\two.exe /t "C:\C.DLL" )"}));
    pc.processes.canStart = [](const std::string&) { return false; };
    clickTelling(form().cScnLog, notExecuted + "C:\\av.exe");
    form().cX.click();
    click("03-05-2006|9:00:00 AM");
    form().TreeView2.doubleClick();
    EXPECT_EQ(form().List4.count(), 1);
}

TEST_F(Reports, AreDeletedSinglyByDateAndAllIfTheUserSaysSo) {
    const auto deleteKeyOn = [this](const std::string& key) {
        click(key);
        form().TreeView2.keyDown(46);
    };
    const std::string kept = "03-05-2006\n  9:00:00 AM\n", date = "03-06-2006\n  3:04:07 PM\n";
    const auto deleteShown = [this] {
        view("03-05-2006|3:04:07 PM");
        form().cDelLog.click();
    };
    form().TreeView2.keyDown(46); // Nothing is selected.
    asks("Delete Log Entry?", Answer::No);
    deleteKeyOn("03-05-2006|9:00:00 AM");
    EXPECT_NE(form().TreeView2.selected(), nullptr) << "it is left as it is";
    deletes("Are you sure you want to delete this Report?", deleteShown, kept + date);
    EXPECT_TRUE(form().setFq.isShown());
    put("03-06-2006(4_00_00PM)", "late");
    click("03-06-2006");
    form().TreeView2.keyDown(65);
    EXPECT_EQ(tree(), kept + date + "  4:00:00 PM\n") << "every key rebuilds the tree";
    deletes(
        "Delete All Logs on this (03-06-2006) Date?", [&] { deleteKeyOn("03-06-2006"); }, kept);
    put("03-06-2006(3_04_07PM)", "back again");
    form().cReports.click();
    deletes(
        "Delete Log Entry?", [&] { deleteKeyOn("03-05-2006|9:00:00 AM"); }, date);
    pc.files.put(dataFolder + "Log\\keep.txt", "");
    deletes(
        "Are you sure you want to delete all the logs?", [this] { form().cButton3.click(); }, "");
    EXPECT_EQ(data("Log\\keep.txt"), "");
}

} // namespace
} // namespace tarvelon
