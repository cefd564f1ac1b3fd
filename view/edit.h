#pragma once

#include "view/brush.h"
#include "view/control.h"

namespace tarvelon {

/// One line to type in. The window's own text is the caption, both ways.
class TextBoxWindow : public ControlWindow {
public:
    TextBoxWindow(FormWindow& form, TextBox& box)
        : ControlWindow(form, box)
        , box_(box) {}

    void notified(int code) override;
    HBRUSH colorStandardWindow(HDC dc) override;

protected:
    Kind kind() const override { return {"EDIT", ES_AUTOHSCROLL | WS_TABSTOP}; }
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override;
    bool paintsItself() const override { return false; }
    bool answersCaption() const override { return false; }
    void applyCaption() override;
    void arranged() override;

private:
    std::string shownText();
    Color ground() const;
    void centreLine(RECT& inside) const;
    void paintEdge();

    TextBox& box_;
    Brush brush_;
    bool setting_ = false; ///< The text comes from the control, not from the keyboard.
};

} // namespace tarvelon
