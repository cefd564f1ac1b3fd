#include "avshell/known_scanners.h"

#include "core/text.h"

namespace tarvelon {

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
