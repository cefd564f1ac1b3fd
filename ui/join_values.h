#pragma once

#include <string>

namespace tarvelon {

/// The values of check boxes as one of the stored lists: "1,0,1".
template<class Boxes>
std::string joinValues(const Boxes& boxes) {
    std::string list;
    for (const auto* box : boxes) {
        list += (list.empty() ? "" : ",") + std::to_string(box->value());
    }
    return list;
}

} // namespace tarvelon
