#pragma once

#include "view/control.h"

namespace tarvelon {

/// Everything that is pressed: mouse, Space, Enter and the messages by which other programs press a button
/// are the same for all; the kinds differ in what a press means and in their looks.
class PressWindow : public ControlWindow {
public:
    using ControlWindow::ControlWindow;

    void notified(int code) override;

protected:
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override;

    virtual void click() = 0;
    /// Space or Enter goes down on the window, and what comes of it.
    virtual void keyPress() {}
    virtual void keyClick() { click(); }
    virtual void down() {}
    virtual void up() {}
    /// The mouse moves over the window, in its own pixels.
    virtual void hover(POINT) {}
    virtual void leave() {}
    virtual bool isTicked() const { return false; }
    virtual UINT dialogCode() const { return DLGC_BUTTON; }

    bool isHovered() const { return hovered_; }
    bool isHeld() const { return held_ != Held::No && overWhileHeld_; }
    bool contains(POINT where) const;
    const Color& faceColor(const Face& face) const;

private:
    enum class Held { No, ByMouse, ByKey };

    void press(Held by);
    void release(bool counts);
    void mouseMoved(POINT where);
    LRESULT keyboard(UINT message, WPARAM key, LPARAM low);

    bool hovered_ = false;
    Held held_ = Held::No;
    bool overWhileHeld_ = false;
};

class FlatButtonWindow : public PressWindow {
public:
    FlatButtonWindow(FormWindow& form, FlatButton& button)
        : PressWindow(form, button)
        , button_(button) {}

protected:
    Kind kind() const override { return {"BUTTON", BS_OWNERDRAW | WS_TABSTOP}; }
    void click() override { button_.click(); }
    void down() override { button_.mouseDown(); }
    void up() override { button_.mouseUp(); }
    void hover(POINT where) override;
    void paint(Canvas& canvas) override;

private:
    FlatButton& button_;
};

/// A label that is clicked: with a button's face, or as a link.
class ActionWindow : public PressWindow {
public:
    ActionWindow(FormWindow& form, Label& label)
        : PressWindow(form, label)
        , label_(label) {}

protected:
    Kind kind() const override { return {"BUTTON", BS_OWNERDRAW | WS_TABSTOP}; }
    void click() override { label_.click(); }
    void down() override { label_.mouseDown(); }
    void up() override { label_.mouseUp(); }
    void paint(Canvas& canvas) override;

private:
    void paintLink(Canvas& canvas);

    Label& label_;
};

} // namespace tarvelon
