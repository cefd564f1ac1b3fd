#include "view/create.h"

#include <algorithm>

// What is only looked at: small pictures, the band with the verdict, the dots of a way.

namespace tarvelon {

namespace {

Color colorOf(Tone tone, const Theme& theme, const Surface& surface) {
    switch (tone) {
    case Tone::Good:
        return theme.good;
    case Tone::Attention:
        return theme.attention;
    case Tone::Bad:
        return theme.bad;
    case Tone::Quiet:
        return surface.quietText;
    case Tone::Plain:
        break;
    }
    return surface.text;
}

class IconWindow : public WindowOf<Icon> {
public:
    using WindowOf::WindowOf;

    void paint(Canvas& canvas) override {
        canvas.drawing(drawingNamed(control().image()), canvas.area(),
                       colorOf(control().tone(), theme(), surface()));
    }
};

class VerdictWindow : public WindowOf<Verdict> {
public:
    using WindowOf::WindowOf;

    void paint(Canvas& canvas) override {
        const Scale& scaled = canvas.scale();
        const RECT area = canvas.area();
        const Color color = colorOf(control().tone(), theme(), theme().card);
        canvas.roundedBox(area, scaled(6), theme().card.ground, color, scaled(1));
        const int side = std::min(heightOf(area) - scaled(16), scaled(32));
        const int top = (heightOf(area) - side) / 2;
        canvas.drawing(drawingNamed("integrity"), {scaled(16), top, scaled(16) + side, top + side}, color);
        const RECT text{scaled(32) + side, scaled(4), area.right - scaled(16), area.bottom - scaled(4)};
        canvas.text(control().Caption(), text,
                    {.color = theme().card.text, .tenthPoints = textSize::heading, .weight = FW_SEMIBOLD});
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
                              step <= control().current() ? theme().focus : theme().border);
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

} // namespace tarvelon
