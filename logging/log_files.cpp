#include "logging/log_files.h"

#include "core/failure.h"
#include "core/file_text.h"
#include "core/globals.h"
#include "logging/report_name.h"
#include "platform/clock.h"
#include "platform/platform.h"
#include "ui/controls/controls.h"

#include <algorithm>

namespace tarvelon {

namespace {

bool fitsNoFileName(char character) {
    constexpr std::string_view reserved = "\\/:*?\"<>|";
    return static_cast<unsigned char>(character) < ' ' || reserved.find(character) != std::string_view::npos;
}

} // namespace

void LogFiles::writeLog(const std::string& listText, bool force) {
    if (!force && !passesGate(listText)) {
        return;
    }
    const std::string path = fileName();
    const std::size_t headingLength = listText.find(',') + 1;
    const TextRules& texts = globals.texts;
    std::string names = trim(std::string_view(listText).substr(headingLength));
    names = texts.replaceAll(names, "\" \"", ",");
    names = texts.replaceAll(names, "\"", "");
    names = texts.replaceAll(names, ", ", ",");
    names = texts.replaceAll(names, " ", ",");
    if (!writeWholeFile(platform.files, path, listText.substr(0, headingLength) + names + "\r\n")) {
        throw Failure("The report cannot be written:\r\n" + path);
    }
}

bool LogFiles::passesGate(const std::string& listText) {
    if (trim(listText).empty() || listText.find('.') == std::string::npos) {
        return false;
    }
    if (globals.app.inShutDown()) {
        globals.shutDown.scanLogged = 1;
    }
    return autoLogging_.value() != 0;
}

std::string LogFiles::fileName() const {
    std::string name = reportDate(platform.clock.dateText()) + "(" +
                       reportTimeStored(globals.texts, platform.clock.timeText()) + ").log";
    // Letters that the code page lacks come as "?", in the date or where other systems have AM and PM.
    std::replace_if(name.begin(), name.end(), fitsNoFileName, '_');
    return globals.app.logFolder() + name;
}

} // namespace tarvelon
