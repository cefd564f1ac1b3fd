#pragma once

#include "platform/shell.h"

namespace tarvelon {

class Win32Shell : public Shell {
public:
    std::intptr_t open(const std::string& file, const std::string& folder) override;
};

} // namespace tarvelon
