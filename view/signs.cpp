#include "view/create.h"

#include <algorithm>

// What is only looked at: small pictures, the band with the verdict, the dots of a way, how a part stands.

namespace tarvelon {

namespace {

class IconWindow : public WindowOf<Icon> {
public:
    using WindowOf::WindowOf;

    void paint(Canvas& canvas) override {
        const Color ground = surface().ground;
        canvas.drawing(drawingNamed(control().image()), canvas.area(),
                       seenOn(ground, theme().tone(control().tone()).sign), ground);
    }
};

const char* shieldOf(Tone tone) {
    switch (tone) {
    case Tone::Good:
        return "shield-good";
    case Tone::Attention:
        return "shield-attention";
    case Tone::Bad:
        return "shield-bad";
    default:
        return "shield";
    }
}

class VerdictWindow : public WindowOf<Verdict> {
public:
    using WindowOf::WindowOf;

    void paint(Canvas& canvas) override {
        const Scale& scaled = canvas.scale();
        const RECT area = canvas.area();
        const auto& [color, band] = theme().tone(control().tone());
        canvas.roundedBox(area, scaled(6), band, color, scaled(1));
        const int side = std::min(heightOf(area) - scaled(16), scaled(40));
        const int top = (heightOf(area) - side) / 2;
        canvas.drawing(drawingNamed(shieldOf(control().tone())),
                       {scaled(16), top, scaled(16) + side, top + side}, color, band);
        const RECT text{scaled(32) + side, scaled(4), area.right - scaled(16), area.bottom - scaled(4)};
        canvas.text(control().Caption(), text,
                    {.color = theme().page.text, .tenthPoints = textSize::heading, .weight = FW_SEMIBOLD});
    }
};

class StepDotsWindow : public WindowOf<StepDots> {
public:
    using WindowOf::WindowOf;

    void paint(Canvas& canvas) override {
        const Scale& scaled = canvas.scale();
        const int pitch = scaled(16);
        const int middle = heightOf(canvas.area()) / 2;
        for (int step = 0; step < control().count(); ++step) {
            const bool here = step == control().current();
            const int radius = scaled(here ? 5 : 3);
            const int x = pitch / 2 + step * pitch;
            canvas.roundedBox({x - radius, middle - radius, x + radius, middle + radius}, radius,
                              step <= control().current() ? theme().page.mark.ticked : theme().border);
        }
    }
};

class StatusLineWindow : public WindowOf<StatusLine> {
public:
    using WindowOf::WindowOf;

    void paint(Canvas& canvas) override {
        const Scale& scaled = canvas.scale();
        const Surface& under = surface();
        const int side = scaled(24);
        const RECT sign{0, scaled(10), side, scaled(10) + side};
        canvas.drawing(drawingNamed(imageOf(control().tone())), sign,
                       seenOn(under.ground, theme().tone(control().tone()).sign), under.ground);
        const LONG left = scaled(40);
        const LONG middle = scaled(20);
        const RECT area = canvas.area();
        canvas.text(control().Caption(), {left, 0, area.right, middle},
                    {.color = under.text, .tenthPoints = textSize::heading, .weight = FW_SEMIBOLD});
        canvas.text(control().text(), {left, middle - scaled(2), area.right, area.bottom},
                    {.color = under.quietText});
    }

private:
    static const char* imageOf(Tone tone) {
        switch (tone) {
        case Tone::Good:
            return "good";
        case Tone::Attention:
            return "attention";
        default:
            return "unused";
        }
    }
};

} // namespace

MadeWindow makeIcon(FormWindow& form, Control& control) {
    return std::make_unique<IconWindow>(form, control, ControlWindow::Kind{"STATIC"});
}

MadeWindow makeVerdict(FormWindow& form, Control& control) {
    return std::make_unique<VerdictWindow>(form, control, ControlWindow::Kind{"STATIC"});
}

MadeWindow makeStepDots(FormWindow& form, Control& control) {
    return std::make_unique<StepDotsWindow>(form, control, ControlWindow::Kind{"STATIC"});
}

MadeWindow makeStatusLine(FormWindow& form, Control& control) {
    return std::make_unique<StatusLineWindow>(form, control, ControlWindow::Kind{"STATIC", SS_NOTIFY});
}

} // namespace tarvelon
