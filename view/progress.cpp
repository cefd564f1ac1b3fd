#include "view/progress.h"

#include <commctrl.h>

#include <algorithm>

namespace tarvelon {

ControlWindow::Kind ProgressBarWindow::kind() const {
    return {PROGRESS_CLASSA};
}

void ProgressBarWindow::refresh() {
    tellClass();
    ControlWindow::refresh();
}

void ProgressBarWindow::tellClass() {
    handleAsClass(PBM_SETRANGE32, 0, bar_.max());
    handleAsClass(PBM_SETPOS, static_cast<WPARAM>(bar_.value()), 0);
}

void ProgressBarWindow::paint(Canvas& canvas) {
    const RECT area = canvas.area();
    const int radius = std::min(heightOf(area) / 2, canvas.scale()(4));
    canvas.roundedBox(area, radius, theme().track, theme().border, canvas.scale()(1));
    if (bar_.value() > 0 && bar_.max() > 0) {
        const int done = std::max(MulDiv(widthOf(area), bar_.value(), bar_.max()), 2 * radius);
        canvas.roundedBox({area.left, area.top, area.left + done, area.bottom}, radius, theme().bar);
    }
}

} // namespace tarvelon
