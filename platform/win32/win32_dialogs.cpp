#include "platform/win32/win32_dialogs.h"

#include "platform/win32/common_controls.h"
#include "platform/win32/foremost.h"
#include "platform/win32/shell_items.h"
#include "platform/win32/wide.h"
#include "platform/win32/window_host.h"
#include "platform/win32/windows_api.h"

#include <commdlg.h>

namespace tarvelon {

namespace {

constexpr const char* applicationTitle = "TarvelonLow";
constexpr DWORD longestPath = 32768; ///< In UTF-16 units, with its final zero.

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

/// A box without an icon of its own gets that of its kind.
UINT iconFlags(const MessageBox& box) {
    switch (box.icon) {
    case BoxIcon::Warning:
        return MB_ICONWARNING;
    case BoxIcon::Stop:
        return MB_ICONSTOP;
    case BoxIcon::None:
        break;
    }
    return box.buttons == Buttons::Ok ? MB_ICONINFORMATION : MB_ICONQUESTION;
}

/// A box that goes without one of its buttons, by Esc where the system lets it or for want of memory, agrees
/// to nothing.
Answer answerFrom(Buttons buttons, int button) {
    switch (buttons) {
    case Buttons::OkCancel:
        return button == IDOK ? Answer::Ok : Answer::Cancel;
    case Buttons::YesNo:
        return button == IDYES ? Answer::Yes : Answer::No;
    case Buttons::Ok:
        break;
    }
    return Answer::Ok;
}

template<class Record, class Text>
Record openFileRequest(const OpenFileRecord& record, const Text& filter, const Text& title, Text& path) {
    Record request{};
    request.hInstance = GetModuleHandleA(nullptr);
    request.lpstrFilter = filter.c_str();
    request.nFilterIndex = record.filterIndex;
    request.lpstrFile = path.data();
    request.lpstrTitle = title.empty() ? nullptr : title.c_str();
    request.Flags = record.flags;
    return request;
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
    const UINT flags =
        buttonFlags(box.buttons) | iconFlags(box) | modality | (box.destroys ? MB_DEFBUTTON2 : 0);
    const std::string title = box.title.empty() ? applicationTitle : box.title;
    return answerFrom(box.buttons, hasWideCalls()
                                       ? MessageBoxW(owner.window(), wideText(box.text).c_str(),
                                                     wideText(title).c_str(), flags)
                                       : MessageBoxA(owner.window(), box.text.c_str(), title.c_str(), flags));
}

bool Win32Dialogs::getOpenFileName(OpenFileRecord& record) {
    const Owner owner(windows_);
    if (!commonDialogs_) {
        commonDialogs_.emplace("comdlg32.dll");
    }
    // The records without their newer tails: the form of them that every Windows takes.
    if (!hasWideCalls()) {
        auto request = openFileRequest<OPENFILENAMEA>(record, record.filter, record.title, record.file);
        request.lStructSize = OPENFILENAME_SIZE_VERSION_400A;
        request.hwndOwner = owner.window();
        request.nMaxFile = record.maxFile;
        const auto ask = commonDialogs_->find<BOOL WINAPI(OPENFILENAMEA*)>("GetOpenFileNameA");
        return ask && ask(&request) != FALSE;
    }
    const std::wstring filter = wideText(record.filter);
    const std::wstring title = wideText(record.title);
    std::wstring path = wideText(record.file.c_str());
    path.resize(longestPath);
    auto request = openFileRequest<OPENFILENAMEW>(record, filter, title, path);
    request.lStructSize = OPENFILENAME_SIZE_VERSION_400W;
    request.hwndOwner = owner.window();
    request.nMaxFile = longestPath;
    const auto ask = commonDialogs_->find<BOOL WINAPI(OPENFILENAMEW*)>("GetOpenFileNameW");
    return ask && ask(&request) != FALSE && fillPath(record.file.data(), record.maxFile, path.c_str());
}

bool Win32Dialogs::browseForFolder(const std::string& title, std::uint32_t flags, char* buffer) {
    const Owner owner(windows_);
    if (!hasWideCalls()) {
        BROWSEINFOA request{};
        request.hwndOwner = owner.window();
        request.lpszTitle = title.c_str();
        request.ulFlags = flags;
        return pathFromItems(SHBrowseForFolderA(&request), buffer);
    }
    const std::wstring wideTitle = wideText(title);
    BROWSEINFOW request{};
    request.hwndOwner = owner.window();
    request.lpszTitle = wideTitle.c_str();
    request.ulFlags = flags;
    return pathFromItems(SHBrowseForFolderW(&request), buffer);
}

} // namespace tarvelon
