#pragma once

#include "platform/dialogs.h"

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
};

} // namespace tarvelon
