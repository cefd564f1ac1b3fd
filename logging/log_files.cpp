#include "logging/log_files.h"

#include "core/failure.h"
#include "core/file_text.h"
#include "core/globals.h"
#include "platform/clock.h"
#include "platform/platform.h"
#include "ui/mform1_screen.h"

namespace tarvelon {

void LogFiles::writeLog(const std::string& listText, bool force) {
    if (!force && !passesGate(listText)) {
        return;
    }
    const std::string path = fileName();
    const std::size_t headingLength = listText.find(',') + 1;
    const CaseRules& cases = globals_.cases;
    std::string names = trim(std::string_view(listText).substr(headingLength));
    names = cases.replaceAll(names, "\" \"", ",");
    names = cases.replaceAll(names, "\" \"", ",");
    names = cases.replaceAll(names, "\"", "");
    names = cases.replaceAll(names, ", ", ",");
    names = cases.replaceAll(names, " ", ",");
    if (!writeWholeFile(platform_.files, path, listText.substr(0, headingLength) + names + "\r\n")) {
        throw Failure("The report cannot be written:\r\n" + path);
    }
}

bool LogFiles::passesGate(const std::string& listText) {
    if (trim(listText).empty() || listText.find('.') == std::string::npos) {
        return false;
    }
    if (globals_.app.shutAction != -1) {
        globals_.shutDown.scanLogged = 1;
    }
    return mForm1_.Check7.value() != 0;
}

std::string LogFiles::fileName() const {
    std::vector<std::string> parts =
        split(globals_.cases.replaceAll(platform_.clock.dateText(), "/", "-"), '-');
    std::string date;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const bool last = i + 1 == parts.size();
        date += (!last && parts[i].size() == 1 ? "0" : "") + parts[i] + (last ? "" : "-");
    }
    const std::string time =
        globals_.cases.replaceAll(globals_.cases.replaceAll(platform_.clock.timeText(), ":", "_"), " ", "");
    return globals_.app.appPath + "Data\\Log\\" + date + "(" + time + ").log";
}

} // namespace tarvelon
