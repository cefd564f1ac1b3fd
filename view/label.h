#pragma once

#include "view/control.h"

namespace tarvelon {

/// Text, a figure, or a percentage drawn as a bar.
class LabelWindow : public ControlWindow {
public:
    LabelWindow(FormWindow& form, Label& label)
        : ControlWindow(form, label)
        , label_(label) {}

    bool takesKeys() const override { return false; }

protected:
    Kind kind() const override { return {"STATIC"}; }
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override;
    void paint(Canvas& canvas) override;

private:
    TextLook look() const;
    Color textColor() const;
    void paintGauge(Canvas& canvas);

    Label& label_;
};

} // namespace tarvelon
