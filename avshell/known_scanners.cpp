#include "avshell/known_scanners.h"

#include "core/text.h"

namespace tarvelon {

using namespace std::string_literals;

std::string scannerBoxFilter() {
    return "Executable Files (*.exe, *.com)\0*.EXE;*.COM\0All Files (*.*)\0*.*\0\0"s;
}

ScannerFamily scannerFamily(const TextRules& texts, const std::string& path) {
    if (texts.find(path, "NAVW") != std::string::npos) {
        return ScannerFamily::Navw;
    }
    return texts.find(path, "PAVCL") != std::string::npos ? ScannerFamily::Pavcl : ScannerFamily::Other;
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
