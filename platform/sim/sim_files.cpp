#include "platform/sim/sim_files.h"

#include "platform/folders.h"
#include "platform/sim/faults.h"
#include "platform/sim/host_file.h"
#include "platform/sim/short_names.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tarvelon {

namespace {

bool isFolder(const std::string& host) {
    struct stat status;
    return ::stat(host.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool exists(const std::string& host) {
    return ::access(host.c_str(), F_OK) == 0;
}

/// 0 for what is not there.
std::uint64_t lengthOf(const std::string& host) {
    struct stat status;
    return ::stat(host.c_str(), &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

int openHost(const std::string& host, int flags) {
    return ::open(host.c_str(), flags | O_CLOEXEC, 0644);
}

bool isFolder(int descriptor) {
    struct stat status;
    return ::fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode);
}

// Two writes within one tick of the host's clock would leave the same stamp; this one moves it on.
void makeStampDiffer(const std::string& host, const timespec& before) {
    struct stat status;
    if (::stat(host.c_str(), &status) != 0 || status.st_mtim.tv_sec != before.tv_sec ||
        status.st_mtim.tv_nsec != before.tv_nsec) {
        return;
    }
    timespec times[2] = {{0, UTIME_OMIT}, {before.tv_sec + 1, before.tv_nsec}};
    ::utimensat(AT_FDCWD, host.c_str(), times, 0);
}

template<class Visit>
void forEachEntry(const std::string& hostFolder, Visit visit) {
    DIR* const folder = ::opendir(hostFolder.c_str());
    if (!folder) {
        return;
    }
    while (const dirent* entry = ::readdir(folder)) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..") {
            visit(name);
        }
    }
    ::closedir(folder);
}

} // namespace

SimFiles::SimFiles(Faults& faults, SimCodePage& codePage, std::string hostFolder)
    : faults_(faults)
    , codePage_(codePage)
    , root_(std::move(hostFolder)) {}

std::string SimFiles::hostPath(const std::string& path) const {
    return hostPathByUtf8(codePage_.toUtf8(path));
}

std::string SimFiles::hostPathByUtf8(const std::string& path) const {
    const auto asked = placeByUtf8(path);
    if (!asked) {
        throw std::invalid_argument("no place for " + path);
    }
    return find(*asked, true).value_or(asked->path);
}

void SimFiles::put(const std::string& path, std::string_view bytes) {
    putByUtf8(codePage_.toUtf8(path), bytes);
}

void SimFiles::putByUtf8(const std::string& path, std::string_view bytes) {
    makeFoldersByUtf8(path.substr(0, path.rfind('\\') + 1));
    const std::string host = hostPathByUtf8(path);
    struct stat before = {};
    ::stat(host.c_str(), &before);
    std::ofstream file(host, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        throw std::runtime_error("cannot write " + host);
    }
    makeStampDiffer(host, before.st_mtim);
}

std::optional<std::string> SimFiles::get(const std::string& path) const {
    const std::string host = hostPath(path);
    std::ifstream file(host, std::ios::binary);
    if (!file || isFolder(host)) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(file), {});
}

void SimFiles::makeFolders(const std::string& path) {
    makeFoldersByUtf8(codePage_.toUtf8(path));
}

void SimFiles::makeFoldersByUtf8(const std::string& path) {
    for (std::size_t slash = path.find('\\', 3); slash != std::string::npos;
         slash = path.find('\\', slash + 1)) {
        ::mkdir(hostPathByUtf8(path.substr(0, slash)).c_str(), 0755);
    }
}

std::string SimFiles::firstName(const std::string& folder) {
    listing_.clear();
    nextInListing_ = 0;
    const auto asked = place(folder);
    if (faults_.strikes(Operation::ListFolder) || !asked) {
        return {};
    }
    const auto host = find(*asked);
    if (!host || !isFolder(*host)) {
        return {};
    }
    const std::vector<std::string> names = namesIn(*host);
    for (const std::string& name : names) {
        listing_.push_back(shown(name, names));
    }
    if (!asked->isRoot()) {
        listing_.insert(listing_.begin(), {".", ".."});
    }
    return nextName();
}

std::string SimFiles::shown(const std::string& hostName,
                            const std::vector<std::string>& namesInFolder) const {
    if (auto name = codePage_.fromUtf8(hostName)) {
        return *std::move(name);
    }
    return withoutShortNames ? codePage_.shown(hostName) : shortNameOf(hostName, namesInFolder);
}

std::string SimFiles::nextName() {
    return nextInListing_ < listing_.size() ? listing_[nextInListing_++] : std::string();
}

