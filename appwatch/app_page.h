#pragma once

#include "platform/desktop.h"

#include <cstdint>
#include <string>

namespace tarvelon {

struct AppPageControls;
struct Platform;

/// The page of open windows: the top-level windows of all programs that have a title, hidden ones as well.
/// A row is all that is known of a window; every action looks its window up again by title, so of several
/// with one title it is the first that is meant.
class AppPage {
public:
    AppPage(AppPageControls& screen, Platform& platform);

    /// Adds a row for each titled window, unless the same row is there already. Gives the number added.
    std::int32_t listOpenWindows();

private:
    void bind();
    void refresh();
    void showSelected();
    void activateShown();
    void closeShown();

    bool isListed(const std::string& row) const;
    /// The window of the selected row by its class and title; 0 when there is none any more.
    Desktop::Window shownWindow() const;

    AppPageControls& screen_;
    Platform& platform_;
};

} // namespace tarvelon
