#pragma once

#include <cstdint>
#include <string>

namespace tarvelon {

enum class Buttons { Ok, OkCancel, YesNo };
enum class BoxIcon { None, Warning, Stop };
enum class Answer { Ok, Cancel, Yes, No };

/// A question or a notice. An empty title stands for the application's title.
struct MessageBox {
    std::string text{};
    std::string title{};
    Buttons buttons = Buttons::Ok;
    BoxIcon icon = BoxIcon::None; ///< None: that of its kind, a question or a notice.
    bool destroys = false;        ///< What is agreed to cannot be taken back: Enter says no.
};

/// The record of `GetOpenFileNameA`. `file` is the buffer, zeros included, and comes back filled.
struct OpenFileRecord {
    std::string filter; ///< Pairs of text and pattern, each ended by a zero.
    std::uint32_t filterIndex = 1;
    std::string file;
    std::uint32_t maxFile = 0; ///< The size of `file` as told to the system.
    std::string title;
    std::uint32_t flags = 0;
};

class Dialogs {
public:
    virtual ~Dialogs() = default;

    /// Shows the box and waits for the answer. Other windows' timers run meanwhile.
    virtual Answer message(const MessageBox& box) = 0;

    /// `GetOpenFileNameA`; false on cancel.
    virtual bool getOpenFileName(OpenFileRecord& record) = 0;

    /// `SHBrowseForFolderA` with the given BIF_ flags, and `SHGetPathFromIDList` into `buffer` (at least 260
    /// bytes). False on cancel.
    virtual bool browseForFolder(const std::string& title, std::uint32_t flags, char* buffer) = 0;
};

} // namespace tarvelon
