#include "view/create.h"
#include "view/form.h"

namespace tarvelon {

namespace {

/// A page, or a box with a title: a window that holds others.
class FrameWindow : public WindowOf<Frame> {
public:
    using WindowOf::WindowOf;

    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override {
        const auto answer = reflect(message, wide, low);
        return answer ? *answer : ControlWindow::handle(message, wide, low);
    }

    void paint(Canvas& canvas) override {
        if (form().isNavigation(control())) {
            canvas.fill(canvas.area(), theme().navigation.ground);
        } else if (control().Current()) {
            canvas.roundedBox(canvas.area(), canvas.scale()(4), theme().current.ground);
        } else if (control().place().height == 1) { // It sets off what is above from what is below.
            canvas.fill(canvas.area(), theme().line);
            return;
        }
        if (control().look() != Frame::Look::Group) {
            return;
        }
        const Scale& scaled = canvas.scale();
        canvas.roundedBox(canvas.area(), scaled(6), theme().card.ground, theme().line, scaled(1));
        const RECT title{scaled(12), scaled(4), widthOf(canvas.area()) - scaled(12), scaled(22)};
        canvas.text(control().Caption(), title, {.color = theme().card.text, .weight = FW_SEMIBOLD});
    }
};

} // namespace

MadeWindow makeFrame(FormWindow& form, Control& control) {
    return std::make_unique<FrameWindow>(
        form, control, ControlWindow::Kind{frameWindowClass, WS_CLIPCHILDREN, WS_EX_CONTROLPARENT});
}

} // namespace tarvelon
