#include "screen_picture.h"

#include "tools/driver/seen_windows.h"

#include <algorithm>

#include <objidl.h>
// Needs `min` and `max`, and the types of COM.
using std::max;
using std::min;
#include <gdiplus.h>

namespace check {

namespace {

constexpr CLSID png = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

bool writePng(HBITMAP bitmap, const std::string& path) {
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) {
        return false;
    }
    bool written = false;
    {
        Gdiplus::Bitmap image(bitmap, nullptr);
        written = image.Save(e2e::wide(path).c_str(), &png, nullptr) == Gdiplus::Ok;
    }
    Gdiplus::GdiplusShutdown(token);
    return written;
}

} // namespace

bool takeScreenPicture(const RECT& place, const std::string& path) {
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    HDC const screen = GetDC(nullptr);
    HDC const memory = CreateCompatibleDC(screen);
    HBITMAP const bitmap = CreateCompatibleBitmap(screen, width, height);
    HGDIOBJ const before = SelectObject(memory, bitmap);
    const bool copied =
        BitBlt(memory, 0, 0, width, height, screen, place.left, place.top, SRCCOPY | CAPTUREBLT) != 0;
    SelectObject(memory, before);
    // In its place all at once: whoever waits for it goes on as soon as there is one.
    const bool written = copied && writePng(bitmap, path + ".new") &&
                         MoveFileExW(e2e::wide(path + ".new").c_str(), e2e::wide(path).c_str(),
                                     MOVEFILE_REPLACE_EXISTING) != 0;
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return written;
}

} // namespace check
