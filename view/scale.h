#pragma once

#include "platform/win32/owned.h"
#include "platform/win32/system_library.h"
#include "ui/controls/geometry.h"

namespace tarvelon {

/// Turns lengths at 96 dots an inch into the pixels of one screen.
class Scale {
public:
    explicit Scale(unsigned dotsPerInch)
        : dotsPerInch_(static_cast<int>(dotsPerInch)) {}

    int operator()(int length) const { return MulDiv(length, dotsPerInch_, 96); }
    /// Scales edges, not sizes, so that what touches at 96 dots an inch touches at every scale.
    RECT operator()(const Rect& place) const;
    /// Height of a letter of that many tenths of a point, in pixels.
    int letters(int tenthPoints) const { return MulDiv(tenthPoints, dotsPerInch_, 720); }
    unsigned dotsPerInch() const { return static_cast<unsigned>(dotsPerInch_); }

private:
    int dotsPerInch_;
};

/// What the system tells about scaling: by monitor where it can, else one figure for all.
class ScaleCalls {
public:
    unsigned dotsPerInch(HWND window) const;
    /// Grows an inside rectangle by the window's frame.
    void addFrame(RECT& inside, DWORD style, DWORD extendedStyle, unsigned dotsPerInch) const;

private:
    using GetDpiForWindow = UINT WINAPI(HWND);
    using AdjustWindowRectExForDpi = BOOL WINAPI(RECT*, DWORD, BOOL, DWORD, UINT);

    SystemLibrary user_{"user32.dll"};
    GetDpiForWindow* getDpiForWindow_ = user_.find<GetDpiForWindow>("GetDpiForWindow");
    AdjustWindowRectExForDpi* adjustForDpi_ =
        user_.find<AdjustWindowRectExForDpi>("AdjustWindowRectExForDpi");
};

inline int widthOf(const RECT& rect) {
    return rect.right - rect.left;
}

inline int heightOf(const RECT& rect) {
    return rect.bottom - rect.top;
}

/// The rectangle with its left and right edges moved in by `x`, top and bottom by `y`.
inline RECT inset(const RECT& rect, int x, int y) {
    return {rect.left + x, rect.top + y, rect.right - x, rect.bottom - y};
}

} // namespace tarvelon
