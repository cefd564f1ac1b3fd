#pragma once

#include <string>
#include <vector>

namespace tarvelon {

/// The name that old programs know a folder's entry by. A name of at most eight characters and an extension
/// of at most three stays as it is. Any other becomes its first six valid characters in capitals, "~" with a
/// number among the entries of one folder that begin alike, and three characters of the extension.
std::string shortNameOf(const std::string& name, const std::vector<std::string>& namesInFolder);

} // namespace tarvelon
