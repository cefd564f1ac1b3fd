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
    const auto file = files_.open(path, OpenMode::ReadOrCreate);
    if (!file || !refresh(path, *file)) {
        return false;
    }
    const std::size_t oldLength = image_.text().size();
    const ProfileImage::Change change = image_.write(section, key, value);
    if (!writeFrom(*file, change.position, oldLength)) {
        putBack(*file, change);
        return false;
    }
    const auto written = file->touch();
    stamp_ = written ? std::optional(Stamp{image_.text().size(), *written}) : std::nullopt;
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
    const std::string_view changed = std::string_view(image_.text()).substr(position);
    const std::size_t oldPart = oldLength - position;
    if (changed.size() >= oldPart) {
        return file.writeAt(position, changed);
    }
    // Line ends fill a shorter text up to the old length: before they are cut off, and should that fail, they
    // are empty lines, and no piece of the old text stands behind the new one.
    std::string filled(changed);
    filled.resize(oldPart, '\n');
    if (!file.writeAt(position, filled)) {
        return false;
    }
    if (!file.setLength(image_.text().size())) {
        path_.clear();
    }
    return true;
}

/// The disk has room for the old bytes, since they had their place on it.
void ProfileFiles::putBack(OpenFile& file, const ProfileImage::Change& change) {
    path_.clear();
    const std::string old = change.taken + image_.text().substr(change.position + change.length);
    file.writeAt(change.position, old);
    file.setLength(change.position + old.size());
}

} // namespace tarvelon
