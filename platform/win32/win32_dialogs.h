#pragma once

#include "platform/dialogs.h"

namespace tarvelon {

class Win32View;

class Win32Dialogs : public Dialogs {
public:
    /// The forms of `view` cannot be used while a box or a dialog is open.
    explicit Win32Dialogs(Win32View& view)
        : view_(view) {}

    Answer message(const MessageBox& box) override;
    bool getOpenFileName(OpenFileRecord& record) override;
    bool browseForFolder(const std::string& title, std::uint32_t flags, char* buffer) override;

private:
    Win32View& view_;
};

} // namespace tarvelon
