#include "avshell/scanner_command.h"

#include "core/failure.h"
#include "core/settings_file.h"
#include "core/text.h"
#include "platform/processes.h"
#include "ui/controls/controls.h"

#include <algorithm>
#include <numeric>

namespace tarvelon {

std::optional<ScannerCommand> ScannerCommand::stored(const SettingsFile& settings, const char* request) {
    const std::string setting = settings.getSetting(request);
    const std::size_t bar = settings.texts().first(setting, '|');
    if (bar == std::string::npos) {
        return std::nullopt;
    }
    return ScannerCommand{setting.substr(0, bar), trim(std::string_view(setting).substr(bar + 1))};
}

bool ScannerCommand::isSet() const {
    return !trim(exe).empty();
}

std::string ScannerCommand::arguments(const std::string& files) const {
    return args + " " + files;
}

ScannerPair ScannerPair::stored(const SettingsFile& settings) {
    const auto scanner = [&](const char* request) {
        return ScannerCommand::stored(settings, request).value_or(ScannerCommand{});
    };
    return {scanner("ANTIVIRUS"), scanner("AV2")};
}

std::vector<std::string> ScannerPair::lists(const std::vector<std::string>& items) const {
    const auto aroundList = [](const ScannerCommand& scanner) {
        return scanner.exe.size() + scanner.args.size() + 2;
    };
    const std::size_t taken = std::max(aroundList(first), aroundList(second));
    const std::size_t room = Processes::longestCommandLine - std::min(taken, Processes::longestCommandLine);
    std::vector<std::string> lists(1);
    for (const std::string& item : items) {
        if (!lists.back().empty() && lists.back().size() + item.size() > room) {
            lists.emplace_back();
        }
        lists.back() += item;
    }
    return lists;
}

ScannerCommand ScannerFields::command() const {
    return {exe.Caption(), args.Caption()};
}

void ScannerFields::fill(const SettingsFile& settings, const char* request) const {
    if (const auto scanner = ScannerCommand::stored(settings, request)) {
        exe.Caption = scanner->exe;
        args.Caption = scanner->args;
    }
}

void fillBoth(const SettingsFile& settings, const ScannerFields& first, const ScannerFields& second) {
    passOver([&] { first.fill(settings, "ANTIVIRUS"); });
    passOver([&] { second.fill(settings, "AV2"); });
}

std::string joined(const std::vector<std::string>& items) {
    return std::accumulate(items.begin(), items.end(), std::string());
}

} // namespace tarvelon
