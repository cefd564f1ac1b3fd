#pragma once

#include "view/drawings.h"
#include "view/press.h"

namespace tarvelon {

/// A large round button with a drawing on it. "-lit" behind the picture's name stands for the same button
/// with light around it: it lies over the plain one and leaves the keyboard to that.
class PictureWindow : public PressWindow {
public:
    PictureWindow(FormWindow& form, Picture& picture);
    bool takesKeys() const override { return !lit_; }

protected:
    Kind kind() const override;
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override;
    void click() override { picture_.click(); }
    void keyPress() override { picture_.keyPress(); }
    void keyClick() override { picture_.keyClick(); }
    void paint(Canvas& canvas) override;

private:
    const Face& face() const;
    bool isOnDisc(POINT onDesktop) const;
    bool isSamePlace(HWND other) const;
    HWND plainBelow() const;
    void focusMoved() const;

    Picture& picture_;
    bool lit_;
    const LineDrawing& drawing_;
};

/// An entry of the navigation column.
class NavButtonWindow : public PressWindow {
public:
    NavButtonWindow(FormWindow& form, NavButton& button);

protected:
    Kind kind() const override { return {"BUTTON", BS_OWNERDRAW | WS_TABSTOP}; }
    void click() override { button_.click(); }
    void paint(Canvas& canvas) override;

private:
    NavButton& button_;
    const LineDrawing& drawing_;
};

} // namespace tarvelon
