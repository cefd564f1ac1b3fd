#include "platform/win32/clipboard.h"

#include "platform/win32/owned.h"
#include "platform/win32/wide.h"

#include <cstring>

namespace tarvelon {

namespace {

/// With its final zero.
template<class Text>
HGLOBAL shared(const Text& text) {
    const std::size_t size = (text.size() + 1) * sizeof text.front();
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    if (void* start = memory ? GlobalLock(memory) : nullptr) {
        std::memcpy(start, text.c_str(), size);
        GlobalUnlock(memory);
    }
    return memory;
}

} // namespace

bool copyToClipboard(HWND owner, const std::string& text) {
    Owned<HGLOBAL, GlobalFree> memory(hasWideCalls() ? shared(wideText(text)) : shared(text));
    if (!memory || !OpenClipboard(owner)) {
        return false;
    }
    EmptyClipboard();
    const bool taken = SetClipboardData(hasWideCalls() ? CF_UNICODETEXT : CF_TEXT, memory.get()) != nullptr;
    if (taken) {
        static_cast<void>(memory.release()); // The system's from now on.
    }
    CloseClipboard();
    return taken;
}

} // namespace tarvelon
