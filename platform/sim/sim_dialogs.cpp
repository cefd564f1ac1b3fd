#include "platform/sim/sim_dialogs.h"

#include <cstring>

namespace tarvelon {

namespace {

std::string describe(const MessageBox& box) {
    return "box \"" + box.text + "\" with title \"" + box.title + "\", buttons " +
           std::to_string(static_cast<int>(box.buttons)) + ", icon " +
           std::to_string(static_cast<int>(box.icon));
}

bool matches(const ExpectedBox& expected, const MessageBox& box) {
    return expected.text == box.text && (!expected.title || *expected.title == box.title) &&
           (!expected.buttons || *expected.buttons == box.buttons) &&
           (!expected.icon || *expected.icon == box.icon);
}

} // namespace

std::string SimDialogs::problems() const {
    std::string lines;
    for (const ExpectedBox& box : boxes_) {
        lines += "did not come: box \"" + box.text + "\"\n";
    }
    for (const ExpectedChoice& choice : openFiles_) {
        lines += "did not come: file dialog \"" + choice.title + "\"\n";
    }
    for (const ExpectedChoice& choice : folders_) {
        lines += "did not come: folder dialog \"" + choice.title + "\"\n";
    }
    for (const std::string& what : refused_) {
        lines += "came unawaited: " + what + "\n";
    }
    return lines;
}

Answer SimDialogs::message(const MessageBox& box) {
    shown_.push_back(box);
    if (answerer) {
        return answerer(box);
    }
    if (boxes_.empty()) {
        refuse(describe(box));
    }
    if (!matches(boxes_.front(), box)) {
        refuse(describe(box) + " in place of \"" + boxes_.front().text + "\"");
    }
    const Answer answer = boxes_.front().answer;
    boxes_.pop_front();
    return answer;
}

bool SimDialogs::getOpenFileName(OpenFileRecord& record) {
    const std::optional<std::string> choice = nextChoice(openFiles_, "file dialog", record.title);
    if (!choice || choice->size() >= record.maxFile || record.maxFile > record.file.size()) {
        return false;
    }
    record.file.replace(0, choice->size() + 1, choice->c_str(), choice->size() + 1);
    return true;
}

bool SimDialogs::browseForFolder(const std::string& title, std::uint32_t, char* buffer) {
    const std::optional<std::string> choice = nextChoice(folders_, "folder dialog", title);
    if (!choice) {
        return false;
    }
    std::memcpy(buffer, choice->c_str(), choice->size() + 1);
    return true;
}

std::optional<std::string> SimDialogs::nextChoice(std::deque<ExpectedChoice>& script, const std::string& kind,
                                                  const std::string& title) {
    if (script.empty() || script.front().title != title) {
        refuse(kind + " \"" + title + "\"");
    }
    const std::optional<std::string> choice = std::move(script.front().choice);
    script.pop_front();
    return choice;
}

void SimDialogs::refuse(const std::string& what) {
    refused_.push_back(what);
    throw UnexpectedQuestion("unexpected " + what);
}

} // namespace tarvelon
