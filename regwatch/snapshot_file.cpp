#include "regwatch/snapshot_file.h"

#include "core/failure.h"
#include "core/file_text.h"
#include "core/globals.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "regwatch/locations.h"

namespace tarvelon {

void SnapshotFile::checkRegFile() {
    const std::string& path = globals.app.regFile;
    if (platform.files.open(path, OpenMode::Read)) {
        return;
    }
    std::string text;
    for (const Location& location : locations) {
        text.append("[").append(location.section).append("]\r\n\r\n");
    }
    if (!writeWholeFile(platform.files, path, text)) {
        throw Failure("The registry snapshot cannot be made:\r\n" + path);
    }
    globals.regWatch.regNew = true;
    setReg();
}

} // namespace tarvelon
