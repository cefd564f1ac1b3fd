#pragma once

#include <string>

namespace tarvelon {

class Control;

/// Puts a stored scanner, `<exe>|<args>`, into its two fields. A setting without a "|" leaves them as they
/// are.
void fillScannerFields(const std::string& setting, Control& exe, Control& args);

} // namespace tarvelon
