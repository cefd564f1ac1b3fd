#include "view/create.h"
#include "view/form.h"

namespace tarvelon {

namespace {

/// A page, or a box with a title: a window that holds others.
class FrameWindow : public ControlWindow {
public:
    FrameWindow(FormWindow& form, Frame& frame)
        : ControlWindow(form, frame, {frameWindowClass, WS_CLIPCHILDREN, WS_EX_CONTROLPARENT})
        , frame_(frame) {}

protected:
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override {
        const auto answer = reflect(message, wide, low);
        return answer ? *answer : ControlWindow::handle(message, wide, low);
    }

    void paint(Canvas& canvas) override {
        if (form().isNavigation(frame_)) {
            canvas.fill(canvas.area(), theme().navigation.ground);
        }
        if (frame_.look() != Frame::Look::Group) {
            return;
        }
        const Scale& scaled = canvas.scale();
        canvas.roundedBox(canvas.area(), scaled(6), theme().card.ground, theme().border, scaled(1));
        const RECT title{scaled(12), scaled(4), widthOf(canvas.area()) - scaled(12), scaled(22)};
        canvas.text(frame_.Caption(), title, {.color = theme().card.text, .weight = FW_SEMIBOLD});
    }

private:
    Frame& frame_;
};

} // namespace

MadeWindow makeWindow(FormWindow& form, Frame& frame) {
    return std::make_unique<FrameWindow>(form, frame);
}

} // namespace tarvelon
