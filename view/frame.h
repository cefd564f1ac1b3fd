#pragma once

#include "view/control.h"

namespace tarvelon {

/// A page, or a box with a title: a window that holds others.
class FrameWindow : public ControlWindow {
public:
    FrameWindow(FormWindow& form, Frame& frame)
        : ControlWindow(form, frame)
        , frame_(frame) {}

    bool takesKeys() const override { return false; }

protected:
    Kind kind() const override;
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override;
    void paint(Canvas& canvas) override;

private:
    Frame& frame_;
};

constexpr const char* frameWindowClass = "TarvelonFrame";

/// Hands a message that a child window sent to its parent back to the child. False when it is none of these.
bool reflectToChild(UINT message, WPARAM wide, LPARAM low, LRESULT& result);

} // namespace tarvelon
