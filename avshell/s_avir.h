#pragma once

#include "core/services.h"

#include <functional>
#include <string>

namespace tarvelon {

struct SAvirScreen;

/// What the choice of scanners calls beside itself.
struct SAvirHooks {
    std::function<void(const std::string&)> setWizardArgs; ///< `varg` of the wizard.
    std::function<void(bool forSecond)> showHelp;          ///< The catalogue, for one of the two scanners.
};

/// The window where the user names the one or two scanners.
class SAvir : Services {
public:
    SAvir(SAvirScreen& screen, const Services& services);

    SAvirHooks hooks;

private:
    void bind();
    std::string choose() const;
    void chooseFirst();
    void chooseSecond();
    void save();
    const char* argumentsForFirst();

    SAvirScreen& screen_;
};

} // namespace tarvelon
