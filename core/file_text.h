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

/// Makes the file, or puts the text in place of what it held. The text is written beside it first, under the
/// name with ".new" behind, and reaches the disk before it takes the file's place, so that the file itself is
/// never seen half-written, a loss of power included. False when that fails, and all is as before.
bool writeWholeFile(Files& files, const std::string& path, const std::string& text);

/// Copies a file over another or to a new name, in the same way.
bool copyWholeFile(Files& files, const std::string& from, const std::string& to);

} // namespace tarvelon
