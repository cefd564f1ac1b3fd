#pragma once

#include <functional>
#include <vector>

namespace tarvelon {

class Control;
class Screen;

/// Runs an action with some controls disabled and some screens kept open. Then each control is as it was
/// before, and each screen that was to be closed meanwhile is closed.
void runHolding(const std::vector<Control*>& controls, const std::vector<Screen*>& screens,
                const std::function<void()>& action);

} // namespace tarvelon
