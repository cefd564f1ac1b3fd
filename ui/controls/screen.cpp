#include "ui/controls/screen.h"

#include <utility>

namespace tarvelon {

Screen::Screen(std::string caption, int width, int height)
    : Caption(*this, std::move(caption))
    , Visible(*this, false)
    , Minimized(*this, false)
    , width_(width)
    , height_(height) {}

void Screen::load() {
    if (loaded_) {
        return;
    }
    loaded_ = true;
    if (listener) {
        listener->loaded(*this);
    }
    if (!onLoad) {
        return;
    }
    struct Loading {
        explicit Loading(bool& flag)
            : flag_(flag) {
            flag_ = true;
        }
        Loading(const Loading&) = delete;
        ~Loading() { flag_ = false; }
        bool& flag_;
    } const loading(loading_);
    onLoad();
}

void Screen::show() {
    load();
    Minimized = false;
    if (Visible()) {
        changed(Aspect::Front);
    }
    Visible = true;
}

void Screen::showMinimized() {
    load();
    Minimized = true;
    Visible = true;
}

void Screen::hide() {
    load();
    hiddenWhileLoading_ = hiddenWhileLoading_ || loading_;
    Visible = false;
}

void Screen::close() {
    if (closingHeld_) {
        closeWanted_ = true;
        return;
    }
    dispatch([this] {
        if (!onQueryClose || onQueryClose()) {
            Visible = false;
        }
    });
}

void Screen::closeIfWanted() {
    if (std::exchange(closeWanted_, false)) {
        close();
    }
}

void Screen::dispatch(const Handler& handler) const {
    if (!handler) {
        return;
    }
    if (dispatcher) {
        dispatcher(handler);
    } else {
        handler();
    }
}

void Screen::changed(Aspect aspect) {
    if (listener) {
        listener->changed(*this, aspect);
    }
}

} // namespace tarvelon
