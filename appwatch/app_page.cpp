#include "appwatch/app_page.h"

#include "appwatch/app_page_controls.h"
#include "core/text.h"
#include "platform/dialogs.h"
#include "platform/messages.h"
#include "platform/platform.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace tarvelon {

namespace {

/// For titles and class names, the final zero included; longer ones are cut.
constexpr int textSize = 255;
constexpr std::string_view classNamePrefix = "Class Name: ";
constexpr std::uint32_t closeMessage = 16;

std::string titleOf(Desktop& desktop, Desktop::Window window) {
    char title[textSize] = "";
    desktop.windowText(window, title, textSize);
    return title;
}

std::string classOf(Desktop& desktop, Desktop::Window window) {
    char name[textSize] = "";
    desktop.className(window, name, textSize);
    return name;
}

/// What stands behind the process id and its colon.
std::string titleInRow(const std::string& row) {
    return row.substr(row.find(' ') + 1);
}

} // namespace

AppPage::AppPage(AppPageControls& screen, Platform& platform)
    : screen_(screen)
    , platform_(platform) {
    bind();
}

void AppPage::bind() {
    screen_.ref.onClick = [this] { refresh(); };
    screen_.lstOpenWindows.onClick = [this] { showSelected(); };
    screen_.act.onClick = [this] { activateShown(); };
    screen_.cl.onClick = [this] { closeShown(); };
}

std::int32_t AppPage::listOpenWindows() {
    Desktop& desktop = platform_.desktop;
    std::int32_t count = 0;
    Desktop::Window window = desktop.firstWindow();
    while (window != 0) {
        const std::string title = titleOf(desktop, window);
        const Desktop::Window next = desktop.nextWindow(window);
        if (!title.empty()) {
            const std::uint32_t process = desktop.processOf(desktop.find(std::nullopt, title));
            const std::string row = std::to_string(process) + ": " + title;
            if (!isListed(row)) {
                screen_.lstOpenWindows.add(row);
                ++count;
            }
            platform_.messages.pump();
        }
        window = next;
    }
    return count;
}

bool AppPage::isListed(const std::string& row) const {
    const std::vector<std::string>& rows = screen_.lstOpenWindows.items();
    return std::ranges::find(rows, row) != rows.end();
}

void AppPage::refresh() {
    screen_.lstOpenWindows.clear();
    screen_.lblCount.Caption = std::to_string(listOpenWindows()) + " open Windows.";
}

void AppPage::showSelected() {
    Desktop& desktop = platform_.desktop;
    screen_.txtTitle.Caption = titleInRow(screen_.lstOpenWindows.text());
    const Desktop::Window window = desktop.find(std::nullopt, screen_.txtTitle.Caption());
    const std::string className = classOf(desktop, window);
    std::uint32_t process = 0;
    if (className.empty()) {
        screen_.lblClassName.Caption = "Window Not Found!!!";
    } else {
        screen_.lblClassName.Caption = std::string(classNamePrefix) + className;
        process = desktop.processOf(window);
    }
    screen_.lblProcessID.Caption = "ProcessID: " + std::to_string(process);
}

/// While the label holds another text than a class name, the tail of that text stands for the class: no
/// window has it, and so none is found.
Desktop::Window AppPage::shownWindow() const {
    const std::string shown = screen_.lblClassName.Caption();
    const std::string title = screen_.txtTitle.Caption();
    if (trim(shown).empty()) {
        return platform_.desktop.find("", trim(title));
    }
    return platform_.desktop.find(shown.substr(std::min(classNamePrefix.size(), shown.size())), title);
}

void AppPage::activateShown() {
    platform_.desktop.bringToTop(shownWindow());
}

void AppPage::closeShown() {
    const Desktop::Window window = shownWindow();
    const Answer answer =
        platform_.dialogs.message({.text = "Are you sure you want to close " + screen_.txtTitle.Caption() +
                                           "(" + std::to_string(window) + ")",
                                   .buttons = Buttons::YesNo});
    if (answer == Answer::Yes) {
        platform_.desktop.send(window, closeMessage);
    }
    refresh();
}

} // namespace tarvelon
