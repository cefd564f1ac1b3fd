// From findings to accepted files: what the scanners are given, what the report says, what the baseline
// holds.

#include "driver.h"
#include "recorder.h"
#include "workplace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace e2e {
namespace {

using Rows = std::vector<std::string>;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::UnorderedElementsAreArray;

constexpr const char* guarded = "zzguarded.drv";
constexpr const char* visitor = "zz new visitor.ocx";
constexpr const char* original = "a file that the baseline knows";
constexpr const char* changed = "something else";
constexpr const char* newOrFailed =
    "Integrity Checker - These files were either New or Failed the Integrity Check,";

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

/// A workstation with a complete baseline, one guarded file that has changed, and two scanners.
class ScanByHand : public testing::Test {
protected:
    ScanByHand() {
        folder_.writeData("Integrity.dat", withEntry(systemBaseline(), "DRV", guarded, crcText(original)));
    }

    /// `scanTypes` is the list for runs at log-on, with automatic scan and reports at its end.
    void configure(const std::string& scanTypes, const std::string& passCount,
                   const std::string& shell) const {
        folder_.writeSettings({{"settings", scanTypes},
                               {"advanced", "65536," + passCount + ",0"},
                               {"antivirus", first_.path() + "| /scan /log:all "},
                               {"av2", second_.path() + "| "},
                               {"antivirus2", shell}});
    }

    /// Ticks the types on the page and scans.
    static Form scan(const Program& program, const Rows& types) {
        const Form window = program.form("Welcome to Tarvelon");
        window.click("Integrity Scan");
        for (const std::string& type : types) {
            window.click(type);
        }
        window.click("Scan Folder Now");
        const Form results = program.form("AutoCheck");
        results.awaitText("Results");
        return results;
    }

    static Form openFindings(const Program& program, const Rows& types) {
        const Form results = scan(program, types);
        results.click("Repair and Update Failed Files...");
        results.awaitText("Failed Files List");
        return results;
    }

    /// What a scanner's run writes down. A program whose path has blanks is quoted by the system itself.
    std::string firstRun(const std::string& style, const std::string& files) const {
        return style + " \"" + first_.path() + "\" /scan /log:all " + files;
    }
    std::string secondRun(const std::string& style, const std::string& files) const {
        return style + " " + second_.path() + "  " + files;
    }

    /// The text of the only report, whose name tells when it was made.
    std::string onlyReport() const {
        const Rows names = namesIn(folder_.path() + "Data\\Log\\");
        EXPECT_EQ(names.size(), 1U) << testing::PrintToString(names);
        if (names.empty()) {
            return "";
        }
        EXPECT_THAT(names.front(), MatchesRegex(R"(\d\d-\d\d-\d\d\d\d\(\d+_\d\d_\d\d.M\)\.log)"));
        return folder_.data("Log\\" + names.front()).value_or("");
    }

    /// The baseline after both findings were accepted. A rewrite leaves out the empty line behind the head.
    static std::string acceptedBaseline() {
        std::string text = withEntry(systemBaseline(), "DRV", guarded, crcText(changed));
        text = withEntry(text, "OCX", visitor, crcText("a stranger"));
        return text.erase(text.find("\r\n\r\n"), 2);
    }

    /// Both scanners got the guarded file and the added one, the only report names them, and they are
    /// accepted.
    void expectHandedOver(const PlantedFile& added, const std::optional<std::string>& before) const {
        const std::string files = "\"" + guarded_.path() + "\" \"" + added.path() + "\" ";
        EXPECT_THAT(first_.records(1), ElementsAre(firstRun("2", files)));
        EXPECT_THAT(second_.records(1), ElementsAre(secondRun("2", files)));
        EXPECT_EQ(onlyReport(),
                  newOrFailed + guarded_.path() + "," + replaced(added.path(), " ", ",") + "\r\n");
        EXPECT_EQ(folder_.data("Integrity.dat"), acceptedBaseline());
        EXPECT_EQ(folder_.data("integrity.bak"), before);
    }

    const ProgramFolder folder_{"scan by hand"};
    const RecordingScanner first_{folder_.path() + "first scanner.exe"};
    const ProgramFolder plainFolder_{"scanner"};
    const RecordingScanner second_{plainFolder_.path() + "second.exe"};
    const PlantedFile guarded_{systemDirectory() + guarded, changed};
};

TEST_F(ScanByHand, FindingsGoToBothScannersIntoTheReportAndIntoTheBaseline) {
    configure("0,0,0,0,0,0,0,1", "99999", "1,0,0");
    const std::optional<std::string> before = folder_.data("Integrity.dat");
    const PlantedFile added(systemDirectory() + visitor, "a stranger");
    const Program program(folder_.program());
    const Form results = scan(program, {"Driver Files (DRV)", "ActiveX Files (OCX)"});
    EXPECT_EQ(results.beside("New Files:"), "1");
    EXPECT_EQ(results.beside("Failed Files:"), "1");
    results.click("Repair and Update Failed Files...");
    results.awaitText("Failed Files List");
    EXPECT_THAT(results.rows(), ElementsAre(guarded_.path(), added.path() + " *NEW*"));
    EXPECT_THAT(first_.recordsNow(), IsEmpty());

    results.click("Scan Failing Files...");
    results.awaitText("Close Integrity Window");
    results.awaitText("Integrity File Updated");
    expectHandedOver(added, before);
    results.click("Close Integrity Window");
    EXPECT_TRUE(comesTrue([&] { return !results.isVisible(); })) << program.describe();

    const Form again = scan(program, {});
    again.awaitText("Scan Complete. No new or modified files were found.");
    EXPECT_EQ(again.beside("New Files:"), "0");
    EXPECT_EQ(again.beside("Failed Files:"), "0");
    again.click("Close Integrity Check Window");
    EXPECT_TRUE(comesTrue([&] { return !again.isVisible(); })) << program.describe();
    EXPECT_EQ(first_.recordsNow().size(), 1U);
    program.form("Welcome to Tarvelon").click("Exit");
    EXPECT_TRUE(program.ends());
}

/// More new files than one batch takes.
class ManyFindings : public ScanByHand {
protected:
    static constexpr std::size_t count = 120;

