#include "view/create.h"

#include <commctrl.h>

#include <algorithm>

namespace tarvelon {

namespace {

class ProgressBarWindow : public ControlWindow {
public:
    ProgressBarWindow(FormWindow& form, ProgressBar& bar)
        : ControlWindow(form, bar, {PROGRESS_CLASSA})
        , bar_(bar) {}

    void refresh() override {
        arranged();
        ControlWindow::refresh();
    }

protected:
    void arranged() override {
        // For those who ask the window itself how far it is.
        handleAsClass(PBM_SETRANGE32, 0, bar_.max());
        handleAsClass(PBM_SETPOS, static_cast<WPARAM>(bar_.value()), 0);
    }

    void paint(Canvas& canvas) override {
        const RECT area = canvas.area();
        const int radius = std::min(heightOf(area) / 2, canvas.scale()(4));
        canvas.roundedBox(area, radius, theme().track, theme().border, canvas.scale()(1));
        if (bar_.value() > 0 && bar_.max() > 0) {
            const int done = std::max(MulDiv(widthOf(area), bar_.value(), bar_.max()), 2 * radius);
            canvas.roundedBox({area.left, area.top, area.left + done, area.bottom}, radius, theme().bar);
        }
    }

private:
    ProgressBar& bar_;
};

} // namespace

MadeWindow makeWindow(FormWindow& form, ProgressBar& bar) {
    return std::make_unique<ProgressBarWindow>(form, bar);
}

} // namespace tarvelon
