#pragma once

#include "view/create.h"

namespace tarvelon {

/// Everything that is pressed: mouse, Space, Enter and the messages by which other programs press a button
/// are the same for all; the kinds differ in what a press means and in their looks.
class PressWindow : public ControlWindow {
public:
    PressWindow(FormWindow& form, Control& control, DWORD style = BS_OWNERDRAW | WS_TABSTOP)
        : ControlWindow(form, control, {"BUTTON", style}) {}

    void notified(int code) override {
        if (code == BN_CLICKED) {
            control().click();
        }
    }

    void use() override { windowCalls().sendMessage(window(), BM_CLICK, 0, 0); }

protected:
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override;

    /// Space or Enter goes down on the window, and what comes of it.
    virtual void keyPress() {}
    virtual void keyClick() { control().click(); }
    /// The mouse moves over the window, in its own pixels.
    virtual void hover(POINT) {}
    virtual void leave() {}
    virtual bool isTicked() const { return false; }
    /// Else Enter presses the primary button, wherever the keyboard is.
    virtual bool takesEnter() const { return true; }
    virtual UINT dialogCode() const { return DLGC_BUTTON; }

    bool isHovered() const { return hovered_; }
    bool isHeld() const { return held_ != Held::No && overWhileHeld_; }
    bool contains(POINT where) const;
    const Color& faceColor(const Face& face) const;
    /// A text's colour on the face; `own` where the user's scheme does not decide.
    Color textOn(const Face& face, Color own) const;
    /// The face of the rank with the control's caption on it.
    void paintButton(Canvas& canvas, Rank rank, bool pressed, Color caption) const;

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

} // namespace tarvelon
