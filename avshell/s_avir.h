#pragma once

#include "core/services.h"

#include <functional>
#include <string>

namespace tarvelon {

struct SAvirScreen;

/// What the choice of scanners calls beside itself.
struct SAvirHooks {
    std::function<void()> saved;
    std::function<void(const std::string&)> setWizardArgs; ///< `varg` of the wizard.
    std::function<void(bool forSecond)> showHelp;          ///< The catalogue, for one of the two scanners.
};

/// The window where the user names the one or two scanners.
class SAvir : Services {
public:
    SAvir(SAvirScreen& screen, const Services& services);

    SAvirHooks hooks;

    /// The user has chosen a file; an empty text is none.
    void takeFirst(const std::string& file);
    void takeSecond(const std::string& file);

private:
    void bind();
    std::string choose() const;
    void save();
    const char* argumentsForFirst();

    SAvirScreen& screen_;
};

} // namespace tarvelon
