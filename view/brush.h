#pragma once

#include "platform/win32/windows_api.h"
#include "ui/controls/geometry.h"

namespace tarvelon {

/// The brush of one colour, for windows that ask for their ground again and again.
class Brush {
public:
    Brush() = default;
    Brush(const Brush&) = delete;
    ~Brush() { DeleteObject(brush_); }

    HBRUSH of(Color color) {
        if (!brush_ || color != color_) {
            DeleteObject(brush_);
            brush_ = CreateSolidBrush(color);
            color_ = color;
        }
        return brush_;
    }

private:
    HBRUSH brush_ = nullptr;
    Color color_ = 0;
};

} // namespace tarvelon
