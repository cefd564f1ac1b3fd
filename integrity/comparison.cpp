#include "integrity/comparison.h"

#include "core/failure.h"
#include "core/func_mod.h"
#include "core/globals.h"
#include "core/settings_file.h"
#include "hash/checksum.h"
#include "hash/do_events.h"
#include "integrity/data_file.h"
#include "integrity/intcheck_screen.h"
#include "platform/files.h"
#include "platform/messages.h"
#include "platform/platform.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

namespace tarvelon {

namespace {

/// Rounded to the nearest whole number, halves to the even one; empty when that has more than 16 bits.
std::optional<std::int16_t> toInt16(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= -32768.0 && rounded <= 32767.0)) {
        return std::nullopt;
    }
    return static_cast<std::int16_t>(rounded);
}

} // namespace

/// What a pass keeps while it runs.
struct Comparison::Pass {
    PassArguments arguments;
    std::string folder{};
    PassLabels* labels = nullptr;
    std::int16_t passTotal = 0; ///< Stays 0 when the planned count is no number or too large.
    std::int32_t done = 0;      ///< Files done in all passes.
    double grand = 0;
    std::int16_t scanPercent = 0;
    std::int16_t passPercent = 0;
    clsDoEvents pump;
};

Comparison::Comparison(IntCheckScreen& screen, ProgressBar& shutDownProgress, const Services& services,
                       Checksum& checksum, DataFile& dataFile)
    : Services(services)
    , screen_(screen)
    , checksum_(checksum)
    , dataFile_(dataFile)
    , shutDownProgress_(shutDownProgress) {}

void Comparison::comparePass(const PassArguments& arguments) {
    ScanRun& scan = globals.scan;
    scan.passDone = 0;
    Pass pass{.arguments = arguments, .pump = clsDoEvents(platform.messages)};
    pass.pump.QueueUsed(userInput);
    if (scan.passType >= 1 && scan.passType <= 6) {
        pass.labels = &screen_.passes[static_cast<std::size_t>(scan.passType - 1)];
    }
    pass.passTotal = toInt16(toNumber(screen_.pb1max.Caption()).value_or(0)).value_or(0);
    pass.done = toNumber(screen_.pbm.Caption()).value_or(0);
    pass.grand = toNumber(screen_.pb2max.Caption()).value_or(0);
    if (scan.customFolder.empty()) {
        pass.folder = trim(funcMod.getSysDir());
    } else {
        pass.folder = globals.texts.withBackslash(scan.customFolder);
        pass.arguments.dataFile = checksum_.getCustomDat(scan.customIndex);
    }

    for (std::string name = platform.files.firstName(pass.folder); !name.empty();) {
        pass.pump.GetInputState();
        if (name != "." && name != ".." && compareFile(pass, name) == Outcome::Cancelled) {
            return;
        }
        name = platform.files.nextName();
        while (scan.scanPaused) {
            platform.messages.wait();
            platform.messages.pump();
        }
    }
    if (!globals.app.inShutDown()) {
        screen_.pbm.Caption = std::to_string(pass.done);
        if (pass.labels) {
            pass.labels->percent.Caption = "100%";
        }
    }
}

Comparison::Outcome Comparison::compareFile(Pass& pass, const std::string& name) {
    ScanRun& scan = globals.scan;
    const std::string tail = globals.texts.upper(lastCharacters(name, 4));
    if (tail != pass.arguments.ext1 && tail != pass.arguments.ext2) {
        return Outcome::Done;
    }
    if (!globals.app.inShutDown() && pass.labels) {
        pass.labels->file.Caption = name;
    }
    const std::string checksum = checksum_.getChecksum(pass.folder + name);
    pass.pump.GetInputState();
    if (scan.scanCancelled) {
        return Outcome::Cancelled;
    }

    const std::string section = globals.texts.upper(lastCharacters(name, 3));
    const std::string stored = pass.arguments.dataFile.empty() ? dataFile_.getEntry(name, section)
                                                               : dataFile_.getCustomEntry(name, section);
    if (stored.empty() || stored == "NULL") {
        noteNew(pass, name, section, checksum);
    } else {
        if (scan.scanCancelled) {
            return Outcome::Cancelled;
        }
        if (shiftText("ABC", checksum) != stored) {
            noteFailed(pass, name, checksum);
        }
    }
    ++pass.done;
    ++scan.passDone;
    showProgress(pass);
    pass.pump.GetInputState();
    return Outcome::Done;
}

void Comparison::noteNew(Pass& pass, const std::string& name, const std::string& section,
                         const std::string& checksum) {
    ++globals.scan.newCount;
    if (!globals.baselines.primaryScan) {
        list(pass, name, IntCheckScreen::newMark, shiftText("ABC", checksum));
        return;
    }
    const std::string& dataFile = pass.arguments.dataFile;
    passOver([&] {
        settings.writeEntry(dataFile.empty() ? checksum_.getIntFile() : dataFile, name, checksum + "*E",
                            section);
    });
}

void Comparison::noteFailed(Pass& pass, const std::string& name, const std::string& checksum) {
    ++globals.scan.failCount;
    if (!globals.baselines.primaryScan) {
        list(pass, name, "", shiftText("ABC", checksum));
    }
}

/// Puts a finding on the screen and among those to be accepted later.
void Comparison::list(const Pass& pass, const std::string& name, const std::string& mark,
                      const std::string& value) {
    ScanRun& scan = globals.scan;
    const std::string path = pass.folder + name;
    screen_.List1.add(path + mark);
    if (scan.customFolder.empty()) {
        scan.failList.append(path).append(" ").append(value).append(",");
    } else {
        const std::string slot = "(" + std::to_string(scan.customIndex) + ")";
        scan.customFailList.append(path).append(slot).append(" ").append(value).append(",");
    }
}

/// Files that came since the plan count as planned.
void Comparison::showDone(std::int32_t done) {
    const std::int32_t all = std::max(toNumber(screen_.pb2max.Caption()).value_or(0), done);
    screen_.allPasses.setMax(all);
    screen_.allPasses.setValue(done);
    screen_.filesDone.Caption = std::to_string(done) + " of " + std::to_string(all) + " files";
}

void Comparison::showProgress(Pass& pass) {
    const ScanRun& scan = globals.scan;
    if (const auto percent = toInt16(pass.done / pass.grand * 100)) {
        pass.scanPercent = *percent;
    }
    // The last pass is planned without a count: its percentage stays at 0 until it ends.
    if (pass.passTotal != 0) {
        if (const auto percent = toInt16(static_cast<double>(scan.passDone) / pass.passTotal * 100)) {
            pass.passPercent = *percent;
        }
    }
    if (globals.app.inShutDown()) {
        shutDownProgress_.setValue(pass.passPercent);
        return;
    }
    screen_.Caption = std::to_string(pass.scanPercent) + "% AutoCheck";
    if (pass.labels) {
        pass.labels->percent.Caption = std::to_string(pass.passPercent) + "%";
    }
    showDone(pass.done);
    screen_.Label6.Caption = std::to_string(pass.done);
    screen_.Label9.Caption = std::to_string(scan.failCount);
    screen_.Label8.Caption = std::to_string(scan.newCount);
    screen_.Label7.Caption = std::to_string(pass.done - scan.failCount - scan.newCount);
}

} // namespace tarvelon
