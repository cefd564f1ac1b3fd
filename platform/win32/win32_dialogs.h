#pragma once

#include "platform/dialogs.h"

namespace tarvelon {

class Win32Dialogs : public Dialogs {
public:
    Answer message(const MessageBox& box) override;
    bool getOpenFileName(OpenFileRecord& record) override;
    bool browseForFolder(const std::string& title, std::uint32_t flags, char* buffer) override;
};

} // namespace tarvelon
