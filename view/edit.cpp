#include "view/create.h"

#include <algorithm>

namespace tarvelon {

namespace {

/// One line to type in. The window's own text is the caption, both ways.
class TextBoxWindow : public WindowOf<TextBox> {
public:
    using WindowOf::WindowOf;

    void notified(int code) override {
        if (code == EN_CHANGE && !setting_) {
            control().typed(shownText());
        }
    }

    HBRUSH colorStandardWindow(HDC dc) override {
        SetTextColor(dc, control().isUsable() ? theme().fieldText : surface().disabledText);
        SetBkColor(dc, ground());
        return tools().brushes.get(ground());
    }

    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override {
        const LRESULT result = ControlWindow::handle(message, wide, low);
        if (message == WM_NCCALCSIZE) {
            auto& area = *reinterpret_cast<RECT*>(low); // In both of its forms the message begins with it.
            area = lineIn(area);
        }
        return result;
    }

    void paintEdge(HDC dc, const RECT& whole, HBRUSH edge) override {
        const RECT line = lineIn(whole);
        const int thickness = scale()(isFocused() ? 2 : 1);
        const RECT withoutEdge = inset(whole, thickness, thickness);
        ExcludeClipRect(dc, line.left, line.top, line.right, line.bottom);
        FillRect(dc, &whole, edge);
        FillRect(dc, &withoutEdge, tools().brushes.get(ground()));
    }

    void applyCaption() override {
        if (shownText() == control().Caption()) {
            return; // It came from the keyboard; setting it again would move the caret.
        }
        setting_ = true;
        handleAsClass(WM_SETTEXT, 0, WindowText(control().Caption()).parameter());
        setting_ = false;
    }

    void arranged() override {
        handleAsClass(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(scale()(4), scale()(4)));
        // Has the line centred anew.
        SetWindowPos(window(), nullptr, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    }

private:
    std::string shownText() {
        return askedText(
            [this](UINT message, WPARAM wide, LPARAM low) { return handleAsClass(message, wide, low); });
    }

    Color ground() const { return control().isUsable() ? theme().field : surface().ground; }

    /// The middle of the area, in the height of a line.
    RECT lineIn(const RECT& area) const {
        TEXTMETRICA metrics;
        GetTextMetricsA(textDc(), &metrics);
        const int spare = std::max((heightOf(area) - static_cast<int>(metrics.tmHeight)) / 2, 1);
        return inset(area, scale()(2), std::min(spare, heightOf(area) / 2));
    }
    bool setting_ = false; ///< The text comes from the control, not from the keyboard.
};

} // namespace

MadeWindow makeTextBox(FormWindow& form, Control& control) {
    return std::make_unique<TextBoxWindow>(form, control,
                                           ControlWindow::Kind{.windowClass = "EDIT",
                                                               .style = ES_AUTOHSCROLL | WS_TABSTOP,
                                                               .drawnByClass = true,
                                                               .textIsCaption = false});
}

} // namespace tarvelon
