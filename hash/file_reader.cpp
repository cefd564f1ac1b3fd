#include "hash/file_reader.h"

#include "core/globals.h"
#include "hash/do_events.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <new>
#include <utility>

namespace tarvelon {

FileReader::FileReader(Platform& platform, Algorithm& algorithm)
    : platform_(platform)
    , algorithm_(algorithm) {}

FileReader::~FileReader() = default;

bool FileReader::read(const std::string& path, const Take& take) {
    std::unique_ptr<OpenFile> file = platform_.files.open(path, OpenMode::Read);
    if (!file) {
        return false;
    }
    const std::optional<std::uint64_t> total = file->length();
    if (total == 0) {
        return false;
    }
    if (total && readToEnd(*file, *total, take)) {
        return true;
    }
    // A file that failed half-way stays open: until the program ends, the user finds it in use.
    unfinished_.push_back(std::move(file));
    return false;
}

bool FileReader::readToEnd(OpenFile& file, std::uint64_t total, const Take& take) {
    clsDoEvents doEvents(platform_.messages);
    doEvents.QueueUsed(userInput);
    for (std::uint64_t position = 0;;) {
        if (algorithm_.readBuffer == 0) {
            algorithm_.readBuffer = 65536;
        }
        if (algorithm_.readBuffer < 0) {
            return false;
        }
        const auto size = static_cast<std::size_t>(algorithm_.readBuffer);
        const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(size, total - position));
        if (!provideBuffer(size) || !fill(file, position, count)) {
            return false;
        }
        take({buffer_.get(), count});
        position += count;
        if (position == total) {
            return true;
        }
        doEvents.GetInputState();
    }
}

bool FileReader::provideBuffer(std::size_t size) {
    if (size == bufferSize_) {
        return true;
    }
    buffer_.reset();
    buffer_.reset(new (std::nothrow) unsigned char[size]);
    bufferSize_ = buffer_ ? size : 0;
    return buffer_ != nullptr;
}

bool FileReader::fill(OpenFile& file, std::uint64_t position, std::size_t count) {
    const std::optional<std::size_t> came = file.readAt(position, buffer_.get(), count);
    if (!came) {
        return false;
    }
    // A file cut short meanwhile counts as zeros up to the length that it had.
    std::memset(buffer_.get() + *came, 0, count - *came);
    return true;
}

} // namespace tarvelon
