#include "view/create.h"
#include "view/form.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

namespace tarvelon {

namespace {

class ProgressBarWindow : public WindowOf<ProgressBar> {
public:
    using WindowOf::WindowOf;

    void follow() override {
        // For those who ask the window itself how far it is.
        handleAsClass(PBM_SETRANGE32, 0, control().max());
        handleAsClass(PBM_SETPOS, static_cast<WPARAM>(control().value()), 0);
        const int percent = control().max() > 0 ? MulDiv(control().value(), 100, control().max()) : 0;
        if (std::exchange(percentTold_, percent) != percent) {
            tools().taskBar.showProgress(form().window(), percent, 100);
        }
    }

    void paint(Canvas& canvas) override {
        const RECT area = canvas.area();
        const int radius = std::min(heightOf(area) / 2, canvas.scale()(4));
        canvas.roundedBox(area, radius, theme().track, theme().border, canvas.scale()(1));
        const RECT inside = inset(area, canvas.scale()(1), canvas.scale()(1));
        if (control().value() > 0 && control().max() > 0) {
            const int done =
                std::max(MulDiv(widthOf(inside), control().value(), control().max()), 2 * radius);
            canvas.roundedBox({inside.left, inside.top, inside.left + done, inside.bottom}, radius,
                              theme().bar);
        }
    }

private:
    int percentTold_ = 0;
};

} // namespace

MadeWindow makeProgressBar(FormWindow& form, Control& control) {
    return std::make_unique<ProgressBarWindow>(form, control, ControlWindow::Kind{PROGRESS_CLASSA});
}

} // namespace tarvelon
