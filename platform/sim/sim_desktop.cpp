#include "platform/sim/sim_desktop.h"

#include "core/text.h"

#include <algorithm>
#include <cstring>

namespace tarvelon {

namespace {

constexpr std::uint32_t closeMessage = 16;

void copyInto(const std::string& text, char* buffer, int size) {
    const std::size_t length = std::min(text.size(), static_cast<std::size_t>(size - 1));
    std::memcpy(buffer, text.data(), length);
    buffer[length] = '\0';
}

} // namespace

SimDesktop::Place SimDesktop::placeOf(Window window) const {
    return std::ranges::find(windows_, window, &Opened::handle);
}

Desktop::Window SimDesktop::open(SimWindow window) {
    lastHandle_ += 2;
    windows_.insert(windows_.begin(), {lastHandle_, std::move(window)});
    return lastHandle_;
}

void SimDesktop::close(Window window) {
    std::erase_if(windows_, [&](const Opened& opened) { return opened.handle == window; });
}

bool SimDesktop::isOpen(Window window) const {
    return placeOf(window) != windows_.end();
}

std::vector<Desktop::Window> SimDesktop::order() const {
    std::vector<Window> handles;
    handles.reserve(windows_.size());
    for (const Opened& opened : windows_) {
        handles.push_back(opened.handle);
    }
    return handles;
}

Desktop::Window SimDesktop::firstWindow() {
    return windows_.empty() ? 0 : windows_.front().handle;
}

Desktop::Window SimDesktop::nextWindow(Window window) {
    const auto place = placeOf(window);
    return place == windows_.end() || place + 1 == windows_.end() ? 0 : (place + 1)->handle;
}

void SimDesktop::windowText(Window window, char* buffer, int size) {
    const auto place = placeOf(window);
    copyInto(place == windows_.end() ? "" : place->window.title, buffer, size);
}

void SimDesktop::className(Window window, char* buffer, int size) {
    if (const auto place = placeOf(window); place != windows_.end()) {
        copyInto(place->window.className, buffer, size);
    }
}

std::uint32_t SimDesktop::processOf(Window window) {
    const auto place = placeOf(window);
    return place == windows_.end() ? 0 : place->window.process;
}

Desktop::Window SimDesktop::find(const std::optional<std::string>& className, const std::string& title) {
    const TextRules texts;
    const auto found = std::ranges::find_if(windows_, [&](const Opened& opened) {
        return texts.equal(opened.window.title, title) &&
               (!className || texts.equal(opened.window.className, *className));
    });
    return found == windows_.end() ? 0 : found->handle;
}

void SimDesktop::bringToTop(Window window) {
    broughtToTop_.push_back(window);
    if (const auto place = placeOf(window); place != windows_.end()) {
        const auto raised = windows_.begin() + (place - windows_.cbegin());
        std::rotate(windows_.begin(), raised, raised + 1);
    }
}

void SimDesktop::send(Window window, std::uint32_t message) {
    sent_.push_back({window, message});
    const auto place = placeOf(window);
    if (place != windows_.end() && message == closeMessage && !place->window.refusesClose) {
        windows_.erase(place);
    }
}

} // namespace tarvelon