std::unique_ptr<OpenFile> SimFiles::open(const std::string& path, OpenMode mode) {
    const auto asked = place(path);
    if (faults_.strikes(Operation::OpenFile) || !asked || isLocked(path) ||
        (mode != OpenMode::Read && isReadOnly(path))) {
        return nullptr;
    }
    const bool writes = mode != OpenMode::Read;
    int descriptor = openHost(asked->path, writes ? O_RDWR : O_RDONLY);
    if (descriptor < 0 && errno == ENOENT) {
        if (const auto found = find(*asked, writes)) {
            descriptor = openHost(*found, writes ? O_RDWR | O_CREAT : O_RDONLY);
        }
    }
    if (descriptor < 0) {
        return nullptr;
    }
    auto file = std::make_unique<HostFile>(descriptor, faults_, unflushed_);
    if (mode == OpenMode::Create && !file->empty()) {
        return nullptr;
    }
    if (mode == OpenMode::Read && isFolder(descriptor)) {
        return nullptr; // The host opens folders for reading; the system does not.
    }
    return file;
}

std::optional<std::uint64_t> SimFiles::length(const std::string& path) {
    const auto asked = place(path);
    const auto found = asked ? find(*asked) : std::nullopt;
    struct stat status;
    if (faults_.strikes(Operation::LengthByName) || !found || ::stat(found->c_str(), &status) != 0 ||
        S_ISDIR(status.st_mode)) {
        return std::nullopt;
    }
    return static_cast<std::uint64_t>(status.st_size);
}

/// The two ends of a move on the host, where the system lets it go ahead.
std::optional<SimFiles::Way> SimFiles::findWay(const std::string& from, const std::string& to) const {
    const auto source = place(from);
    const auto target = place(to);
    if (!source || !target || isLocked(from) || isLocked(to) || isReadOnly(to)) {
        return std::nullopt;
    }
    const auto foundSource = find(*source);
    const auto foundTarget = find(*target, true);
    if (!foundSource || !foundTarget || isFolder(*foundSource) || isFolder(*foundTarget)) {
        return std::nullopt;
    }
    return Way{*foundSource, *foundTarget};
}

bool SimFiles::remove(const std::string& path) {
    const auto asked = place(path);
    if (faults_.strikes(Operation::RemoveFile) || !asked || isLocked(path) || isReadOnly(path)) {
        return false;
    }
    const auto found = find(*asked);
    const std::uint64_t length = found ? lengthOf(*found) : 0;
    if (!found || ::unlink(found->c_str()) != 0) {
        return false;
    }
    faults_.giveBack(length);
    return true;
}

bool SimFiles::move(const std::string& from, const std::string& to) {
    const auto way = faults_.strikes(Operation::MoveFile) ? std::nullopt : findWay(from, to);
    if (!way) {
        return false;
    }
    struct stat status = {};
    ::stat(way->source.c_str(), &status);
    if (unflushed_.contains(status.st_ino)) {
        movedUnflushed_.push_back(to);
    }
    const std::uint64_t replaced = way->source == way->target ? 0 : lengthOf(way->target);
    if (::rename(way->source.c_str(), way->target.c_str()) != 0) {
        return false;
    }
    faults_.giveBack(replaced);
    return true;
}

bool SimFiles::createFolder(const std::string& path) {
    const auto asked = place(path);
    if (faults_.strikes(Operation::CreateFolder) || !asked) {
        return false;
    }
    const auto found = find(*asked, true);
    return found && ::mkdir(found->c_str(), 0755) == 0;
}

bool SimFiles::searchTreeForFile(const std::string& root, const std::string& name, char* buffer) {
    const auto asked = place(root);
    const auto host = asked ? find(*asked) : std::nullopt;
    if (faults_.strikes(Operation::SearchTree) || !host || !isFolder(*host)) {
        return false;
    }
    const std::string below = root.back() == '\\' ? root : root + "\\";
    const auto hit = searchFolder(*host, below, utf8Capitals(codePage_.toUtf8(name)));
    if (!hit || hit->size() >= SystemFolders::pathRoom) {
        return false;
    }
    std::memcpy(buffer, hit->c_str(), hit->size() + 1);
    return true;
}

std::uint32_t SimFiles::getShortPathName(const std::string& path, char* buffer, std::uint32_t size) {
    const auto asked = place(path);
    const auto host = asked ? find(*asked) : std::nullopt;
    if (faults_.strikes(Operation::ShortPath) || !host) {
        return 0;
    }
    std::string shortPath = path.substr(0, 3) + shortPathTo(*host, asked->rootLength);
    if (!asked->isRoot() && codePage_.toUtf8(path).back() == '\\') {
        shortPath += '\\';
    }
    const auto length = static_cast<std::uint32_t>(shortPath.size());
    if (length >= size) {
        return length + 1;
    }
    std::memcpy(buffer, shortPath.c_str(), length + 1);
    return length;
}

