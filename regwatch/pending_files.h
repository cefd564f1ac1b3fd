#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tarvelon {

class TextRules;
struct Platform;
class FuncMod;

/// A file that the system will delete or overwrite at its next start.
struct PendingFile {
    std::string file; ///< As it stands in the source, untrimmed.
    bool toBeDeleted; ///< Else it will be overwritten.
};

/// The entries of wininit.ini in the Windows folder: every line with a "=", whatever its section. Empty when
/// there is no such file or it cannot be read.
std::vector<PendingFile> wininitEntries(const TextRules& texts, Platform& platform, const FuncMod& funcMod);

/// Whether wininit.ini is there to be read.
bool wininitThere(const FuncMod& funcMod);

/// The session manager's pending operations, cut at each "\??\"; sources and targets stand side by side. An
/// element of blanks alone is no file, one without a zero in it an empty one. No elements at all when the
/// value is missing, has more than 256 bytes, or holds no "\??\".
std::vector<std::optional<std::string>> pendingRenames(const TextRules& texts, Platform& platform);

} // namespace tarvelon
