#pragma once

#include "platform/dialogs.h"
#include "platform/win32/system_library.h"

#include <optional>

namespace tarvelon {

class WindowHost;

class Win32Dialogs : public Dialogs {
public:
    /// The forms of `windows` cannot be used while a box or a dialog is open.
    explicit Win32Dialogs(WindowHost& windows)
        : windows_(windows) {}

    Answer message(const MessageBox& box) override;
    bool getOpenFileName(OpenFileRecord& record) override;
    bool browseForFolder(const std::string& title, std::uint32_t flags, char* buffer) override;

private:
    WindowHost& windows_;
    std::optional<SystemLibrary> commonDialogs_; ///< Loaded at the first question for a file.
};

} // namespace tarvelon
