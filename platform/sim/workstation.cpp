#include "platform/sim/workstation.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace tarvelon {

namespace {

std::string makeTemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "tarvelon-XXXXXX").string();
    if (!::mkdtemp(name.data())) {
        throw std::runtime_error("cannot make " + name);
    }
    return name;
}

} // namespace

SimWorkstation::SimWorkstation()
    : SimWorkstation(makeTemporaryFolder()) {
    ownFolder_ = files.hostPath("C:\\");
    files.makeFolders(folders.systemDirectory + "\\");
    for (const auto& [csidl, path] : folders.special) {
        files.makeFolders(path + "\\");
    }
    files.makeFolders(processes.file.substr(0, processes.file.rfind('\\') + 1));
}

SimWorkstation::SimWorkstation(const std::string& hostFolder) {
    files.mapDrive('C', hostFolder);
}

SimWorkstation::~SimWorkstation() {
    if (!ownFolder_.empty()) {
        std::error_code ignored;
        std::filesystem::remove_all(ownFolder_, ignored);
    }
}

} // namespace tarvelon
