#include "view/label.h"

#include <algorithm>
#include <cstdlib>

namespace tarvelon {

namespace {

/// 0 to 100 out of a text such as "57%", or -1 for any other text.
int percentFrom(const std::string& text) {
    if (text.size() < 2 || text.back() != '%' || text.front() < '0' || text.front() > '9') {
        return -1;
    }
    return std::min(static_cast<int>(std::strtol(text.c_str(), nullptr, 10)), 100);
}

} // namespace

LRESULT LabelWindow::handle(UINT message, WPARAM wide, LPARAM low) {
    switch (message) {
    case WM_NCHITTEST:
        // A label that nothing is bound to lets the mouse through to what stands under it.
        return label_.onClick || label_.onMouseMove ? HTCLIENT : HTTRANSPARENT;
    case WM_LBUTTONUP:
        label_.click();
        return 0;
    default:
        return ControlWindow::handle(message, wide, low);
    }
}

Color LabelWindow::textColor() const {
    if (!label_.isUsable()) {
        return theme().disabledText;
    }
    const bool plain = label_.ForeColor() == colors::black;
    if (theme().highContrast || plain) {
        return label_.style() == TextStyle::Hint ? surface().quietText : surface().text;
    }
    return label_.ForeColor();
}

TextLook LabelWindow::look() const {
    TextLook text{.color = textColor()};
    if (label_.style() == TextStyle::Heading) {
        text.tenthPoints = textSize::heading;
        text.weight = FW_SEMIBOLD;
    }
    if (label_.style() == TextStyle::Caption) {
        text.align = Align::Center;
    }
    if (label_.style() == TextStyle::Value) {
        text.tenthPoints = textSize::value;
        text.weight = FW_BOLD;
        text.align = Align::Right;
    }
    return text;
}

void LabelWindow::paint(Canvas& canvas) {
    if (label_.style() == TextStyle::Gauge) {
        paintGauge(canvas);
    } else {
        canvas.text(label_.Caption(), canvas.area(), look());
    }
}

void LabelWindow::paintGauge(Canvas& canvas) {
    const int percent = percentFrom(label_.Caption());
    TextLook text = look();
    text.align = Align::Right;
    canvas.text(label_.Caption(), canvas.area(), text);
    if (percent < 0) {
        return;
    }
    const Scale& scaled = canvas.scale();
    const int height = scaled(6);
    const int top = (heightOf(canvas.area()) - height) / 2;
    const int width = widthOf(canvas.area()) - canvas.textWidth("100%", text) - scaled(8);
    if (width < scaled(16)) {
        return;
    }
    canvas.roundedBox({0, top, width, top + height}, height / 2, theme().track);
    if (percent > 0) {
        const int done = std::max(MulDiv(width, percent, 100), height);
        canvas.roundedBox({0, top, done, top + height}, height / 2, theme().bar);
    }
}

} // namespace tarvelon
