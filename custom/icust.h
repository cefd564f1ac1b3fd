#pragma once

#include "core/services.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tarvelon {

class CheckBox;
class CheckListBox;
class ListBox;
struct ICustScreen;
class Checksum;

/// Adds, removes and configures the custom folders. All but a removal waits for "Save and Exit".
class ICust : Services {
public:
    ICust(ICustScreen& screen, const Services& services, const Checksum& checksum);

    /// Fills the main window's list of folders anew.
    std::function<void()> loadf;
    /// A scan is planned or under way: its findings go by the run's state, which is not to be touched.
    std::function<bool()> scanRuns;

    /// Shows the window. Unless it is open already, it begins anew with the settings as they are.
    void open();

    /// Fills the lists from the settings.
    void startup();

    /// Adds a folder as if it had been chosen. A file is passed over.
    void addDropped(const std::string& path);

    /// That of the selected row, or empty.
    std::string selectedFolder() const;

private:
    /// One of the two uses of a folder: its box, its types, and the rows where they are kept.
    struct Use {
        CheckBox& box;
        CheckListBox& types;
        ListBox& rows;
    };

    void bind();
    void begin();
    Use atStartup();
    Use atShutDown();
    void showFolder();
    void showUse(const Use& use, int row);
    void followBox(const Use& use);
    void boxClicked(const Use& use);
    void storeTypes(const Use& use);
    void addFolder();
    void add(std::string folder);
    void removeFolder();
    void save();
    bool queryClose();

    bool isEmptyRow(int row) const;
    std::string folderOf(int row) const;

    ICustScreen& screen_;
    const Checksum& checksum_;

    std::int16_t custDirty = 0; ///< Something was changed since the window was opened.
    bool custLoading = false;   ///< The lists are being filled; their clicks count for nothing.
};

} // namespace tarvelon
