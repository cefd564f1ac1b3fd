#pragma once

#include "view/control.h"

namespace tarvelon {

class ProgressBarWindow : public ControlWindow {
public:
    ProgressBarWindow(FormWindow& form, ProgressBar& bar)
        : ControlWindow(form, bar)
        , bar_(bar) {}

    void refresh() override;

    bool takesKeys() const override { return false; }

protected:
    Kind kind() const override;
    void paint(Canvas& canvas) override;
    void arranged() override { tellClass(); }

private:
    /// For those who ask the window itself how far it is.
    void tellClass();

    ProgressBar& bar_;
};

} // namespace tarvelon
