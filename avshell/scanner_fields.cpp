#include "avshell/scanner_fields.h"

#include "core/text.h"
#include "ui/controls/controls.h"

namespace tarvelon {

void fillScannerFields(const std::string& setting, Control& exe, Control& args) {
    if (const auto scanner = splitExeAndArgs(setting)) {
        exe.Caption = scanner->exe;
        args.Caption = scanner->args;
    }
}

} // namespace tarvelon
