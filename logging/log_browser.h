#pragma once

#include "ui/controls/tree.h"

#include <functional>
#include <string>

namespace tarvelon {

struct Globals;
struct LogControls;
struct Platform;
class NavButton;
class Scanner;
class SettingsFile;
class Utilities;

/// What the browser works with.
struct LogBrowserParts {
    Globals& globals;
    Platform& platform;
    SettingsFile& settings;
    const Utilities& utilities;
    const Scanner& scanner;
};

/// Lists the reports as a tree of dates and times, shows one, has its files scanned again, and deletes
/// reports.
class LogBrowser {
public:
    LogBrowser(LogControls& screen, NavButton& options, const LogBrowserParts& parts);

    std::function<void()> norms2; ///< Hides all pages of the main window.

private:
    void bind();
    void load();
    void addReport(const std::string& fileName);
    void open();
    void fillReport(std::string text);
    void scan();
    void deleteShown();
    void deleteAll();
    void keyInTree(int keyCode);
    bool deleteDate(const Tree::Node& root);
    bool deleteEntry(const Tree::Node& node);
    void backToTree();

    bool confirms(const std::string& question) const;
    std::string folder() const;
    std::string fileOf(const Tree::Node& node) const;

    LogControls& screen_;
    NavButton& options_; ///< Opens the page of options, which the tree is on.
    LogBrowserParts parts_;
    Globals& globals_;
};

} // namespace tarvelon
