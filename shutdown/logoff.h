#pragma once

#include <cstdint>
#include <functional>

namespace tarvelon {

struct AppState;
struct LogoffScreen;
struct Platform;
class Label;
class Picture;

/// The shut-down dialog: hover, the SHIFT key, and the choice.
class Logoff {
public:
    Logoff(LogoffScreen& screen, AppState& app, Platform& platform);

    /// What every choice goes on with.
    std::function<void()> preShut0;

private:
    void bind();
    void bindButton(Picture& plain, Picture& lit, const std::function<std::int16_t()>& action);
    void light(const Picture& lit);
    void nameFirstButton(const char* name);
    void choose(std::int16_t action);
    void restAll();
    void refuseSecondInstance();

    LogoffScreen& screen_;
    AppState& app_;
    Platform& platform_;
    std::int16_t pressedAction_ = 0; ///< What a picture stood for when a key went down on it.
};

} // namespace tarvelon
