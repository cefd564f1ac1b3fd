#include "platform/win32/win32_dialogs.h"

#include "platform/win32/common_controls.h"
#include "platform/win32/foremost.h"
#include "platform/win32/shell_items.h"
#include "platform/win32/window_host.h"
#include "platform/win32/windows_api.h"

#include <commdlg.h>

namespace tarvelon {

namespace {

constexpr const char* applicationTitle = "TarvelonLow";

UINT buttonFlags(Buttons buttons) {
    switch (buttons) {
    case Buttons::OkCancel:
        return MB_OKCANCEL;
    case Buttons::YesNo:
        return MB_YESNO;
    case Buttons::Ok:
        break;
    }
    return MB_OK;
}

UINT iconFlags(Icon icon) {
    switch (icon) {
    case Icon::Warning:
        return MB_ICONWARNING;
    case Icon::Stop:
        return MB_ICONSTOP;
    case Icon::None:
        break;
    }
    return 0;
}

Answer answerFrom(int button) {
    switch (button) {
    case IDYES:
        return Answer::Yes;
    case IDNO:
        return Answer::No;
    case IDCANCEL:
        return Answer::Cancel;
    default:
        return Answer::Ok;
    }
}

/// What a box or dialog belongs to and stands in front of; for as long as it lives, nothing else of the
/// program can be used.
class Owner {
public:
    explicit Owner(WindowHost& windows)
        : windows_(windows)
        , isActive_(GetActiveWindow() != nullptr)
        , window_(foremostUsable()) {
        needCommonControls();
        windows_.block(window_);
    }
    Owner(const Owner&) = delete;
    ~Owner() { windows_.unblock(); }

    HWND window() const { return window_; }
    /// The user is in another program.
    bool isInBackground() const { return !isActive_; }

private:
    WindowHost& windows_;
    bool isActive_;
    HWND window_;
};

} // namespace

Answer Win32Dialogs::message(const MessageBox& box) {
    const Owner owner(windows_);
    const UINT modality =
        (owner.window() ? 0 : MB_TASKMODAL) | (owner.isInBackground() ? MB_SETFOREGROUND : 0);
    const char* title = box.title.empty() ? applicationTitle : box.title.c_str();
    return answerFrom(MessageBoxA(owner.window(), box.text.c_str(), title,
                                  buttonFlags(box.buttons) | iconFlags(box.icon) | modality));
}

bool Win32Dialogs::getOpenFileName(OpenFileRecord& record) {
    const Owner owner(windows_);
    OPENFILENAMEA request{};
    // The record without its newer tail: the form of it that every Windows takes.
    request.lStructSize = OPENFILENAME_SIZE_VERSION_400A;
    request.hwndOwner = owner.window();
    request.hInstance = GetModuleHandleA(nullptr);
    request.lpstrFilter = record.filter.c_str();
    request.nFilterIndex = record.filterIndex;
    request.lpstrFile = record.file.data();
    request.nMaxFile = record.maxFile;
    request.lpstrTitle = record.title.empty() ? nullptr : record.title.c_str();
    request.Flags = record.flags;
    if (!commonDialogs_) {
        commonDialogs_.emplace("comdlg32.dll");
    }
    const auto ask = commonDialogs_->find<BOOL WINAPI(OPENFILENAMEA*)>("GetOpenFileNameA");
    return ask && ask(&request) != FALSE;
}

bool Win32Dialogs::browseForFolder(const std::string& title, std::uint32_t flags, char* buffer) {
    const Owner owner(windows_);
    BROWSEINFOA request{};
    request.hwndOwner = owner.window();
    request.lpszTitle = title.c_str();
    request.ulFlags = flags;
    return pathFromItems(SHBrowseForFolderA(&request), buffer);
}

} // namespace tarvelon
