#pragma once

#include "platform/desktop.h"

namespace tarvelon {

class Win32Desktop : public Desktop {
public:
    Window firstWindow() override;
    Window nextWindow(Window window) override;
    void windowText(Window window, char* buffer, int size) override;
    void className(Window window, char* buffer, int size) override;
    std::uint32_t processOf(Window window) override;
    Window find(const std::optional<std::string>& className, const std::string& title) override;
    void bringToTop(Window window) override;
    void send(Window window, std::uint32_t message) override;
};

} // namespace tarvelon
