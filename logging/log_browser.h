#pragma once

#include "core/services.h"
#include "ui/controls/tree.h"

#include <functional>
#include <string>

namespace tarvelon {

struct LogControls;
class NavButton;
class Scanner;

/// Lists the reports as a tree of dates and times, shows one, has its files scanned again, and deletes
/// reports.
class LogBrowser : Services {
public:
    LogBrowser(LogControls& screen, NavButton& options, const Services& services, const Scanner& scanner);

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
    std::string fileOf(const Tree::Node& node) const;

    LogControls& screen_;
    NavButton& options_; ///< Opens the page of options, which the tree is on.
    const Scanner& scanner_;
};

} // namespace tarvelon
