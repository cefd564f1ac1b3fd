#pragma once

#include "platform/dialogs.h"

#include <deque>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarvelon {

/// A box or dialog came up that the script does not know, or with another text, title or set of buttons.
class UnexpectedQuestion : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

/// One box that the script awaits. Title, buttons and icon are only looked at when they are given.
struct ExpectedBox {
    std::string text;
    Answer answer = Answer::Ok;
    std::optional<std::string> title = std::nullopt;
    std::optional<Buttons> buttons = std::nullopt;
    std::optional<BoxIcon> icon = std::nullopt;
};

/// One file or folder dialog that the script awaits. No choice stands for Cancel.
struct ExpectedChoice {
    std::string title;
    std::optional<std::string> choice;
};

/// Boxes and dialogs, answered in order by a script. Whatever the script does not await throws
/// `UnexpectedQuestion`, and is remembered even if someone catches that.
class SimDialogs : public Dialogs {
public:
    /// When set, answers every box in place of the script.
    std::function<Answer(const MessageBox&)> answerer;

    void expect(ExpectedBox box) { boxes_.push_back(std::move(box)); }
    void expectOpenFile(ExpectedChoice choice) { openFiles_.push_back(std::move(choice)); }
    void expectFolder(ExpectedChoice choice) { folders_.push_back(std::move(choice)); }

    /// What was awaited and did not come, and what came unawaited, a line each.
    std::string problems() const;

    /// All boxes so far, oldest first.
    const std::vector<MessageBox>& shown() const { return shown_; }

    Answer message(const MessageBox& box) override;
    bool getOpenFileName(OpenFileRecord& record) override;
    bool browseForFolder(const std::string& title, std::uint32_t flags, char* buffer) override;

private:
    std::optional<std::string> nextChoice(std::deque<ExpectedChoice>& script, const std::string& kind,
                                          const std::string& title);
    [[noreturn]] void refuse(const std::string& what);

    std::deque<ExpectedBox> boxes_;
    std::deque<ExpectedChoice> openFiles_;
    std::deque<ExpectedChoice> folders_;
    std::vector<MessageBox> shown_;
    std::vector<std::string> refused_;
};

} // namespace tarvelon