    ManyFindings() {
        for (std::size_t number = 0; number < count; ++number) {
            const std::string name = "zz newcomer " + std::to_string(number) + ".ocx";
            files_.push_back(std::make_unique<PlantedFile>(systemDirectory() + name, "new"));
        }
    }

    /// The rows as the scanner is to get them, cut into batches.
    static Rows batches(const Rows& rows, std::size_t size, const std::string& quote, bool shortNames) {
        Rows all;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (i % size == 0) {
                all.emplace_back();
            }
            std::string name = replaced(rows[i], " *NEW*", "");
            if (shortNames) {
                char text[MAX_PATH] = {};
                GetShortPathNameA(name.c_str(), text, sizeof text);
                EXPECT_EQ(std::string(text).find(' '), std::string::npos) << "no short name of " << name;
                name = text;
            }
            all.back() += quote + name + quote + " ";
        }
        return all;
    }

    std::vector<std::unique_ptr<PlantedFile>> files_;
};

TEST_F(ManyFindings, ReachTheScannersInBatchesByTheOptions) {
    const struct {
        const char* passCount;
        const char* shell; ///< Quotes, short names, focus.
        std::size_t batch;
        const char* quote;
        bool shortNames;
        const char* style; ///< 1 is normal, 2 minimised.
    } cases[] = {
        {"50", "0,0,1", 50, "", false, "1"},
        {"99999", "1,1,0", 99999, "\"", true, "2"},
        {"50", "0,1,1", 50, "", true, "1"},
    };
    for (const auto& [passCount, shell, batch, quote, shortNames, style] : cases) {
        SCOPED_TRACE(std::string(passCount) + " at a time, " + shell);
        DeleteFileA((first_.path() + ".txt").c_str());
        DeleteFileA((second_.path() + ".txt").c_str());
        folder_.writeData("Integrity.dat", withEntry(systemBaseline(), "DRV", guarded, crcText(original)));
        configure("0,0,0,0,0,0,0,0", passCount, shell);
        const Program program(folder_.program());
        const Form results = openFindings(program, {"ActiveX Files (OCX)"});
        const Rows rows = results.rows();
        ASSERT_EQ(rows.size(), count);
        results.click("Scan Failing Files...");
        results.awaitText("Close Integrity Window");

        Rows firstRuns;
        Rows secondRuns;
        for (const std::string& files : batches(rows, batch, quote, shortNames)) {
            firstRuns.push_back(firstRun(style, files));
            secondRuns.push_back(secondRun(style, files));
        }
        EXPECT_THAT(first_.records(firstRuns.size()), UnorderedElementsAreArray(firstRuns));
        EXPECT_THAT(second_.records(secondRuns.size()), UnorderedElementsAreArray(secondRuns));
        EXPECT_THAT(namesIn(folder_.path() + "Data\\Log\\"), IsEmpty()) << "reports are off";
    }
}

TEST_F(ScanByHand, AScannerThatCannotBeStartedLeavesEverythingAsItWas) {
    const std::string broken = folder_.path() + "broken.exe";
    writeFile(broken, "not a program");
    folder_.writeSettings({{"settings", "0,0,0,0,0,0,0,1"}, {"antivirus", broken + "| "}});
    const std::optional<std::string> before = folder_.data("Integrity.dat");
    const Program program(folder_.program());
    const Form results = openFindings(program, {"Driver Files (DRV)"});
    results.click("Scan Failing Files...");
    program.answer(
        "Your Anti-Virus program could not be executed!!!\nPlease verify the path of the software:\n" +
        broken);
    EXPECT_THAT(results.rows(), ElementsAre(guarded_.path()));
    EXPECT_TRUE(results.shows("Scan Failing Files..."));
    EXPECT_THAT(namesIn(folder_.path() + "Data\\Log\\"), IsEmpty());
    EXPECT_EQ(folder_.data("Integrity.dat"), before);
}

TEST_F(ScanByHand, AtLogOnAnAutomaticScanHandsOverByItselfAndEnds) {
    configure("0,1,0,1,0,0,1,1", "500", "1,0,0");
    const std::optional<std::string> before = folder_.data("Integrity.dat");
    const PlantedFile added(systemDirectory() + visitor, "a stranger");
    const Program program(folder_.program(), "/r");
    EXPECT_TRUE(program.ends()) << program.describe();
    expectHandedOver(added, before);
}

} // namespace
} // namespace e2e
