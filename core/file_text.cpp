#include "core/file_text.h"

#include "platform/files.h"

namespace tarvelon {

namespace {

/// On the disk itself when that succeeds: a name must not come to stand for bytes that a loss of power takes.
bool writeThrough(Files& files, const std::string& path, const std::string& text) {
    const auto file = files.open(path, OpenMode::Create);
    return file && file->writeAt(0, text) && file->flush();
}

} // namespace

std::optional<std::string> readAll(OpenFile& file) {
    const auto length = file.length();
    if (!length) {
        return std::nullopt;
    }
    std::string text(static_cast<std::size_t>(*length), '\0');
    const auto count = file.readAt(0, text.data(), text.size());
    if (!count) {
        return std::nullopt;
    }
    text.resize(*count);
    return text;
}

std::optional<std::string> readWholeFile(Files& files, const std::string& path) {
    const auto file = files.open(path, OpenMode::Read);
    return file ? readAll(*file) : std::nullopt;
}

bool writeWholeFile(Files& files, const std::string& path, const std::string& text) {
    const std::string beside = path + ".new";
    if (writeThrough(files, beside, text) && files.move(beside, path)) {
        return true;
    }
    files.remove(beside);
    return false;
}

bool copyWholeFile(Files& files, const std::string& from, const std::string& to) {
    const auto text = readWholeFile(files, from);
    return text && writeWholeFile(files, to, *text);
}

} // namespace tarvelon
