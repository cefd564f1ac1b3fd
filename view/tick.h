#pragma once

#include "view/press.h"

namespace tarvelon {

/// A square or round mark with its text behind it: check boxes and option buttons.
class TickWindow : public PressWindow {
public:
    using PressWindow::PressWindow;

protected:
    void paint(Canvas& canvas) override;
    virtual bool isRound() const { return false; }
    virtual bool isLink() const { return false; }
    virtual Color textColor() const { return surface().text; }

    /// Where the text begins, in pixels.
    int textLeft() const { return scale()(24); }
};

class FlatCheckWindow : public TickWindow {
public:
    FlatCheckWindow(FormWindow& form, FlatCheck& check)
        : TickWindow(form, check)
        , check_(check) {}

protected:
    Kind kind() const override { return {"BUTTON", BS_AUTOCHECKBOX | WS_TABSTOP}; }
    void click() override { check_.click(); }
    void hover(POINT where) override;
    void leave() override { check_.mouseMoveBox(); }
    bool isTicked() const override { return check_.value() != 0; }
    bool isLink() const override { return check_.hovered(); }

private:
    FlatCheck& check_;
};

class CheckBoxWindow : public TickWindow {
public:
    CheckBoxWindow(FormWindow& form, CheckBox& box)
        : TickWindow(form, box)
        , box_(box) {}

protected:
    Kind kind() const override { return {"BUTTON", BS_AUTOCHECKBOX | WS_TABSTOP}; }
    void click() override { box_.click(); }
    bool isTicked() const override { return box_.value() != 0; }
    Color textColor() const override;
    void paint(Canvas& canvas) override;

private:
    CheckBox& box_;
};

class OptionButtonWindow : public TickWindow {
public:
    OptionButtonWindow(FormWindow& form, OptionButton& option)
        : TickWindow(form, option)
        , option_(option) {}

protected:
    Kind kind() const override { return {"BUTTON", BS_AUTORADIOBUTTON | WS_TABSTOP}; }
    void click() override { option_.click(); }
    UINT dialogCode() const override { return DLGC_BUTTON | DLGC_RADIOBUTTON; }
    bool isTicked() const override { return option_.value(); }
    bool isRound() const override { return true; }
    void applyValue() override;

private:
    OptionButton& option_;
};

} // namespace tarvelon
