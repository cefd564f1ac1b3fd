#pragma once

#include <optional>
#include <string>

namespace tarvelon {

class FuncMod;
class TextRules;

/// What `cutToFilePath` made of a text.
struct CutPath {
    std::string text; ///< The command's program, as far as it could be told from its arguments.
    std::optional<std::string> path; ///< Its file; empty when a bare name was searched in vain.
};

/// Cuts an entry of the form `name (command line)`, or a plain path, down to the file that it starts. Only
/// the part in the first parentheses counts, which a first ")" or a zero in it ends; arguments are cut off
/// behind the first blank that follows a dot; "%systemroot%" in lower case is the one variable known; a name
/// without a backslash is looked for in the system folder, the Windows folder and the old system folder.
/// Quotes stay.
CutPath cutToFilePath(const TextRules& texts, const std::string& entry, const FuncMod& funcMod);

} // namespace tarvelon
