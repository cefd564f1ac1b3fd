#pragma once

#include <array>

namespace tarvelon {

/// Section names of the registry snapshot, in the order of the file: one for each watched location.
constexpr std::array<const char*, 17> locationSections = {
    "LM/R",  "LM/RO", "LM/ROX", "LM/RS", "LM/RSO", "LM/SE", "LM/SC", "LM/SB", "LM/SH",
    "LM/SP", "CU/R",  "CU/RO",  "CR/SE", "CR/SC",  "CR/SB", "CR/SH", "CR/SP"};

} // namespace tarvelon
