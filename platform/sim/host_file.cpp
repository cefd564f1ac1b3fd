#include "platform/sim/host_file.h"

#include "platform/sim/faults.h"

#include <unistd.h>

#include <algorithm>

namespace tarvelon {

HostFile::HostFile(int descriptor, Faults& faults, std::set<ino_t>& unflushed)
    : descriptor_(descriptor)
    , faults_(faults)
    , unflushed_(unflushed) {}

HostFile::~HostFile() {
    ::close(descriptor_);
}

std::optional<std::uint64_t> HostFile::length() {
    struct stat status;
    if (faults_.strikes(Operation::LengthOfOpenFile) || ::fstat(descriptor_, &status) != 0) {
        return std::nullopt;
    }
    return static_cast<std::uint64_t>(status.st_size);
}

std::optional<std::uint64_t> HostFile::lastWrite() {
    struct stat status;
    if (faults_.strikes(Operation::LastWrite) || ::fstat(descriptor_, &status) != 0) {
        return std::nullopt;
    }
    const timespec time = oldTime_.value_or(status.st_mtim);
    return static_cast<std::uint64_t>(time.tv_sec) * 1'000'000'000 + static_cast<std::uint64_t>(time.tv_nsec);
}

std::optional<std::uint64_t> HostFile::touch() {
    if (::futimens(descriptor_, nullptr) != 0) {
        return std::nullopt;
    }
    oldTime_.reset();
    return lastWrite();
}

std::optional<std::size_t> HostFile::readAt(std::uint64_t position, void* buffer, std::size_t count) {
    if (faults_.strikes(Operation::ReadFile)) {
        return std::nullopt;
    }
    std::size_t done = 0;
    while (done < count) {
        const ssize_t got = ::pread(descriptor_, static_cast<char*>(buffer) + done, count - done,
                                    static_cast<off_t>(position + done));
        if (got < 0) {
            return std::nullopt;
        }
        if (got == 0) {
            break;
        }
        done += static_cast<std::size_t>(got);
    }
    return done;
}

bool HostFile::writeAt(std::uint64_t position, std::string_view bytes) {
    if (faults_.strikes(Operation::WriteFile)) {
        return false;
    }
    unflushed_.insert(status().st_ino);
    oldTime_ = oldTime_.value_or(status().st_mtim);
    const std::uint64_t end = hostLength();
    const std::uint64_t growth = position + bytes.size() > end ? position + bytes.size() - end : 0;
    std::size_t fitting = bytes.size() - static_cast<std::size_t>(growth - faults_.roomFor(growth));
    if (faults_.strikes(Operation::WriteFileHalf)) {
        fitting = std::min(fitting, bytes.size() / 2);
    }
    const bool whole = fitting == bytes.size();
    for (bytes = bytes.substr(0, fitting); !bytes.empty();) {
        const ssize_t put = ::pwrite(descriptor_, bytes.data(), bytes.size(), static_cast<off_t>(position));
        if (put <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(put));
        position += static_cast<std::uint64_t>(put);
    }
    return whole;
}

bool HostFile::setLength(std::uint64_t length) {
    const std::uint64_t old = hostLength();
    if (faults_.strikes(Operation::SetLength) ||
        (length > old && faults_.roomFor(length - old) < length - old) ||
        ::ftruncate(descriptor_, static_cast<off_t>(length)) != 0) {
        return false;
    }
    faults_.giveBack(old > length ? old - length : 0);
    return true;
}

bool HostFile::flush() {
    unflushed_.erase(status().st_ino);
    return !faults_.strikes(Operation::Flush);
}

bool HostFile::empty() {
    faults_.giveBack(hostLength());
    return ::ftruncate(descriptor_, 0) == 0;
}

struct stat HostFile::status() const {
    struct stat status = {};
    ::fstat(descriptor_, &status);
    return status;
}

} // namespace tarvelon
