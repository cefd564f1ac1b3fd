#include "platform/sim/workstation.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace tarvelon {

namespace {

/// Where TMPDIR says, else in memory where there is such a folder: a disk takes ten times as long.
std::string makeTemporaryFolder() {
    const std::filesystem::path memory = "/dev/shm";
    const bool inMemory = !std::getenv("TMPDIR") && ::access(memory.c_str(), W_OK) == 0;
    const auto place = inMemory ? memory : std::filesystem::temp_directory_path();
    std::string name = (place / "tarvelon-XXXXXX").string();
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

SimWorkstation::SimWorkstation(const std::string& hostFolder)
    : files(faults, codePage, hostFolder) {}

SimWorkstation::~SimWorkstation() {
    if (!ownFolder_.empty()) {
        std::error_code ignored;
        std::filesystem::remove_all(ownFolder_, ignored);
    }
}

} // namespace tarvelon
