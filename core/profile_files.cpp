#include "core/profile_files.h"

#include "core/file_text.h"
#include "platform/files.h"

namespace tarvelon {

std::string ProfileFiles::read(const std::string& path, const std::string& section, const std::string& key) {
    const auto file = files_.open(path, OpenMode::Read);
    if (!file || !refresh(path, *file)) {
        return {};
    }
    return image_.read(section, key).value_or(std::string());
}

bool ProfileFiles::write(const std::string& path, const std::string& section, const std::string& key,
                         const std::string& value) {
    {
        const auto file = files_.open(path, OpenMode::ReadOrCreate);
        if (!file || !refresh(path, *file)) {
            return false;
        }
        const std::size_t oldLength = image_.size();
        const std::size_t changed = image_.write(section, key, value);
        if (!writeFrom(*file, changed, oldLength)) {
            putBack(*file, changed);
            return false;
        }
    }
    // The time of the last write is only sure once the file has been closed.
    const auto file = files_.open(path, OpenMode::Read);
    stamp_ = file ? stampOf(*file) : std::nullopt;
    return true;
}

std::optional<ProfileFiles::Stamp> ProfileFiles::stampOf(OpenFile& file) {
    const auto length = file.length();
    const auto lastWrite = file.lastWrite();
    if (!length || !lastWrite) {
        return std::nullopt;
    }
    return Stamp{*length, *lastWrite};
}

/// Makes the image that of `file`.
bool ProfileFiles::refresh(const std::string& path, OpenFile& file) {
    const auto stamp = stampOf(file);
    if (stamp && stamp == stamp_ && path == path_) {
        return true;
    }
    path_.clear();
    auto text = readAll(file);
    if (!text) {
        return false;
    }
    image_.setText(std::move(*text));
    path_ = path;
    stamp_ = stamp;
    return true;
}

bool ProfileFiles::writeFrom(OpenFile& file, std::size_t position, std::size_t oldLength) {
    if (image_.size() >= oldLength) {
        return file.writeAt(position, image_.from(position));
    }
    // Line ends fill a shorter text up to the old length: before they are cut off, and should that fail, they
    // are empty lines, and no piece of the old text stands behind the new one.
    std::string filled(image_.from(position));
    filled.resize(oldLength - position, '\n');
    if (!file.writeAt(position, filled)) {
        return false;
    }
    if (!file.setLength(image_.size())) {
        path_.clear();
    }
    return true;
}

/// The disk has room for the old bytes, since they had their place on it.
void ProfileFiles::putBack(OpenFile& file, std::size_t position) {
    image_.undo();
    path_.clear();
    file.writeAt(position, image_.from(position));
    file.setLength(image_.size());
}

} // namespace tarvelon
