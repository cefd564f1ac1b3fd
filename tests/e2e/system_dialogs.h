#pragma once

#include "driver.h"

namespace e2e {

/// The system's own dialog in which a folder is picked out of a tree.
class FolderDialog {
public:
    /// Waits for it.
    explicit FolderDialog(const Program& program);

    /// Opens the tree along the path, such as "C:\folder\", picks the last folder and closes the dialog with
    /// OK.
    void pick(const std::string& path) const;
    void press(const std::string& button) const { box_.press(button); }

private:
    Box box_;
};

/// The system's own dialog in which a file is picked, of a known title.
class FileDialog {
public:
    /// Waits for it.
    FileDialog(const Program& program, const std::string& title);

    /// Writes the path into the field for the name and opens it.
    void pick(const std::string& path) const;
    void press(const std::string& button) const { box_.press(button); }

private:
    Box box_;
};

} // namespace e2e
