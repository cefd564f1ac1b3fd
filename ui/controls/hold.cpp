#include "ui/controls/hold.h"

#include "ui/controls/controls.h"

namespace tarvelon {

namespace {

class Hold {
public:
    Hold(const std::vector<Control*>& controls, const std::vector<Screen*>& screens)
        : screens_(screens) {
        for (Control* control : controls) {
            if (control->Enabled()) {
                control->Enabled = false;
                disabled_.push_back(control);
            }
        }
        for (Screen* screen : screens_) {
            screen->holdClosing(true);
        }
    }
    Hold(const Hold&) = delete;
    ~Hold() {
        for (Control* control : disabled_) {
            control->Enabled = true;
        }
        for (Screen* screen : screens_) {
            screen->holdClosing(false);
        }
    }

private:
    std::vector<Control*> disabled_;
    const std::vector<Screen*>& screens_;
};

} // namespace

void runHolding(const std::vector<Control*>& controls, const std::vector<Screen*>& screens,
                const std::function<void()>& action) {
    {
        const Hold hold(controls, screens);
        action();
    }
    for (Screen* screen : screens) {
        screen->closeIfWanted();
    }
}

} // namespace tarvelon
