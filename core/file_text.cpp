#include "core/file_text.h"

#include "platform/files.h"

namespace tarvelon {

namespace {

/// Has the new state made in a file beside `path`, which then takes its place.
template<class Make>
bool replace(Files& files, const std::string& path, const Make& make) {
    const std::string beside = path + ".new";
    if (make(beside) && files.move(beside, path)) {
        return true;
    }
    files.remove(beside);
    return false;
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
    return replace(files, path, [&](const std::string& beside) {
        const auto file = files.open(beside, OpenMode::Create);
        return file && file->writeAt(0, text);
    });
}

bool copyWholeFile(Files& files, const std::string& from, const std::string& to) {
    return replace(files, to, [&](const std::string& beside) { return files.copy(from, beside); });
}

} // namespace tarvelon
