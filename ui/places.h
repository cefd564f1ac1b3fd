#pragma once

#include "core/services.h"
#include "ui/controls/screen.h"

#include <optional>
#include <string>
#include <vector>

namespace tarvelon {

/// Remembers in the settings file where the user has left each window. Nothing is written before one is
/// moved.
class Places : Services {
public:
    explicit Places(const Services& services)
        : Services(services) {}

    /// `name` is what the screen is called in the file.
    void keep(Screen& screen, const std::string& name);

private:
    std::vector<std::string> all();
    std::optional<ScreenPlace> find(const std::string& name);
    void store(const std::string& name, const ScreenPlace& place);
};

} // namespace tarvelon
