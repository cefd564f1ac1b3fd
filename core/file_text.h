#pragma once

#include <optional>
#include <string>

namespace tarvelon {

class Files;
class OpenFile;

/// All bytes of an open file; empty on failure.
std::optional<std::string> readAll(OpenFile& file);

/// All bytes of a file; empty when it cannot be opened or read.
std::optional<std::string> readWholeFile(Files& files, const std::string& path);

/// Makes the file, or empties it, and writes the text. False when that fails.
bool writeWholeFile(Files& files, const std::string& path, const std::string& text);

} // namespace tarvelon
