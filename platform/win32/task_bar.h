#pragma once

#include "platform/win32/component.h"

#include <shobjidl.h>

#include <optional>

namespace tarvelon {

/// The buttons of windows on the task bar, which newer systems fill to show how far work is.
class TaskBar {
public:
    /// Of `max`; nothing is shown for work that has not begun or is over.
    void showProgress(HWND window, int value, int max);

private:
    std::optional<Component<ITaskbarList3>>
        list_; ///< Asked for when it is first needed; null on older systems.
};

} // namespace tarvelon