/// Of the names behind the drive's root, without a backslash in front of them.
std::string SimFiles::shortPathTo(const std::string& host, std::size_t rootLength) const {
    std::string path;
    for (std::size_t from = rootLength + 1; from < host.size();) {
        const std::size_t slash = std::min(host.find('/', from), host.size());
        path += path.empty() ? "" : "\\";
        path += shortNameOf(host.substr(from, slash - from), namesIn(host.substr(0, from - 1)));
        from = slash + 1;
    }
    return path;
}

std::optional<std::string> SimFiles::searchFolder(const std::string& hostFolder,
                                                  const std::string& shownFolder,
                                                  const std::string& upperName) const {
    const std::vector<std::string> names = namesIn(hostFolder);
    for (const std::string& name : names) {
        const std::string host = hostFolder + "/" + name;
        if (isFolder(host)) {
            if (auto hit = searchFolder(host, shownFolder + shown(name, names) + "\\", upperName)) {
                return hit;
            }
        } else if (utf8Capitals(name) == upperName) {
            return shownFolder + shown(name, names);
        }
    }
    return std::nullopt;
}

/// Takes a path apart as the system does: cut at the first zero, slashes of both kinds and runs of them
/// alike, no blanks or dots at the end, no wildcards. Empty for a path that is not of the form `C:\...`.
std::optional<SimFiles::Place> SimFiles::place(const std::string& path) const {
    return placeByUtf8(codePage_.toUtf8(path.c_str()));
}

std::optional<SimFiles::Place> SimFiles::placeByUtf8(std::string_view asked) const {
    const bool onDrive = asked.starts_with("C:\\") || asked.starts_with("c:\\");
    if (!onDrive || asked.find_first_of("*?\"<>|", 2) != std::string_view::npos) {
        return std::nullopt;
    }
    Place result{root_, root_.size()};
    for (std::size_t from = 3; from < asked.size();) {
        const std::size_t slash = std::min(asked.find_first_of("\\/", from), asked.size());
        const std::string_view part = asked.substr(from, slash - from);
        from = slash + 1;
        if (part == "..") {
            result.path.resize(result.isRoot() ? result.rootLength : result.path.rfind('/'));
        } else if (!part.empty() && part != ".") {
            result.path.append("/").append(part);
        }
    }
    while (!result.isRoot() && (result.path.back() == ' ' || result.path.back() == '.')) {
        result.path.pop_back();
    }
    return result;
}

std::optional<std::string> SimFiles::find(const Place& asked, bool newLast) const {
    if (exists(asked.path)) {
        return asked.path;
    }
    std::string found = asked.path.substr(0, asked.rootLength);
    for (std::size_t from = asked.rootLength + 1; from < asked.path.size();) {
        const std::size_t slash = std::min(asked.path.find('/', from), asked.path.size());
        const std::string part = asked.path.substr(from, slash - from);
        from = slash + 1;
        if (exists(found + "/" + part)) {
            found += "/" + part;
            continue;
        }
        const std::string entry = entryLike(found, part);
        if (!entry.empty()) {
            found += "/" + entry;
        } else if (newLast && slash == asked.path.size() && isFolder(found)) {
            return found + "/" + part;
        } else {
            return std::nullopt;
        }
    }
    return found;
}

std::string SimFiles::entryLike(const std::string& hostFolder, const std::string& name) const {
    const std::string wanted = utf8Capitals(name);
    std::string found;
    forEachEntry(hostFolder, [&](const std::string& entry) {
        if (utf8Capitals(entry) == wanted) {
            found = entry;
        }
    });
    if (!found.empty() || name.find('~') == std::string::npos) {
        return found;
    }
    const std::vector<std::string> names = namesIn(hostFolder);
    const auto hit = std::ranges::find_if(
        names, [&](const std::string& entry) { return shortNameOf(entry, names) == wanted; });
    return hit == names.end() ? std::string() : *hit;
}

/// Without the dot entries, in the order of the upper-cased names.
std::vector<std::string> SimFiles::namesIn(const std::string& hostFolder) const {
    std::vector<std::pair<std::string, std::string>> entries; // Upper-cased and as it is.
    forEachEntry(hostFolder,
                 [&](const std::string& entry) { entries.emplace_back(utf8Capitals(entry), entry); });
    std::sort(entries.begin(), entries.end());
    std::vector<std::string> names;
    names.reserve(entries.size());
    for (auto& [key, name] : entries) {
        names.push_back(std::move(name));
    }
    return names;
}

std::string SimFiles::lockName(const std::string& path) const {
    const auto asked = place(path);
    return asked ? utf8Capitals(asked->path) : std::string();
}

bool SimFiles::isLocked(const std::string& path) const {
    return !locked_.empty() && locked_.contains(lockName(path));
}

bool SimFiles::isReadOnly(const std::string& path) const {
    return !readOnly_.empty() && readOnly_.contains(lockName(path));
}

} // namespace tarvelon
