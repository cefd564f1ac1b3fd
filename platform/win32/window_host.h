#pragma once

#include "platform/win32/windows_api.h"

namespace tarvelon {

/// Who makes and draws the program's windows, as far as messages, boxes and dialogs have to do with it.
class WindowHost {
public:
    virtual ~WindowHost() = default;

    /// Gives one message to the form or window that it is for.
    virtual void handle(MSG& message) = 0;
    /// Between the two calls, which may be nested, no form can be used, while a box or a dialog that `owner`
    /// owns is open. The owner itself is left to the box.
    virtual void block(HWND owner) = 0;
    virtual void unblock() = 0;
    /// Has all changes drawn that are not yet.
    virtual void refresh() = 0;
    /// The same, as often as the eye can follow.
    virtual void refreshIfDue() = 0;
    /// Makes the next piece of what may be shown later; false when there is no more to make.
    virtual bool makeReady() = 0;
};

} // namespace tarvelon
