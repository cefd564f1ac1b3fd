#pragma once

#include "platform/desktop.h"

#include <string>
#include <vector>

namespace tarvelon {

/// A window of some program.
struct SimWindow {
    std::string title;
    std::string className;
    std::uint32_t process = 0;
    bool visible = true;
    bool refusesClose = false;
};

struct SentMessage {
    Desktop::Window window;
    std::uint32_t message;

    bool operator==(const SentMessage&) const = default;
};

/// The windows that a test opens, in stacking order. One that is asked to close goes, unless it refuses.
/// Texts are compared without regard to the case of A to Z.
class SimDesktop : public Desktop {
public:
    /// Opens a window in front of the others.
    Window open(SimWindow window);
    /// The window's own program closes it.
    void close(Window window);
    bool isOpen(Window window) const;
    /// From the front to the back.
    std::vector<Window> order() const;

    /// What was asked for, for windows that are not there as well, oldest first.
    const std::vector<Window>& broughtToTop() const { return broughtToTop_; }
    const std::vector<SentMessage>& sent() const { return sent_; }

    Window firstWindow() override;
    Window nextWindow(Window window) override;
    void windowText(Window window, char* buffer, int size) override;
    void className(Window window, char* buffer, int size) override;
    std::uint32_t processOf(Window window) override;
    Window find(const std::optional<std::string>& className, const std::string& title) override;
    void bringToTop(Window window) override;
    void send(Window window, std::uint32_t message) override;

private:
    struct Opened {
        Window handle;
        SimWindow window;
    };
    using Place = std::vector<Opened>::const_iterator;
    Place placeOf(Window window) const;

    std::vector<Opened> windows_; ///< From the front to the back.
    std::vector<Window> broughtToTop_;
    std::vector<SentMessage> sent_;
    Window lastHandle_ = 0x10000;
};

} // namespace tarvelon
