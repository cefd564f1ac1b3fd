#include "avshell/known_scanners.h"

#include "core/text.h"

namespace tarvelon {

using namespace std::string_literals;

std::string scannerBoxFilter() {
    return "Executable Files (*.exe, *.com)\0*.EXE;*.COM\0All Files (*.*)\0*.*\0\0"s;
}

ScannerFamily scannerFamily(const CaseRules& cases, const std::string& path) {
    if (cases.find(path, "NAVW") != std::string::npos) {
        return ScannerFamily::Navw;
    }
    return cases.find(path, "PAVCL") != std::string::npos ? ScannerFamily::Pavcl : ScannerFamily::Other;
}

const char* defaultArguments(ScannerFamily family) {
    switch (family) {
    case ScannerFamily::Navw:
        return "/HEUR:3";
    case ScannerFamily::Pavcl:
        return "/NSB /NOM /AUT";
    case ScannerFamily::Other:
        break;
    }
    return " ";
}

} // namespace tarvelon
